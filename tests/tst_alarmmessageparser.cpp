#include <QDomDocument>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardItem>
#include <QtTest>

#include "AlarmDocumentGenerator.h"
#include "AlarmMessageParser.h"
#include "AlarmModel.h"
#include "FakeFramework.h"
#include "PluginAlarmManager.h"
#include "TestData.h"
#include "XML2Json.h"
#include "stdafx.h"

// The server's alarm list, text and tree, becomes one complete alarm row per rule: the rows QML, the
// display proxy and the filter read role by role.
class tst_AlarmMessageParser : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void rowsOfARealisticList();
    void xmlTextsAreTheDomsSavedLists();
    void everyActionKindWithACodecIsListed();
    void malformedMessages_data();
    void malformedMessages();
    void noRulesCallsNoParseOperation();
    void parseOperationsAreCalledThroughTheInterface();
    void hundredThousandRules();

private:
    FakeFramework m_framework;
    int m_handle = 0;
    PluginAlarmManager m_owner;
};

namespace {

using namespace PluginAlarmManagerCommon;

QVariantMap message(const QString& xml)
{
    return AlarmDocumentGenerator::alarmListMessage(xml);
}

// One row as JSON, every role but the two XML texts, so that a failure shows the whole row.
QJsonObject rowOf(const QStandardItem* item)
{
    const AlarmModel model;
    const QHash<int, QByteArray> roleNames = model.roleNames();
    QJsonObject row;
    for (auto it = roleNames.begin(); it != roleNames.end(); ++it) {
        if (it.key() != AlarmModel::triggerXmlRole && it.key() != AlarmModel::actionXmlRole)
            row.insert(QString::fromLatin1(it.value()), QJsonValue::fromVariant(item->data(it.key())));
    }
    return row;
}

QString rowsAsJson(const QList<QStandardItem*>& items)
{
    QJsonArray rows;
    for (const QStandardItem* item : items)
        rows.append(rowOf(item));
    return QString::fromUtf8(QJsonDocument(rows).toJson(QJsonDocument::Indented));
}

QString normalisedJson(const QByteArray& json)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError)
        qFatal("bad expected JSON: %s", qPrintable(error.errorString()));
    return QString::fromUtf8(document.toJson(QJsonDocument::Indented));
}

// Id and name of each row and whether its XML texts are filled: enough to tell what a hostile message did.
QStringList summary(const QList<QStandardItem*>& items)
{
    QStringList lines;
    for (const QStandardItem* item : items) {
        lines.append(QStringLiteral("%1|%2|%3|%4")
                         .arg(item->data(AlarmModel::idRole).toString(), item->data(AlarmModel::nameRole).toString(),
                              item->data(AlarmModel::triggerXmlRole).toString().isEmpty() ? QStringLiteral("no trigger xml")
                                                                                           : QStringLiteral("trigger xml"),
                              item->data(AlarmModel::actionXmlRole).toString().isEmpty() ? QStringLiteral("no action xml")
                                                                                          : QStringLiteral("action xml")));
    }
    return lines;
}

QString rules(int count)
{
    QString xml = QStringLiteral("<GetEvtTmcardRes>");
    for (int i = 1; i <= count; ++i)
        xml += QStringLiteral("<Tmcard><TmcardID>%1</TmcardID><Name>r%1</Name><TriggerList/><ActionList/></Tmcard>").arg(i);
    return xml + QStringLiteral("</GetEvtTmcardRes>");
}

// Counts the parse operations and marks what they return, to show createAlarmItemList goes through them.
class CountingParser : public AlarmMessageParser
{
public:
    CountingParser()
        : AlarmMessageParser(nullptr)
    {
    }
    void ParseTimeframeData(const QMap<QString, QVariant>&, QString& name, QString& json) override
    {
        ++calls;
        name = QStringLiteral("derived schedule");
        json = QStringLiteral("{}");
    }
    void ParseTriggerData(const QMap<QString, QVariant>&, QString& type, QList<QVariant>& sources) override
    {
        ++calls;
        type = QStringLiteral("derived trigger");
        sources = {1};
    }
    void ParseActionData(const QMap<QString, QVariant>&, QList<QVariant>& types, QList<QVariant>& targets) override
    {
        ++calls;
        types = {QStringLiteral("derived action")};
        targets = {2};
    }
    int calls = 0;
};

} // namespace

