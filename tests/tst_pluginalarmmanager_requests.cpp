#include <QDateTime>
#include <QPluginLoader>
#include <QtTest>

#include <functional>

#include "tst_pluginalarmmanager_fixture.h"

using namespace PluginAlarmManagerCommon;

using Invocation = std::function<bool(PluginFixture&)>;
Q_DECLARE_METATYPE(Invocation)

// The QML request API of PluginAlarmManager: what each invokable sends (method, argument, context),
// who frees the contexts when the framework refuses, and the deletion batch's bookkeeping.
class tst_PluginAlarmManagerRequests : public QObject
{
    Q_OBJECT
private slots:
    void invokableSendsItsRequest_data();
    void invokableSendsItsRequest();
    void refusedSendFreesTheContext_data();
    void refusedSendFreesTheContext();
    void withoutFrameworkEveryRequestFails();
    void updateAlarmSendsTheNextRevision_data();
    void updateAlarmSendsTheNextRevision();
    void deleteAlarmsCountsRefusedRequests_data();
    void deleteAlarmsCountsRefusedRequests();
    void deleteAlarmsOnEmptyListSendsNothing();
    void viewCellProxyIsOnePerCamera();
    void modelGettersHandOutTheChain();
    void loadedPluginListsAlarmsEndToEnd();
};

namespace {
const QString noContext = "none";
const QString argumentCopy = "copy of the argument";
const QString batchId = "batch id";
const QString nodeIdVariant = "the argument itself";

// Two rules every request test starts from; the filter proxy lists them in this order.
void addTwoRows(PluginFixture& fixture)
{
    AlarmRow gate = AlarmRow::of("a1", "Gate & yard", true, 4);
    gate.description = "Back door";
    gate.triggerXml = "<TriggerList/>";
    gate.actionXml = "<ActionList/>";
    gate.schedule = {"Weekdays", "success", "{}"};
    AlarmRow lobby = AlarmRow::of("a2", "Lobby", false, 9);
    lobby.schedule = {"Nights", "success", QString()};
    fixture.addRow(gate.item());
    fixture.addRow(lobby.item());
}

// Every request's context is released by answering it, except the close-tab ones nobody frees.
void release(PluginFixture& fixture, const RecordedRequest& request)
{
    if (request.method != METHOD_CLOSE_EMAP_TAB && request.method != METHOD_CLOSE_ALARM_TAB)
        fixture.answer(request.method, QVariant(), request.context, "1");
}
} // namespace

