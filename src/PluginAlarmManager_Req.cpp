// The QML request API. Every requester sends without blocking and returns whether the framework took the
// request; the outcome reaches QML later as a signal from the answer handlers (_Hdlr). A heap context is
// owned by the requester until the send succeeds, and by the answer handler from then on.
#include "PluginAlarmManager.h"

#include "PluginAlarmManager_Log.h"
#include "stdafx.h"

#include <QDateTime>
#include <QUrl>

#include <new>

using namespace PluginAlarmManagerCommon;

namespace {
// Keys of the entries QML hands to toggleAlarm.
const QString qmlAlarmIdKey = QStringLiteral("id");
const QString qmlEnableKey = QStringLiteral("enable");

QString percentEncoded(const QString& text)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(text));
}

// Allocates a context without throwing, so an allocation failure becomes a traced false result.
template <typename Context>
Context* newContext(const char* requester, const Context& value)
{
    auto* context = new (std::nothrow) Context(value);
    if (!context)
        ALARM_TRACE_ERROR("%s, new context failed", requester);
    return context;
}
} // namespace

template <typename Context>
bool PluginAlarmManager::sendWithContext(const char* requester, const QString& method, const QVariant& argument,
                                         Context* context)
{
    if (!context)
        return false;
    if (!SendRequestToServer(method, argument, context)) {
        ALARM_TRACE_ERROR("%s, SendBlockRequestToServer failed", requester);
        delete context;
        return false;
    }
    return true;
}

AlarmModel* PluginAlarmManager::getAlarmModel()
{
    return m_alarmModel.data();
}

AlarmTranslatedModel* PluginAlarmManager::getAlarmTranslatedModel()
{
    return m_alarmTranslatedModel.data();
}

AlarmSortFilterModel* PluginAlarmManager::getAlarmFilterModel()
{
    return m_alarmSortFilterModel.data();
}

QSortFilterProxyModel* PluginAlarmManager::getAlarmViewCellTriggerModel(const QString& cameraId)
{
    QSharedPointer<QSortFilterProxyModel>& proxy = m_viewCellTriggerProxies[cameraId];
    if (!proxy) {
        // The buttons of a view cell stay in name order, whatever order the server's events came in.
        proxy.reset(new QSortFilterProxyModel(this));
        proxy->setSourceModel(viewCellTriggerModel(cameraId));
        proxy->setSortRole(AlarmViewCellTriggerModel::nameRole);
        proxy->setSortCaseSensitivity(Qt::CaseInsensitive);
        proxy->sort(0);
    }
    return proxy.data();
}

bool PluginAlarmManager::getToggleAlarmResult()
{
    return m_lastToggleAlarmResult;
}

bool PluginAlarmManager::getToggleAllAlarmResult()
{
    return m_lastToggleAllAlarmResult;
}

bool PluginAlarmManager::getAllAlarm()
{
    return SendRequestToServer(METHOD_GET_ALL_ALARM, QVariant(), nullptr);
}

QVariantMap PluginAlarmManager::alarmArguments(const QString& name, const QString& description,
                                               const QString& triggerXmlData, const QString& actionXmlData,
                                               const QString& relatedDevicesXmlData, const QString& templateName,
                                               const QString& templateContent, bool enabled)
{
    return {
        {ARG_ALARM_NAME, percentEncoded(name)},
        {ARG_ALARM_DESC, percentEncoded(description)},
        {ARG_ALARM_TRG_LIST, triggerXmlData},
        {ARG_ALARM_ACT_LIST, actionXmlData},
        {ARG_ALARM_RELATED_DEV, relatedDevicesXmlData},
        {ARG_ALARM_TEMP_NAME, templateName},
        {ARG_ALARM_TEMP_CONTENT, templateContent},
        {ARG_ALARM_ENABLED, enabled},
    };
}

bool PluginAlarmManager::addAlarm(const QString& name, const QString& description, const QString& triggerXmlData,
                                  const QString& actionXmlData, const QString& relatedDevicesXmlData,
                                  const QString& templateName, const QString& templateContent, bool enabled)
{
    const QVariantMap arguments = alarmArguments(name, description, triggerXmlData, actionXmlData,
                                                 relatedDevicesXmlData, templateName, templateContent, enabled);
    return sendWithContext("addAlarm", METHOD_ADD_ALARM, arguments, newContext("addAlarm", arguments));
}

bool PluginAlarmManager::addAlarm(const QString& name, const QString& description, const QString& triggerXmlData,
                                  const QString& actionXmlData, const QString& relatedDevicesXmlData,
                                  const QString& templateName, const QString& templateContent)
{
    return addAlarm(name, description, triggerXmlData, actionXmlData, relatedDevicesXmlData, templateName,
                    templateContent, true);
}

