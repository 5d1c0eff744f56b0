#include "AlarmActionParser.h"

#include "PluginAlarmManager.h"
#include "VariantTree.h"
#include "stdafx.h"

#include <QObject>
#include <QStringList>

using namespace ActionParserCommon;
using namespace VariantTree;

namespace {

// <Action> templates. Values go in as they are: the editor never hands texts holding "&", "<" or
// %-number markers, and the server expects exactly these element orders, without blanks between them.
const QString ACTION_SENDMAIL_MSG = QStringLiteral(
    "<Action><SendMail><SenderName>%1</SenderName><From>%2</From><To>%3</To><Cc>%4</Cc>"
    "<Subject>%5</Subject><MailContent>%6</MailContent></SendMail></Action>");
const QString ACTION_SMS_MSG =
    QStringLiteral("<Action><SMS><PhoneNum>%1</PhoneNum><Message>%2</Message></SMS></Action>");
const QString ACTION_HTTP_MSG = QStringLiteral(
    "<Action><HTTP><URL>%1</URL><NeedAuth>%2</NeedAuth><User>%3</User><Pwd>%4</Pwd></HTTP></Action>");
const QString ACTION_RECORDING_MSG = QStringLiteral("<Action><Recording>%1</Recording></Action>");
const QString CAM_ENTRY = QStringLiteral("<Cam GrpID=\"%1\">%2</Cam>");
const QString ACTION_PRESETLOCMOVE_MSG = QStringLiteral("<Action><PresetLocMove>%1</PresetLocMove></Action>");
const QString PRESETLOC_ENTRY = QStringLiteral("<Entry><Name>%1</Name><Pos>%2</Pos></Entry>");
const QString ACTION_SETDO_MSG = QStringLiteral("<Action><SetDO><Entry><Name>%1</Name>%2</Entry></SetDO></Action>");
const QString DO_ENTRY = QStringLiteral("<DO><Idx>%1</Idx><Val>%2</Val></DO>");
const QString ACTION_CLIENTNOTIFICATION_MSG = QStringLiteral(
    "<Action><ClientNotification><Type>Popup Window</Type><PopupWindow><Size>Large</Size><ShowTime>5</ShowTime>"
    "<AutoClose>false</AutoClose><IncludeTriggerCam>%1</IncludeTriggerCam>%2</PopupWindow></ClientNotification>"
    "</Action>");
const QString NOTIFI_CAM_ENTRY = QStringLiteral("<Cam ShowMotion='0'>%1</Cam>");

// Values of the "Type" child that select a client-notification codec.
const QString NOTIFY_TYPE_POPUP = QStringLiteral("Popup Window");
const QString NOTIFY_TYPE_EMAP = QStringLiteral("GoToEMap");
const QString NOTIFY_TYPE_SOUND = QStringLiteral("SoundTheAlarm");

// The two online base maps have fixed ids; every other map is shown by its own id.
const QString GOOGLE_MAP_ID = QStringLiteral("{8A2DF5B3-8CDF-41B1-8163-EE2158116606}");
const QString OPEN_STREET_MAP_ID = QStringLiteral("{202EE83D-9667-42AD-AED9-5A4C240193FA}");

// Base 10, 0 for anything that is not a 32-bit number (QVariant::toInt would wrap larger values).
int integerOf(const QVariant& value)
{
    return textOf(value).toInt();
}

bool booleanOf(const QVariant& value)
{
    return !isMap(value) && !isList(value) && value.toBool();
}

// The single target of the mail, SMS and HTTP actions. The editor always hands one; an empty list is
// encoded like a target with every field empty rather than read out of bounds.
QVariantMap firstTargetOf(const QVariant& actionTarget)
{
    const QVariantList targets = listOf(actionTarget);
    return targets.isEmpty() ? QVariantMap() : mapOf(targets.first());
}

QVariantMap actionModel(const QString& actionType, const QVariantList& targets)
{
    return {{ACTION_MODEL_TYPE, actionType}, {ACTION_MODEL_TARGET, targets}};
}

// Without a manager (a codec used on its own) names are empty and outputs get the lookup's own fallback.
QString displayNameOf(PluginAlarmManager* manager, const QString& deviceId)
{
    return manager ? manager->queryDisplayName(deviceId) : QString();
}

QString outputNameOf(PluginAlarmManager* manager, const QString& deviceId, int index)
{
    return manager ? manager->queryDIDODisplayName(deviceId, QStringLiteral("DO"), index)
                   : QStringLiteral("DO-%1").arg(index);
}

QString roleNameOf(PluginAlarmManager* manager, int roleId)
{
    return manager ? manager->queryRoleName(roleId) : QString();
}

QString triggerCameraText()
{
    return QObject::tr("Event triggering camera");
}

// The actions this plug-in shows but never writes have no XML of their own.
QString decodeOnlyActionXml()
{
    return QString();
}

} // namespace

