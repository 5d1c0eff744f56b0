#include <QTest>

#include "ClientNotificationParser.h"
#include "TestData.h"
#include "TestJson.h"

// A client notification in, the kind, time card and data of the clientNotification signal out.
class tst_ClientNotificationParser : public QObject
{
    Q_OBJECT

private slots:
    void parse_data();
    void parse();
};

namespace {

QString notification(const QString& type, const QString& body)
{
    return "<ClientNotification><TimecardId>42-1</TimecardId><Type>" + type + "</Type>" + body + "</ClientNotification>";
}

// A pop-up around the given trigger flag, triggering event and camera entries.
QString popup(const QString& includeTriggerCam, const QString& quessaEvent, const QString& cams)
{
    return notification("Popup Window", "<PopupWindow><Size>Large</Size><IncludeTriggerCam>" + includeTriggerCam + "</IncludeTriggerCam>"
                                            + cams + "<QuessaEvent>" + quessaEvent + "</QuessaEvent></PopupWindow>");
}

QString triggerEvent(const QString& type, const QString& body)
{
    return QStringLiteral("<Type>%1</Type><%1>%2</%1>").arg(type, body);
}

} // namespace

void tst_ClientNotificationParser::parse_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QString>("expected"); // JSON: [kind, time card, data]

    QTest::newRow("pop-up: trigger cameras first, configured after, each once")
        << TestData::text("notification_popup.xml") << R"([1,"1001-1709634030-3",["C0A80107-0001","C0A80107-0002","C0A80107-0004"]])";
    QTest::newRow("pop-up: IncludeTriggerCam True leaves trigger cameras out")
        << popup("True", triggerEvent("CamConn", "<CamName>t</CamName>"), "<Cam ShowMotion='0'>c1</Cam>") << R"([1,"42-1",["c1"]])";
    for (const char* type : {"RecStatus", "RecErr", "CamConn"})
        QTest::addRow("pop-up: %s camera", type) << popup("true", triggerEvent(type, "<CamName>t</CamName>"), "<Cam>c1</Cam>")
                                                 << R"([1,"42-1",["t",""]])";
    QTest::newRow("pop-up: virtual trigger camera") << popup("true", triggerEvent("VirtualTrigger", "<Camera>v</Camera>"), {})
                                                    << R"([1,"42-1",["v"]])";
    QTest::newRow("pop-up: single CamEvent entry") << popup("true", triggerEvent("CamEvent", "<Event><CamName>m</CamName></Event>"), {})
                                                   << R"([1,"42-1",["m"]])";
    QTest::newRow("pop-up: data magnet cameras keep empty parts once")
        << popup("true", "<Type>ExtDataMagnet</Type><ExtDataMagnet><Camera>c1,,c2</Camera></ExtDataMagnet>"
                         "<ExtDataMagnet><Camera>c2,c3,</Camera></ExtDataMagnet>", "<Cam ShowMotion='0'>c3</Cam>")
        << R"([1,"42-1",["c1","","c2","c3"]])";
    QTest::newRow("pop-up: event of another type names no camera") << popup("true", triggerEvent("StorageCap", "<CamName>t</CamName>"), {})
                                                                   << R"([1,"42-1",[]])";
    QTest::newRow("e-map: maps in document order, missing PlayCam gives an empty list")
        << TestData::text("notification_emap.xml") << R"([0,"1011-1709635000-1",[
             {"mapId":"F{6C1E3A52-1D3B-4F0E-9B8A-3C5D7E9F1A2B}","playCamList":["C0A80107-0008","C0A80107-0003"]},
             {"mapId":"F{9E4B2C71-5A0D-4C3E-8F61-2B7D9A4E0C15}","playCamList":[]}]])";
    QTest::newRow("e-map: one map without id") << notification("GoToEMap", "<GoToEMap><MapInfo><PlayCam>c1</PlayCam></MapInfo></GoToEMap>")
                                               << R"([0,"42-1",[{"mapId":null,"playCamList":["c1"]}]])";
    QTest::newRow("sound: names in document order")
        << TestData::text("notification_sound.xml") << R"([2,"1012-1709635100-1",[{"name":"siren.mp3"},{"name":"door chime.mp3"}]])";
    QTest::newRow("sound: one sound") << notification("SoundTheAlarm", "<SoundTheAlarm><Sound>bell.mp3</Sound></SoundTheAlarm>")
                                      << R"([2,"42-1",[{"name":"bell.mp3"}]])";
    QTest::newRow("PopupWindow without the blank is not a kind")
        << notification("PopupWindow", "<PopupWindow><Cam>c1</Cam></PopupWindow>") << R"([1,"42-1",[]])";
    QTest::newRow("document the converter refuses") << "<!DOCTYPE r><ClientNotification><Type>GoToEMap</Type></ClientNotification>"
                                                    << R"([1,"",[]])";
}

void tst_ClientNotificationParser::parse()
{
    QFETCH(QString, xml);
    QFETCH(QString, expected);

    const ClientNotificationParser parser(xml);

    QCOMPARE(TestJson::of(QVariantList{parser.GetType(), parser.GetTimecardId(), parser.GetParsedData()}),
             TestJson::normalised(expected.toUtf8().constData()));
}

QTEST_MAIN(tst_ClientNotificationParser)
#include "tst_clientnotificationparser.moc"
