#include <QAbstractItemModelTester>
#include <QtTest>

#include "AlarmEventParser.h"
#include "ClientNotificationParser.h"
#include "tst_pluginalarmmanager_fixture.h"

using namespace PluginAlarmManagerCommon;

// Server-pushed events as EventProcessor receives them: triggered alarms and client notifications
// re-emitted for QML, the close-tab broadcasts, and the add/update/delete/toggle events that keep the
// per-camera view-cell models in step.
class tst_PluginAlarmManagerEvents : public QObject
{
    Q_OBJECT
private slots:
    void triggeredAlarmIsReEmitted();
    void mutedAlarmEmitsNothing();
    void clientNotificationIsReEmitted_data();
    void clientNotificationIsReEmitted();
    void broadcastEventEmitsItsSignal();
    void eventForAnotherReceiverIsIgnored_data();
    void eventForAnotherReceiverIsIgnored();
    void alarmEventsKeepViewCellsInStep_data();
    void alarmEventsKeepViewCellsInStep();
};

namespace {
const QString triggeredAlarm = QStringLiteral(
    "<AlarmNotification><Alarm><Name>Front%20gate</Name><AlarmID>11</AlarmID><TmcardID>900</TmcardID>"
    "<QuessaEvent><Type>CamEvent</Type><CamEvent><Event><CamName>c_1</CamName><RefName>c_Lobby</RefName>"
    "<EventType>DI</EventType><DI><Index>2</Index><Value>1</Value></DI>"
    "<ServerTime>2026-01-02T03:04:05Z</ServerTime></Event></CamEvent></QuessaEvent>%1</Alarm>"
    "</AlarmNotification>");

// The shown triggers of every camera model, as "camera: alarm/name" in model order.
QStringList viewCells(PluginAlarmManager& plugin, const QStringList& cameras)
{
    QStringList shown;
    for (const QString& camera : cameras) {
        const QAbstractItemModel* model = plugin.getAlarmViewCellTriggerModel(camera)->sourceModel();
        for (int row = 0; row < model->rowCount(); ++row)
            shown.append(camera + ": " + model->index(row, 0).data(AlarmViewCellTriggerModel::idRole).toString()
                         + "/" + model->index(row, 0).data(AlarmViewCellTriggerModel::nameRole).toString());
    }
    return shown;
}
} // namespace

void tst_PluginAlarmManagerEvents::triggeredAlarmIsReEmitted()
{
    PluginFixture fixture;
    QSignalSpy notified(&fixture.plugin, &PluginAlarmManager::alarmNotify);
    QSignalSpy triggered(&fixture.plugin, &PluginAlarmManager::alarmTriggered);
    QList<int> order;
    connect(&fixture.plugin, &PluginAlarmManager::alarmNotify, this, [&order] { order.append(1); });
    connect(&fixture.plugin, &PluginAlarmManager::alarmTriggered, this, [&order] { order.append(2); });

    const QString message = triggeredAlarm.arg(QStringLiteral("<Mute>false</Mute>"));
    fixture.push(EVENT_TYPE_ALARM_TRIGGERED, QVariantMap{{"xml", message}});

    // The signal carries the parser's ten values in order; the notification with the text comes first
    AlarmEventParser parser;
    parser.SetMessage(message);
    QCOMPARE(notified.size(), 1);
    QCOMPARE(notified.first(), QVariantList{message});
    QCOMPARE(triggered.size(), 1);
    QCOMPARE(triggered.first(),
             QVariantList({parser.GetAlarmName(), parser.GetTriggerType(), parser.GetNodeID(),
                           qlonglong(parser.GetServerTime()), parser.GetTriggerEvent(), parser.GetDIOIndex(),
                           parser.GetTriggerValue(), parser.GetDeviceName(), parser.GetAlarmId(),
                           parser.GetTimecardId()}));
    QCOMPARE(order, QList<int>({1, 2}));
}

