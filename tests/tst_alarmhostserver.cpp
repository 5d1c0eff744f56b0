#include <QDirIterator>
#include <QDomDocument>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QtTest>

#include "SimulatedServer.h"
#include "stdafx.h"

using namespace PluginAlarmManagerCommon;

// The reference host's simulated server: the answers and events the plug-in reads, optimistic locking
// of edits, virtual triggers, and rules that survive a restart.
class tst_AlarmHostServer : public QObject
{
    Q_OBJECT
private slots:
    void init();

    void listHoldsEveryRuleInIdOrder();
    void answersOnlyFromTheEventLoop();
    void addGivesNextIdAtRevisionOneEnabled();
    void updateAcceptsOnlyTheNextRevision_data();
    void updateAcceptsOnlyTheNextRevision();
    void updateTurnsScheduleRectanglesIntoMapping();
    void deleteRemovesTheRuleAndAnnouncesIt();
    void toggleTakesListOrSingleEntry_data();
    void toggleTakesListOrSingleEntry();
    void toggleAllSwitchesEveryRule();
    void everyChangeSurvivesARestart();
    void brokenRuleFileIsSkipped();
    void virtualTriggerFiresHoldingRulesInSchedule_data();
    void virtualTriggerFiresHoldingRulesInSchedule();
    void firedAlarmReadsAsTheEventParserExpects();
    void soundsSyncByNameAndContent();
    void reserveTimeIsKept();
    void sendHttpReachesOnlyLoopback_data();
    void sendHttpReachesOnlyLoopback();
    void sendHttpToLoopbackAnswersTheStatus();
    void hostileArgumentsAreRefusedWithoutChange_data();
    void hostileArgumentsAreRefusedWithoutChange();

private:
    struct Reply
    {
        QVariant result;
        QString returnCode;
        bool isAnswered = false;
    };
    Reply call(SimulatedServer& server, const QString& method, const QVariant& argument);
    QVariantMap addArgument(const QString& name) const;

    QScopedPointer<QTemporaryDir> m_dataDir;
};

namespace {

// A fixed Wednesday noon: day shifts run, night shifts do not.
const QDateTime NOON = QDateTime(QDate(2026, 11, 18), QTime(12, 0));
const QString TRIGGER_XML = QStringLiteral(
    "<TriggerList><ExtDeviceEventTrigger><EventType>VirtualTrigger</EventType><VirtualTrigger><Id>77</Id>"
    "<Name>Test button</Name><Camera>cam-09</Camera><IconType>1</IconType></VirtualTrigger></ExtDeviceEventTrigger>"
    "</TriggerList>");
const QString ACTION_XML = QStringLiteral(
    "<ActionList><Action><ClientNotification><Type>SoundTheAlarm</Type><SoundTheAlarm><Sound>chime.mp3</Sound>"
    "</SoundTheAlarm></ClientNotification></Action></ActionList>");

QDomElement rootOf(const QString& xml)
{
    QDomDocument document;
    document.setContent(xml);
    return document.documentElement();
}

QString childText(const QString& xml, const QString& tag)
{
    return rootOf(xml).firstChildElement(tag).text();
}

QStringList eventNames(const QSignalSpy& spy)
{
    QStringList names;
    for (const QList<QVariant>& event : spy)
        names.append(event.at(0).toString());
    return names;
}

} // namespace

void tst_AlarmHostServer::init()
{
    m_dataDir.reset(new QTemporaryDir);
    QVERIFY(m_dataDir->isValid());
    const QString sample = QStringLiteral(ALARM_SAMPLE_SITE_DIR);
    QDirIterator files(sample, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString source = files.next();
        const QString relative = source.mid(sample.size() + 1);
        QVERIFY(QDir(m_dataDir->path()).mkpath(QFileInfo(relative).path()));
        QVERIFY(QFile::copy(source, m_dataDir->filePath(relative)));
    }
}

tst_AlarmHostServer::Reply tst_AlarmHostServer::call(SimulatedServer& server, const QString& method,
                                                      const QVariant& argument)
{
    auto reply = std::make_shared<Reply>();
    server.request(method, argument, [reply](const QVariant& result, const QString& returnCode) {
        *reply = {result, returnCode, true};
    });
    if (!QTest::qWaitFor([reply] { return reply->isAnswered; }, 5000))
        reply->returnCode = QStringLiteral("no answer");
    return *reply;
}

