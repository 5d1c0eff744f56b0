#include "PluginBase.h"

PluginBase::PluginBase(QObject* parent)
    : QObject(parent)
{
}

PluginBase::~PluginBase() = default;

bool PluginBase::InitialPluginBase(QQmlContext*, void*, FrameworkWrapperBase*)
{
    return false;
}

void PluginBase::EventProcessor(QString, long long, int, int, QVariant, const QString&) {}

void PluginBase::EventProcessorEx(QString, ConfigBase*, long long, int, int, QVariant, const QString&) {}

void PluginBase::CommandProcessor(QString, QVariant, void*, QString, QString, bool, const QString&) {}

void PluginBase::CommandProcessorEx(QString, ConfigBase*, QVariant, void*, QString, QString, bool, const QString&) {}

bool PluginBase::Init(QQmlContext*)
{
    return false;
}

void PluginBase::LoadClientOnlyPluginDone() {}

void PluginBase::LoadPairPluginDone() {}

void PluginBase::PluginServerConnected() {}

void PluginBase::PluginServerDisconnected() {}
