#pragma once

#include <QMap>
#include <QMetaMethod>
#include <QPointer>
#include <QSharedPointer>
#include <QSortFilterProxyModel>
#include <QString>
#include <QStringList>
#include <QVariant>

#include "PluginBase.h"

#include "AlarmModel.h"
#include "AlarmSortFilterModel.h"
#include "AlarmTranslatedModel.h"
#include "AlarmViewCellTriggerModel.h"

class AudioFileManager;
class IAlarmMessageParser;

// The alarm-management plug-in: QML's entry point for listing and editing the server's alarm rules, and
// the receiver of the server's answers and pushed events. Everything runs on the host's GUI thread:
// requests go out through the framework without blocking, answers come back through CommandProcessor
// with the context the request allocated, and every outcome reaches QML as a signal.
//
// The members are spread over several source files: lifecycle and events (PluginAlarmManager.cpp), the
// QML request API (_Req), answer handlers (_Hdlr), lookups through peer plug-ins (_Local).
class PluginAlarmManager : public PluginBase
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PluginInterface_iid FILE "PluginAlarmManager.json")
    Q_INTERFACES(PluginBase)

public:
    // Fixed underlying type: the notification parser also yields 2 (sound the alarm), which QML receives
    // as a plain number although the enumeration names only the first two kinds.
    enum ClientNotificationType : int {
        GoToEMap = 0,
        PopupWindow = 1,
    };
    Q_ENUM(ClientNotificationType)

    // Counters of one batch of requests (deletions, schedule updates) that QML sees as one operation.
    struct BatchCommandContext
    {
        qint32 total = 0;
        qint32 successCount = 0;
        qint32 failureCount = 0;
    };

    explicit PluginAlarmManager(QObject* parent = nullptr);
    ~PluginAlarmManager() override;

    // PluginBase
    bool InitialPluginBase(QQmlContext* context, void* handle, FrameworkWrapperBase* framework) override;
    void EventProcessor(QString eventName, long long, int, int, QVariant data, const QString& target) override;
    void EventProcessorEx(QString, ConfigBase*, long long, int, int, QVariant, const QString&) override;
    void CommandProcessor(QString method, QVariant result, void* context, QString returnCode, QString, bool,
                          const QString&) override;
    void CommandProcessorEx(QString, ConfigBase*, QVariant, void*, QString, QString, bool, const QString&) override;
    bool Init(QQmlContext* context) override;
    void LoadPairPluginDone() override;
    void PluginServerConnected() override;

    // Substitution points for tests and hosts; Init creates a sound store only when none was set.
    void setAlarmMsgParser(IAlarmMessageParser* parser);
    void setAudioFileManager(QSharedPointer<AudioFileManager> audioFileManager);

    bool SendRequestToServer(const QString& method, const QVariant& argument, void* context);

    // Lookups through peer plug-ins; each asks the framework for the peer anew and never caches it.
    QString queryDisplayName(const QString& deviceId);
    QString queryDIDODisplayName(const QString& deviceId, const QString& ioName, int index);
    QString queryRoleName(int roleId);
    static QString DecodePercentEncodedStr(const QString& text);

    // Model getters for QML; the models live as long as the plug-in.
    Q_INVOKABLE AlarmModel* getAlarmModel();
    Q_INVOKABLE AlarmTranslatedModel* getAlarmTranslatedModel();
    Q_INVOKABLE AlarmSortFilterModel* getAlarmFilterModel();
    Q_INVOKABLE QSortFilterProxyModel* getAlarmViewCellTriggerModel(const QString& cameraId);
    Q_INVOKABLE bool getToggleAlarmResult();
    Q_INVOKABLE bool getToggleAllAlarmResult();

    // Requests; each returns true when the request was handed to the framework.
    Q_INVOKABLE bool getAllAlarm();
    Q_INVOKABLE bool addAlarm(const QString& name, const QString& description, const QString& triggerXmlData,
                              const QString& actionXmlData, const QString& relatedDevicesXmlData,
                              const QString& templateName, const QString& templateContent, bool enabled);
    Q_INVOKABLE bool addAlarm(const QString& name, const QString& description, const QString& triggerXmlData,
                              const QString& actionXmlData, const QString& relatedDevicesXmlData,
                              const QString& templateName, const QString& templateContent);
    Q_INVOKABLE bool updateAlarm(const QString& id, const QString& name, const QString& description,
                                 const QString& triggerXmlData, const QString& actionXmlData,
                                 const QString& relatedDevicesXmlData, const QString& templateName,
                                 const QString& templateContent, bool enabled);
    Q_INVOKABLE bool updateAlarm(const QString& id, const QString& name, const QString& description,
                                 const QString& triggerXmlData, const QString& actionXmlData,
                                 const QString& relatedDevicesXmlData, const QString& templateName,
                                 const QString& templateContent);
    Q_INVOKABLE bool deleteAlarms(const QVariantList& alarmList);
    Q_INVOKABLE bool sendHttpRequest(const QString& url, bool needAuth, const QString& user,
                                     const QString& password, const QString& method, const QString& contentType,
                                     const QString& content);
    Q_INVOKABLE bool updateAlarmSchedule(const QString& oldTemplateName, const QString& newTemplateName,
                                         const QString& templateContent);
    Q_INVOKABLE bool getAlarmSoundList();
    Q_INVOKABLE bool getReserveTime();
    Q_INVOKABLE bool updateReserveTime(int reserveTime);
    Q_INVOKABLE bool sendVirtualTriggerAlarm(const QString& name, const QString& cameraId, int iconType, int id,
                                             const QString& cameraName);
    Q_INVOKABLE bool toggleAllAlarm(bool enable, int interval);
    Q_INVOKABLE bool toggleAlarm(const QVariantList& configurationList);
    Q_INVOKABLE bool closeEMapTab(const QStringList& nodeIdList);
    Q_INVOKABLE bool closeAlarmTab(const QStringList& nodeIdList);
    Q_INVOKABLE bool closeAlarmNotification();

