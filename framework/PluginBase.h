#pragma once

#include <QObject>
#include <QString>
#include <QVariant>

#include "ConfigBase.h"
#include "FrameworkWrapperBase.h"

class QQmlContext;

// The interface every plug-in of the host implements. The host calls these in this order:
// InitialPluginBase (which runs Init), LoadPairPluginDone once every peer is loaded, then
// PluginServerConnected on each (re)connection; EventProcessor and CommandProcessor any time after Init.
// The base bodies do nothing, so a plug-in overrides only what it serves.
class PluginBase : public QObject
{
    Q_OBJECT
public:
    explicit PluginBase(QObject* parent = nullptr);
    ~PluginBase() override;

    virtual bool InitialPluginBase(QQmlContext* context, void* handle, FrameworkWrapperBase* framework);
    virtual void EventProcessor(QString eventName, long long, int, int, QVariant data, const QString&);
    virtual void EventProcessorEx(QString, ConfigBase*, long long, int, int, QVariant, const QString&);
    virtual void CommandProcessor(QString method, QVariant result, void* context, QString returnCode,
                                  QString, bool, const QString&);
    virtual void CommandProcessorEx(QString, ConfigBase*, QVariant, void*, QString, QString, bool, const QString&);
    virtual bool Init(QQmlContext* context);
    virtual void LoadClientOnlyPluginDone();
    virtual void LoadPairPluginDone();
    virtual void PluginServerConnected();
    virtual void PluginServerDisconnected();
};

#define PluginInterface_iid "com.Corvane.UIFramework.PluginInterface"
Q_DECLARE_INTERFACE(PluginBase, PluginInterface_iid)