void tst_PluginAlarmManagerEvents::mutedAlarmEmitsNothing()
{
    PluginFixture fixture;
    QSignalSpy notified(&fixture.plugin, &PluginAlarmManager::alarmNotify);
    QSignalSpy triggered(&fixture.plugin, &PluginAlarmManager::alarmTriggered);
    fixture.push(EVENT_TYPE_ALARM_TRIGGERED, QVariantMap{{"xml", triggeredAlarm.arg("<Mute>true</Mute>")}});
    QCOMPARE(notified.size() + triggered.size(), 0);
}

void tst_PluginAlarmManagerEvents::clientNotificationIsReEmitted_data()
{
    QTest::addColumn<QVariant>("payload");
    QTest::newRow("pop-up window")
        << QVariant("<ClientNotification><TimecardId>77</TimecardId><Type>Popup Window</Type><PopupWindow>"
                    "<Cam>cam1</Cam><Cam>cam2</Cam></PopupWindow></ClientNotification>");
    QTest::newRow("sound the alarm")
        << QVariant("<ClientNotification><TimecardId>78</TimecardId><Type>SoundTheAlarm</Type><SoundTheAlarm>"
                    "<Sound>bell.mp3</Sound></SoundTheAlarm></ClientNotification>");
    QTest::newRow("not XML") << QVariant("<ClientNotification>");
    QTest::newRow("a map instead of text") << QVariant(QVariantMap{{"xml", "x"}});
}

void tst_PluginAlarmManagerEvents::clientNotificationIsReEmitted()
{
    QFETCH(QVariant, payload);
    PluginFixture fixture;
    QSignalSpy notified(&fixture.plugin, &PluginAlarmManager::clientNotification);
    fixture.push(EVENT_TYPE_CLIENT_NOTIFICATION, payload);

    const ClientNotificationParser parser(payload.toString());
    QCOMPARE(notified.size(), 1);
    QCOMPARE(notified.first().at(0).toInt(), parser.GetType());
    QCOMPARE(notified.first().at(1), parser.GetParsedData());
    QCOMPARE(notified.first().at(2), QVariant(parser.GetTimecardId()));
}

void tst_PluginAlarmManagerEvents::broadcastEventEmitsItsSignal()
{
    PluginFixture fixture;
    QSignalSpy http(&fixture.plugin, &PluginAlarmManager::httpActionResponsed);
    QSignalSpy eMapTabs(&fixture.plugin, &PluginAlarmManager::closeEMapTabResp);
    QSignalSpy alarmTabs(&fixture.plugin, &PluginAlarmManager::closeAlarmTabResp);
    QSignalSpy notifications(&fixture.plugin, &PluginAlarmManager::closeAlarmNotificationResp);

    fixture.push(METHOD_HTTP_ACTION_RESPONSE, QVariantMap{{"errorCode", "404"}});
    fixture.push(METHOD_CLOSE_EMAP_TAB, QStringList{"n1", "n2"});
    fixture.push(METHOD_CLOSE_ALARM_TAB, QStringList{"n3"});
    fixture.push(METHOD_CLOSE_ALARM_NOTIFICATION, QVariant());
    fixture.push(METHOD_HTTP_ACTION_RESPONSE, QStringLiteral("not a map"));

    QCOMPARE(http.size(), 2);
    QCOMPARE(http.at(0), QVariantList{"404"});
    QCOMPARE(http.at(1), QVariantList{""});
    QCOMPARE(eMapTabs.size(), 1);
    QCOMPARE(eMapTabs.first(), QVariantList{QStringList({"n1", "n2"})});
    QCOMPARE(alarmTabs.size(), 1);
    QCOMPARE(alarmTabs.first(), QVariantList{QStringList{"n3"}});
    QCOMPARE(notifications.size(), 1);
}

