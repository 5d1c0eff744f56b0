// Answers of the server to this plug-in's requests, and the per-camera view-cell models they and the
// server's events keep up. Success is exactly the return code "0". Each handler releases the context its
// request allocated; the models stay as they were when an answer fails ("GetAllAlarm" excepted).
#include "PluginAlarmManager.h"

#include "AlarmItem.h"
#include "AlarmMessageParser.h"
#include "AudioFileManager.h"
#include "PluginAlarmManager_Log.h"
#include "XML2Json.h"
#include "stdafx.h"

#include <QUrl>

#include <typeinfo>
#ifdef __GLIBC__
#include <malloc.h>
#endif

using namespace PluginAlarmManagerCommon;

namespace {
// The licence manager's edition feature that unlocks rules triggered by "Guardian" events.
const QString guardianFeature = QStringLiteral("supportGuardian");
const QString guardianTriggerType = QStringLiteral("Guardian");
const QString soundExtension = QStringLiteral(".mp3");

// Elements of a trigger document that carry the virtual triggers a view cell shows.
const QString triggerListElement = QStringLiteral("TriggerList");
const QString extDeviceTriggerElement = QStringLiteral("ExtDeviceEventTrigger");
const QString virtualTriggerElement = QStringLiteral("VirtualTrigger");
const QString nameElement = QStringLiteral("Name");
const QString cameraElement = QStringLiteral("Camera");
const QString iconTypeElement = QStringLiteral("IconType");
const QString mappingElement = QStringLiteral("Mapping");

QVariantMap parsedMap(const QVariant& xmlText)
{
    return XML2Json::parse(xmlText.toString()).toMap();
}

// A sound name from the server becomes a file name in the sound folder: anything that could leave that
// folder is refused.
bool isPlainFileName(const QString& name)
{
    return !name.isEmpty() && name != QLatin1String(".") && name != QLatin1String("..")
           && !name.contains(QLatin1Char('/')) && !name.contains(QLatin1Char('\\')) && !name.contains(QChar());
}

template <typename Context>
Context takeContext(void* context)
{
    auto* owned = static_cast<Context*>(context);
    Context value = std::move(*owned);
    delete owned;
    return value;
}
} // namespace

void PluginAlarmManager::CommandProcessor(QString method, QVariant result, void* context, QString returnCode,
                                          QString, bool, const QString&)
{
    if (method == METHOD_GET_ALL_ALARM) {
        HandleGetAllAlarm(result, returnCode);
    } else if (method == METHOD_ADD_ALARM) {
        HandleAddAlarm(result, returnCode, context);
    } else if (method == METHOD_UPD_ALARM) {
        HandleUpdateAlarm(context, returnCode);
    } else if (method == METHOD_UPD_ALARM_SCHEDULE) {
        HandleUpdateAlarmSchedule(context, returnCode);
    } else if (method == METHOD_DEL_ALARM) {
        HandleDeleteAlarm(result, context, returnCode);
    } else if (method == METHOD_SEND_HTTP) {
        emit sendHttpRequestResp(isSuccess(returnCode), result.toString());
    } else if (method == METHOD_GET_ALARM_SOUND_LIST) {
        QStringList soundNames = result.toStringList();
        for (QString& soundName : soundNames)
            soundName.remove(soundExtension);
        emit getAlarmSoundListResp(soundNames);
    } else if (method == METHOD_GET_ALARM_SOUND_LIST_FOR_SYNC) {
        HandleGetAlarmSoundListForSync(result, returnCode);
    } else if (method == METHOD_GET_ALARM_SOUND_CONTENT) {
        HandleGetAlarmSoundContent(result, returnCode);
    } else if (method == METHOD_GET_RESERVE_TIME) {
        HandleGetAlarmReserveTime(result, returnCode);
    } else if (method == METHOD_UPD_RESERVE_TIME) {
        HandleUpdateAlarmReserveTime(result, returnCode);
    } else if (method == METHOD_TOGGLE_ALL_ALARM) {
        HandleToggleAllAlarm(result, returnCode);
    } else if (method == METHOD_TOGGLE_ALARM) {
        const QList<QVariant> toggles = context ? takeContext<QList<QVariant>>(context) : QList<QVariant>();
        HandleToggleAlarm(result, returnCode, toggles);
    } else if (method == METHOD_VIRTUAL_TRIGGER) {
        // Without its context the answer cannot say which trigger it belongs to.
        if (!context) {
            ALARM_TRACE_ERROR("%s, virtual trigger answer without ctx", "CommandProcessor");
            return;
        }
        HandleSendVirtualTriggerAlarm(result, returnCode, *static_cast<int*>(context));
        delete static_cast<int*>(context);
    }
}

