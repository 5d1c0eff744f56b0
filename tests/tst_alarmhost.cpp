#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>

// The whole road through the reference host: the plug-in loaded by alarm-host, the simulated server
// behind it, and what a user of the headless mode sees (--json): the list, filtering, sorting, edits,
// a fired virtual trigger, and rules that are still there after a restart.
class tst_AlarmHost : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();

    void listShowsEverySampleRule();
    void filterNarrowsTheList_data();
    void filterNarrowsTheList();
    void sortByNameDescending();
    void editsAreKeptAcrossRestarts();
    void staleEditIsRejected();
    void scheduleTemplateMovesEveryRuleOnIt();
    void soundsAreSynchronisedOnConnect();
    void firedTriggerReachesTheUser();
    void disabledRuleDoesNotFire();
    void unknownSortRoleIsAnError();

private:
    QJsonObject runHost(const QStringList& arguments, int expectedExitCode = 0);
    static QJsonObject alarmById(const QJsonObject& output, const QString& id);
    static QStringList ids(const QJsonObject& output);
    static QJsonObject summary(const QJsonObject& alarm);

    QScopedPointer<QTemporaryDir> m_dataDir;
};

void tst_AlarmHost::initTestCase()
{
#ifndef ALARM_HOST_EXECUTABLE
    QSKIP("this build has no alarm-host");
#endif
}

void tst_AlarmHost::init()
{
    // Each test starts from a fresh copy of the sample site, made by the host itself.
    m_dataDir.reset(new QTemporaryDir);
    QVERIFY(m_dataDir->isValid());
}

QJsonObject tst_AlarmHost::runHost(const QStringList& arguments, int expectedExitCode)
{
#ifdef ALARM_HOST_EXECUTABLE
    QProcess host;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    host.setProcessEnvironment(environment);
    host.start(QStringLiteral(ALARM_HOST_EXECUTABLE),
               QStringList{"--data", m_dataDir->path(), "--json", "--latency", "5", "--timeout", "20000"} + arguments);
    if (!host.waitForFinished(120000)) {
        host.kill();
        host.waitForFinished();
        qWarning("alarm-host did not finish: %s", qPrintable(arguments.join(QLatin1Char(' '))));
        return {};
    }
    const QByteArray errors = host.readAllStandardError();
    if (host.exitCode() != expectedExitCode) {
        qWarning("alarm-host %s exited with %d:\n%s", qPrintable(arguments.join(QLatin1Char(' '))), host.exitCode(),
                 errors.constData());
        return {};
    }
    return QJsonDocument::fromJson(host.readAllStandardOutput()).object();
#else
    Q_UNUSED(arguments);
    Q_UNUSED(expectedExitCode);
    return {};
#endif
}

QJsonObject tst_AlarmHost::alarmById(const QJsonObject& output, const QString& id)
{
    for (const QJsonValue& alarm : output.value(QLatin1String("alarms")).toArray()) {
        if (alarm.toObject().value(QLatin1String("id")).toString() == id)
            return alarm.toObject();
    }
    return {};
}

QStringList tst_AlarmHost::ids(const QJsonObject& output)
{
    QStringList result;
    for (const QJsonValue& alarm : output.value(QLatin1String("alarms")).toArray())
        result.append(alarm.toObject().value(QLatin1String("id")).toString());
    return result;
}

QJsonObject tst_AlarmHost::summary(const QJsonObject& alarm)
{
    QJsonObject fields;
    for (const char* key : {"id", "name", "enabled", "revision", "description", "schedule"})
        fields.insert(QLatin1String(key), alarm.value(QLatin1String(key)));
    return fields;
}

void tst_AlarmHost::listShowsEverySampleRule()
{
    const QJsonObject output = runHost({"--list"});

    QCOMPARE(output.value(QLatin1String("count")).toInt(), 64);
    const QJsonObject gate = alarmById(output, QStringLiteral("1057"));
    QCOMPARE(summary(gate), QJsonObject({{"id", "1057"},
                                         {"name", "Operator: open main gate"},
                                         {"enabled", true},
                                         {"revision", 1},
                                         {"description", "Virtual button in the gate camera's view"},
                                         {"schedule", "All day"}}));
    QCOMPARE(gate.value(QLatin1String("triggerType")).toString(), QStringLiteral("Virtual trigger"));
    QStringList actionTypes;
    for (const QJsonValue& action : gate.value(QLatin1String("actions")).toArray())
        actionTypes.append(action.toObject().value(QLatin1String("type")).toString());
    QCOMPARE(actionTypes, QStringList({"Set DO status", "Send live streaming", "Add bookmark"}));
    QVERIFY(!alarmById(output, QStringLiteral("1012")).value(QLatin1String("enabled")).toBool());
}

void tst_AlarmHost::filterNarrowsTheList_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QStringList>("expectedIds");
    QTest::newRow("name word, any case") << "OPERATOR:" << QStringList({"1057", "1058", "1059", "1060"});
    QTest::newRow("role in a notification target") << "operators" << QStringList({"1002", "1022"});
    QTest::newRow("two words must both match") << "operator lockdown" << QStringList({"1058"});
    QTest::newRow("nothing matches") << "zebra-crossing" << QStringList();
}

