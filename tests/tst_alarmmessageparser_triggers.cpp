#include <QtTest>

#include "AlarmMessageParser.h"
#include "TestJson.h"
#include "FakeFramework.h"
#include "PluginAlarmManager.h"
#include "XML2Json.h"

// The trigger list codec: one flat trigger map per trigger of a rule's TriggerList, in the fixed order of
// the sections, and the single trigger-type string the row carries.
class tst_AlarmMessageParserTriggers : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void triggers_data();
    void triggers();
    void withoutOwnerDisplayNamesAreEmpty();
    void triggerMapLeavesOutAbsentIndexAndValue();

private:
    FakeFramework m_framework;
    int m_handle = 0;
    PluginAlarmManager m_owner;
};

namespace {

QVariantMap ruleWithTriggers(const QString& triggerListContent)
{
    const QString xml = QStringLiteral("<Tmcard><TriggerList>%1</TriggerList></Tmcard>").arg(triggerListContent);
    return XML2Json::parse(xml).toMap().value("Tmcard").toMap();
}

QString camera(const QString& eventType, const QString& detail, int latency = 10)
{
    return QStringLiteral(
               "<CamEventTrigger><CamName>cam1</CamName><EventType>%1</EventType><Rule><Latency>%2</Latency></Rule>%3</CamEventTrigger>")
        .arg(eventType)
        .arg(latency)
        .arg(detail);
}

QString status(const QString& eventType, const QString& content, const QString& element = QString())
{
    return QStringLiteral(
               "<StatusEventTrigger><EventType>%1</EventType><Rule><Latency>2</Latency></Rule><%2>%3</%2></StatusEventTrigger>")
        .arg(eventType, element.isEmpty() ? eventType : element, content);
}

QString external(const QString& eventType, const QString& content)
{
    return QStringLiteral("<ExtDeviceEventTrigger><EventType>%1</EventType><%1>%2</%1></ExtDeviceEventTrigger>")
        .arg(eventType, content);
}

} // namespace

void tst_AlarmMessageParserTriggers::initTestCase()
{
    const QString nameRole = "nameRole";
    m_framework.deviceTree.deviceTree["cam1"][nameRole] = "Lobby";
    m_framework.deviceTree.deviceTree["cam2"][nameRole] = "Gate";
    m_framework.deviceTree.deviceTree["st1"][nameRole] = "Main station";
    m_framework.deviceTree.deviceTree["io1"][nameRole] = "IO box";
    m_framework.deviceTree.deviceTree["io1"]["diNameListRole"] = QStringList{"Door", "Window"};
    QVERIFY(m_owner.InitialPluginBase(nullptr, &m_handle, &m_framework));
}

