#include "AlarmEventParser.h"

#include <QDateTime>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QStringList>

#include "PluginAlarmManager.h"
#include "VariantTree.h"
#include "XML2Json.h"

using namespace VariantTree;

namespace {

// Element names of the event document.
const QString TAG_ALARM_NOTIFICATION = QStringLiteral("AlarmNotification");
const QString TAG_ALARM              = QStringLiteral("Alarm");
const QString TAG_NAME               = QStringLiteral("Name");
const QString TAG_ALARM_ID           = QStringLiteral("AlarmID");
const QString TAG_TIMECARD_ID        = QStringLiteral("TmcardID");
const QString TAG_MUTE               = QStringLiteral("Mute");
const QString TAG_QUESSA_EVENT       = QStringLiteral("QuessaEvent");
const QString TAG_TYPE               = QStringLiteral("Type");
const QString TAG_EVENT              = QStringLiteral("Event");
const QString TAG_STATE              = QStringLiteral("State");
const QString TAG_EVENT_TYPE         = QStringLiteral("EventType");
const QString TAG_VCA                = QStringLiteral("VCA");
const QString TAG_INDEX              = QStringLiteral("Index");
const QString TAG_VALUE              = QStringLiteral("Value");
const QString TAG_MESSAGE            = QStringLiteral("Message");
const QString TAG_CAMERA             = QStringLiteral("Camera");
const QString TAG_CAM_NAME           = QStringLiteral("CamName");
const QString TAG_DEVICE_NAME        = QStringLiteral("DeviceName");
const QString TAG_STATION_ADDRESS    = QStringLiteral("StationAddress");
const QString TAG_REF_NAME           = QStringLiteral("RefName");
const QString TAG_CATEGORY           = QStringLiteral("Category");
const QString TAG_RULE_NAME          = QStringLiteral("RuleName");
const QString TAG_DATA_SOURCE        = QStringLiteral("DataSource");
const QString TAG_SPEED              = QStringLiteral("Speed");
const QString TAG_AREA_ID            = QStringLiteral("AreaId");
const QString TAG_REMAINING_PEOPLE   = QStringLiteral("RemainingPeople");
const QString TAG_SERVER_TIME        = QStringLiteral("ServerTime");
const QString ATTRIBUTE_THRESHOLD    = QStringLiteral("@threshold");
const QString ELEMENT_TEXT           = QStringLiteral("#text");

// Trigger types and event types that change how an event is read.
const QString TYPE_STORAGE_CAPACITY  = QStringLiteral("StorageCapacity");
const QString TYPE_STORAGE_CAP       = QStringLiteral("StorageCap");
const QString TYPE_GPS_SPEED         = QStringLiteral("GpsSpeed");
const QString TYPE_AREA_REPORT       = QStringLiteral("SysVcaAreaReport");
const QString TYPE_DATA_MAGNET       = QStringLiteral("ExtDataMagnet");
const QString TYPE_ACCESS_RULE       = QStringLiteral("ExtAccessRule");
const QString TYPE_VIRTUAL_TRIGGER   = QStringLiteral("VirtualTrigger");
const QString EVENT_TYPE_VCA         = QStringLiteral("VCA");
const QString EVENT_TYPE_GUARDIAN    = QStringLiteral("Guardian");
const QString EVENT_TYPE_THERMAL     = QStringLiteral("Thermal");

const QString TRUE_TEXT = QStringLiteral("true");
const QString ONE_TEXT  = QStringLiteral("1");

// One kind of video-content-analysis rule: the text shown for it and the rule-map keys that fill %2, %3, …
// after the rule name. Order matters: the first kind present in the VCA map decides.
struct VcaTemplate
{
    QString kind;
    QString text;
    QStringList argumentKeys;
    bool argumentsAreIntegers;
};

const VcaTemplate VCA_TEMPLATES[] = {
    {QStringLiteral("CrowdDetection"),
     QStringLiteral("{%1, \"DetectAreaReference\": \"%2\", \"InsideCount\": \"%3\"}"),
     {QStringLiteral("DetectAreaReference"), QStringLiteral("InsideCount")}, false},
    {QStringLiteral("FieldDetection"), QStringLiteral("{%1, \"Inside\": \"%2\"}"), {QStringLiteral("Inside")}, false},
    {QStringLiteral("Loitering"), QStringLiteral("{%1}"), {}, false},
    {QStringLiteral("SmartTracking"), QStringLiteral("{%1, \"Type\": \"%2\", \"Value\": \"%3\"}"),
     {QStringLiteral("Type"), QStringLiteral("Value")}, false},
    {QStringLiteral("RunningDetection"), QStringLiteral("{%1}"), {}, false},
    {QStringLiteral("ParkingViolationDetection"), QStringLiteral("{%1}"), {}, false},
    {QStringLiteral("RestrictedZoneDetection"), QStringLiteral("{%1}"), {}, false},
    {QStringLiteral("LineDetection"), QStringLiteral("{%1}"), {}, false},
    {QStringLiteral("FaceDetection"), QStringLiteral("{%1}"), {}, false},
    {QStringLiteral("ZoneDetection"),
     QStringLiteral("{%1, \"InsideCount\": %2, \"MaxDuration\": %3, \"MinDuration\": %4, \"AvgDuration\": %5}"),
     {QStringLiteral("InsideCount"), QStringLiteral("MaxDuration"), QStringLiteral("MinDuration"),
      QStringLiteral("AvgDuration")},
     true},
    {QStringLiteral("MissingObject"), QStringLiteral("{%1}"), {}, false},
    {QStringLiteral("AbandonObject"), QStringLiteral("{%1}"), {}, false},
};

// Site prefixes of reference names: station, camera, device. Only a leading one is dropped.
const QRegularExpression& referencePrefix()
{
    static const QRegularExpression prefix(QStringLiteral("^s_|^c_|^d_"));
    return prefix;
}

} // namespace