QList<QStandardItem*> PluginAlarmManager::alarmItemsOf(const QString& alarmXml)
{
    if (!m_alarmMessageParser)
        return {};
    // The plug-in's own parser gives the same rows rule by rule, without the whole list's tree; a parser
    // set from outside gets the tree and the text as it always did.
    IAlarmMessageParser& parser = *m_alarmMessageParser;
    if (typeid(parser) == typeid(AlarmMessageParser))
        return static_cast<AlarmMessageParser&>(parser).createAlarmItemListFromXml(alarmXml);
    return parser.createAlarmItemList(QVariantMap{{ARG_ALARM_LIST, XML2Json::parse(alarmXml)}, {ARG_ALARM_XML_MSG, alarmXml}});
}

void PluginAlarmManager::HandleGetAllAlarm(const QVariant& result, const QString& returnCode)
{
    if (m_alarmModel)
        m_alarmModel->clear();
    ClearViewCellTriggerModel();
    if (!isSuccess(returnCode)) {
        ALARM_TRACE_ERROR("%s, handle get all alarm failed, returnCode = %s", "HandleGetAllAlarm",
                          returnCode.toLocal8Bit().constData());
        emit getAlarmResp(false);
        return;
    }

    const bool supportsGuardian = isGuardianSupported();
    const QList<QStandardItem*> items = alarmItemsOf(result.toString());
#ifdef __GLIBC__
    malloc_trim(0);
#endif

    QList<QStandardItem*> rows;
    rows.reserve(items.size());
    for (QStandardItem* item : items) {
        if (!item)
            continue;
        if (!supportsGuardian && item->data(AlarmModel::triggerTypeRole).toString() == guardianTriggerType) {
            delete item;
            continue;
        }
        rows.append(item);
    }
    if (!m_alarmModel) {
        qDeleteAll(rows);
        emit getAlarmResp(false);
        return;
    }
    // One insertion for the whole list: the proxies above re-map once instead of once per rule. The
    // column comes first, so that views never see columns appear in the middle of a row insertion.
    if (!rows.isEmpty()) {
        m_alarmModel->setColumnCount(1);
        m_alarmModel->invisibleRootItem()->appendRows(rows);
    }
    for (QStandardItem* item : std::as_const(rows)) {
        if (!item->data(AlarmModel::enabledRole).toBool())
            continue;
        // Most rules have no virtual trigger; their trigger text need not be parsed again.
        if (AlarmItem::xmlTextContains(item, AlarmModel::triggerXmlRole, QLatin1StringView("VirtualTrigger")))
            insertViewCellTriggers(item->data(AlarmModel::idRole).toString(),
                                   parsedMap(item->data(AlarmModel::triggerXmlRole)));
    }
    emit getAlarmResp(true);
}

