#include <benchmark/benchmark.h>

#include <QDomDocument>

#include "AlarmDocumentGenerator.h"
#include "TokenPass.h"
#include "XML2Json.h"

// XML2Json on generated alarm lists (every trigger and action kind), next to the bare token pass of Qt's
// stream reader (the yardstick every decoding figure is reported against) and a DOM parse of the same text.
namespace {

const QString& alarmList(int ruleCount)
{
    static QHash<int, QString> documents;
    QString& document = documents[ruleCount];
    if (document.isEmpty())
        document = AlarmDocumentGenerator::alarmListXml(ruleCount);
    return document;
}

void setBytes(benchmark::State& state, const QString& text)
{
    state.SetBytesProcessed(int64_t(state.iterations()) * text.toUtf8().size());
}

void BM_TokenPass(benchmark::State& state)
{
    const QString& text = alarmList(int(state.range(0)));
    for (auto _ : state) {
        tokenPass(text);
    }
    setBytes(state, text);
}

void BM_XML2JsonParse(benchmark::State& state)
{
    const QString& text = alarmList(int(state.range(0)));
    for (auto _ : state) {
        QVariant tree = XML2Json::parse(text);
        benchmark::DoNotOptimize(tree);
    }
    setBytes(state, text);
}

void BM_DomParse(benchmark::State& state)
{
    const QString& text = alarmList(int(state.range(0)));
    for (auto _ : state) {
        QDomDocument document;
        document.setContent(text);
        benchmark::DoNotOptimize(document);
    }
    setBytes(state, text);
}

} // namespace

BENCHMARK(BM_TokenPass)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_XML2JsonParse)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_DomParse)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
