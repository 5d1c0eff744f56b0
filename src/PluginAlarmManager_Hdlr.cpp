// Placeholder bodies until the real implementation lands.
#include "PluginAlarmManager.h"

void PluginAlarmManager::CommandProcessor(QString, QVariant, void*, QString, QString, bool, const QString&) {}

void PluginAlarmManager::HandleGetAllAlarm(const QVariant&, const QString&) {}

void PluginAlarmManager::HandleAddAlarm(const QVariant&, const QString&, void*) {}

void PluginAlarmManager::HandleUpdateAlarm(void*, const QString&) {}

void PluginAlarmManager::HandleUpdateAlarmSchedule(void*, const QString&) {}

void PluginAlarmManager::HandleDeleteAlarm(const QVariant&, void*, const QString&) {}

void PluginAlarmManager::HandleGetAlarmSoundListForSync(const QVariant&, const QString&) {}

void PluginAlarmManager::HandleGetAlarmSoundContent(const QVariant&, const QString&) {}

void PluginAlarmManager::HandleGetAlarmReserveTime(const QVariant&, const QString&) {}

void PluginAlarmManager::HandleUpdateAlarmReserveTime(const QVariant&, const QString&) {}

void PluginAlarmManager::HandleToggleAllAlarm(const QVariant&, const QString&) {}

void PluginAlarmManager::HandleToggleAlarm(const QVariant&, const QString&, const QList<QVariant>&) {}

void PluginAlarmManager::HandleSendVirtualTriggerAlarm(const QVariant&, const QString&, int) {}

void PluginAlarmManager::ClearViewCellTriggerModel() {}

void PluginAlarmManager::InsertToViewCellTriggerModel(const QString&, const QVariantMap&) {}

void PluginAlarmManager::RemoveFromViewCellTriggerModel(const QString&) {}

QVariantMap PluginAlarmManager::getVirtualTriggerInfo(const QVariantMap&) const
{
    return {};
}

QString PluginAlarmManager::EscapeURL(const QString&)
{
    return {};
}