signals:
    void getAlarmResp(bool success);
    void addAlarmResp(bool success, QString id);
    void updateAlarmResp(bool success, QString id);
    void updateAlarmScheduleResp(bool success, QString id);
    void deleteAlarmsResp(int allReq, int cntSuccess);
    void sendHttpRequestResp(bool success, QString errorCode);
    void getAlarmSoundListResp(QStringList alarmSoundList);
    void alarmTriggered(QString name, QString type, QString nodeID, qlonglong serverTime, QString eventType,
                        QString eventIndex, QString eventValue, QString deviceName, QString alarmId,
                        QString timecardId);
    void updateAllAlarmScheduleResp(bool success, QString templateName);
    void clientNotification(PluginAlarmManager::ClientNotificationType type, QVariant data, QString timecardId);
    void httpActionResponsed(QString errorCode);
    void alarmNotify(QString message);
    void getReserveTimeResp(bool success, int reserveTime);
    void updateReserveTimeResp(bool success);
    void alarmDeleted(QString id);
    void toggleAllAlarmResp(bool success);
    void toggleAlarmResp(bool success);
    void sendVirtualTriggerAlarmResp(bool success, int alarmId);
    void closeEMapTabResp(QStringList nodeIdList);
    void closeAlarmTabResp(QStringList nodeIdList);
    void closeAlarmNotificationResp();

