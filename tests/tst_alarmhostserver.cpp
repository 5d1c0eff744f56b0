#include <QDirIterator>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QtTest>

#include "PeerPlugins.h"
#include "SimulatedServer.h"
#include "Site.h"

// The reference host's simulated server and site, below what the end-to-end test reaches: what each request
// answers and announces (optimistic locking, virtual triggers in and out of schedule, refused requests change
// nothing), and what the peer plug-ins and the rule editor's building blocks give.
class tst_AlarmHostServer : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void requestIsAnsweredAndAnnounced_data();
    void requestIsAnsweredAndAnnounced();
    void siteAnswersPeersAndEditor();

private:
    QTemporaryDir m_dataDir;
};

namespace {

const QVariantMap OPEN_GATE{{"name", "Open gate"}, {"id", 1}, {"camera", "cam-01"}, {"cameraName", "Main gate entry"}};

// What arrives, as one line: the return code, the result as JSON, then each event with the rule it names.
QString answered(SimulatedServer& server, const QString& method, const QVariant& argument)
{
    QSignalSpy events(&server, &SimulatedServer::eventPushed);
    QString answer = "no answer";
    server.request(method, argument, [&answer](const QVariant& result, const QString& returnCode) {
        answer = returnCode + ' ' + QJsonDocument::fromVariant(QVariantList{result}).toJson(QJsonDocument::Compact);
    });
    // The plug-in frees a request's context in its answer handler: never answered within request().
    if (answer != "no answer")
        return "answered too early";
    if (!QTest::qWaitFor([&answer] { return answer != "no answer"; }, 5000))
        return answer;
    for (const QList<QVariant>& event : std::as_const(events)) {
        const QVariant payload = event.at(1);
        QString detail = payload.toMap().value("alarmID").toString();
        if (payload.typeId() == QMetaType::QVariantList)
            detail = QString::number(payload.toList().size());
        if (payload.typeId() == QMetaType::QString && !payload.toString().startsWith('<'))
            detail = payload.toString();
        answer += ", " + event.at(0).toString() + ' ' + detail;
    }
    return answer;
}

} // namespace

void tst_AlarmHostServer::init()
{
    // A fresh copy of the sample site, with a broken rule file the server must skip and leave alone.
    const QString sample = ALARM_SAMPLE_SITE_DIR;
    QDirIterator files(sample, QDir::Files, QDirIterator::Subdirectories);
    QDir(m_dataDir.path()).removeRecursively();
    while (files.hasNext()) {
        const QString relative = files.next().mid(sample.size() + 1);
        QVERIFY(QDir(m_dataDir.path()).mkpath(QFileInfo(relative).path()));
        QVERIFY(QFile::copy(files.filePath(), m_dataDir.filePath(relative)));
    }
    QFile broken(m_dataDir.filePath("rules/2000.xml"));
    QVERIFY(broken.open(QIODevice::WriteOnly) && broken.write("<Tmcard><TmcardID>2000</TmcardID><Name>half") > 0);
}