void tst_AlarmHost::filterNarrowsTheList()
{
    QFETCH(QString, filter);
    QFETCH(QStringList, expectedIds);

    const QJsonObject output = runHost({"--list", "--filter", filter});

    QStringList listed = ids(output);
    listed.sort();
    QCOMPARE(listed, expectedIds);
    QCOMPARE(output.value(QLatin1String("count")).toInt(), expectedIds.size());
}

void tst_AlarmHost::sortByNameDescending()
{
    const QJsonObject output = runHost({"--list", "--sort", "nameRole:desc"});

    QStringList names;
    for (const QJsonValue& alarm : output.value(QLatin1String("alarms")).toArray())
        names.append(alarm.toObject().value(QLatin1String("name")).toString());
    QStringList expected = names;
    // Case-sensitive, by character code, as the list sorts.
    std::sort(expected.begin(), expected.end(), [](const QString& a, const QString& b) { return a > b; });
    QCOMPARE(names.size(), 64);
    QCOMPARE(names, expected);
}

void tst_AlarmHost::editsAreKeptAcrossRestarts()
{
    // Given the sample site, when a rule is added, then edited
    const QString addition = QStringLiteral(
        R"j({"name":"Loading bay intruder","description":"Bay 4 after hours","schedule":"All day",)j"
        R"j("triggers":[{"kind":"virtual","device":"cam-16","name":"Bay alarm"}],)j"
        R"j("actions":[{"kind":"popup","cameras":["cam-16"]},{"kind":"sound","sound":"siren.mp3"}]})j");
    const QJsonObject added = runHost({"--add-json", addition});
    const QJsonObject addStep = added.value(QLatin1String("steps")).toArray().at(0).toObject();
    QVERIFY2(addStep.value(QLatin1String("success")).toBool(), qPrintable(QJsonDocument(addStep).toJson()));
    const QString newId = addStep.value(QLatin1String("id")).toString();
    QCOMPARE(newId, QStringLiteral("1065"));
    QCOMPARE(summary(alarmById(added, newId)),
             QJsonObject({{"id", newId}, {"name", "Loading bay intruder"}, {"enabled", true}, {"revision", 1},
                          {"description", "Bay 4 after hours"}, {"schedule", "All day"}}));

    const QJsonObject edited = runHost(
        {"--edit-json", QStringLiteral(R"j({"id":"%1","name":"Loading bay intruder (night)","schedule":"Night shift"})j").arg(newId)});
    QVERIFY(edited.value(QLatin1String("steps")).toArray().at(0).toObject().value(QLatin1String("success")).toBool());
    QCOMPARE(summary(alarmById(edited, newId)),
             QJsonObject({{"id", newId}, {"name", "Loading bay intruder (night)"}, {"enabled", true}, {"revision", 2},
                          {"description", "Bay 4 after hours"}, {"schedule", "Night shift"}}));

    // ... one is switched off and another deleted
    const QJsonObject changed = runHost({"--toggle", "1001:off", "--delete", "1002"});
    const QJsonArray steps = changed.value(QLatin1String("steps")).toArray();
    QCOMPARE(steps.size(), 2);
    for (const QJsonValue& step : steps)
        QVERIFY2(step.toObject().value(QLatin1String("success")).toBool(), qPrintable(QJsonDocument(step.toObject()).toJson()));
    QVERIFY(!alarmById(changed, QStringLiteral("1001")).value(QLatin1String("enabled")).toBool());
    QVERIFY(!ids(changed).contains(QStringLiteral("1002")));

    // Then a restarted host lists every change
    const QJsonObject restarted = runHost({"--list"});
    QCOMPARE(restarted.value(QLatin1String("count")).toInt(), 64);
    QCOMPARE(summary(alarmById(restarted, newId)), summary(alarmById(edited, newId)));
    QVERIFY(!alarmById(restarted, QStringLiteral("1001")).value(QLatin1String("enabled")).toBool());
    QVERIFY(!ids(restarted).contains(QStringLiteral("1002")));
}

void tst_AlarmHost::staleEditIsRejected()
{
    // Given another client edited rule 1003 after this one loaded the list
    // When this client saves its own edit of that rule
    const QJsonObject output = runHost(
        {"--concurrent-edit", "1003", "--edit-json", R"j({"id":"1003","name":"Intercom (my edit)"})j"}, 1);

    // Then the server refuses it and the rule keeps the other client's revision
    const QJsonArray steps = output.value(QLatin1String("steps")).toArray();
    QCOMPARE(steps.size(), 2);
    QVERIFY(steps.at(0).toObject().value(QLatin1String("success")).toBool());
    QCOMPARE(steps.at(1).toObject().value(QLatin1String("step")).toString(), QStringLiteral("edit"));
    QVERIFY(!steps.at(1).toObject().value(QLatin1String("success")).toBool());
    const QJsonObject restarted = runHost({"--list"});
    QCOMPARE(summary(alarmById(restarted, QStringLiteral("1003"))),
             QJsonObject({{"id", "1003"}, {"name", "Intercom call at main gate"}, {"enabled", true}, {"revision", 2},
                          {"description", ""}, {"schedule", "All day"}}));
}

