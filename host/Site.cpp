#include "Site.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace {

QString escaped(const QVariant& value)
{
    return value.toString().toHtmlEscaped();
}

QString latencyXml(int seconds)
{
    return QStringLiteral("<Rule><Latency>%1</Latency></Rule>").arg(seconds);
}

QString cameraEvent(const QString& camera, const QString& eventType, const QString& body = QString())
{
    return QStringLiteral("<CamEventTrigger><CamName>%1</CamName><EventType>%2</EventType>%3%4</CamEventTrigger>")
        .arg(camera, eventType, latencyXml(0), body);
}

} // namespace

Site::Site(QObject* parent)
    : QObject(parent)
{
}

bool Site::load(const QString& dataDirectory, QString* errorText)
{
    QFile file(QDir(dataDirectory).filePath(QStringLiteral("site.json")));
    if (!file.open(QIODevice::ReadOnly)) {
        if (errorText)
            *errorText = QStringLiteral("cannot read %1").arg(file.fileName());
        return false;
    }
    QJsonParseError error;
    const QJsonObject site = QJsonDocument::fromJson(file.readAll(), &error).object();
    if (error.error != QJsonParseError::NoError) {
        if (errorText)
            *errorText = QStringLiteral("%1: %2").arg(file.fileName(), error.errorString());
        return false;
    }
    m_name = site.value(QLatin1String("name")).toString();
    m_cameras = site.value(QLatin1String("cameras")).toArray().toVariantList();
    m_stations = site.value(QLatin1String("stations")).toArray().toVariantList();
    m_ioDevices = site.value(QLatin1String("ioDevices")).toArray().toVariantList();
    m_roles = site.value(QLatin1String("roles")).toArray().toVariantList();
    m_schedules = site.value(QLatin1String("schedules")).toArray().toVariantList();
    m_maps = site.value(QLatin1String("maps")).toArray().toVariantList();
    m_virtualTriggers = site.value(QLatin1String("virtualTriggers")).toArray().toVariantList();
    m_supportsGuardian = site.value(QLatin1String("supportGuardian")).toBool(true);
    m_sounds = QDir(QDir(dataDirectory).filePath(QStringLiteral("sounds")))
                   .entryList({QStringLiteral("*.mp3")}, QDir::Files, QDir::Name);
    return true;
}

QVariantMap Site::device(const QString& deviceId) const
{
    for (const QVariantList* devices : {&m_cameras, &m_stations, &m_ioDevices}) {
        for (const QVariant& entry : *devices) {
            const QVariantMap map = entry.toMap();
            if (map.value(QStringLiteral("id")).toString() == deviceId)
                return map;
        }
    }
    return {};
}

QString Site::deviceName(const QString& deviceId) const
{
    return device(deviceId).value(QStringLiteral("name")).toString();
}

QStringList Site::inputNames(const QString& deviceId) const
{
    return device(deviceId).value(QStringLiteral("diNames")).toStringList();
}

QStringList Site::outputNames(const QString& deviceId) const
{
    return device(deviceId).value(QStringLiteral("doNames")).toStringList();
}

QString Site::roleName(int roleId) const
{
    for (const QVariant& entry : m_roles) {
        const QVariantMap role = entry.toMap();
        if (role.value(QStringLiteral("id")).toInt() == roleId)
            return role.value(QStringLiteral("name")).toString();
    }
    return QString();
}

QString Site::scheduleContent(const QString& scheduleName) const
{
    for (const QVariant& entry : m_schedules) {
        const QVariantMap schedule = entry.toMap();
        if (schedule.value(QStringLiteral("name")).toString() == scheduleName)
            return schedule.value(QStringLiteral("content")).toString();
    }
    return QString();
}

