#include <QtTest>

#include "AlarmActionParser.h"
#include "stdafx.h"
#include "tst_alarmactionparser.h"

using namespace ActionParserCommon;
using namespace ActionTest;

// The mail, SMS and HTTP codecs: one target each, written back through fixed templates that carry
// fewer fields than the decoder reads.
class tst_AlarmActionParserMessages : public QObject
{
    Q_OBJECT
private slots:
    void decode_data();
    void decode();
    void encode_data();
    void encode();
    void roundTrip_data();
    void roundTrip();
};

namespace {

QVariantMap mailTarget(const QString& to, const QString& senderName, const QString& from, const QString& cc,
                       const QString& subject, const QString& content, const QVariantList& snapshotCameras)
{
    return {{QStringLiteral("target"), to},
            {QStringLiteral("action"), QString()},
            {QStringLiteral("senderName"), senderName},
            {QStringLiteral("from"), from},
            {QStringLiteral("cc"), cc},
            {QStringLiteral("subject"), subject},
            {QStringLiteral("content"), content},
            {QStringLiteral("snapshotCameraList"), snapshotCameras}};
}

QVariantMap smsTarget(const QString& phoneNumbers, const QString& message)
{
    return {{QStringLiteral("target"), phoneNumbers},
            {QStringLiteral("action"), QString()},
            {QStringLiteral("message"), message}};
}

QVariantMap httpTarget(bool isPost, const QString& url, const QString& needAuth, const QString& user,
                       const QString& pwd, const QString& contentType, const QString& httpContent)
{
    return {{QStringLiteral("target"), isPost ? QStringLiteral("POST Method") : QStringLiteral("GET Method")},
            {QStringLiteral("action"), url},
            {QStringLiteral("needAuth"), needAuth},
            {QStringLiteral("user"), user},
            {QStringLiteral("pwd"), pwd},
            {QStringLiteral("post"), isPost},
            {QStringLiteral("contentType"), contentType},
            {QStringLiteral("httpContent"), httpContent}};
}

QString mailXml(const QString& inner)
{
    return QStringLiteral("<Action><SendMail>%1</SendMail></Action>").arg(inner);
}

QString httpXml(const QString& inner)
{
    return QStringLiteral("<Action><HTTP>%1</HTTP></Action>").arg(inner);
}

const QVariantList noCameras;

} // namespace

