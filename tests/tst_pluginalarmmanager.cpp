#include <QAbstractItemModelTester>
#include <QPluginLoader>
#include <QTemporaryDir>

#include <functional>

#include "tst_pluginalarmmanager_fixture.h"

using namespace PluginAlarmManagerCommon;

// PluginAlarmManager through its boundary: what QML's calls send, what answers and events do to the
// signals, the alarm rows and the camera models, the peer lookups, the sound folder and the loaded module.
class tst_PluginAlarmManager : public QObject
{
    Q_OBJECT
private slots:
    void scenario_data();
    void scenario();
    void alarmListReplacesTheRows();
    void lookups();
    void soundsFollowTheServer();
    void modelsQmlHolds();
    void loadedModuleServesTheHost();
};

// Notes which signal fired, so that signals of different kinds are listed in the order they came.
class EmissionTick : public QObject
{
    Q_OBJECT
public:
    EmissionTick(int spyIndex, QList<int>* order) : m_spyIndex(spyIndex), m_order(order) {}
    Q_SLOT void record() { m_order->append(m_spyIndex); }

private:
    int m_spyIndex;
    QList<int>* m_order;
};

namespace {
// Decodes edits by a visible rule: trigger type = the trigger kinds, sources = their count, actions =
// kinds and contents, rectangles = the number of frames.
class CodecStandIn : public AlarmMessageParser
{
public:
    using AlarmMessageParser::AlarmMessageParser;
    void ParseTimeframeData(const QVariantMap& rule, QString&, QString& rectangles) override
    {
        rectangles = QStringLiteral("{%1 frames}").arg(rule.value("Mapping").toMap().value("Ele").toList().size());
    }
    void ParseTriggerData(const QVariantMap& rule, QString& triggerType, QVariantList& triggerSources) override
    {
        triggerType = rule.value("TriggerList").toMap().keys().join('+');
        triggerSources = {rule.value("TriggerList").toMap().size()};
    }
    void ParseActionData(const QVariantMap& rule, QVariantList& actionTypes, QVariantList& actionTargets) override
    {
        const QVariantMap actions = rule.value("ActionList").toMap();
        for (auto it = actions.cbegin(); it != actions.cend(); ++it)
            actionTypes.append(it.key()), actionTargets.append(it.value());
    }
};

QString triggers(const QStringList& nameCameraIcon)
{
    QString xml = "<TriggerList>";
    for (int i = 0; i + 2 < nameCameraIcon.size(); i += 3)
        xml += QStringLiteral("<ExtDeviceEventTrigger><EventType>VirtualTrigger</EventType><VirtualTrigger><Name>%1"
                              "</Name><Camera>%2</Camera><IconType>%3</IconType></VirtualTrigger>"
                              "</ExtDeviceEventTrigger>")
                   .arg(nameCameraIcon.at(i), nameCameraIcon.at(i + 1), nameCameraIcon.at(i + 2));
    return xml + "</TriggerList>";
}

const QString gate = triggers({"Open%20gate", "cam1", "2"});
const QString lights = triggers({"Lights", "cam2", "1"});
const QString siren = triggers({"Siren", "cam1", "3", "Siren", "cam2", "3"});
const QString newTriggers = QStringLiteral("<TriggerList><ExtDeviceEventTrigger/></TriggerList>");
const QString newActions = QStringLiteral("<ActionList><Recording>c1</Recording></ActionList>");
const QString twoFrames = QStringLiteral("<Mapping><Ele><Frame/></Ele><Ele><Frame/></Ele></Mapping>");

QStandardItem* rule(const QVariantList& idNameEnabledRevision, const QVariantList& schedule, const QString& triggerXml)
{
    auto* item = new QStandardItem;
    for (int i = 0; i < 4; ++i)
        item->setData(idNameEnabledRevision.at(i), QList<int>{AlarmModel::idRole, AlarmModel::nameRole,
                                                              AlarmModel::enabledRole, AlarmModel::revisionRole}[i]);
    item->setData(schedule, AlarmModel::scheduleRole);
    item->setData(triggerXml, AlarmModel::triggerXmlRole);
    return item;
}
} // namespace

// The plug-in with three listed rules (a1 and a3 enabled, a2 disabled) whose enabled ones show their
// virtual triggers; from then on every request, signal and change of rows or camera models is recorded.
class Scenario
{
public:
    PluginFixture f;

