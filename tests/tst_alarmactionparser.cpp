#include <QJsonDocument>
#include <QtTest>

#include "AlarmActionParser.h"
#include "FakeFramework.h"
#include "PluginAlarmManager.h"
#include "TestData.h"
#include "TestJson.h"
#include "XML2Json.h"
#include "stdafx.h"

using namespace ActionParserCommon;

// The action codecs: which codec the factory picks, what each reads out of an <Action> (the targets'
// display names come from the manager's peers) and what it writes back. The codecs write fewer fields
// than they read; the encode rows pin which.
class tst_AlarmActionParser : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void parserByModelType_data();
    void parserByModelType();
    void decode_data();
    void decode();
    void encode_data();
    void encode();

private:
    FakeFramework m_framework;
    int m_handle = 0;
    PluginAlarmManager m_manager;
};

namespace {

const QString noCodec = QStringLiteral("no codec");

// The action type, then one line per target, so that a failure names the differing target.
QStringList rendered(const QVariantMap& model)
{
    QStringList lines{model.value(QStringLiteral("actionType")).toString()};
    for (const QVariant& target : model.value(QStringLiteral("actionTarget")).toList())
        lines.append(TestJson::of(target));
    return lines;
}

// "Type\n{target}\n{target}" with the targets written as JSON in any key order.
QStringList expectedLines(const QString& text)
{
    QStringList lines = text.split(QLatin1Char('\n'));
    for (qsizetype i = 1; i < lines.size(); ++i)
        lines[i] = TestJson::normalised(lines.at(i).toUtf8().constData());
    return lines;
}

QString action(const QString& inner)
{
    return QStringLiteral("<Action>%1</Action>").arg(inner);
}

QString notification(const QString& type, const QString& body)
{
    return action(QStringLiteral("<ClientNotification><Type>%1</Type>%2</ClientNotification>").arg(type, body));
}

QString popupWritten(const QString& flag, const QString& cameras)
{
    return QStringLiteral("<Action><ClientNotification><Type>Popup Window</Type><PopupWindow><Size>Large</Size>"
                          "<ShowTime>5</ShowTime><AutoClose>false</AutoClose><IncludeTriggerCam>%1</IncludeTriggerCam>"
                          "%2</PopupWindow></ClientNotification></Action>")
        .arg(flag, cameras);
}

} // namespace

void tst_AlarmActionParser::initTestCase()
{
    auto& devices = m_framework.deviceTree.deviceTree;
    devices["cam1"]["nameRole"] = "Lobby";
    devices["cam2"]["nameRole"] = "Car park";
    devices["io7"]["nameRole"] = "Door box";
    devices["io7"]["doNameListRole"] = QStringList{"Siren", "Gate"};
    m_framework.userRoles.roleNames[3] = "Operators";
    m_framework.userRoles.roleNames[5] = "Guards";
    QVERIFY(m_manager.InitialPluginBase(nullptr, &m_handle, &m_framework));
}

void tst_AlarmActionParser::parserByModelType_data()
{
    QTest::addColumn<QString>("actionType");
    QTest::addColumn<QString>("codec");

    for (const QString& type : {ACTION_TYPE_SENDMAIL, ACTION_TYPE_SMS, ACTION_TYPE_HTTP, ACTION_TYPE_RECORDING, ACTION_TYPE_PRESET,
                                ACTION_TYPE_SETDO, ACTION_TYPE_CLIENTNOTIFY_GOTO_LIVESTREAM, ACTION_TYPE_CLIENTNOTIFY_GOTO_EMAP,
                                ACTION_TYPE_CLIENTNOTIFY_SOUND_THE_ALARM, ACTION_TYPE_ADDBOOKMARK})
        QTest::addRow("%s has its codec", qPrintable(type)) << type << type;
    // IP audio and mobile notification are reached only through the <Action> element.
    for (const QString& type : {ACTION_TYPE_PLAYIPAUDIO, ACTION_TYPE_MOBILENOTIFICATION, ACTION_TYPE_CLIENTNOTIFY, ACTION_TYPE_FTP,
                                ACTION_TYPE_LAUNCH_PROGRAM, QString(), QStringLiteral("sendmail")})
        QTest::addRow("%s has none", qPrintable(type)) << type << noCodec;
}

void tst_AlarmActionParser::parserByModelType()
{
    QFETCH(QString, actionType);
    QFETCH(QString, codec);
    const QSharedPointer<IActionParser> parser = ActionParserFactory::GetActionParser(actionType);
    QCOMPARE(parser ? parser->XmlToActionModel(QVariant(), nullptr).value("actionType").toString() : noCodec, codec);
}