void tst_AlarmHostServer::requestIsAnsweredAndAnnounced_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("method");
    QTest::addColumn<QVariant>("argument");
    QTest::addColumn<QString>("answer");

    const QVariantMap edit{{"alarmID", "1003"}, {"alarmName", "Renamed"}, {"alarmRevision", 2}};
    QVariantMap sameRevision = edit;
    sameRevision.insert("alarmRevision", 1);
    QVariantMap skippedRevision = edit;
    skippedRevision.insert("alarmRevision", 3);
    QVariantMap malformed = edit;
    malformed.insert("triggerList", "<TriggerList><CamEventTrigger>");
    QVariantMap otherCamera = OPEN_GATE;
    otherCamera.insert("camera", "cam-02");
    QVariantMap byIdOnly = OPEN_GATE;
    byIdOnly.remove("name");
    const QVariantMap on1012{{"alarmID", "1012"}, {"toggleEnable", true}};
    const auto row = [](const char* name, const QString& given, const QString& method, const QVariant& argument,
                        const QString& answer) { QTest::newRow(name) << given << method << argument << answer; };
    row("edit at the next revision", "", "UpdateAlarm", edit, R"(0 [{"alarmID":"1003","alarmRevision":2}], updateAlarm 1003)");
    row("edit at the stored revision is stale", "", "UpdateAlarm", sameRevision, R"(4 ["1003"])");
    row("edit skipping a revision is stale", "", "UpdateAlarm", skippedRevision, R"(4 ["1003"])");
    row("edit after another client's is stale", "1003 edited elsewhere", "UpdateAlarm", edit, R"(4 ["1003"])");
    row("edit of an unknown rule", "", "UpdateAlarm", QVariant(), R"(3 [""])");
    row("edit with malformed trigger XML", "", "UpdateAlarm", malformed, R"(2 ["1003"])");
    row("deletion that missed an edit", "", "DeleteAlarm", QVariantMap{{"alarmID", "1002"}, {"alarmRevision", 5}}, R"(4 ["1002"])");
    row("deletion", "", "DeleteAlarm", QVariantMap{{"alarmID", "1002"}, {"alarmRevision", 1}}, R"(0 ["1002"], deleteAlarm 1002)");
    row("toggle list with an unknown id", "", "ToggleAlarm",
        QVariantList{QVariantMap{{"alarmID", "9"}, {"toggleEnable", true}}, on1012},
        R"(3 [[{"alarmID":"1012","toggleEnable":true}]], toggleAlarm 1)");
    row("toggle of a single entry", "", "ToggleAlarm", on1012, R"(0 [[{"alarmID":"1012","toggleEnable":true}]], toggleAlarm 1)");
    row("toggle all off", "", "ToggleAllAlarm", QVariantMap{{"toggleEnable", false}}, "0 [null], toggleAlarm 64");
    row("trigger fires its rule and popup", "", "VirtualTrigger", OPEN_GATE,
        R"(0 [["1057"]], alarmTriggered , clientNotification )");
    row("trigger found by id", "", "VirtualTrigger", byIdOnly, R"(0 [["1057"]], alarmTriggered , clientNotification )");
    row("same trigger name on another camera", "", "VirtualTrigger", otherCamera, "5 [null]");
    row("disabled rule stays quiet", "1057 switched off", "VirtualTrigger", OPEN_GATE, "5 [null]");
    row("night shift rule at noon", "", "VirtualTrigger",
        QVariantMap{{"name", "Floodlights"}, {"id", 4}, {"camera", "cam-05"}}, "5 [null]");
    row("trigger without camera", "", "VirtualTrigger", QVariantMap{{"name", "Open gate"}}, "2 [null]");
    row("sound names leaving the folder", "", "GetAlarmSoundContent", QStringList{"../site.json", "/etc/passwd"}, "0 [[]]");
    row("http beyond loopback", "", "SendHTTP", QVariantMap{{"httpUrl", "http://192.0.2.1/hook"}},
        R"(6 ["only loopback http(s) addresses are allowed"])");
    row("http to a loopback look-alike", "", "SendHTTP", QVariantMap{{"httpUrl", "http://127.0.0.1.example.com/"}},
        R"(6 ["only loopback http(s) addresses are allowed"])");
    row("lower-case method", "", "getallalarm", QVariant(), R"(7 ["unknown method getallalarm"])");
}

void tst_AlarmHostServer::requestIsAnsweredAndAnnounced()
{
    QFETCH(QString, given);
    QFETCH(QString, method);
    QFETCH(QVariant, argument);
    QFETCH(QString, answer);

    // Given the sample site at noon on a Wednesday, after another client's edit or with the gate rule off
    SimulatedServer server(m_dataDir.path());
    QVERIFY(server.load());
    server.setLatency(0);
    server.setClock([] { return QDateTime(QDate(2026, 11, 18), QTime(12, 0)); });
    const QString id = given.section(' ', 0, 0);
    if (given.endsWith("elsewhere"))
        QVERIFY(server.editElsewhere(id));
    if (given.endsWith("off"))
        server.request("ToggleAlarm", QVariantMap{{"alarmID", id}, {"toggleEnable", false}}, {});
    answered(server, "GetAllAlarm", QVariant()); // takes the announcements of the step above
    const QString list = answered(server, "GetAllAlarm", QVariant());

    // When the request is sent, then its answer and announcements are those, and one announcing nothing
    // changed nothing
    QCOMPARE(answered(server, method, argument), answer);
    if (!answer.contains(", "))
        QCOMPARE(answered(server, "GetAllAlarm", QVariant()), list);
    QCOMPARE(server.alarmIds().size(), answer.endsWith("deleteAlarm 1002") ? 63 : 64);
}