QVariantList transContentAsList(const QVariant& value)
{
    if (value.isNull())
        return {};
    if (isList(value))
        return value.toList();
    return QVariantList{value};
}

IActionParser::~IActionParser() = default;

// ---- Mail, SMS, HTTP: one target each ----

QMap<QString, QVariant> SendMailActionParser::XmlToActionModel(const QVariant& action, PluginAlarmManager*)
{
    const QVariantMap mail = mapAt(action, {ACTION_TYPE_SENDMAIL});
    const QVariantMap snapshotCameras = mapAt(mail, {QStringLiteral("SnapshotCameraList")});
    const QVariantMap target{
        {TARGET_NAME, textAt(mail, {QStringLiteral("To")})},
        {TARGET_ACTION, QString()},
        {QStringLiteral("senderName"), textAt(mail, {QStringLiteral("SenderName")})},
        {QStringLiteral("from"), textAt(mail, {QStringLiteral("From")})},
        {TARGET_CC, textAt(mail, {QStringLiteral("Cc")})},
        {QStringLiteral("subject"), textAt(mail, {QStringLiteral("Subject")})},
        {QStringLiteral("content"), textAt(mail, {QStringLiteral("MailContent")})},
        {QStringLiteral("snapshotCameraList"), transContentAsList(snapshotCameras.value(QStringLiteral("Camera")))},
    };
    return actionModel(ACTION_TYPE_SENDMAIL, {target});
}

QString SendMailActionParser::ActionTargetToXml(const QVariant& actionTarget)
{
    const QVariantMap target = firstTargetOf(actionTarget);
    return ACTION_SENDMAIL_MSG.arg(textAt(target, {QStringLiteral("senderName")}))
        .arg(textAt(target, {QStringLiteral("from")}))
        .arg(textAt(target, {TARGET_NAME}))
        .arg(textAt(target, {TARGET_CC}))
        .arg(textAt(target, {QStringLiteral("subject")}))
        .arg(textAt(target, {QStringLiteral("content")}));
}

QMap<QString, QVariant> SMSActionParser::XmlToActionModel(const QVariant& action, PluginAlarmManager*)
{
    const QVariantMap sms = mapAt(action, {ACTION_TYPE_SMS});
    const QVariantMap target{
        {TARGET_NAME, textAt(sms, {QStringLiteral("PhoneNum")})},
        {TARGET_ACTION, QString()},
        {QStringLiteral("message"), textAt(sms, {QStringLiteral("Message")})},
    };
    return actionModel(ACTION_TYPE_SMS, {target});
}

QString SMSActionParser::ActionTargetToXml(const QVariant& actionTarget)
{
    const QVariantMap target = firstTargetOf(actionTarget);
    return ACTION_SMS_MSG.arg(textAt(target, {TARGET_NAME})).arg(textAt(target, {QStringLiteral("message")}));
}

