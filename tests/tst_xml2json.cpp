#include <QJsonDocument>
#include <QtTest>

#include "XML2Json.h"

// The converter is the first thing every server document meets, so it is tested both for the tree shape
// the codecs rely on and for staying linear and bounded on hostile input.
class tst_XML2Json : public QObject
{
    Q_OBJECT
private slots:
    void treeShape_data();
    void treeShape();
    void malformedGivesInvalid_data();
    void malformedGivesInvalid();
    void repeatedSiblingsKeepDocumentOrder();
    void hundredThousandSiblingsStayLinear();
    void deepNestingIsRejectedNotRecursed();
    void nestingUpToTheLimitIsAccepted();
    void transContentAsList_data();
    void transContentAsList();
};

namespace {
QString compactJson(const QVariant& tree)
{
    return QString::fromUtf8(QJsonDocument::fromVariant(tree).toJson(QJsonDocument::Compact));
}
} // namespace

void tst_XML2Json::treeShape_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QString>("json");

    QTest::newRow("root with text only is a string") << "<R>5</R>" << R"({"R":"5"})";
    QTest::newRow("empty element is an empty string") << "<R><A/><B></B></R>" << R"({"R":{"A":"","B":""}})";
    QTest::newRow("attributes and text") << R"(<R><Cam GrpID="2">5</Cam></R>)"
                                         << R"({"R":{"Cam":{"#text":"5","@GrpID":"2"}}})";
    QTest::newRow("attribute without text has no text entry") << R"(<R><Ele B="3"/></R>)" << R"({"R":{"Ele":{"@B":"3"}}})";
    QTest::newRow("single child is a value, not a list") << "<R><Tmcard><Name>x</Name></Tmcard></R>"
                                                           << R"({"R":{"Tmcard":{"Name":"x"}}})";
    QTest::newRow("repeated child is a list") << "<R><B>x</B><B>y</B></R>" << R"({"R":{"B":["x","y"]}})";
    QTest::newRow("repeated maps and strings mix in one list") << "<R><B>x</B><B><C>1</C></B></R>"
                                                                 << R"({"R":{"B":["x",{"C":"1"}]}})";
    QTest::newRow("whitespace between elements is dropped") << "<R>\n  <A>1</A>\n  <B>2</B>\n</R>"
                                                              << R"({"R":{"A":"1","B":"2"}})";
    QTest::newRow("whitespace-only element text is dropped") << "<R><A>   </A></R>" << R"({"R":{"A":""}})";
    QTest::newRow("text keeps its own blanks") << "<R><A> a b </A></R>" << R"({"R":{"A":" a b "}})";
    QTest::newRow("mixed content text goes under #text") << "<R>head<A>1</A>tail</R>"
                                                           << R"({"R":{"#text":"headtail","A":"1"}})";
    QTest::newRow("attributes and children together") << R"(<R v="1"><A>2</A></R>)" << R"({"R":{"@v":"1","A":"2"}})";
    QTest::newRow("predefined and numeric entities are decoded") << "<R>&amp;&lt;&gt;&quot;&apos;&#65;&#x42;</R>"
                                                                   << R"({"R":"&<>\"'AB"})";
    QTest::newRow("CDATA is text") << "<R><![CDATA[<b>x</b>]]></R>" << R"({"R":"<b>x</b>"})";
    QTest::newRow("comments and processing instructions are ignored")
        << "<?xml version=\"1.0\" encoding=\"UTF-8\"?><!-- c --><R><?pi x?><A>1</A><!-- d --></R>"
        << R"({"R":{"A":"1"}})";
    QTest::newRow("percent escapes stay encoded") << "<R><Name>a%20b</Name></R>" << R"({"R":{"Name":"a%20b"}})";
    QTest::newRow("non-ASCII text survives") << QString::fromUtf8("<R><N>Caméra 東門</N></R>")
                                             << QString::fromUtf8(R"({"R":{"N":"Caméra 東門"}})");
    QTest::newRow("namespace prefixes stay part of the tag") << R"(<a:R xmlns:a="u"><a:B>1</a:B></a:R>)"
                                                               << R"({"a:R":{"@xmlns:a":"u","a:B":"1"}})";
}

void tst_XML2Json::treeShape()
{
    QFETCH(QString, xml);
    QFETCH(QString, json);
    const QVariant tree = XML2Json::parse(xml);
    QVERIFY(tree.isValid());
    QCOMPARE(compactJson(tree), json);
}

