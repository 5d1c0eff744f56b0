#include "FakeFramework.h"

#include "stdafx.h"

QVariant FakePeer::getValueFromModel(int, QString deviceId, QString roleName)
{
    return deviceTree.value(deviceId).value(roleName);
}

QString FakePeer::getRoleName(int roleId)
{
    return roleNames.value(roleId);
}

QString FakePeer::getSoundPath()
{
    return soundPath;
}

QVariantMap FakePeer::getEditionFeature()
{
    return editionFeature;
}

FakeFramework::FakeFramework()
{
    peers.insert(DEVICE_TREE_PLUGIN_ID, &deviceTree);
    peers.insert(USER_ROLE_PLUGIN_ID, &userRoles);
    peers.insert(SOUND_PATH_PLUGIN_ID, &soundPath);
    peers.insert(LICENSE_MANAGER_PLUGIN_ID, &licence);
}

FakeFramework::~FakeFramework() = default;

bool FakeFramework::SendRequest(void* handle, const QString& senderPluginId, const QString& method,
                                const QVariant& argument, void* context, bool blocking, QString& errorText)
{
    RecordedRequest request{handle, senderPluginId, method, argument, context, blocking};
    if (refuse && refuse(request)) {
        errorText = QStringLiteral("refused by the test");
        return false;
    }
    requests.append(request);
    return true;
}

QObject* FakeFramework::GetPluginObject(void*, const QString& pluginId)
{
    return peers.value(pluginId);
}

QList<RecordedRequest> FakeFramework::requestsFor(const QString& method) const
{
    QList<RecordedRequest> matching;
    for (const RecordedRequest& request : requests) {
        if (request.method == method)
            matching.append(request);
    }
    return matching;
}
