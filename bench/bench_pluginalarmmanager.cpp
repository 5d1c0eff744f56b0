#include <benchmark/benchmark.h>

#include <QCoreApplication>

#include <ctime>

#include "AlarmDocumentGenerator.h"
#include "FakeFramework.h"
#include "PluginAlarmManager.h"
#include "TokenPass.h"
#include "stdafx.h"

// The plug-in's two hot paths as the host drives them, each next to a bare token pass of Qt's stream
// reader over the same text (the yardstick): the whole "GetAllAlarm" answer from CommandProcessor to
// getAlarmResp(true), and triggered-alarm events from EventProcessor to alarmTriggered. Each benchmark
// reports its own time as a multiple of the token pass ("xTokenPass"), both on this thread's CPU time, so
// that other processes on a busy machine do not skew the ratio.
using namespace PluginAlarmManagerCommon;

namespace {

const QString& alarmList(int ruleCount)
{
    static QHash<int, QString> documents;
    QString& document = documents[ruleCount];
    if (document.isEmpty())
        document = AlarmDocumentGenerator::alarmListXml(ruleCount);
    return document;
}

// Triggered-alarm events of the kinds a site sends most: camera DI, VCA, virtual triggers, GPS speed.
const QStringList& triggeredEvents()
{
    static QStringList events;
    if (events.isEmpty()) {
        const QString envelope = QStringLiteral(
            "<AlarmNotification><Alarm><Name>Rule%20%1</Name><AlarmID>%1</AlarmID><TmcardID>%2</TmcardID>"
            "<Mute>false</Mute><QuessaEvent>%3</QuessaEvent></Alarm></AlarmNotification>");
        const QStringList bodies{
            QStringLiteral("<Type>CamEvent</Type><CamEvent><Event><CamName>cam%1</CamName><RefName>c_Lobby</RefName>"
                           "<EventType>DI</EventType><DI><Index>2</Index><Value>1</Value></DI>"
                           "<ServerTime>2026-01-02T03:04:05Z</ServerTime></Event></CamEvent>"),
            QStringLiteral("<Type>CamEvent</Type><CamEvent><Event><CamName>cam%1</CamName><RefName>c_Gate</RefName>"
                           "<EventType>VCA</EventType><VCA><Type>LineDetection</Type><LineDetection><RuleName>L1"
                           "</RuleName></LineDetection></VCA><ServerTime>2026-01-02T03:04:05Z</ServerTime></Event>"
                           "</CamEvent>"),
            QStringLiteral("<Type>VirtualTrigger</Type><VirtualTrigger><Camera>cam%1</Camera><Name>Panic</Name>"
                           "<RefName>c_Yard</RefName><ServerTime>2026-01-02T03:04:05Z</ServerTime></VirtualTrigger>"),
            QStringLiteral("<Type>GpsSpeed</Type><GpsSpeed><StationAddress>10.0.0.%1</StationAddress>"
                           "<Speed threshold=\"80\">95</Speed><ServerTime>2026-01-02T03:04:05Z</ServerTime>"
                           "</GpsSpeed>"),
        };
        for (int i = 0; i < 1000; ++i)
            events.append(envelope.arg(i).arg(100000 + i).arg(bodies.at(i % bodies.size()).arg(i % 40)));
    }
    return events;
}

qint64 threadCpuNs()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return qint64(now.tv_sec) * 1000000000 + now.tv_nsec;
}

// Best of three, so one slow pass does not flatter the ratio.
qint64 tokenPassNs(const QStringList& texts)
{
    qint64 best = std::numeric_limits<qint64>::max();
    for (int run = 0; run < 3; ++run) {
        const qint64 start = threadCpuNs();
        for (const QString& text : texts)
            tokenPass(text);
        best = std::min(best, threadCpuNs() - start);
    }
    return best;
}

struct PluginUnderLoad
{
    FakeFramework framework;
    int handle = 0;
    PluginAlarmManager plugin;

    PluginUnderLoad()
    {
        framework.licence.editionFeature.insert(QStringLiteral("supportGuardian"), true);
        plugin.InitialPluginBase(nullptr, &handle, &framework);
    }
};

void BM_TokenPassAlarmList(benchmark::State& state)
{
    const QString& text = alarmList(int(state.range(0)));
    for (auto _ : state)
        tokenPass(text);
    state.SetBytesProcessed(int64_t(state.iterations()) * text.size() * 2);
}

void BM_GetAllAlarmAnswer(benchmark::State& state)
{
    const QString& text = alarmList(int(state.range(0)));
    const qint64 yardstick = tokenPassNs({text});
    PluginUnderLoad load;
    bool isListed = false;
    QObject::connect(&load.plugin, &PluginAlarmManager::getAlarmResp, [&isListed](bool success) { isListed = success; });
    qint64 elapsed = 0;
    for (auto _ : state) {
        const qint64 start = threadCpuNs();
        load.plugin.CommandProcessor(METHOD_GET_ALL_ALARM, text, nullptr, QStringLiteral("0"), QString(), false,
                                     QString());
        elapsed += threadCpuNs() - start;
    }
    if (!isListed)
        state.SkipWithError("no getAlarmResp(true)");
    state.counters["rows"] = load.plugin.getAlarmModel()->rowCount();
    state.counters["xTokenPass"] = double(elapsed) / double(state.iterations()) / double(yardstick);
    state.SetBytesProcessed(int64_t(state.iterations()) * text.size() * 2);
}

void BM_TokenPassEvents(benchmark::State& state)
{
    const QStringList& events = triggeredEvents();
    for (auto _ : state) {
        for (const QString& event : events)
            tokenPass(event);
    }
    state.SetItemsProcessed(int64_t(state.iterations()) * events.size());
}

void BM_AlarmTriggeredEvents(benchmark::State& state)
{
    const QStringList& events = triggeredEvents();
    QList<QVariant> payloads;
    for (const QString& event : events)
        payloads.append(QVariantMap{{QStringLiteral("xml"), event}});
    const qint64 yardstick = tokenPassNs(events);
    PluginUnderLoad load;
    qint64 triggered = 0;
    QObject::connect(&load.plugin, &PluginAlarmManager::alarmTriggered, [&triggered] { ++triggered; });
    qint64 elapsed = 0;
    for (auto _ : state) {
        const qint64 start = threadCpuNs();
        for (const QVariant& payload : std::as_const(payloads))
            load.plugin.EventProcessor(EVENT_TYPE_ALARM_TRIGGERED, 0, 0, 0, payload, QString());
        elapsed += threadCpuNs() - start;
    }
    if (triggered != int64_t(state.iterations()) * events.size())
        state.SkipWithError("not every event reached alarmTriggered");
    state.counters["xTokenPass"] = double(elapsed) / double(state.iterations()) / double(yardstick);
    state.SetItemsProcessed(int64_t(state.iterations()) * events.size());
}

} // namespace

BENCHMARK(BM_TokenPassAlarmList)->Arg(10000)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_GetAllAlarmAnswer)->Arg(10000)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_TokenPassEvents)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_AlarmTriggeredEvents)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