void tst_AlarmMessageParserTriggers::triggers_data()
{
    QTest::addColumn<QString>("triggerList");
    QTest::addColumn<QString>("expectedTriggers");
    QTest::addColumn<QString>("expectedType");

    QTest::newRow("camera DI carries index and value")
        << camera("DI", "<DI><Index>1</Index><Value>High</Value></DI>")
        << TestJson::normalised(
               R"([{"devName":"Lobby","devRealName":"cam1","index":1,"latency":10,"trigger":"DI","value":"High"}])")
        << "DI";
    QTest::newRow("camera DO carries index and value")
        << camera("DO", "<DO><Index>2</Index><Value>Low</Value></DO>")
        << TestJson::normalised(
               R"([{"devName":"Lobby","devRealName":"cam1","index":2,"latency":10,"trigger":"DO","value":"Low"}])")
        << "DO";
    QTest::newRow("motion carries the window index only")
        << camera("Motion", "<Motion><Index>4</Index></Motion>")
        << TestJson::normalised(R"([{"devName":"Lobby","devRealName":"cam1","index":4,"latency":10,"trigger":"Motion"}])")
        << "Motion";
    QTest::newRow("video loss carries its kind as value only")
        << camera("VideoLossRestore", "<VLR><Type>1</Type></VLR>")
        << TestJson::normalised(
               R"([{"devName":"Lobby","devRealName":"cam1","latency":10,"trigger":"VideoLossRestore","value":1}])")
        << "VideoLossRestore";
    QTest::newRow("analytics report their kind as the row type")
        << camera("VCA", "<VCA><Type>LineDetection</Type></VCA>")
        << TestJson::normalised(
               R"([{"devName":"Lobby","devRealName":"cam1","index":"LineDetection","latency":10,"trigger":"VCA"}])")
        << "LineDetection";
    QTest::newRow("thermal reports its kind and area")
        << camera(
               "Thermal",
               "<Thermal><Type>TemperatureRiseAlarm</Type><TemperatureInfo><AreaId>3</AreaId></TemperatureInfo></Thermal>")
        << TestJson::normalised(
               R"([{"devName":"Lobby","devRealName":"cam1","index":"TemperatureRiseAlarm","latency":10,"trigger":"Thermal","value":3}])")
        << "TemperatureRiseAlarm";
    QTest::newRow("guardian carries list id and name")
        << camera("Guardian", "<Guardian><Id>8</Id><Name>VIP</Name></Guardian>")
        << TestJson::normalised(
               R"([{"devName":"Lobby","devRealName":"cam1","index":8,"latency":10,"trigger":"Guardian","value":"VIP"}])")
        << "Guardian";
    QTest::newRow("other camera events carry neither")
        << camera("Tampering", "<Tampering><Index>1</Index></Tampering>")
        << TestJson::normalised(R"([{"devName":"Lobby","devRealName":"cam1","latency":10,"trigger":"Tampering"}])")
        << "Tampering";
    QTest::newRow("event type compared case-sensitively")
        << camera("motion", "<motion><Index>4</Index></motion>")
        << TestJson::normalised(R"([{"devName":"Lobby","devRealName":"cam1","latency":10,"trigger":"motion"}])") << "motion";
    QTest::newRow("camera first, the row type is the last trigger's")
        << camera("Motion", "<Motion><Index>1</Index></Motion>")
               + status("CamConn", "<CamName>cam2</CamName><State>Lost</State>")
        << TestJson::normalised(R"([{"devName":"Lobby","devRealName":"cam1","index":1,"latency":10,"trigger":"Motion"},
                              {"devName":"Gate","devRealName":"cam2","latency":2,"trigger":"CamConn","value":"Lost"}])")
        << "CamConn";
    QTest::newRow("sections in fixed order, not document order")
        << external("ExtAccessRule", "<RuleId>17</RuleId><Rule><Latency>5</Latency></Rule>")
               + camera("Motion", "<Motion><Index>1</Index></Motion>")
        << TestJson::normalised(R"([{"devName":"Lobby","devRealName":"cam1","index":1,"latency":10,"trigger":"Motion"},
                              {"devName":"","devRealName":"","index":17,"latency":5,"trigger":"ExtAccessRule"}])")
        << "ExtAccessRule";
    QTest::newRow("recording status names the camera")
        << status("RecStatus", "<CamName>cam1</CamName><State>Start</State>")
        << TestJson::normalised(
               R"([{"devName":"Lobby","devRealName":"cam1","latency":2,"trigger":"RecStatus","value":"Start"}])")
        << "RecStatus";
    QTest::newRow("station status names the station")
        << status("FanStatus", "<StationAddress>st1</StationAddress><State>Error</State>")
        << TestJson::normalised(
               R"([{"devName":"Main station","devRealName":"st1","latency":2,"trigger":"FanStatus","value":"Error"}])")
        << "FanStatus";
    QTest::newRow("storage capacity read from StorageCap")
        << status("StorageCapacity", "<StationAddress>st1</StationAddress><State>Exhausted</State>", "StorageCap")
        << TestJson::normalised(
               R"([{"devName":"Main station","devRealName":"st1","latency":2,"trigger":"StorageCapacity","value":"Exhausted"}])")
        << "StorageCapacity";
    QTest::newRow("station input without a stored name is named like DI-2")
        << status(
               "DIOStatus",
               "<DeviceName>st1</DeviceName><EventType>DI</EventType><RefName/><Index>2</Index><ioIndex>2</ioIndex><Value>High</Value>")
        << TestJson::normalised(
               R"([{"devName":"Main station","devRealName":"st1","index":"DI-2","ioIndex":2,"latency":2,"trigger":"DIOStatus","typeDIO":0,"value":"High"}])")
        << "DIOStatus";
    QTest::newRow("station output keeps its stored name")
        << status(
               "DIOStatus",
               "<DeviceName>st1</DeviceName><EventType>DO</EventType><RefName>Siren</RefName><Index>1</Index><ioIndex>1</ioIndex><Value>Low</Value>")
        << TestJson::normalised(
               R"([{"devName":"Main station","devRealName":"st1","index":"Siren","ioIndex":1,"latency":2,"trigger":"DIOStatus","typeDIO":1,"value":"Low"}])")
        << "DIOStatus";
    QTest::newRow("G-sensor carries its type as value")
        << status("Gsensor", "<StationAddress>st1</StationAddress><Type>Shock</Type>")
        << TestJson::normalised(
               R"([{"devName":"Main station","devRealName":"st1","latency":2,"trigger":"Gsensor","value":"Shock"}])")
        << "Gsensor";
    QTest::newRow("attacks carry an empty value")
        << status("CyberAttack", "<StationAddress>st1</StationAddress>")
        << TestJson::normalised(
               R"([{"devName":"Main station","devRealName":"st1","latency":2,"trigger":"CyberAttack","value":""}])")
        << "CyberAttack";
    QTest::newRow("system events are station events")
        << "<SysEventTrigger><EventType>SysNetwork</EventType><Rule><Latency>1</Latency></Rule><SysNetwork><StationAddress>st1</StationAddress><State>Down</State></SysNetwork></SysEventTrigger>"
        << TestJson::normalised(
               R"([{"devName":"Main station","devRealName":"st1","latency":1,"trigger":"SysNetwork","value":"Down"}])")
        << "SysNetwork";
    QTest::newRow("remaining people in an area")
        << QStringLiteral(
               "<SysEventTrigger><EventType>SysVcaAreaReport</EventType><Rule><Latency>2</Latency></Rule><StationAddress>st1</StationAddress>"
               "<VcaAreaReport><AreaId>4</AreaId><RemainingPeople>10</RemainingPeople><Comparison>GreaterThan</Comparison></VcaAreaReport></SysEventTrigger>")
        << TestJson::normalised(
               R"([{"comparison":"GreaterThan","devName":"Main station","devRealName":"st1","index":4,"latency":2,"remainingPeople":"10","trigger":"SysVcaAreaReport"}])")
        << "SysVcaAreaReport";
    QTest::newRow("external input named by the device tree")
        << external(
               "ExtIODevice",
               "<DeviceName>io1</DeviceName><EventType>DI</EventType><Rule><Latency>1</Latency></Rule><Index>2</Index><Value>High</Value>")
        << TestJson::normalised(
               R"([{"devName":"IO box","devRealName":"io1","index":"Window","ioIndex":2,"latency":1,"trigger":"ExtIODevice","typeDIO":0,"value":"High"}])")
        << "ExtIODevice";
    QTest::newRow("external output beyond the names falls back to DO-n")
        << external(
               "ExtIODevice",
               "<DeviceName>io1</DeviceName><EventType>DO</EventType><Rule><Latency>1</Latency></Rule><Index>3</Index><Value>Low</Value>")
        << TestJson::normalised(
               R"([{"devName":"IO box","devRealName":"io1","index":"DO-3","ioIndex":3,"latency":1,"trigger":"ExtIODevice","typeDIO":1,"value":"Low"}])")
        << "ExtIODevice";
    QTest::newRow("TCP message matches the rule text")
        << external(
               "ExtTCPMessage",
               "<StationAddress>st1</StationAddress><Rule>DOOR_OPEN<Latency>3</Latency></Rule><RuleType>Contains</RuleType><CaseInsensitive>true</CaseInsensitive>")
        << TestJson::normalised(
               R"([{"caseInsensitive":"true","devName":"Main station","devRealName":"st1","latency":3,"matchingType":"Contains","trigger":"ExtTCPMessage","value":"DOOR_OPEN"}])")
        << "ExtTCPMessage";
    QTest::newRow("data magnet with one condition")
        << external(
               "ExtDataMagnet",
               "<Rule><Latency>4</Latency></Rule><Category>POS</Category><ConditionList><Condition><FieldName>Amount</FieldName><FieldType>Number</FieldType><FieldValue>500</FieldValue></Condition></ConditionList>")
        << TestJson::normalised(
               R"([{"conditionListString":"<Condition><FieldName>Amount</FieldName><FieldType>Number</FieldType><FieldValue>500</FieldValue></Condition>","devName":"POS","devRealName":"POS","latency":4,"trigger":"ExtDataMagnet"}])")
        << "ExtDataMagnet";
    QTest::newRow("data magnet conditions joined in order")
        << external(
               "ExtDataMagnet",
               "<Rule><Latency>4</Latency></Rule><Category>POS</Category><ConditionList><Condition><FieldName>A</FieldName><FieldType>T</FieldType><FieldValue>%1</FieldValue></Condition><Condition><FieldName>B</FieldName><FieldType>N</FieldType><FieldValue>2</FieldValue></Condition></ConditionList>")
        << TestJson::normalised(
               R"([{"conditionListString":"<Condition><FieldName>A</FieldName><FieldType>T</FieldType><FieldValue>%1</FieldValue></Condition><Condition><FieldName>B</FieldName><FieldType>N</FieldType><FieldValue>2</FieldValue></Condition>","devName":"POS","devRealName":"POS","latency":4,"trigger":"ExtDataMagnet"}])")
        << "ExtDataMagnet";
    QTest::newRow("virtual trigger named by the user")
        << external("VirtualTrigger", "<Name>Panic</Name><Rule><Latency>6</Latency></Rule><IconType>3</IconType>")
        << TestJson::normalised(
               R"([{"devName":"Panic","devRealName":"Panic","iconType":3,"latency":6,"trigger":"VirtualTrigger"}])")
        << "VirtualTrigger";
    QTest::newRow("unknown device event keeps its type")
        << external("ExtRadar", "<Rule><Latency>1</Latency></Rule>")
        << TestJson::normalised(R"([{"devName":"","devRealName":"","latency":1,"trigger":"ExtRadar"}])") << "ExtRadar";
    QTest::newRow("empty list keeps the type handed in") << QString() << "[]"
                                                         << "unchanged";
    QTest::newRow("text instead of sections keeps the type handed in") << "junk"
                                                                       << "[]"
                                                                       << "unchanged";
    QTest::newRow("trigger holding text reads empty")
        << "<CamEventTrigger>junk</CamEventTrigger>"
        << TestJson::normalised(R"([{"devName":"","devRealName":"","latency":0,"trigger":""}])") << "";
    QTest::newRow("repeated sub-elements read as missing")
        << camera("DI", "<DI><Index>1</Index></DI><DI><Index>2</Index></DI>")
        << TestJson::normalised(
               R"([{"devName":"Lobby","devRealName":"cam1","index":0,"latency":10,"trigger":"DI","value":""}])")
        << "DI";
}

