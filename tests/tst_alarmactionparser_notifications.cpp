#include <QtTest>

#include "AlarmActionParser.h"
#include "stdafx.h"
#include "tst_alarmactionparser.h"

using namespace ActionParserCommon;
using namespace ActionTest;

// The client-notification codecs (popup, e-map, sound) and the decode-only bookmark, IP audio and
// mobile notification codecs. Only the popup is written back; the others are covered as encoders by
// tst_alarmactionparser.
class tst_AlarmActionParserNotifications : public QObject
{
    Q_OBJECT
private slots:
    void decode_data();
    void decode();
    void popupEncode_data();
    void popupEncode();
    void popupRoundTripLosesTheTriggerCamera();
    void transformTargetName_data();
    void transformTargetName();

private:
    ManagerWithPeers m_manager;
};

namespace {

const QString triggerCamera = QStringLiteral("Event triggering camera");

QVariantMap popupTarget(const QString& name, const QString& camId, bool isTriggerCamera)
{
    return {{QStringLiteral("target"), name},
            {QStringLiteral("action"), QString()},
            {QStringLiteral("camId"), camId},
            {QStringLiteral("includeTriggerCam"), isTriggerCamera}};
}

QVariantMap triggerCameraTarget()
{
    return popupTarget(triggerCamera, QString(), true);
}

QVariantMap mapTarget(const QString& name, const QString& mapId, const QVariantList& cameras)
{
    return {{QStringLiteral("target"), name},
            {QStringLiteral("mapId"), mapId},
            {QStringLiteral("cameraList"), cameras},
            {QStringLiteral("action"), QString()}};
}

QVariantMap soundTarget(const QString& soundName)
{
    return {{QStringLiteral("target"), soundName}, {QStringLiteral("action"), QString()}};
}

QVariantMap bookmarkTarget(const QStringList& fields)
{
    const QStringList keys{QStringLiteral("target"),  QStringLiteral("camId"),   QStringLiteral("locId"),
                           QStringLiteral("duration"), QStringLiteral("creator"), QStringLiteral("description"),
                           QStringLiteral("group")};
    QVariantMap target{{QStringLiteral("action"), QString()}};
    for (int index = 0; index < keys.size(); ++index)
        target.insert(keys.at(index), fields.value(index));
    return target;
}

QVariantMap audioTarget(const QString& deviceName, const QString& fileName, int fileId, int ipAudioId)
{
    return {{QStringLiteral("target"), deviceName},
            {QStringLiteral("action"), fileName},
            {QStringLiteral("fileId"), fileId},
            {QStringLiteral("ipAudioId"), ipAudioId}};
}

QVariantMap roleTarget(const QString& roleName, int roleId)
{
    return {{QStringLiteral("target"), roleName},
            {QStringLiteral("action"), QString()},
            {QStringLiteral("pushAll"), false},
            {QStringLiteral("roleId"), roleId}};
}

QVariantMap everyRoleTarget()
{
    return {{QStringLiteral("target"), QStringLiteral("All roles")},
            {QStringLiteral("action"), QString()},
            {QStringLiteral("pushAll"), true}};
}

QString popupXml(const QString& popupWindow)
{
    return QStringLiteral("<Action><ClientNotification><Type>Popup Window</Type>%1</ClientNotification></Action>")
        .arg(popupWindow);
}

QString notificationXml(const QString& type, const QString& content)
{
    return QStringLiteral("<Action><ClientNotification><Type>%1</Type>%2</ClientNotification></Action>").arg(type, content);
}

QString pushXml(const QString& pushInfo)
{
    return QStringLiteral("<Action><MobileNotification><PushInfo>%1</PushInfo></MobileNotification></Action>").arg(pushInfo);
}

QString popupWritten(const QString& flag, const QString& cameras)
{
    return QStringLiteral("<Action><ClientNotification><Type>Popup Window</Type><PopupWindow><Size>Large</Size>"
                          "<ShowTime>5</ShowTime><AutoClose>false</AutoClose><IncludeTriggerCam>%1</IncludeTriggerCam>"
                          "%2</PopupWindow></ClientNotification></Action>")
        .arg(flag, cameras);
}

} // namespace