    Scenario()
    {
        f.plugin.setAlarmMsgParser(new CodecStandIn(&f.plugin));
        AlarmModel* rows = f.plugin.getAlarmModel();
        rows->appendRow(rule({"a1", "Gate & yard", true, 4}, {"Weekdays", "success", "{}"}, gate));
        rows->item(0)->setData("Back door", AlarmModel::descriptionRole);
        rows->item(0)->setData("<ActionList/>", AlarmModel::actionXmlRole);
        rows->appendRow(rule({"a2", "Lobby", false, 9}, {"Nights", "success", ""}, lights));
        rows->appendRow(rule({"a3", "Siren", true, 1}, {"Weekdays", "success", "{old}"}, siren));
        f.push(EVENT_TYPE_ADD_ALARM, QVariantMap{{ARG_ALARM_ID, "a1"}, {ARG_ALARM_TRG_LIST, gate}});
        f.push(EVENT_TYPE_ADD_ALARM, QVariantMap{{ARG_ALARM_ID, "a3"}, {ARG_ALARM_TRG_LIST, siren}});
        m_before = state();
        const QMetaObject* meta = &PluginAlarmManager::staticMetaObject;
        for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
            if (meta->method(i).methodType() != QMetaMethod::Signal)
                continue;
            m_spies.append(new QSignalSpy(&f.plugin, meta->method(i)));
            m_ticks.append(new EmissionTick(m_spies.size() - 1, &m_order));
            const QMetaObject& tick = EmissionTick::staticMetaObject;
            QObject::connect(&f.plugin, meta->method(i), m_ticks.last(), tick.method(tick.indexOfSlot("record()")));
        }
    }
    ~Scenario() { qDeleteAll(m_spies), qDeleteAll(m_ticks); }

    // The context of the latest request, which leaves the record: its argument is pinned elsewhere.
    void* last() { return f.framework.requests.takeLast().context; }

    void returned(bool isSent) { m_returns.append(isSent ? "returned true" : "returned false"); }

    // The rows by id and role, the camera models in model order, and the kept toggle results.
    QStringList state()
    {
        const AlarmModel* rows = f.plugin.getAlarmModel();
        QStringList lines{"ids " + column(rows, AlarmModel::idRole).join(' ')};
        for (int row = 0; row < rows->rowCount(); ++row) {
            for (int role = AlarmModel::idRole + 1; rows->roleNames().contains(role); ++role) {
                if (rows->index(row, 0).data(role).isValid())
                    lines.append(column(rows, AlarmModel::idRole).at(row) + " " + rows->roleNames().value(role) + " "
                                 + valueText(rows->index(row, 0).data(role)));
            }
        }
        for (const QString camera : {"cam1", "cam2"}) {
            const QAbstractItemModel* cell = f.plugin.getAlarmViewCellTriggerModel(camera)->sourceModel();
            // Read by role name, as QML reads them.
            QStringList shown;
            for (int row = 0; row < cell->rowCount(); ++row) {
                QStringList roles;
                for (const char* role : {"idRole", "nameRole", "iconTypeRole"})
                    roles.append(column(cell, cell->roleNames().key(role)).at(row));
                shown.append(roles.join('/'));
            }
            lines.append(camera + " " + shown.join(", "));
        }
        return lines << valueText(QVariantList{"toggled", f.plugin.getToggleAllAlarmResult(),
                                               f.plugin.getToggleAlarmResult()});
    }

    // Requests sent, results returned, signals in emission order, then the lines of state that went and came.
    QStringList recorded()
    {
        QStringList lines;
        for (const RecordedRequest& request : std::as_const(f.framework.requests)) {
            QVariantMap withoutTime = request.argument.toMap();
            if (withoutTime.contains(ARG_CONTEXT_UID))
                withoutTime[ARG_CONTEXT_UID] = "batch";
            lines.append("> " + request.method + " " + valueText(withoutTime.isEmpty() ? request.argument : withoutTime)
                         + (request.isBlocking ? " blocking" : ""));
        }
        lines += m_returns;
        QList<int> nextOfSpy(m_spies.size(), 0);
        for (int spy : std::as_const(m_order)) {
            const QByteArray signature = m_spies.at(spy)->signal();
            lines.append(signature.left(signature.indexOf('(')) + valueText(m_spies.at(spy)->at(nextOfSpy[spy]++)));
        }
        const QStringList after = state();
        for (const QString& line : std::as_const(m_before))
            if (!after.contains(line))
                lines.append("- " + line);
        for (const QString& line : after)
            if (!m_before.contains(line))
                lines.append("+ " + line);
        return lines;
    }

private:
    QStringList m_before;
    QStringList m_returns;
    QList<QSignalSpy*> m_spies;
    QList<EmissionTick*> m_ticks;
    QList<int> m_order;
};

using Steps = std::function<void(Scenario&)>;
Q_DECLARE_METATYPE(Steps)