QMap<QString, QVariant> HTTPActionParser::XmlToActionModel(const QVariant& action, PluginAlarmManager*)
{
    const QVariantMap http = mapAt(action, {ACTION_TYPE_HTTP});
    const bool isPost = booleanOf(http.value(QStringLiteral("Post")));
    // The list shows the method where other actions show their target, and the URL as the action.
    const QVariantMap target{
        {TARGET_NAME, isPost ? QStringLiteral("POST Method") : QStringLiteral("GET Method")},
        {TARGET_ACTION, textAt(http, {QStringLiteral("URL")})},
        {QStringLiteral("needAuth"), textAt(http, {QStringLiteral("NeedAuth")})},
        {QStringLiteral("user"), textAt(http, {QStringLiteral("User")})},
        {QStringLiteral("pwd"), textAt(http, {QStringLiteral("Pwd")})},
        {TARGET_POST, isPost},
        {QStringLiteral("contentType"), textAt(http, {QStringLiteral("ContentType")})},
        {QStringLiteral("httpContent"), textAt(http, {QStringLiteral("HTTPContent")})},
    };
    return actionModel(ACTION_TYPE_HTTP, {target});
}

QString HTTPActionParser::ActionTargetToXml(const QVariant& actionTarget)
{
    // The editor puts the URL under "target" when it encodes; method and body are not part of the
    // written action.
    const QVariantMap target = firstTargetOf(actionTarget);
    return ACTION_HTTP_MSG.arg(textAt(target, {TARGET_NAME}))
        .arg(textAt(target, {QStringLiteral("needAuth")}))
        .arg(textAt(target, {QStringLiteral("user")}))
        .arg(textAt(target, {QStringLiteral("pwd")}));
}

// ---- Recording, preset, digital output: one target per camera, preset or output ----

QMap<QString, QVariant> RecordingActionParser::XmlToActionModel(const QVariant& action, PluginAlarmManager* manager)
{
    const QVariantMap recording = mapAt(action, {ACTION_TYPE_RECORDING});
    QVariantList targets;
    const QVariantList cameras = transContentAsList(recording.value(QStringLiteral("Cam")));
    for (const QVariant& camera : cameras) {
        // A camera without a group attribute belongs to group 0.
        const bool hasAttributes = isMap(camera);
        const QString camId = ownTextOf(camera);
        const QString grpId = hasAttributes ? textAt(camera, {QStringLiteral("@GrpID")}) : QStringLiteral("0");
        targets.append(QVariantMap{
            {TARGET_NAME, displayNameOf(manager, camId)},
            {TARGET_ACTION, QString()},
            {TARGET_CAMERA_ID, camId},
            {QStringLiteral("grpId"), grpId},
        });
    }
    return actionModel(ACTION_TYPE_RECORDING, targets);
}

QString RecordingActionParser::ActionTargetToXml(const QVariant& actionTarget)
{
    QString cameras;
    const QVariantList targets = listOf(actionTarget);
    for (const QVariant& targetValue : targets) {
        const QVariantMap target = mapOf(targetValue);
        cameras += CAM_ENTRY.arg(textAt(target, {QStringLiteral("grpId")}), textAt(target, {TARGET_CAMERA_ID}));
    }
    return ACTION_RECORDING_MSG.arg(cameras);
}

QMap<QString, QVariant> PresetActionParser::XmlToActionModel(const QVariant& action, PluginAlarmManager* manager)
{
    const QVariantMap preset = mapAt(action, {ACTION_TYPE_PRESET});
    QVariantList targets;
    const QVariantList entries = transContentAsList(preset.value(QStringLiteral("Entry")));
    for (const QVariant& entryValue : entries) {
        const QVariantMap entry = mapOf(entryValue);
        const QString camId = textAt(entry, {QStringLiteral("Name")});
        targets.append(QVariantMap{
            {TARGET_NAME, displayNameOf(manager, camId)},
            {TARGET_ACTION, QString()},
            {TARGET_CAMERA_ID, camId},
            {QStringLiteral("pos"), textAt(entry, {QStringLiteral("Pos")})},
        });
    }
    return actionModel(ACTION_TYPE_PRESET, targets);
}

