// Soak run: a day's worth of triggered alarms and list reloads through the plug-in, printing the resident
// memory at the start, the middle and the end; flat figures mean nothing accumulates per event or reload.
// A plain program rather than a timed benchmark: what matters is the memory after many rounds.
//   build/bin/bench_soak [events] [reloads]      (defaults 100000 and 1000)
#include "AlarmDocumentGenerator.h"
#include "FakeFramework.h"
#include "PluginAlarmManager.h"
#include "TestData.h"
#include "stdafx.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>

#include <cstdio>

using namespace PluginAlarmManagerCommon;

namespace {

// VmRSS and VmHWM of this process in kB, as the kernel reports them.
QPair<long, long> residentMemory()
{
    QFile status(QStringLiteral("/proc/self/status"));
    long rss = -1;
    long peak = -1;
    if (!status.open(QIODevice::ReadOnly))
        return {rss, peak};
    for (const QByteArray& line : status.readAll().split('\n')) {
        const QList<QByteArray> fields = line.simplified().split(' ');
        if (fields.size() >= 2 && fields.first() == "VmRSS:")
            rss = fields.at(1).toLong();
        else if (fields.size() >= 2 && fields.first() == "VmHWM:")
            peak = fields.at(1).toLong();
    }
    return {rss, peak};
}

void report(const char* when, int events, int reloads, int rows, qint64 triggered, const QElapsedTimer& clock)
{
    const auto [rss, peak] = residentMemory();
    std::printf("%-6s events %7d  reloads %5d  rows %4d  signals %7lld  VmRSS %7ld kB  VmHWM %7ld kB  %6.1f s\n",
                when, events, reloads, rows, static_cast<long long>(triggered), rss, peak,
                double(clock.elapsed()) / 1000.0);
    std::fflush(stdout);
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    const int eventCount = arguments.size() > 1 ? arguments.at(1).toInt() : 100000;
    const int reloadCount = arguments.size() > 2 ? arguments.at(2).toInt() : 1000;

    FakeFramework framework;
    framework.licence.editionFeature.insert(QStringLiteral("supportGuardian"), true);
    int handle = 0;
    PluginAlarmManager plugin;
    plugin.InitialPluginBase(nullptr, &handle, &framework);
    plugin.LoadPairPluginDone();

    qint64 triggered = 0;
    QObject::connect(&plugin, &PluginAlarmManager::alarmTriggered, &plugin, [&triggered] { ++triggered; });

    // Every sample event document in turn, as the host pushes them.
    QList<QVariant> events;
    const QStringList files = QDir(TestData::path(QString())).entryList({QStringLiteral("event_*.xml")}, QDir::Files);
    for (const QString& file : files)
        events.append(QVariantMap{{QStringLiteral("xml"), TestData::text(file)}});
    if (events.isEmpty()) {
        std::fprintf(stderr, "no event documents under %s\n", qPrintable(TestData::path(QString())));
        return 1;
    }
    const QString alarmList = AlarmDocumentGenerator::alarmListXml(100);

    // The two loads interleave: after every slice of events comes its share of reloads.
    const int slices = 100;
    int eventsSent = 0;
    int reloadsSent = 0;
    QElapsedTimer clock;
    clock.start();
    plugin.CommandProcessor(METHOD_GET_ALL_ALARM, alarmList, nullptr, QStringLiteral("0"), QString(), false, QString());
    report("start", eventsSent, reloadsSent, plugin.getAlarmModel()->rowCount(), triggered, clock);
    for (int slice = 1; slice <= slices; ++slice) {
        for (; eventsSent < qint64(eventCount) * slice / slices; ++eventsSent)
            plugin.EventProcessor(EVENT_TYPE_ALARM_TRIGGERED, 0, 0, 0, events.at(eventsSent % events.size()),
                                  QString());
        for (; reloadsSent < qint64(reloadCount) * slice / slices; ++reloadsSent) {
            plugin.getAllAlarm();
            const RecordedRequest request = framework.requests.takeLast();
            plugin.CommandProcessor(METHOD_GET_ALL_ALARM, alarmList, request.context, QStringLiteral("0"), QString(),
                                    false, QString());
        }
        framework.requests.clear();
        if (slice == slices / 2)
            report("middle", eventsSent, reloadsSent, plugin.getAlarmModel()->rowCount(), triggered, clock);
    }
    report("end", eventsSent, reloadsSent, plugin.getAlarmModel()->rowCount(), triggered, clock);
    return 0;
}
