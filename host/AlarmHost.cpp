#include "AlarmHost.h"

#include "HostFramework.h"
#include "PeerPlugins.h"
#include "PluginBase.h"
#include "SignalMonitor.h"
#include "SimulatedServer.h"
#include "Site.h"
#include "stdafx.h"

#include <QAbstractItemModel>
#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QJsonObject>
#include <QPluginLoader>
#include <QStandardPaths>

namespace {
const QString SAMPLE_SITE = QStringLiteral(":/samples/site");
}

AlarmHost::AlarmHost(QObject* parent)
    : QObject(parent)
{
}

AlarmHost::~AlarmHost()
{
    // The plug-in instance belongs to its library and outlives this host; it must not call back into a
    // framework that is gone.
    if (m_framework)
        m_framework->attach(nullptr, QString());
}

QString AlarmHost::defaultDataDirectory()
{
    return QDir(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation))
        .filePath(QStringLiteral("alarm-host/site"));
}

QString AlarmHost::defaultPluginPath()
{
    return QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("../lib/libPluginAlarmManager.so"));
}

bool AlarmHost::prepareDataDirectory(const QString& directory, QString* errorText)
{
    QDir target(directory);
    if (target.exists(QStringLiteral("site.json")))
        return true;
    QDirIterator sample(SAMPLE_SITE, QDir::Files, QDirIterator::Subdirectories);
    while (sample.hasNext()) {
        const QString source = sample.next();
        const QString relative = source.mid(SAMPLE_SITE.size() + 1);
        const QString destination = target.filePath(relative);
        if (!target.mkpath(QFileInfo(relative).path()) || (!QFile::exists(destination) && !QFile::copy(source, destination))) {
            if (errorText)
                *errorText = QStringLiteral("cannot copy the sample site to %1").arg(directory);
            return false;
        }
        // Resources are read-only; the server rewrites its rule files.
        QFile::setPermissions(destination, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
    }
    return true;
}

bool AlarmHost::start(const Options& options, QQmlContext* context, QString* errorText)
{
    if (!prepareDataDirectory(options.dataDirectory, errorText))
        return false;

    m_site = new Site(this);
    if (!m_site->load(options.dataDirectory, errorText))
        return false;
    m_server = new SimulatedServer(options.dataDirectory, this);
    m_server->setLatency(options.latencyMs);
    if (!m_server->load(errorText))
        return false;

    m_framework = new HostFramework(m_server, this);
    const QString clientSounds = QDir(options.dataDirectory).filePath(QStringLiteral("client-sounds"));
    m_framework->addPeer(DEVICE_TREE_PLUGIN_ID, new DeviceTreePeer(m_site, this));
    m_framework->addPeer(USER_ROLE_PLUGIN_ID, new UserRolePeer(m_site, this));
    m_framework->addPeer(SOUND_PATH_PLUGIN_ID, new SoundPathPeer(clientSounds, this));
    m_framework->addPeer(LICENSE_MANAGER_PLUGIN_ID, new LicencePeer(m_site, this));

    m_loader = new QPluginLoader(options.pluginPath, this);
    const QString pluginId = m_loader->metaData().value(QLatin1String("MetaData")).toObject()
                                 .value(QLatin1String("PluginID")).toString();
    m_plugin = qobject_cast<PluginBase*>(m_loader->instance());
    if (!m_plugin) {
        if (errorText)
            *errorText = QStringLiteral("cannot load the plug-in %1: %2").arg(options.pluginPath, m_loader->errorString());
        return false;
    }
    m_monitor = new SignalMonitor(m_plugin, [this](const QString& name, const QVariantList& arguments) {
        emit pluginSignal(name, arguments);
    }, this);

    m_framework->attach(m_plugin, pluginId);
    if (!m_plugin->InitialPluginBase(context, m_framework->handle(), m_framework)) {
        if (errorText)
            *errorText = QStringLiteral("the plug-in failed to initialise");
        return false;
    }
    m_plugin->LoadPairPluginDone();
    m_plugin->PluginServerConnected();
    return true;
}

void AlarmHost::reconnect()
{
    if (!m_plugin)
        return;
    m_plugin->PluginServerDisconnected();
    m_plugin->PluginServerConnected();
}

QObject* AlarmHost::plugin() const
{
    return m_plugin;
}

QAbstractItemModel* AlarmHost::filterModel() const
{
    return m_plugin ? qobject_cast<QAbstractItemModel*>(invokeForObject(m_plugin, "getAlarmFilterModel")) : nullptr;
}

QAbstractItemModel* AlarmHost::viewCellTriggerModel(const QString& cameraId) const
{
    return m_plugin ? qobject_cast<QAbstractItemModel*>(
                          invokeForObject(m_plugin, "getAlarmViewCellTriggerModel", {cameraId}))
                    : nullptr;
}

QObject* invokeForObject(QObject* target, const char* name, const QVariantList& arguments)
{
    const QMetaObject* meta = target->metaObject();
    for (int index = 0; index < meta->methodCount(); ++index) {
        const QMetaMethod method = meta->method(index);
        if (method.name() != name || method.parameterCount() != arguments.size())
            continue;
        QObject* result = nullptr;
        QGenericReturnArgument returnArgument(method.typeName(), &result);
        bool isCalled = false;
        if (arguments.isEmpty()) {
            isCalled = method.invoke(target, Qt::DirectConnection, returnArgument);
        } else {
            const QString text = arguments.first().toString();
            isCalled = method.invoke(target, Qt::DirectConnection, returnArgument, Q_ARG(QString, text));
        }
        return isCalled ? result : nullptr;
    }
    return nullptr;
}