QString Site::triggerListXml(const QVariantList& triggers) const
{
    QString xml;
    for (const QVariant& entry : triggers) {
        const QVariantMap trigger = entry.toMap();
        const QString kind = trigger.value(QStringLiteral("kind")).toString();
        const QString camera = escaped(trigger.value(QStringLiteral("device")));
        const int index = std::max(1, trigger.value(QStringLiteral("index")).toInt());
        if (kind == QLatin1String("virtual")) {
            const QString name = escaped(trigger.value(QStringLiteral("name")));
            int id = trigger.value(QStringLiteral("id")).toInt();
            if (id <= 0) {
                // A new button gets the next free id of the site's virtual triggers.
                id = 1;
                for (const QVariant& known : m_virtualTriggers)
                    id = std::max(id, known.toMap().value(QStringLiteral("id")).toInt() + 1);
            }
            xml += QStringLiteral("<ExtDeviceEventTrigger><EventType>VirtualTrigger</EventType><VirtualTrigger>"
                                  "<Id>%1</Id><Name>%2</Name><Camera>%3</Camera><IconType>%4</IconType>%5"
                                  "</VirtualTrigger></ExtDeviceEventTrigger>")
                       .arg(QString::number(id), name, camera,
                            QString::number(trigger.value(QStringLiteral("iconType"), 1).toInt()), latencyXml(0));
        } else if (kind == QLatin1String("motion")) {
            xml += cameraEvent(camera, QStringLiteral("Motion"),
                               QStringLiteral("<Motion><Index>%1</Index></Motion>").arg(index));
        } else if (kind == QLatin1String("di")) {
            xml += cameraEvent(camera, QStringLiteral("DI"),
                               QStringLiteral("<DI><Index>%1</Index><Value>High</Value></DI>").arg(index));
        } else if (kind == QLatin1String("tampering")) {
            xml += cameraEvent(camera, QStringLiteral("Tampering"));
        } else if (kind == QLatin1String("line")) {
            xml += cameraEvent(camera, QStringLiteral("VCA"),
                               QStringLiteral("<VCA><Type>LineDetection</Type><RuleName>%1</RuleName></VCA>")
                                   .arg(escaped(trigger.value(QStringLiteral("name")))));
        } else if (kind == QLatin1String("cameraLost")) {
            xml += QStringLiteral("<StatusEventTrigger><EventType>CamConn</EventType>%1<CamConn><CamName>%2</CamName>"
                                  "<State>Lost</State></CamConn></StatusEventTrigger>")
                       .arg(latencyXml(0), camera);
        }
    }
    return QStringLiteral("<TriggerList>%1</TriggerList>").arg(xml);
}

QString Site::actionListXml(const QVariantList& actions) const
{
    QString xml;
    for (const QVariant& entry : actions) {
        const QVariantMap action = entry.toMap();
        const QString kind = action.value(QStringLiteral("kind")).toString();
        const QStringList cameras = action.value(QStringLiteral("cameras")).toStringList();
        QString cameraEntries;
        if (kind == QLatin1String("popup")) {
            for (const QString& camera : cameras)
                cameraEntries += QStringLiteral("<Cam ShowMotion='0'>%1</Cam>").arg(camera.toHtmlEscaped());
            xml += QStringLiteral("<Action><ClientNotification><Type>Popup Window</Type><PopupWindow><Size>Large</Size>"
                                  "<ShowTime>5</ShowTime><AutoClose>false</AutoClose><IncludeTriggerCam>true"
                                  "</IncludeTriggerCam>%1</PopupWindow></ClientNotification></Action>")
                       .arg(cameraEntries);
        } else if (kind == QLatin1String("record")) {
            for (const QString& camera : cameras)
                cameraEntries += QStringLiteral("<Cam GrpID=\"1\">%1</Cam>").arg(camera.toHtmlEscaped());
            xml += QStringLiteral("<Action><Recording>%1</Recording></Action>").arg(cameraEntries);
        } else if (kind == QLatin1String("preset")) {
            for (const QString& camera : cameras)
                cameraEntries += QStringLiteral("<Entry><Name>%1</Name><Pos>1</Pos></Entry>").arg(camera.toHtmlEscaped());
            xml += QStringLiteral("<Action><PresetLocMove>%1</PresetLocMove></Action>").arg(cameraEntries);
        } else if (kind == QLatin1String("sound")) {
            xml += QStringLiteral("<Action><ClientNotification><Type>SoundTheAlarm</Type><SoundTheAlarm><Sound>%1"
                                  "</Sound></SoundTheAlarm></ClientNotification></Action>")
                       .arg(escaped(action.value(QStringLiteral("sound"))));
        } else if (kind == QLatin1String("mail")) {
            xml += QStringLiteral("<Action><SendMail><SenderName>Site alarms</SenderName><From>alarms@site.example</From>"
                                  "<To>%1</To><Cc></Cc><Subject>%2</Subject><MailContent>%3</MailContent></SendMail>"
                                  "</Action>")
                       .arg(escaped(action.value(QStringLiteral("to"))), escaped(action.value(QStringLiteral("subject"))),
                            escaped(action.value(QStringLiteral("message"))));
        } else if (kind == QLatin1String("sms")) {
            xml += QStringLiteral("<Action><SMS><PhoneNum>%1</PhoneNum><Message>%2</Message></SMS></Action>")
                       .arg(escaped(action.value(QStringLiteral("phone"))),
                            escaped(action.value(QStringLiteral("message"))));
        }
    }
    return QStringLiteral("<ActionList>%1</ActionList>").arg(xml);
}
