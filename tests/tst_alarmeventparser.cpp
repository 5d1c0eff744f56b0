#include <QDateTime>
#include <QTest>

#include "AlarmEventParser.h"
#include "TestData.h"
#include "TestJson.h"
#include "XML2Json.h"

namespace {

const qint64 INVALID_TIME = QDateTime().toMSecsSinceEpoch();

// Everything the core reads from one event, in the order of the alarmTriggered signal, plus Mute.
QVariantMap values(const QString& name, const QString& type, const QString& nodeId, qint64 serverTime,
                   const QString& event, const QString& dioIndex, const QString& value, const QString& deviceName,
                   const QString& alarmId, const QString& timecardId, bool mute)
{
    return {{"1 name", name},           {"2 type", type},         {"3 nodeId", nodeId},
            {"4 serverTime", serverTime}, {"5 event", event},     {"6 dioIndex", dioIndex},
            {"7 value", value},         {"8 deviceName", deviceName}, {"9 alarmId", alarmId},
            {"10 timecardId", timecardId}, {"11 mute", mute}};
}

QString valuesText(const AlarmEventParser& parser)
{
    return TestJson::of(values(parser.GetAlarmName(), parser.GetTriggerType(), parser.GetNodeID(), parser.GetServerTime(),
                         parser.GetTriggerEvent(), parser.GetDIOIndex(), parser.GetTriggerValue(),
                         parser.GetDeviceName(), parser.GetAlarmId(), parser.GetTimecardId(), parser.Mute()));
}

// A short event around one "QuessaEvent" content; the rows below vary only what they are about.
QString alarmDocument(const QString& quessaEvent, const QString& alarmExtras = {})
{
    return QStringLiteral("<AlarmNotification><Alarm><AlarmID>17</AlarmID><TmcardID>17-1709634030-1</TmcardID>"
                          "<Name>Door%20alarm</Name>")
        + alarmExtras + QStringLiteral("<QuessaEvent>") + quessaEvent
        + QStringLiteral("</QuessaEvent></Alarm></AlarmNotification>");
}

QString triggerDocument(const QString& type, const QString& body, const QString& alarmExtras = {})
{
    return alarmDocument(QStringLiteral("<Type>%1</Type><%1>").arg(type) + body + QStringLiteral("</%1>").arg(type),
                         alarmExtras);
}

// The values of an alarmDocument, with the fields a row is about changed.
QVariantMap alarmValues(const QVariantMap& changes)
{
    QVariantMap result = values("Door alarm", "", "", INVALID_TIME, "", "", "", "", "17", "17-1709634030-1", false);
    for (auto it = changes.begin(); it != changes.end(); ++it) {
        Q_ASSERT(result.contains(it.key()));
        result.insert(it.key(), it.value());
    }
    return result;
}

QVariantMap emptyValues()
{
    return values("", "", "", INVALID_TIME, "", "", "", "", "", "", false);
}

QVariantMap vcaMap(const QString& content)
{
    return XML2Json::parse(QStringLiteral("<VCA>") + content + QStringLiteral("</VCA>")).toMap().value("VCA").toMap();
}

} // namespace

class tst_AlarmEventParser : public QObject
{
    Q_OBJECT

private slots:
    void getters_data();
    void getters();
    void malformed_data();
    void malformed();
    void setMessageReplacesEarlierDocument();
    void triggerMap_data();
    void triggerMap();
    void vcaValue_data();
    void vcaValue();
    void triggerValueTag_data();
    void triggerValueTag();
    void serverTimestamp_data();
    void serverTimestamp();
};

