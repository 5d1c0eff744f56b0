#pragma once

// The protocol's vocabulary: every method, event, argument key, model map key and plug-in id the plug-in exchanges with
// the host. Comparisons against these are exact and case-sensitive; nothing else repeats these strings.
// Namespace-scope const objects have internal linkage, so each source file gets its own copy, built at load.

#include <QString>

namespace ActionParserCommon {
// Element names of the actions in the alarm XML, and the "actionType" of the action models.
    const QString ACTION_TYPE_SENDMAIL                     = QStringLiteral("SendMail");
    const QString ACTION_TYPE_SMS                          = QStringLiteral("SMS");
    const QString ACTION_TYPE_FTP                          = QStringLiteral("FTP");
    const QString ACTION_TYPE_HTTP                         = QStringLiteral("HTTP");
    const QString ACTION_TYPE_RECORDING                    = QStringLiteral("Recording");
    const QString ACTION_TYPE_PRESET                       = QStringLiteral("PresetLocMove");
    const QString ACTION_TYPE_SETDO                        = QStringLiteral("SetDO");
    const QString ACTION_TYPE_LAUNCH_PROGRAM               = QStringLiteral("LaunchProgram");
    const QString ACTION_TYPE_CLIENTNOTIFY                 = QStringLiteral("ClientNotification");
    const QString ACTION_TYPE_CLIENTNOTIFY_GOTO_LIVESTREAM = QStringLiteral("ClientNotificationGotoLiveStream");
    const QString ACTION_TYPE_CLIENTNOTIFY_GOTO_EMAP       = QStringLiteral("ClientNotificationGotoEMap");
    const QString ACTION_TYPE_CLIENTNOTIFY_SOUND_THE_ALARM = QStringLiteral("ClientNotificationSoundTheAlarm");
    const QString ACTION_TYPE_ADDBOOKMARK                  = QStringLiteral("AddBookmark");
    const QString ACTION_TYPE_PLAYIPAUDIO                  = QStringLiteral("PlayIPAudio");
    const QString ACTION_TYPE_MOBILENOTIFICATION           = QStringLiteral("MobileNotification");

// Keys of the action model the codecs build ("actionType", "actionTarget") and of its target maps, as the
// editor, the display proxy and the filter proxy read them.
    const QString ACTION_MODEL_TYPE          = QStringLiteral("actionType");
    const QString ACTION_MODEL_TARGET        = QStringLiteral("actionTarget");
    const QString TARGET_NAME                = QStringLiteral("target");
    const QString TARGET_ACTION              = QStringLiteral("action");
    const QString TARGET_CAMERA_ID           = QStringLiteral("camId");
    const QString TARGET_CC                  = QStringLiteral("cc");
    const QString TARGET_POST                = QStringLiteral("post");
    const QString TARGET_INDEX               = QStringLiteral("index");
    const QString TARGET_IO_INDEX            = QStringLiteral("ioIndex");
    const QString TARGET_VALUE               = QStringLiteral("value");
    const QString TARGET_INCLUDE_TRIGGER_CAM = QStringLiteral("includeTriggerCam");
    const QString TARGET_PUSH_ALL            = QStringLiteral("pushAll");
} // namespace ActionParserCommon

namespace AlarmMessageParserCommon {
// Keys of one trigger map, as the trigger codec builds it and the display proxy and QML read it.
    const QString TRIGGER_DEV_REALNAME     = QStringLiteral("devRealName");
    const QString TRIGGER_DEV_NAME         = QStringLiteral("devName");
    const QString TRIGGER_TYPE             = QStringLiteral("trigger");
    const QString TRIGGER_LATENCY          = QStringLiteral("latency");
    const QString TRIGGER_INDEX            = QStringLiteral("index");
    const QString TRIGGER_VALUE            = QStringLiteral("value");
    const QString TRIGGER_DIO_TYPE         = QStringLiteral("typeDIO");
    const QString TRIGGER_IO_INDEX         = QStringLiteral("ioIndex");
    const QString TRIGGER_REMAINING_PEOPLE = QStringLiteral("remainingPeople");
    const QString TRIGGER_COMPARISON       = QStringLiteral("comparison");
    const QString TRIGGER_MATCHING_TYPE    = QStringLiteral("matchingType");
    const QString TRIGGER_CASE_INSENSITIVE = QStringLiteral("caseInsensitive");
    const QString TRIGGER_CONDITION_LIST   = QStringLiteral("conditionListString");
    const QString TRIGGER_ICON_TYPE        = QStringLiteral("iconType");
// The display proxy's trigger source map carries TRIGGER_DEV_NAME and this text.
    const QString TRIGGER_DISPLAY_VALUE    = QStringLiteral("displayValue");

// Values of TRIGGER_DIO_TYPE: whether a digital I/O trigger watches an input or an output.
    enum TriggerDioType { TRIGGER_DIO_TYPE_DI = 0, TRIGGER_DIO_TYPE_DO = 1 };
} // namespace AlarmMessageParserCommon