QString PresetActionParser::ActionTargetToXml(const QVariant& actionTarget)
{
    QString entries;
    const QVariantList targets = listOf(actionTarget);
    for (const QVariant& targetValue : targets) {
        const QVariantMap target = mapOf(targetValue);
        entries += PRESETLOC_ENTRY.arg(textAt(target, {TARGET_CAMERA_ID}), textAt(target, {QStringLiteral("pos")}));
    }
    return ACTION_PRESETLOCMOVE_MSG.arg(entries);
}

QMap<QString, QVariant> SetDOActionParser::XmlToActionModel(const QVariant& action, PluginAlarmManager* manager)
{
    const QVariantMap setDo = mapAt(action, {ACTION_TYPE_SETDO});
    QVariantList targets;
    const QVariantList devices = transContentAsList(setDo.value(QStringLiteral("Entry")));
    for (const QVariant& deviceValue : devices) {
        const QVariantMap device = mapOf(deviceValue);
        const QString deviceId = textAt(device, {QStringLiteral("Name")});
        const QString deviceName = displayNameOf(manager, deviceId);
        const QVariantList outputs = transContentAsList(device.value(QStringLiteral("DO")));
        for (const QVariant& outputValue : outputs) {
            const QVariantMap output = mapOf(outputValue);
            const int ioIndex = integerOf(output.value(QStringLiteral("Idx")));
            // "index" carries the output's display name for the list; the number travels as "ioIndex".
            targets.append(QVariantMap{
                {TARGET_NAME, deviceName},
                {TARGET_ACTION, ACTION_TYPE_SETDO},
                {TARGET_INDEX, outputNameOf(manager, deviceId, ioIndex)},
                {TARGET_VALUE, textAt(output, {QStringLiteral("Val")})},
                {QStringLiteral("period"), integerOf(output.value(QStringLiteral("Period")))},
                {TARGET_CAMERA_ID, deviceId},
                {TARGET_IO_INDEX, ioIndex},
            });
        }
    }
    return actionModel(ACTION_TYPE_SETDO, targets);
}

QString SetDOActionParser::ActionTargetToXml(const QVariant& actionTarget)
{
    // One device per action: the editor only offers outputs of one device, so the last "camId" names it.
    // The encoder reads the output number from "index", which the editor fills before encoding.
    QString deviceId;
    QString outputs;
    const QVariantList targets = listOf(actionTarget);
    for (const QVariant& targetValue : targets) {
        const QVariantMap target = mapOf(targetValue);
        deviceId = textAt(target, {TARGET_CAMERA_ID});
        outputs += DO_ENTRY.arg(textAt(target, {TARGET_INDEX}), textAt(target, {TARGET_VALUE}));
    }
    return ACTION_SETDO_MSG.arg(deviceId).arg(outputs);
}

// ---- Client notifications ----

QMap<QString, QVariant> ClientNotifyGotoLiveStreamActionParser::XmlToActionModel(const QVariant& action,
                                                                                  PluginAlarmManager* manager)
{
    const QVariantMap popup =
        mapAt(action, {ACTION_TYPE_CLIENTNOTIFY, QStringLiteral("PopupWindow")});
    QVariantList targets;
    // Only the exact text "true" counts; the "1" this plug-in writes reads as not set.
    if (textAt(popup, {QStringLiteral("IncludeTriggerCam")}) == QLatin1String("true")) {
        targets.append(QVariantMap{
            {TARGET_NAME, triggerCameraText()},
            {TARGET_ACTION, QString()},
            {TARGET_CAMERA_ID, QString()},
            {TARGET_INCLUDE_TRIGGER_CAM, true},
        });
    }
    const QVariantList cameras = transContentAsList(popup.value(QStringLiteral("Cam")));
    for (const QVariant& camera : cameras) {
        const QString camId = ownTextOf(camera);
        targets.append(QVariantMap{
            {TARGET_NAME, displayNameOf(manager, camId)},
            {TARGET_ACTION, QString()},
            {TARGET_CAMERA_ID, camId},
            {TARGET_INCLUDE_TRIGGER_CAM, false},
        });
    }
    return actionModel(ACTION_TYPE_CLIENTNOTIFY_GOTO_LIVESTREAM, targets);
}

