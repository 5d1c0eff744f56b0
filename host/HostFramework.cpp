#include "HostFramework.h"

#include "PluginBase.h"
#include "SimulatedServer.h"

HostFramework::HostFramework(SimulatedServer* server, QObject* parent)
    : QObject(parent)
    , m_server(server)
{
    connect(m_server, &SimulatedServer::eventPushed, this, &HostFramework::deliverEvent);
}

HostFramework::~HostFramework() = default;

void HostFramework::attach(PluginBase* plugin, const QString& pluginId)
{
    m_plugin = plugin;
    m_pluginId = pluginId;
}

void HostFramework::addPeer(const QString& pluginId, QObject* peer)
{
    m_peers.insert(pluginId, peer);
}

bool HostFramework::SendRequest(void* handle, const QString& senderPluginId, const QString& method,
                                const QVariant& argument, void* context, bool, QString& errorText)
{
    if (handle != &m_handle || senderPluginId != m_pluginId || !m_plugin) {
        errorText = QStringLiteral("unknown sender %1").arg(senderPluginId);
        return false;
    }
    emit requestSent(method, argument);
    // Blocking requests are answered like the others: the plug-in never relies on the difference.
    const bool isAnswered =
        m_server->request(method, argument, [this, method, context](const QVariant& result, const QString& returnCode) {
            --m_pendingRequests;
            if (!m_plugin)
                return;
            m_plugin->CommandProcessor(method, result, context, returnCode, QString(), false, QString());
            emit answerDelivered(method, returnCode);
        });
    if (isAnswered)
        ++m_pendingRequests;
    return true;
}

QObject* HostFramework::GetPluginObject(void*, const QString& pluginId)
{
    return m_peers.value(pluginId);
}

void HostFramework::deliverEvent(const QString& name, const QVariant& payload)
{
    if (!m_plugin)
        return;
    m_plugin->EventProcessor(name, 0, 0, 0, payload, QString());
    emit eventDelivered(name, payload);
}