void tst_AlarmMessageParser::initTestCase()
{
    const QString nameRole = QStringLiteral("nameRole");
    m_framework.deviceTree.deviceTree[QStringLiteral("cam1")][nameRole] = QStringLiteral("Lobby");
    m_framework.deviceTree.deviceTree[QStringLiteral("cam2")][nameRole] = QStringLiteral("Gate");
    m_framework.deviceTree.deviceTree[QStringLiteral("st1")][nameRole] = QStringLiteral("Main station");
    QVERIFY(m_owner.InitialPluginBase(nullptr, &m_handle, &m_framework));
}

void tst_AlarmMessageParser::rowsOfARealisticList()
{
    AlarmMessageParser parser(&m_owner);

    const QList<QStandardItem*> items = parser.createAlarmItemList(message(TestData::text(QStringLiteral("alarmlist_three_rules.xml"))));

    QCOMPARE(rowsAsJson(items), normalisedJson(R"([
      {"idRole":"11","nameRole":"Lobby door opened","enabledRole":true,"revisionRole":4,"descriptionRole":"Night shift only",
       "scheduleRole":["Weekdays","success","{\"Rectangles\":[{\"Bottom\":24,\"Left\":1,\"RecordingMode\":\"Continuous\",\"Right\":6,\"Top\":0}]}"],
       "triggerTypeRole":"CamConn",
       "triggerSourceRole":[{"devName":"Lobby","devRealName":"cam1","index":2,"latency":10,"trigger":"Motion"},
                            {"devName":"Gate","devRealName":"cam2","latency":0,"trigger":"CamConn","value":"Lost"}],
       "actionTypeRole":["Recording","SMS"],
       "actionTargetRole":[[{"action":"","camId":"cam1","grpId":"2","target":"Lobby"},{"action":"","camId":"cam2","grpId":"0","target":"Gate"}],
                           [{"action":"","message":"Door & gate","target":"0912345678"}]]},
      {"idRole":"12","nameRole":"Server room","enabledRole":false,"revisionRole":9000000000,"descriptionRole":"",
       "scheduleRole":["Office","success","{\"Rectangles\":[{\"Bottom\":1,\"Left\":1,\"RecordingMode\":\"Continuous\",\"Right\":2,\"Top\":0},{\"Bottom\":2,\"Left\":0,\"RecordingMode\":\"Continuous\",\"Right\":7,\"Top\":1}]}"],
       "triggerTypeRole":"SysLicense",
       "triggerSourceRole":[{"devName":"Main station","devRealName":"st1","latency":5,"trigger":"SysLicense","value":"TrialExpired"}],
       "actionTypeRole":[],"actionTargetRole":[]},
      {"idRole":"13","nameRole":"Café €","enabledRole":true,"revisionRole":0,"descriptionRole":"",
       "scheduleRole":["","success",""],
       "triggerTypeRole":"","triggerSourceRole":[],"actionTypeRole":[],"actionTargetRole":[]}
    ])"));
    QCOMPARE(items.at(1)->data(AlarmModel::revisionRole).typeId(), QMetaType::LongLong);
    qDeleteAll(items);
}