QVariantMap tst_AlarmHostServer::addArgument(const QString& name) const
{
    return {{ARG_ALARM_NAME, QString::fromLatin1(QUrl::toPercentEncoding(name))},
            {ARG_ALARM_DESC, QStringLiteral("added%20by%20test")},
            {ARG_ALARM_TRG_LIST, TRIGGER_XML},
            {ARG_ALARM_ACT_LIST, ACTION_XML},
            {ARG_ALARM_RELATED_DEV, QString()},
            {ARG_ALARM_TEMP_NAME, QStringLiteral("Office hours")},
            {ARG_ALARM_TEMP_CONTENT,
             QStringLiteral("{\"Rectangles\":[{\"Bottom\":18,\"Left\":0,\"RecordingMode\":\"Continuous\",\"Right\":5,\"Top\":8}]}")},
            {ARG_ALARM_ENABLED, false}};
}

void tst_AlarmHostServer::listHoldsEveryRuleInIdOrder()
{
    SimulatedServer server(m_dataDir->path());
    QVERIFY(server.load());

    const Reply reply = call(server, METHOD_GET_ALL_ALARM, QVariant());

    QCOMPARE(reply.returnCode, QStringLiteral("0"));
    const QDomElement root = rootOf(reply.result.toString());
    QCOMPARE(root.tagName(), QStringLiteral("GetEvtTmcardRes"));
    QStringList ids;
    for (QDomElement rule = root.firstChildElement(QStringLiteral("Tmcard")); !rule.isNull();
         rule = rule.nextSiblingElement(QStringLiteral("Tmcard")))
        ids.append(rule.firstChildElement(QStringLiteral("TmcardID")).text());
    QCOMPARE(ids, server.alarmIds());
    QCOMPARE(ids.size(), 64);
    QCOMPARE(ids.first(), QStringLiteral("1001"));
    const QDomElement first = root.firstChildElement(QStringLiteral("Tmcard"));
    QStringList children;
    for (QDomElement child = first.firstChildElement(); !child.isNull(); child = child.nextSiblingElement())
        children.append(child.tagName());
    QCOMPARE(children, QStringList({"TmcardID", "Revision", "Name", "Enabled", "Description", "Mapping",
                                    "TriggerList", "ActionList"}));
    QCOMPARE(first.firstChildElement(QStringLiteral("Name")).text(), QStringLiteral("Gate%20forced%20open"));
}

void tst_AlarmHostServer::answersOnlyFromTheEventLoop()
{
    // The plug-in frees a request's context in the answer handler, so the answer must not come while the
    // send call is still running.
    SimulatedServer server(m_dataDir->path());
    QVERIFY(server.load());
    server.setLatency(0);
    bool isAnswered = false;
    server.request(METHOD_GET_RESERVE_TIME, QVariant(), [&isAnswered](const QVariant&, const QString&) {
        isAnswered = true;
    });
    QVERIFY(!isAnswered);
    QTRY_VERIFY(isAnswered);
}

void tst_AlarmHostServer::addGivesNextIdAtRevisionOneEnabled()
{
    // Given the sample site
    SimulatedServer server(m_dataDir->path());
    QVERIFY(server.load());
    QSignalSpy events(&server, &SimulatedServer::eventPushed);

    // When a client adds a rule that asks to be disabled
    const Reply reply = call(server, METHOD_ADD_ALARM, addArgument(QStringLiteral("Fuel pump & tank")));

    // Then the rule gets the next id, revision 1 and is enabled, and every client hears of it
    QCOMPARE(reply.returnCode, QStringLiteral("0"));
    const QVariantMap result = reply.result.toMap();
    QCOMPARE(result.keys(), QStringList({"actionList", "alarmID", "triggerList"}));
    QCOMPARE(result.value(ARG_ALARM_ID).toString(), QStringLiteral("1065"));
    QCOMPARE(rootOf(result.value(ARG_ALARM_TRG_LIST).toString()).tagName(), QStringLiteral("TriggerList"));
    QCOMPARE(rootOf(result.value(ARG_ALARM_ACT_LIST).toString()).tagName(), QStringLiteral("ActionList"));
    const QString document = server.alarmDocument(QStringLiteral("1065"));
    QCOMPARE(childText(document, QStringLiteral("Revision")), QStringLiteral("1"));
    QCOMPARE(childText(document, QStringLiteral("Enabled")), QStringLiteral("true"));
    QCOMPARE(childText(document, QStringLiteral("Name")), QStringLiteral("Fuel%20pump%20%26%20tank"));
    QTRY_COMPARE(events.size(), 1);
    QCOMPARE(events.at(0).at(0).toString(), EVENT_TYPE_ADD_ALARM);
    QCOMPARE(events.at(0).at(1).toMap(),
             QVariantMap({{ARG_ALARM_ID, QStringLiteral("1065")}, {ARG_ALARM_TRG_LIST, result.value(ARG_ALARM_TRG_LIST)}}));
}