void tst_AlarmActionParserMessages::decode_data()
{
    QTest::addColumn<QString>("actionXml");
    QTest::addColumn<QVariantMap>("expected");

    const QString guards = QStringLiteral("guard1@site.example;guard2@site.example");
    QTest::newRow("mail with every field")
        << TestData::text(QStringLiteral("action_sendmail.xml"))
        << model(ACTION_TYPE_SENDMAIL,
                 {mailTarget(guards, QStringLiteral("Alarm server"), QStringLiteral("alarms@site.example"),
                             QStringLiteral("chief@site.example"), QStringLiteral("Motion in the lobby"),
                             QStringLiteral("The lobby camera saw motion."),
                             {QStringLiteral("cam1"), QStringLiteral("cam2")})});
    QTest::newRow("mail without cc has an empty cc")
        << mailXml(QStringLiteral("<From>a@site.example</From><To>b@site.example</To><Subject>s</Subject>"))
        << model(ACTION_TYPE_SENDMAIL, {mailTarget(QStringLiteral("b@site.example"), QString(),
                                                   QStringLiteral("a@site.example"), QString(), QStringLiteral("s"),
                                                   QString(), noCameras)});
    QTest::newRow("one snapshot camera is a one-element list")
        << mailXml(QStringLiteral("<To>b</To><SnapshotCameraList><Camera>cam2</Camera></SnapshotCameraList>"))
        << model(ACTION_TYPE_SENDMAIL,
                 {mailTarget(QStringLiteral("b"), QString(), QString(), QString(), QString(), QString(),
                             {QStringLiteral("cam2")})});
    QTest::newRow("three snapshot cameras keep document order")
        << mailXml(QStringLiteral("<SnapshotCameraList><Camera>c3</Camera><Camera>c1</Camera><Camera>c2</Camera>"
                                  "</SnapshotCameraList>"))
        << model(ACTION_TYPE_SENDMAIL,
                 {mailTarget(QString(), QString(), QString(), QString(), QString(), QString(),
                             {QStringLiteral("c3"), QStringLiteral("c1"), QStringLiteral("c2")})});
    QTest::newRow("snapshot camera with attributes stays a map")
        << mailXml(QStringLiteral("<SnapshotCameraList><Camera GrpID=\"1\">cam1</Camera></SnapshotCameraList>"))
        << model(ACTION_TYPE_SENDMAIL,
                 {mailTarget(QString(), QString(), QString(), QString(), QString(), QString(),
                             {QVariantMap{{QStringLiteral("@GrpID"), QStringLiteral("1")},
                                          {QStringLiteral("#text"), QStringLiteral("cam1")}}})});
    QTest::newRow("empty snapshot camera list has no cameras")
        << mailXml(QStringLiteral("<To>b</To><SnapshotCameraList/>"))
        << model(ACTION_TYPE_SENDMAIL,
                 {mailTarget(QStringLiteral("b"), QString(), QString(), QString(), QString(), QString(), noCameras)});
    QTest::newRow("repeated recipient element reads empty")
        << mailXml(QStringLiteral("<To>a</To><To>b</To><Subject>s</Subject>"))
        << model(ACTION_TYPE_SENDMAIL, {mailTarget(QString(), QString(), QString(), QString(), QStringLiteral("s"),
                                                   QString(), noCameras)});
    QTest::newRow("empty mail element is one empty target")
        << QStringLiteral("<Action><SendMail/></Action>")
        << model(ACTION_TYPE_SENDMAIL,
                 {mailTarget(QString(), QString(), QString(), QString(), QString(), QString(), noCameras)});

    QTest::newRow("sms with numbers and message")
        << TestData::text(QStringLiteral("action_sms.xml"))
        << model(ACTION_TYPE_SMS, {smsTarget(QStringLiteral("+15550100;+15550101"), QStringLiteral("Door forced open"))});
    QTest::newRow("sms without message has an empty message")
        << QStringLiteral("<Action><SMS><PhoneNum>0912</PhoneNum></SMS></Action>")
        << model(ACTION_TYPE_SMS, {smsTarget(QStringLiteral("0912"), QString())});
    QTest::newRow("sms text keeps its blanks")
        << QStringLiteral("<Action><SMS><PhoneNum>0912</PhoneNum><Message> two  blanks </Message></SMS></Action>")
        << model(ACTION_TYPE_SMS, {smsTarget(QStringLiteral("0912"), QStringLiteral(" two  blanks "))});

    QTest::newRow("http post shows the method as target and the url as action")
        << TestData::text(QStringLiteral("action_http.xml"))
        << model(ACTION_TYPE_HTTP,
                 {httpTarget(true, QStringLiteral("http://10.0.0.5:8080/api/alarm?site=2"), QStringLiteral("true"),
                             QStringLiteral("hook"), QStringLiteral("s3cret"), QStringLiteral("application/json"),
                             QStringLiteral("{\"alarm\":\"lobby\"}"))});
    QTest::newRow("http post false is get")
        << httpXml(QStringLiteral("<URL>http://h/x</URL><NeedAuth>false</NeedAuth><Post>false</Post>"))
        << model(ACTION_TYPE_HTTP, {httpTarget(false, QStringLiteral("http://h/x"), QStringLiteral("false"), QString(),
                                               QString(), QString(), QString())});
    QTest::newRow("http without post is get")
        << httpXml(QStringLiteral("<URL>http://h/x</URL>"))
        << model(ACTION_TYPE_HTTP,
                 {httpTarget(false, QStringLiteral("http://h/x"), QString(), QString(), QString(), QString(), QString())});
    QTest::newRow("http post in capitals is post")
        << httpXml(QStringLiteral("<Post>TRUE</Post>"))
        << model(ACTION_TYPE_HTTP, {httpTarget(true, QString(), QString(), QString(), QString(), QString(), QString())});
    QTest::newRow("http need-auth kept as written")
        << httpXml(QStringLiteral("<NeedAuth>1</NeedAuth>"))
        << model(ACTION_TYPE_HTTP,
                 {httpTarget(false, QString(), QStringLiteral("1"), QString(), QString(), QString(), QString())});
    QTest::newRow("repeated post element is get")
        << httpXml(QStringLiteral("<Post>true</Post><Post>true</Post>"))
        << model(ACTION_TYPE_HTTP, {httpTarget(false, QString(), QString(), QString(), QString(), QString(), QString())});
}