void tst_AlarmMessageParser::xmlTextsAreTheDomsSavedLists()
{
    // Given the realistic list and the DOM of the same text
    const QString xml = TestData::text(QStringLiteral("alarmlist_three_rules.xml"));
    QDomDocument document;
    QVERIFY(document.setContent(xml));
    const QDomNodeList domRules = document.elementsByTagName(QStringLiteral("Tmcard"));
    AlarmMessageParser parser(&m_owner);

    // When the rows are built
    const QList<QStandardItem*> items = parser.createAlarmItemList(message(xml));

    // Then each row carries its lists exactly as the DOM saves them with an indent of 4
    QCOMPARE(items.size(), domRules.size());
    for (int i = 0; i < domRules.size(); ++i) {
        const QDomElement rule = domRules.at(i).toElement();
        QCOMPARE(items.at(i)->data(AlarmModel::triggerXmlRole).toString(),
                 AlarmMessageParser::GetDomNodeXmlString(rule.firstChildElement(QStringLiteral("TriggerList"))));
        QCOMPARE(items.at(i)->data(AlarmModel::actionXmlRole).toString(),
                 AlarmMessageParser::GetDomNodeXmlString(rule.firstChildElement(QStringLiteral("ActionList"))));
    }
    QCOMPARE(items.at(2)->data(AlarmModel::triggerXmlRole).toString(), QStringLiteral("    <TriggerList/>\n"));
    QVERIFY(items.at(0)->data(AlarmModel::actionXmlRole).toString().startsWith(
        QStringLiteral("    <ActionList>\n        <Action>\n            <Recording>\n                <Cam GrpID=\"2\">cam1</Cam>")));
    qDeleteAll(items);
}

void tst_AlarmMessageParser::everyActionKindWithACodecIsListed()
{
    AlarmMessageParser parser(&m_owner);

    const QList<QStandardItem*> items = parser.createAlarmItemList(message(TestData::text(QStringLiteral("alarmlist_every_action.xml"))));

    QCOMPARE(items.size(), 1);
    // LaunchProgram has no codec and is left out of both lists.
    QCOMPARE(items.first()->data(AlarmModel::actionTypeRole).toStringList(),
             (QStringList{ActionParserCommon::ACTION_TYPE_SENDMAIL, ActionParserCommon::ACTION_TYPE_SMS,
                          ActionParserCommon::ACTION_TYPE_HTTP, ActionParserCommon::ACTION_TYPE_RECORDING,
                          ActionParserCommon::ACTION_TYPE_PRESET, ActionParserCommon::ACTION_TYPE_SETDO,
                          ActionParserCommon::ACTION_TYPE_CLIENTNOTIFY_GOTO_LIVESTREAM,
                          ActionParserCommon::ACTION_TYPE_CLIENTNOTIFY_GOTO_EMAP,
                          ActionParserCommon::ACTION_TYPE_CLIENTNOTIFY_SOUND_THE_ALARM,
                          ActionParserCommon::ACTION_TYPE_ADDBOOKMARK, ActionParserCommon::ACTION_TYPE_PLAYIPAUDIO,
                          ActionParserCommon::ACTION_TYPE_MOBILENOTIFICATION}));
    QList<int> targetCounts;
    for (const QVariant& targets : items.first()->data(AlarmModel::actionTargetRole).toList())
        targetCounts.append(int(targets.toList().size()));
    QCOMPARE(targetCounts, (QList<int>{1, 1, 1, 2, 1, 2, 3, 1, 1, 1, 1, 2}));
    qDeleteAll(items);
}