void tst_AlarmHostServer::updateAcceptsOnlyTheNextRevision_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QVariant>("revision");
    QTest::addColumn<QString>("returnCode");
    QTest::addColumn<qint64>("storedRevision");
    QTest::newRow("next revision is accepted") << "1003" << QVariant(2) << "0" << qint64(2);
    QTest::newRow("same revision is stale") << "1003" << QVariant(1) << "4" << qint64(1);
    QTest::newRow("skipped revision is stale") << "1003" << QVariant(3) << "4" << qint64(1);
    QTest::newRow("missing revision is stale") << "1003" << QVariant() << "4" << qint64(1);
    QTest::newRow("text revision is stale") << "1003" << QVariant(QStringLiteral("two")) << "4" << qint64(1);
    QTest::newRow("unknown rule") << "999" << QVariant(2) << "3" << qint64(0);
}

void tst_AlarmHostServer::updateAcceptsOnlyTheNextRevision()
{
    QFETCH(QString, id);
    QFETCH(QVariant, revision);
    QFETCH(QString, returnCode);
    QFETCH(qint64, storedRevision);
    SimulatedServer server(m_dataDir->path());
    QVERIFY(server.load());
    QSignalSpy events(&server, &SimulatedServer::eventPushed);
    const QString before = server.alarmDocument(id);

    QVariantMap argument = addArgument(QStringLiteral("Renamed"));
    argument.insert(ARG_ALARM_ID, id);
    if (revision.isValid())
        argument.insert(ARG_ALARM_REV, revision);
    const Reply reply = call(server, METHOD_UPD_ALARM, argument);

    QCOMPARE(reply.returnCode, returnCode);
    QCOMPARE(server.alarmRevision(id), storedRevision);
    if (returnCode == QLatin1String("0")) {
        QCOMPARE(childText(server.alarmDocument(id), QStringLiteral("Name")), QStringLiteral("Renamed"));
        QCOMPARE(childText(server.alarmDocument(id), QStringLiteral("Enabled")), QStringLiteral("false"));
        QTRY_COMPARE(eventNames(events), QStringList({EVENT_TYPE_UPDATE_ALARM}));
    } else {
        QCOMPARE(server.alarmDocument(id), before);
        QTest::qWait(20);
        QCOMPARE(events.size(), 0);
    }
}

void tst_AlarmHostServer::updateTurnsScheduleRectanglesIntoMapping()
{
    SimulatedServer server(m_dataDir->path());
    QVERIFY(server.load());
    QVariantMap argument = addArgument(QStringLiteral("Weekend watch"));
    argument.insert(ARG_ALARM_ID, QStringLiteral("1001"));
    argument.insert(ARG_ALARM_REV, 2);
    argument.insert(ARG_ALARM_TEMP_NAME, QStringLiteral("Weekend"));
    argument.insert(ARG_ALARM_TEMP_CONTENT, QStringLiteral("{\"Rectangles\":[{\"Bottom\":24,\"Left\":5,\"Right\":7,\"Top\":0}]}"));

    QCOMPARE(call(server, METHOD_UPD_ALARM, argument).returnCode, QStringLiteral("0"));

    // Attribute order is not part of XML; compare what the schedule says.
    QDomDocument document;
    QVERIFY(document.setContent(server.alarmDocument(QStringLiteral("1001"))));
    QStringList frames;
    const QDomNodeList frameNodes = document.elementsByTagName(QStringLiteral("Frame"));
    for (int i = 0; i < frameNodes.size(); ++i) {
        const QDomElement frame = frameNodes.at(i).toElement();
        QStringList days;
        for (QDomElement day = frame.firstChildElement(QStringLiteral("DayList")).firstChildElement(); !day.isNull();
             day = day.nextSiblingElement())
            days.append(day.attribute(QStringLiteral("B")));
        const QDomElement interval = frame.firstChildElement(QStringLiteral("Intervals")).firstChildElement();
        frames.append(QStringLiteral("%1 days %2 from %3 to %4")
                          .arg(frame.firstChildElement(QStringLiteral("Name")).text(), days.join(QLatin1Char(',')),
                               interval.attribute(QStringLiteral("B")), interval.attribute(QStringLiteral("E"))));
    }
    QCOMPARE(frames, QStringList({"Weekend days 6,7 from 0 to 86400"}));
}