void tst_PluginAlarmManagerRequests::invokableSendsItsRequest_data()
{
    QTest::addColumn<Invocation>("invocation");
    QTest::addColumn<QString>("method");
    QTest::addColumn<QVariant>("argument");
    QTest::addColumn<QString>("context");

    const QVariantMap addArguments{
        {ARG_ALARM_NAME, "Front%20door"},       {ARG_ALARM_DESC, "L%C3%B6bby%20%26%20hall"},
        {ARG_ALARM_TRG_LIST, "<TriggerList/>"}, {ARG_ALARM_ACT_LIST, "<ActionList/>"},
        {ARG_ALARM_RELATED_DEV, "<Devices/>"},  {ARG_ALARM_TEMP_NAME, "Weekdays"},
        {ARG_ALARM_TEMP_CONTENT, "<Mapping/>"}, {ARG_ALARM_ENABLED, false},
    };
    QVariantMap addDefaultArguments = addArguments;
    addDefaultArguments[ARG_ALARM_ENABLED] = true;
    QVariantMap updateArguments = addArguments;
    updateArguments.insert(ARG_ALARM_ID, "a1");
    updateArguments.insert(ARG_ALARM_REV, 5);
    QVariantMap updateDefaultArguments = updateArguments;
    updateDefaultArguments[ARG_ALARM_ENABLED] = true;

    const auto add = [](bool withEnabled) {
        return Invocation([withEnabled](PluginFixture& fixture) {
            const QString name = "Front door", description = "Löbby & hall";
            const QString triggers = "<TriggerList/>", actions = "<ActionList/>", devices = "<Devices/>";
            const QString templateName = "Weekdays", templateContent = "<Mapping/>";
            if (withEnabled)
                return fixture.invoke("addAlarm", Q_ARG(QString, name), Q_ARG(QString, description),
                                      Q_ARG(QString, triggers), Q_ARG(QString, actions), Q_ARG(QString, devices),
                                      Q_ARG(QString, templateName), Q_ARG(QString, templateContent),
                                      Q_ARG(bool, false));
            return fixture.invoke("addAlarm", Q_ARG(QString, name), Q_ARG(QString, description),
                                  Q_ARG(QString, triggers), Q_ARG(QString, actions), Q_ARG(QString, devices),
                                  Q_ARG(QString, templateName), Q_ARG(QString, templateContent));
        });
    };
    const auto update = [](bool withEnabled) {
        return Invocation([withEnabled](PluginFixture& fixture) {
            const QString id = "a1", name = "Front door", description = "Löbby & hall";
            const QString triggers = "<TriggerList/>", actions = "<ActionList/>", devices = "<Devices/>";
            const QString templateName = "Weekdays", templateContent = "<Mapping/>";
            if (withEnabled)
                return fixture.invoke("updateAlarm", Q_ARG(QString, id), Q_ARG(QString, name),
                                      Q_ARG(QString, description), Q_ARG(QString, triggers), Q_ARG(QString, actions),
                                      Q_ARG(QString, devices), Q_ARG(QString, templateName),
                                      Q_ARG(QString, templateContent), Q_ARG(bool, false));
            return fixture.invoke("updateAlarm", Q_ARG(QString, id), Q_ARG(QString, name), Q_ARG(QString, description),
                                  Q_ARG(QString, triggers), Q_ARG(QString, actions), Q_ARG(QString, devices),
                                  Q_ARG(QString, templateName), Q_ARG(QString, templateContent));
        });
    };

    QTest::newRow("getAllAlarm sends a null argument")
        << Invocation([](PluginFixture& f) { return f.invoke("getAllAlarm"); }) << METHOD_GET_ALL_ALARM << QVariant()
        << noContext;
    QTest::newRow("addAlarm percent-encodes name and description")
        << add(true) << METHOD_ADD_ALARM << QVariant(addArguments) << argumentCopy;
    QTest::newRow("addAlarm without enabled sends enabled")
        << add(false) << METHOD_ADD_ALARM << QVariant(addDefaultArguments) << argumentCopy;
    QTest::newRow("updateAlarm adds id and next revision")
        << update(true) << METHOD_UPD_ALARM << QVariant(updateArguments) << argumentCopy;
    QTest::newRow("updateAlarm without enabled sends enabled")
        << update(false) << METHOD_UPD_ALARM << QVariant(updateDefaultArguments) << argumentCopy;
    QTest::newRow("deleteAlarms sends revision and id of a listed row") << Invocation([](PluginFixture& f) {
        const QVariantList rows{1};
        return f.invoke("deleteAlarms", Q_ARG(QVariantList, rows));
    }) << METHOD_DEL_ALARM << QVariant(QVariantMap{{ARG_ALARM_REV, 9}, {ARG_ALARM_ID, "a2"}})
                                                                        << batchId;
    QTest::newRow("sendHttpRequest sends the seven fields")
        << Invocation([](PluginFixture& f) {
               return f.invoke("sendHttpRequest", Q_ARG(QString, "http://h/x y"), Q_ARG(bool, true),
                               Q_ARG(QString, "u"), Q_ARG(QString, "p"), Q_ARG(QString, "POST"),
                               Q_ARG(QString, "text/plain"), Q_ARG(QString, "body"));
           })
        << METHOD_SEND_HTTP
        << QVariant(QVariantMap{{ARG_HTTP_URL, "http://h/x y"},
                                {ARG_HTTP_NEEDAUTH, true},
                                {ARG_HTTP_USER, "u"},
                                {ARG_HTTP_PWD, "p"},
                                {ARG_HTTP_METHOD, "POST"},
                                {ARG_HTTP_CONTENT_TYPE, "text/plain"},
                                {ARG_HTTP_CONTENT, "body"}})
        << noContext;
    QTest::newRow("updateAlarmSchedule sends the whole rule with the batch")
        << Invocation([](PluginFixture& f) {
               return f.invoke("updateAlarmSchedule", Q_ARG(QString, "Weekdays"), Q_ARG(QString, "Workdays"),
                               Q_ARG(QString, "<Mapping/>"));
           })
        << METHOD_UPD_ALARM_SCHEDULE
        << QVariant(QVariantMap{{ARG_ALARM_ID, "a1"},
                                {ARG_ALARM_REV, 5},
                                {ARG_ALARM_NAME, "Gate%20%26%20yard"},
                                {ARG_ALARM_DESC, "Back%20door"},
                                {ARG_ALARM_TRG_LIST, "<TriggerList/>"},
                                {ARG_ALARM_ACT_LIST, "<ActionList/>"},
                                {ARG_ALARM_ENABLED, true},
                                {ARG_ALARM_TEMP_NAME, "Workdays"},
                                {ARG_ALARM_TEMP_CONTENT, "<Mapping/>"},
                                {ARG_CONTEXT_UID, "batch id"}})
        << argumentCopy;
    QTest::newRow("getAlarmSoundList sends a null argument")
        << Invocation([](PluginFixture& f) { return f.invoke("getAlarmSoundList"); }) << METHOD_GET_ALARM_SOUND_LIST
        << QVariant() << noContext;
    QTest::newRow("getReserveTime sends a null argument")
        << Invocation([](PluginFixture& f) { return f.invoke("getReserveTime"); }) << METHOD_GET_RESERVE_TIME
        << QVariant() << noContext;
    QTest::newRow("updateReserveTime sends the number")
        << Invocation([](PluginFixture& f) { return f.invoke("updateReserveTime", Q_ARG(int, 30)); })
        << METHOD_UPD_RESERVE_TIME << QVariant(30) << noContext;
    QTest::newRow("sendVirtualTriggerAlarm keeps the trigger id as context")
        << Invocation([](PluginFixture& f) {
               return f.invoke("sendVirtualTriggerAlarm", Q_ARG(QString, "Open gate"), Q_ARG(QString, "cam1"),
                               Q_ARG(int, 3), Q_ARG(int, 7), Q_ARG(QString, "Gate camera"));
           })
        << METHOD_VIRTUAL_TRIGGER
        << QVariant(QVariantMap{{ARG_VIRTUAL_TRIGGER_NAME, "Open gate"},
                                {ARG_VIRTUAL_TRIGGER_ID, 7},
                                {ARG_VIRTUAL_TRIGGER_ICON_TYPE, 3},
                                {ARG_CAMERA, "cam1"},
                                {ARG_CAMERA_NAME, "Gate camera"}})
        << "int 7";
    QTest::newRow("toggleAllAlarm sends flag and interval")
        << Invocation([](PluginFixture& f) { return f.invoke("toggleAllAlarm", Q_ARG(bool, false), Q_ARG(int, 60)); })
        << METHOD_TOGGLE_ALL_ALARM << QVariant(QVariantMap{{ARG_TOGGLE_ENABLE, false}, {ARG_TOGGLE_INTERVAL, 60}})
        << noContext;
    QTest::newRow("toggleAlarm renames the entries and skips those without id")
        << Invocation([](PluginFixture& f) {
               const QVariantList configuration{QVariantMap{{"id", "a1"}, {"enable", false}},
                                                QVariantMap{{"enable", true}}, "not a map",
                                                QVariantMap{{"id", "a2"}, {"enable", true}}};
               return f.invoke("toggleAlarm", Q_ARG(QVariantList, configuration));
           })
        << METHOD_TOGGLE_ALARM
        << QVariant(QVariantList{QVariantMap{{ARG_ALARM_ID, "a1"}, {ARG_TOGGLE_ENABLE, false}},
                                 QVariantMap{{ARG_ALARM_ID, "a2"}, {ARG_TOGGLE_ENABLE, true}}})
        << argumentCopy;
    QTest::newRow("closeEMapTab hands over one heap list") << Invocation([](PluginFixture& f) {
        const QStringList nodeIds{"n1", "n2"};
        return f.invoke("closeEMapTab", Q_ARG(QStringList, nodeIds));
    }) << METHOD_CLOSE_EMAP_TAB << QVariant(QStringList{"n1", "n2"})
                                                           << nodeIdVariant;
    QTest::newRow("closeAlarmTab hands over one heap list") << Invocation([](PluginFixture& f) {
        const QStringList nodeIds{"n3"};
        return f.invoke("closeAlarmTab", Q_ARG(QStringList, nodeIds));
    }) << METHOD_CLOSE_ALARM_TAB << QVariant(QStringList{"n3"})
                                                            << nodeIdVariant;
    QTest::newRow("closeAlarmNotification sends a null argument")
        << Invocation([](PluginFixture& f) { return f.invoke("closeAlarmNotification"); })
        << METHOD_CLOSE_ALARM_NOTIFICATION << QVariant() << noContext;
}

