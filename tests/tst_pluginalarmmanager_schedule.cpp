#include <QAbstractItemModelTester>
#include <QtTest>

#include "tst_pluginalarmmanager_fixture.h"

using namespace PluginAlarmManagerCommon;

// The schedule batch of PluginAlarmManager: renaming or editing a schedule template updates every alarm
// that uses it, one request per alarm under one batch, and the answers bring each row's schedule status.
class tst_PluginAlarmManagerSchedule : public QObject
{
    Q_OBJECT
private slots:
    void batchReportsEachAlarmAndTheWhole_data();
    void batchReportsEachAlarmAndTheWhole();
    void templateInUseByNobodyAnswersAtOnce();
    void refusedRequestCountsAsFailure();
    void answerOfUnknownBatchIsDropped();
};

namespace {
const QString workdaysMapping = QStringLiteral(
    "<Mapping><Ele><Frame><Name>Workdays</Name></Frame></Ele><Ele><Frame><Name>Workdays</Name></Frame></Ele>"
    "</Mapping>");

// Three rules: two on the "Weekdays" template, one on "Nights".
void addRules(PluginFixture& fixture)
{
    for (const auto& [id, templateName, revision] :
         {std::tuple{"a1", "Weekdays", 4}, std::tuple{"a2", "Nights", 2}, std::tuple{"a3", "Weekdays", 8}}) {
        AlarmRow row = AlarmRow::of(id, QStringLiteral("Rule %1").arg(id), true, revision);
        row.schedule = {templateName, "success", QStringLiteral("{\"old\":\"%1\"}").arg(id)};
        fixture.addRow(row.item());
    }
}

QStringList schedules(const QAbstractItemModel* model)
{
    QStringList lines;
    for (int row = 0; row < model->rowCount(); ++row) {
        const QModelIndex index = model->index(row, 0);
        lines.append(index.data(AlarmModel::idRole).toString() + " r"
                     + index.data(AlarmModel::revisionRole).toString() + " "
                     + index.data(AlarmModel::scheduleRole).toStringList().join(QLatin1Char('|')));
    }
    return lines;
}
} // namespace

void tst_PluginAlarmManagerSchedule::batchReportsEachAlarmAndTheWhole_data()
{
    QTest::addColumn<QString>("firstCode");
    QTest::addColumn<QString>("secondCode");
    QTest::addColumn<QVariantList>("perAlarm");
    QTest::addColumn<bool>("wholeSuccess");
    QTest::addColumn<QStringList>("rows");

    QTest::newRow("both accepted")
        << "0" << "0" << QVariantList{QVariantList{true, "a1"}, QVariantList{true, "a3"}} << true
        << QStringList{"a1 r5 Workdays|success|{\"frames\":2}", "a2 r2 Nights|success|{\"old\":\"a2\"}",
                       "a3 r9 Workdays|success|{\"frames\":2}"};
    QTest::newRow("one refused keeps its old template")
        << "0" << "1" << QVariantList{QVariantList{true, "a1"}, QVariantList{false, "a3"}} << false
        << QStringList{"a1 r5 Workdays|success|{\"frames\":2}", "a2 r2 Nights|success|{\"old\":\"a2\"}",
                       "a3 r8 Weekdays|updateAlarmFail|{\"old\":\"a3\"}"};
    QTest::newRow("both refused")
        << "" << "7" << QVariantList{QVariantList{false, "a1"}, QVariantList{false, "a3"}} << false
        << QStringList{"a1 r4 Weekdays|updateAlarmFail|{\"old\":\"a1\"}", "a2 r2 Nights|success|{\"old\":\"a2\"}",
                       "a3 r8 Weekdays|updateAlarmFail|{\"old\":\"a3\"}"};
}

