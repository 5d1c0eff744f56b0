// The alarm list chain (AlarmModel -> AlarmTranslatedModel -> AlarmSortFilterModel) on 10 000 generated
// rules, next to Qt's own filtering and sorting on the name role over the same display proxy. Run:
//   build/bin/bench_alarmproxies --benchmark_min_time=1
// and compare ApplyFilter/TwoKeywords with Builtin/FixedStringOnName, and SortByRole/* with Builtin/SortOnName.

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QSortFilterProxyModel>
#include <QStandardItem>

#include <memory>

#include "AlarmModel.h"
#include "AlarmSortFilterModel.h"
#include "AlarmTranslatedModel.h"

namespace {

constexpr int RULE_COUNT = 10000;

// Deterministic, so every run measures the same rules.
class Dice
{
public:
    int roll(int sides)
    {
        m_state = m_state * 6364136223846793005ULL + 1442695040888963407ULL;
        return static_cast<int>((m_state >> 33) % static_cast<quint64>(sides));
    }
    template <typename T>
    const T& pick(const QList<T>& list)
    {
        return list.at(roll(static_cast<int>(list.size())));
    }

private:
    quint64 m_state = 42;
};

const QStringList places{"Front door", "Back door", "Gate", "Lobby", "Parking", "Warehouse", "Server room", "Yard",
                         "Loading dock", "Elevator", "Corridor", "Roof"};
const QStringList cameraEvents{"DI", "DO", "Motion", "VideoLossRestore", "VCA", "Thermal", "Tampering", "PIR"};
const QStringList vcaKinds{"LineDetection", "FieldDetection", "Loitering", "AbandonObject", "CrowdDetection"};
const QStringList statusEvents{"CamConn", "RecStatus", "StationConn", "StorageCapacity", "FanStatus"};
const QStringList statusValues{"Connected", "Lost", "Start", "Stop", "Down", "Up", "Healthy", "Exhausted", "Fine"};

QVariantMap triggerMap(Dice& dice)
{
    const QString device = QStringLiteral("%1 cam %2").arg(dice.pick(places)).arg(dice.roll(40) + 1);
    QVariantMap trigger{{"devRealName", device.toLower()}, {"devName", device}, {"latency", dice.roll(10)}};
    if (dice.roll(4) == 0) {
        trigger.insert("trigger", dice.pick(statusEvents));
        trigger.insert("value", dice.pick(statusValues));
        return trigger;
    }
    const QString event = dice.pick(cameraEvents);
    trigger.insert("trigger", event);
    if (event == QLatin1String("DI") || event == QLatin1String("DO")) {
        trigger.insert("index", dice.roll(4) + 1);
        trigger.insert("value", dice.roll(2) ? "High" : "Low");
    } else if (event == QLatin1String("Motion")) {
        trigger.insert("index", dice.roll(8) + 1);
    } else if (event == QLatin1String("VideoLossRestore")) {
        trigger.insert("value", dice.roll(2));
    } else if (event == QLatin1String("VCA")) {
        trigger.insert("index", dice.pick(vcaKinds));
    } else if (event == QLatin1String("Thermal")) {
        trigger.insert("index", QStringLiteral("TemperatureRiseAlarm"));
        trigger.insert("value", dice.roll(5));
    }
    return trigger;
}

// One action of the kinds the codecs decode: its type and its targets.
QPair<QString, QVariantList> action(Dice& dice)
{
    const QString place = dice.pick(places);
    switch (dice.roll(6)) {
    case 0:
        return {"SendMail",
                {QVariantMap{{"target", "guard@site.example"}, {"action", ""}, {"senderName", "NVR"}, {"from", "nvr@site"},
                             {"cc", dice.roll(2) ? "boss@site.example" : ""}, {"subject", place + " alarm"},
                             {"content", "Check " + place}, {"snapshotCameraList", QVariantList()}}}};
    case 1:
        return {"HTTP",
                {QVariantMap{{"target", "POST Method"}, {"action", "http://hook.example/" + place}, {"needAuth", "false"},
                             {"user", ""}, {"pwd", ""}, {"post", true}, {"contentType", "text/plain"},
                             {"httpContent", ""}}}};
    case 2: {
        QVariantList cameras;
        for (int i = dice.roll(3); i >= 0; --i)
            cameras.append(QVariantMap{{"target", QStringLiteral("%1 cam %2").arg(place).arg(i + 1)}, {"action", ""},
                                       {"camId", QString::number(i + 7)}, {"grpId", "0"}});
        return {"Recording", cameras};
    }
    case 3: {
        QVariantList outputs;
        for (int i = dice.roll(2); i >= 0; --i)
            outputs.append(QVariantMap{{"target", place + " IO box"}, {"action", "SetDO"},
                                       {"index", QStringLiteral("Siren %1").arg(i + 1)}, {"value", dice.roll(2) ? "1" : "0"},
                                       {"period", 0}, {"camId", "io-1"}, {"ioIndex", i + 1}});
        return {"SetDO", outputs};
    }
    case 4:
        return {"SMS", {QVariantMap{{"target", "0912345678"}, {"action", ""}, {"message", place + " alarm"}}}};
    default:
        return {"ClientNotificationGotoLiveStream",
                {QVariantMap{{"target", "Event triggering camera"}, {"action", ""}, {"camId", ""}, {"includeTriggerCam", true}},
                 QVariantMap{{"target", place + " cam 1"}, {"action", ""}, {"camId", "3"}, {"includeTriggerCam", false}}}};
    }
}

QStandardItem* rule(Dice& dice, int number)
{
    QVariantList triggers;
    for (int i = dice.roll(3); i >= 0; --i)
        triggers.append(triggerMap(dice));
    QVariantList actionTypes;
    QVariantList actionTargets;
    for (int i = dice.roll(3); i >= 0; --i) {
        const auto [type, targets] = action(dice);
        actionTypes.append(type);
        actionTargets.append(QVariant(targets));
    }
    const QVariantMap last = triggers.constLast().toMap();
    const QString lastType = last.value("trigger") == QLatin1String("VCA") ? last.value("index").toString()
                                                                          : last.value("trigger").toString();
    auto* item = new QStandardItem;
    item->setData(QString::number(number), AlarmModel::idRole);
    item->setData(QStringLiteral("%1 %2").arg(dice.pick(places)).arg(number), AlarmModel::nameRole);
    item->setData(dice.roll(2) == 0, AlarmModel::enabledRole);
    item->setData(triggers, AlarmModel::triggerSourceRole);
    item->setData(lastType, AlarmModel::triggerTypeRole);
    item->setData(actionTypes, AlarmModel::actionTypeRole);
    item->setData(actionTargets, AlarmModel::actionTargetRole);
    item->setData(QVariantList{dice.roll(2) ? "Office hours" : "Always", "success", "{\"Rectangles\":[]}"},
                  AlarmModel::scheduleRole);
    item->setData(qint64(number), AlarmModel::revisionRole);
    item->setData("generated", AlarmModel::descriptionRole);
    item->setData("<TriggerList/>", AlarmModel::triggerXmlRole);
    item->setData("<ActionList/>", AlarmModel::actionXmlRole);
    return item;
}

// Both list proxies over one display proxy, every row read once so that no run pays for first use.
struct Chain
{
    AlarmModel source;
    AlarmTranslatedModel texts;
    AlarmSortFilterModel list;
    QSortFilterProxyModel builtin;