void tst_PluginAlarmManagerRequests::invokableSendsItsRequest()
{
    QFETCH(Invocation, invocation);
    QFETCH(QString, method);
    QFETCH(QVariant, argument);
    QFETCH(QString, context);

    // Given the plug-in with two listed rules
    PluginFixture fixture;
    addTwoRows(fixture);
    const qint64 before = QDateTime::currentMSecsSinceEpoch();

    // When QML calls the invokable
    QVERIFY(invocation(fixture));

    // Then exactly one request goes out, non-blocking, with its argument and context
    const qint64 after = QDateTime::currentMSecsSinceEpoch();
    QCOMPARE(fixture.framework.methods(), QStringList{method});
    const RecordedRequest request = fixture.framework.requests.first();
    QVERIFY(!request.isBlocking);
    QVariant sent = request.argument;
    if (method == METHOD_UPD_ALARM_SCHEDULE) {
        const qint64 uid = sent.toMap().value(ARG_CONTEXT_UID).toLongLong();
        QVERIFY(uid >= before && uid <= after);
        QVERIFY(fixture.plugin.pendingBatches().contains(uid));
        QVariantMap withoutUid = sent.toMap();
        withoutUid[ARG_CONTEXT_UID] = "batch id";
        sent = withoutUid;
    }
    QCOMPARE(argumentJson(sent), argumentJson(argument));

    if (context == noContext) {
        QCOMPARE(request.context, nullptr);
    } else if (context == argumentCopy) {
        QVERIFY(request.context);
        const QVariant copy = sent.typeId() == QMetaType::QVariantList
                                  ? QVariant(*static_cast<QList<QVariant>*>(request.context))
                                  : QVariant(*static_cast<QVariantMap*>(request.context));
        QCOMPARE(argumentJson(copy), argumentJson(request.argument));
    } else if (context == batchId) {
        const qint64 id = *static_cast<qint64*>(request.context);
        QVERIFY(id >= before && id <= after);
        QVERIFY(fixture.plugin.pendingBatches().contains(id));
    } else if (context == nodeIdVariant) {
        QCOMPARE(*static_cast<QVariant*>(request.context), request.argument);
    } else {
        QCOMPARE(QStringLiteral("int %1").arg(*static_cast<int*>(request.context)), context);
    }
    release(fixture, request);
}