void PluginAlarmManager::HandleAddAlarm(const QVariant& result, const QString& returnCode, void* context)
{
    if (!context) {
        ALARM_TRACE_ERROR("%s, handle add alarm failed, ctx is null", "HandleAddAlarm");
        emit addAlarmResp(false, QString());
        return;
    }
    const QVariantMap request = takeContext<QVariantMap>(context);
    if (!isSuccess(returnCode)) {
        ALARM_TRACE_ERROR("%s, handle add alarm failed, returnCode = %s", "HandleAddAlarm",
                          returnCode.toLocal8Bit().constData());
        emit addAlarmResp(false, QString());
        return;
    }

    const QVariantMap added = result.toMap();
    const QString alarmId = added.value(ARG_ALARM_ID).toString();
    const QString triggerXml = added.value(ARG_ALARM_TRG_LIST).toString();
    const QString actionXml = added.value(ARG_ALARM_ACT_LIST).toString();

    QString triggerType;
    QList<QVariant> triggerSources;
    QList<QVariant> actionTypes;
    QList<QVariant> actionTargets;
    if (m_alarmMessageParser) {
        m_alarmMessageParser->ParseTriggerData(XML2Json::parse(triggerXml).toMap(), triggerType, triggerSources);
        m_alarmMessageParser->ParseActionData(XML2Json::parse(actionXml).toMap(), actionTypes, actionTargets);
    }

    // The server creates every alarm enabled at revision 1, whatever the request carried.
    QMap<int, QVariant> roles{
        {AlarmModel::idRole, alarmId},
        {AlarmModel::nameRole, DecodePercentEncodedStr(request.value(ARG_ALARM_NAME).toString())},
        {AlarmModel::enabledRole, true},
        {AlarmModel::triggerTypeRole, triggerType},
        {AlarmModel::triggerSourceRole, triggerSources},
        {AlarmModel::actionTypeRole, actionTypes},
        {AlarmModel::actionTargetRole, actionTargets},
        {AlarmModel::scheduleRole,
         scheduleList(request.value(ARG_ALARM_TEMP_NAME).toString(), ARG_SCHE_STATUS_SUCCESS,
                      request.value(ARG_ALARM_TEMP_CONTENT).toString(), QVariantList())},
        {AlarmModel::revisionRole, qlonglong(1)},
        {AlarmModel::descriptionRole, DecodePercentEncodedStr(request.value(ARG_ALARM_DESC).toString())},
        {AlarmModel::triggerXmlRole, triggerXml},
        {AlarmModel::actionXmlRole, actionXml},
    };
    QStandardItem* item = AlarmItem::create(roles);
    if (!item || !m_alarmModel) {
        delete item;
        ALARM_TRACE_ERROR("%s, new model item failed", "HandleAddAlarm");
        emit addAlarmResp(false, QString());
        return;
    }
    if (m_alarmModel->columnCount() == 0)
        m_alarmModel->setColumnCount(1);
    m_alarmModel->insertRow(0, item);
    emit addAlarmResp(true, alarmId);
}

void PluginAlarmManager::HandleUpdateAlarm(void* context, const QString& returnCode)
{
    if (!context) {
        ALARM_TRACE_ERROR("%s, handle edit alarm failed, pvContext is null", "HandleUpdateAlarm");
        emit updateAlarmResp(false, QString());
        return;
    }
    const QVariantMap request = takeContext<QVariantMap>(context);
    if (!isSuccess(returnCode)) {
        ALARM_TRACE_ERROR("%s, handle edit alarm failed, returnCode = %s", "HandleUpdateAlarm",
                          returnCode.toLocal8Bit().constData());
        emit updateAlarmResp(false, QString());
        return;
    }
    const QString alarmId = request.value(ARG_ALARM_ID).toString();
    QStandardItem* item = findAlarmItem(alarmId);
    if (!item) {
        ALARM_TRACE_ERROR("%s, alarm(%s) is not found", "HandleUpdateAlarm", alarmId.toLocal8Bit().constData());
        emit updateAlarmResp(false, QString());
        return;
    }
    applyAlarmEdit(item, request);
    emit updateAlarmResp(true, alarmId);
}

