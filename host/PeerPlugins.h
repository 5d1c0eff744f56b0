#pragma once

#include <QObject>
#include <QString>
#include <QVariant>

class Site;

// The peer plug-ins the alarm plug-in reaches by id through the framework, answered from the site. The
// alarm plug-in calls them by name (QMetaObject::invokeMethod), so the names and argument types below
// are the contract; nothing else of a real peer is reproduced.

// Device tree: display names of devices and the names of their digital inputs and outputs.
class DeviceTreePeer : public QObject
{
    Q_OBJECT
public:
    explicit DeviceTreePeer(const Site* site, QObject* parent = nullptr);
    // kind is the device tree's model selector; the demo has one model. Unknown ids and roles give null.
    Q_INVOKABLE QVariant getValueFromModel(int kind, QString deviceId, QString roleName);

private:
    const Site* m_site;
};

class UserRolePeer : public QObject
{
    Q_OBJECT
public:
    explicit UserRolePeer(const Site* site, QObject* parent = nullptr);
    Q_INVOKABLE QString getRoleName(int roleId);

private:
    const Site* m_site;
};

// The client's local folder for alarm sounds (not the server's).
class SoundPathPeer : public QObject
{
    Q_OBJECT
public:
    explicit SoundPathPeer(const QString& soundDirectory, QObject* parent = nullptr);
    Q_INVOKABLE QString getSoundPath();

private:
    QString m_soundDirectory;
};

class LicencePeer : public QObject
{
    Q_OBJECT
public:
    explicit LicencePeer(const Site* site, QObject* parent = nullptr);
    Q_INVOKABLE QVariantMap getEditionFeature();

private:
    const Site* m_site;
};
