#include "PeerPlugins.h"

#include "Site.h"

DeviceTreePeer::DeviceTreePeer(const Site* site, QObject* parent)
    : QObject(parent)
    , m_site(site)
{
}

QVariant DeviceTreePeer::getValueFromModel(int, QString deviceId, QString roleName)
{
    if (roleName == QLatin1String("nameRole")) {
        const QString name = m_site->deviceName(deviceId);
        return name.isEmpty() ? QVariant() : QVariant(name);
    }
    if (roleName == QLatin1String("diNameListRole"))
        return m_site->inputNames(deviceId);
    if (roleName == QLatin1String("doNameListRole"))
        return m_site->outputNames(deviceId);
    return QVariant();
}

UserRolePeer::UserRolePeer(const Site* site, QObject* parent)
    : QObject(parent)
    , m_site(site)
{
}

QString UserRolePeer::getRoleName(int roleId)
{
    return m_site->roleName(roleId);
}

SoundPathPeer::SoundPathPeer(const QString& soundDirectory, QObject* parent)
    : QObject(parent)
    , m_soundDirectory(soundDirectory)
{
}

QString SoundPathPeer::getSoundPath()
{
    return m_soundDirectory;
}

LicencePeer::LicencePeer(const Site* site, QObject* parent)
    : QObject(parent)
    , m_site(site)
{
}

QVariantMap LicencePeer::getEditionFeature()
{
    return {{QStringLiteral("supportGuardian"), m_site->supportsGuardian()}};
}