void tst_PluginAlarmManager::scenario_data()
{
    QTest::addColumn<Steps>("steps");
    QTest::addColumn<QStringList>("recorded");

    // QML's calls: the requests they send
    QTest::newRow("each call sends its fields") << Steps([](Scenario& s) {
        PluginAlarmManager& p = s.f.plugin;
        p.getAllAlarm(), p.getAlarmSoundList(), p.getReserveTime(), p.closeAlarmNotification();
        p.sendHttpRequest("http://h/x y", true, "u", "p", "POST", "text/plain", "body");
        p.updateReserveTime(30), p.toggleAllAlarm(false, 60);
        p.sendVirtualTriggerAlarm("Open gate", "cam1", 3, 7, "Gate");
        p.toggleAlarm({QVariantMap{{"id", "a1"}, {"enable", false}}, QVariantMap{{"enable", true}}, "not a map",
                       QVariantMap{{"id", "a2"}, {"enable", true}}});
        p.closeEMapTab({"n1", "n2"}), p.closeAlarmTab({"n3"});
    }) << QStringList{"> GetAllAlarm null", "> GetAlarmSoundList null", "> GetAlarmReserveTime null",
                      "> CloseAlarmNotification null",
                      "> SendHTTP {httpContent=body httpContentType=text/plain httpMethod=POST httpNeedAuth=true "
                      "httpPwd=p httpUrl=http://h/x y httpUser=u}",
                      "> UpdateAlarmReserveTime 30", "> ToggleAllAlarm {toggleEnable=false toggleInterval=60}",
                      "> VirtualTrigger {camera=cam1 cameraName=Gate iconType=3 id=7 name=Open gate}",
                      "> ToggleAlarm [{alarmID=a1 toggleEnable=false}, {alarmID=a2 toggleEnable=true}]",
                      "> CloseEMapTab [n1, n2]", "> CloseAlarmTab [n3]"};
    QTest::newRow("add and update encode the texts; update sends the next revision") << Steps([](Scenario& s) {
        s.f.plugin.addAlarm("Front door", "Löbby & hall", "<T/>", "<A/>", "<D/>", "Weekdays", "<M/>", false);
        s.f.plugin.addAlarm("n", "d", "", "", "", "", "");
        s.f.plugin.updateAlarm("a2", "N", "D", "<T/>", "<A/>", "<D/>", "W", "<M/>", false);
        s.f.plugin.updateAlarm("A1", "n", "", "", "", "", "", "");
    }) << QStringList{"> AddAlarm {actionList=<A/> alarmDescription=L%C3%B6bby%20%26%20hall alarmEnabled=false "
                      "alarmName=Front%20door alarmTempContent=<M/> alarmTempName=Weekdays relatedDevices=<D/> "
                      "triggerList=<T/>}",
                      "> AddAlarm {actionList= alarmDescription=d alarmEnabled=true alarmName=n alarmTempContent= "
                      "alarmTempName= relatedDevices= triggerList=}",
                      "> UpdateAlarm {actionList=<A/> alarmDescription=D alarmEnabled=false alarmID=a2 alarmName=N "
                      "alarmRevision=10 alarmTempContent=<M/> alarmTempName=W relatedDevices=<D/> triggerList=<T/>}",
                      "> UpdateAlarm {actionList= alarmDescription= alarmEnabled=true alarmID=A1 alarmName=n "
                      "alarmRevision=1 alarmTempContent= alarmTempName= relatedDevices= triggerList=}"};
    QTest::newRow("refused sends return false") << Steps([](Scenario& s) {
        s.f.framework.refuse = [](const RecordedRequest& request) { return request.method != METHOD_DEL_ALARM; };
        s.returned(s.f.plugin.addAlarm("n", "d", "", "", "", "", ""));
        s.returned(s.f.plugin.updateAlarmSchedule("Weekdays", "W", ""));
        s.returned(s.f.plugin.getAllAlarm());
        s.returned(s.f.plugin.deleteAlarms({5, "x"}));
    }) << QStringList(4, "returned false");

    // Answers: the signals and rows they bring
    QTest::newRow("plain answers are told; success is exactly the code 0") << Steps([](Scenario& s) {
        s.f.answer(METHOD_GET_RESERVE_TIME, 45, nullptr), s.f.answer(METHOD_GET_RESERVE_TIME, 46, nullptr, "1");
        s.f.answer(METHOD_UPD_RESERVE_TIME, {}, nullptr), s.f.answer(METHOD_UPD_RESERVE_TIME, {}, nullptr, "2");
        s.f.answer(METHOD_SEND_HTTP, "200", nullptr), s.f.answer(METHOD_SEND_HTTP, "E42", nullptr, "7");
        s.f.answer(METHOD_GET_ALARM_SOUND_LIST, QStringList{"a.mp3", "b.mp3.mp3", "C.MP3", "d"}, nullptr, "1");
        for (const QString code : {"00", " 0", "", "0"})
            s.f.answer(METHOD_TOGGLE_ALL_ALARM, {}, nullptr, code);
    }) << QStringList{"getReserveTimeResp[true, 45]", "updateReserveTimeResp[true]", "sendHttpRequestResp[true, 200]",
                      "sendHttpRequestResp[false, E42]", "getAlarmSoundListResp[[a, b, C.MP3, d]]",
                      "toggleAllAlarmResp[false]", "toggleAllAlarmResp[false]", "toggleAllAlarmResp[false]",
                      "toggleAllAlarmResp[true]", "- [toggled, false, false]", "+ [toggled, true, false]"};
    QTest::newRow("unknown methods and answers without their request are dropped") << Steps([](Scenario& s) {
        for (const QString& method : {QString("getallalarm"), EVENT_TYPE_ADD_ALARM, METHOD_VIRTUAL_TRIGGER,
                                      METHOD_DEL_ALARM, METHOD_UPD_ALARM_SCHEDULE, METHOD_ADD_ALARM, METHOD_UPD_ALARM,
                                      METHOD_TOGGLE_ALARM})
            s.f.answer(method, "a1", nullptr);
        s.f.answer(METHOD_DEL_ALARM, "a1", new qint64(42));
        s.f.answer(METHOD_UPD_ALARM_SCHEDULE, {}, new QVariantMap{{ARG_ALARM_ID, "a1"}, {ARG_CONTEXT_UID, 42}});
    }) << QStringList{"addAlarmResp[false, ]", "updateAlarmResp[false, ]", "toggleAlarmResp[true]",
                      "- [toggled, false, false]", "+ [toggled, false, true]"};
    QTest::newRow("added alarm becomes the first row, enabled at revision 1") << Steps([](Scenario& s) {
        s.f.plugin.addAlarm("Front%20door", "Löbby & hall", "<T/>", "<A/>", "", "Weekdays", twoFrames, false);
        s.f.answer(METHOD_ADD_ALARM, QVariantMap{{ARG_ALARM_ID, "n1"}, {ARG_ALARM_TRG_LIST, newTriggers},
                                                 {ARG_ALARM_ACT_LIST, newActions}}, s.last());
    }) << QStringList{"addAlarmResp[true, n1]", "- ids a1 a2 a3", "+ ids n1 a1 a2 a3", "+ n1 nameRole Front%20door",
                      "+ n1 enabledRole true", "+ n1 triggerSourceRole [1]",
                      "+ n1 triggerTypeRole ExtDeviceEventTrigger",
                      "+ n1 actionTypeRole [Recording]", "+ n1 actionTargetRole [c1]",
                      "+ n1 scheduleRole [Weekdays, success, {2 frames}]", "+ n1 revisionRole 1",
                      "+ n1 descriptionRole Löbby & hall", "+ n1 triggerXmlRole " + newTriggers,
                      "+ n1 actionXmlRole " + newActions};
    QTest::newRow("edited row follows the request") << Steps([](Scenario& s) {
        s.f.plugin.updateAlarm("a1", "Back%20door", "50% off", newTriggers, newActions, "", "Nights", "{R}", false);
        s.f.answer(METHOD_UPD_ALARM, {}, s.last());
    }) << QStringList{"updateAlarmResp[true, a1]", "- a1 nameRole Gate & yard", "- a1 enabledRole true",
                      "- a1 scheduleRole [Weekdays, success, {}]", "- a1 revisionRole 4",
                      "- a1 descriptionRole Back door",
                      "- a1 triggerXmlRole " + gate, "- a1 actionXmlRole <ActionList/>", "+ a1 nameRole Back%20door",
                      "+ a1 enabledRole false", "+ a1 triggerSourceRole [1]",
                      "+ a1 triggerTypeRole ExtDeviceEventTrigger",
                      "+ a1 actionTypeRole [Recording]", "+ a1 actionTargetRole [c1]",
                      "+ a1 scheduleRole [Nights, success, {R}]", "+ a1 revisionRole 5", "+ a1 descriptionRole 50% off",
                      "+ a1 triggerXmlRole " + newTriggers, "+ a1 actionXmlRole " + newActions};
    QTest::newRow("refused add and edits, or the edit of a gone alarm, change no row") << Steps([](Scenario& s) {
        s.f.plugin.addAlarm("n", "d", "", "", "", "", "");
        s.f.answer(METHOD_ADD_ALARM, QVariantMap{{ARG_ALARM_ID, "n1"}}, s.last(), "1");
        s.f.plugin.updateAlarm("a1", "X", "", "", "", "", "", "");
        s.f.answer(METHOD_UPD_ALARM, {}, s.last(), "1");
        s.f.plugin.updateAlarm("a9", "X", "", "", "", "", "", "");
        s.f.answer(METHOD_UPD_ALARM, {}, s.last());
    }) << QStringList{"addAlarmResp[false, ]", "updateAlarmResp[false, ]", "updateAlarmResp[false, ]"};
    QTest::newRow("deletion of rows QML shows reports once, after its last answer") << Steps([](Scenario& s) {
        s.f.plugin.getAlarmFilterModel()->sortByRole(AlarmModel::nameRole, Qt::DescendingOrder);
        s.returned(s.f.plugin.deleteAlarms({1, 7, "x", 0}));
        const QList<RecordedRequest> sent = s.f.framework.requests;
        s.f.answer(METHOD_DEL_ALARM, "a2", sent.value(0).context);
        s.f.answer(METHOD_DEL_ALARM, "a3", sent.value(1).context, "1");
    }) << QStringList{"> DeleteAlarm {alarmID=a2 alarmRevision=9}", "> DeleteAlarm {alarmID=a3 alarmRevision=1}",
                      "returned true", "alarmDeleted[a2]", "deleteAlarmsResp[4, 1]", "- ids a1 a2 a3",
                      "- a2 nameRole Lobby", "- a2 enabledRole false", "- a2 scheduleRole [Nights, success, ]",
                      "- a2 revisionRole 9", "- a2 triggerXmlRole " + lights, "+ ids a1 a3"};
    QTest::newRow("accepted toggle sets the flags, refused one none") << Steps([](Scenario& s) {
        s.f.plugin.toggleAlarm({QVariantMap{{"id", "a3"}, {"enable", false}}});
        s.f.answer(METHOD_TOGGLE_ALARM, {}, s.last(), "3");
        s.f.plugin.toggleAlarm({QVariantMap{{"id", "a1"}, {"enable", false}},
                                QVariantMap{{"id", "a2"}, {"enable", true}},
                                QVariantMap{{"id", "a9"}, {"enable", true}}});
        s.f.answer(METHOD_TOGGLE_ALARM, {}, s.last());
    }) << QStringList{"toggleAlarmResp[false]", "toggleAlarmResp[true]", "- a1 enabledRole true",
                      "- a2 enabledRole false", "- [toggled, false, false]", "+ a1 enabledRole false",
                      "+ a2 enabledRole true",
                      "+ [toggled, false, true]"};
    QTest::newRow("virtual trigger answer carries its id") << Steps([](Scenario& s) {
        s.f.plugin.sendVirtualTriggerAlarm("Open gate", "cam1", 2, 7, "Gate");
        s.f.answer(METHOD_VIRTUAL_TRIGGER, {}, s.last(), "1");
        s.f.plugin.sendVirtualTriggerAlarm("Open gate", "cam1", 2, 8, "Gate");
        s.f.answer(METHOD_VIRTUAL_TRIGGER, {}, s.last());
    }) << QStringList{"sendVirtualTriggerAlarmResp[false, 7]", "sendVirtualTriggerAlarmResp[true, 8]"};
    QTest::newRow("schedule batch sends whole rules, reports each alarm, then the whole") << Steps([](Scenario& s) {
        s.f.plugin.updateAlarmSchedule("Weekdays", "Workdays", twoFrames);
        const QList<RecordedRequest> sent = s.f.framework.requests;
        s.f.answer(METHOD_UPD_ALARM_SCHEDULE, {}, sent.value(0).context);
        s.f.answer(METHOD_UPD_ALARM_SCHEDULE, {}, sent.value(1).context, "1");
    }) << QStringList{"> UpdateAlarmSchedule {actionList=<ActionList/> alarmDescription=Back%20door alarmEnabled=true "
                      "alarmID=a1 alarmName=Gate%20%26%20yard alarmRevision=5 alarmTempContent=" + twoFrames
                          + " alarmTempName=Workdays contextUID=batch triggerList=" + gate + "}",
                      "> UpdateAlarmSchedule {actionList= alarmDescription= alarmEnabled=true alarmID=a3 "
                      "alarmName=Siren alarmRevision=2 alarmTempContent=" + twoFrames
                          + " alarmTempName=Workdays contextUID=batch triggerList=" + siren + "}",
                      "updateAlarmScheduleResp[true, a1]", "updateAlarmScheduleResp[false, a3]",
                      "updateAllAlarmScheduleResp[false, Workdays]", "- a1 scheduleRole [Weekdays, success, {}]",
                      "- a1 revisionRole 4", "- a3 scheduleRole [Weekdays, success, {old}]",
                      "+ a1 scheduleRole [Workdays, success, {2 frames}]", "+ a1 revisionRole 5",
                      "+ a3 scheduleRole [Weekdays, updateAlarmFail, {old}]"};
    QTest::newRow("schedule batch of accepted requests succeeds") << Steps([](Scenario& s) {
        s.f.plugin.updateAlarmSchedule("Weekdays", "Workdays", "{R}");
        s.f.answer(METHOD_UPD_ALARM_SCHEDULE, {}, s.last()), s.f.answer(METHOD_UPD_ALARM_SCHEDULE, {}, s.last());
    }) << QStringList{"updateAlarmScheduleResp[true, a3]", "updateAlarmScheduleResp[true, a1]",
                      "updateAllAlarmScheduleResp[true, Workdays]", "- a1 scheduleRole [Weekdays, success, {}]",
                      "- a1 revisionRole 4", "- a3 scheduleRole [Weekdays, success, {old}]", "- a3 revisionRole 1",
                      "+ a1 scheduleRole [Workdays, success, {R}]", "+ a1 revisionRole 5",
                      "+ a3 scheduleRole [Workdays, success, {R}]", "+ a3 revisionRole 2"};
    QTest::newRow("unused template answers at once; a refused send fails the batch") << Steps([](Scenario& s) {
        s.f.plugin.updateAlarmSchedule("weekdays", "Workdays", twoFrames);
        s.f.framework.refuse = [](const RecordedRequest& r) { return r.argument.toMap()[ARG_ALARM_ID] == "a1"; };
        s.f.plugin.updateAlarmSchedule("Weekdays", "Workdays", "");
        s.f.answer(METHOD_UPD_ALARM_SCHEDULE, {}, s.last());
    }) << QStringList{"updateAllAlarmScheduleResp[true, Workdays]", "updateAlarmScheduleResp[true, a3]",
                      "updateAllAlarmScheduleResp[false, Workdays]", "- a3 scheduleRole [Weekdays, success, {old}]",
                      "- a3 revisionRole 1", "+ a3 scheduleRole [Workdays, success, {old}]", "+ a3 revisionRole 2"};

    // Events: the signals and camera models they change
    const QString triggered = QStringLiteral(
        "<AlarmNotification><Alarm><Name>Front%20gate</Name><AlarmID>11</AlarmID><TmcardID>900</TmcardID><QuessaEvent>"
        "<Type>CamEvent</Type><CamEvent><Event><CamName>c_1</CamName><RefName>c_Lobby</RefName>"
        "<EventType>DI</EventType><DI><Index>2</Index><Value>1</Value></DI>"
        "<ServerTime>2026-01-02T03:04:05Z</ServerTime></Event></CamEvent>"
        "</QuessaEvent>%1</Alarm></AlarmNotification>");
    QTest::newRow("triggered alarm is told, unless muted") << Steps([triggered](Scenario& s) {
        s.f.push(EVENT_TYPE_ALARM_TRIGGERED, QVariantMap{{"xml", triggered.arg("<Mute>true</Mute>")}});
        s.f.push(EVENT_TYPE_ALARM_TRIGGERED, QVariantMap{{"xml", triggered.arg("")}});
    }) << QStringList{"alarmNotify[" + triggered.arg("") + "]",
                      "alarmTriggered[Front gate, CamEvent, c_1, 1767323045000, DI, 2, 1, Lobby, 11, 900]"};
    QTest::newRow("notifications and broadcasts are told") << Steps([](Scenario& s) {
        s.f.push(EVENT_TYPE_CLIENT_NOTIFICATION, TestData::text("notification_sound.xml"));
        s.f.push(EVENT_TYPE_CLIENT_NOTIFICATION, QVariantMap{{"xml", "x"}});
        s.f.push(METHOD_HTTP_ACTION_RESPONSE, QVariantMap{{"errorCode", "404"}});
        s.f.push(METHOD_HTTP_ACTION_RESPONSE, "not a map");
        s.f.push(METHOD_CLOSE_EMAP_TAB, QStringList{"n1", "n2"}), s.f.push(METHOD_CLOSE_ALARM_TAB, QStringList{"n3"});
        s.f.push(METHOD_CLOSE_ALARM_NOTIFICATION, {});
    }) << QStringList{"clientNotification[2, [{name=siren.mp3}, {name=door chime.mp3}], 1012-1709635100-1]",
                      "clientNotification[1, [], ]",
                      "httpActionResponsed[404]", "httpActionResponsed[]", "closeEMapTabResp[[n1, n2]]",
                      "closeAlarmTabResp[[n3]]", "closeAlarmNotificationResp[]"};
    QTest::newRow("events for another receiver, in another case or unknown are ignored") << Steps([=](Scenario& s) {
        for (const QString& event : {EVENT_TYPE_ALARM_TRIGGERED, EVENT_TYPE_CLIENT_NOTIFICATION, METHOD_CLOSE_ALARM_TAB,
                                     METHOD_HTTP_ACTION_RESPONSE, METHOD_CLOSE_EMAP_TAB, EVENT_TYPE_DELETE_ALARM,
                                     METHOD_CLOSE_ALARM_NOTIFICATION})
            s.f.push(event, "a1", "other");
        s.f.push("AlarmTriggered", QVariantMap{{"xml", triggered.arg("")}}), s.f.push(METHOD_DEL_ALARM, "a1");
    }) << QStringList{};
    QTest::newRow("added alarm shows its virtual triggers with a camera, one without id nothing")
        << Steps([](Scenario& s) {
               // Camera and icon may stand beside the virtual trigger; its own ones win
               const QString mixed = "<TriggerList><ExtDeviceEventTrigger/><ExtDeviceEventTrigger><VirtualTrigger>"
                                     "<Name>Bell</Name><Camera>cam2</Camera></VirtualTrigger><Camera>cam1</Camera>"
                                     "<IconType>4</IconType></ExtDeviceEventTrigger><ExtDeviceEventTrigger>"
                                     "<VirtualTrigger><Name>Nowhere</Name></VirtualTrigger></ExtDeviceEventTrigger>"
                                     "</TriggerList>";
               s.f.push(EVENT_TYPE_ADD_ALARM, QVariantMap{{ARG_ALARM_ID, "a4"}, {ARG_ALARM_TRG_LIST, mixed}});
               s.f.push(EVENT_TYPE_ADD_ALARM, QVariantMap{{ARG_ALARM_TRG_LIST, gate}});
           })
        << QStringList{"- cam2 a3/Siren/3", "+ cam2 a4/Bell/4, a3/Siren/3"};
    QTest::newRow("virtual triggers in the plug-in's own spelling show like the server's")
        << Steps([](Scenario& s) {
               const QString own = "<TriggerList><ExtDeviceEventTrigger><VirtualTrigger><name>Horn</name><camera>"
                                   "cam2</camera></VirtualTrigger><iconType>5</iconType></ExtDeviceEventTrigger>"
                                   "</TriggerList>";
               s.f.push(EVENT_TYPE_UPDATE_ALARM, QVariantMap{{ARG_ALARM_ID, "a3"}, {ARG_ALARM_TRG_LIST, own}});
           })
        << QStringList{"- cam1 a3/Siren/3, a1/Open gate/2", "- cam2 a3/Siren/3", "+ cam1 a1/Open gate/2",
                       "+ cam2 a3/Horn/5"};
    QTest::newRow("updated alarm replaces its triggers") << Steps([](Scenario& s) {
        s.f.push(EVENT_TYPE_UPDATE_ALARM, QVariantMap{{ARG_ALARM_ID, "a3"}, {ARG_ALARM_TRG_LIST, lights}});
        s.f.push(EVENT_TYPE_UPDATE_ALARM, QVariantMap{{ARG_ALARM_ID, "a1"}, {ARG_ALARM_TRG_LIST, "<Trig"}});
    }) << QStringList{"- cam1 a3/Siren/3, a1/Open gate/2", "- cam2 a3/Siren/3", "+ cam1 ", "+ cam2 a3/Lights/1"};
    QTest::newRow("deleted alarm leaves every camera") << Steps([](Scenario& s) {
        s.f.push(EVENT_TYPE_DELETE_ALARM, QVariantList{"a1"}), s.f.push(EVENT_TYPE_DELETE_ALARM, "A3");
        s.f.push(EVENT_TYPE_DELETE_ALARM, "a3");
    }) << QStringList{"- cam1 a3/Siren/3, a1/Open gate/2", "- cam2 a3/Siren/3", "+ cam1 a1/Open gate/2", "+ cam2 "};
    QTest::newRow("toggled alarms show or hide their row's triggers") << Steps([](Scenario& s) {
        const QVariantMap enableA2{{ARG_ALARM_ID, "a2"}, {ARG_TOGGLE_ENABLE, true}};
        s.f.push(EVENT_TYPE_TOGGLE_ALARM, QVariantMap{{ARG_ALARM_ID, "a1"}, {ARG_TOGGLE_ENABLE, false}});
        s.f.push(EVENT_TYPE_TOGGLE_ALARM, QVariantList{QVariantMap{{ARG_ALARM_ID, "a9"}, {ARG_TOGGLE_ENABLE, true}},
                                                       QVariantMap{{ARG_ALARM_ID, "a3"}, {ARG_TOGGLE_ENABLE, false}},
                                                       enableA2, enableA2});
    }) << QStringList{"- cam1 a3/Siren/3, a1/Open gate/2", "- cam2 a3/Siren/3", "+ cam1 a1/Open gate/2",
                      "+ cam2 a2/Lights/1"};
}