void tst_AlarmEventParser::getters_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QVariantMap>("expected");

    // Whole documents as the server sends them, one per family of triggers.
    QTest::newRow("camera motion: event type child gives index and value")
        << TestData::text("event_cam_motion.xml")
        << values("Lobby motion after hours", "CamEvent", "C0A80107-0001", 1709634030000, "Motion", "2", "Start",
                  "Lobby", "1001", "1001-1709634030-3", false);
    QTest::newRow("VCA line crossing: rule kind is the event, rule name the value")
        << TestData::text("event_cam_vca_line.xml")
        << values("Gate crossing", "CamEvent", "C0A80107-0004", 1709630500250, "LineDetection", "",
                  R"({"RuleName": "Gate inbound"})", "North Gate", "1002", "1002-1709634100-1", false);
    QTest::newRow("VCA zone: counts written as numbers")
        << TestData::text("event_cam_vca_zone.xml")
        << values("Queue too long", "CamEvent", "C0A80107-0009", 1709634200000, "ZoneDetection", "",
                  R"({"RuleName": "Checkout queue", "InsideCount": 12, "MaxDuration": 340, "MinDuration": 15, "AvgDuration": 128})",
                  "Checkout", "1003", "1003-1709634200-8", false);
    QTest::newRow("guardian: the guardian's name is the value")
        << TestData::text("event_cam_guardian.xml")
        << values("Camera tampering", "CamEvent", "C0A80107-0002", 1709634300000, "Guardian", "1", "Scene change",
                  "Parking", "1004", "1004-1709634300-2", false);
    QTest::newRow("thermal: the thermal body as compact JSON")
        << TestData::text("event_cam_thermal.xml")
        << values("Transformer hot", "CamEvent", "C0A80107-0011", 1709634400000, "Thermal", "1",
                  R"({"Index":"1","Temperature":"78.5","Unit":"C"})", "Substation", "1005", "1005-1709634400-1",
                  false);
    QTest::newRow("station input: station address is the node, s_ prefix dropped")
        << TestData::text("event_station_di.xml")
        << values("Door contact", "StationDIDO", "192.168.1.5:3454", 1709634500000, "DI", "3", "High",
                  "Main Station", "1006", "1006-1709634500-4", false);
    QTest::newRow("StorageCapacity reported as StorageCap, body read under StorageCap")
        << TestData::text("event_storage_capacity.xml")
        << values("Archive full", "StorageCap", "192.168.1.5:3454", 1709634600000, "Exhausted", "", "97", "Archive",
                  "1007", "1007-1709634600-1", false);
    QTest::newRow("GPS speed: threshold attribute and speed text unquoted")
        << TestData::text("event_gps_speed.xml")
        << values("Bus speeding", "GpsSpeed", "D0A80121-0000", 1709634700000, "GpsSpeed", "",
                  R"({"threshold": 80, "speed": 96})", "Bus 12", "1008", "1008-1709634700-6", false);
    QTest::newRow("area report: area and remaining people quoted")
        << TestData::text("event_area_report.xml")
        << values("Hall still occupied", "SysVcaAreaReport", "C0A80107-0012", 1709634800000, "SysVcaAreaReport", "",
                  R"({"AreaId": "2", "RemainingPeople": "14"})", "Hall", "1009", "1009-1709634800-1", false);
    QTest::newRow("data magnet: first camera, category and data source")
        << TestData::text("event_data_magnet.xml")
        << values("Large refund", "ExtDataMagnet", "C0A80107-0005", 1709634900000, "ExtDataMagnet", "", "Register 4",
                  "POS", "1010", "1010-1709634900-2", false);
    QTest::newRow("access rule: first camera, rule name and data source")
        << TestData::text("event_access_rule.xml")
        << values("Badge denied", "ExtAccessRule", "C0A80107-0008", 1709635000000, "ExtAccessRule", "", "Reader 2",
                  "Back door denied", "1011", "1011-1709635000-1", false);
    QTest::newRow("virtual trigger: decoded name, muted, server time with attribute")
        << TestData::text("event_virtual_trigger.xml")
        << values("Panic", "VirtualTrigger", "C0A80107-0001", 1709635100000, "VirtualTrigger", "",
                  "Panic button desk 2", "Reception", "1012", "1012-1709635100-1", true);

    // Trigger type and body.
    QTest::newRow("StorageCapacity body under its own name is not read")
        << triggerDocument("StorageCapacity", "<State>Exhausted</State><Value>97</Value>")
        << alarmValues({{"2 type", "StorageCap"}, {"5 event", "StorageCap"}});
    QTest::newRow("Event child replaces the trigger body")
        << triggerDocument("StationConn",
                           "<State>outer</State><Event><State>Disconnected</State>"
                           "<StationAddress>10.1.1.1</StationAddress></Event>")
        << alarmValues({{"2 type", "StationConn"}, {"3 nodeId", "10.1.1.1"}, {"5 event", "Disconnected"}});
    QTest::newRow("repeated trigger body reads as empty")
        << alarmDocument("<Type>CamEvent</Type><CamEvent><Event><CamName>a</CamName></Event></CamEvent>"
                         "<CamEvent><Event><CamName>b</CamName></Event></CamEvent>")
        << alarmValues({{"2 type", "CamEvent"}, {"5 event", "CamEvent"}});
    QTest::newRow("Type with an attribute reads as no type")
        << alarmDocument("<Type lang=\"en\">VirtualTrigger</Type><VirtualTrigger><Camera>c</Camera></VirtualTrigger>")
        << alarmValues({});

    // Trigger event.
    QTest::newRow("State wins over EventType for the event, not for the value")
        << triggerDocument("CamEvent",
                           "<Event><State>Lost</State><EventType>Motion</EventType>"
                           "<Motion><Value>Start</Value></Motion></Event>")
        << alarmValues({{"2 type", "CamEvent"}, {"5 event", "Lost"}, {"7 value", "Start"}});
    QTest::newRow("VCA rule without RuleName gives empty braces")
        << triggerDocument("CamEvent",
                           "<Event><EventType>VCA</EventType><VCA><Type>LineDetection</Type>"
                           "<LineDetection><Direction>AtoB</Direction></LineDetection></VCA></Event>")
        << alarmValues({{"2 type", "CamEvent"}, {"5 event", "LineDetection"}, {"7 value", "{}"}});
    QTest::newRow("unknown VCA kind gives an empty value")
        << triggerDocument("CamEvent",
                           "<Event><EventType>VCA</EventType><VCA><Type>Tailgating</Type>"
                           "<Tailgating><RuleName>Door</RuleName></Tailgating></VCA></Event>")
        << alarmValues({{"2 type", "CamEvent"}, {"5 event", "Tailgating"}});
    QTest::newRow("other event type reads the Message of its child")
        << triggerDocument("CamEvent",
                           "<Event><EventType>Audio</EventType><Audio><Index>4</Index>"
                           "<Message>Scream</Message></Audio></Event>")
        << alarmValues({{"2 type", "CamEvent"}, {"5 event", "Audio"}, {"6 dioIndex", "4"}, {"7 value", "Scream"}});
    QTest::newRow("without event type the body's own Index is the value")
        << triggerDocument("RecErr", "<CamName>cam-3</CamName><Index>5</Index>")
        << alarmValues({{"2 type", "RecErr"}, {"3 nodeId", "cam-3"}, {"5 event", "RecErr"}, {"7 value", "5"}});
    QTest::newRow("without any value tag the body's Type is the value")
        << triggerDocument("FanStatus", "<Type>Overheat</Type>")
        << alarmValues({{"2 type", "FanStatus"}, {"5 event", "FanStatus"}, {"7 value", "Overheat"}});
    QTest::newRow("speed without threshold attribute leaves both fields empty")
        << triggerDocument("GpsSpeed", "<Speed>96</Speed>")
        << alarmValues({{"2 type", "GpsSpeed"}, {"5 event", "GpsSpeed"}, {"7 value", R"({"threshold": , "speed": })"}});

    // Node identifier.
    QTest::newRow("CamName wins over DeviceName and StationAddress")
        << triggerDocument("CamConn", "<DeviceName>dev</DeviceName><StationAddress>st</StationAddress>"
                                      "<CamName>cam</CamName>")
        << alarmValues({{"2 type", "CamConn"}, {"3 nodeId", "cam"}, {"5 event", "CamConn"}});
    QTest::newRow("DeviceName wins over StationAddress")
        << triggerDocument("Gsensor", "<StationAddress>st</StationAddress><DeviceName>dev</DeviceName>")
        << alarmValues({{"2 type", "Gsensor"}, {"3 nodeId", "dev"}, {"5 event", "Gsensor"}});
    QTest::newRow("access rule camera list with empty first part")
        << triggerDocument("ExtAccessRule", "<Camera>,cam2</Camera>")
        << alarmValues({{"2 type", "ExtAccessRule"}, {"5 event", "ExtAccessRule"}});
    QTest::newRow("access rule single camera")
        << triggerDocument("ExtAccessRule", "<Camera>cam1</Camera>")
        << alarmValues({{"2 type", "ExtAccessRule"}, {"3 nodeId", "cam1"}, {"5 event", "ExtAccessRule"}});
    QTest::newRow("virtual trigger camera is taken whole")
        << triggerDocument("VirtualTrigger", "<Camera>cam1,cam2</Camera>")
        << alarmValues({{"2 type", "VirtualTrigger"}, {"3 nodeId", "cam1,cam2"}, {"5 event", "VirtualTrigger"}});

    // Device name.
    QTest::newRow("prefix not at the start stays")
        << triggerDocument("CamConn", "<RefName>xc_Lobby</RefName>")
        << alarmValues({{"2 type", "CamConn"}, {"5 event", "CamConn"}, {"8 deviceName", "xc_Lobby"}});
    QTest::newRow("only one leading prefix is dropped")
        << triggerDocument("CamConn", "<RefName>c_s_Lobby</RefName>")
        << alarmValues({{"2 type", "CamConn"}, {"5 event", "CamConn"}, {"8 deviceName", "s_Lobby"}});

    // Mute.
    QTest::newRow("Mute true") << alarmDocument({}, "<Mute>true</Mute>") << alarmValues({{"11 mute", true}});
    QTest::newRow("Mute True is not muted") << alarmDocument({}, "<Mute>True</Mute>") << alarmValues({});
    QTest::newRow("Mute with attribute is not muted")
        << alarmDocument({}, "<Mute by=\"admin\">1</Mute>") << alarmValues({});

    // Server time.
    QTest::newRow("server time without offset is local time")
        << triggerDocument("CamConn", "<ServerTime>2024-03-05T10:20:30</ServerTime>")
        << alarmValues({{"2 type", "CamConn"},
                        {"4 serverTime", QDateTime(QDate(2024, 3, 5), QTime(10, 20, 30)).toMSecsSinceEpoch()},
                        {"5 event", "CamConn"}});
    QTest::newRow("unreadable server time")
        << triggerDocument("CamConn", "<ServerTime>yesterday</ServerTime>")
        << alarmValues({{"2 type", "CamConn"}, {"5 event", "CamConn"}});

    // Alarm fields.
    QTest::newRow("Name with an attribute reads empty")
        << alarmDocument({}).replace("<Name>Door%20alarm</Name>", "<Name enc=\"url\">Door%20alarm</Name>")
        << alarmValues({{"1 name", ""}});
}

