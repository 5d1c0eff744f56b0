#include <QRandomGenerator>
#include <QtTest>

#include "AlarmMessageParser.h"
#include "TestData.h"

// The rows keep each rule's TriggerList and ActionList as the text QDomNode::save writes. The parser gets
// them from one streaming pass; these tests hold that pass to the DOM, byte for byte.
class tst_AlarmMessageParserXmlTexts : public QObject
{
    Q_OBJECT
private slots:
    void streamingPassEqualsTheDom_data();
    void streamingPassEqualsTheDom();
    void streamingPassEqualsTheDomOnRandomDocuments();
    void listsAreIndentedBelowTheirStartTag();
    void tooDeepDocumentGivesNoTexts();
};

namespace {

QString joined(const QList<AlarmMessageParser::RuleXmlTexts>& texts)
{
    QString result;
    for (qsizetype i = 0; i < texts.size(); ++i)
        result += QStringLiteral("#%1 trigger[%2] action[%3]\n").arg(i).arg(texts.at(i).triggerXml, texts.at(i).actionXml);
    return result;
}

QString oneRule(const QString& content)
{
    return QStringLiteral("<GetEvtTmcardRes><Tmcard><TmcardID>1</TmcardID>%1</Tmcard></GetEvtTmcardRes>").arg(content);
}

// Random documents built from every kind of node the DOM keeps, at random depths, in random order.
class RandomDocument
{
public:
    explicit RandomDocument(quint32 seed)
        : m_random(seed)
    {
    }

    QString text()
    {
        QString xml = QStringLiteral("<GetEvtTmcardRes>");
        const int rules = 1 + bounded(4);
        for (int i = 0; i < rules; ++i)
            xml += rule(0);
        xml += QStringLiteral("</GetEvtTmcardRes>");
        if (bounded(8) == 0)
            xml.truncate(bounded(int(xml.size())));
        return xml;
    }

private:
    int bounded(int limit) { return int(m_random.bounded(limit)); }

    QString rule(int depth)
    {
        QString xml = QStringLiteral("<Tmcard>") + maybeText();
        const int children = bounded(5);
        for (int i = 0; i < children; ++i) {
            switch (bounded(4)) {
            case 0:
                xml += element(QStringLiteral("TriggerList"), depth + 1);
                break;
            case 1:
                xml += element(QStringLiteral("ActionList"), depth + 1);
                break;
            default:
                xml += node(depth + 1);
            }
            xml += maybeText();
        }
        return xml + QStringLiteral("</Tmcard>");
    }

    QString element(const QString& name, int depth)
    {
        QString xml = QLatin1Char('<') + name + attributes();
        const int children = depth > 5 ? 0 : bounded(5);
        if (children == 0 && bounded(2) == 0)
            return xml + QStringLiteral("/>");
        xml += QLatin1Char('>');
        for (int i = 0; i < children; ++i)
            xml += node(depth + 1);
        return xml + QStringLiteral("</") + name + QLatin1Char('>');
    }

    QString node(int depth)
    {
        static const QStringList names = {QStringLiteral("CamEventTrigger"), QStringLiteral("Action"),
                                          QStringLiteral("Cam"), QStringLiteral("x:Ns"), QStringLiteral("E")};
        switch (bounded(9)) {
        case 0:
            return QStringLiteral("<!--") + pick({QStringLiteral(" note "), QStringLiteral("a<b&c"), QString()}) + QStringLiteral("-->");
        case 1:
            return QStringLiteral("<![CDATA[") + pick({QStringLiteral("raw <x> & \"q\""), QStringLiteral("  "), QString()}) + QStringLiteral("]]>");
        case 2:
        case 3:
            return textPiece();
        case 4:
            return depth < 4 ? rule(depth) : textPiece();
        default:
            return element(names.at(bounded(int(names.size()))), depth);
        }
    }

