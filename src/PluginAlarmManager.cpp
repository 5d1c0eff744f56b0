#include "PluginAlarmManager.h"

#include "AlarmMessageParser.h"
#include "AudioFileManager.h"
#include "PluginAlarmManager_Log.h"
#include "stdafx.h"

#include <new>

using namespace PluginAlarmManagerCommon;

PluginAlarmManager::PluginAlarmManager(QObject* parent)
    : PluginBase(parent)
{
}

PluginAlarmManager::~PluginAlarmManager() = default;

bool PluginAlarmManager::InitialPluginBase(QQmlContext* context, void* handle, FrameworkWrapperBase* framework)
{
    m_prefixName = PALARMMANAGER_PREFIX_NAME;
    m_pluginId = PALARMMANAGER_PLUGIN_ID;
    m_frameworkHandle = handle;
    m_framework = framework;
    return Init(context);
}

bool PluginAlarmManager::Init(QQmlContext*)
{
    m_lastToggleAllAlarmResult = false;
    try {
        m_alarmModel.reset(new AlarmModel(this));
        m_alarmTranslatedModel.reset(new AlarmTranslatedModel(this));
        m_alarmSortFilterModel.reset(new AlarmSortFilterModel(this));
        m_alarmMessageParser.reset(new AlarmMessageParser(this));

        m_alarmTranslatedModel->setSourceModel(m_alarmModel.data());
        m_alarmSortFilterModel->setSourceModel(m_alarmTranslatedModel.data());

        if (!m_audioFileManager)
            m_audioFileManager.reset(new AudioFileManager);
    } catch (const std::bad_alloc&) {
        ALARM_TRACE_ERROR("%s, heap allocate failed", "Init");
        return false;
    }
    return true;
}

void PluginAlarmManager::setAlarmMsgParser(IAlarmMessageParser* parser)
{
    m_alarmMessageParser.reset(parser);
}

void PluginAlarmManager::setAudioFileManager(QSharedPointer<AudioFileManager> audioFileManager)
{
    m_audioFileManager = std::move(audioFileManager);
}

void PluginAlarmManager::LoadPairPluginDone()
{
    if (m_audioFileManager)
        m_audioFileManager->initial(getSoundPath());
}

void PluginAlarmManager::PluginServerConnected()
{
    // Every (re)connection reloads the list and resynchronises the sound files.
    SendRequestToServer(METHOD_GET_ALARM_SOUND_LIST_FOR_SYNC, QVariant(), nullptr);
    getAllAlarm();
}

void PluginAlarmManager::EventProcessorEx(QString, ConfigBase*, long long, int, int, QVariant, const QString&) {}

void PluginAlarmManager::CommandProcessorEx(QString, ConfigBase*, QVariant, void*, QString, QString, bool,
                                            const QString&)
{
}

bool PluginAlarmManager::SendRequestToServer(const QString& method, const QVariant& argument, void* context)
{
    QString errorText;
    if (!m_framework
        || !m_framework->SendRequest(m_frameworkHandle, m_pluginId, method, argument, context, false, errorText)) {
        ALARM_TRACE_ERROR("%s, Send command failed.", "SendRequestToServer");
        return false;
    }
    return true;
}

bool PluginAlarmManager::SendBlockRequestToServer(const QString& method, const QVariant& argument, void* context)
{
    QString errorText;
    if (!m_framework
        || !m_framework->SendRequest(m_frameworkHandle, m_pluginId, method, argument, context, true, errorText)) {
        ALARM_TRACE_ERROR("%s, Send command failed.", "SendBlockRequestToServer");
        return false;
    }
    return true;
}

bool PluginAlarmManager::isSuccess(const QString& returnCode)
{
    return returnCode == QLatin1String("0");
}

void PluginAlarmManager::EventProcessor(QString, long long, int, int, QVariant, const QString&) {}
