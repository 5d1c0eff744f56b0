#include <QJsonDocument>
#include <QRandomGenerator>
#include <QStandardItem>
#include <QtTest>

#include "AlarmDocumentGenerator.h"
#include "AlarmMessageParser.h"
#include "AlarmModel.h"
#include "DomRuleTexts.h"
#include "FakeFramework.h"
#include "PluginAlarmManager.h"
#include "TestData.h"
#include "TestJson.h"
#include "XML2Json.h"
#include "stdafx.h"

using namespace PluginAlarmManagerCommon;

// The server's alarm list, tree and text, becomes one alarm row per rule: schedule, triggers and actions
// decoded, each role stored with the type QML reads, and the rule's lists kept as the DOM saves them.
class tst_AlarmMessageParser : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void rows_data();
    void rows();
    void xmlTextsAreTheDomsSavedLists_data();
    void xmlTextsAreTheDomsSavedLists();
    void rowsFromTheTextAreTheRowsFromTheTree_data() { xmlTextsAreTheDomsSavedLists_data(); }
    void rowsFromTheTextAreTheRowsFromTheTree();
    void xmlTextsAreEditedLikeAnyRole();
    void floodedListsKeepTheirTexts();
    void parseOperationsAreCalledThroughTheInterface();

private:
    FakeFramework m_framework;
    int m_handle = 0;
    PluginAlarmManager m_owner;
};

namespace {

QVariantMap message(const QString& xml)
{
    return AlarmDocumentGenerator::alarmListMessage(xml);
}

QVariantMap message(const QVariant& tree, const QString& xml)
{
    return {{ARG_ALARM_LIST, tree}, {ARG_ALARM_XML_MSG, xml}};
}

QString rules(int count, const QString& extra = {})
{
    QString xml = QStringLiteral("<GetEvtTmcardRes>") + extra;
    for (int i = 1; i <= count; ++i)
        xml += QStringLiteral("<Tmcard><TmcardID>%1</TmcardID><Name>r%1</Name><TriggerList/><ActionList/></Tmcard>").arg(i);
    return xml + QStringLiteral("</GetEvtTmcardRes>");
}

// The roles named in the expected rows, one line per role and per element of a list role ("1 scheduleRole[2]: ..."),
// so that a failure names the row, the role and the element.
QStringList rendered(const QVariantList& rows, const std::function<QVariant(int row, const QString& role)>& valueOf)
{
    QVariantMap lines;
    for (int row = 0; row < rows.size(); ++row) {
        const QVariantMap expectedRow = rows.at(row).toMap();
        for (auto it = expectedRow.begin(); it != expectedRow.end(); ++it)
            lines.insert(QStringLiteral("%1 %2").arg(row).arg(it.key()), valueOf(row, it.key()));
    }
    return QStringList{QString::number(rows.size()) + " rows"} + TestJson::lines(lines);
}

// Marks what each parse operation returns, to show that createAlarmItemList goes through the interface.
struct CountingParser : AlarmMessageParser
{
    CountingParser() : AlarmMessageParser(nullptr) {}
    void ParseTimeframeData(const QVariantMap&, QString& name, QString& json) override { calls << "schedule"; name = "s"; json = "{}"; }
    void ParseTriggerData(const QVariantMap&, QString& type, QVariantList& sources) override { calls << "triggers"; type = "t"; sources = {1}; }
    void ParseActionData(const QVariantMap&, QVariantList& types, QVariantList& targets) override { calls << "actions"; types = {"a"}; targets = {2}; }
    QStringList calls;
};

// Random documents of every kind of node the DOM keeps, at random depths, to hold the rule texts to the DOM.
class RandomDocument
{
public:
    explicit RandomDocument(quint32 seed) : m_random(seed) {}

    QString text()
    {
        QString xml = "<GetEvtTmcardRes>" + repeated(1 + bounded(4), [this] { return rule(0); }) + "</GetEvtTmcardRes>";
        if (bounded(8) == 0)
            xml.truncate(bounded(int(xml.size())));
        return xml;
    }

private:
    int bounded(int limit) { return int(m_random.bounded(limit)); }
    QString repeated(int count, const std::function<QString()>& piece)
    {
        QString text;
        for (int i = 0; i < count; ++i)
            text += piece();
        return text;
    }
    QString pick(const QStringList& choices) { return choices.at(bounded(int(choices.size()))); }