void tst_PluginAlarmManager::scenario()
{
    QFETCH(Steps, steps);
    QFETCH(QStringList, recorded);
    Scenario scenario;
    QAbstractItemModelTester rows(scenario.f.plugin.getAlarmModel());
    QAbstractItemModelTester cam1(scenario.f.plugin.getAlarmViewCellTriggerModel("cam1"));
    QAbstractItemModelTester cam2(scenario.f.plugin.getAlarmViewCellTriggerModel("cam2"));
    steps(scenario);
    QCOMPARE(scenario.recorded(), recorded);
}

void tst_PluginAlarmManager::alarmListReplacesTheRows()
{
    // Given the listed rules and their camera models, and the real codec
    Scenario scenario;
    scenario.f.plugin.setAlarmMsgParser(new AlarmMessageParser(&scenario.f.plugin));
    QAbstractItemModelTester rows(scenario.f.plugin.getAlarmModel());
    QSignalSpy listed(&scenario.f.plugin, &PluginAlarmManager::getAlarmResp);
    const auto answer = [&scenario, &listed](bool supportsGuardian, const QString& document, const QString& code) {
        scenario.f.framework.licence.editionFeature = {{"supportGuardian", supportsGuardian}};
        scenario.f.answer(METHOD_GET_ALL_ALARM, document, nullptr, code);
        return QStringList{valueText(listed.takeFirst())} + scenario.state().filter(QRegularExpression("^(ids|cam)"));
    };

    // When the server answers, its rules replace the rows (Guardian ones by edition) and enabled ones show
    // their virtual triggers; a failed or unreadable list leaves none
    const QString document = TestData::text("core_alarmlist.xml");
    QCOMPARE(answer(false, document, "0"), QStringList({"[true]", "ids 11 12", "cam1 11/Open gate/2", "cam2 "}));
    QCOMPARE(answer(true, document, "0"), QStringList({"[true]", "ids 11 12 13", "cam1 11/Open gate/2", "cam2 "}));
    QCOMPARE(answer(true, document, "1"), QStringList({"[false]", "ids ", "cam1 ", "cam2 "}));
    QCOMPARE(answer(true, "<GetEvtTmcardRes><Tmcard>", "0"), QStringList({"[true]", "ids ", "cam1 ", "cam2 "}));
}