void tst_PluginAlarmManagerEvents::eventForAnotherReceiverIsIgnored_data()
{
    QTest::addColumn<QString>("eventName");
    QTest::addColumn<QString>("target");
    QTest::addColumn<QVariant>("payload");

    const QVariant triggered = QVariantMap{{"xml", triggeredAlarm.arg(QString())}};
    QTest::newRow("triggered alarm for another receiver") << EVENT_TYPE_ALARM_TRIGGERED << "other" << triggered;
    QTest::newRow("notification for another receiver") << EVENT_TYPE_CLIENT_NOTIFICATION << "other"
                                                       << QVariant("<ClientNotification/>");
    QTest::newRow("http response for another receiver") << METHOD_HTTP_ACTION_RESPONSE << "other" << QVariant();
    QTest::newRow("close tab for another receiver") << METHOD_CLOSE_EMAP_TAB << "other" << QVariant();
    QTest::newRow("close notification for another receiver") << METHOD_CLOSE_ALARM_NOTIFICATION << "x" << QVariant();
    QTest::newRow("event name in other case") << "AlarmTriggered" << "" << triggered;
    QTest::newRow("method name as event") << METHOD_ADD_ALARM << "" << QVariant();
    QTest::newRow("unknown event") << "somethingElse" << "" << triggered;
}

void tst_PluginAlarmManagerEvents::eventForAnotherReceiverIsIgnored()
{
    QFETCH(QString, eventName);
    QFETCH(QString, target);
    QFETCH(QVariant, payload);

    PluginFixture fixture;
    QList<QSignalSpy*> spies;
    const QMetaObject* meta = &PluginAlarmManager::staticMetaObject;
    for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
        if (meta->method(i).methodType() == QMetaMethod::Signal)
            spies.append(new QSignalSpy(&fixture.plugin, meta->method(i)));
    }
    fixture.push(eventName, payload, target);
    int emitted = 0;
    for (QSignalSpy* spy : std::as_const(spies))
        emitted += spy->size();
    qDeleteAll(spies);
    QCOMPARE(emitted, 0);
}

void tst_PluginAlarmManagerEvents::alarmEventsKeepViewCellsInStep_data()
{
    QTest::addColumn<QString>("eventName");
    QTest::addColumn<QVariant>("payload");
    QTest::addColumn<QStringList>("shown");

    const QString gate = triggerXml({{"Open gate", "cam1", 2}});
    const QString moved = triggerXml({{"Gate moved", "cam2", 2}, {"Gate lights", "cam2", 1}});
    // Before every row: alarm a1 shows "Open gate" on cam1 and a2 "Siren" on cam1 and cam2.
    QTest::newRow("added alarm shows its triggers")
        << EVENT_TYPE_ADD_ALARM << QVariant(QVariantMap{{ARG_ALARM_ID, "a3"}, {ARG_ALARM_TRG_LIST, gate}})
        << QStringList{"cam1: a3/Open gate", "cam1: a2/Siren", "cam1: a1/Open gate", "cam2: a2/Siren"};
    QTest::newRow("added alarm without virtual triggers shows nothing")
        << EVENT_TYPE_ADD_ALARM
        << QVariant(QVariantMap{{ARG_ALARM_ID, "a3"}, {ARG_ALARM_TRG_LIST, triggerXml({})}})
        << QStringList{"cam1: a2/Siren", "cam1: a1/Open gate", "cam2: a2/Siren"};
    QTest::newRow("added alarm without id shows nothing")
        << EVENT_TYPE_ADD_ALARM << QVariant(QVariantMap{{ARG_ALARM_TRG_LIST, gate}})
        << QStringList{"cam1: a2/Siren", "cam1: a1/Open gate", "cam2: a2/Siren"};
    QTest::newRow("updated alarm replaces its triggers")
        << EVENT_TYPE_UPDATE_ALARM << QVariant(QVariantMap{{ARG_ALARM_ID, "a1"}, {ARG_ALARM_TRG_LIST, moved}})
        << QStringList{"cam1: a2/Siren", "cam2: a1/Gate lights", "cam2: a1/Gate moved", "cam2: a2/Siren"};
    QTest::newRow("updated alarm with non-XML triggers shows none")
        << EVENT_TYPE_UPDATE_ALARM << QVariant(QVariantMap{{ARG_ALARM_ID, "a2"}, {ARG_ALARM_TRG_LIST, "<Trig"}})
        << QStringList{"cam1: a1/Open gate"};
    QTest::newRow("deleted alarm leaves every camera") << EVENT_TYPE_DELETE_ALARM << QVariant("a2")
                                                       << QStringList{"cam1: a1/Open gate"};
    QTest::newRow("deleting an unknown alarm changes nothing")
        << EVENT_TYPE_DELETE_ALARM << QVariant("A2")
        << QStringList{"cam1: a2/Siren", "cam1: a1/Open gate", "cam2: a2/Siren"};
    QTest::newRow("deletion with a list payload changes nothing")
        << EVENT_TYPE_DELETE_ALARM << QVariant(QVariantList{"a1", "a2"})
        << QStringList{"cam1: a2/Siren", "cam1: a1/Open gate", "cam2: a2/Siren"};
    QTest::newRow("disabled alarm leaves, unknown one is skipped")
        << EVENT_TYPE_TOGGLE_ALARM
        << QVariant(QVariantList{QVariantMap{{ARG_ALARM_ID, "a9"}, {ARG_TOGGLE_ENABLE, true}},
                                 QVariantMap{{ARG_ALARM_ID, "a1"}, {ARG_TOGGLE_ENABLE, false}}})
        << QStringList{"cam1: a2/Siren", "cam2: a2/Siren"};
    QTest::newRow("enabled alarm shows its row's triggers once")
        << EVENT_TYPE_TOGGLE_ALARM << QVariant(QVariantList{QVariantMap{{ARG_ALARM_ID, "a3"}, {ARG_TOGGLE_ENABLE, true}},
                                                            QVariantMap{{ARG_ALARM_ID, "a3"}, {ARG_TOGGLE_ENABLE, true}}})
        << QStringList{"cam1: a2/Siren", "cam1: a1/Open gate", "cam2: a3/Lobby", "cam2: a2/Siren"};
    QTest::newRow("toggle with a map payload changes nothing")
        << EVENT_TYPE_TOGGLE_ALARM << QVariant(QVariantMap{{ARG_ALARM_ID, "a1"}, {ARG_TOGGLE_ENABLE, false}})
        << QStringList{"cam1: a2/Siren", "cam1: a1/Open gate", "cam2: a2/Siren"};
}

