#include <QtTest>

#include "AlarmMessageParser.h"
#include "XML2Json.h"

// The schedule codec: a rule's "Mapping" frames become one rectangle per frame on the editor's grid of
// days and hours, as exact JSON text.
class tst_AlarmMessageParserSchedule : public QObject
{
    Q_OBJECT
private slots:
    void rectangles_data();
    void rectangles();
};

namespace {

QVariantMap rule(const QString& content)
{
    return XML2Json::parse(QStringLiteral("<Tmcard>%1</Tmcard>").arg(content)).toMap().value(QStringLiteral("Tmcard")).toMap();
}

QString frame(const QString& name, const QString& days, const QString& intervals)
{
    return QStringLiteral("<Ele><Frame><Name>%1</Name><DayList>%2</DayList><Intervals>%3</Intervals></Frame></Ele>")
        .arg(name, days, intervals);
}

QString days(std::initializer_list<const char*> numbers)
{
    QString xml;
    for (const char* number : numbers)
        xml += QStringLiteral("<Ele B=\"%1\"/>").arg(QLatin1String(number));
    return xml;
}

QString interval(int begin, int end)
{
    return QStringLiteral("<Ele B=\"%1\" E=\"%2\"/>").arg(begin).arg(end);
}

QString mapping(const QString& frames)
{
    return QStringLiteral("<Mapping>%1</Mapping>").arg(frames);
}

} // namespace

void tst_AlarmMessageParserSchedule::rectangles_data()
{
    QTest::addColumn<QString>("ruleContent");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("json");

    QTest::newRow("weekdays all day")
        << mapping(frame(QStringLiteral("Weekdays"), days({"2", "3", "4"}), interval(0, 86400))) << "Weekdays"
        << R"({"Rectangles":[{"Bottom":24,"Left":1,"RecordingMode":"Continuous","Right":4,"Top":0}]})";
    QTest::newRow("half hours truncate")
        << mapping(frame(QStringLiteral("Office"), days({"2"}), interval(1800, 5400))) << "Office"
        << R"({"Rectangles":[{"Bottom":1,"Left":1,"RecordingMode":"Continuous","Right":2,"Top":0}]})";
    QTest::newRow("days sorted, gaps spanned")
        << mapping(frame(QStringLiteral("Odd"), days({"5", "1"}), interval(3600, 7200))) << "Odd"
        << R"({"Rectangles":[{"Bottom":2,"Left":0,"RecordingMode":"Continuous","Right":5,"Top":1}]})";
    QTest::newRow("fractional day numbers truncate")
        << mapping(frame(QStringLiteral("Odd"), days({"3.9"}), interval(0, 3600))) << "Odd"
        << R"({"Rectangles":[{"Bottom":1,"Left":2,"RecordingMode":"Continuous","Right":3,"Top":0}]})";
    QTest::newRow("frame without days spans nothing")
        << mapping(frame(QStringLiteral("Empty"), QString(), interval(0, 3600))) << "Empty"
        << R"({"Rectangles":[{"Bottom":1,"Left":0,"RecordingMode":"Continuous","Right":0,"Top":0}]})";
    QTest::newRow("two frames joined by a comma, the last name stands")
        << mapping(frame(QStringLiteral("Early"), days({"1"}), interval(0, 21600))
                   + frame(QStringLiteral("Late"), days({"7"}), interval(79200, 86400)))
        << "Late"
        << R"({"Rectangles":[{"Bottom":6,"Left":0,"RecordingMode":"Continuous","Right":1,"Top":0},{"Bottom":24,"Left":6,"RecordingMode":"Continuous","Right":7,"Top":22}]})";
    QTest::newRow("only the first interval of a frame is read")
        << mapping(frame(QStringLiteral("Split"), days({"2"}), interval(0, 3600) + interval(7200, 10800))) << "Split"
        << R"({"Rectangles":[{"Bottom":1,"Left":1,"RecordingMode":"Continuous","Right":2,"Top":0}]})";
    QTest::newRow("frame without interval starts and ends at hour 0")
        << mapping(frame(QStringLiteral("Open"), days({"2"}), QString())) << "Open"
        << R"({"Rectangles":[{"Bottom":0,"Left":1,"RecordingMode":"Continuous","Right":2,"Top":0}]})";
    QTest::newRow("numbers out of range clamp instead of overflowing")
        << mapping(frame(QStringLiteral("Huge"), days({"1e300", "nan"}), interval(0, 3600))) << "Huge"
        << R"({"Rectangles":[{"Bottom":1,"Left":-1,"RecordingMode":"Continuous","Right":2147483647,"Top":0}]})";
    QTest::newRow("text instead of frames gives one empty rectangle")
        << QStringLiteral("<Mapping><Ele>junk</Ele></Mapping>") << ""
        << R"({"Rectangles":[{"Bottom":0,"Left":0,"RecordingMode":"Continuous","Right":0,"Top":0}]})";
    QTest::newRow("no frames give an empty text") << QStringLiteral("<Mapping/>") << "kept" << "";
    QTest::newRow("rule without mapping leaves both texts as handed in")
        << QStringLiteral("<Name>x</Name>") << "kept" << "kept too";
}

void tst_AlarmMessageParserSchedule::rectangles()
{
    QFETCH(QString, ruleContent);
    QFETCH(QString, name);
    QFETCH(QString, json);
    AlarmMessageParser parser(nullptr);
    QString scheduleName = QStringLiteral("kept");
    QString rectangles = QStringLiteral("kept too");

    parser.ParseTimeframeData(rule(ruleContent), scheduleName, rectangles);

    QCOMPARE(QStringList({scheduleName, rectangles}), QStringList({name, json}));
}

QTEST_MAIN(tst_AlarmMessageParserSchedule)
#include "tst_alarmmessageparser_schedule.moc"