void tst_PluginAlarmManager::lookups()
{
    // Given a camera and an I/O box in the device tree, and a role peer that would also name 0 and -1
    PluginFixture fixture;
    fixture.framework.deviceTree.deviceTree = {
        {"cam1", {{"nameRole", "Lobby"}}},
        {"io1", {{"diNameListRole", QStringList{"Door", "Window"}}, {"doNameListRole", QStringList{"Siren"}}}}};
    fixture.framework.userRoles.roleNames = {{0, "peer's 0"}, {-1, "peer's -1"}, {3, "Guards"}};
    PluginAlarmManager& p = fixture.plugin;
    const auto found = [&p] {
        return QStringList{p.queryDisplayName("cam1"), p.queryDisplayName("CAM1"),
                           p.queryDIDODisplayName("io1", "DI", 2), p.queryDIDODisplayName("io1", "ExtDI", 1),
                           p.queryDIDODisplayName("io1", "di", 1),
                           p.queryDIDODisplayName("io1", "DI", 3), p.queryDIDODisplayName("io1", "DO", 0),
                           p.queryDIDODisplayName("cam1", "DO", 2), p.queryRoleName(0), p.queryRoleName(-1),
                           p.queryRoleName(3)}
            .join('|');
    };
    // Then names come from the peers, DI/DO names count from 1 and fall back to "DI-n", 0 and -1 are fixed
    QCOMPARE(found(), "Lobby||Window|Door|Siren|DI-3|DO-0|DO-2|Customize|Administrator|Guards");
    fixture.framework.peers.clear();
    QCOMPARE(found(), "||DI-2|DI-1|DO-1|DI-3|DO-0|DO-2|Customize|Administrator|");
    // And only ASCII text, what the encoder writes, is percent-decoded
    QCOMPARE(PluginAlarmManager::DecodePercentEncodedStr("Cam%C3%A9ra%20A") + "|"
                 + PluginAlarmManager::DecodePercentEncodedStr("Caméra%20A") + "|"
                 + PluginAlarmManager::DecodePercentEncodedStr("100%"),
             "Caméra A|Caméra%20A|100%");
}