void tst_AlarmActionParserMessages::decode()
{
    QFETCH(QString, actionXml);
    QFETCH(QVariantMap, expected);
    const QVariant action = actionOf(actionXml);
    const QSharedPointer<IActionParser> parser = ActionParserFactory::GetActionParser(action.toMap());
    QVERIFY(parser);
    // These codecs never ask the manager.
    QCOMPARE(describeLines(parser->XmlToActionModel(action, nullptr)), describeLines(expected));
}

void tst_AlarmActionParserMessages::encode_data()
{
    QTest::addColumn<QString>("actionType");
    QTest::addColumn<QVariant>("actionTarget");
    QTest::addColumn<QString>("xml");

    const QVariantMap mail = mailTarget(QStringLiteral("guard@site.example"), QStringLiteral("Alarm server"),
                                        QStringLiteral("alarms@site.example"), QStringLiteral("chief@site.example"),
                                        QStringLiteral("Motion"), QStringLiteral("Seen at 10:00"),
                                        {QStringLiteral("cam1")});
    QTest::newRow("mail fills every field in template order")
        << ACTION_TYPE_SENDMAIL << QVariant(QVariantList{mail})
        << QStringLiteral("<Action><SendMail><SenderName>Alarm server</SenderName><From>alarms@site.example</From>"
                          "<To>guard@site.example</To><Cc>chief@site.example</Cc><Subject>Motion</Subject>"
                          "<MailContent>Seen at 10:00</MailContent></SendMail></Action>");
    QVariantMap withoutCc = mail;
    withoutCc.remove(QStringLiteral("cc"));
    QTest::newRow("mail without cc writes an empty cc")
        << ACTION_TYPE_SENDMAIL << QVariant(QVariantList{withoutCc})
        << QStringLiteral("<Action><SendMail><SenderName>Alarm server</SenderName><From>alarms@site.example</From>"
                          "<To>guard@site.example</To><Cc></Cc><Subject>Motion</Subject>"
                          "<MailContent>Seen at 10:00</MailContent></SendMail></Action>");
    QVariantMap withAmpersand = mail;
    withAmpersand[QStringLiteral("subject")] = QStringLiteral("Fire & smoke <lobby>");
    QTest::newRow("mail values are not escaped")
        << ACTION_TYPE_SENDMAIL << QVariant(QVariantList{withAmpersand})
        << QStringLiteral("<Action><SendMail><SenderName>Alarm server</SenderName><From>alarms@site.example</From>"
                          "<To>guard@site.example</To><Cc>chief@site.example</Cc><Subject>Fire & smoke <lobby></Subject>"
                          "<MailContent>Seen at 10:00</MailContent></SendMail></Action>");
    QVariantMap withMarker = mail;
    withMarker[QStringLiteral("senderName")] = QStringLiteral("Desk %6");
    QTest::newRow("marker in an early value is filled by a later one")
        << ACTION_TYPE_SENDMAIL << QVariant(QVariantList{withMarker})
        << QStringLiteral("<Action><SendMail><SenderName>Desk Seen at 10:00</SenderName><From>alarms@site.example</From>"
                          "<To>guard@site.example</To><Cc>chief@site.example</Cc><Subject>Motion</Subject>"
                          "<MailContent>Seen at 10:00</MailContent></SendMail></Action>");
    QTest::newRow("mail writes only the first target")
        << ACTION_TYPE_SENDMAIL << QVariant(QVariantList{mail, withAmpersand})
        << QStringLiteral("<Action><SendMail><SenderName>Alarm server</SenderName><From>alarms@site.example</From>"
                          "<To>guard@site.example</To><Cc>chief@site.example</Cc><Subject>Motion</Subject>"
                          "<MailContent>Seen at 10:00</MailContent></SendMail></Action>");
    QTest::newRow("mail without targets writes empty fields")
        << ACTION_TYPE_SENDMAIL << QVariant(QVariantList())
        << QStringLiteral("<Action><SendMail><SenderName></SenderName><From></From><To></To><Cc></Cc><Subject></Subject>"
                          "<MailContent></MailContent></SendMail></Action>");

    QTest::newRow("sms writes number and message")
        << ACTION_TYPE_SMS << QVariant(QVariantList{smsTarget(QStringLiteral("0912"), QStringLiteral("hi"))})
        << QStringLiteral("<Action><SMS><PhoneNum>0912</PhoneNum><Message>hi</Message></SMS></Action>");
    QTest::newRow("sms without targets writes empty fields")
        << ACTION_TYPE_SMS << QVariant(QVariantList())
        << QStringLiteral("<Action><SMS><PhoneNum></PhoneNum><Message></Message></SMS></Action>");

    const QVariantMap editedHttp{{QStringLiteral("target"), QStringLiteral("http://h/hook?a=1")},
                                 {QStringLiteral("needAuth"), QStringLiteral("true")},
                                 {QStringLiteral("user"), QStringLiteral("hook")},
                                 {QStringLiteral("pwd"), QStringLiteral("s3cret")},
                                 {QStringLiteral("post"), true},
                                 {QStringLiteral("contentType"), QStringLiteral("text/plain")},
                                 {QStringLiteral("httpContent"), QStringLiteral("body")}};
    QTest::newRow("http writes target as url and drops method and body")
        << ACTION_TYPE_HTTP << QVariant(QVariantList{editedHttp})
        << QStringLiteral("<Action><HTTP><URL>http://h/hook?a=1</URL><NeedAuth>true</NeedAuth><User>hook</User>"
                          "<Pwd>s3cret</Pwd></HTTP></Action>");
    QTest::newRow("http decoded target writes its method label as url")
        << ACTION_TYPE_HTTP
        << QVariant(QVariantList{httpTarget(true, QStringLiteral("http://h/x"), QStringLiteral("false"), QString(),
                                            QString(), QString(), QString())})
        << QStringLiteral("<Action><HTTP><URL>POST Method</URL><NeedAuth>false</NeedAuth><User></User><Pwd></Pwd>"
                          "</HTTP></Action>");
    QTest::newRow("http without targets writes empty fields")
        << ACTION_TYPE_HTTP << QVariant(QVariantList())
        << QStringLiteral("<Action><HTTP><URL></URL><NeedAuth></NeedAuth><User></User><Pwd></Pwd></HTTP></Action>");
}