void tst_AlarmMessageParser::malformedMessages_data()
{
    QTest::addColumn<QVariant>("alarmListMessage");
    QTest::addColumn<QStringList>("expectedRows");

    const QString three = TestData::text(QStringLiteral("alarmlist_three_rules.xml"));
    const QStringList threeRows{QStringLiteral("11|Lobby door opened|trigger xml|action xml"),
                                QStringLiteral("12|Server room|trigger xml|action xml"),
                                QStringLiteral("13|Café €|trigger xml|action xml")};
    QTest::newRow("rules in document order") << QVariant(message(three)) << threeRows;
    QTest::newRow("a single rule is a list of one")
        << QVariant(message(rules(1))) << QStringList{QStringLiteral("1|r1|trigger xml|action xml")};
    QTest::newRow("no rules") << QVariant(message(QStringLiteral("<GetEvtTmcardRes/>"))) << QStringList();
    QTest::newRow("another envelope") << QVariant(message(QStringLiteral("<Other><Tmcard><TmcardID>1</TmcardID></Tmcard></Other>")))
                                      << QStringList();
    QTest::newRow("text that does not parse") << QVariant(message(QStringLiteral("<GetEvtTmcardRes><Tmcard>"))) << QStringList();
    QTest::newRow("not a map") << QVariant(QStringLiteral("GetEvtTmcardRes")) << QStringList();
    QTest::newRow("invalid") << QVariant() << QStringList();
    QTest::newRow("tree where text is expected")
        << QVariant(QVariantMap{{ARG_ALARM_LIST, XML2Json::parse(rules(1))}, {ARG_ALARM_XML_MSG, XML2Json::parse(rules(1))}})
        << QStringList{QStringLiteral("1|r1|no trigger xml|no action xml")};
    QTest::newRow("rule holding text reads empty")
        << QVariant(message(QStringLiteral("<GetEvtTmcardRes><Tmcard>junk</Tmcard></GetEvtTmcardRes>")))
        << QStringList{QStringLiteral("||no trigger xml|no action xml")};
    QTest::newRow("text of another document leaves the XML texts empty")
        << QVariant(QVariantMap{{ARG_ALARM_LIST, XML2Json::parse(three)}, {ARG_ALARM_XML_MSG, QStringLiteral("not xml")}})
        << QStringList{QStringLiteral("11|Lobby door opened|no trigger xml|no action xml"),
                       QStringLiteral("12|Server room|no trigger xml|no action xml"),
                       QStringLiteral("13|Café €|no trigger xml|no action xml")};
    QTest::newRow("text with fewer rules fills the first ones")
        << QVariant(QVariantMap{{ARG_ALARM_LIST, XML2Json::parse(rules(3))}, {ARG_ALARM_XML_MSG, rules(2)}})
        << QStringList{QStringLiteral("1|r1|trigger xml|action xml"), QStringLiteral("2|r2|trigger xml|action xml"),
                       QStringLiteral("3|r3|no trigger xml|no action xml")};
    QTest::newRow("lists holding text")
        << QVariant(message(QStringLiteral("<GetEvtTmcardRes><Tmcard><TmcardID>5</TmcardID><Mapping>x</Mapping><TriggerList>x</TriggerList>"
                                           "<ActionList><Action>x</Action></ActionList></Tmcard></GetEvtTmcardRes>")))
        << QStringList{QStringLiteral("5||trigger xml|action xml")};
}

void tst_AlarmMessageParser::malformedMessages()
{
    QFETCH(QVariant, alarmListMessage);
    QFETCH(QStringList, expectedRows);
    AlarmMessageParser parser(&m_owner);

    const QList<QStandardItem*> items = parser.createAlarmItemList(alarmListMessage);

    QCOMPARE(summary(items), expectedRows);
    qDeleteAll(items);
}

void tst_AlarmMessageParser::noRulesCallsNoParseOperation()
{
    CountingParser parser;
    QVERIFY(parser.createAlarmItemList(message(QStringLiteral("<GetEvtTmcardRes/>"))).isEmpty());
    QCOMPARE(parser.calls, 0);
}

void tst_AlarmMessageParser::parseOperationsAreCalledThroughTheInterface()
{
    CountingParser parser;

    const QList<QStandardItem*> items = parser.createAlarmItemList(message(rules(2)));

    QCOMPARE(parser.calls, 6);
    QCOMPARE(rowsAsJson({items.first()}), normalisedJson(R"([
      {"idRole":"1","nameRole":"r1","enabledRole":false,"revisionRole":0,"descriptionRole":"",
       "scheduleRole":["derived schedule","success","{}"],"triggerTypeRole":"derived trigger","triggerSourceRole":[1],
       "actionTypeRole":["derived action"],"actionTargetRole":[2]}])"));
    qDeleteAll(items);
}

void tst_AlarmMessageParser::hundredThousandRules()
{
    const int count = 100000;
    AlarmMessageParser parser(&m_owner);

    const QList<QStandardItem*> items = parser.createAlarmItemList(message(rules(count)));

    QCOMPARE(items.size(), count);
    QCOMPARE(summary({items.last()}), QStringList{QStringLiteral("100000|r100000|trigger xml|action xml")});
    qDeleteAll(items);
}

QTEST_MAIN(tst_AlarmMessageParser)
#include "tst_alarmmessageparser.moc"