private:
    bool SendBlockRequestToServer(const QString& method, const QVariant& argument, void* context);
    QString getSoundPath();
    QVariant getValueFromDeviceTreeModel(const QString& deviceId, const QString& roleName);

    // The rows of a "GetAllAlarm" answer, through the codec.
    QList<QStandardItem*> alarmItemsOf(const QString& alarmXml);
    // Answer handlers, called by CommandProcessor. Success is exactly the return code "0".
    void HandleGetAllAlarm(const QVariant& result, const QString& returnCode);
    void HandleAddAlarm(const QVariant& result, const QString& returnCode, void* context);
    void HandleUpdateAlarm(void* context, const QString& returnCode);
    void HandleUpdateAlarmSchedule(void* context, const QString& returnCode);
    void HandleDeleteAlarm(const QVariant& result, void* context, const QString& returnCode);
    void HandleGetAlarmSoundListForSync(const QVariant& result, const QString& returnCode);
    void HandleGetAlarmSoundContent(const QVariant& result, const QString& returnCode);
    void HandleGetAlarmReserveTime(const QVariant& result, const QString& returnCode);
    void HandleUpdateAlarmReserveTime(const QVariant& result, const QString& returnCode);
    void HandleToggleAllAlarm(const QVariant& result, const QString& returnCode);
    void HandleToggleAlarm(const QVariant& result, const QString& returnCode,
                           const QList<QVariant>& configurationList);
    void HandleSendVirtualTriggerAlarm(const QVariant& result, const QString& returnCode, int id);

    // Per-camera view-cell trigger models.
    void ClearViewCellTriggerModel();
    void InsertToViewCellTriggerModel(const QString& alarmId, const QVariantMap& triggerTree);
    void RemoveFromViewCellTriggerModel(const QString& alarmId);

    QVariantMap getVirtualTriggerInfo(const QVariantMap& virtualTrigger) const;
    static QString EscapeURL(const QString& url);

    static bool isSuccess(const QString& returnCode);

    // Argument map shared by "AddAlarm" and "UpdateAlarm"; name and description are percent-encoded.
    static QVariantMap alarmArguments(const QString& name, const QString& description,
                                      const QString& triggerXmlData, const QString& actionXmlData,
                                      const QString& relatedDevicesXmlData, const QString& templateName,
                                      const QString& templateContent, bool enabled);
    // Sends one request whose context the requester owns until the send succeeds; frees it otherwise.
    template <typename Context>
    bool sendWithContext(const char* requester, const QString& method, const QVariant& argument,
                         Context* context);
    QStandardItem* findAlarmItem(const QString& alarmId) const;
    qlonglong nextRevision(const QString& alarmId) const;
    bool isGuardianSupported();
    // The schedule list of a row: [template name, status, rectangle JSON]; the rectangles come from the
    // template content ("Mapping" XML, or rectangle JSON as it is), the old ones when it has none.
    QVariantList scheduleList(const QString& templateName, const QString& status, const QString& templateContent,
                              const QVariantList& oldSchedule);
    // Writes the rows of one answered edit; the caller has checked that the row exists.
    void applyAlarmEdit(QStandardItem* item, const QVariantMap& request);
    AlarmViewCellTriggerModel* viewCellTriggerModel(const QString& cameraId);
    void insertViewCellTriggers(const QString& alarmId, const QVariantMap& triggerTree);
    void handleAlarmTriggeredEvent(const QVariant& data);
    void handleToggleAlarmEvent(const QVariant& data);

    QString m_prefixName;
    QString m_pluginId;
    void* m_frameworkHandle = nullptr;
    FrameworkWrapperBase* m_framework = nullptr;
    // The device tree peer's lookup method, found once per kind of peer.
    const QMetaObject* m_deviceTreeMetaObject = nullptr;
    QMetaMethod m_getValueFromModel;
    QSharedPointer<AlarmModel> m_alarmModel;
    QSharedPointer<AlarmTranslatedModel> m_alarmTranslatedModel;
    QSharedPointer<AlarmSortFilterModel> m_alarmSortFilterModel;
    QSharedPointer<IAlarmMessageParser> m_alarmMessageParser;
    QSharedPointer<AudioFileManager> m_audioFileManager;
    QMap<QString, QSharedPointer<AlarmViewCellTriggerModel>> m_viewCellTriggerModels;
    QMap<QString, QSharedPointer<QSortFilterProxyModel>> m_viewCellTriggerProxies;
    QMap<qint64, BatchCommandContext> m_batches;
    bool m_lastToggleAllAlarmResult = false;
    bool m_lastToggleAlarmResult = false;
};