    QString rule(int depth)
    {
        return "<Tmcard>" + maybeText() + repeated(bounded(5), [&] {
                   const int kind = bounded(4);
                   return (kind == 0 ? element("TriggerList", depth + 1) : kind == 1 ? element("ActionList", depth + 1) : node(depth + 1))
                          + maybeText();
               }) + "</Tmcard>";
    }

    QString element(const QString& name, int depth)
    {
        const QString start = '<' + name + repeated(bounded(4) == 0 ? 1 + bounded(6) : 0, [&] { return attribute(); });
        const int children = depth > 5 ? 0 : bounded(5);
        return children == 0 && bounded(2) == 0 ? start + "/>" : start + '>' + repeated(children, [&] { return node(depth + 1); }) + "</" + name + '>';
    }

    QString node(int depth)
    {
        switch (bounded(9)) {
        case 0: return "<!--" + pick({" note ", "a<b&c", ""}) + "-->";
        case 1: return "<![CDATA[" + pick({"raw <x> & \"q\"", "  ", ""}) + "]]>";
        case 2:
        case 3: return textPiece();
        case 4: return depth < 4 ? rule(depth) : textPiece();
        default: return element(pick({"CamEventTrigger", "Action", "Cam", "x:Ns", "E"}), depth);
        }
    }

    QString attribute()
    {
        const QString quote = bounded(2) ? "\"" : "'";
        return QStringLiteral(" a%1=").arg(m_attributeCount++) + quote
               + pick({"2", "&amp;&lt;&gt;&quot;", "x&#10;y&#9;z&#13;", "tab\there", "é ü", ""}) + quote;
    }

    QString textPiece()
    {
        return pick({"5", "  padded  ", "a &amp; b &lt; c > d ]]&gt; \"q\" 'a'", "line\r\nbreak", "cr&#13;ref", "&#160;", "\n    ",
                     "%20encoded%25", "日本"});
    }

    QString maybeText() { return bounded(3) == 0 ? textPiece() : QString(); }

    QRandomGenerator m_random;
    int m_attributeCount = 0;
};

} // namespace

void tst_AlarmMessageParser::initTestCase()
{
    auto& devices = m_framework.deviceTree.deviceTree;
    const QStringList names{"cam1", "Lobby", "cam2", "Gate", "cam3", "Yard", "st1", "Main station", "st2", "Bus 12", "io1", "IO box"};
    for (qsizetype i = 0; i < names.size(); i += 2)
        devices[names.at(i)]["nameRole"] = names.at(i + 1);
    devices["io1"]["diNameListRole"] = QStringList{"Door", "Window"};
    QVERIFY(m_owner.InitialPluginBase(nullptr, &m_handle, &m_framework));
}