void tst_AlarmHostServer::deleteRemovesTheRuleAndAnnouncesIt()
{
    SimulatedServer server(m_dataDir->path());
    QVERIFY(server.load());
    QSignalSpy events(&server, &SimulatedServer::eventPushed);

    const Reply stale = call(server, METHOD_DEL_ALARM, QVariantMap{{ARG_ALARM_ID, "1002"}, {ARG_ALARM_REV, 5}});
    const Reply reply = call(server, METHOD_DEL_ALARM, QVariantMap{{ARG_ALARM_ID, "1002"}, {ARG_ALARM_REV, 1}});
    const Reply again = call(server, METHOD_DEL_ALARM, QVariantMap{{ARG_ALARM_ID, "1002"}, {ARG_ALARM_REV, 1}});

    QCOMPARE(QStringList({stale.returnCode, reply.returnCode, again.returnCode}), QStringList({"4", "0", "3"}));
    QCOMPARE(reply.result.toString(), QStringLiteral("1002"));
    QVERIFY(!server.alarmIds().contains(QStringLiteral("1002")));
    QVERIFY(!QFile::exists(m_dataDir->filePath(QStringLiteral("rules/1002.xml"))));
    QTRY_COMPARE(events.size(), 1);
    QCOMPARE(events.at(0), QList<QVariant>({EVENT_TYPE_DELETE_ALARM, QStringLiteral("1002")}));
}

void tst_AlarmHostServer::toggleTakesListOrSingleEntry_data()
{
    QTest::addColumn<QVariant>("argument");
    QTest::addColumn<QString>("returnCode");
    QTest::addColumn<QVariantList>("event");
    const QVariantMap off1001{{ARG_ALARM_ID, "1001"}, {ARG_TOGGLE_ENABLE, false}};
    const QVariantMap on1012{{ARG_ALARM_ID, "1012"}, {ARG_TOGGLE_ENABLE, true}};
    QTest::newRow("list of entries") << QVariant(QVariantList{off1001, on1012}) << "0" << QVariantList{off1001, on1012};
    QTest::newRow("one entry") << QVariant(off1001) << "0" << QVariantList{off1001};
    QTest::newRow("map holding a list") << QVariant(QVariantMap{{"list", QVariantList{on1012}}}) << "0"
                                        << QVariantList{on1012};
    QTest::newRow("unknown id among known") << QVariant(QVariantList{QVariantMap{{ARG_ALARM_ID, "9"}, {ARG_TOGGLE_ENABLE, true}}, off1001})
                                            << "3" << QVariantList{off1001};
}

void tst_AlarmHostServer::toggleTakesListOrSingleEntry()
{
    QFETCH(QVariant, argument);
    QFETCH(QString, returnCode);
    QFETCH(QVariantList, event);
    SimulatedServer server(m_dataDir->path());
    QVERIFY(server.load());
    QSignalSpy events(&server, &SimulatedServer::eventPushed);

    const Reply reply = call(server, METHOD_TOGGLE_ALARM, argument);

    QCOMPARE(reply.returnCode, returnCode);
    QTRY_COMPARE(events.size(), 1);
    QCOMPARE(events.at(0), QList<QVariant>({EVENT_TYPE_TOGGLE_ALARM, event}));
    for (const QVariant& entry : event) {
        const QVariantMap map = entry.toMap();
        QCOMPARE(server.isAlarmEnabled(map.value(ARG_ALARM_ID).toString()), map.value(ARG_TOGGLE_ENABLE).toBool());
    }
}