void AlarmEventParser::SetMessage(const QString& xml)
{
    m_alarm = mapAt(XML2Json::parse(xml), {TAG_ALARM_NOTIFICATION, TAG_ALARM});
    m_quessaEvent = mapAt(m_alarm, {TAG_QUESSA_EVENT});
    m_typeAsSent = textAt(m_quessaEvent, {TAG_TYPE});
    // Elsewhere this trigger is keyed by its short name, and so is its body under "QuessaEvent".
    m_triggerType = m_typeAsSent == TYPE_STORAGE_CAPACITY ? TYPE_STORAGE_CAP : m_typeAsSent;
    m_triggerBody = mapAt(m_quessaEvent, {m_triggerType});
    const auto event = m_triggerBody.constFind(TAG_EVENT);
    if (event != m_triggerBody.constEnd())
        m_triggerBody = event->toMap();
}

QVariantMap AlarmEventParser::GetQuessaEventMap() const
{
    return m_quessaEvent;
}

QString AlarmEventParser::GetAlarmName() const
{
    return PluginAlarmManager::DecodePercentEncodedStr(textAt(m_alarm, {TAG_NAME}));
}

QVariantMap AlarmEventParser::GetTriggerMap() const
{
    return m_triggerBody;
}

QString AlarmEventParser::GetTriggerType() const
{
    return m_triggerType;
}

QString AlarmEventParser::getTriggerValueTag(const QVariantMap& body) const
{
    for (const QString* tag : {&TAG_VALUE, &TAG_MESSAGE, &TAG_INDEX}) {
        if (body.contains(*tag))
            return *tag;
    }
    return TAG_TYPE;
}

QString AlarmEventParser::GetTriggerEvent() const
{
    const QVariantMap& body = m_triggerBody;
    const auto state = body.constFind(TAG_STATE);
    if (state != body.constEnd())
        return state->toString();
    const auto eventType = body.constFind(TAG_EVENT_TYPE);
    if (eventType != body.constEnd()) {
        const QString eventTypeText = eventType->toString();
        if (eventTypeText != EVENT_TYPE_VCA)
            return eventTypeText;
        // For video analysis the kind of rule that fired is the event.
        return textAt(body, {TAG_VCA, TAG_TYPE});
    }
    return m_triggerType;
}

QString AlarmEventParser::GetVCARuleName(const QVariantMap& rule) const
{
    const auto ruleName = rule.constFind(TAG_RULE_NAME);
    if (ruleName == rule.constEnd())
        return {};
    return QStringLiteral("\"RuleName\": \"%1\"").arg(ruleName->toString());
}

QString AlarmEventParser::GetVCAValue(const QVariantMap& vca) const
{
    for (const VcaTemplate& vcaTemplate : VCA_TEMPLATES) {
        const auto ruleEntry = vca.constFind(vcaTemplate.kind);
        if (ruleEntry == vca.constEnd())
            continue;
        const QVariantMap rule = ruleEntry->toMap();
        // One argument at a time, as the rest of the plug-in fills its templates.
        QString value = vcaTemplate.text.arg(GetVCARuleName(rule));
        for (const QString& key : vcaTemplate.argumentKeys) {
            if (vcaTemplate.argumentsAreIntegers)
                value = value.arg(rule.value(key).toInt());
            else
                value = value.arg(textAt(rule, {key}));
        }
        return value;
    }
    return {};
}