void tst_AlarmMessageParser::rows_data()
{
    QTest::addColumn<QVariant>("alarmListMessage");
    QTest::addColumn<QString>("expectedRows"); // JSON: one object per row, holding the roles to compare

    QTest::newRow("three rules, every role but the XML texts")
        << QVariant(message(TestData::text("alarmlist_three_rules.xml"))) << TestData::text("alarmlist_three_rules.rows.json");
    QTest::newRow("every trigger kind") << QVariant(message(TestData::text("alarmlist_every_trigger.xml")))
                                        << TestData::text("alarmlist_every_trigger.rows.json");
    QTest::newRow("schedules") << QVariant(message(TestData::text("alarmlist_schedules.xml")))
                               << TestData::text("alarmlist_schedules.rows.json");
    QTest::newRow("every action kind with a codec, in order") << QVariant(message(TestData::text("alarmlist_every_action.xml"))) << R"([
      {"actionTypeRole":["SendMail","SMS","HTTP","Recording","PresetLocMove","SetDO","ClientNotificationGotoLiveStream",
                         "ClientNotificationGotoEMap","ClientNotificationSoundTheAlarm","AddBookmark","PlayIPAudio","MobileNotification"]}])";
    QTest::newRow("a single rule is a list of one, its lists indented below their start tags")
        << QVariant(message(R"(<GetEvtTmcardRes><Tmcard><TmcardID>1</TmcardID><TriggerList><CamEventTrigger><CamName>cam1</CamName>
               </CamEventTrigger></TriggerList><ActionList/></Tmcard></GetEvtTmcardRes>)"))
        << R"([{"idRole":"1","triggerXmlRole":"    <TriggerList>\n        <CamEventTrigger>\n            <CamName>cam1</CamName>\n        </CamEventTrigger>\n    </TriggerList>\n",
                "actionXmlRole":"    <ActionList/>\n"}])";
    QTest::newRow("no rules") << QVariant(message("<GetEvtTmcardRes/>")) << "[]";
    QTest::newRow("another envelope") << QVariant(message("<Other><Tmcard><TmcardID>1</TmcardID></Tmcard></Other>")) << "[]";
    QTest::newRow("not a message") << QVariant("GetEvtTmcardRes") << "[]";
    QTest::newRow("document the converter refuses")
        << QVariant(message(R"(<!DOCTYPE r [<!ENTITY a "x">]><GetEvtTmcardRes><Tmcard><TmcardID>&a;</TmcardID></Tmcard></GetEvtTmcardRes>)"))
        << "[]";
    QTest::newRow("text of another document leaves the XML texts empty")
        << QVariant(message(XML2Json::parse(rules(2)), "not xml"))
        << R"([{"idRole":"1","triggerXmlRole":"","actionXmlRole":""},{"idRole":"2","triggerXmlRole":"","actionXmlRole":""}])";
    QTest::newRow("text with fewer rules fills the first ones") << QVariant(message(XML2Json::parse(rules(3)), rules(2))) << R"([
      {"idRole":"1","triggerXmlRole":"    <TriggerList/>\n","actionXmlRole":"    <ActionList/>\n"},
      {"idRole":"2","triggerXmlRole":"    <TriggerList/>\n","actionXmlRole":"    <ActionList/>\n"},
      {"idRole":"3","triggerXmlRole":"","actionXmlRole":""}])";
    QString attributes = "<Extension";
    for (int i = 0; i < 1000; ++i)
        attributes += QStringLiteral(" a%1='>'").arg(i);
    QTest::newRow("1 000 attributes on a tag keep the texts") << QVariant(message(rules(1, attributes + "/>")))
                                                              << R"([{"idRole":"1","triggerXmlRole":"    <TriggerList/>\n"}])";
    QTest::newRow("lists nested deeper than any rule is read give no texts")
        << QVariant(message(XML2Json::parse(rules(1)), rules(1).replace("<TriggerList/>", "<TriggerList>" + QString("<a>").repeated(100000)
                                                                                          + QString("</a>").repeated(100000) + "</TriggerList>")))
        << R"([{"idRole":"1","triggerXmlRole":"","actionXmlRole":""}])";
}

void tst_AlarmMessageParser::rows()
{
    QFETCH(QVariant, alarmListMessage);
    QFETCH(QString, expectedRows);
    const QVariantList expected = QJsonDocument::fromJson(expectedRows.toUtf8()).toVariant().toList();
    QVERIFY(!expectedRows.isEmpty());
    AlarmMessageParser parser(&m_owner);

    const QList<QStandardItem*> items = parser.createAlarmItemList(alarmListMessage);

    const QHash<int, QByteArray> roleNames = AlarmModel().roleNames();
    const QStringList actual = rendered(expected, [&](int row, const QString& role) {
        return row < items.size() ? items.at(row)->data(roleNames.key(role.toLatin1())) : QVariant();
    });
    QCOMPARE(QString::number(items.size()) + " rows", actual.first());
    QCOMPARE(actual, rendered(expected, [&](int row, const QString& role) { return expected.at(row).toMap().value(role); }));
    qDeleteAll(items);
}

