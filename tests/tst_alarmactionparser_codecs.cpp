#include <QtTest>

#include "AlarmActionParser.h"
#include "stdafx.h"
#include "tst_alarmactionparser.h"

using namespace ActionParserCommon;
using namespace ActionTest;

// Each codec's own fields: what it reads out of an <Action>, with and without the manager that names
// devices and roles, and what it writes back. Mail, SMS and HTTP write fixed templates that carry fewer
// fields than they read; recording, preset and output codecs write runs of entries; of the notification
// codecs only the popup writes anything.
class tst_AlarmActionParserCodecs : public QObject
{
    Q_OBJECT
private slots:
    void decode_data();
    void decode();
    void encode_data();
    void encode();
    void roundTrip_data();
    void roundTrip();
    void setDoRoundTripNeedsOutputNumberUnderIndex();
    void transformTargetName_data();
    void transformTargetName();

private:
    ManagerWithPeers m_manager;
};

namespace {

QVariantMap mailTarget(const QString& to, const QString& senderName, const QString& from, const QString& cc,
                       const QString& subject, const QString& content, const QVariantList& snapshotCameras)
{
    return {{"target", to}, {"action", QString()}, {"senderName", senderName}, {"from", from},
            {"cc", cc},     {"subject", subject},  {"content", content},       {"snapshotCameraList", snapshotCameras}};
}

QVariantMap smsTarget(const QString& phoneNumbers, const QString& message)
{
    return {{"target", phoneNumbers}, {"action", QString()}, {"message", message}};
}

QVariantMap httpTarget(bool isPost, const QString& url, const QString& needAuth, const QString& user,
                       const QString& pwd, const QString& contentType, const QString& httpContent)
{
    return {{"target", isPost ? "POST Method" : "GET Method"},
            {"action", url},
            {"needAuth", needAuth},
            {"user", user},
            {"pwd", pwd},
            {"post", isPost},
            {"contentType", contentType},
            {"httpContent", httpContent}};
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

QVariantMap recordingTarget(const QString& name, const QString& camId, const QString& grpId)
{
    return {{"target", name}, {"action", QString()}, {"camId", camId}, {"grpId", grpId}};
}

QVariantMap presetTarget(const QString& name, const QString& camId, const QString& pos)
{
    return {{"target", name}, {"action", QString()}, {"camId", camId}, {"pos", pos}};
}

QVariantMap outputTarget(const QString& deviceName, const QString& outputName, const QString& value, int period,
                         const QString& deviceId, int ioIndex)
{
    return {{"target", deviceName}, {"action", "SetDO"}, {"index", outputName}, {"value", value},
            {"period", period},     {"camId", deviceId}, {"ioIndex", ioIndex}};
}

// What the editor hands the encoder: the output number under "index".
QVariantMap editedOutput(const QString& deviceId, const QVariant& index, const QString& value)
{
    return {{"camId", deviceId}, {"index", index}, {"value", value}};
}

QString setDoXml(const QString& entries)
{
    return QStringLiteral("<Action><SetDO>%1</SetDO></Action>").arg(entries);
}

const QString triggerCamera = "Event triggering camera";

QVariantMap popupTarget(const QString& name, const QString& camId, bool isTriggerCamera)
{
    return {{"target", name}, {"action", QString()}, {"camId", camId}, {"includeTriggerCam", isTriggerCamera}};
}

QVariantMap triggerCameraTarget()
{
    return popupTarget(triggerCamera, {}, true);
}

QVariantMap mapTarget(const QString& name, const QString& mapId, const QVariantList& cameras)
{
    return {{"target", name}, {"mapId", mapId}, {"cameraList", cameras}, {"action", QString()}};
}

QVariantMap soundTarget(const QString& soundName)
{
    return {{"target", soundName}, {"action", QString()}};
}

QVariantMap bookmarkTarget(const QStringList& fields)
{
    const QStringList keys{"target", "camId", "locId", "duration", "creator", "description", "group"};
    QVariantMap target{{"action", QString()}};
    for (int index = 0; index < keys.size(); ++index)
        target.insert(keys.at(index), fields.value(index));
    return target;
}

QVariantMap audioTarget(const QString& deviceName, const QString& fileName, int fileId, int ipAudioId)
{
    return {{"target", deviceName}, {"action", fileName}, {"fileId", fileId}, {"ipAudioId", ipAudioId}};
}

QVariantMap roleTarget(const QString& roleName, int roleId)
{
    return {{"target", roleName}, {"action", QString()}, {"pushAll", false}, {"roleId", roleId}};
}

QVariantMap everyRoleTarget()
{
    return {{"target", "All roles"}, {"action", QString()}, {"pushAll", true}};
}

QString popupXml(const QString& popupWindow)
{
    return QStringLiteral("<Action><ClientNotification><Type>Popup Window</Type>%1</ClientNotification></Action>")
        .arg(popupWindow);
}

QString notificationXml(const QString& type, const QString& content)
{
    return QStringLiteral("<Action><ClientNotification><Type>%1</Type>%2</ClientNotification></Action>")
        .arg(type, content);
}

QString pushXml(const QString& pushInfo)
{
    return QStringLiteral("<Action><MobileNotification><PushInfo>%1</PushInfo></MobileNotification></Action>")
        .arg(pushInfo);
}

QString popupWritten(const QString& flag, const QString& cameras)
{
    return QStringLiteral("<Action><ClientNotification><Type>Popup Window</Type><PopupWindow><Size>Large</Size>"
                          "<ShowTime>5</ShowTime><AutoClose>false</AutoClose><IncludeTriggerCam>%1</IncludeTriggerCam>"
                          "%2</PopupWindow></ClientNotification></Action>")
        .arg(flag, cameras);
}

} // namespace

void tst_AlarmActionParserCodecs::decode_data()
{
    QTest::addColumn<QString>("actionXml");
    QTest::addColumn<bool>("hasManager");
    QTest::addColumn<QVariantMap>("expected");

    const QString guards = "guard1@site.example;guard2@site.example";
    QTest::newRow("mail with every field")
        << TestData::text("action_sendmail.xml") << true
        << model(ACTION_TYPE_SENDMAIL,
                 {mailTarget(guards, "Alarm server", "alarms@site.example", "chief@site.example", "Motion in the lobby",
                             "The lobby camera saw motion.", {"cam1", "cam2"})});
    QTest::newRow("mail without cc has an empty cc")
        << mailXml("<From>a@site.example</From><To>b@site.example</To><Subject>s</Subject>") << true
        << model(ACTION_TYPE_SENDMAIL, {mailTarget("b@site.example", {}, "a@site.example", {}, "s", {}, noCameras)});
    QTest::newRow("one snapshot camera is a one-element list")
        << mailXml("<To>b</To><SnapshotCameraList><Camera>cam2</Camera></SnapshotCameraList>") << true
        << model(ACTION_TYPE_SENDMAIL, {mailTarget("b", {}, {}, {}, {}, {}, {"cam2"})});
    QTest::newRow("snapshot camera with attributes stays a map")
        << mailXml("<SnapshotCameraList><Camera GrpID=\"1\">cam1</Camera></SnapshotCameraList>") << true
        << model(ACTION_TYPE_SENDMAIL,
                 {mailTarget({}, {}, {}, {}, {}, {}, {QVariantMap{{"@GrpID", "1"}, {"#text", "cam1"}}})});
    QTest::newRow("empty snapshot camera list has no cameras")
        << mailXml("<To>b</To><SnapshotCameraList/>") << true
        << model(ACTION_TYPE_SENDMAIL, {mailTarget("b", {}, {}, {}, {}, {}, noCameras)});
    QTest::newRow("repeated recipient element reads empty")
        << mailXml("<To>a</To><To>b</To><Subject>s</Subject>") << true
        << model(ACTION_TYPE_SENDMAIL, {mailTarget({}, {}, {}, {}, "s", {}, noCameras)});
    QTest::newRow("empty mail element is one empty target")
        << "<Action><SendMail/></Action>" << true
        << model(ACTION_TYPE_SENDMAIL, {mailTarget({}, {}, {}, {}, {}, {}, noCameras)});

    QTest::newRow("sms with numbers and message")
        << TestData::text("action_sms.xml") << true
        << model(ACTION_TYPE_SMS, {smsTarget("+15550100;+15550101", "Door forced open")});
    QTest::newRow("sms text keeps its blanks")
        << "<Action><SMS><PhoneNum>0912</PhoneNum><Message> two  blanks </Message></SMS></Action>" << true
        << model(ACTION_TYPE_SMS, {smsTarget("0912", " two  blanks ")});

    QTest::newRow("http post shows the method as target and the url as action")
        << TestData::text("action_http.xml") << true
        << model(ACTION_TYPE_HTTP, {httpTarget(true, "http://10.0.0.5:8080/api/alarm?site=2", "true", "hook", "s3cret",
                                               "application/json", "{\"alarm\":\"lobby\"}")});
    QTest::newRow("http without post is get")
        << httpXml("<URL>http://h/x</URL>") << true
        << model(ACTION_TYPE_HTTP, {httpTarget(false, "http://h/x", {}, {}, {}, {}, {})});
    QTest::newRow("http post false is get")
        << httpXml("<Post>false</Post>") << true << model(ACTION_TYPE_HTTP, {httpTarget(false, {}, {}, {}, {}, {}, {})});
    QTest::newRow("http post in capitals is post")
        << httpXml("<Post>TRUE</Post>") << true << model(ACTION_TYPE_HTTP, {httpTarget(true, {}, {}, {}, {}, {}, {})});
    QTest::newRow("http need-auth kept as written")
        << httpXml("<NeedAuth>1</NeedAuth>") << true
        << model(ACTION_TYPE_HTTP, {httpTarget(false, {}, "1", {}, {}, {}, {})});
    QTest::newRow("repeated post element is get")
        << httpXml("<Post>true</Post><Post>true</Post>") << true
        << model(ACTION_TYPE_HTTP, {httpTarget(false, {}, {}, {}, {}, {}, {})});

    QTest::newRow("recording cameras with and without group")
        << TestData::text("action_recording.xml") << true
        << model(ACTION_TYPE_RECORDING,
                 {recordingTarget("Lobby", "cam1", "2"), recordingTarget("Car park", "cam2", "0")});
    QTest::newRow("camera text without attribute is group 0")
        << "<Action><Recording><Cam>7</Cam></Recording></Action>" << true
        << model(ACTION_TYPE_RECORDING, {recordingTarget({}, "7", "0")});
    QTest::newRow("camera with another attribute has an empty group")
        << "<Action><Recording><Cam Stream=\"1\">cam1</Cam></Recording></Action>" << true
        << model(ACTION_TYPE_RECORDING, {recordingTarget("Lobby", "cam1", {})});
    QTest::newRow("recording without cameras has no targets")
        << "<Action><Recording/></Action>" << true << model(ACTION_TYPE_RECORDING, {});
    QTest::newRow("recording without manager has empty names")
        << TestData::text("action_recording.xml") << false
        << model(ACTION_TYPE_RECORDING, {recordingTarget({}, "cam1", "2"), recordingTarget({}, "cam2", "0")});

    QTest::newRow("preset entries in document order")
        << TestData::text("action_preset.xml") << true
        << model(ACTION_TYPE_PRESET, {presetTarget("Lobby", "cam1", "3"), presetTarget("Car park", "cam2", "1")});
    QTest::newRow("preset entry without position")
        << "<Action><PresetLocMove><Entry><Name>cam2</Name></Entry></PresetLocMove></Action>" << true
        << model(ACTION_TYPE_PRESET, {presetTarget("Car park", "cam2", {})});
    QTest::newRow("preset entry as text reads as empty entry")
        << "<Action><PresetLocMove><Entry>cam1</Entry></PresetLocMove></Action>" << true
        << model(ACTION_TYPE_PRESET, {presetTarget({}, {}, {})});
    QTest::newRow("preset without entries has no targets")
        << "<Action><PresetLocMove/></Action>" << true << model(ACTION_TYPE_PRESET, {});
    QTest::newRow("preset without manager has empty names")
        << TestData::text("action_preset.xml") << false
        << model(ACTION_TYPE_PRESET, {presetTarget({}, "cam1", "3"), presetTarget({}, "cam2", "1")});

    const QString doorBox = "Door box";
    const QString io7 = "io7";
    QTest::newRow("two devices with two outputs give four targets")
        << TestData::text("action_setdo.xml") << true
        << model(ACTION_TYPE_SETDO,
                 {outputTarget(doorBox, "Siren", "1", 10, io7, 1), outputTarget(doorBox, "Gate", "0", 0, io7, 2),
                  outputTarget("Lobby", "DO-1", "1", 5, "cam1", 1), outputTarget("Lobby", "DO-3", "0", 5, "cam1", 3)});
    QTest::newRow("output beyond the name list falls back")
        << setDoXml("<Entry><Name>io7</Name><DO><Idx>3</Idx><Val>1</Val></DO></Entry>") << true
        << model(ACTION_TYPE_SETDO, {outputTarget(doorBox, "DO-3", "1", 0, io7, 3)});
    QTest::newRow("output number not a number is output 0")
        << setDoXml("<Entry><Name>io7</Name><DO><Idx>x</Idx><Val>1</Val><Period>abc</Period></DO></Entry>") << true
        << model(ACTION_TYPE_SETDO, {outputTarget(doorBox, "DO-0", "1", 0, io7, 0)});
    QTest::newRow("output number beyond 32 bits is output 0")
        << setDoXml("<Entry><Name>io7</Name><DO><Idx>4294967297</Idx><Val>1</Val></DO></Entry>") << true
        << model(ACTION_TYPE_SETDO, {outputTarget(doorBox, "DO-0", "1", 0, io7, 0)});
    QTest::newRow("device without outputs has no targets")
        << setDoXml("<Entry><Name>io7</Name></Entry>") << true << model(ACTION_TYPE_SETDO, {});
    QTest::newRow("set do without entries has no targets")
        << "<Action><SetDO/></Action>" << true << model(ACTION_TYPE_SETDO, {});
    QTest::newRow("set do without manager uses the output fallback")
        << setDoXml("<Entry><Name>io7</Name><DO><Idx>2</Idx><Val>0</Val><Period>3</Period></DO></Entry>") << false
        << model(ACTION_TYPE_SETDO, {outputTarget({}, "DO-2", "0", 3, io7, 2)});

    const QString popupType = ACTION_TYPE_CLIENTNOTIFY_GOTO_LIVESTREAM;
    QTest::newRow("popup with trigger camera first, then its cameras")
        << TestData::text("action_popup.xml") << true
        << model(popupType,
                 {triggerCameraTarget(), popupTarget("Lobby", "cam1", false), popupTarget("Car park", "cam2", false)});
    QTest::newRow("popup trigger camera written as 1 is not set")
        << popupXml("<PopupWindow><IncludeTriggerCam>1</IncludeTriggerCam><Cam>cam2</Cam></PopupWindow>") << true
        << model(popupType, {popupTarget("Car park", "cam2", false)});
    QTest::newRow("popup trigger camera in capitals is not set")
        << popupXml("<PopupWindow><IncludeTriggerCam>True</IncludeTriggerCam></PopupWindow>") << true
        << model(popupType, {});
    QTest::newRow("popup trigger camera alone")
        << popupXml("<PopupWindow><IncludeTriggerCam>true</IncludeTriggerCam></PopupWindow>") << true
        << model(popupType, {triggerCameraTarget()});
    QTest::newRow("popup camera without attributes is its text")
        << popupXml("<PopupWindow><Cam>cam1</Cam><Cam>cam9</Cam></PopupWindow>") << true
        << model(popupType, {popupTarget("Lobby", "cam1", false), popupTarget({}, "cam9", false)});
    QTest::newRow("popup without window has no targets") << popupXml({}) << true << model(popupType, {});
    QTest::newRow("popup without manager has empty camera names")
        << TestData::text("action_popup.xml") << false
        << model(popupType, {triggerCameraTarget(), popupTarget({}, "cam1", false), popupTarget({}, "cam2", false)});

    const QString mapType = ACTION_TYPE_CLIENTNOTIFY_GOTO_EMAP;
    QTest::newRow("e-maps named by id without their first character")
        << TestData::text("action_emap.xml") << true
        << model(mapType, {mapTarget("Google map", "1{8A2DF5B3-8CDF-41B1-8163-EE2158116606}", {"cam1", "cam2"}),
                           mapTarget("OpenStreetMap", "2{202EE83D-9667-42AD-AED9-5A4C240193FA}", {"cam2"}),
                           mapTarget("12", "312", {})});
    QTest::newRow("e-map cameras keep their attributes")
        << notificationXml("GoToEMap",
                           QStringLiteral("<GoToEMap><MapInfo><MapId>5Yard</MapId><PlayCam Ch=\"1\">cam1</PlayCam>"
                                          "</MapInfo></GoToEMap>"))
        << true << model(mapType, {mapTarget("Yard", "5Yard", {QVariantMap{{"@Ch", "1"}, {"#text", "cam1"}}})});
    QTest::newRow("e-map entry without id is still a target")
        << notificationXml("GoToEMap", "<GoToEMap><MapInfo/></GoToEMap>") << true
        << model(mapType, {mapTarget({}, {}, {})});
    QTest::newRow("e-map without maps has no targets") << notificationXml("GoToEMap", {}) << true << model(mapType, {});

    const QString soundType = ACTION_TYPE_CLIENTNOTIFY_SOUND_THE_ALARM;
    QTest::newRow("sounds in document order") << TestData::text("action_sound.xml") << true
                                              << model(soundType, {soundTarget("Siren.mp3"), soundTarget("Bell.mp3")});
    QTest::newRow("sound without sounds has no targets")
        << notificationXml("SoundTheAlarm", "<SoundTheAlarm/>") << true << model(soundType, {});

    QTest::newRow("bookmark cameras with their stored names")
        << TestData::text("action_bookmark.xml") << true
        << model(ACTION_TYPE_ADDBOOKMARK,
                 {bookmarkTarget({"Lobby entrance", "cam1", "loc1", "30", "admin", "Motion bookmark", "1"}),
                  bookmarkTarget({"Car park", "cam2", "loc1", "60", "admin", "Car park bookmark", "2"})});
    QTest::newRow("bookmark camera with missing fields")
        << "<Action><AddBookmark><CamInfo><CamId>cam1</CamId></CamInfo></AddBookmark></Action>" << true
        << model(ACTION_TYPE_ADDBOOKMARK, {bookmarkTarget({QString(), "cam1"})});
    QTest::newRow("bookmark without cameras has no targets")
        << "<Action><AddBookmark/></Action>" << true << model(ACTION_TYPE_ADDBOOKMARK, {});

    QTest::newRow("audio devices with the file as action")
        << TestData::text("action_playipaudio.xml") << true
        << model(ACTION_TYPE_PLAYIPAUDIO,
                 {audioTarget("Hall speaker", "Evacuate.mp3", 4, 11), audioTarget("Yard horn", "Warning.mp3", 5, 12)});
    QTest::newRow("audio file id not a number is 0")
        << QStringLiteral("<Action><PlayIPAudio><IPAudioInfo><IPAudioId>11</IPAudioId><AudioFileId>abc</AudioFileId>"
                          "</IPAudioInfo></PlayIPAudio></Action>")
        << true << model(ACTION_TYPE_PLAYIPAUDIO, {audioTarget({}, {}, 0, 11)});
    QTest::newRow("audio without devices has no targets")
        << "<Action><PlayIPAudio/></Action>" << true << model(ACTION_TYPE_PLAYIPAUDIO, {});

    const QString pushType = ACTION_TYPE_MOBILENOTIFICATION;
    QTest::newRow("push to two roles in order")
        << TestData::text("action_mobile.xml") << true
        << model(pushType, {roleTarget("Operators", 3), roleTarget("Guards", 5)});
    QTest::newRow("push to all ignores the roles")
        << pushXml("<PushAll>true</PushAll><RoleId>3</RoleId><RoleId>5</RoleId>") << true
        << model(pushType, {everyRoleTarget()});
    QTest::newRow("push all as 1 is all roles")
        << pushXml("<PushAll>1</PushAll>") << true << model(pushType, {everyRoleTarget()});
    QTest::newRow("fixed roles are named without the peer")
        << pushXml("<RoleId>0</RoleId><RoleId>-1</RoleId>") << true
        << model(pushType, {roleTarget("Customize", 0), roleTarget("Administrator", -1)});
    QTest::newRow("absent role is role 0")
        << pushXml("<PushAll>false</PushAll>") << true << model(pushType, {roleTarget("Customize", 0)});
    QTest::newRow("role id not a number or beyond 32 bits is role 0")
        << pushXml("<RoleId>abc</RoleId><RoleId>4294967299</RoleId>") << true
        << model(pushType, {roleTarget("Customize", 0), roleTarget("Customize", 0)});
    QTest::newRow("unknown role has an empty name")
        << pushXml("<RoleId>9</RoleId>") << true << model(pushType, {roleTarget({}, 9)});
    QTest::newRow("roles without manager have empty names")
        << TestData::text("action_mobile.xml") << false << model(pushType, {roleTarget({}, 3), roleTarget({}, 5)});
}

void tst_AlarmActionParserCodecs::decode()
{
    QFETCH(QString, actionXml);
    QFETCH(bool, hasManager);
    QFETCH(QVariantMap, expected);
    const QVariant action = actionOf(actionXml);
    const QSharedPointer<IActionParser> parser = ActionParserFactory::GetActionParser(action.toMap());
    QVERIFY(parser);
    const QVariantMap decoded = parser->XmlToActionModel(action, hasManager ? &m_manager.plugin : nullptr);
    QCOMPARE(lines(decoded), lines(expected));
}

void tst_AlarmActionParserCodecs::encode_data()
{
    QTest::addColumn<QString>("actionType");
    QTest::addColumn<QVariantList>("actionTarget");
    QTest::addColumn<QString>("xml");

    const QVariantMap mail = mailTarget("guard@site.example", "Alarm server", "alarms@site.example",
                                        "chief@site.example", "Motion", "Seen at 10:00", {"cam1"});
    QTest::newRow("mail fills every field in template order")
        << ACTION_TYPE_SENDMAIL << QVariantList{mail}
        << QStringLiteral("<Action><SendMail><SenderName>Alarm server</SenderName><From>alarms@site.example</From>"
                          "<To>guard@site.example</To><Cc>chief@site.example</Cc><Subject>Motion</Subject>"
                          "<MailContent>Seen at 10:00</MailContent></SendMail></Action>");
    QVariantMap withAmpersand = mail;
    withAmpersand["subject"] = "Fire & smoke <lobby>";
    QTest::newRow("mail values are not escaped")
        << ACTION_TYPE_SENDMAIL << QVariantList{withAmpersand}
        << QStringLiteral(
               "<Action><SendMail><SenderName>Alarm server</SenderName><From>alarms@site.example</From>"
               "<To>guard@site.example</To><Cc>chief@site.example</Cc><Subject>Fire & smoke <lobby></Subject>"
               "<MailContent>Seen at 10:00</MailContent></SendMail></Action>");
    QVariantMap withMarker = mail;
    withMarker["senderName"] = "Desk %6";
    QTest::newRow("marker in an early value is filled by a later one")
        << ACTION_TYPE_SENDMAIL << QVariantList{withMarker}
        << QStringLiteral(
               "<Action><SendMail><SenderName>Desk Seen at 10:00</SenderName><From>alarms@site.example</From>"
               "<To>guard@site.example</To><Cc>chief@site.example</Cc><Subject>Motion</Subject>"
               "<MailContent>Seen at 10:00</MailContent></SendMail></Action>");
    QTest::newRow("mail writes only the first target")
        << ACTION_TYPE_SENDMAIL << QVariantList{mail, withAmpersand}
        << QStringLiteral("<Action><SendMail><SenderName>Alarm server</SenderName><From>alarms@site.example</From>"
                          "<To>guard@site.example</To><Cc>chief@site.example</Cc><Subject>Motion</Subject>"
                          "<MailContent>Seen at 10:00</MailContent></SendMail></Action>");
    QTest::newRow("mail without targets writes empty fields")
        << ACTION_TYPE_SENDMAIL << QVariantList()
        << QStringLiteral(
               "<Action><SendMail><SenderName></SenderName><From></From><To></To><Cc></Cc><Subject></Subject>"
               "<MailContent></MailContent></SendMail></Action>");

    QTest::newRow("sms writes number and message")
        << ACTION_TYPE_SMS << QVariantList{smsTarget("0912", "hi")}
        << "<Action><SMS><PhoneNum>0912</PhoneNum><Message>hi</Message></SMS></Action>";
    QTest::newRow("sms without targets writes empty fields")
        << ACTION_TYPE_SMS << QVariantList() << "<Action><SMS><PhoneNum></PhoneNum><Message></Message></SMS></Action>";

    const QVariantMap editedHttp{
        {"target", "http://h/hook?a=1"}, {"needAuth", "true"},   {"user", "hook"}, {"pwd", "s3cret"}, {"post", true},
        {"contentType", "text/plain"},   {"httpContent", "body"}};
    QTest::newRow("http writes target as url and drops method and body")
        << ACTION_TYPE_HTTP << QVariantList{editedHttp}
        << QStringLiteral("<Action><HTTP><URL>http://h/hook?a=1</URL><NeedAuth>true</NeedAuth><User>hook</User>"
                          "<Pwd>s3cret</Pwd></HTTP></Action>");
    QTest::newRow("http decoded target writes its method label as url")
        << ACTION_TYPE_HTTP << QVariantList{httpTarget(true, "http://h/x", "false", {}, {}, {}, {})}
        << QStringLiteral("<Action><HTTP><URL>POST Method</URL><NeedAuth>false</NeedAuth><User></User><Pwd></Pwd>"
                          "</HTTP></Action>");
    QTest::newRow("http without targets writes empty fields")
        << ACTION_TYPE_HTTP << QVariantList()
        << "<Action><HTTP><URL></URL><NeedAuth></NeedAuth><User></User><Pwd></Pwd></HTTP></Action>";

    QTest::newRow("recording cameras back to back")
        << ACTION_TYPE_RECORDING
        << QVariantList{recordingTarget("Lobby", "cam1", "2"), recordingTarget("Car park", "cam2", "0")}
        << "<Action><Recording><Cam GrpID=\"2\">cam1</Cam><Cam GrpID=\"0\">cam2</Cam></Recording></Action>";
    QTest::newRow("recording always writes the group")
        << ACTION_TYPE_RECORDING << QVariantList{QVariantMap{{"camId", "cam1"}}}
        << "<Action><Recording><Cam GrpID=\"\">cam1</Cam></Recording></Action>";
    QTest::newRow("recording entry markers are filled in one pass")
        << ACTION_TYPE_RECORDING << QVariantList{recordingTarget({}, "cam1", "%2")}
        << "<Action><Recording><Cam GrpID=\"%2\">cam1</Cam></Recording></Action>";
    QTest::newRow("recording without cameras")
        << ACTION_TYPE_RECORDING << QVariantList() << "<Action><Recording></Recording></Action>";

    QTest::newRow("preset entries back to back")
        << ACTION_TYPE_PRESET << QVariantList{presetTarget("Lobby", "cam1", "3"), presetTarget({}, "cam2", "1")}
        << QStringLiteral("<Action><PresetLocMove><Entry><Name>cam1</Name><Pos>3</Pos></Entry>"
                          "<Entry><Name>cam2</Name><Pos>1</Pos></Entry></PresetLocMove></Action>");
    QTest::newRow("preset values are not escaped")
        << ACTION_TYPE_PRESET << QVariantList{presetTarget({}, "a&b", "<1>")}
        << "<Action><PresetLocMove><Entry><Name>a&b</Name><Pos><1></Pos></Entry></PresetLocMove></Action>";
    QTest::newRow("preset without entries")
        << ACTION_TYPE_PRESET << QVariantList() << "<Action><PresetLocMove></PresetLocMove></Action>";

    const QString io7 = "io7";
    QTest::newRow("outputs of one device in one entry")
        << ACTION_TYPE_SETDO << QVariantList{editedOutput(io7, "1", "1"), editedOutput(io7, 2, "0")}
        << QStringLiteral("<Action><SetDO><Entry><Name>io7</Name><DO><Idx>1</Idx><Val>1</Val></DO>"
                          "<DO><Idx>2</Idx><Val>0</Val></DO></Entry></SetDO></Action>");
    QTest::newRow("last device id names the entry")
        << ACTION_TYPE_SETDO << QVariantList{editedOutput(io7, 1, "1"), editedOutput("cam1", 3, "0")}
        << QStringLiteral("<Action><SetDO><Entry><Name>cam1</Name><DO><Idx>1</Idx><Val>1</Val></DO>"
                          "<DO><Idx>3</Idx><Val>0</Val></DO></Entry></SetDO></Action>");
    QTest::newRow("decoded outputs write their display name as index and no period")
        << ACTION_TYPE_SETDO << QVariantList{outputTarget("Door box", "Siren", "1", 10, io7, 1)}
        << "<Action><SetDO><Entry><Name>io7</Name><DO><Idx>Siren</Idx><Val>1</Val></DO></Entry></SetDO></Action>";
    QTest::newRow("no outputs write an empty device")
        << ACTION_TYPE_SETDO << QVariantList() << "<Action><SetDO><Entry><Name></Name></Entry></SetDO></Action>";

    const QString popup = ACTION_TYPE_CLIENTNOTIFY_GOTO_LIVESTREAM;
    QTest::newRow("trigger camera as 1 and cameras with fixed motion flag")
        << popup
        << QVariantList{triggerCameraTarget(), popupTarget("Lobby", "cam1", false),
                        popupTarget("Car park", "cam2", false)}
        << popupWritten("1", "<Cam ShowMotion='0'>cam1</Cam><Cam ShowMotion='0'>cam2</Cam>");
    QTest::newRow("no targets write 0 and no camera") << popup << QVariantList() << popupWritten("0", {});
    QTest::newRow("trigger camera known by its text, not its flag")
        << popup << QVariantList{popupTarget("Lobby", "cam1", true), popupTarget(triggerCamera, "cam2", false)}
        << popupWritten("1", "<Cam ShowMotion='0'>cam1</Cam>");
    QTest::newRow("camera ids are not escaped")
        << popup << QVariantList{popupTarget({}, "a&b", false)} << popupWritten("0", "<Cam ShowMotion='0'>a&b</Cam>");
}

void tst_AlarmActionParserCodecs::encode()
{
    QFETCH(QString, actionType);
    QFETCH(QVariantList, actionTarget);
    QFETCH(QString, xml);
    const QSharedPointer<IActionParser> parser = ActionParserFactory::GetActionParser(actionType);
    QVERIFY(parser);
    QCOMPARE(parser->ActionTargetToXml(actionTarget), xml);
}

void tst_AlarmActionParserCodecs::roundTrip_data()
{
    QTest::addColumn<QString>("actionFile");
    QTest::addColumn<QVariantMap>("expected");

    QTest::newRow("sms comes back whole")
        << "action_sms.xml" << model(ACTION_TYPE_SMS, {smsTarget("+15550100;+15550101", "Door forced open")});
    QTest::newRow("mail comes back without snapshot cameras")
        << "action_sendmail.xml"
        << model(ACTION_TYPE_SENDMAIL,
                 {mailTarget("guard1@site.example;guard2@site.example", "Alarm server", "alarms@site.example",
                             "chief@site.example", "Motion in the lobby", "The lobby camera saw motion.", noCameras)});
    QTest::newRow("http comes back as get with the method label as url")
        << "action_http.xml"
        << model(ACTION_TYPE_HTTP, {httpTarget(false, "POST Method", "true", "hook", "s3cret", {}, {})});
}

void tst_AlarmActionParserCodecs::roundTrip()
{
    QFETCH(QString, actionFile);
    QFETCH(QVariantMap, expected);

    // Given a decoded server action
    const QVariant action = actionFromFile(actionFile);
    const QSharedPointer<IActionParser> parser = ActionParserFactory::GetActionParser(action.toMap());
    QVERIFY(parser);
    const QVariantMap decoded = parser->XmlToActionModel(action, &m_manager.plugin);

    // When its targets are written back unchanged and read again
    const QString written = parser->ActionTargetToXml(decoded.value("actionTarget"));
    const QVariantMap reread = parser->XmlToActionModel(actionOf(written), &m_manager.plugin);

    // Then only the fields the codec writes survive; no expectation means nothing is lost
    QCOMPARE(lines(reread), lines(expected.isEmpty() ? decoded : expected));
}

void tst_AlarmActionParserCodecs::setDoRoundTripNeedsOutputNumberUnderIndex()
{
    // Given the outputs of one device, decoded
    const QVariant action = actionOf(setDoXml("<Entry><Name>io7</Name><DO><Idx>2</Idx><Val>1</Val><Period>10</Period></DO>"
                                              "<DO><Idx>1</Idx><Val>0</Val></DO></Entry>"));
    SetDOActionParser parser;
    const QVariantMap decoded = parser.XmlToActionModel(action, &m_manager.plugin);

    // When the editor moves each output number under "index" before writing, and the text is read again
    QVariantList edited;
    for (const QVariant& target : decoded.value("actionTarget").toList()) {
        QVariantMap output = target.toMap();
        output["index"] = output.value("ioIndex");
        edited.append(output);
    }
    const QVariantMap reread = parser.XmlToActionModel(actionOf(parser.ActionTargetToXml(edited)), &m_manager.plugin);

    // Then the outputs come back with their names, only the period is not written
    const QString doorBox = "Door box";
    const QString io7 = "io7";
    QCOMPARE(lines(reread),
             lines(model(ACTION_TYPE_SETDO, {outputTarget(doorBox, "Gate", "1", 0, io7, 2),
                                                     outputTarget(doorBox, "Siren", "0", 0, io7, 1)})));
}

void tst_AlarmActionParserCodecs::transformTargetName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("shown");

    QTest::newRow("first online map") << "{8A2DF5B3-8CDF-41B1-8163-EE2158116606}"
                                      << "Google map";
    QTest::newRow("second online map anywhere in the name") << "x{202EE83D-9667-42AD-AED9-5A4C240193FA}y"
                                                            << "OpenStreetMap";
    QTest::newRow("first online map wins over the second")
        << "{202EE83D-9667-42AD-AED9-5A4C240193FA}{8A2DF5B3-8CDF-41B1-8163-EE2158116606}"
        << "Google map";
    QTest::newRow("ids compare case-sensitively") << "{202ee83d-9667-42ad-aed9-5a4c240193fa}"
                                                  << "{202ee83d-9667-42ad-aed9-5a4c240193fa}";
    QTest::newRow("other map unchanged") << "12"
                                         << "12";
    QTest::newRow("empty name unchanged") << QString() << QString();
}

void tst_AlarmActionParserCodecs::transformTargetName()
{
    QFETCH(QString, name);
    QFETCH(QString, shown);
    QCOMPARE(ClientNotifyGotoEMapActionParser().transformTargetName(name), shown);
}

QTEST_MAIN(tst_AlarmActionParserCodecs)
#include "tst_alarmactionparser_codecs.moc"
