#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>

// The site the demo server guards: stations, cameras with their DI/DO names, I/O boxes, user roles,
// audio devices, maps and schedule templates, read from the data folder's site.json. The peer plug-ins
// answer the alarm plug-in's lookups from it, and the QML page offers its devices in the rule editor.
class Site : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString name READ name CONSTANT)
    Q_PROPERTY(QVariantList cameras READ cameras CONSTANT)
    Q_PROPERTY(QVariantList stations READ stations CONSTANT)
    Q_PROPERTY(QVariantList ioDevices READ ioDevices CONSTANT)
    Q_PROPERTY(QVariantList roles READ roles CONSTANT)
    Q_PROPERTY(QVariantList schedules READ schedules CONSTANT)
    Q_PROPERTY(QVariantList maps READ maps CONSTANT)
    Q_PROPERTY(QVariantList virtualTriggers READ virtualTriggers CONSTANT)
    Q_PROPERTY(QStringList sounds READ sounds CONSTANT)
public:
    explicit Site(QObject* parent = nullptr);

    // Reads site.json of the data folder; a missing or broken file gives an empty site.
    bool load(const QString& dataDirectory, QString* errorText = nullptr);

    QString name() const { return m_name; }
    QVariantList cameras() const { return m_cameras; }
    QVariantList stations() const { return m_stations; }
    QVariantList ioDevices() const { return m_ioDevices; }
    QVariantList roles() const { return m_roles; }
    QVariantList schedules() const { return m_schedules; }
    QVariantList maps() const { return m_maps; }
    QVariantList virtualTriggers() const { return m_virtualTriggers; }
    QStringList sounds() const { return m_sounds; }
    bool supportsGuardian() const { return m_supportsGuardian; }

    // Device tree lookups: any device (camera, station, I/O box) by id.
    QString deviceName(const QString& deviceId) const;
    QStringList inputNames(const QString& deviceId) const;
    QStringList outputNames(const QString& deviceId) const;
    QString roleName(int roleId) const;

    Q_INVOKABLE QString cameraName(const QString& cameraId) const { return deviceName(cameraId); }
    Q_INVOKABLE QString scheduleContent(const QString& scheduleName) const;

    // The rule editor's building blocks, as the server's XML. A trigger is a map {"kind", "device",
    // "index", "name"}; kinds: "virtual", "motion", "di", "cameraLost", "tampering", "line". An action is a
    // map {"kind", "cameras", "sound", "to", "subject", "phone", "message"}; kinds: "popup", "record",
    // "sound", "mail", "sms", "preset". Unknown kinds are left out; texts are escaped.
    Q_INVOKABLE QString triggerListXml(const QVariantList& triggers) const;
    Q_INVOKABLE QString actionListXml(const QVariantList& actions) const;

private:
    QVariantMap device(const QString& deviceId) const;

    QString m_name;
    QVariantList m_cameras;
    QVariantList m_stations;
    QVariantList m_ioDevices;
    QVariantList m_roles;
    QVariantList m_schedules;
    QVariantList m_maps;
    QVariantList m_virtualTriggers;
    QStringList m_sounds;
    bool m_supportsGuardian = true;
};