void tst_AlarmHostServer::toggleAllSwitchesEveryRule()
{
    SimulatedServer server(m_dataDir->path());
    QVERIFY(server.load());
    QSignalSpy events(&server, &SimulatedServer::eventPushed);

    const Reply reply = call(server, METHOD_TOGGLE_ALL_ALARM, QVariantMap{{ARG_TOGGLE_ENABLE, false}, {ARG_TOGGLE_INTERVAL, 0}});

    QCOMPARE(reply.returnCode, QStringLiteral("0"));
    QStringList enabled;
    for (const QString& id : server.alarmIds()) {
        if (server.isAlarmEnabled(id))
            enabled.append(id);
    }
    QCOMPARE(enabled, QStringList());
    QTRY_COMPARE(events.size(), 1);
    QCOMPARE(events.at(0).at(1).toList().size(), 64);
}

void tst_AlarmHostServer::everyChangeSurvivesARestart()
{
    // Given a server that took an addition, an edit, a toggle and a deletion
    QStringList documents;
    QString addedId;
    {
        SimulatedServer server(m_dataDir->path());
        QVERIFY(server.load());
        addedId = call(server, METHOD_ADD_ALARM, addArgument(QStringLiteral("Kept"))).result.toMap().value(ARG_ALARM_ID).toString();
        QVariantMap edit = addArgument(QStringLiteral("Edited"));
        edit.insert(ARG_ALARM_ID, QStringLiteral("1005"));
        edit.insert(ARG_ALARM_REV, 2);
        QCOMPARE(call(server, METHOD_UPD_ALARM, edit).returnCode, QStringLiteral("0"));
        QCOMPARE(call(server, METHOD_TOGGLE_ALARM, QVariantMap{{ARG_ALARM_ID, "1006"}, {ARG_TOGGLE_ENABLE, false}}).returnCode,
                 QStringLiteral("0"));
        QCOMPARE(call(server, METHOD_DEL_ALARM, QVariantMap{{ARG_ALARM_ID, "1007"}, {ARG_ALARM_REV, 1}}).returnCode,
                 QStringLiteral("0"));
        QCOMPARE(call(server, METHOD_DEL_ALARM, QVariantMap{{ARG_ALARM_ID, addedId}, {ARG_ALARM_REV, 1}}).returnCode,
                 QStringLiteral("0"));
        for (const QString& id : server.alarmIds())
            documents.append(server.alarmDocument(id));
    }

    // When the server starts again on the same folder
    SimulatedServer restarted(m_dataDir->path());
    QVERIFY(restarted.load());

    // Then it holds the same rules, and a deleted id is never given again
    QStringList reloaded;
    for (const QString& id : restarted.alarmIds())
        reloaded.append(restarted.alarmDocument(id));
    QCOMPARE(reloaded, documents);
    QCOMPARE(restarted.alarmRevision(QStringLiteral("1005")), qint64(2));
    QVERIFY(!restarted.isAlarmEnabled(QStringLiteral("1006")));
    const QString nextId =
        call(restarted, METHOD_ADD_ALARM, addArgument(QStringLiteral("Next"))).result.toMap().value(ARG_ALARM_ID).toString();
    QCOMPARE(nextId.toLongLong(), addedId.toLongLong() + 1);
}

void tst_AlarmHostServer::brokenRuleFileIsSkipped()
{
    QFile broken(m_dataDir->filePath(QStringLiteral("rules/2000.xml")));
    QVERIFY(broken.open(QIODevice::WriteOnly));
    broken.write("<Tmcard><TmcardID>2000</TmcardID><Name>half");
    broken.close();
    QFile misnamed(m_dataDir->filePath(QStringLiteral("rules/2001.xml")));
    QVERIFY(misnamed.open(QIODevice::WriteOnly));
    misnamed.write("<Tmcard><TmcardID>1001</TmcardID></Tmcard>");
    misnamed.close();

    SimulatedServer server(m_dataDir->path());
    QVERIFY(server.load());

    QCOMPARE(server.alarmIds().size(), 64);
    QVERIFY(QFile::exists(broken.fileName()));
    QCOMPARE(childText(server.alarmDocument(QStringLiteral("1001")), QStringLiteral("Name")),
             QStringLiteral("Gate%20forced%20open"));
}

