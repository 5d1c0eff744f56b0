// Lookups through peer plug-ins. The plug-in holds no device, user or settings data of its own; a missing
// peer makes invokeMethod fail quietly and the lookup falls back to its empty value.
#include "PluginAlarmManager.h"

#include "stdafx.h"

#include <QUrl>

namespace {
const QString diNameListRole = QStringLiteral("diNameListRole");
const QString doNameListRole = QStringLiteral("doNameListRole");
const QString deviceNameRole = QStringLiteral("nameRole");
} // namespace

QString PluginAlarmManager::getSoundPath()
{
    QString path;
    QObject* peer = m_framework ? m_framework->GetPluginObject(m_frameworkHandle, SOUND_PATH_PLUGIN_ID) : nullptr;
    if (peer)
        QMetaObject::invokeMethod(peer, "getSoundPath", Qt::DirectConnection, Q_RETURN_ARG(QString, path));
    return path;
}

QVariant PluginAlarmManager::getValueFromDeviceTreeModel(const QString& deviceId, const QString& roleName)
{
    QVariant value;
    QObject* peer = m_framework ? m_framework->GetPluginObject(m_frameworkHandle, DEVICE_TREE_PLUGIN_ID) : nullptr;
    if (peer) {
        // A list of ten thousand rules asks some ninety thousand times; finding the method by name would
        // normalise its signature every time, so it is looked up once per kind of peer.
        if (peer->metaObject() != m_deviceTreeMetaObject) {
            m_deviceTreeMetaObject = peer->metaObject();
            m_getValueFromModel = m_deviceTreeMetaObject->method(
                m_deviceTreeMetaObject->indexOfMethod("getValueFromModel(int,QString,QString)"));
        }
        if (m_getValueFromModel.isValid()) {
            m_getValueFromModel.invoke(peer, Qt::DirectConnection, Q_RETURN_ARG(QVariant, value), Q_ARG(int, 0),
                                       Q_ARG(QString, deviceId), Q_ARG(QString, roleName));
        }
    }
    if (value.isNull() || !value.isValid())
        return QVariant();
    return value;
}

QString PluginAlarmManager::queryDisplayName(const QString& deviceId)
{
    return getValueFromDeviceTreeModel(deviceId, deviceNameRole).toString();
}

QString PluginAlarmManager::queryDIDODisplayName(const QString& deviceId, const QString& ioName, int index)
{
    const bool isInput = ioName.contains(QLatin1String("DI"));
    const QString fallback = (isInput ? QStringLiteral("DI-%1") : QStringLiteral("DO-%1")).arg(index);
    const QVariant names = getValueFromDeviceTreeModel(deviceId, isInput ? diNameListRole : doNameListRole);
    if (names.isNull() || !names.isValid())
        return fallback;
    const QStringList nameList = names.toStringList();
    // Index 0 or below has no entry; callers count from 1.
    if (index < 1 || nameList.size() < index)
        return fallback;
    return nameList.at(index - 1);
}

QString PluginAlarmManager::queryRoleName(int roleId)
{
    if (roleId == 0)
        return QObject::tr("Customize");
    if (roleId == -1)
        return QObject::tr("Administrator");
    QString roleName;
    QObject* peer = m_framework ? m_framework->GetPluginObject(m_frameworkHandle, USER_ROLE_PLUGIN_ID) : nullptr;
    if (peer) {
        QMetaObject::invokeMethod(peer, "getRoleName", Qt::DirectConnection, Q_RETURN_ARG(QString, roleName),
                                  Q_ARG(int, roleId));
    }
    return roleName;
}

QString PluginAlarmManager::DecodePercentEncodedStr(const QString& text)
{
    // Only the encoder's output, always ASCII, is decoded; any other text is a user's and stays as typed.
    if (!text.contains(QLatin1Char('%')))
        return text; // nothing to decode either way
    const QByteArray latin1 = text.toLatin1();
    if (latin1 != text.toUtf8())
        return text;
    return QUrl::fromPercentEncoding(latin1);
}