void tst_AlarmActionParserNotifications::decode_data()
{
    QTest::addColumn<QString>("actionXml");
    QTest::addColumn<bool>("hasManager");
    QTest::addColumn<QVariantMap>("expected");

    const QString popupType = ACTION_TYPE_CLIENTNOTIFY_GOTO_LIVESTREAM;
    QTest::newRow("popup with trigger camera first, then its cameras")
        << TestData::text(QStringLiteral("action_popup.xml")) << true
        << model(popupType, {triggerCameraTarget(), popupTarget(QStringLiteral("Lobby"), QStringLiteral("cam1"), false),
                             popupTarget(QStringLiteral("Car park"), QStringLiteral("cam2"), false)});
    QTest::newRow("popup trigger camera written as 1 is not set")
        << popupXml(QStringLiteral("<PopupWindow><IncludeTriggerCam>1</IncludeTriggerCam><Cam>cam2</Cam></PopupWindow>"))
        << true << model(popupType, {popupTarget(QStringLiteral("Car park"), QStringLiteral("cam2"), false)});
    QTest::newRow("popup trigger camera in capitals is not set")
        << popupXml(QStringLiteral("<PopupWindow><IncludeTriggerCam>True</IncludeTriggerCam></PopupWindow>")) << true
        << model(popupType, {});
    QTest::newRow("popup trigger camera alone")
        << popupXml(QStringLiteral("<PopupWindow><IncludeTriggerCam>true</IncludeTriggerCam></PopupWindow>")) << true
        << model(popupType, {triggerCameraTarget()});
    QTest::newRow("popup camera without attributes is its text")
        << popupXml(QStringLiteral("<PopupWindow><Cam>cam1</Cam><Cam>cam9</Cam></PopupWindow>")) << true
        << model(popupType, {popupTarget(QStringLiteral("Lobby"), QStringLiteral("cam1"), false),
                             popupTarget(QString(), QStringLiteral("cam9"), false)});
    QTest::newRow("popup without window has no targets") << popupXml(QString()) << true << model(popupType, {});
    QTest::newRow("popup without manager has empty camera names")
        << TestData::text(QStringLiteral("action_popup.xml")) << false
        << model(popupType, {triggerCameraTarget(), popupTarget(QString(), QStringLiteral("cam1"), false),
                             popupTarget(QString(), QStringLiteral("cam2"), false)});

    const QString mapType = ACTION_TYPE_CLIENTNOTIFY_GOTO_EMAP;
    QTest::newRow("e-maps named by id without their first character")
        << TestData::text(QStringLiteral("action_emap.xml")) << true
        << model(mapType, {mapTarget(QStringLiteral("Google map"), QStringLiteral("1{8A2DF5B3-8CDF-41B1-8163-EE2158116606}"),
                                     {QStringLiteral("cam1"), QStringLiteral("cam2")}),
                           mapTarget(QStringLiteral("OpenStreetMap"),
                                     QStringLiteral("2{202EE83D-9667-42AD-AED9-5A4C240193FA}"), {QStringLiteral("cam2")}),
                           mapTarget(QStringLiteral("12"), QStringLiteral("312"), {})});
    QTest::newRow("e-map cameras keep their attributes")
        << notificationXml(QStringLiteral("GoToEMap"),
                           QStringLiteral("<GoToEMap><MapInfo><MapId>5Yard</MapId><PlayCam Ch=\"1\">cam1</PlayCam>"
                                          "</MapInfo></GoToEMap>"))
        << true
        << model(mapType, {mapTarget(QStringLiteral("Yard"), QStringLiteral("5Yard"),
                                     {QVariantMap{{QStringLiteral("@Ch"), QStringLiteral("1")},
                                                  {QStringLiteral("#text"), QStringLiteral("cam1")}}})});
    QTest::newRow("e-map entry without id is still a target")
        << notificationXml(QStringLiteral("GoToEMap"), QStringLiteral("<GoToEMap><MapInfo/></GoToEMap>")) << true
        << model(mapType, {mapTarget(QString(), QString(), {})});
    QTest::newRow("e-map without maps has no targets")
        << notificationXml(QStringLiteral("GoToEMap"), QString()) << true << model(mapType, {});

    const QString soundType = ACTION_TYPE_CLIENTNOTIFY_SOUND_THE_ALARM;
    QTest::newRow("sounds in document order")
        << TestData::text(QStringLiteral("action_sound.xml")) << true
        << model(soundType, {soundTarget(QStringLiteral("Siren.mp3")), soundTarget(QStringLiteral("Bell.mp3"))});
    QTest::newRow("sound without sounds has no targets")
        << notificationXml(QStringLiteral("SoundTheAlarm"), QStringLiteral("<SoundTheAlarm/>")) << true
        << model(soundType, {});

    QTest::newRow("bookmark cameras with their stored names")
        << TestData::text(QStringLiteral("action_bookmark.xml")) << true
        << model(ACTION_TYPE_ADDBOOKMARK,
                 {bookmarkTarget({QStringLiteral("Lobby entrance"), QStringLiteral("cam1"), QStringLiteral("loc1"),
                                  QStringLiteral("30"), QStringLiteral("admin"), QStringLiteral("Motion bookmark"),
                                  QStringLiteral("1")}),
                  bookmarkTarget({QStringLiteral("Car park"), QStringLiteral("cam2"), QStringLiteral("loc1"),
                                  QStringLiteral("60"), QStringLiteral("admin"), QStringLiteral("Car park bookmark"),
                                  QStringLiteral("2")})});
    QTest::newRow("bookmark camera with missing fields")
        << QStringLiteral("<Action><AddBookmark><CamInfo><CamId>cam1</CamId></CamInfo></AddBookmark></Action>") << true
        << model(ACTION_TYPE_ADDBOOKMARK, {bookmarkTarget({QString(), QStringLiteral("cam1")})});
    QTest::newRow("bookmark without cameras has no targets")
        << QStringLiteral("<Action><AddBookmark/></Action>") << true << model(ACTION_TYPE_ADDBOOKMARK, {});

    QTest::newRow("audio devices with the file as action")
        << TestData::text(QStringLiteral("action_playipaudio.xml")) << true
        << model(ACTION_TYPE_PLAYIPAUDIO, {audioTarget(QStringLiteral("Hall speaker"), QStringLiteral("Evacuate.mp3"), 4, 11),
                                           audioTarget(QStringLiteral("Yard horn"), QStringLiteral("Warning.mp3"), 5, 12)});
    QTest::newRow("audio file id not a number is 0")
        << QStringLiteral("<Action><PlayIPAudio><IPAudioInfo><IPAudioId>11</IPAudioId><AudioFileId>abc</AudioFileId>"
                          "</IPAudioInfo></PlayIPAudio></Action>")
        << true << model(ACTION_TYPE_PLAYIPAUDIO, {audioTarget(QString(), QString(), 0, 11)});
    QTest::newRow("audio without devices has no targets")
        << QStringLiteral("<Action><PlayIPAudio/></Action>") << true << model(ACTION_TYPE_PLAYIPAUDIO, {});

    const QString pushType = ACTION_TYPE_MOBILENOTIFICATION;
    QTest::newRow("push to two roles in order")
        << TestData::text(QStringLiteral("action_mobile.xml")) << true
        << model(pushType, {roleTarget(QStringLiteral("Operators"), 3), roleTarget(QStringLiteral("Guards"), 5)});
    QTest::newRow("push to all ignores the roles")
        << pushXml(QStringLiteral("<PushAll>true</PushAll><RoleId>3</RoleId><RoleId>5</RoleId>")) << true
        << model(pushType, {everyRoleTarget()});
    QTest::newRow("push all as 1 is all roles")
        << pushXml(QStringLiteral("<PushAll>1</PushAll>")) << true << model(pushType, {everyRoleTarget()});
    QTest::newRow("one role")
        << pushXml(QStringLiteral("<PushAll>false</PushAll><RoleId>5</RoleId>")) << true
        << model(pushType, {roleTarget(QStringLiteral("Guards"), 5)});
    QTest::newRow("fixed roles are named without the peer")
        << pushXml(QStringLiteral("<RoleId>0</RoleId><RoleId>-1</RoleId>")) << true
        << model(pushType, {roleTarget(QStringLiteral("Customize"), 0), roleTarget(QStringLiteral("Administrator"), -1)});
    QTest::newRow("absent role is role 0")
        << pushXml(QStringLiteral("<PushAll>false</PushAll>")) << true
        << model(pushType, {roleTarget(QStringLiteral("Customize"), 0)});
    QTest::newRow("role id not a number or beyond 32 bits is role 0")
        << pushXml(QStringLiteral("<RoleId>abc</RoleId><RoleId>4294967299</RoleId>")) << true
        << model(pushType, {roleTarget(QStringLiteral("Customize"), 0), roleTarget(QStringLiteral("Customize"), 0)});
    QTest::newRow("unknown role has an empty name")
        << pushXml(QStringLiteral("<RoleId>9</RoleId>")) << true << model(pushType, {roleTarget(QString(), 9)});
    QTest::newRow("roles without manager have empty names")
        << TestData::text(QStringLiteral("action_mobile.xml")) << false
        << model(pushType, {roleTarget(QString(), 3), roleTarget(QString(), 5)});
}