void tst_PluginAlarmManagerEvents::alarmEventsKeepViewCellsInStep()
{
    QFETCH(QString, eventName);
    QFETCH(QVariant, payload);
    QFETCH(QStringList, shown);

    // Given two listed alarms showing their triggers and a third, disabled one with a trigger on cam2
    PluginFixture fixture;
    AlarmRow lobby = AlarmRow::of("a3", "Lobby", false);
    lobby.triggerXml = triggerXml({{"Lobby", "cam2", 1}});
    AlarmRow gate = AlarmRow::of("a1", "Gate");
    gate.triggerXml = triggerXml({{"Open gate", "cam1", 2}});
    AlarmRow siren = AlarmRow::of("a2", "Siren");
    siren.triggerXml = triggerXml({{"Siren", "cam1", 3}, {"Siren", "cam2", 3}});
    for (const AlarmRow& row : {lobby, gate, siren}) {
        fixture.addRow(row.item());
        if (row.enabled)
            fixture.plugin.InsertToViewCellTriggerModel(row.id, XML2Json::parse(row.triggerXml).toMap());
    }
    QAbstractItemModelTester cam1(fixture.plugin.getAlarmViewCellTriggerModel("cam1"));
    QAbstractItemModelTester cam2(fixture.plugin.getAlarmViewCellTriggerModel("cam2"));
    const QString alarmRowBefore = rowJson(fixture.plugin.getAlarmModel(), 0);

    // When the server pushes the event
    fixture.push(eventName, payload);

    // Then only the camera models change
    QCOMPARE(viewCells(fixture.plugin, {"cam1", "cam2"}), shown);
    QCOMPARE(rowJson(fixture.plugin.getAlarmModel(), 0), alarmRowBefore);
}

QTEST_MAIN(tst_PluginAlarmManagerEvents)
#include "tst_pluginalarmmanager_events.moc"
