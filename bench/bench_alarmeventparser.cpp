// Events per second through AlarmEventParser as the core uses it (SetMessage, the ten getters of the
// alarmTriggered signal and Mute), next to a bare QXmlStreamReader token pass over the same documents in
// the same run. The closing line prints the ratio of the two; the core's whole event path aims at 3x.

#include <QStringList>
#include "TokenPass.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <string>

#include "AlarmEventParser.h"
#include "TestData.h"

namespace {

// One document per family of triggers, as the server sends them.
const QStringList& eventDocuments()
{
    static const QStringList documents = [] {
        QStringList texts;
        for (const char* name :
             {"event_cam_motion.xml", "event_cam_vca_line.xml", "event_cam_vca_zone.xml", "event_cam_guardian.xml",
              "event_cam_thermal.xml", "event_station_di.xml", "event_storage_capacity.xml", "event_gps_speed.xml",
              "event_area_report.xml", "event_data_magnet.xml", "event_access_rule.xml",
              "event_virtual_trigger.xml"}) {
            texts.append(TestData::text(QString::fromLatin1(name)));
        }
        return texts;
    }();
    return documents;
}

void readEvent(const QString& xml)
{
    AlarmEventParser parser;
    parser.SetMessage(xml);
    bool isMuted = parser.Mute();
    benchmark::DoNotOptimize(isMuted);
    QString name = parser.GetAlarmName();
    QString type = parser.GetTriggerType();
    QString nodeId = parser.GetNodeID();
    qint64 serverTime = parser.GetServerTime();
    QString event = parser.GetTriggerEvent();
    QString dioIndex = parser.GetDIOIndex();
    QString value = parser.GetTriggerValue();
    QString deviceName = parser.GetDeviceName();
    QString alarmId = parser.GetAlarmId();
    QString timecardId = parser.GetTimecardId();
    benchmark::DoNotOptimize(name);
    benchmark::DoNotOptimize(type);
    benchmark::DoNotOptimize(nodeId);
    benchmark::DoNotOptimize(serverTime);
    benchmark::DoNotOptimize(event);
    benchmark::DoNotOptimize(dioIndex);
    benchmark::DoNotOptimize(value);
    benchmark::DoNotOptimize(deviceName);
    benchmark::DoNotOptimize(alarmId);
    benchmark::DoNotOptimize(timecardId);
}

void BM_AlarmEventParser_AllGetters(benchmark::State& state)
{
    const QStringList& documents = eventDocuments();
    for (auto _ : state) {
        for (const QString& xml : documents)
            readEvent(xml);
    }
    state.SetItemsProcessed(state.iterations() * documents.size());
}
BENCHMARK(BM_AlarmEventParser_AllGetters)->Unit(benchmark::kMicrosecond);

// SetMessage alone: how much of the above is the conversion to the variant tree.
void BM_AlarmEventParser_SetMessageOnly(benchmark::State& state)
{
    const QStringList& documents = eventDocuments();
    for (auto _ : state) {
        for (const QString& xml : documents) {
            AlarmEventParser parser;
            parser.SetMessage(xml);
            benchmark::DoNotOptimize(parser);
        }
    }
    state.SetItemsProcessed(state.iterations() * documents.size());
}
BENCHMARK(BM_AlarmEventParser_SetMessageOnly)->Unit(benchmark::kMicrosecond);

void BM_XmlStreamReader_TokenPass(benchmark::State& state)
{
    const QStringList& documents = eventDocuments();
    for (auto _ : state) {
        for (const QString& xml : documents) {
            tokenPass(xml);
        }
    }
    state.SetItemsProcessed(state.iterations() * documents.size());
}
BENCHMARK(BM_XmlStreamReader_TokenPass)->Unit(benchmark::kMicrosecond);

// Prints the usual table, then each parser benchmark's CPU time as a multiple of the token pass. CPU time,
// not wall time: the build machines are shared, and waiting for a core says nothing about the parser.
class RatioReporter : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run>& runs) override
    {
        // With repetitions the "mean" aggregate stands for the benchmark; single runs are averaged otherwise.
        for (const Run& run : runs) {
            Sample& sample = m_samples[run.run_name.function_name];
            if (run.run_type == Run::RT_Aggregate && run.aggregate_name == "mean") {
                sample.mean = run.GetAdjustedCPUTime();
            } else if (run.run_type == Run::RT_Iteration) {
                sample.total += run.GetAdjustedCPUTime();
                ++sample.count;
            }
        }
        ConsoleReporter::ReportRuns(runs);
    }

    void Finalize() override
    {
        ConsoleReporter::Finalize();
        const auto tokenPass = m_samples.find("BM_XmlStreamReader_TokenPass");
        if (tokenPass == m_samples.end() || tokenPass->second.time() <= 0)
            return;
        for (const auto& [name, sample] : m_samples) {
            if (name != tokenPass->first)
                std::printf("%s / token pass (CPU): %.2fx\n", name.c_str(), sample.time() / tokenPass->second.time());
        }
    }

private:
    struct Sample
    {
        double mean = 0;
        double total = 0;
        int count = 0;
        double time() const { return mean > 0 ? mean : (count > 0 ? total / count : 0); }
    };
    std::map<std::string, Sample> m_samples;
};

} // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return 0;
}