QString ClientNotifyGotoLiveStreamActionParser::ActionTargetToXml(const QVariant& actionTarget)
{
    // The trigger-camera target is known only by its display text, so encoding must run in the same
    // UI language as the decoding that produced it.
    const QString triggerCamera = triggerCameraText();
    bool includesTriggerCamera = false;
    QString cameras;
    const QVariantList targets = listOf(actionTarget);
    for (const QVariant& targetValue : targets) {
        const QVariantMap target = mapOf(targetValue);
        if (textAt(target, {TARGET_NAME}) == triggerCamera)
            includesTriggerCamera = true;
        else
            cameras += NOTIFI_CAM_ENTRY.arg(textAt(target, {TARGET_CAMERA_ID}));
    }
    // The flag is written as a number, which the decoder deliberately does not read as set.
    return ACTION_CLIENTNOTIFICATION_MSG.arg(includesTriggerCamera ? 1 : 0).arg(cameras);
}

QMap<QString, QVariant> ClientNotifyGotoEMapActionParser::XmlToActionModel(const QVariant& action, PluginAlarmManager*)
{
    const QVariantMap eMap = mapAt(action, {ACTION_TYPE_CLIENTNOTIFY, NOTIFY_TYPE_EMAP});
    QVariantList targets;
    const QVariantList maps = transContentAsList(eMap.value(QStringLiteral("MapInfo")));
    for (const QVariant& mapValue : maps) {
        if (!mapValue.isValid())
            continue;
        const QVariantMap mapInfo = mapOf(mapValue);
        const QString mapId = textAt(mapInfo, {QStringLiteral("MapId")});
        // Map ids carry a one-character kind prefix that the list does not show.
        targets.append(QVariantMap{
            {TARGET_NAME, transformTargetName(mapId.mid(1))},
            {QStringLiteral("mapId"), mapId},
            {QStringLiteral("cameraList"), transContentAsList(mapInfo.value(QStringLiteral("PlayCam")))},
            {TARGET_ACTION, QString()},
        });
    }
    return actionModel(ACTION_TYPE_CLIENTNOTIFY_GOTO_EMAP, targets);
}

QString ClientNotifyGotoEMapActionParser::ActionTargetToXml(const QVariant&)
{
    return decodeOnlyActionXml();
}

QString ClientNotifyGotoEMapActionParser::transformTargetName(QString name)
{
    if (name.contains(GOOGLE_MAP_ID))
        return QStringLiteral("Google map");
    if (name.contains(OPEN_STREET_MAP_ID))
        return QStringLiteral("OpenStreetMap");
    return name;
}

QMap<QString, QVariant> ClientNotifySoundTheAlarmActionParser::XmlToActionModel(const QVariant& action,
                                                                                 PluginAlarmManager*)
{
    const QVariantMap sound = mapAt(action, {ACTION_TYPE_CLIENTNOTIFY, NOTIFY_TYPE_SOUND});
    QVariantList targets;
    const QVariantList sounds = transContentAsList(sound.value(QStringLiteral("Sound")));
    for (const QVariant& soundName : sounds)
        targets.append(QVariantMap{{TARGET_NAME, textOf(soundName)}, {TARGET_ACTION, QString()}});
    return actionModel(ACTION_TYPE_CLIENTNOTIFY_SOUND_THE_ALARM, targets);
}

QString ClientNotifySoundTheAlarmActionParser::ActionTargetToXml(const QVariant&)
{
    return decodeOnlyActionXml();
}

// ---- Bookmark, IP audio, mobile notification: decode only ----

