#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QStandardItem>

#include <cstdio>
#ifdef __GLIBC__
#include <malloc.h>
#endif
#include <ctime>

#include "AlarmDocumentGenerator.h"
#include "AlarmMessageParser.h"
#include "AlarmModel.h"
#include "FakeFramework.h"
#include "PluginAlarmManager.h"
#include "TokenPass.h"
#include "XML2Json.h"
#include "XmlDocument.h"
#include "stdafx.h"

// The plug-in's two hot paths as the host drives them, each next to a bare token pass of Qt's stream
// reader over the same text (the yardstick): the whole "GetAllAlarm" answer from CommandProcessor to
// getAlarmResp(true), and triggered-alarm events from EventProcessor to alarmTriggered. Each benchmark
// reports its own time as a multiple of the token pass ("xTokenPass"), both on this thread's CPU time, so
// that other processes on a busy machine do not skew the ratio. createAlarmItemList is also timed alone,
// on a tree parsed beforehand. Last, each list size is loaded once more in a fresh process of this
// program, which prints the memory the loaded list holds (VmRSS above the same process with an empty
// plug-in) and the peak while loading (VmHWM above the same), both as multiples of the document's bytes.
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

void BM_CreateAlarmItemList(benchmark::State& state)
{
    const QString& text = alarmList(int(state.range(0)));
    const qint64 yardstick = tokenPassNs({text});
    PluginUnderLoad load;
    AlarmMessageParser parser(&load.plugin);
    const QVariantMap message{{ARG_ALARM_LIST, XML2Json::parse(text)}, {ARG_ALARM_XML_MSG, text}};
    qint64 elapsed = 0;
    for (auto _ : state) {
        const qint64 start = threadCpuNs();
        const QList<QStandardItem*> items = parser.createAlarmItemList(message);
        elapsed += threadCpuNs() - start;
        state.counters["rows"] = double(items.size());
        qDeleteAll(items);
    }
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

// A figure of /proc/self/status in bytes ("VmRSS", "VmHWM"), or -1.
qint64 statusBytes(const char* field)
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    const QByteArray prefix = QByteArray(field) + ':';
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith(prefix))
            return line.mid(prefix.size()).trimmed().split(' ').value(0).toLongLong() * 1024;
    }
    return -1;
}

// Runs in its own process, so that no earlier benchmark's heap is reused or counted.
int measureMemory(int ruleCount)
{
    const QString& text = alarmList(ruleCount);
    const double documentBytes = double(text.toUtf8().size());
    PluginUnderLoad load;
    const qint64 emptyPlugin = statusBytes("VmRSS");
    // Writing 5 resets the peak to the current resident size, so the peak below is the load's own.
    QFile clearRefs(QStringLiteral("/proc/self/clear_refs"));
    const bool isPeakReset = clearRefs.open(QIODevice::WriteOnly) && clearRefs.write("5") == 1;
    clearRefs.close();
    load.plugin.CommandProcessor(METHOD_GET_ALL_ALARM, text, nullptr, QStringLiteral("0"), QString(), false,
                                 QString());
    const qint64 loaded = statusBytes("VmRSS");
    const qint64 peak = statusBytes("VmHWM");
    std::printf("memory/%d rules, document %.1f MB, %d rows: VmRSS after loading %.2f x document above an empty "
                "plug-in, VmHWM while loading %.2f x%s\n",
                ruleCount, documentBytes / 1e6, load.plugin.getAlarmModel()->rowCount(),
                double(loaded - emptyPlugin) / documentBytes, double(peak - emptyPlugin) / documentBytes,
                isPeakReset ? "" : " (peak not reset: includes the document's generation)");
#ifdef __GLIBC__
    // Where the memory goes, in bytes the allocator hands out (no pages, no fragmentation): the parsed document the
    // handler holds while the rows are built, then each role of the rows, freed one after the other.
    const auto inUse = [] {
        const struct mallinfo2 info = mallinfo2();
        return qint64(info.uordblks + info.hblkhd);
    };
    qint64 before = inUse();
    {
        const XmlDocument parsed(text);
        std::printf("memory/%d rules in use: parsed document while loading %.2f x; per row:", ruleCount,
                    double(inUse() - before) / documentBytes);
    }
    AlarmModel* rows = load.plugin.getAlarmModel();
    const int rowCount = std::max(1, rows->rowCount());
    before = inUse();
    const qint64 withRows = before;
    const QHash<int, QByteArray> roleNames = rows->roleNames();
    for (int role = AlarmModel::idRole; role <= AlarmModel::actionXmlRole; ++role) {
        for (int row = 0; row < rows->rowCount(); ++row)
            rows->item(row)->setData(QVariant(), role);
        const qint64 now = inUse();
        std::printf(" %s %lld B,", roleNames.value(role).constData(), (before - now) / rowCount);
        before = now;
    }
    rows->clear();
    std::printf(" the item %lld B; rows %.2f x\n", (before - inUse()) / rowCount,
                double(withRows - inUse()) / documentBytes);
#endif
    return 0;
}

} // namespace

BENCHMARK(BM_TokenPassAlarmList)->Arg(1000)->Arg(10000)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_GetAllAlarmAnswer)->Arg(1000)->Iterations(5)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_GetAllAlarmAnswer)->Arg(10000)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_CreateAlarmItemList)->Arg(1000)->Iterations(5)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_CreateAlarmItemList)->Arg(10000)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_TokenPassEvents)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_AlarmTriggeredEvents)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const QByteArray memoryOption("--memory_rules=");
    if (argc == 2 && QByteArray(argv[1]).startsWith(memoryOption))
        return measureMemory(QByteArray(argv[1]).mid(memoryOption.size()).toInt());
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    std::fflush(stdout);
    for (const int ruleCount : {1000, 10000}) {
        QProcess measurement;
        measurement.setProcessChannelMode(QProcess::ForwardedChannels);
        measurement.start(QCoreApplication::applicationFilePath(),
                          {QString::fromLatin1(memoryOption) + QString::number(ruleCount)});
        if (!measurement.waitForFinished(-1) || measurement.exitCode() != 0)
            return 1;
    }
    return 0;
}