void tst_AlarmHostServer::virtualTriggerFiresHoldingRulesInSchedule_data()
{
    QTest::addColumn<QVariantMap>("argument");
    QTest::addColumn<QStringList>("disabled");
    QTest::addColumn<QString>("returnCode");
    QTest::addColumn<QStringList>("firedRules");
    QTest::addColumn<QStringList>("events");
    const QVariantMap openGate{{"name", "Open gate"}, {"id", 1}, {"iconType", 1}, {"camera", "cam-01"},
                               {"cameraName", "Main gate entry"}};
    QVariantMap byIdOnly = openGate;
    byIdOnly.insert("name", QString());
    QVariantMap otherCamera = openGate;
    otherCamera.insert("camera", "cam-02");
    const QVariantMap floodlights{{"name", "Floodlights"}, {"id", 4}, {"iconType", 3}, {"camera", "cam-05"},
                                  {"cameraName", "Yard north"}};
    QTest::newRow("rule fires with its popup") << openGate << QStringList() << "0" << QStringList({"1057"})
                                               << QStringList({"alarmTriggered", "clientNotification"});
    QTest::newRow("trigger found by id") << byIdOnly << QStringList() << "0" << QStringList({"1057"})
                                         << QStringList({"alarmTriggered", "clientNotification"});
    QTest::newRow("same name on another camera") << otherCamera << QStringList() << "5" << QStringList() << QStringList();
    QTest::newRow("disabled rule stays quiet") << openGate << QStringList({"1057"}) << "5" << QStringList() << QStringList();
    QTest::newRow("night shift rule at noon") << floodlights << QStringList() << "5" << QStringList() << QStringList();
    QTest::newRow("no camera") << QVariantMap{{"name", "Open gate"}} << QStringList() << "2" << QStringList() << QStringList();
}

void tst_AlarmHostServer::virtualTriggerFiresHoldingRulesInSchedule()
{
    QFETCH(QVariantMap, argument);
    QFETCH(QStringList, disabled);
    QFETCH(QString, returnCode);
    QFETCH(QStringList, firedRules);
    QFETCH(QStringList, events);
    SimulatedServer server(m_dataDir->path());
    QVERIFY(server.load());
    server.setClock([] { return NOON; });
    for (const QString& id : disabled)
        QCOMPARE(call(server, METHOD_TOGGLE_ALARM, QVariantMap{{ARG_ALARM_ID, id}, {ARG_TOGGLE_ENABLE, false}}).returnCode,
                 QStringLiteral("0"));
    QTest::qWait(10);
    QSignalSpy spy(&server, &SimulatedServer::eventPushed);

    const Reply reply = call(server, METHOD_VIRTUAL_TRIGGER, argument);

    QCOMPARE(reply.returnCode, returnCode);
    QCOMPARE(reply.result.toStringList(), firedRules);
    QTest::qWait(10);
    QCOMPARE(eventNames(spy), events);
}

void tst_AlarmHostServer::firedAlarmReadsAsTheEventParserExpects()
{
    SimulatedServer server(m_dataDir->path());
    QVERIFY(server.load());
    server.setClock([] { return NOON; });
    QSignalSpy spy(&server, &SimulatedServer::eventPushed);

    call(server, METHOD_VIRTUAL_TRIGGER,
         QVariantMap{{"name", "Open gate"}, {"id", 1}, {"iconType", 1}, {"camera", "cam-01"}, {"cameraName", "Main gate entry"}});

    QTRY_COMPARE(spy.size(), 2);
    const QVariantMap payload = spy.at(0).at(1).toMap();
    QCOMPARE(payload.keys(), QStringList({"xml"}));
    const QDomElement alarm = rootOf(payload.value("xml").toString()).firstChildElement(QStringLiteral("Alarm"));
    const QString timecard = alarm.firstChildElement(QStringLiteral("TmcardID")).text();
    const QDomElement body = alarm.firstChildElement(QStringLiteral("QuessaEvent")).firstChildElement(QStringLiteral("VirtualTrigger"));
    const QStringList fields{alarm.firstChildElement(QStringLiteral("Name")).text(),
                             alarm.firstChildElement(QStringLiteral("AlarmID")).text(),
                             alarm.firstChildElement(QStringLiteral("QuessaEvent")).firstChildElement(QStringLiteral("Type")).text(),
                             body.firstChildElement(QStringLiteral("Camera")).text(),
                             body.firstChildElement(QStringLiteral("Name")).text(),
                             body.firstChildElement(QStringLiteral("RefName")).text(),
                             body.firstChildElement(QStringLiteral("ServerTime")).text()};
    QCOMPARE(fields, QStringList({"Operator%3A%20open%20main%20gate", "1057", "VirtualTrigger", "cam-01", "Open%20gate",
                                  "c_Main gate entry", NOON.toUTC().toString(Qt::ISODate)}));
    QVERIFY(!timecard.isEmpty());

    // The popup notification carries the same occurrence and the triggering event for the trigger camera.
    const QDomElement notification = rootOf(spy.at(1).at(1).toString());
    QCOMPARE(notification.tagName(), QStringLiteral("ClientNotification"));
    QCOMPARE(notification.firstChildElement(QStringLiteral("TimecardId")).text(), timecard);
    QCOMPARE(notification.firstChildElement(QStringLiteral("Type")).text(), QStringLiteral("Popup Window"));
    const QDomElement popup = notification.firstChildElement(QStringLiteral("PopupWindow"));
    QCOMPARE(popup.firstChildElement(QStringLiteral("Cam")).text(), QStringLiteral("cam-01"));
    QCOMPARE(popup.firstChildElement(QStringLiteral("QuessaEvent")).firstChildElement(QStringLiteral("VirtualTrigger"))
                 .firstChildElement(QStringLiteral("Camera")).text(),
             QStringLiteral("cam-01"));
}

