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
#include <QDomDocument>
#include <QFile>
#include <QFileInfo>
#include <QJsonObject>
#include <QPluginLoader>
#include <QStandardPaths>
#include <QUrl>

using namespace PluginAlarmManagerCommon;

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
    // Installed, the plug-in folder of the same prefix; run from the build tree, that build's lib/.
    const QDir executableDirectory(QCoreApplication::applicationDirPath());
    const QString installed = QDir::cleanPath(
        executableDirectory.filePath(QStringLiteral(ALARM_INSTALLED_PLUGIN_DIR "/libPluginAlarmManager.so")));
    const QString built =
        QDir::cleanPath(executableDirectory.filePath(QStringLiteral("../lib/libPluginAlarmManager.so")));
    return QFile::exists(installed) || !QFile::exists(built) ? installed : built;
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

bool AlarmHost::findVirtualTrigger(const QString& choice, VirtualTrigger* trigger) const
{
    const QString camera = choice.contains(QLatin1Char('/')) ? choice.section(QLatin1Char('/'), 0, 0) : QString();
    const QString name = choice.contains(QLatin1Char('/')) ? choice.section(QLatin1Char('/'), 1) : choice;
    // The unfiltered list: a trigger stays reachable while the page shows a search result.
    auto* model = m_plugin ? qobject_cast<QAbstractItemModel*>(invokeForObject(m_plugin, "getAlarmModel")) : nullptr;
    if (!model)
        return false;
    const int triggerXmlRole = model->roleNames().key("triggerXmlRole", -1);
    for (int row = 0; row < model->rowCount(); ++row) {
        QDomDocument document;
        if (!document.setContent(model->index(row, 0).data(triggerXmlRole).toString()))
            continue;
        const QDomNodeList triggers = document.elementsByTagName(ARG_VIRTUAL_TRIGGER);
        for (int i = 0; i < triggers.size(); ++i) {
            const QDomElement candidate = triggers.at(i).toElement();
            const QString cameraId = candidate.firstChildElement(QStringLiteral("Camera")).text();
            if (QUrl::fromPercentEncoding(candidate.firstChildElement(QStringLiteral("Name")).text().toLatin1()) != name
                || (!camera.isEmpty() && cameraId != camera))
                continue;
            *trigger = {name, cameraId, candidate.firstChildElement(QStringLiteral("Id")).text().toInt(),
                        candidate.firstChildElement(QStringLiteral("IconType")).text().toInt()};
            return true;
        }
    }
    return false;
}

bool AlarmHost::fireVirtualTrigger(const VirtualTrigger& trigger)
{
    bool isSent = false;
    if (m_plugin)
        QMetaObject::invokeMethod(m_plugin, "sendVirtualTriggerAlarm", Qt::DirectConnection, Q_RETURN_ARG(bool, isSent),
                                  Q_ARG(QString, trigger.name), Q_ARG(QString, trigger.cameraId),
                                  Q_ARG(int, trigger.iconType), Q_ARG(int, trigger.id),
                                  Q_ARG(QString, m_site->cameraName(trigger.cameraId)));
    return isSent;
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
