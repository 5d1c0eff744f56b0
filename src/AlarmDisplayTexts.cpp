#include "AlarmDisplayTexts.h"

#include <QObject>
#include <QVariantMap>

#include "stdafx.h"
#include "VariantTree.h"

using namespace ActionParserCommon;
using namespace AlarmMessageParserCommon;

// A list stored under a role or inside one; a text, which QVariant would split into characters, is none.
using VariantTree::listOf;

namespace {

// The output kind of "typeDIO" in words (the trigger codec writes TRIGGER_DIO_TYPE_DO); every other kind is
// an input.
const QString IO_KIND_OUTPUT = QStringLiteral("DO");

// The trigger the row's single trigger-type string stands for: the last one of that type (the codec writes
// the type of the last trigger), or simply the last one when none carries the type.
QVariantMap triggerOfType(const QString& type, const QVariantList& sourceList)
{
    for (auto it = sourceList.crbegin(); it != sourceList.crend(); ++it) {
        const QVariantMap trigger = it->toMap();
        if (trigger.value(TRIGGER_TYPE).toString() == type)
            return trigger;
    }
    return sourceList.isEmpty() ? QVariantMap() : sourceList.constLast().toMap();
}

bool isOutput(const QVariantMap& trigger)
{
    const QVariant kind = trigger.value(TRIGGER_DIO_TYPE);
    return kind.toString() == IO_KIND_OUTPUT || (kind.toInt() == TRIGGER_DIO_TYPE_DO);
}

bool isNumber(const QString& text)
{
    bool isInt = false;
    text.toInt(&isInt);
    return isInt;
}

// "%1 %2" with whichever of the two parts is there.
QString joinedParts(const QString& first, const QString& second)
{
    if (first.isEmpty())
        return second;
    if (second.isEmpty())
        return first;
    return QObject::tr("%1 %2").arg(first, second);
}

// Which value word means which state, per value-dependent trigger type; a value in none of the rows gives no
// text, so the raw type is shown rather than a guess. The camera codec carries the numeric "Type" of the
// video-loss element, the words are accepted too; virtual memory uses the storage capacity words and the
// plain ones.
struct StateText
{
    const char* type;
    const char* value;
    const char* text;
};

const StateText STATE_TEXTS[] = {
    {"VideoLossRestore", "0", QT_TRANSLATE_NOOP("QObject", "Video loss")},
    {"VideoLossRestore", "Loss", QT_TRANSLATE_NOOP("QObject", "Video loss")},
    {"VideoLossRestore", "1", QT_TRANSLATE_NOOP("QObject", "Video restore")},
    {"VideoLossRestore", "Restore", QT_TRANSLATE_NOOP("QObject", "Video restore")},
    {"CamConn", "Connected", QT_TRANSLATE_NOOP("QObject", "Camera connected")},
    {"CamConn", "Lost", QT_TRANSLATE_NOOP("QObject", "Camera disconnected")},
    {"RecStatus", "Start", QT_TRANSLATE_NOOP("QObject", "Start recording")},
    {"RecStatus", "Stop", QT_TRANSLATE_NOOP("QObject", "Stop recording")},
    {"FanStatus", "Fine", QT_TRANSLATE_NOOP("QObject", "Fan resumes operation")},
    {"FanStatus", "Error", QT_TRANSLATE_NOOP("QObject", "Fan error")},
    {"StorageConn", "Available", QT_TRANSLATE_NOOP("QObject", "Storage ready")},
    {"StorageConn", "Unavailable", QT_TRANSLATE_NOOP("QObject", "Storage failure")},
    {"StorageCapacity", "Healthy", QT_TRANSLATE_NOOP("QObject", "Storage space available")},
    {"StorageCapacity", "Exhausted", QT_TRANSLATE_NOOP("QObject", "Storage full")},
    {"SysLicense", "Ready", QT_TRANSLATE_NOOP("QObject", "License ready")},
    {"SysLicense", "TrialExpired", QT_TRANSLATE_NOOP("QObject", "Trial expired")},
    {"SysLicense", "DongleLost", QT_TRANSLATE_NOOP("QObject", "Dongle lost")},
    {"SysVirMem", "Healthy", QT_TRANSLATE_NOOP("QObject", "Virtual memory available")},
    {"SysVirMem", "Available", QT_TRANSLATE_NOOP("QObject", "Virtual memory available")},
    {"SysVirMem", "Exhausted", QT_TRANSLATE_NOOP("QObject", "Low virtual memory")},
    {"SysVirMem", "Low", QT_TRANSLATE_NOOP("QObject", "Low virtual memory")},
    {"FailoverState", "Running", QT_TRANSLATE_NOOP("QObject", "Failover server running")},
    {"FailoverState", "Standby", QT_TRANSLATE_NOOP("QObject", "Failover server on standby")},
};

} // namespace