void tst_AlarmHost::scheduleTemplateMovesEveryRuleOnIt()
{
    // Given the rules on "Weekday nights" and "Weekend" (one each in the sample)
    const QJsonObject before = runHost({"--list"});
    QStringList onWeekdayNights;
    for (const QJsonValue& alarm : before.value(QLatin1String("alarms")).toArray()) {
        if (alarm.toObject().value(QLatin1String("schedule")).toString() == QLatin1String("Weekday nights"))
            onWeekdayNights.append(alarm.toObject().value(QLatin1String("id")).toString());
    }
    QCOMPARE(onWeekdayNights, QStringList({"1047"}));

    // When that template is replaced by "Weekend"
    const QJsonObject output = runHost({"--update-schedule", "Weekday nights:Weekend"});

    // Then the rule runs on the new template at the next revision, here and after a restart
    QVERIFY(output.value(QLatin1String("steps")).toArray().at(0).toObject().value(QLatin1String("success")).toBool());
    const QJsonObject moved = alarmById(runHost({"--list"}), QStringLiteral("1047"));
    QCOMPARE(QJsonArray({moved.value(QLatin1String("schedule")), moved.value(QLatin1String("revision"))}),
             QJsonArray({"Weekend", 2}));
}

void tst_AlarmHost::soundsAreSynchronisedOnConnect()
{
    // The plug-in fetches the server's sounds it does not have yet into the client's sound folder.
    runHost({"--list"});
    const QDir clientSounds(QDir(m_dataDir->path()).filePath(QStringLiteral("client-sounds")));
    QCOMPARE(clientSounds.entryList(QDir::Files, QDir::Name),
             QStringList({"chime.mp3", "doorbell.mp3", "evacuation.mp3", "klaxon.mp3", "siren.mp3"}));
    QFile copy(clientSounds.filePath(QStringLiteral("siren.mp3")));
    QFile original(QDir(m_dataDir->path()).filePath(QStringLiteral("sounds/siren.mp3")));
    QVERIFY(copy.open(QIODevice::ReadOnly) && original.open(QIODevice::ReadOnly));
    QCOMPARE(copy.readAll(), original.readAll());
}

void tst_AlarmHost::firedTriggerReachesTheUser()
{
    const QJsonObject output = runHost({"--fire", "Open gate"});

    const QJsonObject step = output.value(QLatin1String("steps")).toArray().at(0).toObject();
    QVERIFY2(step.value(QLatin1String("success")).toBool(), qPrintable(QJsonDocument(step).toJson()));
    QJsonArray triggered;
    QJsonArray notifications;
    for (const QJsonValue& signal : step.value(QLatin1String("signals")).toArray()) {
        const QString name = signal.toObject().value(QLatin1String("signal")).toString();
        if (name == QLatin1String("alarmTriggered"))
            triggered.append(signal.toObject().value(QLatin1String("arguments")));
        if (name == QLatin1String("clientNotification"))
            notifications.append(signal.toObject().value(QLatin1String("arguments")));
    }
    QCOMPARE(triggered.size(), 1);
    const QJsonArray alarm = triggered.at(0).toArray();
    // name, type, node, event, value, device, alarm id
    QCOMPARE(QJsonArray({alarm.at(0), alarm.at(1), alarm.at(2), alarm.at(4), alarm.at(6), alarm.at(7), alarm.at(8)}),
             QJsonArray({"Operator: open main gate", "VirtualTrigger", "cam-01", "VirtualTrigger", "Open gate",
                         "Main gate entry", "1057"}));
    QVERIFY(alarm.at(3).toDouble() > 0);
    QCOMPARE(notifications.size(), 1);
    QCOMPARE(notifications.at(0).toArray().at(0).toInt(), 1);
    QCOMPARE(notifications.at(0).toArray().at(1).toArray(), QJsonArray({"cam-01"}));
    QCOMPARE(notifications.at(0).toArray().at(2), alarm.at(9));
}

void tst_AlarmHost::disabledRuleDoesNotFire()
{
    const QJsonObject output = runHost({"--toggle", "1057:off", "--fire", "Open gate"}, 1);

    const QJsonArray steps = output.value(QLatin1String("steps")).toArray();
    QCOMPARE(steps.size(), 2);
    QVERIFY(steps.at(0).toObject().value(QLatin1String("success")).toBool());
    QVERIFY(!steps.at(1).toObject().value(QLatin1String("success")).toBool());
    for (const QJsonValue& signal : steps.at(1).toObject().value(QLatin1String("signals")).toArray())
        QVERIFY(signal.toObject().value(QLatin1String("signal")).toString() != QLatin1String("alarmTriggered"));
}

void tst_AlarmHost::unknownSortRoleIsAnError()
{
    const QJsonObject output = runHost({"--list", "--sort", "colourRole"}, 2);
    QCOMPARE(output, QJsonObject());
}

QTEST_MAIN(tst_AlarmHost)
#include "tst_alarmhost.moc"
