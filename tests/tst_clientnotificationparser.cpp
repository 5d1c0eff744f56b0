#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include "ClientNotificationParser.h"
#include "TestData.h"

namespace {

// The three results the core emits, as one text so that a failure shows all of them.
QString resultText(int type, const QString& timecardId, const QVariant& data)
{
    const QVariantMap result{{"type", type}, {"timecardId", timecardId}, {"data", data}};
    return QString::fromUtf8(QJsonDocument(QJsonObject::fromVariantMap(result)).toJson(QJsonDocument::Compact));
}

QString notificationDocument(const QString& type, const QString& body)
{
    return QStringLiteral("<ClientNotification><TimecardId>42-1709634030-1</TimecardId><Type>") + type
        + QStringLiteral("</Type>") + body + QStringLiteral("</ClientNotification>");
}

// A pop-up as the server writes it, around the given trigger flag, triggering event and camera entries.
QString popupDocument(const QString& includeTriggerCam, const QString& quessaEvent, const QString& cams)
{
    return notificationDocument(
        "Popup Window",
        QStringLiteral("<PopupWindow><Size>Large</Size><ShowTime>5</ShowTime><AutoClose>false</AutoClose>"
                       "<IncludeTriggerCam>")
            + includeTriggerCam + QStringLiteral("</IncludeTriggerCam>") + cams + QStringLiteral("<QuessaEvent>")
            + quessaEvent + QStringLiteral("</QuessaEvent></PopupWindow>"));
}

QString cam(const QString& id)
{
    return QStringLiteral("<Cam ShowMotion='0'>%1</Cam>").arg(id);
}

QString triggerEvent(const QString& type, const QString& body)
{
    return QStringLiteral("<Type>%1</Type><%1>%2</%1>").arg(type, body);
}

const QString POPUP = QStringLiteral("Popup Window");

} // namespace

class tst_ClientNotificationParser : public QObject
{
    Q_OBJECT

private slots:
    void parse_data();
    void parse();
    void composeUniqueList_data();
    void composeUniqueList();
};