QMap<QString, QVariant> AddBookmarkAlarmActionParser::XmlToActionModel(const QVariant& action, PluginAlarmManager*)
{
    const QVariantMap bookmark = mapAt(action, {ACTION_TYPE_ADDBOOKMARK});
    QVariantList targets;
    const QVariantList cameras = transContentAsList(bookmark.value(QStringLiteral("CamInfo")));
    for (const QVariant& cameraValue : cameras) {
        const QVariantMap camera = mapOf(cameraValue);
        // The rule stores the camera's name itself; no lookup.
        targets.append(QVariantMap{
            {TARGET_NAME, textAt(camera, {QStringLiteral("CamRefName")})},
            {TARGET_ACTION, QString()},
            {TARGET_CAMERA_ID, textAt(camera, {QStringLiteral("CamId")})},
            {QStringLiteral("locId"), textAt(camera, {QStringLiteral("LocId")})},
            {QStringLiteral("duration"), textAt(camera, {QStringLiteral("Duration")})},
            {QStringLiteral("creator"), textAt(camera, {QStringLiteral("Creator")})},
            {QStringLiteral("description"), textAt(camera, {QStringLiteral("Description")})},
            {QStringLiteral("group"), textAt(camera, {QStringLiteral("Group")})},
        });
    }
    return actionModel(ACTION_TYPE_ADDBOOKMARK, targets);
}

QString AddBookmarkAlarmActionParser::ActionTargetToXml(const QVariant&)
{
    return decodeOnlyActionXml();
}

QMap<QString, QVariant> PlayIPAudioAlarmActionParser::XmlToActionModel(const QVariant& action, PluginAlarmManager*)
{
    const QVariantMap playAudio = mapAt(action, {ACTION_TYPE_PLAYIPAUDIO});
    QVariantList targets;
    const QVariantList devices = transContentAsList(playAudio.value(QStringLiteral("IPAudioInfo")));
    for (const QVariant& deviceValue : devices) {
        const QVariantMap device = mapOf(deviceValue);
        // The file to play is what is done to the device, so it stands under "action".
        targets.append(QVariantMap{
            {TARGET_NAME, textAt(device, {QStringLiteral("IPAudioName")})},
            {TARGET_ACTION, textAt(device, {QStringLiteral("AudioFileName")})},
            {QStringLiteral("fileId"), integerOf(device.value(QStringLiteral("AudioFileId")))},
            {QStringLiteral("ipAudioId"), integerOf(device.value(QStringLiteral("IPAudioId")))},
        });
    }
    return actionModel(ACTION_TYPE_PLAYIPAUDIO, targets);
}

QString PlayIPAudioAlarmActionParser::ActionTargetToXml(const QVariant&)
{
    return decodeOnlyActionXml();
}

QMap<QString, QVariant> MobileNotificationActionParser::XmlToActionModel(const QVariant& action,
                                                                          PluginAlarmManager* manager)
{
    const QVariantMap pushInfo =
        mapAt(action, {ACTION_TYPE_MOBILENOTIFICATION, QStringLiteral("PushInfo")});
    if (booleanOf(pushInfo.value(QStringLiteral("PushAll")))) {
        const QVariantMap everyone{
            {TARGET_NAME, QObject::tr("All roles")},
            {TARGET_ACTION, QString()},
            {TARGET_PUSH_ALL, true},
        };
        return actionModel(ACTION_TYPE_MOBILENOTIFICATION, {everyone});
    }
    // An absent "RoleId" still names one role, role 0, so it is not read through transContentAsList.
    const QVariant roleIdValue = pushInfo.value(QStringLiteral("RoleId"));
    const QVariantList roleIds = isList(roleIdValue) ? roleIdValue.toList() : QVariantList{roleIdValue};
    QVariantList targets;
    for (const QVariant& roleIdText : roleIds) {
        const int roleId = integerOf(roleIdText);
        targets.append(QVariantMap{
            {TARGET_NAME, roleNameOf(manager, roleId)},
            {TARGET_ACTION, QString()},
            {TARGET_PUSH_ALL, false},
            {QStringLiteral("roleId"), roleId},
        });
    }
    return actionModel(ACTION_TYPE_MOBILENOTIFICATION, targets);
}