void tst_AlarmMessageParser::xmlTextsAreTheDomsSavedLists_data()
{
    QTest::addColumn<QString>("xml");
    const auto oneRule = [](const QString& content) {
        return QStringLiteral("<GetEvtTmcardRes><Tmcard><TmcardID>1</TmcardID>%1</Tmcard></GetEvtTmcardRes>").arg(content);
    };
    QTest::newRow("realistic list") << TestData::text("alarmlist_three_rules.xml");
    QTest::newRow("every trigger kind") << TestData::text("alarmlist_every_trigger.xml");
    QTest::newRow("every action kind") << TestData::text("alarmlist_every_action.xml");
    QTest::newRow("generated list") << AlarmDocumentGenerator::alarmListXml(30);
    QTest::newRow("empty lists written both ways, missing ones empty") << oneRule("<TriggerList/><ActionList></ActionList><Name>x</Name>");
    QTest::newRow("only the first list counts") << oneRule("<TriggerList><A>1</A></TriggerList><TriggerList><B>2</B></TriggerList>");
    QTest::newRow("attributes escaped") << oneRule(R"(<ActionList><Cam GrpID="a&amp;&quot;'&lt;&gt;" X='&#10;&#9;&#13;'>7</Cam></ActionList>)");
    QTest::newRow("many attributes keep the DOM's order") << oneRule(R"(<ActionList><Ele B="1" E="2" F="3" G="4" H="5" I="6" J="7"/></ActionList>)");
    QTest::newRow("text escaped") << oneRule("<TriggerList><V>a &amp; b &lt; c > d ]]&gt; \"q\" &#13;</V></TriggerList>");
    QTest::newRow("blank text dropped, CDATA kept")
        << oneRule("<TriggerList> <A>  </A><B><![CDATA[ <raw> ]]></B><C><![CDATA[  ]]></C><D>&#160;</D></TriggerList>");
    QTest::newRow("mixed content stays on one line") << oneRule("<TriggerList><Rule>DOOR<Latency>3</Latency>OPEN<!--c--><X/>tail</Rule></TriggerList>");
    QTest::newRow("comments indented like elements") << oneRule("<ActionList><!-- first --><Action/><!--last--></ActionList>");
    QTest::newRow("list after text is not indented, list before text has no line break")
        << oneRule("text<TriggerList><A/></TriggerList>tail<ActionList/>tail");
    QTest::newRow("rules nested in a list are rules too")
        << oneRule("<TriggerList><Tmcard><TriggerList><Q>1</Q></TriggerList><ActionList/></Tmcard></TriggerList>");
    QTest::newRow("namespaced names kept as written") << oneRule(R"(<TriggerList xmlns:n="urn:x"><n:A n:b="1">v</n:A></TriggerList>)");
    QTest::newRow("text breaking off gives no texts") << "<GetEvtTmcardRes><Tmcard><TriggerList><A>1</A><B><C>2</C>";
    QTest::newRow("bad character ends the document") << oneRule("<TriggerList><A>1</A><B>&#1;</B></TriggerList>");
    QTest::newRow("processing instructions") << oneRule("<?pi data?><TriggerList><A/><?pi da\r\nta\r?></TriggerList>");
    QTest::newRow("declared entities expanded")
        << R"(<!DOCTYPE R [<!ENTITY e "expanded">]><R><Tmcard><TriggerList><A>&e;</A></TriggerList></Tmcard></R>)";
    for (quint32 seed = 1; seed <= 1500; ++seed)
        QTest::addRow("random document %u", seed) << RandomDocument(seed).text();
}

void tst_AlarmMessageParser::xmlTextsAreTheDomsSavedLists()
{
    QFETCH(QString, xml);
    bool isWellFormed = false;
    const QList<AlarmMessageParser::RuleXmlTexts> dom = DomRuleTexts::of(xml, &isWellFormed);
    const bool isRead = XML2Json::parse(xml).isValid();
    const auto rendered = [](const QList<AlarmMessageParser::RuleXmlTexts>& texts) {
        QStringList lines;
        for (const AlarmMessageParser::RuleXmlTexts& rule : texts)
            lines << rule.triggerXml << rule.actionXml;
        return lines;
    };

    // Text the converter reads is text Qt's reader reads whole; what it refuses lists no rule and so no texts.
    if (isRead)
        QVERIFY(isWellFormed);
    QCOMPARE(rendered(AlarmMessageParser::RuleXmlTextsOf(xml)), isRead ? rendered(dom) : QStringList());
}

void tst_AlarmMessageParser::rowsFromTheTextAreTheRowsFromTheTree()
{
    QFETCH(QString, xml);
    const auto rendered = [](const QList<QStandardItem*>& items) {
        QStringList lines;
        for (const QStandardItem* item : items) {
            for (int role = AlarmModel::idRole; role <= AlarmModel::actionXmlRole; ++role)
                lines << TestJson::of(item->data(role));
        }
        qDeleteAll(items);
        return lines;
    };
    AlarmMessageParser parser(&m_owner);

    // The answer handler's way (rule by rule, from the text) and the interface's (tree and text) agree.
    QCOMPARE(rendered(parser.createAlarmItemListFromXml(xml)), rendered(parser.createAlarmItemList(message(xml))));
}

void tst_AlarmMessageParser::xmlTextsAreEditedLikeAnyRole()
{
    // Given a listed rule in the model
    AlarmModel model;
    AlarmMessageParser parser(nullptr);
    model.appendRow(parser.createAlarmItemListFromXml(rules(1)).value(0));
    QStandardItem* row = model.item(0);
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);

    // When its trigger text is set to the text it has, then to another
    row->setData(row->data(AlarmModel::triggerXmlRole), AlarmModel::triggerXmlRole);
    row->setData(QString("<TriggerList>\u00e9</TriggerList>"), AlarmModel::triggerXmlRole);

    // Then only the change is announced, for that role alone, and the model's item data has both texts
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.at(0).at(2).value<QList<int>>(), QList<int>{AlarmModel::triggerXmlRole});
    const QMap<int, QVariant> data = model.itemData(model.index(0, 0));
    QCOMPARE(data.value(AlarmModel::triggerXmlRole).toString(), QString("<TriggerList>\u00e9</TriggerList>"));
    QCOMPARE(data.value(AlarmModel::actionXmlRole).toString(), QString("    <ActionList/>\n"));
}

