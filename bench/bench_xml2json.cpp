#include <benchmark/benchmark.h>

#include <QDomDocument>
#include <QXmlStreamReader>

#include "XML2Json.h"

// XML2Json on an alarm list of realistic shape, next to the bare token pass of Qt's stream reader (the
// yardstick every decoding figure is reported against) and a DOM parse of the same text.
namespace {

QString ruleXml(int i)
{
    return QStringLiteral(
               "<Tmcard><TmcardID>%1</TmcardID><Revision>3</Revision><Name>Rule%20%1</Name><Enabled>true</Enabled>"
               "<Description>Door%20%1%20watch</Description>"
               "<Mapping><Ele><Frame><Name>Office%20hours</Name><DayList><Ele B=\"2\"/><Ele B=\"3\"/><Ele B=\"4\"/>"
               "</DayList><Intervals><Ele B=\"28800\" E=\"64800\"/></Intervals></Frame></Ele></Mapping>"
               "<TriggerList><CamEventTrigger><CamName>cam%2</CamName><EventType>Motion</EventType>"
               "<Rule><Latency>10</Latency></Rule><Motion><Index>1</Index></Motion></CamEventTrigger>"
               "<StatusEventTrigger><EventType>CamConn</EventType><Rule><Latency>0</Latency></Rule>"
               "<CamConn><CamName>cam%2</CamName><State>Lost</State></CamConn></StatusEventTrigger>"
               "<ExtDeviceEventTrigger><EventType>VirtualTrigger</EventType><VirtualTrigger><Name>Panic</Name>"
               "<Camera>cam%2</Camera><IconType>2</IconType><Rule><Latency>0</Latency></Rule></VirtualTrigger>"
               "</ExtDeviceEventTrigger></TriggerList>"
               "<ActionList><Action><SendMail><SenderName>VMS</SenderName><From>vms@site</From><To>guard@site</To>"
               "<Cc/><Subject>Alarm %1</Subject><MailContent>Check camera</MailContent></SendMail></Action>"
               "<Action><Recording><Cam GrpID=\"1\">cam%2</Cam><Cam>cam%3</Cam></Recording></Action>"
               "<Action><ClientNotification><Type>Popup Window</Type><PopupWindow><IncludeTriggerCam>true"
               "</IncludeTriggerCam><Cam ShowMotion=\"0\">cam%3</Cam></PopupWindow></ClientNotification></Action>"
               "</ActionList></Tmcard>")
        .arg(i)
        .arg(i % 40)
        .arg((i + 1) % 40);
}

const QString& alarmList(int ruleCount)
{
    static QHash<int, QString> documents;
    QString& document = documents[ruleCount];
    if (document.isEmpty()) {
        document = QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?><GetEvtTmcardRes>");
        for (int i = 0; i < ruleCount; ++i)
            document += ruleXml(i);
        document += QStringLiteral("</GetEvtTmcardRes>");
    }
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
        QXmlStreamReader reader(text);
        while (!reader.atEnd())
            reader.readNext();
        benchmark::DoNotOptimize(reader.hasError());
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