void PluginAlarmManager::applyAlarmEdit(QStandardItem* item, const QVariantMap& request)
{
    QString triggerType;
    QList<QVariant> triggerSources;
    QList<QVariant> actionTypes;
    QList<QVariant> actionTargets;
    if (m_alarmMessageParser) {
        m_alarmMessageParser->ParseTriggerData(parsedMap(request.value(ARG_ALARM_TRG_LIST)), triggerType,
                                               triggerSources);
        m_alarmMessageParser->ParseActionData(parsedMap(request.value(ARG_ALARM_ACT_LIST)), actionTypes,
                                              actionTargets);
    }
    const QVariantList schedule =
        scheduleList(request.value(ARG_ALARM_TEMP_NAME).toString(), ARG_SCHE_STATUS_SUCCESS,
                     request.value(ARG_ALARM_TEMP_CONTENT).toString(), item->data(AlarmModel::scheduleRole).toList());

    item->setData(DecodePercentEncodedStr(request.value(ARG_ALARM_NAME).toString()), AlarmModel::nameRole);
    item->setData(triggerSources, AlarmModel::triggerSourceRole);
    item->setData(triggerType, AlarmModel::triggerTypeRole);
    item->setData(actionTypes, AlarmModel::actionTypeRole);
    item->setData(actionTargets, AlarmModel::actionTargetRole);
    item->setData(schedule, AlarmModel::scheduleRole);
    item->setData(request.value(ARG_ALARM_REV).toLongLong(), AlarmModel::revisionRole);
    item->setData(DecodePercentEncodedStr(request.value(ARG_ALARM_DESC).toString()), AlarmModel::descriptionRole);
    item->setData(request.value(ARG_ALARM_TRG_LIST).toString(), AlarmModel::triggerXmlRole);
    item->setData(request.value(ARG_ALARM_ACT_LIST).toString(), AlarmModel::actionXmlRole);
    item->setData(request.value(ARG_ALARM_ENABLED).toBool(), AlarmModel::enabledRole);
}

void PluginAlarmManager::HandleUpdateAlarmSchedule(void* context, const QString& returnCode)
{
    if (!context) {
        ALARM_TRACE_ERROR("%s, handle update schedule failed, ctx is null", "HandleUpdateAlarmSchedule");
        return;
    }
    const QVariantMap request = takeContext<QVariantMap>(context);
    const auto batch = m_batches.find(request.value(ARG_CONTEXT_UID).toLongLong());
    if (batch == m_batches.end())
        return;

    const bool success = isSuccess(returnCode);
    const QString alarmId = request.value(ARG_ALARM_ID).toString();
    const QString templateName = request.value(ARG_ALARM_TEMP_NAME).toString();
    if (QStandardItem* item = findAlarmItem(alarmId)) {
        // The row keeps its old template name when the server refused the new one; the revision follows
        // the server, which counts the accepted edit.
        const QVariantList oldSchedule = item->data(AlarmModel::scheduleRole).toList();
        if (success) {
            item->setData(scheduleList(templateName, ARG_SCHE_STATUS_SUCCESS,
                                       request.value(ARG_ALARM_TEMP_CONTENT).toString(), oldSchedule),
                          AlarmModel::scheduleRole);
            item->setData(request.value(ARG_ALARM_REV).toLongLong(), AlarmModel::revisionRole);
        } else {
            item->setData(QVariantList{oldSchedule.value(0).toString(), ARG_SCHE_STATUS_UPDFAIL,
                                       oldSchedule.value(2).toString()},
                          AlarmModel::scheduleRole);
        }
    } else {
        ALARM_TRACE_ERROR("%s, alarm(%s) is not found", "HandleUpdateAlarmSchedule",
                          alarmId.toLocal8Bit().constData());
    }
    if (success) {
        ++batch->successCount;
    } else {
        ALARM_TRACE_ERROR("%s failed, returnCode = %s", "HandleUpdateAlarmSchedule",
                          returnCode.toLocal8Bit().constData());
        ++batch->failureCount;
    }
    emit updateAlarmScheduleResp(success, alarmId);

    // The entry goes before the signal, so a slot may start the next batch in the same millisecond.
    if (batch->successCount + batch->failureCount >= batch->total) {
        const bool isBatchSuccess = batch->failureCount == 0;
        m_batches.erase(batch);
        emit updateAllAlarmScheduleResp(isBatchSuccess, templateName);
    }
}