void tst_PluginAlarmManagerSchedule::batchReportsEachAlarmAndTheWhole()
{
    QFETCH(QString, firstCode);
    QFETCH(QString, secondCode);
    QFETCH(QVariantList, perAlarm);
    QFETCH(bool, wholeSuccess);
    QFETCH(QStringList, rows);

    // Given three rules, two of them on the template that is renamed
    PluginFixture fixture;
    fixture.plugin.setAlarmMsgParser(new StubAlarmMessageParser);
    addRules(fixture);
    QAbstractItemModelTester tester(fixture.plugin.getAlarmModel());
    QSignalSpy eachAlarm(&fixture.plugin, &PluginAlarmManager::updateAlarmScheduleResp);
    QSignalSpy whole(&fixture.plugin, &PluginAlarmManager::updateAllAlarmScheduleResp);

    // When QML renames it, one request per affected rule goes out under one batch
    QVERIFY(fixture.plugin.updateAlarmSchedule("Weekdays", "Workdays", workdaysMapping));
    const QList<RecordedRequest> sent = fixture.framework.requests;
    QCOMPARE(sent.size(), 2);
    QCOMPARE(fixture.plugin.pendingBatches().size(), 1);

    // Then the first answer reports only its alarm
    fixture.answer(METHOD_UPD_ALARM_SCHEDULE, QVariant(), sent.at(0).context, firstCode);
    QCOMPARE(whole.size(), 0);

    // And the last one reports the whole batch and closes it
    fixture.answer(METHOD_UPD_ALARM_SCHEDULE, QVariant(), sent.at(1).context, secondCode);
    QCOMPARE(QVariantList(eachAlarm.cbegin(), eachAlarm.cend()), perAlarm);
    QCOMPARE(whole.size(), 1);
    QCOMPARE(whole.first(), QVariantList({wholeSuccess, "Workdays"}));
    QVERIFY(fixture.plugin.pendingBatches().isEmpty());
    QCOMPARE(schedules(fixture.plugin.getAlarmModel()), rows);
}

void tst_PluginAlarmManagerSchedule::templateInUseByNobodyAnswersAtOnce()
{
    PluginFixture fixture;
    addRules(fixture);
    QSignalSpy whole(&fixture.plugin, &PluginAlarmManager::updateAllAlarmScheduleResp);
    QVERIFY(fixture.plugin.updateAlarmSchedule("weekdays", "Workdays", workdaysMapping));
    QVERIFY(fixture.framework.requests.isEmpty());
    QCOMPARE(whole.size(), 1);
    QCOMPARE(whole.first(), QVariantList({true, "Workdays"}));
    QVERIFY(fixture.plugin.pendingBatches().isEmpty());
}

void tst_PluginAlarmManagerSchedule::refusedRequestCountsAsFailure()
{
    // Given a framework that refuses the request of a1
    PluginFixture fixture;
    addRules(fixture);
    fixture.framework.refuse = [](const RecordedRequest& request) {
        return request.argument.toMap().value(ARG_ALARM_ID) == QStringLiteral("a1");
    };
    QSignalSpy whole(&fixture.plugin, &PluginAlarmManager::updateAllAlarmScheduleResp);

    // When the template is renamed, the batch still forms for the other rule
    QVERIFY(fixture.plugin.updateAlarmSchedule("Weekdays", "Workdays", QString()));
    QCOMPARE(fixture.framework.requests.size(), 1);

    // Then its success does not make the whole batch a success
    fixture.answerLast(METHOD_UPD_ALARM_SCHEDULE, QVariant());
    QCOMPARE(whole.size(), 1);
    QCOMPARE(whole.first(), QVariantList({false, "Workdays"}));
}

void tst_PluginAlarmManagerSchedule::answerOfUnknownBatchIsDropped()
{
    PluginFixture fixture;
    addRules(fixture);
    const QStringList before = schedules(fixture.plugin.getAlarmModel());
    QSignalSpy eachAlarm(&fixture.plugin, &PluginAlarmManager::updateAlarmScheduleResp);
    QSignalSpy whole(&fixture.plugin, &PluginAlarmManager::updateAllAlarmScheduleResp);

    fixture.answer(METHOD_UPD_ALARM_SCHEDULE, QVariant(),
                   new QVariantMap{{ARG_ALARM_ID, "a1"}, {ARG_ALARM_TEMP_NAME, "X"}, {ARG_CONTEXT_UID, 12345}});
    fixture.answer(METHOD_UPD_ALARM_SCHEDULE, QVariant(), new QVariantMap{{ARG_CONTEXT_UID, "not a number"}}, "1");

    QCOMPARE(eachAlarm.size() + whole.size(), 0);
    QCOMPARE(schedules(fixture.plugin.getAlarmModel()), before);
}

QTEST_MAIN(tst_PluginAlarmManagerSchedule)
#include "tst_pluginalarmmanager_schedule.moc"