void tst_AlarmEventParser::getters()
{
    QFETCH(QString, xml);
    QFETCH(QVariantMap, expected);

    AlarmEventParser parser;
    parser.SetMessage(xml);

    QCOMPARE(valuesText(parser), TestJson::of(expected));
}

void tst_AlarmEventParser::malformed_data()
{
    QTest::addColumn<QString>("xml");

    QTest::newRow("empty text") << QString();
    QTest::newRow("not XML") << QStringLiteral("alarm fired at 10:20");
    QTest::newRow("unterminated document") << TestData::text("event_cam_motion.xml").left(300);
    QTest::newRow("other root element")
        << QString(TestData::text("event_cam_motion.xml")).replace("AlarmNotification", "AlarmNotice");
    QTest::newRow("two Alarm elements")
        << QStringLiteral("<AlarmNotification><Alarm><AlarmID>1</AlarmID></Alarm>"
                          "<Alarm><AlarmID>2</AlarmID></Alarm></AlarmNotification>");
    QTest::newRow("Alarm as text") << QStringLiteral("<AlarmNotification><Alarm>1001</Alarm></AlarmNotification>");
    QTest::newRow("document type declaration")
        << QStringLiteral("<!DOCTYPE AlarmNotification [<!ENTITY a \"x\">]>"
                          "<AlarmNotification><Alarm><AlarmID>&a;</AlarmID></Alarm></AlarmNotification>");
    QTest::newRow("nesting beyond the converter's depth")
        << QStringLiteral("<AlarmNotification><Alarm>") + QString("<a>").repeated(5000)
               + QString("</a>").repeated(5000) + QStringLiteral("</Alarm></AlarmNotification>");
}

