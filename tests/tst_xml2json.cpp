#include <QJsonDocument>
#include <QtTest>

#include "XML2Json.h"

// The converter is the one gate every server document passes, so hostile documents are tested here and
// only here: the parsers above it read an invalid tree as empty values (their tests hold one such row).
class tst_XML2Json : public QObject
{
    Q_OBJECT
private slots:
    void treeShape_data();
    void treeShape();
    void transContentAsList_data();
    void transContentAsList();
};

namespace {

// Big documents are built when their row runs, so that they never coexist.
using DocumentMaker = std::function<QString()>;

QString repeated(int count, const std::function<QString(int)>& piece)
{
    QString text;
    for (int i = 0; i < count; ++i)
        text += piece(i);
    return text;
}

QString nested(int depth, const QString& inner)
{
    return QStringLiteral("<a>").repeated(depth) + inner + QStringLiteral("</a>").repeated(depth);
}

QString entityBomb()
{
    QString declarations = QStringLiteral("<!ENTITY l0 \"lol\">");
    for (int i = 1; i < 10; ++i)
        declarations += QStringLiteral("<!ENTITY l%1 \"%2\">").arg(i).arg(QStringLiteral("&l%1;").arg(i - 1).repeated(10));
    return QStringLiteral("<?xml version=\"1.0\"?><!DOCTYPE R [%1]><R><Name>&l9;</Name></R>").arg(declarations);
}

} // namespace

Q_DECLARE_METATYPE(DocumentMaker)

void tst_XML2Json::treeShape_data()
{
    QTest::addColumn<DocumentMaker>("xml");
    QTest::addColumn<QString>("json"); // "null": the invalid tree every reader takes for empty values

    const auto row = [](const char* name, const QString& xml, const QString& json) {
        QTest::newRow(name) << DocumentMaker([xml] { return xml; }) << json;
    };
    row("root with text only is a string", "<R>5</R>", R"({"R":"5"})");
    row("empty element is an empty string", "<R><A/><B></B></R>", R"({"R":{"A":"","B":""}})");
    row("attributes and text", R"(<R><Cam GrpID="2">5</Cam></R>)", R"({"R":{"Cam":{"#text":"5","@GrpID":"2"}}})");
    row("attribute without text has no text entry", R"(<R><Ele B="3"/></R>)", R"({"R":{"Ele":{"@B":"3"}}})");
    row("single child is a value, not a list", "<R><T><N>x</N></T></R>", R"({"R":{"T":{"N":"x"}}})");
    row("repeated child is a list in document order", "<R><T>1</T><X/><T>2</T><T><C>3</C></T></R>",
        R"({"R":{"T":["1","2",{"C":"3"}],"X":""}})");
    row("whitespace between elements is dropped", "<R>\n  <A>1</A>\n  <B>   </B>\n</R>", R"({"R":{"A":"1","B":""}})");
    row("blank CDATA beside children is dropped", "<R><![CDATA[ ]]><A>1</A></R>", R"({"R":{"A":"1"}})");
    row("text keeps its own blanks", "<R><A> a b </A></R>", R"({"R":{"A":" a b "}})");
    row("mixed content text goes under #text", "<R>head<A>1</A>tail</R>", R"({"R":{"#text":"headtail","A":"1"}})");
    row("attributes and children together", R"(<R v="1"><A>2</A></R>)", R"({"R":{"@v":"1","A":"2"}})");
    row("predefined and numeric entities are decoded", "<R>&amp;&lt;&gt;&quot;&apos;&#65;&#x42;</R>", R"({"R":"&<>\"'AB"})");
    row("CDATA is text", "<R><![CDATA[<b>x</b>]]></R>", R"({"R":"<b>x</b>"})");
    row("comments and processing instructions are ignored",
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?><!-- c --><R><?pi x?><A>1</A><!-- d --></R>", R"({"R":{"A":"1"}})");
    row("percent escapes stay encoded", "<R><N>a%20b</N></R>", R"({"R":{"N":"a%20b"}})");
    row("non-ASCII text survives", QString::fromUtf8("<R><N>Caméra 東門</N></R>"), QString::fromUtf8(R"({"R":{"N":"Caméra 東門"}})"));
    row("namespace prefixes stay part of the tag", R"(<a:R xmlns:a="u"><a:B>1</a:B></a:R>)", R"({"a:R":{"@xmlns:a":"u","a:B":"1"}})");

    for (const char* malformed : {"", "hello", "<R><A>1</R>", "<R><A>1</A>", "<R/><S/>", "x<R/>", "<R/>x", "<!-- c -->x<R/>",
                                  "<!DOCTYPE R><R/>", R"(<!DOCTYPE R [<!ENTITY x SYSTEM "file:///etc/passwd">]><R>&x;</R>)",
                                  // Well-formedness rules the tokeniser alone would let through.
                                  "<R><!-- a -- b --></R>", "<R a='<'/>", "<R a='1' a='2'/>", "<R a='1'b='2'/>", "<R>&u;</R>",
                                  "<R>&#1;</R>", "<R a='&#xFFFE;'/>", "<R>]]></R>", "<R/><?xml version='1.0'?>",
                                  "<?xml version='2.0'?><R/>", "<R:a:b/>", "<R><?a:b?></R>", "<1R/>", "<R>\x01</R>"})
        QTest::addRow("refused: %s", malformed) << DocumentMaker([malformed] { return QString::fromUtf8(malformed); }) << "null";
    QTest::newRow("refused: entity bomb") << DocumentMaker(entityBomb) << "null";
    QTest::newRow("refused: NUL character") << DocumentMaker([] { return QStringLiteral("<R>a") + QChar(0) + "b</R>"; }) << "null";
    QTest::newRow("refused: 100 000-deep nesting") << DocumentMaker([] { return nested(100000, {}); }) << "null";
    QTest::newRow("refused: one level beyond the limit")
        << DocumentMaker([] { return nested(XML2Json::maxDepth + 1, {}); }) << "null";
    QTest::newRow("nesting up to the limit is read")
        << DocumentMaker([] { return nested(XML2Json::maxDepth, "x"); })
        << nested(XML2Json::maxDepth, QStringLiteral("\"x\"")).replace("</a>", "}").replace("<a>", R"({"a":)");
    QTest::newRow("100 000 attributes on one element")
        << DocumentMaker([] { return "<R " + repeated(100000, [](int i) { return QStringLiteral("a%1=\"v\" ").arg(i, 6, 10, QChar('0')); }) + "/>"; })
        << QStringLiteral("{\"R\":{%1}}").arg(repeated(100000, [](int i) { return QStringLiteral("\"@a%1\":\"v\",").arg(i, 6, 10, QChar('0')); }).chopped(1));
    QTest::newRow("100 000 repeated siblings stay in order, a single one stays single")
        << DocumentMaker([] { return "<R><X>once</X>" + repeated(100000, [](int i) { return QStringLiteral("<T>%1</T>").arg(i); }) + "</R>"; })
        << QStringLiteral("{\"R\":{\"T\":[%1],\"X\":\"once\"}}").arg(repeated(100000, [](int i) { return QStringLiteral("\"%1\",").arg(i); }).chopped(1));
}

void tst_XML2Json::treeShape()
{
    QFETCH(DocumentMaker, xml);
    QFETCH(QString, json);
    const QVariant tree = XML2Json::parse(xml());
    QCOMPARE(json == "null" ? QString("null") : QString::fromUtf8(QJsonDocument::fromVariant(tree).toJson(QJsonDocument::Compact)),
             json);
    QCOMPARE(tree.isValid(), json != "null");
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
