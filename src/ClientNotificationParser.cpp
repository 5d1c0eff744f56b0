#include "ClientNotificationParser.h"

#include "PluginAlarmManager.h"
#include "VariantTree.h"
#include "XML2Json.h"

using namespace VariantTree;

namespace {

// Element names of the notification document.
const QString TAG_CLIENT_NOTIFICATION = QStringLiteral("ClientNotification");
const QString TAG_TIMECARD_ID         = QStringLiteral("TimecardId");
const QString TAG_TYPE                = QStringLiteral("Type");
const QString TAG_POPUP_WINDOW        = QStringLiteral("PopupWindow");
const QString TAG_GO_TO_EMAP          = QStringLiteral("GoToEMap");
const QString TAG_SOUND_THE_ALARM     = QStringLiteral("SoundTheAlarm");
const QString TAG_INCLUDE_TRIGGER_CAM = QStringLiteral("IncludeTriggerCam");
const QString TAG_CAM                 = QStringLiteral("Cam");
const QString TAG_QUESSA_EVENT        = QStringLiteral("QuessaEvent");
const QString TAG_MAP_INFO            = QStringLiteral("MapInfo");
const QString TAG_MAP_ID              = QStringLiteral("MapId");
const QString TAG_PLAY_CAM            = QStringLiteral("PlayCam");
const QString TAG_SOUND               = QStringLiteral("Sound");
const QString TAG_EVENT               = QStringLiteral("Event");
const QString TAG_CAM_NAME            = QStringLiteral("CamName");
const QString TAG_CAMERA              = QStringLiteral("Camera");
const QString ELEMENT_TEXT            = QStringLiteral("#text");

// The kind of a pop-up is written with a blank, unlike its body element "PopupWindow".
const QString TYPE_POPUP_WINDOW    = QStringLiteral("Popup Window");
const QString TYPE_GO_TO_EMAP      = QStringLiteral("GoToEMap");
const QString TYPE_SOUND_THE_ALARM = QStringLiteral("SoundTheAlarm");

// Triggering event types that name their camera.
const QString EVENT_CAM_EVENT       = QStringLiteral("CamEvent");
const QString EVENT_REC_STATUS      = QStringLiteral("RecStatus");
const QString EVENT_REC_ERR         = QStringLiteral("RecErr");
const QString EVENT_CAM_CONN        = QStringLiteral("CamConn");
const QString EVENT_VIRTUAL_TRIGGER = QStringLiteral("VirtualTrigger");
const QString EVENT_DATA_MAGNET     = QStringLiteral("ExtDataMagnet");

const QString TRUE_TEXT = QStringLiteral("true");

// Keys of the maps handed to QML.
const QString KEY_MAP_ID        = QStringLiteral("mapId");
const QString KEY_PLAY_CAM_LIST = QStringLiteral("playCamList");
const QString KEY_NAME          = QStringLiteral("name");

// The kinds as the core publishes them (ClientNotificationType), plus the sound kind it handles itself.
constexpr int GO_TO_EMAP_KIND = PluginAlarmManager::GoToEMap;
constexpr int POPUP_WINDOW_KIND = PluginAlarmManager::PopupWindow;
constexpr int SOUND_THE_ALARM_KIND = 2;

} // namespace

ClientNotificationParser::ClientNotificationParser(const QString& xml)
{
    const QVariantMap root = mapAt(XML2Json::parse(xml), {TAG_CLIENT_NOTIFICATION});
    m_timecardId = textAt(root, {TAG_TIMECARD_ID});
    const QString type = textAt(root, {TAG_TYPE});
    if (type == TYPE_POPUP_WINDOW) {
        m_type = POPUP_WINDOW_KIND;
        m_parsedData = ParsePopupWindow(mapAt(root, {TAG_POPUP_WINDOW}));
    } else if (type == TYPE_GO_TO_EMAP) {
        m_type = GO_TO_EMAP_KIND;
        m_parsedData = ParseGoToEMap(mapAt(root, {TAG_GO_TO_EMAP}));
    } else if (type == TYPE_SOUND_THE_ALARM) {
        m_type = SOUND_THE_ALARM_KIND;
        m_parsedData = ParseSoundTheAlarm(mapAt(root, {TAG_SOUND_THE_ALARM}));
    }
}