void tst_AlarmActionParserNotifications::decode()
{
    QFETCH(QString, actionXml);
    QFETCH(bool, hasManager);
    QFETCH(QVariantMap, expected);
    const QVariant action = actionOf(actionXml);
    const QSharedPointer<IActionParser> parser = ActionParserFactory::GetActionParser(action.toMap());
    QVERIFY(parser);
    const QVariantMap decoded = parser->XmlToActionModel(action, hasManager ? &m_manager.plugin : nullptr);
    QCOMPARE(describeLines(decoded), describeLines(expected));
}

void tst_AlarmActionParserNotifications::popupEncode_data()
{
    QTest::addColumn<QVariantList>("actionTarget");
    QTest::addColumn<QString>("xml");

    QTest::newRow("trigger camera as 1 and cameras with fixed motion flag")
        << QVariantList{triggerCameraTarget(), popupTarget(QStringLiteral("Lobby"), QStringLiteral("cam1"), false),
                        popupTarget(QStringLiteral("Car park"), QStringLiteral("cam2"), false)}
        << popupWritten(QStringLiteral("1"),
                        QStringLiteral("<Cam ShowMotion='0'>cam1</Cam><Cam ShowMotion='0'>cam2</Cam>"));
    QTest::newRow("no targets write 0 and no camera") << QVariantList() << popupWritten(QStringLiteral("0"), QString());
    QTest::newRow("trigger camera known by its text, not its flag")
        << QVariantList{popupTarget(QStringLiteral("Lobby"), QStringLiteral("cam1"), true),
                        popupTarget(triggerCamera, QStringLiteral("cam2"), false)}
        << popupWritten(QStringLiteral("1"), QStringLiteral("<Cam ShowMotion='0'>cam1</Cam>"));
    QTest::newRow("camera ids are not escaped")
        << QVariantList{popupTarget(QString(), QStringLiteral("a&b"), false)}
        << popupWritten(QStringLiteral("0"), QStringLiteral("<Cam ShowMotion='0'>a&b</Cam>"));
}