QString MobileNotificationActionParser::ActionTargetToXml(const QVariant&)
{
    return decodeOnlyActionXml();
}

// ---- Factory ----

namespace {
template <class Parser>
QSharedPointer<IActionParser> makeParser()
{
    return QSharedPointer<IActionParser>(new Parser);
}
} // namespace

QSharedPointer<IActionParser> ActionParserFactory::GetActionParser(const QString& actionType)
{
    // Knows only the ten types the editor works with by model type; IP audio and mobile notifications
    // are reached through the <Action> element alone.
    if (actionType == ACTION_TYPE_SENDMAIL)
        return makeParser<SendMailActionParser>();
    if (actionType == ACTION_TYPE_SMS)
        return makeParser<SMSActionParser>();
    if (actionType == ACTION_TYPE_HTTP)
        return makeParser<HTTPActionParser>();
    if (actionType == ACTION_TYPE_RECORDING)
        return makeParser<RecordingActionParser>();
    if (actionType == ACTION_TYPE_PRESET)
        return makeParser<PresetActionParser>();
    if (actionType == ACTION_TYPE_SETDO)
        return makeParser<SetDOActionParser>();
    if (actionType == ACTION_TYPE_CLIENTNOTIFY_GOTO_LIVESTREAM)
        return makeParser<ClientNotifyGotoLiveStreamActionParser>();
    if (actionType == ACTION_TYPE_CLIENTNOTIFY_GOTO_EMAP)
        return makeParser<ClientNotifyGotoEMapActionParser>();
    if (actionType == ACTION_TYPE_CLIENTNOTIFY_SOUND_THE_ALARM)
        return makeParser<ClientNotifySoundTheAlarmActionParser>();
    if (actionType == ACTION_TYPE_ADDBOOKMARK)
        return makeParser<AddBookmarkAlarmActionParser>();
    return {};
}

QSharedPointer<IActionParser> ActionParserFactory::GetActionParser(const QMap<QString, QVariant>& action)
{
    // The order decides for an element with two type children: the earlier type wins.
    if (action.contains(ACTION_TYPE_SENDMAIL))
        return makeParser<SendMailActionParser>();
    if (action.contains(ACTION_TYPE_SMS))
        return makeParser<SMSActionParser>();
    if (action.contains(ACTION_TYPE_HTTP))
        return makeParser<HTTPActionParser>();
    if (action.contains(ACTION_TYPE_RECORDING))
        return makeParser<RecordingActionParser>();
    if (action.contains(ACTION_TYPE_PRESET))
        return makeParser<PresetActionParser>();
    if (action.contains(ACTION_TYPE_SETDO))
        return makeParser<SetDOActionParser>();
    if (action.contains(ACTION_TYPE_CLIENTNOTIFY)) {
        const QString notificationType =
            textAt(action, {ACTION_TYPE_CLIENTNOTIFY, QStringLiteral("Type")});
        if (notificationType == NOTIFY_TYPE_POPUP)
            return makeParser<ClientNotifyGotoLiveStreamActionParser>();
        if (notificationType == NOTIFY_TYPE_EMAP)
            return makeParser<ClientNotifyGotoEMapActionParser>();
        if (notificationType == NOTIFY_TYPE_SOUND)
            return makeParser<ClientNotifySoundTheAlarmActionParser>();
        return {};
    }
    if (action.contains(ACTION_TYPE_ADDBOOKMARK))
        return makeParser<AddBookmarkAlarmActionParser>();
    if (action.contains(ACTION_TYPE_PLAYIPAUDIO))
        return makeParser<PlayIPAudioAlarmActionParser>();
    if (action.contains(ACTION_TYPE_MOBILENOTIFICATION))
        return makeParser<MobileNotificationActionParser>();
    return {};
}