void tst_PluginAlarmManagerRequests::refusedSendFreesTheContext_data()
{
    QTest::addColumn<Invocation>("invocation");

    QTest::newRow("addAlarm") << Invocation([](PluginFixture& f) {
        return f.invoke("addAlarm", Q_ARG(QString, "n"), Q_ARG(QString, "d"), Q_ARG(QString, ""), Q_ARG(QString, ""),
                        Q_ARG(QString, ""), Q_ARG(QString, ""), Q_ARG(QString, ""));
    });
    QTest::newRow("updateAlarm") << Invocation([](PluginFixture& f) {
        return f.invoke("updateAlarm", Q_ARG(QString, "a1"), Q_ARG(QString, "n"), Q_ARG(QString, "d"),
                        Q_ARG(QString, ""), Q_ARG(QString, ""), Q_ARG(QString, ""), Q_ARG(QString, ""),
                        Q_ARG(QString, ""));
    });
    QTest::newRow("deleteAlarms") << Invocation([](PluginFixture& f) {
        const QVariantList rows{0, 1};
        return f.invoke("deleteAlarms", Q_ARG(QVariantList, rows));
    });
    QTest::newRow("updateAlarmSchedule") << Invocation([](PluginFixture& f) {
        return f.invoke("updateAlarmSchedule", Q_ARG(QString, "Weekdays"), Q_ARG(QString, "W"), Q_ARG(QString, ""));
    });
    QTest::newRow("sendVirtualTriggerAlarm") << Invocation([](PluginFixture& f) {
        return f.invoke("sendVirtualTriggerAlarm", Q_ARG(QString, "n"), Q_ARG(QString, "c"), Q_ARG(int, 1),
                        Q_ARG(int, 2), Q_ARG(QString, "cn"));
    });
    QTest::newRow("toggleAlarm") << Invocation([](PluginFixture& f) {
        const QVariantList configuration{QVariantMap{{"id", "a1"}}};
        return f.invoke("toggleAlarm", Q_ARG(QVariantList, configuration));
    });
    QTest::newRow("getAllAlarm") << Invocation([](PluginFixture& f) { return f.invoke("getAllAlarm"); });
}

void tst_PluginAlarmManagerRequests::refusedSendFreesTheContext()
{
    QFETCH(Invocation, invocation);

    // Given a framework that refuses every request
    PluginFixture fixture;
    addTwoRows(fixture);
    fixture.framework.refuseAll();

    // When QML calls the invokable, it fails, leaves no batch, and (checked by the leak checker) no context
    QVERIFY(!invocation(fixture));
    QVERIFY(!fixture.framework.refusedRequests.isEmpty());
    QVERIFY(fixture.plugin.pendingBatches().isEmpty());
}

