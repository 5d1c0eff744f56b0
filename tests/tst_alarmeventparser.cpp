#include <QDateTime>
#include <QTest>

#include "AlarmEventParser.h"
#include "TestData.h"
#include "TestJson.h"

// A triggered-alarm event in, the ten values of the alarmTriggered signal and the mute flag out.
class tst_AlarmEventParser : public QObject
{
    Q_OBJECT

private slots:
    void getters_data();
    void getters();
};

namespace {

const qint64 INVALID_TIME = QDateTime().toMSecsSinceEpoch();

QVariantMap values(const QString& name, const QString& type, const QString& nodeId, qint64 serverTime, const QString& event,
                   const QString& dioIndex, const QString& value, const QString& deviceName, const QString& alarmId,
                   const QString& timecardId, bool mute)
{
    return {{"1 name", name},   {"2 type", type},         {"3 nodeId", nodeId},       {"4 serverTime", serverTime},
            {"5 event", event}, {"6 dioIndex", dioIndex}, {"7 value", value},         {"8 deviceName", deviceName},
            {"9 alarmId", alarmId}, {"10 timecardId", timecardId}, {"11 mute", mute}};
}

// A short event around one "QuessaEvent" content; the rows below vary only what they are about.
QString alarmDocument(const QString& quessaEvent, const QString& alarmExtras = {})
{
    return "<AlarmNotification><Alarm><AlarmID>17</AlarmID><TmcardID>17-1709634030-1</TmcardID><Name>Door%20alarm</Name>"
           + alarmExtras + "<QuessaEvent>" + quessaEvent + "</QuessaEvent></Alarm></AlarmNotification>";
}

QString triggerDocument(const QString& type, const QString& body)
{
    return alarmDocument(QStringLiteral("<Type>%1</Type><%1>%2</%1>").arg(type, body));
}

QString vcaDocument(const QString& kind, const QString& rule)
{
    return triggerDocument("CamEvent", QStringLiteral("<Event><EventType>VCA</EventType><VCA><Type>%1</Type>%2</VCA></Event>").arg(kind, rule));
}

// The values of an alarmDocument, with the fields a row is about changed.
QVariantMap alarmValues(const QVariantMap& changes)
{
    QVariantMap result = values("Door alarm", "", "", INVALID_TIME, "", "", "", "", "17", "17-1709634030-1", false);
    for (auto it = changes.begin(); it != changes.end(); ++it)
        result.insert(it.key(), it.value());
    return result;
}

} // namespace