bool PluginAlarmManager::updateAlarm(const QString& id, const QString& name, const QString& description,
                                     const QString& triggerXmlData, const QString& actionXmlData,
                                     const QString& relatedDevicesXmlData, const QString& templateName,
                                     const QString& templateContent, bool enabled)
{
    QVariantMap arguments = alarmArguments(name, description, triggerXmlData, actionXmlData, relatedDevicesXmlData,
                                           templateName, templateContent, enabled);
    arguments.insert(ARG_ALARM_ID, id);
    arguments.insert(ARG_ALARM_REV, nextRevision(id));
    return sendWithContext("updateAlarm", METHOD_UPD_ALARM, arguments, newContext("updateAlarm", arguments));
}

bool PluginAlarmManager::updateAlarm(const QString& id, const QString& name, const QString& description,
                                     const QString& triggerXmlData, const QString& actionXmlData,
                                     const QString& relatedDevicesXmlData, const QString& templateName,
                                     const QString& templateContent)
{
    return updateAlarm(id, name, description, triggerXmlData, actionXmlData, relatedDevicesXmlData, templateName,
                       templateContent, true);
}

bool PluginAlarmManager::deleteAlarms(const QVariantList& alarmList)
{
    if (alarmList.isEmpty())
        return true;

    const qint64 batchId = QDateTime::currentMSecsSinceEpoch();
    BatchCommandContext batch;
    batch.total = alarmList.size();
    for (const QVariant& entry : alarmList) {
        // Entries are rows of the list QML shows. A row that is not a number or not in the list is
        // counted as failed rather than sent, so a bad entry can never delete some other alarm.
        bool isRowNumber = false;
        const int row = entry.toInt(&isRowNumber);
        const QModelIndex index = (isRowNumber && m_alarmSortFilterModel)
                                      ? m_alarmSortFilterModel->index(row, 0)
                                      : QModelIndex();
        if (!index.isValid()) {
            ALARM_TRACE_ERROR("%s, row(%s) is not in the list", "deleteAlarms", qPrintable(entry.toString()));
            ++batch.failureCount;
            continue;
        }
        const QVariantMap arguments{
            {ARG_ALARM_REV, index.data(AlarmModel::revisionRole)},
            {ARG_ALARM_ID, index.data(AlarmModel::idRole).toString()},
        };
        if (!sendWithContext("deleteAlarms", METHOD_DEL_ALARM, arguments, newContext("deleteAlarms", batchId)))
            ++batch.failureCount;
    }
    if (batch.failureCount == batch.total)
        return false;
    m_batches.insert(batchId, batch);
    return true;
}

bool PluginAlarmManager::sendHttpRequest(const QString& url, bool needAuth, const QString& user,
                                         const QString& password, const QString& method,
                                         const QString& contentType, const QString& content)
{
    const QVariantMap arguments{
        {ARG_HTTP_URL, url},
        {ARG_HTTP_NEEDAUTH, needAuth},
        {ARG_HTTP_USER, user},
        {ARG_HTTP_PWD, password},
        {ARG_HTTP_METHOD, method},
        {ARG_HTTP_CONTENT_TYPE, contentType},
        {ARG_HTTP_CONTENT, content},
    };
    return SendRequestToServer(METHOD_SEND_HTTP, arguments, nullptr);
}

bool PluginAlarmManager::updateAlarmSchedule(const QString& oldTemplateName, const QString& newTemplateName,
                                             const QString& templateContent)
{
    QList<QStandardItem*> affected;
    const int rowCount = m_alarmModel ? m_alarmModel->rowCount() : 0;
    for (int row = 0; row < rowCount; ++row) {
        QStandardItem* item = m_alarmModel->item(row);
        if (item && item->data(AlarmModel::scheduleRole).toList().value(0).toString() == oldTemplateName)
            affected.append(item);
    }
    if (affected.isEmpty()) {
        emit updateAllAlarmScheduleResp(true, newTemplateName);
        return true;
    }

    // Every request carries the whole rule, since the server replaces the rule as a unit; the answers
    // find their batch again through "contextUID".
    const qint64 batchId = QDateTime::currentMSecsSinceEpoch();
    BatchCommandContext batch;
    batch.total = affected.size();
    for (QStandardItem* item : std::as_const(affected)) {
        const QString alarmId = item->data(AlarmModel::idRole).toString();
        const QVariantMap arguments{
            {ARG_ALARM_ID, alarmId},
            {ARG_ALARM_REV, item->data(AlarmModel::revisionRole).toLongLong() + 1},
            {ARG_ALARM_NAME, percentEncoded(item->data(AlarmModel::nameRole).toString())},
            {ARG_ALARM_DESC, percentEncoded(item->data(AlarmModel::descriptionRole).toString())},
            {ARG_ALARM_TRG_LIST, item->data(AlarmModel::triggerXmlRole).toString()},
            {ARG_ALARM_ACT_LIST, item->data(AlarmModel::actionXmlRole).toString()},
            {ARG_ALARM_ENABLED, item->data(AlarmModel::enabledRole).toBool()},
            {ARG_ALARM_TEMP_NAME, newTemplateName},
            {ARG_ALARM_TEMP_CONTENT, templateContent},
            {ARG_CONTEXT_UID, batchId},
        };
        if (!sendWithContext("updateAlarmSchedule", METHOD_UPD_ALARM_SCHEDULE, arguments,
                             newContext("updateAlarmSchedule", arguments)))
            ++batch.failureCount;
    }
    if (batch.failureCount == batch.total)
        return false;
    m_batches.insert(batchId, batch);
    return true;
}