void tst_AlarmEventParser::malformed()
{
    QFETCH(QString, xml);

    AlarmEventParser parser;
    parser.SetMessage(xml);

    QCOMPARE(valuesText(parser), TestJson::of(emptyValues()));
    QCOMPARE(parser.GetQuessaEventMap(), QVariantMap());
    QCOMPARE(parser.GetTriggerMap(), QVariantMap());
}

void tst_AlarmEventParser::setMessageReplacesEarlierDocument()
{
    // Given a parser that has read a full event
    AlarmEventParser parser;
    parser.SetMessage(TestData::text("event_virtual_trigger.xml"));
    QVERIFY(parser.Mute());

    // When it is given text that is not an event
    parser.SetMessage(QStringLiteral("<AlarmNotification/>"));

    // Then nothing of the first event is left
    QCOMPARE(valuesText(parser), TestJson::of(emptyValues()));
}

void tst_AlarmEventParser::triggerMap_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QVariantMap>("expected");

    QTest::newRow("before any message") << QString() << QVariantMap();
    QTest::newRow("Event child is the body")
        << triggerDocument("CamEvent", "<Event><CamName>cam</CamName><EventType>Motion</EventType></Event>")
        << QVariantMap{{"CamName", "cam"}, {"EventType", "Motion"}};
    QTest::newRow("body without Event child")
        << triggerDocument("GpsSpeed", "<DeviceName>bus</DeviceName><Speed threshold=\"80\">96</Speed>")
        << QVariantMap{{"DeviceName", "bus"}, {"Speed", QVariantMap{{"@threshold", "80"}, {"#text", "96"}}}};
    QTest::newRow("StorageCapacity body under StorageCap")
        << alarmDocument("<Type>StorageCapacity</Type><StorageCapacity><State>a</State></StorageCapacity>"
                         "<StorageCap><State>b</State></StorageCap>")
        << QVariantMap{{"State", "b"}};
    QTest::newRow("Event child that is text gives an empty body")
        << triggerDocument("CamEvent", "<Event>cam</Event>") << QVariantMap();
}