namespace PluginAlarmManagerCommon {
// Request methods; the last four also arrive as server-pushed event names.
    const QString METHOD_GET_ALL_ALARM                 = QStringLiteral("GetAllAlarm");
    const QString METHOD_ADD_ALARM                     = QStringLiteral("AddAlarm");
    const QString METHOD_UPD_ALARM                     = QStringLiteral("UpdateAlarm");
    const QString METHOD_DEL_ALARM                     = QStringLiteral("DeleteAlarm");
    const QString METHOD_SEND_HTTP                     = QStringLiteral("SendHTTP");
    const QString METHOD_UPD_ALARM_SCHEDULE            = QStringLiteral("UpdateAlarmSchedule");
    const QString METHOD_GET_ALARM_SOUND_LIST          = QStringLiteral("GetAlarmSoundList");
    const QString METHOD_GET_ALARM_SOUND_LIST_FOR_SYNC = QStringLiteral("GetAlarmSoundListForSync");
    const QString METHOD_GET_ALARM_SOUND_CONTENT       = QStringLiteral("GetAlarmSoundContent");
    const QString METHOD_GET_RESERVE_TIME              = QStringLiteral("GetAlarmReserveTime");
    const QString METHOD_UPD_RESERVE_TIME              = QStringLiteral("UpdateAlarmReserveTime");
    const QString METHOD_TOGGLE_ALL_ALARM              = QStringLiteral("ToggleAllAlarm");
    const QString METHOD_TOGGLE_ALARM                  = QStringLiteral("ToggleAlarm");
    const QString METHOD_VIRTUAL_TRIGGER               = QStringLiteral("VirtualTrigger");
    const QString METHOD_HTTP_ACTION_RESPONSE          = QStringLiteral("HttpActionResponse");
    const QString METHOD_CLOSE_EMAP_TAB                = QStringLiteral("CloseEMapTab");
    const QString METHOD_CLOSE_ALARM_TAB               = QStringLiteral("CloseAlarmTab");
    const QString METHOD_CLOSE_ALARM_NOTIFICATION      = QStringLiteral("CloseAlarmNotification");

// Keys of request arguments, answer results and event payloads.
    const QString ARG_ALARM_LIST                 = QStringLiteral("alarmList");
    const QString ARG_ALARM_XML_MSG              = QStringLiteral("alarmXmlMsg");
    const QString ARG_ALARM_ID                   = QStringLiteral("alarmID");
    const QString ARG_ALARM_REV                  = QStringLiteral("alarmRevision");
    const QString ARG_ALARM_NAME                 = QStringLiteral("alarmName");
    const QString ARG_ALARM_ENABLED              = QStringLiteral("alarmEnabled");
    const QString ARG_ALARM_TRG_LTC              = QStringLiteral("triggerLatency");
    const QString ARG_ALARM_TRG_LIST             = QStringLiteral("triggerList");
    const QString ARG_ALARM_ACT_INT              = QStringLiteral("actionInterval");
    const QString ARG_ALARM_ACT_LIST             = QStringLiteral("actionList");
    const QString ARG_ALARM_DESC                 = QStringLiteral("alarmDescription");
    const QString ARG_ALARM_RELATED_DEV          = QStringLiteral("relatedDevices");
    const QString ARG_ALARM_TEMP_NAME            = QStringLiteral("alarmTempName");
    const QString ARG_ALARM_TEMP_CONTENT         = QStringLiteral("alarmTempContent");
    const QString ARG_CONTEXT_UID                = QStringLiteral("contextUID");
    const QString ARG_SCHE_STATUS_SUCCESS        = QStringLiteral("success");
    const QString ARG_SCHE_STATUS_UPDFAIL        = QStringLiteral("updateAlarmFail");
    const QString ARG_TOGGLE_ENABLE              = QStringLiteral("toggleEnable");
    const QString ARG_TOGGLE_INTERVAL            = QStringLiteral("toggleInterval");
    const QString ARG_HTTP_URL                   = QStringLiteral("httpUrl");
    const QString ARG_HTTP_NEEDAUTH              = QStringLiteral("httpNeedAuth");
    const QString ARG_HTTP_USER                  = QStringLiteral("httpUser");
    const QString ARG_HTTP_PWD                   = QStringLiteral("httpPwd");
    const QString ARG_HTTP_METHOD                = QStringLiteral("httpMethod");
    const QString ARG_HTTP_CONTENT_TYPE          = QStringLiteral("httpContentType");
    const QString ARG_HTTP_CONTENT               = QStringLiteral("httpContent");
    const QString ARG_SPEED                      = QStringLiteral("speed");
    const QString ARG_THRESHOLD                  = QStringLiteral("threshold");
    const QString ARG_SOUND_NAME                 = QStringLiteral("soundName");
    const QString ARG_SOUND_CONTENT              = QStringLiteral("soundContent");
    const QString ARG_VIRTUAL_TRIGGER            = QStringLiteral("VirtualTrigger");
    const QString ARG_VIRTUAL_TRIGGER_NAME       = QStringLiteral("name");
    const QString ARG_VIRTUAL_TRIGGER_ID         = QStringLiteral("id");
    const QString ARG_VIRTUAL_TRIGGER_ICON_TYPE  = QStringLiteral("iconType");
    const QString ARG_VIRTUAL_TRIGGER_ERROR_CODE = QStringLiteral("errorCode");
    const QString ARG_CAMERA                     = QStringLiteral("camera");
    const QString ARG_CAMERA_NAME                = QStringLiteral("cameraName");

// Server-pushed event names (lower camel case, unlike the request methods).
    const QString EVENT_TYPE_ALARM_TRIGGERED     = QStringLiteral("alarmTriggered");
    const QString EVENT_TYPE_CLIENT_NOTIFICATION = QStringLiteral("clientNotification");
    const QString EVENT_TYPE_ADD_ALARM           = QStringLiteral("addAlarm");
    const QString EVENT_TYPE_UPDATE_ALARM        = QStringLiteral("updateAlarm");
    const QString EVENT_TYPE_DELETE_ALARM        = QStringLiteral("deleteAlarm");
    const QString EVENT_TYPE_TOGGLE_ALARM        = QStringLiteral("toggleAlarm");

// Settings folders; declared for the shared header, read by no code of this plug-in.
    const QString ORG_DIR              = QStringLiteral("/%1 Inc").arg(QStringLiteral("Corvane"), 0, QLatin1Char(' '));
    const QString SETTINGS_STORAGE_DIR = QStringLiteral("/%1/Client/Pylo2").arg(QStringLiteral("Pylo"), 0, QLatin1Char(' '));
} // namespace PluginAlarmManagerCommon

