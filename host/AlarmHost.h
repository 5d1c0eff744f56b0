#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QVariantList>

class HostFramework;
class PluginBase;
class QAbstractItemModel;
class QPluginLoader;
class QQmlContext;
class SignalMonitor;
class SimulatedServer;
class Site;

// Everything a host does around the alarm plug-in: prepares the data folder, starts the simulated server
// and the peer plug-ins, loads the plug-in through QPluginLoader and drives its lifecycle
// (InitialPluginBase, LoadPairPluginDone, PluginServerConnected). It knows the plug-in only through
// PluginBase and its meta-object, so any build of the plug-in with the same QML API can be plugged in.
class AlarmHost : public QObject
{
    Q_OBJECT
public:
    struct Options
    {
        QString dataDirectory;
        QString pluginPath;
        int latencyMs = 30;
    };

    // A virtual trigger as a view cell knows it: the camera that shows the button, its id and icon.
    struct VirtualTrigger
    {
        QString name;
        QString cameraId;
        int id = 0;
        int iconType = 0;
    };

    explicit AlarmHost(QObject* parent = nullptr);
    ~AlarmHost() override;

    // The per-user folder the sample site is copied to on first run.
    static QString defaultDataDirectory();
    // The plug-in of this build: lib/ beside the executable's bin/.
    static QString defaultPluginPath();
    // Copies the embedded sample site into an empty folder; a folder that has a site is left alone.
    static bool prepareDataDirectory(const QString& directory, QString* errorText);

    // Loads everything and connects the plug-in to the server. The context is handed to the plug-in
    // (null without QML). The first alarm list arrives later, as the plug-in's getAlarmResp.
    bool start(const Options& options, QQmlContext* context, QString* errorText);
    // Simulates the server link going down and up again: the plug-in reloads its list.
    void reconnect();

    QObject* plugin() const;
    SimulatedServer* server() const { return m_server; }
    Site* site() const { return m_site; }
    HostFramework* framework() const { return m_framework; }
    QAbstractItemModel* filterModel() const;
    QAbstractItemModel* viewCellTriggerModel(const QString& cameraId) const;

    // Finds a virtual trigger by "name" or "camera/name" among the rules of the plug-in's alarm list.
    bool findVirtualTrigger(const QString& choice, VirtualTrigger* trigger) const;
    // Presses the trigger's button: the plug-in's sendVirtualTriggerAlarm. False when it was not sent.
    bool fireVirtualTrigger(const VirtualTrigger& trigger);

signals:
    // Every signal the plug-in emits, by name, with its arguments.
    void pluginSignal(const QString& name, const QVariantList& arguments);

private:
    SimulatedServer* m_server = nullptr;
    Site* m_site = nullptr;
    HostFramework* m_framework = nullptr;
    QPluginLoader* m_loader = nullptr;
    QPointer<PluginBase> m_plugin;
    SignalMonitor* m_monitor = nullptr;
};

// Calls a plug-in invokable that hands out an object (a model), whatever its declared pointer type.
QObject* invokeForObject(QObject* target, const char* name, const QVariantList& arguments = {});