void tst_AlarmActionParserMessages::encode()
{
    QFETCH(QString, actionType);
    QFETCH(QVariant, actionTarget);
    QFETCH(QString, xml);
    const QSharedPointer<IActionParser> parser = ActionParserFactory::GetActionParser(actionType);
    QVERIFY(parser);
    QCOMPARE(parser->ActionTargetToXml(actionTarget), xml);
}

void tst_AlarmActionParserMessages::roundTrip_data()
{
    QTest::addColumn<QString>("actionFile");
    QTest::addColumn<QVariantMap>("expected");

    QTest::newRow("sms comes back whole")
        << QStringLiteral("action_sms.xml")
        << model(ACTION_TYPE_SMS, {smsTarget(QStringLiteral("+15550100;+15550101"), QStringLiteral("Door forced open"))});
    QTest::newRow("mail comes back without snapshot cameras")
        << QStringLiteral("action_sendmail.xml")
        << model(ACTION_TYPE_SENDMAIL,
                 {mailTarget(QStringLiteral("guard1@site.example;guard2@site.example"), QStringLiteral("Alarm server"),
                             QStringLiteral("alarms@site.example"), QStringLiteral("chief@site.example"),
                             QStringLiteral("Motion in the lobby"), QStringLiteral("The lobby camera saw motion."),
                             noCameras)});
    QTest::newRow("http comes back as get with the method label as url")
        << QStringLiteral("action_http.xml")
        << model(ACTION_TYPE_HTTP, {httpTarget(false, QStringLiteral("POST Method"), QStringLiteral("true"),
                                               QStringLiteral("hook"), QStringLiteral("s3cret"), QString(), QString())});
}

void tst_AlarmActionParserMessages::roundTrip()
{
    QFETCH(QString, actionFile);
    QFETCH(QVariantMap, expected);

    // Given a decoded server action
    const QVariant action = actionFromFile(actionFile);
    const QSharedPointer<IActionParser> parser = ActionParserFactory::GetActionParser(action.toMap());
    QVERIFY(parser);
    const QVariantMap decoded = parser->XmlToActionModel(action, nullptr);

    // When its targets are written back unchanged and read again
    const QString written = parser->ActionTargetToXml(decoded.value(QStringLiteral("actionTarget")));
    const QVariantMap reread = parser->XmlToActionModel(actionOf(written), nullptr);

    // Then only the fields the template carries survive
    QCOMPARE(describeLines(reread), describeLines(expected));
}

QTEST_MAIN(tst_AlarmActionParserMessages)
#include "tst_alarmactionparser_messages.moc"
