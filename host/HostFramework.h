#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QVariant>

#include "FrameworkWrapperBase.h"

class PluginBase;
class SimulatedServer;

// The framework object one plug-in talks through: its requests go to the simulated server and come back
// through the plug-in's CommandProcessor; the server's broadcasts reach its EventProcessor; peers are
// looked up by plug-in id. Requests are answered on the event loop, never inside SendRequest.
class HostFramework : public QObject, public FrameworkWrapperBase
{
    Q_OBJECT
public:
    explicit HostFramework(SimulatedServer* server, QObject* parent = nullptr);
    ~HostFramework() override;

    // The plug-in that receives answers and events; its id is checked on every request.
    void attach(PluginBase* plugin, const QString& pluginId);
    void addPeer(const QString& pluginId, QObject* peer);

    bool SendRequest(void* handle, const QString& senderPluginId, const QString& method, const QVariant& argument,
                     void* context, bool blocking, QString& errorText) override;
    QObject* GetPluginObject(void* handle, const QString& pluginId) override;

    void* handle() { return &m_handle; }
    // Requests sent and not answered yet; a host waits for zero before it quits.
    int pendingRequests() const { return m_pendingRequests; }

signals:
    void requestSent(const QString& method, const QVariant& argument);
    void answerDelivered(const QString& method, const QString& returnCode);
    void eventDelivered(const QString& name, const QVariant& payload);

private:
    void deliverEvent(const QString& name, const QVariant& payload);

    SimulatedServer* m_server;
    QPointer<PluginBase> m_plugin;
    QString m_pluginId;
    QHash<QString, QObject*> m_peers;
    int m_handle = 0;
    int m_pendingRequests = 0;
};