// Framework and plug-in identities. Plug-in ids are 32 upper-case hexadecimal digits.
const QString FRAMEWORK_INTERNAL_ERROR  = QStringLiteral("{2C85B19D-AE6F-45D9-B8FE-DC436FCBEABE}FrameworkInternalError");
const QString PALARMMANAGER_PREFIX_NAME = QStringLiteral("AlarmManagerPlugin");
const QString PALARMMANAGER_PLUGIN_ID   = QStringLiteral("8F52FB3C63934B05822A26CDA1E599CB");
const QString LICENSE_MANAGER_PLUGIN_ID = QStringLiteral("69BDB49626154A1A818D836AEBFACF4F");
const QString DEVICE_TREE_PLUGIN_ID     = QStringLiteral("1AA33B3D0AA047C9A202F1181284D2CD");
const QString USER_ROLE_PLUGIN_ID       = QStringLiteral("219BC6123E9B44958E621DE6CAD40B5C");
const QString SOUND_PATH_PLUGIN_ID      = QStringLiteral("F2D29658D9E045F78AE260CE97704C6A");

// Vocabulary of the other plug-ins of the framework (device tree, logical tree, station and camera
// status). This plug-in reads none of it; it is part of the shared header all plug-ins compile.
const QString EVENT_TUNNEL_CONNECTED               = QStringLiteral("EventTunnelConnected");
const QString EVENT_TUNNEL_DISCONNECTED            = QStringLiteral("EventTunnelDisConnected");
const QString NOTIFY_CAMERA_STATUS                 = QStringLiteral("NotifyCameraStatus");
const QString NOTIFY_STATION_STATUS                = QStringLiteral("NotifyStationStatus");
const QString NOTIFY_NODE_REMOVE                   = QStringLiteral("NotifyNodeRemove");
const QString NOTIFY_CAM_INS                       = QStringLiteral("NotifyCamInsert");
const QString NOTIFY_STATION_INS                   = QStringLiteral("NotifyStationInsert");
const QString NOTIFY_STATION_CHG                   = QStringLiteral("NotifyStationChange");
const QString NOTIFY_STATION_INFO_CHG              = QStringLiteral("NotifyStationInfoChange");
const QString NOTIFY_CAM_CHG                       = QStringLiteral("NotifyCameraChange");
const QString NOTIFY_CAM_INFO_CHG                  = QStringLiteral("NotifyCameraInfoChange");
const QString NOTIFY_CAM_EVENT                     = QStringLiteral("NotifyCameraEvent");
const QString NOTIFY_LOC_REMOVE                    = QStringLiteral("NotifyLocationRemove");
const QString NOTIFY_CHL_ADD                       = QStringLiteral("NotifyChannelAdd");
const QString NOTIFY_CHL_REMOVE                    = QStringLiteral("NotifyChannelRemove");
const QString NOTIFY_SRV_PORT_CHG                  = QStringLiteral("NotifySrvPortChange");
const QString NOTIFY_RELAY_INFO_CHG                = QStringLiteral("NotifyRelayInfoChange");
const QString NOTIFY_DIDO_REFNAME_CHG              = QStringLiteral("NotifyDIDORefNameChange");
const QString NOTIFY_FAILOVER_STATUS_CHG           = QStringLiteral("FailoverStatusChange");
const QString NOTIFY_CAM_INS_LOGICAL               = QStringLiteral("NotifyCamInsertLogical");
const QString NOTIFY_CAM_REMOVE_LOGICAL            = QStringLiteral("NotifyCamRemoveLogical");
const QString NOTIFY_FOLDER_INSERTED_LOGICAL       = QStringLiteral("NotifyFolderCreatedLogical");
const QString NOTIFY_EXT_DEV_ADD                   = QStringLiteral("NotifyExternalDeviceAdd");
const QString NOTIFY_EXT_DEV_REMOVE                = QStringLiteral("NotifyExternalDeviceRemove");
const QString NOTIFY_EXT_DEV_UPD                   = QStringLiteral("NotifyExternalDeviceUpdated");
const QString NOTIFY_EXT_IO_DEV_STATUS             = QStringLiteral("NotifyExternalIODeviceStatus");
const QString NOTIFY_STATION_DIDO_STATUS           = QStringLiteral("NotifyStationDIDOStatus");
const QString METHOD_INSERT_FOLDER_LOGICAL         = QStringLiteral("InsertFolderLogical");
const QString ARG_INS_FOLDER_PARENT_FOLDER_ID      = QStringLiteral("parentFolderUid");
const QString ARG_INS_FOLDER_FOLDER_NAME           = QStringLiteral("newFolderName");
const QString ARG_INS_FOLDER_FOLDER_ID             = QStringLiteral("newFolderId");
const QString METHOD_STATION_TOPOLOGY_RETRIEVE     = QStringLiteral("RetrieveDeviceTopology");
const QString METHOD_All_CAM_INFO_RETRIEVE         = QStringLiteral("RetrieveAllCamInfo");
const QString METHOD_CAM_INFO_RETRIEVE             = QStringLiteral("RetrieveCamInfo");
const QString METHOD_RETRIEVE_VCA_RULE_INFO        = QStringLiteral("RetrieveRuleInfo");
const QString METHOD_RETRIEVE_VCA_RAW_RULE_INFO    = QStringLiteral("RetrieveRawRuleInfo");
const QString METHOD_SRV_INFO_RETRIEVE             = QStringLiteral("RetrieveServerInfo");
const QString METHOD_QRY_LOCATIONS                 = QStringLiteral("QryCamLocation");
const QString METHOD_RMV_LOCATION                  = QStringLiteral("RemoveLocation");
const QString METHOD_RETRIEVE_LOGIN_STATION_INFO   = QStringLiteral("RetrieveLoginStationInfo");
const QString METHOD_GET_CAMERA_STATUS             = QStringLiteral("GetCameraStatus");
const QString METHOD_GET_ALL_DIDO_REF_NAME         = QStringLiteral("GetDiDoRefName");
const QString METHOD_MOVE_LOGICAL_TREE_NODE        = QStringLiteral("moveLogicalTreeNode");
const QString NOTIFY_MOVE_LOGICAL_TREE_NODE        = QStringLiteral("notifyLogicalTreeNodeMoved");
const QString ARG_MOVE_SRC_ID_LIST                 = QStringLiteral("moveSourceIDList");
const QString ARG_MOVE_DES_ID                      = QStringLiteral("moveDestinationID");
const QString METHOD_EXT_DEVS_RETRIEVE             = QStringLiteral("RetrieveExternalDevs");
const QString ARG_EXT_DEV_IDLIST                   = QStringLiteral("extDevIdList");
const QString METHOD_GET_FAILOVER_STATUS           = QStringLiteral("GetFailoverStatus");
const QString METHOD_GET_REDUNDANT_SERVERS_STATUS  = QStringLiteral("GetRedundantServersStatus");
const QString METHOD_RETRIEVE_LOGICAL_TREE         = QStringLiteral("retrieveLogicalTree");
const QString METHOD_REMOVE_LOGICAL_TREE_ITEM      = QStringLiteral("removeLogicalTreeItem");
const QString ARG_REMOVE_LTF_FOLDER_ID_LIST        = QStringLiteral("folderIDList");
const QString ARG_REMOVE_LTF_ORPHAN_ID_LIST        = QStringLiteral("orphanIDList");
const QString ARG_REMOVE_LTF_KEEP_FOLDER_CONTENTS  = QStringLiteral("keepContents");
const QString NOTIFY_REMOVE_LOGICAL_TREE_FOLDER    = QStringLiteral("notifyRemoveLogicalTreeFolder");
const QString METHOD_RENAME_LOGICAL_TREE_FOLDER    = QStringLiteral("renameLogicalTreeFolder");
const QString NOTIFY_RENAME_LOGICAL_TREE_FOLDER    = QStringLiteral("nofifyRenameLogicalTreeFolder");
const QString METHOD_SUBSCRIBE_CAM_STATUS          = QStringLiteral("SubscribeCamStatus");
const QString METHOD_SUBSCRIBE_CAMERA_EVENT        = QStringLiteral("SubscribeCameraEvent");
const QString METHOD_SUBSCRIBE_EXT_IO_DEV_EVENT    = QStringLiteral("SubscribeExtIODeviceEvent");
const QString METHOD_SUBSCRIBE_STATION_DIDO_EVENT  = QStringLiteral("SubscribeStationDIDOEvent");
const QString SERVER_ACCOUNT_CMD                   = QStringLiteral("ServerAccountCmd");
const QString REMOVED_CAMERA_FOLDER_ID             = QStringLiteral("_REMOVED_CAMERAS_");
const QString REMOVED_CAMERAS_FOLDER_NAME          = QStringLiteral("Removed Cameras");
const QString REMOVED_CAMERA_FOLDER_TREE_ID        = QStringLiteral("_REMOVED_CAMERAS_TREE_ID_");
const QString LOCAL_DB_FOLDER_ID                   = QStringLiteral("_LOCAL_DB_");
const QString LOCAL_DB_FOLDER_NAME                 = QStringLiteral("Local DB");
const QString IO_BOX_FOLDER_ID                     = QStringLiteral("_IO_BOX_FID_");
const QString IO_BOX_FOLDER_NAME                   = QStringLiteral("I/O Device");
const QString IO_BOX_FOLDER_TREE_ID                = QStringLiteral("_IO_BOX_TREE_ID_");
const QString METHOD_ADD_DEVICE_INTO_LOGICAL_TREE  = QStringLiteral("addDeviceIntoLogicalTree");
const QString ARG_ADD_DEVICE_NODE_ID_LIST          = QStringLiteral("addDeviceNodeIdList");
const QString ARG_ADD_DEVICE_DESTINATION_ID        = QStringLiteral("addDeviceDestinationId");
const QString METHOD_ADD_STATION_INTO_LOGICAL_TREE = QStringLiteral("addStationIntoLogicalTree");
const QString ARG_ADD_STATION_ID_LIST              = QStringLiteral("addStationIdList");
const QString ARG_ADD_STATION_NAME_LIST            = QStringLiteral("addStationNameList");
const QString ARG_ADD_STATION_DESTINATION_ID       = QStringLiteral("addStationDestinationId");
const QString METHOD_LOOKUP_LOGICAL_TREE_PATH_ID   = QStringLiteral("lookupLogicalTreePathIds");
const QString STATION_USER                         = QStringLiteral("$$StationUser$$");
const QString KEY_CAM_ID                           = QStringLiteral("camID");
const QString KEY_RELAY_PATH                       = QStringLiteral("relayPath");
const QString KEY_IS_JSON                          = QStringLiteral("isJSON");
const QString KEY_RULES                            = QStringLiteral("rules");