void tst_ClientNotificationParser::parse_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QString>("expected");

    const int popup = 1;
    const int eMap = 0;
    const int sound = 2;
    const QString timecard = QStringLiteral("42-1709634030-1");

    // Pop-up window.
    QTest::newRow("pop-up: trigger cameras first, configured after, each once")
        << TestData::text("notification_popup.xml")
        << resultText(popup, "1001-1709634030-3", QStringList{"C0A80107-0001", "C0A80107-0002", "C0A80107-0004"});
    QTest::newRow("pop-up: IncludeTriggerCam True leaves trigger cameras out")
        << popupDocument("True", triggerEvent("CamConn", "<CamName>t</CamName>"), cam("c1"))
        << resultText(popup, timecard, QStringList{"c1"});
    QTest::newRow("pop-up: IncludeTriggerCam 1 leaves trigger cameras out")
        << popupDocument("1", triggerEvent("CamConn", "<CamName>t</CamName>"), cam("c1"))
        << resultText(popup, timecard, QStringList{"c1"});
    QTest::newRow("pop-up: RecStatus camera")
        << popupDocument("true", triggerEvent("RecStatus", "<CamName>t</CamName>"), cam("c1"))
        << resultText(popup, timecard, QStringList{"t", "c1"});
    QTest::newRow("pop-up: RecErr camera")
        << popupDocument("true", triggerEvent("RecErr", "<CamName>t</CamName>"), {})
        << resultText(popup, timecard, QStringList{"t"});
    QTest::newRow("pop-up: CamConn camera")
        << popupDocument("true", triggerEvent("CamConn", "<CamName>t</CamName>"), {})
        << resultText(popup, timecard, QStringList{"t"});
    QTest::newRow("pop-up: virtual trigger Camera")
        << popupDocument("true", triggerEvent("VirtualTrigger", "<Camera>v</Camera><Name>Panic</Name>"), cam("v"))
        << resultText(popup, timecard, QStringList{"v"});
    QTest::newRow("pop-up: single CamEvent entry")
        << popupDocument("true", triggerEvent("CamEvent", "<Event><CamName>m</CamName></Event>"), cam("c1"))
        << resultText(popup, timecard, QStringList{"m", "c1"});
    QTest::newRow("pop-up: data magnet cameras keep empty parts once")
        << popupDocument("true",
                         "<Type>ExtDataMagnet</Type><ExtDataMagnet><Camera>c1,,c2</Camera></ExtDataMagnet>"
                         "<ExtDataMagnet><Camera>c2,c3,</Camera></ExtDataMagnet>",
                         cam("c3"))
        << resultText(popup, timecard, QStringList{"c1", "", "c2", "c3"});
    QTest::newRow("pop-up: event of another type names no camera")
        << popupDocument("true", triggerEvent("StorageCap", "<CamName>t</CamName>"), cam("c1"))
        << resultText(popup, timecard, QStringList{"c1"});
    QTest::newRow("pop-up: configured cameras are read from their element text")
        << popupDocument("false", {}, "<Cam>plain</Cam>" + cam("c1"))
        << resultText(popup, timecard, QStringList{"", "c1"});
    QTest::newRow("pop-up: without body")
        << notificationDocument(POPUP, {}) << resultText(popup, timecard, QVariantList());

    // E-map.
    QTest::newRow("e-map: two maps in document order, missing PlayCam gives empty list")
        << TestData::text("notification_emap.xml")
        << resultText(eMap, "1011-1709635000-1",
                      QVariantList{QVariantMap{{"mapId", "F{6C1E3A52-1D3B-4F0E-9B8A-3C5D7E9F1A2B}"},
                                               {"playCamList", QStringList{"C0A80107-0008", "C0A80107-0003"}}},
                                   QVariantMap{{"mapId", "F{9E4B2C71-5A0D-4C3E-8F61-2B7D9A4E0C15}"},
                                               {"playCamList", QVariantList()}}});
    QTest::newRow("e-map: map without MapId")
        << notificationDocument("GoToEMap", "<GoToEMap><MapInfo><PlayCam>c1</PlayCam></MapInfo></GoToEMap>")
        << resultText(eMap, timecard,
                      QVariantList{QVariantMap{{"mapId", QVariant()}, {"playCamList", QStringList{"c1"}}}});
    QTest::newRow("e-map: without body") << notificationDocument("GoToEMap", {})
                                         << resultText(eMap, timecard, QVariantList());

    // Sound.
    QTest::newRow("sound: names in document order")
        << TestData::text("notification_sound.xml")
        << resultText(sound, "1012-1709635100-1",
                      QVariantList{QVariantMap{{"name", "siren.mp3"}}, QVariantMap{{"name", "door chime.mp3"}}});
    QTest::newRow("sound: one sound")
        << notificationDocument("SoundTheAlarm", "<SoundTheAlarm><Sound>bell.mp3</Sound></SoundTheAlarm>")
        << resultText(sound, timecard, QVariantList{QVariantMap{{"name", "bell.mp3"}}});

    // Unknown kinds.
    QTest::newRow("PopupWindow without the blank is not a kind")
        << notificationDocument("PopupWindow", "<PopupWindow>" + cam("c1") + "</PopupWindow>")
        << resultText(popup, timecard, QVariantList());
    QTest::newRow("unknown type") << notificationDocument("FlashLights", {})
                                  << resultText(popup, timecard, QVariantList());
    QTest::newRow("Type with an attribute is not a kind")
        << QString(TestData::text("notification_sound.xml")).replace("<Type>", "<Type lang='en'>")
        << resultText(popup, "1012-1709635100-1", QVariantList());

    // Malformed.
    QTest::newRow("empty text") << QString() << resultText(popup, {}, QVariantList());
    QTest::newRow("not XML") << QStringLiteral("Popup Window") << resultText(popup, {}, QVariantList());
    QTest::newRow("unterminated document")
        << TestData::text("notification_sound.xml").chopped(30) << resultText(popup, {}, QVariantList());
    QTest::newRow("other root element")
        << QStringLiteral("<Notification><TimecardId>1</TimecardId><Type>GoToEMap</Type></Notification>")
        << resultText(popup, {}, QVariantList());
    QTest::newRow("body repeated reads as empty body")
        << notificationDocument("SoundTheAlarm", "<SoundTheAlarm><Sound>a.mp3</Sound></SoundTheAlarm>"
                                                 "<SoundTheAlarm><Sound>b.mp3</Sound></SoundTheAlarm>")
        << resultText(sound, timecard, QVariantList());
    QTest::newRow("TimecardId with an attribute reads empty")
        << QString(TestData::text("notification_sound.xml")).replace("<TimecardId>", "<TimecardId seq='1'>")
        << resultText(sound, {}, QVariantList{QVariantMap{{"name", "siren.mp3"}}, QVariantMap{{"name", "door chime.mp3"}}});
    QTest::newRow("QuessaEvent as text gives no trigger camera")
        << notificationDocument(POPUP, "<PopupWindow><IncludeTriggerCam>true</IncludeTriggerCam>"
                                       "<QuessaEvent>cam</QuessaEvent></PopupWindow>")
        << resultText(popup, timecard, QVariantList());
}

void tst_ClientNotificationParser::parse()
{
    QFETCH(QString, xml);
    QFETCH(QString, expected);

    const ClientNotificationParser parser(xml);

    QCOMPARE(resultText(parser.GetType(), parser.GetTimecardId(), parser.GetParsedData()), expected);
}

void tst_ClientNotificationParser::composeUniqueList_data()
{
    QTest::addColumn<QVariantList>("out");
    QTest::addColumn<QStringList>("in");
    QTest::addColumn<QVariantList>("expected");

    QTest::newRow("appends in order") << QVariantList() << QStringList{"a", "b"} << QVariantList{"a", "b"};
    QTest::newRow("skips what out holds") << QVariantList{"b"} << QStringList{"a", "b"} << QVariantList{"b", "a"};
    QTest::newRow("skips repeats within in")
        << QVariantList() << QStringList{"a", "", "a", ""} << QVariantList{"a", ""};
    QTest::newRow("empty in changes nothing") << QVariantList{"a"} << QStringList() << QVariantList{"a"};
}

void tst_ClientNotificationParser::composeUniqueList()
{
    QFETCH(QVariantList, out);
    QFETCH(QStringList, in);
    QFETCH(QVariantList, expected);

    ClientNotificationParser(QString()).composeUniqueList(out, in);

    QCOMPARE(out, expected);
}

QTEST_MAIN(tst_ClientNotificationParser)
#include "tst_clientnotificationparser.moc"