void tst_AlarmEventParser::triggerMap()
{
    QFETCH(QString, xml);
    QFETCH(QVariantMap, expected);

    AlarmEventParser parser;
    if (!xml.isNull())
        parser.SetMessage(xml);

    QCOMPARE(parser.GetTriggerMap(), expected);
}

void tst_AlarmEventParser::vcaValue_data()
{
    QTest::addColumn<QVariantMap>("vca");
    QTest::addColumn<QString>("expected");

    QTest::newRow("CrowdDetection")
        << vcaMap("<CrowdDetection><RuleName>Plaza</RuleName><DetectAreaReference>A1</DetectAreaReference>"
                  "<InsideCount>30</InsideCount></CrowdDetection>")
        << R"({"RuleName": "Plaza", "DetectAreaReference": "A1", "InsideCount": "30"})";
    QTest::newRow("CrowdDetection without RuleName keeps the comma")
        << vcaMap("<CrowdDetection><DetectAreaReference>A1</DetectAreaReference>"
                  "<InsideCount>30</InsideCount></CrowdDetection>")
        << R"({, "DetectAreaReference": "A1", "InsideCount": "30"})";
    QTest::newRow("FieldDetection")
        << vcaMap("<FieldDetection><RuleName>Fence</RuleName><Inside>true</Inside></FieldDetection>")
        << R"({"RuleName": "Fence", "Inside": "true"})";
    QTest::newRow("SmartTracking")
        << vcaMap("<SmartTracking><RuleName>Track</RuleName><Type>Person</Type><Value>3</Value></SmartTracking>")
        << R"({"RuleName": "Track", "Type": "Person", "Value": "3"})";
    QTest::newRow("ZoneDetection")
        << vcaMap("<ZoneDetection><RuleName>Zone</RuleName><InsideCount>4</InsideCount><MaxDuration>90</MaxDuration>"
                  "<MinDuration>2</MinDuration><AvgDuration>30</AvgDuration></ZoneDetection>")
        << R"({"RuleName": "Zone", "InsideCount": 4, "MaxDuration": 90, "MinDuration": 2, "AvgDuration": 30})";
    QTest::newRow("ZoneDetection counts that are not numbers read 0")
        << vcaMap("<ZoneDetection><InsideCount>many</InsideCount><MaxDuration>1.5</MaxDuration></ZoneDetection>")
        << R"({, "InsideCount": 0, "MaxDuration": 0, "MinDuration": 0, "AvgDuration": 0})";
    const char* ruleNameOnlyKinds[] = {"Loitering",     "RunningDetection", "ParkingViolationDetection",
                                       "RestrictedZoneDetection", "LineDetection", "FaceDetection",
                                       "MissingObject", "AbandonObject"};
    for (const char* kind : ruleNameOnlyKinds) {
        QTest::addRow("%s", kind) << vcaMap(QStringLiteral("<%1><RuleName>R-%1</RuleName></%1>").arg(kind))
                                  << QStringLiteral(R"({"RuleName": "R-%1"})").arg(kind);
    }
    QTest::newRow("first kind in the fixed order wins")
        << vcaMap("<Loitering><RuleName>L</RuleName></Loitering><CrowdDetection><RuleName>C</RuleName>"
                  "</CrowdDetection>")
        << R"({"RuleName": "C", "DetectAreaReference": "", "InsideCount": ""})";
    QTest::newRow("markers in a rule name are substituted further")
        << vcaMap("<FieldDetection><RuleName>%2</RuleName><Inside>yes</Inside></FieldDetection>")
        << R"({"RuleName": "yes", "Inside": "yes"})";
    QTest::newRow("rule kind that is text still counts")
        << vcaMap("<LineDetection>x</LineDetection>") << "{}";
    QTest::newRow("no known kind") << vcaMap("<Type>Tailgating</Type><Tailgating/>") << "";
    QTest::newRow("empty map") << QVariantMap() << "";
}