void tst_AlarmMessageParserTriggers::triggers()
{
    QFETCH(QString, triggerList);
    QFETCH(QString, expectedTriggers);
    QFETCH(QString, expectedType);
    AlarmMessageParser parser(&m_owner);
    QString triggerType = "unchanged";
    QList<QVariant> triggers;

    parser.ParseTriggerData(ruleWithTriggers(triggerList), triggerType, triggers);

    QCOMPARE(TestJson::of(triggers), expectedTriggers);
    QCOMPARE(triggerType, expectedType);
}

void tst_AlarmMessageParserTriggers::withoutOwnerDisplayNamesAreEmpty()
{
    AlarmMessageParser parser(nullptr);
    QString triggerType;
    QList<QVariant> triggers;

    parser.ParseTriggerData(
        ruleWithTriggers(
            camera("Motion", "<Motion><Index>1</Index></Motion>")
            + external("ExtIODevice", "<DeviceName>io1</DeviceName><EventType>DI</EventType><Index>1</Index>")),
        triggerType, triggers);

    QCOMPARE(TestJson::of(triggers),
             TestJson::normalised(R"([{"devName":"","devRealName":"cam1","index":1,"latency":10,"trigger":"Motion"},
                               {"devName":"","devRealName":"io1","index":"","ioIndex":1,"latency":0,"trigger":"ExtIODevice","typeDIO":0,"value":""}])"));
}

void tst_AlarmMessageParserTriggers::triggerMapLeavesOutAbsentIndexAndValue()
{
    const AlarmMessageParser parser(nullptr);
    QCOMPARE(parser.BuildTriggerMap("cam1", "Lobby", "PIR", 3, QVariant(), QVariant()),
             (QVariantMap{{"devRealName", "cam1"}, {"devName", "Lobby"}, {"trigger", "PIR"}, {"latency", 3}}));
    QCOMPARE(parser.BuildTriggerMap(QString(), QString(), QString(), 0, 0, QString()).keys(),
             (QStringList{"devName", "devRealName", "index", "latency", "trigger", "value"}));
}

QTEST_MAIN(tst_AlarmMessageParserTriggers)
#include "tst_alarmmessageparser_triggers.moc"