    Chain()
    {
        Dice dice;
        for (int number = 0; number < RULE_COUNT; ++number)
            source.appendRow(rule(dice, number));
        texts.setSourceModel(&source);
        list.setSourceModel(&texts);
        builtin.setSourceModel(&texts);
        builtin.setFilterRole(AlarmModel::nameRole);
        builtin.setFilterCaseSensitivity(Qt::CaseInsensitive);
        builtin.setSortRole(AlarmModel::nameRole);
        list.applyFilter(QString());
        list.sortByRole(AlarmModel::triggerSourceRole, Qt::AscendingOrder);
        builtin.sort(0);
    }
};

// Built on first use inside main, and gone before the application object is.
std::unique_ptr<Chain> theChain;

Chain& chain()
{
    if (!theChain)
        theChain = std::make_unique<Chain>();
    return *theChain;
}

// Two filters in turn, so every run filters anew. Qt's filter looks for one text in the name only: it gets
// the first keyword, which shows and hides about as many rules as both keywords over all the texts do.
const QStringList filters{"door mail", "gate record"};
const QStringList builtinFilters{"door", "gate"};

void ApplyFilter_TwoKeywords(benchmark::State& state)
{
    Chain& c = chain();
    int turn = 0;
    for (auto _ : state) {
        c.list.applyFilter(filters.at(turn++ % 2));
        benchmark::DoNotOptimize(c.list.rowCount());
    }
    c.list.applyFilter(QString());
}
BENCHMARK(ApplyFilter_TwoKeywords)->Name("ApplyFilter/TwoKeywords")->Unit(benchmark::kMillisecond);

void Builtin_FixedStringOnName(benchmark::State& state)
{
    Chain& c = chain();
    int turn = 0;
    for (auto _ : state) {
        c.builtin.setFilterFixedString(builtinFilters.at(turn++ % 2));
        benchmark::DoNotOptimize(c.builtin.rowCount());
    }
    c.builtin.setFilterFixedString(QString());
}
BENCHMARK(Builtin_FixedStringOnName)->Name("Builtin/FixedStringOnName")->Unit(benchmark::kMillisecond);

// The same whole filter text handed to Qt's filter: it then matches no name and hides every rule each time.
void Builtin_WholeFilterTextOnName(benchmark::State& state)
{
    Chain& c = chain();
    int turn = 0;
    for (auto _ : state) {
        c.builtin.setFilterFixedString(filters.at(turn++ % 2));
        benchmark::DoNotOptimize(c.builtin.rowCount());
    }
    c.builtin.setFilterFixedString(QString());
}
BENCHMARK(Builtin_WholeFilterTextOnName)->Name("Builtin/WholeFilterTextOnName")->Unit(benchmark::kMillisecond);

// Both keywords matching no rule: the search alone, without rows coming and going.
void ApplyFilter_NothingMatches(benchmark::State& state)
{
    Chain& c = chain();
    int turn = 0;
    for (auto _ : state) {
        c.list.applyFilter(turn++ % 2 ? QStringLiteral("qqq door") : QStringLiteral("qqq gate"));
        benchmark::DoNotOptimize(c.list.rowCount());
    }
    c.list.applyFilter(QString());
}
BENCHMARK(ApplyFilter_NothingMatches)->Name("ApplyFilter/NothingMatches")->Unit(benchmark::kMillisecond);

void SortByRole(benchmark::State& state)
{
    Chain& c = chain();
    const int role = static_cast<int>(state.range(0));
    int turn = 0;
    for (auto _ : state) {
        c.list.sortByRole(role, turn++ % 2 ? Qt::DescendingOrder : Qt::AscendingOrder);
        benchmark::DoNotOptimize(c.list.rowCount());
    }
}
BENCHMARK(SortByRole)->Name("SortByRole/Name")->Arg(AlarmModel::nameRole)->Unit(benchmark::kMillisecond);
BENCHMARK(SortByRole)->Name("SortByRole/TriggerSource")->Arg(AlarmModel::triggerSourceRole)->Unit(benchmark::kMillisecond);

void Builtin_SortOnName(benchmark::State& state)
{
    Chain& c = chain();
    int turn = 0;
    for (auto _ : state) {
        c.builtin.sort(0, turn++ % 2 ? Qt::DescendingOrder : Qt::AscendingOrder);
        benchmark::DoNotOptimize(c.builtin.rowCount());
    }
}
BENCHMARK(Builtin_SortOnName)->Name("Builtin/SortOnName")->Unit(benchmark::kMillisecond);

// What the kept texts save: every display text of every rule built from the raw values.
void DisplayTexts_AllRowsUncached(benchmark::State& state)
{
    Chain& c = chain();
    for (auto _ : state) {
        AlarmTranslatedModel fresh;
        fresh.setSourceModel(&c.source);
        for (int row = 0; row < fresh.rowCount(); ++row) {
            const QModelIndex index = fresh.index(row, 0);
            for (int role = AlarmModel::triggerSourceRole; role <= AlarmModel::actionTargetRole; ++role)
                benchmark::DoNotOptimize(index.data(role));
        }
    }
}
BENCHMARK(DisplayTexts_AllRowsUncached)->Name("DisplayTexts/AllRowsUncached")->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    theChain.reset();
    return 0;
}