void tst_PluginAlarmManagerRequests::withoutFrameworkEveryRequestFails()
{
    PluginAlarmManager plugin;
    QVERIFY(plugin.Init(nullptr));
    QVERIFY(!plugin.getAllAlarm());
    QVERIFY(!plugin.addAlarm("n", "d", "", "", "", "", ""));
    QVERIFY(!plugin.updateAlarm("a1", "n", "d", "", "", "", "", ""));
    QVERIFY(!plugin.sendVirtualTriggerAlarm("n", "c", 1, 2, "cn"));
    QVERIFY(!plugin.toggleAlarm({QVariantMap{{"id", "a1"}}}));
    QVERIFY(!plugin.closeAlarmNotification());
}

void tst_PluginAlarmManagerRequests::updateAlarmSendsTheNextRevision_data()
{
    QTest::addColumn<QString>("alarmId");
    QTest::addColumn<qlonglong>("revision");

    QTest::newRow("known alarm at revision 4") << "a1" << qlonglong(5);
    QTest::newRow("known alarm at revision 9") << "a2" << qlonglong(10);
    QTest::newRow("unknown alarm") << "a9" << qlonglong(1);
    QTest::newRow("id differing in case is unknown") << "A1" << qlonglong(1);
}

void tst_PluginAlarmManagerRequests::updateAlarmSendsTheNextRevision()
{
    QFETCH(QString, alarmId);
    QFETCH(qlonglong, revision);

    PluginFixture fixture;
    addTwoRows(fixture);
    QVERIFY(fixture.plugin.updateAlarm(alarmId, "n", "d", "", "", "", "", ""));
    const RecordedRequest request = fixture.framework.requests.value(0);
    QCOMPARE(request.argument.toMap().value(ARG_ALARM_REV).toLongLong(), revision);
    release(fixture, request);
}

void tst_PluginAlarmManagerRequests::deleteAlarmsCountsRefusedRequests_data()
{
    QTest::addColumn<QVariantList>("rows");
    QTest::addColumn<QStringList>("refusedIds");
    QTest::addColumn<bool>("result");
    QTest::addColumn<QStringList>("sentIds");

    QTest::newRow("all sent") << QVariantList{0, 1} << QStringList() << true << QStringList{"a1", "a2"};
    QTest::newRow("one refused still forms the batch")
        << QVariantList{0, 1} << QStringList{"a1"} << true << QStringList{"a2"};
    QTest::newRow("all refused leaves no batch")
        << QVariantList{0, 1} << QStringList{"a1", "a2"} << false << QStringList();
    QTest::newRow("rows outside the list are not sent")
        << QVariantList{5, -1, "x", 1} << QStringList() << true << QStringList{"a2"};
}

void tst_PluginAlarmManagerRequests::deleteAlarmsCountsRefusedRequests()
{
    QFETCH(QVariantList, rows);
    QFETCH(QStringList, refusedIds);
    QFETCH(bool, result);
    QFETCH(QStringList, sentIds);

    // Given two listed rules and a framework refusing some deletions
    PluginFixture fixture;
    addTwoRows(fixture);
    fixture.framework.refuse = [refusedIds](const RecordedRequest& request) {
        return refusedIds.contains(request.argument.toMap().value(ARG_ALARM_ID).toString());
    };
    QSignalSpy responses(&fixture.plugin, &PluginAlarmManager::deleteAlarmsResp);

    // When QML deletes the rows
    QCOMPARE(fixture.plugin.deleteAlarms(rows), result);

    // Then the sent ones are pending in one batch that counts the others as failed
    QStringList sent;
    for (const RecordedRequest& request : std::as_const(fixture.framework.requests))
        sent.append(request.argument.toMap().value(ARG_ALARM_ID).toString());
    QCOMPARE(sent, sentIds);
    QCOMPARE(fixture.plugin.pendingBatches().size(), result ? 1 : 0);

    // And once every sent one is answered, the batch reports all rows with the successes among them
    for (const RecordedRequest& request : std::as_const(fixture.framework.requests))
        fixture.answer(METHOD_DEL_ALARM, request.argument.toMap().value(ARG_ALARM_ID), request.context);
    QCOMPARE(responses.size(), result ? 1 : 0);
    if (result)
        QCOMPARE(responses.first(), QVariantList({int(rows.size()), int(sentIds.size())}));
    QVERIFY(fixture.plugin.pendingBatches().isEmpty());
}