void tst_PluginAlarmManager::soundsFollowTheServer()
{
    // Given the sound folder the peer names, inside a parent folder
    QTemporaryDir parent;
    const QString folder = parent.filePath("sounds");
    PluginFixture fixture;
    fixture.framework.soundPath.soundPath = folder;
    fixture.plugin.LoadPairPluginDone();

    // When the server sends one good sound, several unusable ones, and a failed answer
    const auto sound = [](const QString& name, const QString& content) {
        return QVariantMap{{ARG_SOUND_NAME, name}, {ARG_SOUND_CONTENT, content}};
    };
    const QString beep = QString::fromLatin1(QByteArray("beep-beep").toBase64());
    fixture.answer(METHOD_GET_ALARM_SOUND_CONTENT,
                   QVariantList{sound("bell.mp3", beep), sound("../escape.mp3", beep), sound("..", beep),
                                sound(".", beep), sound("", beep), sound("sub/x.mp3", beep),
                                sound("back\\slash.mp3", beep), sound("bad.mp3", "***"), "not a map"},
                   nullptr);
    fixture.answer(METHOD_GET_ALARM_SOUND_CONTENT, QVariantList{sound("late.mp3", beep)}, nullptr, "1");

    // Then only the good one is written, decoded, inside the folder
    const auto listing = QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot;
    QCOMPARE(QDir(folder).entryList(listing) + QDir(parent.path()).entryList(listing),
             QStringList({"bell.mp3", "sounds"}));
    QFile bell(QDir(folder).filePath("bell.mp3"));
    QVERIFY(bell.open(QIODevice::ReadOnly));
    QCOMPARE(bell.readAll(), QByteArray("beep-beep"));

    // And a list of the server's sounds asks for the missing ones, in the server's order
    fixture.answer(METHOD_GET_ALARM_SOUND_LIST_FOR_SYNC, QStringList{"c.mp3", "bell.mp3", "b.mp3"}, nullptr);
    fixture.answer(METHOD_GET_ALARM_SOUND_LIST_FOR_SYNC, QStringList{"bell.mp3"}, nullptr);
    fixture.answer(METHOD_GET_ALARM_SOUND_LIST_FOR_SYNC, QStringList{"d.mp3"}, nullptr, "1");
    QStringList asked;
    for (const RecordedRequest& request : std::as_const(fixture.framework.requests))
        asked.append(request.method + " " + valueText(request.argument));
    QCOMPARE(asked, QStringList({"GetAlarmSoundContent [c.mp3, b.mp3]", "GetAlarmSoundContent []"}));

    // And without a sound-path peer nothing is written at the top of the file system
    PluginFixture withoutFolder;
    withoutFolder.framework.peers.remove(SOUND_PATH_PLUGIN_ID);
    withoutFolder.plugin.LoadPairPluginDone();
    const QString name = QStringLiteral("core-test-%1.mp3").arg(QCoreApplication::applicationPid());
    withoutFolder.answer(METHOD_GET_ALARM_SOUND_CONTENT, QVariantList{sound(name, beep)}, nullptr);
    QVERIFY(!QFile::exists("/" + name));
}