void tst_AlarmHostServer::soundsSyncByNameAndContent()
{
    SimulatedServer server(m_dataDir->path());
    QVERIFY(server.load());
    const QStringList names{"chime.mp3", "doorbell.mp3", "evacuation.mp3", "klaxon.mp3", "siren.mp3"};

    QCOMPARE(call(server, METHOD_GET_ALARM_SOUND_LIST, QVariant()).result.toStringList(), names);
    QCOMPARE(call(server, METHOD_GET_ALARM_SOUND_LIST_FOR_SYNC, QVariant()).result.toStringList(), names);
    const Reply content = call(server, METHOD_GET_ALARM_SOUND_CONTENT,
                               QStringList({"siren.mp3", "../site.json", "missing.mp3", "/etc/passwd"}));

    QCOMPARE(content.returnCode, QStringLiteral("0"));
    QFile siren(m_dataDir->filePath(QStringLiteral("sounds/siren.mp3")));
    QVERIFY(siren.open(QIODevice::ReadOnly));
    QCOMPARE(content.result.toList(),
             QVariantList({QVariantMap{{ARG_SOUND_NAME, "siren.mp3"},
                                       {ARG_SOUND_CONTENT, QString::fromLatin1(siren.readAll().toBase64())}}}));
}

void tst_AlarmHostServer::reserveTimeIsKept()
{
    {
        SimulatedServer server(m_dataDir->path());
        QVERIFY(server.load());
        QCOMPARE(call(server, METHOD_GET_RESERVE_TIME, QVariant()).result.toInt(), 30);
        QCOMPARE(call(server, METHOD_UPD_RESERVE_TIME, 45).returnCode, QStringLiteral("0"));
        QCOMPARE(call(server, METHOD_UPD_RESERVE_TIME, QStringLiteral("soon")).returnCode, QStringLiteral("2"));
    }
    SimulatedServer restarted(m_dataDir->path());
    QVERIFY(restarted.load());
    QCOMPARE(call(restarted, METHOD_GET_RESERVE_TIME, QVariant()).result.toInt(), 45);
}

void tst_AlarmHostServer::sendHttpReachesOnlyLoopback_data()
{
    QTest::addColumn<QString>("url");
    QTest::newRow("documentation address") << "http://192.0.2.1/hook";
    QTest::newRow("host name") << "http://example.com/hook";
    QTest::newRow("file scheme") << "file:///etc/passwd";
    QTest::newRow("no url") << "";
    QTest::newRow("loopback look-alike name") << "http://127.0.0.1.example.com/";
}

void tst_AlarmHostServer::sendHttpReachesOnlyLoopback()
{
    QFETCH(QString, url);
    SimulatedServer server(m_dataDir->path());
    QVERIFY(server.load());

    const Reply reply = call(server, METHOD_SEND_HTTP, QVariantMap{{ARG_HTTP_URL, url}, {ARG_HTTP_METHOD, "GET"}});

    QCOMPARE(reply.returnCode, QStringLiteral("6"));
}