void tst_PluginAlarmManagerRequests::deleteAlarmsOnEmptyListSendsNothing()
{
    PluginFixture fixture;
    QVERIFY(fixture.plugin.deleteAlarms({}));
    QVERIFY(fixture.framework.requests.isEmpty());
    QVERIFY(fixture.plugin.pendingBatches().isEmpty());
}

void tst_PluginAlarmManagerRequests::viewCellProxyIsOnePerCamera()
{
    PluginFixture fixture;
    QSortFilterProxyModel* first = fixture.plugin.getAlarmViewCellTriggerModel("cam1");
    QVERIFY(first);
    QVERIFY(qobject_cast<AlarmViewCellTriggerModel*>(first->sourceModel()));
    QCOMPARE(fixture.plugin.getAlarmViewCellTriggerModel("cam1"), first);
    QVERIFY(fixture.plugin.getAlarmViewCellTriggerModel("cam2") != first);
}

void tst_PluginAlarmManagerRequests::modelGettersHandOutTheChain()
{
    PluginFixture fixture;
    QVERIFY(fixture.plugin.getAlarmModel());
    QCOMPARE(fixture.plugin.getAlarmTranslatedModel()->sourceModel(), fixture.plugin.getAlarmModel());
    QCOMPARE(fixture.plugin.getAlarmFilterModel()->sourceModel(), fixture.plugin.getAlarmTranslatedModel());
    QVERIFY(!fixture.plugin.getToggleAlarmResult());
    QVERIFY(!fixture.plugin.getToggleAllAlarmResult());
}

void tst_PluginAlarmManagerRequests::loadedPluginListsAlarmsEndToEnd()
{
    // Given the plug-in as the host loads it (its own copy of the classes: reached by name only)
    QPluginLoader loader(QStringLiteral(ALARM_PLUGIN_PATH));
    auto* plugin = qobject_cast<PluginBase*>(loader.instance());
    QVERIFY2(plugin, qPrintable(loader.errorString()));
    FakeFramework framework;
    framework.licence.editionFeature = {{"supportGuardian", true}};
    int handle = 0;
    QVERIFY(plugin->InitialPluginBase(nullptr, &handle, &framework));
    QSignalSpy listed(plugin, SIGNAL(getAlarmResp(bool)));

    // When QML asks for the list and the server answers with its document
    bool sent = false;
    QVERIFY(QMetaObject::invokeMethod(plugin, "getAllAlarm", Q_RETURN_ARG(bool, sent)));
    QVERIFY(sent);
    QCOMPARE(framework.methods(), QStringList{METHOD_GET_ALL_ALARM});
    plugin->CommandProcessor(METHOD_GET_ALL_ALARM, TestData::text("core_alarmlist.xml"), nullptr, "0", {}, false, {});

    // Then QML is told, and the model it asks for by name holds every rule of the document
    QCOMPARE(listed.size(), 1);
    QCOMPARE(listed.first(), QVariantList{true});
    const QAbstractItemModel* model = nullptr;
    for (const QAbstractItemModel* child : plugin->findChildren<QAbstractItemModel*>()) {
        if (qstrcmp(child->metaObject()->className(), "AlarmModel") == 0)
            model = child;
    }
    QVERIFY(model);
    QCOMPARE(column(model, AlarmModel::idRole), QStringList({"11", "12", "13"}));

    // And each camera's view cell offers the virtual triggers of the enabled rules only
    QStringList offered;
    for (const QString camera : {"cam1", "cam2"}) {
        QSortFilterProxyModel* viewCell = nullptr;
        QVERIFY(QMetaObject::invokeMethod(plugin, "getAlarmViewCellTriggerModel",
                                          Q_RETURN_ARG(QSortFilterProxyModel*, viewCell), Q_ARG(QString, camera)));
        QVERIFY(viewCell);
        for (int row = 0; row < viewCell->rowCount(); ++row)
            offered.append(camera + ": " + viewCell->index(row, 0).data(AlarmViewCellTriggerModel::idRole).toString()
                           + "/" + viewCell->index(row, 0).data(AlarmViewCellTriggerModel::nameRole).toString());
    }
    QCOMPARE(offered, QStringList{"cam1: 11/Open gate"});
}

QTEST_MAIN(tst_PluginAlarmManagerRequests)
#include "tst_pluginalarmmanager_requests.moc"