void tst_AlarmEventParser::getters_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QVariantMap>("expected");

    // Whole documents as the server sends them, one per family of triggers.
    QTest::newRow("camera motion: event type child gives index and value")
        << TestData::text("event_cam_motion.xml")
        << values("Lobby motion after hours", "CamEvent", "C0A80107-0001", 1709634030000, "Motion", "2", "Start", "Lobby", "1001",
                  "1001-1709634030-3", false);
    QTest::newRow("VCA line crossing: rule kind is the event, rule name the value")
        << TestData::text("event_cam_vca_line.xml")
        << values("Gate crossing", "CamEvent", "C0A80107-0004", 1709630500250, "LineDetection", "", R"({"RuleName": "Gate inbound"})",
                  "North Gate", "1002", "1002-1709634100-1", false);
    QTest::newRow("VCA zone: counts written as numbers")
        << TestData::text("event_cam_vca_zone.xml")
        << values("Queue too long", "CamEvent", "C0A80107-0009", 1709634200000, "ZoneDetection", "",
                  R"({"RuleName": "Checkout queue", "InsideCount": 12, "MaxDuration": 340, "MinDuration": 15, "AvgDuration": 128})",
                  "Checkout", "1003", "1003-1709634200-8", false);
    QTest::newRow("guardian: the guardian's name is the value")
        << TestData::text("event_cam_guardian.xml")
        << values("Camera tampering", "CamEvent", "C0A80107-0002", 1709634300000, "Guardian", "1", "Scene change", "Parking", "1004",
                  "1004-1709634300-2", false);
    QTest::newRow("thermal: the thermal body as compact JSON")
        << TestData::text("event_cam_thermal.xml")
        << values("Transformer hot", "CamEvent", "C0A80107-0011", 1709634400000, "Thermal", "1",
                  R"({"Index":"1","Temperature":"78.5","Unit":"C"})", "Substation", "1005", "1005-1709634400-1", false);
    QTest::newRow("station input: station address is the node, s_ prefix dropped")
        << TestData::text("event_station_di.xml")
        << values("Door contact", "StationDIDO", "192.168.1.5:3454", 1709634500000, "DI", "3", "High", "Main Station", "1006",
                  "1006-1709634500-4", false);
    QTest::newRow("StorageCapacity reported as StorageCap, body read under StorageCap")
        << TestData::text("event_storage_capacity.xml")
        << values("Archive full", "StorageCap", "192.168.1.5:3454", 1709634600000, "Exhausted", "", "97", "Archive", "1007",
                  "1007-1709634600-1", false);
    QTest::newRow("GPS speed: threshold attribute and speed text unquoted")
        << TestData::text("event_gps_speed.xml")
        << values("Bus speeding", "GpsSpeed", "D0A80121-0000", 1709634700000, "GpsSpeed", "", R"({"threshold": 80, "speed": 96})",
                  "Bus 12", "1008", "1008-1709634700-6", false);
    QTest::newRow("area report: area and remaining people quoted")
        << TestData::text("event_area_report.xml")
        << values("Hall still occupied", "SysVcaAreaReport", "C0A80107-0012", 1709634800000, "SysVcaAreaReport", "",
                  R"({"AreaId": "2", "RemainingPeople": "14"})", "Hall", "1009", "1009-1709634800-1", false);
    QTest::newRow("data magnet: first camera, category and data source")
        << TestData::text("event_data_magnet.xml")
        << values("Large refund", "ExtDataMagnet", "C0A80107-0005", 1709634900000, "ExtDataMagnet", "", "Register 4", "POS", "1010",
                  "1010-1709634900-2", false);
    QTest::newRow("access rule: first camera, rule name and data source")
        << TestData::text("event_access_rule.xml")
        << values("Badge denied", "ExtAccessRule", "C0A80107-0008", 1709635000000, "ExtAccessRule", "", "Reader 2", "Back door denied",
                  "1011", "1011-1709635000-1", false);
    QTest::newRow("virtual trigger: decoded name, muted by 1, server time with attribute")
        << TestData::text("event_virtual_trigger.xml")
        << values("Panic", "VirtualTrigger", "C0A80107-0001", 1709635100000, "VirtualTrigger", "", "Panic button desk 2", "Reception",
                  "1012", "1012-1709635100-1", true);

    // The kinds of video analytics, each with its own template; the rule name may be missing.
    QTest::newRow("crowd detection without rule name keeps the comma")
        << vcaDocument("CrowdDetection", "<CrowdDetection><DetectAreaReference>A1</DetectAreaReference><InsideCount>30</InsideCount></CrowdDetection>")
        << alarmValues({{"2 type", "CamEvent"}, {"5 event", "CrowdDetection"}, {"7 value", R"({, "DetectAreaReference": "A1", "InsideCount": "30"})"}});
    QTest::newRow("field detection")
        << vcaDocument("FieldDetection", "<FieldDetection><RuleName>Fence</RuleName><Inside>true</Inside></FieldDetection>")
        << alarmValues({{"2 type", "CamEvent"}, {"5 event", "FieldDetection"}, {"7 value", R"({"RuleName": "Fence", "Inside": "true"})"}});
    QTest::newRow("smart tracking")
        << vcaDocument("SmartTracking", "<SmartTracking><RuleName>T</RuleName><Type>Person</Type><Value>3</Value></SmartTracking>")
        << alarmValues({{"2 type", "CamEvent"}, {"5 event", "SmartTracking"}, {"7 value", R"({"RuleName": "T", "Type": "Person", "Value": "3"})"}});
    for (const char* kind : {"Loitering", "RunningDetection", "ParkingViolationDetection", "RestrictedZoneDetection", "LineDetection",
                             "FaceDetection", "MissingObject", "AbandonObject"})
        QTest::addRow("%s", kind) << vcaDocument(kind, QStringLiteral("<%1><RuleName>R</RuleName></%1>").arg(kind))
                                  << alarmValues({{"2 type", "CamEvent"}, {"5 event", kind}, {"7 value", R"({"RuleName": "R"})"}});
    QTest::newRow("line detection without rule name gives empty braces")
        << vcaDocument("LineDetection", "<LineDetection><Direction>AtoB</Direction></LineDetection>")
        << alarmValues({{"2 type", "CamEvent"}, {"5 event", "LineDetection"}, {"7 value", "{}"}});
    QTest::newRow("unknown analytics kind gives no value") << vcaDocument("Tailgating", "<Tailgating><RuleName>D</RuleName></Tailgating>")
                                                           << alarmValues({{"2 type", "CamEvent"}, {"5 event", "Tailgating"}});

    // Event and value of other bodies.
    QTest::newRow("State wins over EventType for the event, not for the value")
        << triggerDocument("CamEvent", "<Event><State>Lost</State><EventType>Motion</EventType><Motion><Value>Start</Value></Motion></Event>")
        << alarmValues({{"2 type", "CamEvent"}, {"5 event", "Lost"}, {"7 value", "Start"}});
    QTest::newRow("Message before Index as the value")
        << triggerDocument("CamEvent", "<Event><EventType>Audio</EventType><Audio><Index>4</Index><Message>Scream</Message></Audio></Event>")
        << alarmValues({{"2 type", "CamEvent"}, {"5 event", "Audio"}, {"6 dioIndex", "4"}, {"7 value", "Scream"}});
    QTest::newRow("without event type the body's Index is the value, CamName the node")
        << triggerDocument("RecErr", "<CamName>cam-3</CamName><DeviceName>dev</DeviceName><Index>5</Index>")
        << alarmValues({{"2 type", "RecErr"}, {"3 nodeId", "cam-3"}, {"5 event", "RecErr"}, {"7 value", "5"}});
    QTest::newRow("without any value tag the Type is the value, DeviceName before StationAddress")
        << triggerDocument("FanStatus", "<StationAddress>st</StationAddress><DeviceName>dev</DeviceName><Type>Overheat</Type>")
        << alarmValues({{"2 type", "FanStatus"}, {"3 nodeId", "dev"}, {"5 event", "FanStatus"}, {"7 value", "Overheat"}});
    QTest::newRow("access rule camera list with an empty first part") << triggerDocument("ExtAccessRule", "<Camera>,cam2</Camera>")
                                                                      << alarmValues({{"2 type", "ExtAccessRule"}, {"5 event", "ExtAccessRule"}});
    QTest::newRow("virtual trigger camera is taken whole")
        << triggerDocument("VirtualTrigger", "<Camera>cam1,cam2</Camera>")
        << alarmValues({{"2 type", "VirtualTrigger"}, {"3 nodeId", "cam1,cam2"}, {"5 event", "VirtualTrigger"}});
    QTest::newRow("one leading prefix dropped from the device name, unreadable time")
        << triggerDocument("CamConn", "<RefName>c_s_Lobby</RefName><ServerTime>yesterday</ServerTime>")
        << alarmValues({{"2 type", "CamConn"}, {"5 event", "CamConn"}, {"8 deviceName", "s_Lobby"}});
    QTest::newRow("Mute True is not muted") << alarmDocument({}, "<Mute>True</Mute>") << alarmValues({});

    // What the converter refuses, and documents without the alarm, read as empty values.
    const QVariantMap empty = values("", "", "", INVALID_TIME, "", "", "", "", "", "", false);
    QTest::newRow("document type declaration")
        << R"(<!DOCTYPE AlarmNotification [<!ENTITY a "x">]><AlarmNotification><Alarm><AlarmID>&a;</AlarmID></Alarm></AlarmNotification>)"
        << empty;
    QTest::newRow("other root element") << TestData::text("event_cam_motion.xml").replace("AlarmNotification", "AlarmNotice") << empty;
}

void tst_AlarmEventParser::getters()
{
    QFETCH(QString, xml);
    QFETCH(QVariantMap, expected);
    AlarmEventParser parser;

    // A second message replaces the first one whole.
    parser.SetMessage(TestData::text("event_virtual_trigger.xml"));
    parser.SetMessage(xml);

    const QVariantMap actual = values(parser.GetAlarmName(), parser.GetTriggerType(), parser.GetNodeID(), parser.GetServerTime(),
                                      parser.GetTriggerEvent(), parser.GetDIOIndex(), parser.GetTriggerValue(), parser.GetDeviceName(),
                                      parser.GetAlarmId(), parser.GetTimecardId(), parser.Mute());
    QCOMPARE(TestJson::lines(actual), TestJson::lines(expected));
}

QTEST_MAIN(tst_AlarmEventParser)
#include "tst_alarmeventparser.moc"