void tst_AlarmActionParserNotifications::popupEncode()
{
    QFETCH(QVariantList, actionTarget);
    QFETCH(QString, xml);
    const QSharedPointer<IActionParser> parser =
        ActionParserFactory::GetActionParser(ACTION_TYPE_CLIENTNOTIFY_GOTO_LIVESTREAM);
    QVERIFY(parser);
    QCOMPARE(parser->ActionTargetToXml(actionTarget), xml);
}

void tst_AlarmActionParserNotifications::popupRoundTripLosesTheTriggerCamera()
{
    // Given a popup the server stored with the trigger camera set as "true"
    const QVariant action = actionFromFile(QStringLiteral("action_popup.xml"));
    ClientNotifyGotoLiveStreamActionParser parser;
    const QVariantMap decoded = parser.XmlToActionModel(action, &m_manager.plugin);

    // When the plug-in writes it back and reads its own text
    const QString written = parser.ActionTargetToXml(decoded.value(QStringLiteral("actionTarget")));
    const QVariantMap reread = parser.XmlToActionModel(actionOf(written), &m_manager.plugin);

    // Then the numeric flag it wrote does not count as set
    QCOMPARE(describeLines(reread),
             describeLines(model(ACTION_TYPE_CLIENTNOTIFY_GOTO_LIVESTREAM,
                                 {popupTarget(QStringLiteral("Lobby"), QStringLiteral("cam1"), false),
                                  popupTarget(QStringLiteral("Car park"), QStringLiteral("cam2"), false)})));
}

void tst_AlarmActionParserNotifications::transformTargetName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("shown");

    QTest::newRow("first online map") << QStringLiteral("{8A2DF5B3-8CDF-41B1-8163-EE2158116606}") << QStringLiteral("Google map");
    QTest::newRow("second online map anywhere in the name")
        << QStringLiteral("x{202EE83D-9667-42AD-AED9-5A4C240193FA}y") << QStringLiteral("OpenStreetMap");
    QTest::newRow("first online map wins over the second")
        << QStringLiteral("{202EE83D-9667-42AD-AED9-5A4C240193FA}{8A2DF5B3-8CDF-41B1-8163-EE2158116606}")
        << QStringLiteral("Google map");
    QTest::newRow("ids compare case-sensitively")
        << QStringLiteral("{202ee83d-9667-42ad-aed9-5a4c240193fa}") << QStringLiteral("{202ee83d-9667-42ad-aed9-5a4c240193fa}");
    QTest::newRow("other map unchanged") << QStringLiteral("12") << QStringLiteral("12");
    QTest::newRow("empty name unchanged") << QString() << QString();
}

void tst_AlarmActionParserNotifications::transformTargetName()
{
    QFETCH(QString, name);
    QFETCH(QString, shown);
    QCOMPARE(ClientNotifyGotoEMapActionParser().transformTargetName(name), shown);
}

QTEST_MAIN(tst_AlarmActionParserNotifications)
#include "tst_alarmactionparser_notifications.moc"