    QString attributes()
    {
        QString xml;
        const int count = bounded(4) == 0 ? 1 + bounded(6) : 0;
        for (int i = 0; i < count; ++i) {
            xml += QStringLiteral(" a%1=").arg(i) + (bounded(2) ? QStringLiteral("\"") : QStringLiteral("'"));
            xml += pick({QStringLiteral("2"), QStringLiteral("&amp;&lt;&gt;&quot;"), QStringLiteral("x&#10;y&#9;z&#13;"),
                         QStringLiteral("tab\there"), QStringLiteral("é ü"), QString()});
            xml += xml.at(xml.lastIndexOf(QLatin1Char('=')) + 1);
        }
        return xml;
    }

    QString textPiece()
    {
        return pick({QStringLiteral("5"), QStringLiteral("  padded  "), QStringLiteral("a &amp; b &lt; c > d ]]&gt; \"q\" 'a'"),
                     QStringLiteral("line\r\nbreak"), QStringLiteral("cr&#13;ref"), QStringLiteral("&#160;"),
                     QStringLiteral("\n    "), QStringLiteral("%20encoded%25"), QStringLiteral("日本")});
    }

    QString maybeText() { return bounded(3) == 0 ? textPiece() : QString(); }

    QString pick(std::initializer_list<QString> choices)
    {
        return *(choices.begin() + bounded(int(choices.size())));
    }

    QRandomGenerator m_random;
};

} // namespace

void tst_AlarmMessageParserXmlTexts::streamingPassEqualsTheDom_data()
{
    QTest::addColumn<QString>("xml");
    QTest::newRow("realistic list") << TestData::text(QStringLiteral("alarmlist_three_rules.xml"));
    QTest::newRow("every trigger kind") << TestData::text(QStringLiteral("alarmlist_every_trigger.xml"));
    QTest::newRow("every action kind") << TestData::text(QStringLiteral("alarmlist_every_action.xml"));
    QTest::newRow("empty lists written both ways") << oneRule(QStringLiteral("<TriggerList/><ActionList></ActionList>"));
    QTest::newRow("missing lists give empty texts") << oneRule(QStringLiteral("<Name>x</Name>"));
    QTest::newRow("only the first list counts")
        << oneRule(QStringLiteral("<TriggerList><A>1</A></TriggerList><TriggerList><B>2</B></TriggerList>"));
    QTest::newRow("attributes escaped")
        << oneRule(QStringLiteral("<ActionList><Cam GrpID=\"a&amp;&quot;'&lt;&gt;\" X='&#10;&#9;&#13;'>7</Cam></ActionList>"));
    QTest::newRow("many attributes keep the DOM's order")
        << oneRule(QStringLiteral("<ActionList><Ele B=\"1\" E=\"2\" F=\"3\" G=\"4\" H=\"5\" I=\"6\" J=\"7\"/></ActionList>"));
    QTest::newRow("text escaped")
        << oneRule(QStringLiteral("<TriggerList><V>a &amp; b &lt; c > d ]]&gt; \"q\" &#13;</V></TriggerList>"));
    QTest::newRow("blank text dropped, CDATA kept")
        << oneRule(QStringLiteral("<TriggerList> <A>  </A><B><![CDATA[ <raw> ]]></B><C><![CDATA[  ]]></C><D>&#160;</D></TriggerList>"));
    QTest::newRow("mixed content stays on one line")
        << oneRule(QStringLiteral("<TriggerList><Rule>DOOR<Latency>3</Latency>OPEN<!--c--><X/>tail</Rule></TriggerList>"));
    QTest::newRow("comments indented like elements")
        << oneRule(QStringLiteral("<ActionList><!-- first --><Action/><!--last--></ActionList>"));
    QTest::newRow("list after text is not indented") << oneRule(QStringLiteral("text<TriggerList><A/></TriggerList>tail"));
    QTest::newRow("list before text has no line break") << oneRule(QStringLiteral("<ActionList/>tail"));
    QTest::newRow("rules nested in a list are rules too")
        << oneRule(QStringLiteral("<TriggerList><Tmcard><TriggerList><Q>1</Q></TriggerList><ActionList/></Tmcard></TriggerList>"));
    QTest::newRow("namespaced names kept as written")
        << oneRule(QStringLiteral("<TriggerList xmlns:n=\"urn:x\"><n:A n:b=\"1\">v</n:A></TriggerList>"));
    QTest::newRow("text breaking off keeps what was read")
        << QStringLiteral("<GetEvtTmcardRes><Tmcard><TriggerList><A>1</A><B><C>2</C>");
    QTest::newRow("bad character ends the document")
        << oneRule(QStringLiteral("<TriggerList><A>1</A><B>&#1;</B></TriggerList>"));
    QTest::newRow("not XML at all") << QStringLiteral("Tmcard TriggerList");
    QTest::newRow("empty text") << QString();
    QTest::newRow("processing instruction handed to the DOM")
        << oneRule(QStringLiteral("<TriggerList><A/><?pi data?></TriggerList>"));
    QTest::newRow("processing instruction outside the lists")
        << oneRule(QStringLiteral("<?pi data?><TriggerList/>"));
    QTest::newRow("declared entities expanded")
        << QStringLiteral("<!DOCTYPE R [<!ENTITY e \"expanded\">]><R><Tmcard><TriggerList><A>&e;</A></TriggerList></Tmcard></R>");
    QTest::newRow("root element is a rule") << QStringLiteral("<Tmcard><ActionList><A/></ActionList></Tmcard>");
}

