#include "PluginAlarmManager.h"

#include "AlarmEventParser.h"
#include "AlarmMessageParser.h"
#include "AudioFileManager.h"
#include "ClientNotificationParser.h"
#include "PluginAlarmManager_Log.h"
#include "XML2Json.h"
#include "stdafx.h"

#include <new>

using namespace PluginAlarmManagerCommon;

namespace {
// Payload keys of pushed events that no request uses.
const QString eventXmlKey = QStringLiteral("xml");
const QString eventErrorCodeKey = QStringLiteral("errorCode");
} // namespace

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

void PluginAlarmManager::EventProcessor(QString eventName, long long, int, int, QVariant data, const QString& target)
{
    // Events addressed to a particular receiver are not this plug-in's.
    if (!target.isEmpty())
        return;

    if (eventName == EVENT_TYPE_ALARM_TRIGGERED) {
        handleAlarmTriggeredEvent(data);
    } else if (eventName == EVENT_TYPE_CLIENT_NOTIFICATION) {
        const ClientNotificationParser notification(data.toString());
        emit clientNotification(static_cast<ClientNotificationType>(notification.GetType()),
                                notification.GetParsedData(), notification.GetTimecardId());
    } else if (eventName == METHOD_HTTP_ACTION_RESPONSE) {
        emit httpActionResponsed(data.toMap().value(eventErrorCodeKey).toString());
    } else if (eventName == EVENT_TYPE_ADD_ALARM) {
        const QVariantMap alarm = data.toMap();
        InsertToViewCellTriggerModel(alarm.value(ARG_ALARM_ID).toString(),
                                     XML2Json::parse(alarm.value(ARG_ALARM_TRG_LIST).toString()).toMap());
    } else if (eventName == EVENT_TYPE_UPDATE_ALARM) {
        const QVariantMap alarm = data.toMap();
        const QString alarmId = alarm.value(ARG_ALARM_ID).toString();
        RemoveFromViewCellTriggerModel(alarmId);
        InsertToViewCellTriggerModel(alarmId, XML2Json::parse(alarm.value(ARG_ALARM_TRG_LIST).toString()).toMap());
    } else if (eventName == EVENT_TYPE_DELETE_ALARM) {
        RemoveFromViewCellTriggerModel(data.toString());
    } else if (eventName == EVENT_TYPE_TOGGLE_ALARM) {
        handleToggleAlarmEvent(data);
    } else if (eventName == METHOD_CLOSE_EMAP_TAB) {
        emit closeEMapTabResp(data.toStringList());
    } else if (eventName == METHOD_CLOSE_ALARM_TAB) {
        emit closeAlarmTabResp(data.toStringList());
    } else if (eventName == METHOD_CLOSE_ALARM_NOTIFICATION) {
        emit closeAlarmNotificationResp();
    }
}

void PluginAlarmManager::handleAlarmTriggeredEvent(const QVariant& data)
{
    const QString message = data.toMap().value(eventXmlKey).toString();
    AlarmEventParser event;
    event.SetMessage(message);
    if (event.Mute())
        return;
    emit alarmNotify(message);
    emit alarmTriggered(event.GetAlarmName(), event.GetTriggerType(), event.GetNodeID(), event.GetServerTime(),
                        event.GetTriggerEvent(), event.GetDIOIndex(), event.GetTriggerValue(), event.GetDeviceName(),
                        event.GetAlarmId(), event.GetTimecardId());
}

void PluginAlarmManager::handleToggleAlarmEvent(const QVariant& data)
{
    const QVariantList toggles = data.toList();
    for (const QVariant& entry : toggles) {
        const QVariantMap toggle = entry.toMap();
        const QStandardItem* item = findAlarmItem(toggle.value(ARG_ALARM_ID).toString());
        if (!item)
            continue;
        const QString alarmId = item->data(AlarmModel::idRole).toString();
        // Removing first keeps a repeated "enable" from showing the alarm's triggers twice.
        RemoveFromViewCellTriggerModel(alarmId);
        if (toggle.value(ARG_TOGGLE_ENABLE).toBool())
            InsertToViewCellTriggerModel(alarmId,
                                         XML2Json::parse(item->data(AlarmModel::triggerXmlRole).toString()).toMap());
    }
}