void tst_AlarmEventParser::vcaValue()
{
    QFETCH(QVariantMap, vca);
    QFETCH(QString, expected);

    QCOMPARE(AlarmEventParser().GetVCAValue(vca), expected);
}

void tst_AlarmEventParser::triggerValueTag_data()
{
    QTest::addColumn<QVariantMap>("body");
    QTest::addColumn<QString>("expected");

    QTest::newRow("Value before Message and Index")
        << QVariantMap{{"Index", "1"}, {"Message", "m"}, {"Value", "v"}} << "Value";
    QTest::newRow("Message before Index") << QVariantMap{{"Index", "1"}, {"Message", "m"}} << "Message";
    QTest::newRow("Index alone") << QVariantMap{{"Index", "1"}} << "Index";
    QTest::newRow("none of them gives Type") << QVariantMap{{"State", "On"}} << "Type";
}

void tst_AlarmEventParser::triggerValueTag()
{
    QFETCH(QVariantMap, body);
    QFETCH(QString, expected);

    QCOMPARE(AlarmEventParser().getTriggerValueTag(body), expected);
}

void tst_AlarmEventParser::serverTimestamp_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<qint64>("expected");

    QTest::newRow("UTC text") << QVariant("2024-03-05T10:20:30Z") << qint64(1709634030000);
    QTest::newRow("offset and milliseconds") << QVariant("2024-03-05T10:21:40.250+01:00") << qint64(1709630500250);
    QTest::newRow("element with attribute")
        << QVariant(QVariantMap{{"@zone", "UTC"}, {"#text", "2024-03-05T10:20:30Z"}}) << qint64(1709634030000);
    QTest::newRow("element with attribute and no text") << QVariant(QVariantMap{{"@zone", "UTC"}}) << INVALID_TIME;
    QTest::newRow("repeated element") << QVariant(QVariantList{"2024-03-05T10:20:30Z"}) << INVALID_TIME;
    QTest::newRow("missing") << QVariant() << INVALID_TIME;
}

void tst_AlarmEventParser::serverTimestamp()
{
    QFETCH(QVariant, value);
    QFETCH(qint64, expected);

    QCOMPARE(AlarmEventParser().parseServerTimestamp(value), expected);
}

QTEST_MAIN(tst_AlarmEventParser)
#include "tst_alarmeventparser.moc"
