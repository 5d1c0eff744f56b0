#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#ifndef ALARM_HOST_EXECUTABLE
#define ALARM_HOST_EXECUTABLE ""
#endif

// The whole road through the reference host in its headless mode (--json): the plug-in loaded by alarm-host,
// the simulated server behind it, the sample site; scripted edits, a fired trigger, filter and sort, the sound
// sync, and everything still there after a restart.
class tst_AlarmHost : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void editsFireAndRestart();
    void unknownSortRoleIsAnError();

private:
    QJsonObject runHost(const QStringList& arguments, int expectedExitCode = 0);

    QTemporaryDir m_dataDir;
};

namespace {

// One alarm as one line: id | name | enabled | revision | schedule | trigger type | triggers | type: targets, ...
QString rendered(const QJsonObject& alarm)
{
    QStringList triggers;
    QStringList actions;
    for (const QJsonValue& trigger : alarm["triggers"].toArray())
        triggers << trigger.toString();
    for (const QJsonValue& action : alarm["actions"].toArray()) {
        QStringList targets;
        for (const QJsonValue& target : action["targets"].toArray())
            targets << target.toString();
        actions << action["type"].toString() + ": " + targets.join("; ");
    }
    return QStringList{alarm["id"].toString(), alarm["name"].toString(), alarm["enabled"].toBool() ? "on" : "off",
                       QString::number(alarm["revision"].toInt()), alarm["schedule"].toString(),
                       alarm["triggerType"].toString(), triggers.join(", "), actions.join(", ")}
        .join(" | ");
}

QStringList renderedSteps(const QJsonObject& output)
{
    QStringList steps;
    for (const QJsonValue& step : output["steps"].toArray())
        steps << QStringList{step["step"].toString(), step["subject"].toString(), step["id"].toString(),
                             step["success"].toBool() ? "ok" : "failed"}
                     .join(' ');
    return steps;
}

QStringList renderedAlarms(const QJsonObject& output)
{
    QStringList alarms;
    for (const QJsonValue& alarm : output["alarms"].toArray())
        alarms << rendered(alarm.toObject());
    return alarms;
}

} // namespace

void tst_AlarmHost::initTestCase()
{
    if (QString(ALARM_HOST_EXECUTABLE).isEmpty())
        QSKIP("this build has no alarm-host");
    QVERIFY(m_dataDir.isValid());
}

QJsonObject tst_AlarmHost::runHost(const QStringList& arguments, int expectedExitCode)
{
    QProcess host;
    host.start(ALARM_HOST_EXECUTABLE,
               QStringList{"--data", m_dataDir.path(), "--json", "--latency", "5", "--timeout", "20000"} + arguments);
    if (!host.waitForFinished(120000))
        host.kill();
    if (host.exitCode() != expectedExitCode)
        return {{"exitCode", host.exitCode()}, {"errors", QString(host.readAllStandardError())}};
    return QJsonDocument::fromJson(host.readAllStandardOutput()).object();
}

