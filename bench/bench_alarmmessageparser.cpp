// Decoding the server's alarm list, text to rows, against the cheapest possible reading of the same text:
// a bare QXmlStreamReader token pass. The decode includes XML2Json::parse, as the GetAllAlarm handler
// does it. Run: bench_alarmmessageparser [--benchmark_repetitions=3]; the last lines give the ratio.
#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QHash>
#include <QStandardItem>
#include "TokenPass.h"

#include "AlarmDocumentGenerator.h"
#include "AlarmMessageParser.h"
#include "DomRuleTexts.h"
#include "FakeFramework.h"
#include "PluginAlarmManager.h"
#include "XML2Json.h"
#include "stdafx.h"

#include <cstdio>
#include <map>

namespace {

const QString& document(int ruleCount)
{
    static QHash<int, QString> documents;
    auto found = documents.find(ruleCount);
    if (found == documents.end())
        found = documents.insert(ruleCount, AlarmDocumentGenerator::alarmListXml(ruleCount));
    return *found;
}

// The owner the parser asks for display names, answering from a fake device tree as the real peer would.
struct Owner
{
    Owner()
    {
        for (const QString& id : AlarmDocumentGenerator::deviceIds())
            framework.deviceTree.deviceTree[id][QStringLiteral("nameRole")] = QStringLiteral("Name of ") + id;
        manager.InitialPluginBase(nullptr, &handle, &framework);
    }
    FakeFramework framework;
    int handle = 0;
    PluginAlarmManager manager;
};

void setBytes(benchmark::State& state, const QString& xml)
{
    state.SetBytesProcessed(state.iterations() * xml.toUtf8().size());
}

void BM_TokenPass(benchmark::State& state)
{
    const QString& xml = document(int(state.range(0)));
    for (auto _ : state) {
        tokenPass(xml);
    }
    setBytes(state, xml);
}

void BM_CreateAlarmItemList(benchmark::State& state)
{
    const QString& xml = document(int(state.range(0)));
    Owner owner;
    AlarmMessageParser parser(&owner.manager);
    for (auto _ : state) {
        const QVariantMap message{{PluginAlarmManagerCommon::ARG_ALARM_LIST, XML2Json::parse(xml)},
                                  {PluginAlarmManagerCommon::ARG_ALARM_XML_MSG, xml}};
        const QList<QStandardItem*> items = parser.createAlarmItemList(message);
        benchmark::DoNotOptimize(items.size());
        qDeleteAll(items);
    }
    setBytes(state, xml);
}

// The parts of the decode, to see where the time goes.
void BM_XmlToTree(benchmark::State& state)
{
    const QString& xml = document(int(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(XML2Json::parse(xml));
    setBytes(state, xml);
}

void BM_RuleXmlTexts(benchmark::State& state)
{
    const QString& xml = document(int(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(AlarmMessageParser::RuleXmlTextsOf(xml));
    setBytes(state, xml);
}

void BM_RuleXmlTextsThroughDom(benchmark::State& state)
{
    const QString& xml = document(int(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(DomRuleTexts::of(xml));
    setBytes(state, xml);
}

BENCHMARK(BM_TokenPass)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_CreateAlarmItemList)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_XmlToTree)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_RuleXmlTexts)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_RuleXmlTextsThroughDom)->Arg(1000)->Unit(benchmark::kMillisecond);

// Prints the console table and then each decode's CPU time as a multiple of the token pass over the same
// text.
class RatioReporter : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run>& runs) override
    {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            if (run.run_type == Run::RT_Aggregate && run.aggregate_name != "mean")
                continue;
            // CPU time: the machine is shared, and waiting for a core is no part of the decode.
            m_times[run.run_name.function_name][run.run_name.args] = run.GetAdjustedCPUTime();
        }
    }

    void Finalize() override
    {
        ConsoleReporter::Finalize();
        const auto& token = m_times["BM_TokenPass"];
        for (const auto& [name, byArgs] : m_times) {
            for (const auto& [args, time] : byArgs) {
                const auto yardstick = token.find(args);
                if (name != "BM_TokenPass" && yardstick != token.end())
                    std::printf("%s/%s: %.2f x token pass\n", name.c_str(), args.c_str(), time / yardstick->second);
            }
        }
    }

private:
    std::map<std::string, std::map<std::string, double>> m_times;
};

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return 0;
}