void tst_AlarmActionParser::decode_data()
{
    QTest::addColumn<QString>("actionXml");
    QTest::addColumn<bool>("hasManager");
    QTest::addColumn<QString>("expected");

    // Each kind's document beside the targets it decodes to: the action type, then one JSON line per target.
    for (const char* kind : {"sendmail", "sms", "http", "recording", "preset", "setdo", "popup", "emap", "sound", "bookmark", "playipaudio", "mobile"})
        QTest::addRow("%s document", kind) << TestData::text(QStringLiteral("action_%1.xml").arg(kind)) << true
                                           << TestData::text(QStringLiteral("action_%1.expected").arg(kind)).trimmed();
    QTest::newRow("mail without cc, one snapshot camera")
        << action("<SendMail><To>b</To><SnapshotCameraList><Camera>cam2</Camera></SnapshotCameraList></SendMail>") << true
        << R"(SendMail
{"target":"b","action":"","senderName":"","from":"","cc":"","subject":"","content":"","snapshotCameraList":["cam2"]})";
    QTest::newRow("http post false is get") << action("<HTTP><Post>false</Post></HTTP>") << true << R"(HTTP
{"target":"GET Method","action":"","needAuth":"","user":"","pwd":"","post":false,"contentType":"","httpContent":""})";
    QTest::newRow("output number not a number is output 0, without manager no names")
        << action("<SetDO><Entry><Name>io7</Name><DO><Idx>x</Idx><Val>1</Val><Period>abc</Period></DO></Entry></SetDO>") << false
        << R"(SetDO
{"target":"","action":"SetDO","index":"DO-0","value":"1","period":0,"camId":"io7","ioIndex":0})";
    QTest::newRow("popup: trigger camera written as 1 is not set")
        << notification("Popup Window", "<PopupWindow><IncludeTriggerCam>1</IncludeTriggerCam><Cam>cam2</Cam></PopupWindow>") << true
        << R"(ClientNotificationGotoLiveStream
{"target":"Car park","action":"","camId":"cam2","includeTriggerCam":false})";
    QTest::newRow("audio file id not a number is 0")
        << action("<PlayIPAudio><IPAudioInfo><IPAudioId>11</IPAudioId><AudioFileId>abc</AudioFileId></IPAudioInfo></PlayIPAudio>")
        << true << R"(PlayIPAudio
{"target":"","action":"","fileId":0,"ipAudioId":11})";
    QTest::newRow("push to all ignores the roles")
        << action("<MobileNotification><PushInfo><PushAll>true</PushAll><RoleId>3</RoleId><RoleId>5</RoleId></PushInfo></MobileNotification>")
        << true << R"(MobileNotification
{"target":"All roles","action":"","pushAll":true})";
    QTest::newRow("push without role is role 0")
        << action("<MobileNotification><PushInfo/></MobileNotification>") << true << R"(MobileNotification
{"target":"Customize","action":"","pushAll":false,"roleId":0})";
    QTest::newRow("list action without entries has no targets") << action("<Recording/>") << true << "Recording";

    // The <Action> element picks the codec: the first known child in a fixed order wins.
    QTest::newRow("mail wins over sms") << action("<SMS><PhoneNum>1</PhoneNum></SMS><SendMail><To>m</To></SendMail>") << true
                                        << R"(SendMail
{"target":"m","action":"","senderName":"","from":"","cc":"","subject":"","content":"","snapshotCameraList":[]})";
    QTest::newRow("set do wins over notification") << action("<ClientNotification><Type>GoToEMap</Type></ClientNotification><SetDO/>") << true << "SetDO";
    QTest::newRow("notification wins over bookmark") << action("<AddBookmark/><ClientNotification><Type>SoundTheAlarm</Type></ClientNotification>") << true
                                                     << "ClientNotificationSoundTheAlarm";
    QTest::newRow("unknown notification type stops the search") << action("<ClientNotification><Type>ShowMessage</Type></ClientNotification><AddBookmark/>") << true << noCodec;
    QTest::newRow("notification type compared case-sensitively") << notification("popup window", {}) << true << noCodec;
    QTest::newRow("ftp has no codec") << action("<FTP><Server>10.0.0.9</Server></FTP>") << true << noCodec;
    QTest::newRow("launch program has no codec") << action("<LaunchProgram/>") << true << noCodec;
}

void tst_AlarmActionParser::decode()
{
    QFETCH(QString, actionXml);
    QFETCH(bool, hasManager);
    QFETCH(QString, expected);
    const QVariant element = XML2Json::parse(actionXml).toMap().value("Action");
    const QSharedPointer<IActionParser> parser = ActionParserFactory::GetActionParser(element.toMap());
    const QStringList decoded =
        parser ? rendered(parser->XmlToActionModel(element, hasManager ? &m_manager : nullptr)) : QStringList{noCodec};
    QCOMPARE(decoded, expectedLines(expected));
}

