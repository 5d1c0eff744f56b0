// Placeholder bodies until the real implementation lands.
#include "PluginAlarmManager.h"

#include "stdafx.h"

using namespace PluginAlarmManagerCommon;

AlarmModel* PluginAlarmManager::getAlarmModel()
{
    return {};
}

AlarmTranslatedModel* PluginAlarmManager::getAlarmTranslatedModel()
{
    return {};
}

AlarmSortFilterModel* PluginAlarmManager::getAlarmFilterModel()
{
    return {};
}

QSortFilterProxyModel* PluginAlarmManager::getAlarmViewCellTriggerModel(const QString&)
{
    return {};
}

bool PluginAlarmManager::getToggleAlarmResult()
{
    return {};
}

bool PluginAlarmManager::getToggleAllAlarmResult()
{
    return {};
}

bool PluginAlarmManager::getAllAlarm()
{
    return SendRequestToServer(METHOD_GET_ALL_ALARM, QVariant(), nullptr);
}

bool PluginAlarmManager::addAlarm(const QString&, const QString&, const QString&, const QString&, const QString&, const QString&, const QString&, bool)
{
    return {};
}

bool PluginAlarmManager::addAlarm(const QString&, const QString&, const QString&, const QString&, const QString&, const QString&, const QString&)
{
    return {};
}

bool PluginAlarmManager::updateAlarm(const QString&, const QString&, const QString&, const QString&, const QString&, const QString&, const QString&, const QString&, bool)
{
    return {};
}

bool PluginAlarmManager::updateAlarm(const QString&, const QString&, const QString&, const QString&, const QString&, const QString&, const QString&, const QString&)
{
    return {};
}

bool PluginAlarmManager::deleteAlarms(const QVariantList&)
{
    return {};
}

bool PluginAlarmManager::sendHttpRequest(const QString&, bool, const QString&, const QString&, const QString&, const QString&, const QString&)
{
    return {};
}

bool PluginAlarmManager::updateAlarmSchedule(const QString&, const QString&, const QString&)
{
    return {};
}

bool PluginAlarmManager::getAlarmSoundList()
{
    return {};
}

bool PluginAlarmManager::getReserveTime()
{
    return {};
}

bool PluginAlarmManager::updateReserveTime(int)
{
    return {};
}

bool PluginAlarmManager::sendVirtualTriggerAlarm(const QString&, const QString&, int, int, const QString&)
{
    return {};
}

bool PluginAlarmManager::toggleAllAlarm(bool, int)
{
    return {};
}

bool PluginAlarmManager::toggleAlarm(const QVariantList&)
{
    return {};
}

bool PluginAlarmManager::closeEMapTab(const QStringList&)
{
    return {};
}

bool PluginAlarmManager::closeAlarmTab(const QStringList&)
{
    return {};
}

bool PluginAlarmManager::closeAlarmNotification()
{
    return {};
}