void tst_AlarmMessageParserXmlTexts::streamingPassEqualsTheDom()
{
    QFETCH(QString, xml);
    QCOMPARE(joined(AlarmMessageParser::RuleXmlTextsOf(xml)), joined(AlarmMessageParser::RuleXmlTextsThroughDom(xml)));
}

void tst_AlarmMessageParserXmlTexts::streamingPassEqualsTheDomOnRandomDocuments()
{
    for (quint32 seed = 1; seed <= 1500; ++seed) {
        const QString xml = RandomDocument(seed).text();
        const QString streamed = joined(AlarmMessageParser::RuleXmlTextsOf(xml));
        const QString throughDom = joined(AlarmMessageParser::RuleXmlTextsThroughDom(xml));
        if (streamed != throughDom)
            QFAIL(qPrintable(QStringLiteral("seed %1\n%2\nstreamed:\n%3\nDOM:\n%4").arg(seed).arg(xml, streamed, throughDom)));
    }
}

void tst_AlarmMessageParserXmlTexts::listsAreIndentedBelowTheirStartTag()
{
    const QString xml = oneRule(QStringLiteral("<TriggerList><CamEventTrigger><CamName>cam1</CamName></CamEventTrigger></TriggerList>"));
    const QString expected = QStringLiteral("    <TriggerList>\n"
                                            "        <CamEventTrigger>\n"
                                            "            <CamName>cam1</CamName>\n"
                                            "        </CamEventTrigger>\n"
                                            "    </TriggerList>\n");
    QCOMPARE(AlarmMessageParser::RuleXmlTextsOf(xml).value(0).triggerXml, expected);
}

void tst_AlarmMessageParserXmlTexts::tooDeepDocumentGivesNoTexts()
{
    // Indentation grows with depth, so the texts of a hostile nesting would grow with its square.
    const int depth = 100000;
    const QString xml = oneRule(QStringLiteral("<TriggerList>") + QStringLiteral("<a>").repeated(depth)
                                + QStringLiteral("</a>").repeated(depth) + QStringLiteral("</TriggerList>"));
    QCOMPARE(AlarmMessageParser::RuleXmlTextsOf(xml).size(), 0);
}

QTEST_MAIN(tst_AlarmMessageParserXmlTexts)
#include "tst_alarmmessageparser_xmltexts.moc"