int ClientNotificationParser::GetType() const
{
    return m_type;
}

QString ClientNotificationParser::GetTimecardId() const
{
    return m_timecardId;
}

QVariant ClientNotificationParser::GetParsedData() const
{
    return m_parsedData;
}

QVariantList ClientNotificationParser::ParsePopupWindow(const QVariantMap& body) const
{
    QVariantList cameras;
    // Triggering cameras come first so that the pop-up opens on the camera that raised the alarm.
    if (textAt(body, {TAG_INCLUDE_TRIGGER_CAM}) == TRUE_TEXT) {
        QVariantMap event = mapAt(body, {TAG_QUESSA_EVENT});
        QStringList eventCameras = parseCamEvent(event);
        composeUniqueList(cameras, eventCameras);
        QStringList dataMagnetCameras = parseDataMagnet(event);
        composeUniqueList(cameras, dataMagnetCameras);
    }
    // Configured cameras carry attributes, so their identifier is the element text.
    QStringList configuredCameras;
    for (const QVariant& cam : listAt(body, {TAG_CAM}))
        configuredCameras.append(textAt(cam, {ELEMENT_TEXT}));
    composeUniqueList(cameras, configuredCameras);
    return cameras;
}

QVariantList ClientNotificationParser::ParseGoToEMap(const QVariantMap& body) const
{
    QVariantList maps;
    for (const QVariant& mapInfoEntry : listAt(body, {TAG_MAP_INFO})) {
        const QVariantMap mapInfo = mapInfoEntry.toMap();
        maps.append(QVariantMap{
            {KEY_MAP_ID, mapInfo.value(TAG_MAP_ID)},
            {KEY_PLAY_CAM_LIST, listAt(mapInfo, {TAG_PLAY_CAM})},
        });
    }
    return maps;
}

QVariantList ClientNotificationParser::ParseSoundTheAlarm(const QVariantMap& body) const
{
    QVariantList sounds;
    for (const QVariant& sound : listAt(body, {TAG_SOUND}))
        sounds.append(QVariantMap{{KEY_NAME, sound.toString()}});
    return sounds;
}

QStringList ClientNotificationParser::parseCamEvent(QVariantMap& event) const
{
    const QString type = textAt(event, {TAG_TYPE});
    if (type == EVENT_CAM_EVENT) {
        QStringList cameras;
        for (const QVariant& camEvent : listAt(event, {EVENT_CAM_EVENT}))
            cameras.append(textAt(camEvent, {TAG_EVENT, TAG_CAM_NAME}));
        return cameras;
    }
    if (type == EVENT_REC_STATUS || type == EVENT_REC_ERR || type == EVENT_CAM_CONN)
        return {textAt(event, {type, TAG_CAM_NAME})};
    if (type == EVENT_VIRTUAL_TRIGGER)
        return {textAt(event, {type, TAG_CAMERA})};
    return {};
}

QStringList ClientNotificationParser::parseDataMagnet(QVariantMap& event) const
{
    QStringList cameras;
    const auto dataMagnet = event.constFind(EVENT_DATA_MAGNET);
    if (dataMagnet == event.constEnd())
        return cameras;
    // Empty parts are kept: "c1,,c2" names an empty camera as well.
    for (const QVariant& entry : XML2Json::transContentAsList(*dataMagnet))
        cameras.append(textAt(entry, {TAG_CAMERA}).split(QLatin1Char(',')));
    return cameras;
}

void ClientNotificationParser::composeUniqueList(QVariantList& out, QStringList& in) const
{
    for (const QString& camera : std::as_const(in)) {
        const QVariant entry(camera);
        if (!out.contains(entry))
            out.append(entry);
    }
}
