#pragma once

#include <QHash>
#include <QList>
#include <QObject>
#include <QString>
#include <QVariant>
#include <QVariantMap>

#include <functional>

#include "FrameworkWrapperBase.h"

// One request as the plug-in handed it to the framework.
struct RecordedRequest
{
    void* handle = nullptr;
    QString senderPluginId;
    QString method;
    QVariant argument;
    void* context = nullptr;
    bool isBlocking = false;
};

// A peer plug-in object answering every lookup the alarm plug-in makes.
class FakePeer : public QObject
{
    Q_OBJECT
public:
    // deviceId -> (role name -> value), as the device tree serves it.
    QHash<QString, QVariantMap> deviceTree;
    QHash<int, QString> roleNames;
    QString soundPath;
    QVariantMap editionFeature;

    Q_INVOKABLE QVariant getValueFromModel(int, QString device, QString role) { return deviceTree[device][role]; }
    Q_INVOKABLE QString getRoleName(int roleId) { return roleNames.value(roleId); }
    Q_INVOKABLE QString getSoundPath() { return soundPath; }
    Q_INVOKABLE QVariantMap getEditionFeature() { return editionFeature; }
};

// The host as the tests play it: records every request, refuses the sends a test chooses, and serves
// the four peer plug-ins under their ids (the same FakePeer class for each, one instance per id).
class FakeFramework : public FrameworkWrapperBase
{
public:
    FakeFramework();

    bool SendRequest(void* handle, const QString& senderPluginId, const QString& method, const QVariant& argument,
                     void* context, bool blocking, QString& errorText) override;
    QObject* GetPluginObject(void*, const QString& pluginId) override { return peers.value(pluginId); }

    // Requests for which this returns true are refused and not recorded.
    std::function<bool(const RecordedRequest&)> refuse;

    QList<RecordedRequest> requests;
    QList<RecordedRequest> requestsFor(const QString& method) const;

    // Peers by plug-in id; remove an entry to simulate a peer that is not loaded.
    QHash<QString, QObject*> peers;
    FakePeer deviceTree;
    FakePeer userRoles;
    FakePeer soundPath;
    FakePeer licence;
};