void tst_AlarmMessageParser::floodedListsKeepTheirTexts()
{
    // Given a rule whose trigger list holds a tag with 100 000 attributes and 100 000 distinct tags
    QString flood = "<A";
    for (int i = 0; i < 100000; ++i)
        flood += QStringLiteral(" a%1=''").arg(i);
    flood += "/>";
    for (int i = 0; i < 100000; ++i)
        flood += QStringLiteral("<T%1/>").arg(i);
    AlarmMessageParser parser(nullptr);

    // When its row is built
    const QScopedPointer<QStandardItem> row(
        parser.createAlarmItemListFromXml(rules(1).replace("<TriggerList/>", "<TriggerList>" + flood + "</TriggerList>")).value(0));

    // Then its text holds every attribute and every tag
    const QString text = row->data(AlarmModel::triggerXmlRole).toString();
    QCOMPARE(text.count(QStringLiteral("=\"\"")), 100000);
    QCOMPARE(text.count(QStringLiteral("<T")), 1 + 100000); // the list's own start tag, then the flood
    QVERIFY(text.endsWith("    </TriggerList>\n"));

    // And a list whose indentation alone would be a hundred times the document gets no text instead
    const QString deep = QString("<a>").repeated(250) + "x" + QString("</a>").repeated(250);
    const QScopedPointer<QStandardItem> deepRow(parser.createAlarmItemListFromXml(
        rules(1).replace("<TriggerList/>", "<TriggerList>" + deep.repeated(100) + "</TriggerList>")).value(0));
    QCOMPARE(deepRow->data(AlarmModel::triggerXmlRole).toString(), QString());
    QCOMPARE(deepRow->data(AlarmModel::actionXmlRole).toString(), QString());
}

void tst_AlarmMessageParser::parseOperationsAreCalledThroughTheInterface()
{
    // Given a parser that replaces the three parse operations, when a list without rules and one with a rule are read
    CountingParser parser;
    QVERIFY(parser.createAlarmItemList(message("<GetEvtTmcardRes/>")).isEmpty());
    const QScopedPointer<QStandardItem> row(parser.createAlarmItemList(message(rules(1))).value(0));

    // Then only the rule is parsed, through the replacements, and its row carries what they returned
    QCOMPARE(parser.calls, QStringList({"schedule", "triggers", "actions"}));
    QCOMPARE(TestJson::of(QVariantList{row->data(AlarmModel::scheduleRole), row->data(AlarmModel::triggerTypeRole),
                                       row->data(AlarmModel::triggerSourceRole), row->data(AlarmModel::actionTypeRole),
                                       row->data(AlarmModel::actionTargetRole)}),
             QString(R"([["s","success","{}"],"t",[1],["a"],[2]])"));
}

QTEST_MAIN(tst_AlarmMessageParser)
#include "tst_alarmmessageparser.moc"