void PluginAlarmManager::HandleDeleteAlarm(const QVariant& result, void* context, const QString& returnCode)
{
    if (!context)
        return;
    const qint64 batchId = takeContext<qint64>(context);
    const auto batch = m_batches.find(batchId);
    if (batch == m_batches.end())
        return;

    if (!isSuccess(returnCode)) {
        ++batch->failureCount;
    } else {
        const QString alarmId = result.toString();
        emit alarmDeleted(alarmId);
        if (QStandardItem* item = findAlarmItem(alarmId))
            m_alarmModel->removeRow(item->row());
        ++batch->successCount;
    }
    if (batch->successCount + batch->failureCount >= batch->total) {
        const int total = batch->total;
        const int successCount = batch->successCount;
        m_batches.erase(batch);
        emit deleteAlarmsResp(total, successCount);
    }
}

void PluginAlarmManager::HandleGetAlarmSoundListForSync(const QVariant& result, const QString& returnCode)
{
    if (!isSuccess(returnCode)) {
        ALARM_TRACE_ERROR("%s failed, returnCode = %s", "HandleGetAlarmSoundListForSync",
                          returnCode.toLocal8Bit().constData());
        return;
    }
    const QStringList localSounds = m_audioFileManager ? m_audioFileManager->getFileList() : QStringList();
    QStringList missingSounds;
    for (const QString& soundName : result.toStringList()) {
        if (!localSounds.contains(soundName))
            missingSounds.append(soundName);
    }
    SendRequestToServer(METHOD_GET_ALARM_SOUND_CONTENT, missingSounds, nullptr);
}

void PluginAlarmManager::HandleGetAlarmSoundContent(const QVariant& result, const QString& returnCode)
{
    if (!isSuccess(returnCode)) {
        ALARM_TRACE_ERROR("%s failed, returnCode = %s", "HandleGetAlarmSoundContent",
                          returnCode.toLocal8Bit().constData());
        return;
    }
    // Without a folder the store would write beside the root of the file system.
    if (!m_audioFileManager || m_audioFileManager->directoryPath().isEmpty()) {
        ALARM_TRACE_ERROR("%s, no sound folder", "HandleGetAlarmSoundContent");
        return;
    }
    const QVariantList sounds = result.toList();
    for (const QVariant& sound : sounds) {
        const QVariantMap soundMap = sound.toMap();
        const QString soundName = soundMap.value(ARG_SOUND_NAME).toString();
        if (!isPlainFileName(soundName)) {
            ALARM_TRACE_ERROR("%s, sound name(%s) is not a plain file name", "HandleGetAlarmSoundContent",
                              soundName.toLocal8Bit().constData());
            continue;
        }
        const auto decoded = QByteArray::fromBase64Encoding(soundMap.value(ARG_SOUND_CONTENT).toString().toLatin1(),
                                                            QByteArray::AbortOnBase64DecodingErrors);
        if (!decoded) {
            ALARM_TRACE_ERROR("%s, sound(%s) is not Base64", "HandleGetAlarmSoundContent",
                              soundName.toLocal8Bit().constData());
            continue;
        }
        if (!m_audioFileManager->save(soundName, *decoded))
            ALARM_TRACE_ERROR("%s, save sound(%s) failed", "HandleGetAlarmSoundContent",
                              soundName.toLocal8Bit().constData());
    }
}

void PluginAlarmManager::HandleGetAlarmReserveTime(const QVariant& result, const QString& returnCode)
{
    if (!isSuccess(returnCode)) {
        ALARM_TRACE_ERROR("%s failed, returnCode = %s", "HandleGetAlarmReserveTime",
                          returnCode.toLocal8Bit().constData());
        return;
    }
    emit getReserveTimeResp(true, result.toInt());
}

void PluginAlarmManager::HandleUpdateAlarmReserveTime(const QVariant&, const QString& returnCode)
{
    if (!isSuccess(returnCode)) {
        ALARM_TRACE_ERROR("%s failed, returnCode = %s", "HandleUpdateAlarmReserveTime",
                          returnCode.toLocal8Bit().constData());
        return;
    }
    emit updateReserveTimeResp(true);
}

void PluginAlarmManager::HandleToggleAllAlarm(const QVariant&, const QString& returnCode)
{
    m_lastToggleAllAlarmResult = isSuccess(returnCode);
    if (!m_lastToggleAllAlarmResult)
        ALARM_TRACE_ERROR("%s failed, returnCode = %s", "HandleToggleAllAlarm", returnCode.toLocal8Bit().constData());
    emit toggleAllAlarmResp(m_lastToggleAllAlarmResult);
}