namespace AlarmDisplayTexts {

QString triggerTypeText(const QString& type, const QVariantList& sourceList)
{
    const QString byValue = translatedTriggerTypeWithSourceValue(type, sourceList);
    if (!byValue.isEmpty())
        return byValue;
    if (isIOBoxTriggerType(type))
        return translatedTriggerTypeWithIOBox(sourceList);
    return translatedTriggerType(type);
}

QString translatedTriggerType(const QString& type)
{
    // First match wins; "ExtDataMagnet" and "ExtAccessRule" share their text on purpose.
    static const QList<QPair<QString, const char*>> table = {
        {QStringLiteral("Motion"), QT_TRANSLATE_NOOP("QObject", "Motion detection")},
        {QStringLiteral("DI"), QT_TRANSLATE_NOOP("QObject", "Camera DI")},
        {QStringLiteral("DO"), QT_TRANSLATE_NOOP("QObject", "Camera DO")},
        {QStringLiteral("VideoLoss"), QT_TRANSLATE_NOOP("QObject", "Video loss")},
        {QStringLiteral("VideoRestore"), QT_TRANSLATE_NOOP("QObject", "Video restore")},
        {QStringLiteral("PIR"), QT_TRANSLATE_NOOP("QObject", "PIR (Passive infrared)")},
        {QStringLiteral("Tampering"), QT_TRANSLATE_NOOP("QObject", "Tampering detection")},
        {QStringLiteral("Temperature"), QT_TRANSLATE_NOOP("QObject", "Temperature")},
        {QStringLiteral("IR"), QT_TRANSLATE_NOOP("QObject", "IR (Infrared)")},
        {QStringLiteral("SmartSD"), QT_TRANSLATE_NOOP("QObject", "SD card life expectancy detection")},
        {QStringLiteral("AudioDetection"), QT_TRANSLATE_NOOP("QObject", "Audio detection")},
        {QStringLiteral("ShockDetection"), QT_TRANSLATE_NOOP("QObject", "Shock detection")},
        {QStringLiteral("LineDetection"), QT_TRANSLATE_NOOP("QObject", "Line crossing detection")},
        {QStringLiteral("FieldDetection"), QT_TRANSLATE_NOOP("QObject", "Intrusion detection")},
        {QStringLiteral("Loitering"), QT_TRANSLATE_NOOP("QObject", "Loitering detection")},
        {QStringLiteral("AbandonObject"), QT_TRANSLATE_NOOP("QObject", "Unattended object detection")},
        {QStringLiteral("FaceDetection"), QT_TRANSLATE_NOOP("QObject", "Face detection")},
        {QStringLiteral("ZoneDetection"), QT_TRANSLATE_NOOP("QObject", "Zone detection")},
        {QStringLiteral("MissingObject"), QT_TRANSLATE_NOOP("QObject", "Missing object detection")},
        {QStringLiteral("CrowdDetection"), QT_TRANSLATE_NOOP("QObject", "Crowd detection")},
        {QStringLiteral("CyberAttack"), QT_TRANSLATE_NOOP("QObject", "Cyber attack")},
        {QStringLiteral("SmartTracking"), QT_TRANSLATE_NOOP("QObject", "Smart tracking")},
        {QStringLiteral("ParkingViolationDetection"), QT_TRANSLATE_NOOP("QObject", "Parking violation detection")},
        {QStringLiteral("VirtualTrigger"), QT_TRANSLATE_NOOP("QObject", "Virtual trigger")},
        {QStringLiteral("ThermalIntrusion"), QT_TRANSLATE_NOOP("QObject", "Intrusion")},
        {QStringLiteral("ThermalMultiLoitering"), QT_TRANSLATE_NOOP("QObject", "Multi-loitering")},
        {QStringLiteral("FireSpotDetection"), QT_TRANSLATE_NOOP("QObject", "Fire spot detection")},
        {QStringLiteral("SmokerDetection"), QT_TRANSLATE_NOOP("QObject", "Smoker detection")},
        {QStringLiteral("SmokeAndFlameDetection"), QT_TRANSLATE_NOOP("QObject", "Smoke and flame detection")},
        {QStringLiteral("TemperatureThresholdWarning"), QT_TRANSLATE_NOOP("QObject", "Temperature threshold warning")},
        {QStringLiteral("TemperatureThresholdAlarm"), QT_TRANSLATE_NOOP("QObject", "Temperature threshold alarm")},
        {QStringLiteral("TemperatureDifferenceWarning"), QT_TRANSLATE_NOOP("QObject", "Temperature difference warning")},
        {QStringLiteral("TemperatureDifferenceAlarm"), QT_TRANSLATE_NOOP("QObject", "Temperature difference alarm")},
        {QStringLiteral("TemperatureRiseWarning"), QT_TRANSLATE_NOOP("QObject", "Temperature rise warning")},
        {QStringLiteral("TemperatureRiseAlarm"), QT_TRANSLATE_NOOP("QObject", "Temperature rise alarm")},
        {QStringLiteral("TemperatureSectionAlarm"), QT_TRANSLATE_NOOP("QObject", "Temperature section alarm")},
        {QStringLiteral("PPTZTrigger"), QT_TRANSLATE_NOOP("QObject", "PPTZ")},
        {QStringLiteral("RecErr"), QT_TRANSLATE_NOOP("QObject", "Recording error")},
        {QStringLiteral("ExtTCPMessage"), QT_TRANSLATE_NOOP("QObject", "TCP message")},
        {QStringLiteral("ExtDataMagnet"), QT_TRANSLATE_NOOP("QObject", "Data magnet")},
        {QStringLiteral("ExtAccessRule"), QT_TRANSLATE_NOOP("QObject", "Data magnet")},
        {QStringLiteral("GpsSpeed"), QT_TRANSLATE_NOOP("QObject", "Speeding")},
        {QStringLiteral("SysVcaAreaReport"), QT_TRANSLATE_NOOP("QObject", "Number of remaining people")},
        {QStringLiteral("BruteForceAttack"), QT_TRANSLATE_NOOP("QObject", "Brute force attack")},
        {QStringLiteral("QuarantineEvent"), QT_TRANSLATE_NOOP("QObject", "Quarantine event")},
        {QStringLiteral("RunningDetection"), QT_TRANSLATE_NOOP("QObject", "People running detection")},
        {QStringLiteral("RestrictedZoneDetection"), QT_TRANSLATE_NOOP("QObject", "Restricted zone detection")},
        {QStringLiteral("Guardian"), QT_TRANSLATE_NOOP("QObject", "List management")},
    };
    for (const auto& entry : table) {
        if (entry.first == type)
            return QObject::tr(entry.second);
    }
    return type;
}

bool isIOBoxTriggerType(const QString& type)
{
    return type == QLatin1String("ExtIODevice") || type == QLatin1String("DIOStatus");
}

QString translatedTriggerTypeWithIOBox(const QVariantList& sourceList)
{
    QVariantMap trigger = triggerOfType(QStringLiteral("ExtIODevice"), sourceList);
    if (!trigger.contains(TRIGGER_DIO_TYPE))
        trigger = triggerOfType(QStringLiteral("DIOStatus"), sourceList);
    return isOutput(trigger) ? QObject::tr("DI/DO Device DO") : QObject::tr("DI/DO Device DI");
}

QString translatedTriggerTypeWithSourceValue(const QString& type, const QVariantList& sourceList)
{
    // Texts that hold whatever the value says.
    if (type == QLatin1String("Gsensor"))
        return QObject::tr("Abnormal G-sensor motion (Mobile NVR)");
    if (type == QLatin1String("GpsConn"))
        return QObject::tr("GPS disconnected");
    if (type == QLatin1String("GpsSpeed"))
        return QObject::tr("Speeding");

    const QString value = triggerOfType(type, sourceList).value(TRIGGER_VALUE).toString();
    if (type == QLatin1String("StationConn") || type == QLatin1String("SysNetwork")) {
        // A link is either up or down: only "Down" means disconnected.
        return value == QLatin1String("Down") ? QObject::tr("Network disconnected") : QObject::tr("Network connected");
    }
    for (const StateText& entry : STATE_TEXTS) {
        if (type == QLatin1String(entry.type) && value == QLatin1String(entry.value))
            return QObject::tr(entry.text);
    }
    return {};
}

namespace {

QString triggerSourceDisplayValue(const QVariantMap& trigger)
{
    QString type = trigger.value(TRIGGER_TYPE).toString();
    const QString index = trigger.value(TRIGGER_INDEX).toString();
    const QString value = trigger.value(TRIGGER_VALUE).toString();

    if (type == QLatin1String("DI"))
        return QObject::tr("DI-%1").arg(index);
    if (type == QLatin1String("DO"))
        return QObject::tr("DO-%1").arg(index);
    if (type == QLatin1String("Motion"))
        return QObject::tr("Window %1").arg(index);
    // The VCA and thermal codecs carry the rule kind in "index", a trigger type word of its own.
    if (type == QLatin1String("VCA"))
        return QObject::tr("VCA-%1").arg(translatedTriggerType(index));
    if (type == QLatin1String("Thermal"))
        return joinedParts(translatedTriggerType(index), value);
    if (isIOBoxTriggerType(type)) {
        // A numbered input or output reads like the camera's own; a named one keeps its name.
        if (!isNumber(index))
            return index.isEmpty() ? value : index;
        return (isOutput(trigger) ? QObject::tr("DO-%1") : QObject::tr("DI-%1")).arg(index);
    }

    // Status triggers show their state in words; the position-tracking ones come written both ways.
    if (type == QLatin1String("GPSConn"))
        type = QStringLiteral("GpsConn");
    else if (type == QLatin1String("GPSSpeed"))
        type = QStringLiteral("GpsSpeed");
    const QString state = translatedTriggerTypeWithSourceValue(type, {trigger});
    if (!state.isEmpty())
        return state;
    return joinedParts(index, value);
}

} // namespace

QVariantList translatedTriggerSourceType(const QVariantList& sourceList)
{
    QVariantList display;
    display.reserve(sourceList.size());
    for (const QVariant& source : sourceList) {
        const QVariantMap trigger = source.toMap();
        display.append(QVariantMap{{TRIGGER_DEV_NAME, trigger.value(TRIGGER_DEV_NAME).toString()},
                                   {TRIGGER_DISPLAY_VALUE, triggerSourceDisplayValue(trigger)}});
    }
    return display;
}

QVariantList translatedActionType(const QVariantList& typeList)
{
    static const QList<QPair<QString, const char*>> table = {
        {ACTION_TYPE_SENDMAIL, QT_TRANSLATE_NOOP("QObject", "Email")},
        {ACTION_TYPE_SMS, QT_TRANSLATE_NOOP("QObject", "GSM short message")},
        {ACTION_TYPE_FTP, QT_TRANSLATE_NOOP("QObject", "FTP")},
        {ACTION_TYPE_HTTP, QT_TRANSLATE_NOOP("QObject", "Send HTTP requests")},
        {ACTION_TYPE_RECORDING, QT_TRANSLATE_NOOP("QObject", "Start to record videos")},
        {ACTION_TYPE_PRESET, QT_TRANSLATE_NOOP("QObject", "Go to camera presets")},
        {ACTION_TYPE_SETDO, QT_TRANSLATE_NOOP("QObject", "Set DO status")},
        {ACTION_TYPE_LAUNCH_PROGRAM, QT_TRANSLATE_NOOP("QObject", "Launch program")},
        {ACTION_TYPE_CLIENTNOTIFY_GOTO_LIVESTREAM, QT_TRANSLATE_NOOP("QObject", "Send live streaming")},
        {ACTION_TYPE_CLIENTNOTIFY_GOTO_EMAP, QT_TRANSLATE_NOOP("QObject", "Go to E-Map")},
        {ACTION_TYPE_CLIENTNOTIFY_SOUND_THE_ALARM, QT_TRANSLATE_NOOP("QObject", "Sound the alarm")},
        {ACTION_TYPE_ADDBOOKMARK, QT_TRANSLATE_NOOP("QObject", "Add bookmark")},
        {ACTION_TYPE_PLAYIPAUDIO, QT_TRANSLATE_NOOP("QObject", "Play audio file with network audio device")},
        {ACTION_TYPE_MOBILENOTIFICATION, QT_TRANSLATE_NOOP("QObject", "Send notification to mobile device")},
    };
    QVariantList display;
    display.reserve(typeList.size());
    for (const QVariant& element : typeList) {
        // Whole action models are accepted as well as their type strings.
        const QString type = element.typeId() == QMetaType::QVariantMap ? element.toMap().value(ACTION_MODEL_TYPE).toString()
                                                                        : element.toString();
        QString text = type; // an action type of a newer server is shown as it is called
        for (const auto& entry : table) {
            if (entry.first == type) {
                text = QObject::tr(entry.second);
                break;
            }
        }
        display.append(text);
    }
    return display;
}

namespace {

QVariantMap actionTargetDisplay(const QVariantMap& target)
{
    // The kind of action is read from the target's own keys, so the texts stay right even if the type list
    // beside it were out of step.
    QString targetText = target.value(TARGET_NAME).toString();
    QString actionText = target.value(TARGET_ACTION).toString();

    if (target.contains(TARGET_CC)) {
        // Mail: recipients and copies.
        const QString cc = target.value(TARGET_CC).toString();
        targetText = QObject::tr("To: %1").arg(targetText);
        actionText = cc.isEmpty() ? QString() : QObject::tr("Cc: %1").arg(cc);
    } else if (actionText == ACTION_TYPE_SETDO) {
        QString output = target.value(TARGET_INDEX).toString();
        if (output.isEmpty())
            output = QObject::tr("DO-%1").arg(target.value(TARGET_IO_INDEX).toInt());
        const QString value = target.value(TARGET_VALUE).toString();
        if (value == QLatin1String("1") || value == QLatin1String("Trigger"))
            actionText = QObject::tr("Set %1 to Trigger").arg(output);
        else if (value == QLatin1String("0") || value == QLatin1String("Normal"))
            actionText = QObject::tr("Set %1 to Normal").arg(output);
        else
            actionText = QObject::tr("Set %1 to %2").arg(output, value);
    } else if (target.contains(TARGET_POST)) {
        // HTTP: the method label was written in English by the decoder.
        targetText = target.value(TARGET_POST).toBool() ? QObject::tr("POST Method") : QObject::tr("GET Method");
    } else if (target.value(TARGET_INCLUDE_TRIGGER_CAM).toBool()) {
        // Decoded under the language of that moment; shown in the current one.
        targetText = QObject::tr("Event triggering camera");
    } else if (target.value(TARGET_PUSH_ALL).toBool()) {
        targetText = QObject::tr("All roles");
    }
    return QVariantMap{{TARGET_NAME, targetText}, {TARGET_ACTION, actionText}};
}

} // namespace

QVariantList translatedActionTarget(const QVariantList& targetList)
{
    QVariantList display;
    display.reserve(targetList.size());
    for (const QVariant& element : targetList) {
        const QVariantList targets = element.typeId() == QMetaType::QVariantMap
                                         ? listOf(element.toMap().value(ACTION_MODEL_TARGET))
                                         : listOf(element);
        QVariantList actionDisplay;
        actionDisplay.reserve(targets.size());
        for (const QVariant& target : targets)
            actionDisplay.append(actionTargetDisplay(target.toMap()));
        display.append(QVariant(actionDisplay));
    }
    return display;
}

} // namespace AlarmDisplayTexts