void tst_AlarmHostServer::sendHttpToLoopbackAnswersTheStatus()
{
    // Given a web hook on this machine that records what it receives
    QTcpServer hook;
    QVERIFY(hook.listen(QHostAddress::LocalHost));
    QByteArray received;
    connect(&hook, &QTcpServer::newConnection, this, [&hook, &received] {
        QTcpSocket* socket = hook.nextPendingConnection();
        connect(socket, &QTcpSocket::readyRead, socket, [socket, &received] {
            received += socket->readAll();
            if (received.contains("\r\n\r\n") && received.endsWith("{\"a\":1}")) {
                socket->write("HTTP/1.1 202 Accepted\r\nContent-Length: 0\r\nConnection: close\r\n\r\n");
                socket->disconnectFromHost();
            }
        });
    });
    SimulatedServer server(m_dataDir->path());
    QVERIFY(server.load());

    // When the plug-in asks the server to post to it with credentials
    const Reply reply = call(server, METHOD_SEND_HTTP,
                             QVariantMap{{ARG_HTTP_URL, QStringLiteral("http://127.0.0.1:%1/hook").arg(hook.serverPort())},
                                         {ARG_HTTP_METHOD, "POST"}, {ARG_HTTP_NEEDAUTH, true}, {ARG_HTTP_USER, "op"},
                                         {ARG_HTTP_PWD, "pw"}, {ARG_HTTP_CONTENT_TYPE, "application/json"},
                                         {ARG_HTTP_CONTENT, "{\"a\":1}"}});

    // Then the hook got the request and the answer carries its status
    QCOMPARE(QStringList({reply.returnCode, reply.result.toString()}), QStringList({"0", "202"}));
    QVERIFY(received.startsWith("POST /hook HTTP/1.1"));
    QVERIFY(received.contains("Authorization: Basic " + QByteArray("op:pw").toBase64()));
}

void tst_AlarmHostServer::hostileArgumentsAreRefusedWithoutChange_data()
{
    QTest::addColumn<QString>("method");
    QTest::addColumn<QVariant>("argument");
    QTest::addColumn<QString>("returnCode");
    QVariantMap malformedTriggers = addArgument(QStringLiteral("x"));
    malformedTriggers.insert(ARG_ALARM_TRG_LIST, QStringLiteral("<TriggerList><CamEventTrigger>"));
    QVariantMap badSchedule = addArgument(QStringLiteral("x"));
    badSchedule.insert(ARG_ALARM_TEMP_CONTENT, QStringLiteral("{not json"));
    QTest::newRow("add with malformed trigger XML") << "AddAlarm" << QVariant(malformedTriggers) << "2";
    QTest::newRow("add with unreadable schedule") << "AddAlarm" << QVariant(badSchedule) << "2";
    QTest::newRow("update without arguments") << "UpdateAlarm" << QVariant() << "3";
    QTest::newRow("delete given a list") << "DeleteAlarm" << QVariant(QVariantList{1, 2}) << "3";
    QTest::newRow("toggle given text") << "ToggleAlarm" << QVariant(QStringLiteral("1001")) << "2";
    QTest::newRow("toggle all without flag") << "ToggleAllAlarm" << QVariant(QVariantMap()) << "2";
    QTest::newRow("schedule for unknown rule") << "UpdateAlarmSchedule" << QVariant(QVariantMap{{"alarmID", "x"}}) << "3";
    QTest::newRow("virtual trigger given a number") << "VirtualTrigger" << QVariant(5) << "2";
    QTest::newRow("lower-case method") << "getallalarm" << QVariant() << "7";
}

void tst_AlarmHostServer::hostileArgumentsAreRefusedWithoutChange()
{
    QFETCH(QString, method);
    QFETCH(QVariant, argument);
    QFETCH(QString, returnCode);
    SimulatedServer server(m_dataDir->path());
    QVERIFY(server.load());
    const QString before = call(server, METHOD_GET_ALL_ALARM, QVariant()).result.toString();

    QCOMPARE(call(server, method, argument).returnCode, returnCode);

    QCOMPARE(call(server, METHOD_GET_ALL_ALARM, QVariant()).result.toString(), before);
    QCOMPARE(QDir(m_dataDir->filePath(QStringLiteral("rules"))).entryList(QDir::Files).size(), 64);
}

QTEST_MAIN(tst_AlarmHostServer)
#include "tst_alarmhostserver.moc"