void PluginAlarmManager::HandleToggleAlarm(const QVariant&, const QString& returnCode,
                                           const QList<QVariant>& configurationList)
{
    m_lastToggleAlarmResult = isSuccess(returnCode);
    if (!m_lastToggleAlarmResult) {
        ALARM_TRACE_ERROR("%s failed, returnCode = %s", "HandleToggleAlarm", returnCode.toLocal8Bit().constData());
    } else {
        // Only the flag changes here: the view cells follow the server's "toggleAlarm" event, which every
        // client receives (this one too), as they do for added, edited and deleted alarms. The revision
        // is left alone; the next list or edit answer brings the server's.
        for (const QVariant& entry : configurationList) {
            const QVariantMap toggle = entry.toMap();
            if (QStandardItem* item = findAlarmItem(toggle.value(ARG_ALARM_ID).toString()))
                item->setData(toggle.value(ARG_TOGGLE_ENABLE).toBool(), AlarmModel::enabledRole);
        }
    }
    emit toggleAlarmResp(m_lastToggleAlarmResult);
}

void PluginAlarmManager::HandleSendVirtualTriggerAlarm(const QVariant&, const QString& returnCode, int id)
{
    if (!isSuccess(returnCode)) {
        ALARM_TRACE_ERROR("%s failed, returnCode = %s", "HandleSendVirtualTriggerAlarm",
                          returnCode.toLocal8Bit().constData());
        emit sendVirtualTriggerAlarmResp(false, id);
        return;
    }
    emit sendVirtualTriggerAlarmResp(true, id);
}

void PluginAlarmManager::ClearViewCellTriggerModel()
{
    // The models stay in the map: QML may hold their proxies.
    for (const QSharedPointer<AlarmViewCellTriggerModel>& model : std::as_const(m_viewCellTriggerModels))
        model->clear();
}

void PluginAlarmManager::InsertToViewCellTriggerModel(const QString& alarmId, const QVariantMap& triggerTree)
{
    insertViewCellTriggers(alarmId, triggerTree);
}

void PluginAlarmManager::insertViewCellTriggers(const QString& alarmId, const QVariantMap& triggerTree)
{
    // A row without an alarm id could never be removed again.
    if (alarmId.isEmpty())
        return;
    const QVariantMap triggerList = triggerTree.value(triggerListElement).toMap();
    const QVariantList triggers = XML2Json::transContentAsList(triggerList.value(extDeviceTriggerElement));
    for (const QVariant& trigger : triggers) {
        const QVariantMap triggerMap = trigger.toMap();
        if (!triggerMap.contains(virtualTriggerElement))
            continue;
        const QVariantMap info = getVirtualTriggerInfo(triggerMap);
        const QString cameraId = info.value(ARG_CAMERA).toString();
        if (cameraId.isEmpty())
            continue;
        viewCellTriggerModel(cameraId)->insert(alarmId, info.value(ARG_VIRTUAL_TRIGGER_NAME).toString(),
                                               info.value(ARG_VIRTUAL_TRIGGER_ICON_TYPE).toInt());
    }
}

void PluginAlarmManager::RemoveFromViewCellTriggerModel(const QString& alarmId)
{
    if (alarmId.isEmpty())
        return;
    for (const QSharedPointer<AlarmViewCellTriggerModel>& model : std::as_const(m_viewCellTriggerModels)) {
        for (int row = model->rowCount() - 1; row >= 0; --row) {
            if (model->index(row, 0).data(AlarmViewCellTriggerModel::idRole).toString() == alarmId)
                model->removeRow(row);
        }
    }
}

AlarmViewCellTriggerModel* PluginAlarmManager::viewCellTriggerModel(const QString& cameraId)
{
    QSharedPointer<AlarmViewCellTriggerModel>& model = m_viewCellTriggerModels[cameraId];
    if (!model)
        model.reset(new AlarmViewCellTriggerModel(this));
    return model.data();
}