void tst_PluginAlarmManager::modelsQmlHolds()
{
    // Given one camera's proxy, as QML holds it
    PluginFixture fixture;
    QSortFilterProxyModel* cam1 = fixture.plugin.getAlarmViewCellTriggerModel("cam1");
    QAbstractItemModel* source = cam1->sourceModel();
    QVERIFY(qobject_cast<AlarmViewCellTriggerModel*>(source));
    QVERIFY(fixture.plugin.getAlarmViewCellTriggerModel("cam2") != cam1);
    QAbstractItemModelTester cam1Tester(cam1);
    QAbstractItemModelTester rowsTester(fixture.plugin.getAlarmModel());

    // When triggers arrive, the proxy lists them by name, whatever the case
    for (const QStringList& nameCameraIcon : {QStringList{"siren", "cam1", "1", "Bell", "cam1", "2"},
                                              QStringList{"alarm", "cam1", "3"}}) {
        fixture.push(EVENT_TYPE_ADD_ALARM,
                     QVariantMap{{ARG_ALARM_ID, nameCameraIcon.first()},
                                 {ARG_ALARM_TRG_LIST, triggers(nameCameraIcon)}});
    }
    QCOMPARE(column(cam1, cam1->roleNames().key("nameRole")), QStringList({"alarm", "Bell", "siren"}));

    // And an empty list empties it, yet QML keeps the same proxy over the same model
    fixture.answer(METHOD_GET_ALL_ALARM, "<GetEvtTmcardRes/>", nullptr);
    QCOMPARE(cam1->rowCount(), 0);
    QCOMPARE(fixture.plugin.getAlarmViewCellTriggerModel("cam1"), cam1);
    QCOMPARE(cam1->sourceModel(), source);

    // And the first alarm added to the empty list is its only row, seen through the whole chain
    fixture.plugin.addAlarm("Gate", "", "", "", "", "", "");
    fixture.answer(METHOD_ADD_ALARM, QVariantMap{{ARG_ALARM_ID, "n1"}}, fixture.framework.requests.value(0).context);
    QCOMPARE(column(fixture.plugin.getAlarmFilterModel(), AlarmModel::nameRole), QStringList{"Gate"});
    QCOMPARE(fixture.plugin.getAlarmFilterModel()->sourceModel(), fixture.plugin.getAlarmTranslatedModel());
    QCOMPARE(fixture.plugin.getAlarmTranslatedModel()->sourceModel(), fixture.plugin.getAlarmModel());

    // And a plug-in without a framework sends nothing
    PluginAlarmManager withoutFramework;
    QVERIFY(withoutFramework.Init(nullptr));
    QVERIFY(!withoutFramework.getAllAlarm() && !withoutFramework.addAlarm("n", "d", "", "", "", "", ""));
}