void tst_AlarmActionParser::encode_data()
{
    QTest::addColumn<QString>("actionType");
    QTest::addColumn<QString>("targets"); // JSON
    QTest::addColumn<QString>("xml");

    QTest::newRow("mail: first target only, template order, no escaping, later values fill earlier markers")
        << ACTION_TYPE_SENDMAIL
        << R"([{"senderName":"Desk %6","from":"a@x","target":"g@x","cc":"c@x","subject":"Fire & <smoke>","content":"at 10:00","snapshotCameraList":["cam1"]},
              {"target":"other@x"}])"
        << "<Action><SendMail><SenderName>Desk at 10:00</SenderName><From>a@x</From><To>g@x</To><Cc>c@x</Cc>"
           "<Subject>Fire & <smoke></Subject><MailContent>at 10:00</MailContent></SendMail></Action>";
    QTest::newRow("sms") << ACTION_TYPE_SMS << R"([{"target":"0912","message":"hi"}])"
                         << "<Action><SMS><PhoneNum>0912</PhoneNum><Message>hi</Message></SMS></Action>";
    QTest::newRow("http writes the target as url, no method or body")
        << ACTION_TYPE_HTTP << R"([{"target":"http://h/?a=1","action":"x","needAuth":"true","user":"u","pwd":"p","post":true,"httpContent":"b"}])"
        << "<Action><HTTP><URL>http://h/?a=1</URL><NeedAuth>true</NeedAuth><User>u</User><Pwd>p</Pwd></HTTP></Action>";
    QTest::newRow("recording: cameras back to back, group always written, one-pass markers")
        << ACTION_TYPE_RECORDING << R"([{"target":"Lobby","camId":"cam1","grpId":"2"},{"camId":"cam2"},{"camId":"cam3","grpId":"%2"}])"
        << "<Action><Recording><Cam GrpID=\"2\">cam1</Cam><Cam GrpID=\"\">cam2</Cam><Cam GrpID=\"%2\">cam3</Cam></Recording></Action>";
    QTest::newRow("preset entries back to back")
        << ACTION_TYPE_PRESET << R"([{"camId":"cam1","pos":"3"},{"camId":"a&b","pos":"1"}])"
        << "<Action><PresetLocMove><Entry><Name>cam1</Name><Pos>3</Pos></Entry><Entry><Name>a&b</Name><Pos>1</Pos></Entry>"
           "</PresetLocMove></Action>";
    QTest::newRow("outputs: number under index, the last device names the entry, no period")
        << ACTION_TYPE_SETDO << R"([{"camId":"io7","index":1,"value":"1","period":10},{"camId":"cam1","index":"3","value":"0"}])"
        << "<Action><SetDO><Entry><Name>cam1</Name><DO><Idx>1</Idx><Val>1</Val></DO><DO><Idx>3</Idx><Val>0</Val></DO></Entry>"
           "</SetDO></Action>";
    QTest::newRow("popup: trigger camera known by its text, written as 1; fixed window settings")
        << ACTION_TYPE_CLIENTNOTIFY_GOTO_LIVESTREAM
        << R"([{"target":"Lobby","camId":"cam1","includeTriggerCam":true},{"target":"Event triggering camera","camId":"x"},{"camId":"cam2"}])"
        << popupWritten("1", "<Cam ShowMotion='0'>cam1</Cam><Cam ShowMotion='0'>cam2</Cam>");
    QTest::newRow("popup without targets writes 0") << ACTION_TYPE_CLIENTNOTIFY_GOTO_LIVESTREAM << "[]" << popupWritten("0", {});
    for (const QString& decodeOnly : {ACTION_TYPE_CLIENTNOTIFY_GOTO_EMAP, ACTION_TYPE_CLIENTNOTIFY_SOUND_THE_ALARM, ACTION_TYPE_ADDBOOKMARK,
                                      ACTION_TYPE_PLAYIPAUDIO, ACTION_TYPE_MOBILENOTIFICATION})
        QTest::addRow("%s writes nothing", qPrintable(decodeOnly)) << decodeOnly << R"([{"target":"t","camId":"cam1"}])" << QString();
}

void tst_AlarmActionParser::encode()
{
    QFETCH(QString, actionType);
    QFETCH(QString, targets);
    QFETCH(QString, xml);
    // Notifications are picked by model type; the others by their element, as not all have a model type.
    const QSharedPointer<IActionParser> parser = actionType.startsWith(ACTION_TYPE_CLIENTNOTIFY)
                                                     ? ActionParserFactory::GetActionParser(actionType)
                                                     : ActionParserFactory::GetActionParser(QVariantMap{{actionType, QString()}});
    QVERIFY(parser);
    QCOMPARE(parser->ActionTargetToXml(QJsonDocument::fromJson(targets.toUtf8()).toVariant()), xml);
}

QTEST_MAIN(tst_AlarmActionParser)
#include "tst_alarmactionparser.moc"
