#include "FakeFramework.h"

#include "stdafx.h"

FakeFramework::FakeFramework()
{
    peers = {{DEVICE_TREE_PLUGIN_ID, &deviceTree},
             {USER_ROLE_PLUGIN_ID, &userRoles},
             {SOUND_PATH_PLUGIN_ID, &soundPath},
             {LICENSE_MANAGER_PLUGIN_ID, &licence}};
}

bool FakeFramework::SendRequest(void* handle, const QString& senderPluginId, const QString& method,
                                const QVariant& argument, void* context, bool blocking, QString& errorText)
{
    const RecordedRequest request{handle, senderPluginId, method, argument, context, blocking};
    if (refuse && refuse(request)) {
        errorText = QStringLiteral("refused by the test");
        return false;
    }
    requests.append(request);
    return true;
}

QList<RecordedRequest> FakeFramework::requestsFor(const QString& method) const
{
    QList<RecordedRequest> matching;
    std::copy_if(requests.cbegin(), requests.cend(), std::back_inserter(matching),
                 [&method](const RecordedRequest& request) { return request.method == method; });
    return matching;
}