void tst_AlarmHost::editsFireAndRestart()
{
    // Given the sample site, copied by the host on its first run
    // When a rule is added and deleted again, another edited, one switched off, one deleted, a schedule template
    // replaced, a virtual trigger fired and the list filtered
    const QString bayRule = R"({"name":"%1","schedule":"All day","triggers":[{"kind":"virtual","device":"cam-16",)"
                            R"("name":"Bay alarm"}],"actions":[{"kind":"sound","sound":"siren.mp3"}]})";
    const QJsonObject first = runHost(
        {"--add-json", bayRule.arg("Bay"), "--edit-json", R"({"id":"1005","name":"Edited","schedule":"Night shift"})",
         "--toggle", "1001:off", "--delete", "1065", "--delete", "1002", "--update-schedule", "Weekday nights:Weekend",
         "--fire", "Open gate", "--filter", "OPERATOR:"});

    QVERIFY2(!first.contains("errors"), qPrintable(first["errors"].toString()));
    // Then every step succeeds, the fired alarm and its popup reach the user, and the list shows the matches
    QCOMPARE(renderedSteps(first), QStringList({"add Bay 1065 ok", "edit 1005  ok", "toggle 1001:off  ok",
                                                "delete 1065  ok", "delete 1002  ok",
                                                "schedule Weekday nights:Weekend  ok", "fire Open gate  ok"}));
    QStringList heard;
    for (const QJsonValue& signal : first["steps"].toArray().last()["signals"].toArray()) {
        QJsonArray arguments = signal["arguments"].toArray();
        if (signal["signal"] == "alarmTriggered")
            arguments.removeAt(3); // the time of the alarm
        if (signal["signal"] == "alarmNotify")
            arguments = {}; // the server's document, pinned where the plug-in parses it
        heard << signal["signal"].toString() + QJsonDocument(arguments).toJson(QJsonDocument::Compact);
    }
    const QString occurrence = heard.value(2).section(',', -1).chopped(1);
    QCOMPARE(heard, QStringList({R"(sendVirtualTriggerAlarmResp[true,1])", "alarmNotify[]",
                                 R"(alarmTriggered["Operator: open main gate","VirtualTrigger","cam-01","VirtualTrigger",)"
                                 R"("","Open gate","Main gate entry","1057",)" + occurrence + "]",
                                 R"(clientNotification[1,["cam-01"],)" + occurrence + "]"}));
    QStringList filtered = renderedAlarms(first);
    QCOMPARE(filtered.size(), 4);
    QCOMPARE(filtered.first(), "1057 | Operator: open main gate | on | 1 | All day | Virtual trigger | Open gate | Set DO "
                               "status: Main gate entry Set Gate lock to Trigger, Send live streaming: Main gate entry, "
                               "Add bookmark: Main gate entry");

    // When the host starts again, adds a rule and sorts by name, descending
    const QJsonObject restarted = runHost({"--add-json", bayRule.arg("Dock"), "--sort", "nameRole:desc"});

    // Then the changes were kept, a deleted id is not given again, and the server's sounds were fetched
    QCOMPARE(renderedSteps(restarted), QStringList({"add Dock 1066 ok"}));
    QStringList changed; // without their actions, which stayed as they were
    for (const QString& alarm : renderedAlarms(restarted)) {
        if (QStringList({"1001", "1002", "1005", "1047", "1066"}).contains(alarm.section(' ', 0, 0)))
            changed << alarm.section(" | ", 0, 6);
    }
    QCOMPARE(changed, QStringList({"1001 | Gate forced open | off | 1 | Night shift | Camera DI | Main gate entry DI-1",
                                   "1005 | Edited | on | 2 | Night shift | Motion detection | Yard north Window 1",
                                   "1066 | Dock | on | 1 | All day | Virtual trigger | Bay alarm",
                                   "1047 | Canteen occupancy back to zero | off | 2 | Weekend | Number of remaining "
                                   "people | Recorder C (Offices) 2"}));
    QStringList names;
    for (const QJsonValue& alarm : restarted["alarms"].toArray())
        names << alarm["name"].toString();
    QStringList byCharacterCode = names;
    std::sort(byCharacterCode.begin(), byCharacterCode.end(), std::greater<QString>());
    QCOMPARE(QVariantList({restarted["count"].toInt(), names}), QVariantList({64, byCharacterCode}));
    const QDir data(m_dataDir.path());
    QCOMPARE(QDir(data.filePath("client-sounds")).entryList(QDir::Files),
             QStringList({"chime.mp3", "doorbell.mp3", "evacuation.mp3", "klaxon.mp3", "siren.mp3"}));
    QFile copy(data.filePath("client-sounds/siren.mp3"));
    QFile original(data.filePath("sounds/siren.mp3"));
    QVERIFY(copy.open(QIODevice::ReadOnly) && original.open(QIODevice::ReadOnly));
    QCOMPARE(copy.readAll(), original.readAll());
}

void tst_AlarmHost::unknownSortRoleIsAnError()
{
    QCOMPARE(runHost({"--list", "--sort", "colourRole"}, 2), QJsonObject());
}

QTEST_MAIN(tst_AlarmHost)
#include "tst_alarmhost.moc"