void tst_PluginAlarmManager::loadedModuleServesTheHost()
{
    // Given the module as the host loads it, with the metadata the host reads first
    QPluginLoader loader(QStringLiteral(ALARM_PLUGIN_PATH));
    QVariantMap metaData = loader.metaData().toVariantMap();
    metaData.remove("archlevel"), metaData.remove("debug"), metaData.remove("version"); // Qt's own build facts
    QCOMPARE(metaData, QVariantMap({{"IID", "com.Corvane.UIFramework.PluginInterface"},
                                    {"className", "PluginAlarmManager"},
                                    {"MetaData", QVariantMap{{"ClientOnly", false},
                                                             {"PluginID", PALARMMANAGER_PLUGIN_ID}}}}));
    auto* plugin = qobject_cast<PluginBase*>(loader.instance());
    QVERIFY2(plugin, qPrintable(loader.errorString()));
    FakeFramework framework;
    int handle = 0;
    QVERIFY(plugin->InitialPluginBase(nullptr, &handle, &framework));

    // When the server link comes up, the sounds are synchronised and the list reloaded, under the plug-in's id
    plugin->PluginServerConnected();
    QStringList sent;
    for (const RecordedRequest& request : std::as_const(framework.requests))
        sent.append(valueText(QVariantList{request.method, request.senderPluginId, request.handle == &handle,
                                           request.isBlocking, request.context == nullptr}));
    QCOMPARE(sent, QStringList({"[GetAlarmSoundListForSync, 8F52FB3C63934B05822A26CDA1E599CB, true, false, true]",
                                "[GetAllAlarm, 8F52FB3C63934B05822A26CDA1E599CB, true, false, true]"}));
}

QTEST_MAIN(tst_PluginAlarmManager)
#include "tst_pluginalarmmanager.moc"