bool PluginAlarmManager::getAlarmSoundList()
{
    return SendRequestToServer(METHOD_GET_ALARM_SOUND_LIST, QVariant(), nullptr);
}

bool PluginAlarmManager::getReserveTime()
{
    return SendRequestToServer(METHOD_GET_RESERVE_TIME, QVariant(), nullptr);
}

bool PluginAlarmManager::updateReserveTime(int reserveTime)
{
    return SendRequestToServer(METHOD_UPD_RESERVE_TIME, QVariant(reserveTime), nullptr);
}

bool PluginAlarmManager::sendVirtualTriggerAlarm(const QString& name, const QString& cameraId, int iconType, int id,
                                                 const QString& cameraName)
{
    const QVariantMap arguments{
        {ARG_VIRTUAL_TRIGGER_NAME, name},
        {ARG_VIRTUAL_TRIGGER_ID, id},
        {ARG_VIRTUAL_TRIGGER_ICON_TYPE, iconType},
        {ARG_CAMERA, cameraId},
        {ARG_CAMERA_NAME, cameraName},
    };
    return sendWithContext("sendVirtualTriggerAlarm", METHOD_VIRTUAL_TRIGGER, arguments,
                           newContext("sendVirtualTriggerAlarm", id));
}

bool PluginAlarmManager::toggleAllAlarm(bool enable, int interval)
{
    const QVariantMap arguments{
        {ARG_TOGGLE_ENABLE, enable},
        {ARG_TOGGLE_INTERVAL, interval},
    };
    return SendRequestToServer(METHOD_TOGGLE_ALL_ALARM, arguments, nullptr);
}

bool PluginAlarmManager::toggleAlarm(const QVariantList& configurationList)
{
    // QML's entries carry "id" and "enable"; the server's carry "alarmID" and "toggleEnable".
    QVariantList toggles;
    toggles.reserve(configurationList.size());
    // An entry that names no alarm is left out rather than sent as an empty id.
    for (const QVariant& entry : configurationList) {
        const QVariantMap configuration = entry.toMap();
        const QString alarmId = configuration.value(qmlAlarmIdKey).toString();
        if (alarmId.isEmpty())
            continue;
        toggles.append(QVariantMap{
            {ARG_ALARM_ID, alarmId},
            {ARG_TOGGLE_ENABLE, configuration.value(qmlEnableKey).toBool()},
        });
    }
    return sendWithContext("toggleAlarm", METHOD_TOGGLE_ALARM, toggles, newContext("toggleAlarm", toggles));
}

bool PluginAlarmManager::closeEMapTab(const QStringList& nodeIdList)
{
    // The same heap variant is argument and context; no answer comes back for it, so nobody frees it.
    auto* nodeIds = new (std::nothrow) QVariant(nodeIdList);
    if (!nodeIds) {
        ALARM_TRACE_ERROR("%s, new context failed", "closeEMapTab");
        return false;
    }
    return SendRequestToServer(METHOD_CLOSE_EMAP_TAB, *nodeIds, nodeIds);
}

bool PluginAlarmManager::closeAlarmTab(const QStringList& nodeIdList)
{
    auto* nodeIds = new (std::nothrow) QVariant(nodeIdList);
    if (!nodeIds) {
        ALARM_TRACE_ERROR("%s, new context failed", "closeAlarmTab");
        return false;
    }
    return SendRequestToServer(METHOD_CLOSE_ALARM_TAB, *nodeIds, nodeIds);
}

bool PluginAlarmManager::closeAlarmNotification()
{
    return SendRequestToServer(METHOD_CLOSE_ALARM_NOTIFICATION, QVariant(), nullptr);
}