void tst_AlarmHostServer::siteAnswersPeersAndEditor()
{
    // Given the sample site
    Site site;
    QVERIFY(site.load(ALARM_SAMPLE_SITE_DIR));
    QVERIFY(!Site().load(m_dataDir.filePath("missing")));

    // When the plug-in asks the peers by name, as it does, and the editor turns picks into the server's XML
    DeviceTreePeer deviceTree(&site);
    UserRolePeer roles(&site);
    LicencePeer licence(&site);
    SoundPathPeer sounds("/tmp/sounds");
    QVariantList answers;
    for (const char* question : {"cam-01 nameRole", "io-02 diNameListRole", "cam-01 doNameListRole",
                                    "cam-99 nameRole", "cam-01 colourRole"}) {
        QVariant value;
        QMetaObject::invokeMethod(&deviceTree, "getValueFromModel", Q_RETURN_ARG(QVariant, value), Q_ARG(int, 0),
                                  Q_ARG(QString, QString(question).section(' ', 0, 0)), Q_ARG(QString, QString(question).section(' ', 1)));
        answers << value;
    }
    for (int roleId : {3, 42}) {
        QString name;
        QMetaObject::invokeMethod(&roles, "getRoleName", Q_RETURN_ARG(QString, name), Q_ARG(int, roleId));
        answers << name;
    }
    QVariantMap features;
    QString soundPath;
    QMetaObject::invokeMethod(&licence, "getEditionFeature", Q_RETURN_ARG(QVariantMap, features));
    QMetaObject::invokeMethod(&sounds, "getSoundPath", Q_RETURN_ARG(QString, soundPath));
    const QString typed = "Dock <4> & \"yard\"";
    const QString editorXml =
        site.triggerListXml({QVariantMap{{"kind", "motion"}, {"device", "cam-05"}, {"index", 2}},
                             QVariantMap{{"kind", "teleport"}}, QVariantMap{{"kind", "virtual"}, {"device", "cam-01"}, {"name", typed}}})
        + site.actionListXml({QVariantMap{{"kind", "sound"}, {"sound", "siren.mp3"}},
                              QVariantMap{{"kind", "mail"}, {"to", typed}, {"subject", "Gate"}}});

    // Then they answer from the site, and typed texts arrive escaped and intact
    QCOMPARE(QJsonDocument::fromVariant(answers << features << soundPath).toJson(QJsonDocument::Compact),
             R"(["Main gate entry",["Barrier fault","Vehicle detector"],["Gate lock","Gate beacon"],null,null,)"
             R"("Facility managers","",{"supportGuardian":true},"/tmp/sounds"])");
    QCOMPARE(editorXml,
             "<TriggerList><CamEventTrigger><CamName>cam-05</CamName><EventType>Motion</EventType><Rule><Latency>0"
             "</Latency></Rule><Motion><Index>2</Index></Motion></CamEventTrigger><ExtDeviceEventTrigger><EventType>"
             "VirtualTrigger</EventType><VirtualTrigger><Id>6</Id><Name>Dock &lt;4&gt; &amp; &quot;yard&quot;</Name>"
             "<Camera>cam-01</Camera><IconType>1</IconType><Rule><Latency>0</Latency></Rule></VirtualTrigger>"
             "</ExtDeviceEventTrigger></TriggerList><ActionList><Action><ClientNotification><Type>SoundTheAlarm</Type>"
             "<SoundTheAlarm><Sound>siren.mp3</Sound></SoundTheAlarm></ClientNotification></Action><Action><SendMail>"
             "<SenderName>Site alarms</SenderName><From>alarms@site.example</From><To>Dock &lt;4&gt; &amp; "
             "&quot;yard&quot;</To><Cc></Cc><Subject>Gate</Subject><MailContent></MailContent></SendMail></Action>"
             "</ActionList>");
}

QTEST_MAIN(tst_AlarmHostServer)
#include "tst_alarmhostserver.moc"