void tst_XML2Json::malformedGivesInvalid_data()
{
    QTest::addColumn<QString>("xml");

    QTest::newRow("empty text") << QString();
    QTest::newRow("not XML") << "hello";
    QTest::newRow("unclosed tag") << "<R><A>1</R>";
    QTest::newRow("truncated document") << "<R><A>1</A>";
    QTest::newRow("mismatched end tag") << "<R></S>";
    QTest::newRow("two roots") << "<R/><S/>";
    QTest::newRow("text before the root") << "x<R/>";
    QTest::newRow("text after the root") << "<R/>x";
    QTest::newRow("text between comment and root") << "<!-- c -->x<R/>";
    QTest::newRow("NUL character") << QStringLiteral("<R>a") + QChar(0) + QStringLiteral("b</R>");
    QTest::newRow("DOCTYPE") << "<!DOCTYPE R><R/>";
    QTest::newRow("entity declaration")
        << R"(<!DOCTYPE R [<!ENTITY a "aaaaaaaaaa"><!ENTITY b "&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;">]><R>&b;</R>)";
    QTest::newRow("external entity") << R"(<!DOCTYPE R [<!ENTITY x SYSTEM "file:///etc/passwd">]><R>&x;</R>)";
    QString bomb = QStringLiteral("<!DOCTYPE R [<!ENTITY l0 \"lol\">");
    for (int level = 1; level < 10; ++level)
        bomb += QStringLiteral("<!ENTITY l%1 \"%2\">").arg(level).arg(QStringLiteral("&l%1;").arg(level - 1).repeated(10));
    bomb += QStringLiteral("]><R>&l9;</R>");
    QTest::newRow("billion laughs") << bomb;
}

void tst_XML2Json::malformedGivesInvalid()
{
    QFETCH(QString, xml);
    const QVariant tree = XML2Json::parse(xml);
    QVERIFY(!tree.isValid());
    // What every reader does with it: empty values, no crash.
    QVERIFY(tree.toMap().value(QStringLiteral("R")).toMap().isEmpty());
    QVERIFY(XML2Json::transContentAsList(tree.toMap().value(QStringLiteral("R"))).isEmpty());
}

void tst_XML2Json::repeatedSiblingsKeepDocumentOrder()
{
    // Given rules interleaved with other tags, the n-th list entry must stay the n-th rule of the text.
    const QString xml = QStringLiteral("<R><T>1</T><X/><T>2</T><Y/><T>3</T></R>");
    const QVariantMap root = XML2Json::parse(xml).toMap().value(QStringLiteral("R")).toMap();
    QCOMPARE(root.value(QStringLiteral("T")).toList(), QVariantList({"1", "2", "3"}));
}

void tst_XML2Json::hundredThousandSiblingsStayLinear()
{
    const int count = 100000;
    QString xml = QStringLiteral("<R>");
    xml.reserve(count * 16);
    for (int i = 0; i < count; ++i)
        xml += QStringLiteral("<T>%1</T>").arg(i);
    xml += QStringLiteral("</R>");

    const QVariantList list = XML2Json::parse(xml).toMap().value(QStringLiteral("R")).toMap().value(QStringLiteral("T")).toList();
    QCOMPARE(list.size(), count);
    QCOMPARE(list.first().toString(), QStringLiteral("0"));
    QCOMPARE(list.last().toString(), QString::number(count - 1));
}

void tst_XML2Json::deepNestingIsRejectedNotRecursed()
{
    const int depth = 100000;
    const QString xml = QStringLiteral("<a>").repeated(depth) + QStringLiteral("</a>").repeated(depth);
    QVERIFY(!XML2Json::parse(xml).isValid());
}

void tst_XML2Json::nestingUpToTheLimitIsAccepted()
{
    const int depth = XML2Json::maxDepth;
    const QString xml = QStringLiteral("<a>").repeated(depth) + QStringLiteral("x") + QStringLiteral("</a>").repeated(depth);
    QVariant node = XML2Json::parse(xml);
    QVERIFY(node.isValid());
    for (int level = 0; level < depth; ++level)
        node = node.toMap().value(QStringLiteral("a"));
    QCOMPARE(node.toString(), QStringLiteral("x"));

    const QString tooDeep = QStringLiteral("<a>").repeated(depth + 1) + QStringLiteral("</a>").repeated(depth + 1);
    QVERIFY(!XML2Json::parse(tooDeep).isValid());
}

void tst_XML2Json::transContentAsList_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QVariantList>("list");

    const QVariantMap map{{QStringLiteral("a"), QStringLiteral("1")}};
    QTest::newRow("invalid is empty") << QVariant() << QVariantList();
    QTest::newRow("string is one element") << QVariant(QStringLiteral("x")) << QVariantList{QStringLiteral("x")};
    QTest::newRow("empty string is one element") << QVariant(QString()) << QVariantList{QString()};
    QTest::newRow("map is one element") << QVariant(map) << QVariantList{map};
    QTest::newRow("list stays as it is") << QVariant(QVariantList{1, 2}) << QVariantList{1, 2};
}

void tst_XML2Json::transContentAsList()
{
    QFETCH(QVariant, value);
    QFETCH(QVariantList, list);
    QCOMPARE(XML2Json::transContentAsList(value), list);
}

QTEST_GUILESS_MAIN(tst_XML2Json)
#include "tst_xml2json.moc"