QVariantMap PluginAlarmManager::getVirtualTriggerInfo(const QVariantMap& virtualTrigger) const
{
    // The argument is one "ExtDeviceEventTrigger" entry. Its "VirtualTrigger" child holds "Name" (typed
    // by a user, so percent-encoded), "Camera" and "IconType"; a "Camera" or "IconType" written beside
    // that child, on the entry itself, is read when the child has none. The server's documents write the
    // fields capitalised, the plug-in's own requests ("camera", "name", "iconType") do not; both are read.
    const QVariantMap body = virtualTrigger.value(virtualTriggerElement).toMap();
    const auto field = [](const QVariantMap& map, const QString& name, const QString& spelling) {
        return map.contains(name) ? map.value(name) : map.value(spelling);
    };
    const auto element = [&](const QString& name, const QString& spelling) {
        return body.contains(name) || body.contains(spelling) ? field(body, name, spelling)
                                                              : field(virtualTrigger, name, spelling);
    };
    return {
        {ARG_CAMERA, element(cameraElement, ARG_CAMERA).toString()},
        {ARG_VIRTUAL_TRIGGER_NAME, DecodePercentEncodedStr(field(body, nameElement, ARG_VIRTUAL_TRIGGER_NAME).toString())},
        {ARG_VIRTUAL_TRIGGER_ICON_TYPE, element(iconTypeElement, ARG_VIRTUAL_TRIGGER_ICON_TYPE).toInt()},
    };
}

QString PluginAlarmManager::EscapeURL(const QString& url)
{
    // Escapes what may not stand in a URL (blanks, non-ASCII) but keeps its delimiters and any escape
    // already present, so an escaped URL is left as it is.
    return QString::fromLatin1(QUrl::toPercentEncoding(url, QByteArrayLiteral(":/?#[]@!$&'()*+,;=%")));
}

QStandardItem* PluginAlarmManager::findAlarmItem(const QString& alarmId) const
{
    // An empty id, what a payload of the wrong shape reads as, names no alarm.
    if (!m_alarmModel || alarmId.isEmpty())
        return nullptr;
    const int rowCount = m_alarmModel->rowCount();
    for (int row = 0; row < rowCount; ++row) {
        QStandardItem* item = m_alarmModel->item(row);
        if (item && item->data(AlarmModel::idRole).toString() == alarmId)
            return item;
    }
    return nullptr;
}

qlonglong PluginAlarmManager::nextRevision(const QString& alarmId) const
{
    const QStandardItem* item = findAlarmItem(alarmId);
    return item ? item->data(AlarmModel::revisionRole).toLongLong() + 1 : 1;
}

bool PluginAlarmManager::isGuardianSupported()
{
    QVariantMap features;
    QObject* peer = m_framework ? m_framework->GetPluginObject(m_frameworkHandle, LICENSE_MANAGER_PLUGIN_ID) : nullptr;
    if (peer) {
        QMetaObject::invokeMethod(peer, "getEditionFeature", Qt::DirectConnection,
                                  Q_RETURN_ARG(QVariantMap, features));
    }
    return features.value(guardianFeature).toBool();
}

QVariantList PluginAlarmManager::scheduleList(const QString& templateName, const QString& status,
                                              const QString& templateContent, const QVariantList& oldSchedule)
{
    // A template arrives as the server's "Mapping" document; QML may also hand over the rectangles
    // directly. Anything else keeps the rectangles the row had.
    QString rectangles = oldSchedule.value(2).toString();
    const QVariant content = XML2Json::parse(templateContent);
    if (content.isValid()) {
        const QVariantMap contentMap = content.toMap();
        if (contentMap.contains(mappingElement) && m_alarmMessageParser) {
            QString parsedName;
            QString parsedRectangles;
            m_alarmMessageParser->ParseTimeframeData(contentMap, parsedName, parsedRectangles);
            rectangles = parsedRectangles;
        }
    } else if (templateContent.trimmed().startsWith(QLatin1Char('{'))) {
        rectangles = templateContent;
    }
    return {templateName, status, rectangles};
}