QString AlarmEventParser::GetTriggerValue() const
{
    const QVariantMap& body = m_triggerBody;
    const QString& type = m_triggerType;
    if (type == TYPE_GPS_SPEED) {
        const QVariantMap speed = mapAt(body, {TAG_SPEED});
        return QStringLiteral("{\"threshold\": %1, \"speed\": %2}")
            .arg(textAt(speed, {ATTRIBUTE_THRESHOLD}))
            .arg(textAt(speed, {ELEMENT_TEXT}));
    }
    if (type == TYPE_AREA_REPORT) {
        return QStringLiteral("{\"AreaId\": \"%1\", \"RemainingPeople\": \"%2\"}")
            .arg(textAt(body, {TAG_AREA_ID}))
            .arg(textAt(body, {TAG_REMAINING_PEOPLE}));
    }
    if (type == TYPE_DATA_MAGNET || type == TYPE_ACCESS_RULE)
        return textAt(body, {TAG_DATA_SOURCE});
    if (type == TYPE_VIRTUAL_TRIGGER)
        return PluginAlarmManager::DecodePercentEncodedStr(textAt(body, {TAG_NAME}));

    const auto eventType = body.constFind(TAG_EVENT_TYPE);
    if (eventType == body.constEnd())
        return textAt(body, {getTriggerValueTag(body)});
    const QString eventTypeText = eventType->toString();
    const QVariantMap eventBody = mapAt(body, {eventTypeText});
    if (eventTypeText == EVENT_TYPE_VCA)
        return GetVCAValue(eventBody);
    if (eventTypeText == EVENT_TYPE_GUARDIAN)
        return textAt(eventBody, {TAG_NAME});
    if (eventTypeText == EVENT_TYPE_THERMAL)
        return QString::fromUtf8(QJsonDocument(QJsonObject::fromVariantMap(eventBody)).toJson(QJsonDocument::Compact));
    return textAt(eventBody, {getTriggerValueTag(eventBody)});
}

QString AlarmEventParser::GetDIOIndex() const
{
    return textAt(m_triggerBody, {GetTriggerEvent(), TAG_INDEX});
}

QString AlarmEventParser::GetNodeID() const
{
    const QVariantMap& body = m_triggerBody;
    const QString& type = eventTypeAsSent();
    if (type == TYPE_DATA_MAGNET || type == TYPE_ACCESS_RULE) {
        // The first of the comma-separated cameras, even when it is empty.
        const QString cameras = textAt(body, {TAG_CAMERA});
        const qsizetype comma = cameras.indexOf(QLatin1Char(','));
        return comma < 0 ? cameras : cameras.left(comma);
    }
    if (type == TYPE_VIRTUAL_TRIGGER)
        return textAt(body, {TAG_CAMERA});
    for (const QString* tag : {&TAG_CAM_NAME, &TAG_DEVICE_NAME}) {
        const auto node = body.constFind(*tag);
        if (node != body.constEnd())
            return node->toString();
    }
    return textAt(body, {TAG_STATION_ADDRESS});
}

qint64 AlarmEventParser::GetServerTime() const
{
    return parseServerTimestamp(m_triggerBody.value(TAG_SERVER_TIME));
}

qint64 AlarmEventParser::parseServerTimestamp(const QVariant& value) const
{
    // An element with attributes arrives as a map; its time is the element's text.
    const QString text = value.canConvert<QString>() ? value.toString() : textAt(value.toMap(), {ELEMENT_TEXT});
    return QDateTime::fromString(text, Qt::ISODate).toMSecsSinceEpoch();
}

QString AlarmEventParser::GetDeviceName() const
{
    const QVariantMap& body = m_triggerBody;
    const QString& type = eventTypeAsSent();
    if (type == TYPE_DATA_MAGNET)
        return textAt(body, {TAG_CATEGORY});
    if (type == TYPE_ACCESS_RULE)
        return textAt(body, {TAG_RULE_NAME});
    return textAt(body, {TAG_REF_NAME}).remove(referencePrefix());
}

QString AlarmEventParser::GetAlarmId() const
{
    return textAt(m_alarm, {TAG_ALARM_ID});
}

QString AlarmEventParser::GetTimecardId() const
{
    return textAt(m_alarm, {TAG_TIMECARD_ID});
}

bool AlarmEventParser::Mute() const
{
    const auto mute = m_alarm.constFind(TAG_MUTE);
    if (mute == m_alarm.constEnd())
        return false;
    const QString muteText = mute->toString();
    return muteText == TRUE_TEXT || muteText == ONE_TEXT;
}

// Node id and device name compare the type as the server sent it, before the "StorageCap" substitution.
QString AlarmEventParser::eventTypeAsSent() const
{
    return m_typeAsSent;
}
