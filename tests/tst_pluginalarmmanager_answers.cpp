#include <QAbstractItemModelTester>
#include <QTemporaryDir>
#include <QtTest>

#include "AudioFileManager.h"
#include "tst_pluginalarmmanager_fixture.h"

using namespace PluginAlarmManagerCommon;

// The server's answers as CommandProcessor hands them to PluginAlarmManager: the alarm list, added,
// edited and deleted alarms, toggles, virtual triggers, reserve time and alarm sounds.
class tst_PluginAlarmManagerAnswers : public QObject
{
    Q_OBJECT
private slots:
    void answerEmitsItsSignal_data();
    void answerEmitsItsSignal();
    void alarmListKeepsGuardianRulesByEdition_data();
    void alarmListKeepsGuardianRulesByEdition();
    void failedAlarmListEmptiesEverything_data();
    void failedAlarmListEmptiesEverything();
    void alarmListIgnoresBadPayloads_data();
    void alarmListIgnoresBadPayloads();
    void addedAlarmBecomesTheFirstRow();
    void failedAddLeavesTheList_data();
    void failedAddLeavesTheList();
    void editedAlarmRowFollowsTheRequest();
    void failedEditLeavesTheRow_data();
    void failedEditLeavesTheRow();
    void deletionBatchReportsOnceAfterTheLastAnswer();
    void deletionAnswerWithoutBatchIsDropped();
    void toggleAnswerSetsTheFlags_data();
    void toggleAnswerSetsTheFlags();
    void virtualTriggerAnswerCarriesItsId_data();
    void virtualTriggerAnswerCarriesItsId();
    void soundSyncAsksForMissingSounds_data();
    void soundSyncAsksForMissingSounds();
    void soundContentIsSavedInsideTheSoundFolder();
    void failedSoundContentSavesNothing();
    void soundContentWithoutFolderSavesNothing();
    void addedAlarmStartsAnEmptyList();
};

namespace {
// Every signal PluginAlarmManager emitted, as "name[arguments as JSON]", in declaration order.
class SignalRecorder
{
public:
    explicit SignalRecorder(PluginAlarmManager* plugin)
    {
        const QMetaObject* meta = &PluginAlarmManager::staticMetaObject;
        for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
            if (meta->method(i).methodType() == QMetaMethod::Signal)
                m_spies.append(new QSignalSpy(plugin, meta->method(i)));
        }
    }
    ~SignalRecorder() { qDeleteAll(m_spies); }

    QStringList emitted() const
    {
        QStringList signalTexts;
        for (QSignalSpy* spy : m_spies) {
            for (const QVariantList& arguments : std::as_const(*spy))
                signalTexts.append(QString::fromLatin1(spy->signal().left(spy->signal().indexOf('(')))
                                   + argumentJson(arguments));
        }
        return signalTexts;
    }

private:
    QList<QSignalSpy*> m_spies;
};

// The stand-in codec lists these rules: a Guardian rule, an ordinary one and a disabled one.
StubAlarmMessageParser* listedRules()
{
    auto* parser = new StubAlarmMessageParser;
    AlarmRow guardian = AlarmRow::of("g1", "Guard tour");
    guardian.triggerType = "Guardian";
    guardian.triggerXml = triggerXml({{"Guard", "cam1", 1}});
    AlarmRow gate = AlarmRow::of("m1", "Gate");
    gate.triggerXml = triggerXml({{"Open gate", "cam1", 2}, {"Lights", "cam2", 3}});
    AlarmRow disabled = AlarmRow::of("d1", "Siren", false);
    disabled.triggerXml = triggerXml({{"Siren", "cam2", 4}});
    parser->rows = {guardian, gate, disabled};
    return parser;
}

const QString addedTriggerXml = QStringLiteral("<TriggerList><ExtDeviceEventTrigger/></TriggerList>");
const QString addedActionXml = QStringLiteral("<ActionList><Recording><CamName>c1</CamName></Recording></ActionList>");
const QString weekdaysMapping = QStringLiteral("<Mapping><Ele><Frame><Name>Weekdays</Name></Frame></Ele></Mapping>");

// A row built from the added or edited trigger and action lists, as the stand-in codec decodes them.
QString decodedRow(const QString& id, const QString& name, bool enabled, const QVariantList& schedule, int revision,
                   const QString& description)
{
    return mapJson({{"idRole", id},
                    {"nameRole", name},
                    {"enabledRole", enabled},
                    {"triggerSourceRole", QVariantList{1}},
                    {"triggerTypeRole", "ExtDeviceEventTrigger"},
                    {"actionTypeRole", QVariantList{"Recording"}},
                    {"actionTargetRole", QVariantList{QVariantMap{{"CamName", "c1"}}}},
                    {"scheduleRole", schedule},
                    {"revisionRole", revision},
                    {"descriptionRole", description},
                    {"triggerXmlRole", addedTriggerXml},
                    {"actionXmlRole", addedActionXml}});
}
} // namespace

void tst_PluginAlarmManagerAnswers::answerEmitsItsSignal_data()
{
    QTest::addColumn<QString>("method");
    QTest::addColumn<QVariant>("result");
    QTest::addColumn<QString>("returnCode");
    QTest::addColumn<QStringList>("emitted");

    QTest::newRow("reserve time answered") << METHOD_GET_RESERVE_TIME << QVariant(45) << "0"
                                           << QStringList{"getReserveTimeResp[[true,45]]"};
    QTest::newRow("failed reserve time query is silent") << METHOD_GET_RESERVE_TIME << QVariant(45) << "1"
                                                         << QStringList();
    QTest::newRow("reserve time update answered") << METHOD_UPD_RESERVE_TIME << QVariant() << "0"
                                                  << QStringList{"updateReserveTimeResp[[true]]"};
    QTest::newRow("failed reserve time update is silent") << METHOD_UPD_RESERVE_TIME << QVariant() << "2"
                                                          << QStringList();
    QTest::newRow("toggle all answered") << METHOD_TOGGLE_ALL_ALARM << QVariant() << "0"
                                         << QStringList{"toggleAllAlarmResp[[true]]"};
    QTest::newRow("failed toggle all still answers") << METHOD_TOGGLE_ALL_ALARM << QVariant() << "1"
                                                     << QStringList{"toggleAllAlarmResp[[false]]"};
    QTest::newRow("empty return code is a failure") << METHOD_TOGGLE_ALL_ALARM << QVariant() << ""
                                                    << QStringList{"toggleAllAlarmResp[[false]]"};
    QTest::newRow("http answer passes the result on") << METHOD_SEND_HTTP << QVariant("200") << "0"
                                                      << QStringList{"sendHttpRequestResp[[true,\"200\"]]"};
    QTest::newRow("failed http answer passes the result on") << METHOD_SEND_HTTP << QVariant("E42") << "7"
                                                             << QStringList{"sendHttpRequestResp[[false,\"E42\"]]"};
    QTest::newRow("sound list loses every lower-case extension")
        << METHOD_GET_ALARM_SOUND_LIST << QVariant(QStringList{"a.mp3", "b.mp3.mp3", "C.MP3", "d"}) << "1"
        << QStringList{"getAlarmSoundListResp[[[\"a\",\"b\",\"C.MP3\",\"d\"]]]"};
    QTest::newRow("unknown method is ignored") << "GetAllAlarms" << QVariant() << "0" << QStringList();
    QTest::newRow("method differing in case is ignored") << "getallalarm" << QVariant() << "0" << QStringList();
    QTest::newRow("event name is no method") << EVENT_TYPE_ADD_ALARM << QVariant() << "0" << QStringList();
    QTest::newRow("virtual trigger answer without context is dropped") << METHOD_VIRTUAL_TRIGGER << QVariant()
                                                                       << "0" << QStringList();
    QTest::newRow("deletion answer without context is dropped") << METHOD_DEL_ALARM << QVariant("a1") << "0"
                                                                << QStringList();
    QTest::newRow("schedule answer without context is dropped") << METHOD_UPD_ALARM_SCHEDULE << QVariant() << "0"
                                                                << QStringList();
    QTest::newRow("add answer without context fails")
        << METHOD_ADD_ALARM << QVariant(QVariantMap{{ARG_ALARM_ID, "n1"}}) << "0"
        << QStringList{"addAlarmResp[[false,\"\"]]"};
    QTest::newRow("edit answer without context fails") << METHOD_UPD_ALARM << QVariant() << "0"
                                                        << QStringList{"updateAlarmResp[[false,\"\"]]"};
    QTest::newRow("toggle answer without context toggles nothing") << METHOD_TOGGLE_ALARM << QVariant() << "0"
                                                                   << QStringList{"toggleAlarmResp[[true]]"};
}

void tst_PluginAlarmManagerAnswers::answerEmitsItsSignal()
{
    QFETCH(QString, method);
    QFETCH(QVariant, result);
    QFETCH(QString, returnCode);
    QFETCH(QStringList, emitted);

    PluginFixture fixture;
    fixture.addRow(AlarmRow::of("a1", "Gate").item());
    SignalRecorder recorder(&fixture.plugin);
    fixture.answer(method, result, nullptr, returnCode);
    QCOMPARE(recorder.emitted(), emitted);
    QCOMPARE(fixture.plugin.getAlarmModel()->rowCount(), 1);
}

void tst_PluginAlarmManagerAnswers::alarmListKeepsGuardianRulesByEdition_data()
{
    QTest::addColumn<bool>("supportsGuardian");
    QTest::addColumn<QStringList>("listedIds");
    QTest::addColumn<QStringList>("cam1Triggers");

    QTest::newRow("edition without Guardian drops Guardian rules")
        << false << QStringList{"m1", "d1"} << QStringList{"m1:Open gate"};
    QTest::newRow("edition with Guardian keeps them")
        << true << QStringList{"g1", "m1", "d1"} << QStringList{"m1:Open gate", "g1:Guard"};
}

void tst_PluginAlarmManagerAnswers::alarmListKeepsGuardianRulesByEdition()
{
    QFETCH(bool, supportsGuardian);
    QFETCH(QStringList, listedIds);
    QFETCH(QStringList, cam1Triggers);

    // Given an edition flag, a stale row and a stale view-cell row
    PluginFixture fixture;
    fixture.framework.licence.editionFeature = {{"supportGuardian", supportsGuardian}};
    StubAlarmMessageParser* parser = listedRules();
    fixture.plugin.setAlarmMsgParser(parser);
    fixture.addRow(AlarmRow::of("old", "Old").item());
    QAbstractItemModel* cam1 = fixture.plugin.getAlarmViewCellTriggerModel("cam1")->sourceModel();
    fixture.plugin.InsertToViewCellTriggerModel("old", XML2Json::parse(triggerXml({{"Old", "cam1", 0}})).toMap());
    QAbstractItemModelTester alarmTester(fixture.plugin.getAlarmModel());
    QAbstractItemModelTester cam1Tester(cam1);
    QSignalSpy listed(&fixture.plugin, &PluginAlarmManager::getAlarmResp);

    // When the list arrives
    const QString document = QStringLiteral("<GetEvtTmcardRes/>");
    fixture.answer(METHOD_GET_ALL_ALARM, document, nullptr);

    // Then the codec got the tree and the text, the rows replace the old ones, and only enabled rules
    // show their virtual triggers, in the camera models QML already holds
    QCOMPARE(argumentJson(parser->lastMessage),
             argumentJson(QVariantMap{{ARG_ALARM_LIST, XML2Json::parse(document)}, {ARG_ALARM_XML_MSG, document}}));
    QCOMPARE(column(fixture.plugin.getAlarmModel(), AlarmModel::idRole), listedIds);
    QStringList shown;
    for (int row = 0; row < cam1->rowCount(); ++row)
        shown.append(cam1->index(row, 0).data(AlarmViewCellTriggerModel::idRole).toString() + ":"
                     + cam1->index(row, 0).data(AlarmViewCellTriggerModel::nameRole).toString());
    std::sort(shown.begin(), shown.end(), std::greater<>());
    QCOMPARE(shown, cam1Triggers);
    QCOMPARE(fixture.plugin.getAlarmViewCellTriggerModel("cam2")->rowCount(), 1);
    QCOMPARE(listed.size(), 1);
    QCOMPARE(listed.first(), QVariantList{true});
}

void tst_PluginAlarmManagerAnswers::failedAlarmListEmptiesEverything_data()
{
    QTest::addColumn<QString>("returnCode");
    QTest::newRow("code 1") << "1";
    QTest::newRow("empty code") << "";
    QTest::newRow("zero with padding") << " 0";
    QTest::newRow("double zero") << "00";
}

void tst_PluginAlarmManagerAnswers::failedAlarmListEmptiesEverything()
{
    QFETCH(QString, returnCode);

    // Given a listed rule that shows a virtual trigger in QML's camera model
    PluginFixture fixture;
    fixture.plugin.setAlarmMsgParser(listedRules());
    QSortFilterProxyModel* cam1 = fixture.plugin.getAlarmViewCellTriggerModel("cam1");
    fixture.answer(METHOD_GET_ALL_ALARM, QString(), nullptr);
    QVERIFY(cam1->rowCount() > 0);
    QSignalSpy listed(&fixture.plugin, &PluginAlarmManager::getAlarmResp);

    // When a reload fails, the list and the camera models are empty, and the camera model is the same
    fixture.answer(METHOD_GET_ALL_ALARM, QString(), nullptr, returnCode);
    QCOMPARE(fixture.plugin.getAlarmModel()->rowCount(), 0);
    QCOMPARE(cam1->rowCount(), 0);
    QCOMPARE(fixture.plugin.getAlarmViewCellTriggerModel("cam1"), cam1);
    QCOMPARE(listed.size(), 1);
    QCOMPARE(listed.first(), QVariantList{false});
}

void tst_PluginAlarmManagerAnswers::alarmListIgnoresBadPayloads_data()
{
    QTest::addColumn<QVariant>("result");
    QTest::newRow("not XML") << QVariant("<GetEvtTmcardRes><Tmcard>");
    QTest::newRow("a map instead of text") << QVariant(QVariantMap{{"alarmList", 1}});
    QTest::newRow("a number") << QVariant(12);
    QTest::newRow("null") << QVariant();
    QTest::newRow("another document") << QVariant("<Other><Tmcard><TmcardID>1</TmcardID></Tmcard></Other>");
}

void tst_PluginAlarmManagerAnswers::alarmListIgnoresBadPayloads()
{
    QFETCH(QVariant, result);
    PluginFixture fixture;
    QSignalSpy listed(&fixture.plugin, &PluginAlarmManager::getAlarmResp);
    fixture.answer(METHOD_GET_ALL_ALARM, result, nullptr);
    QCOMPARE(fixture.plugin.getAlarmModel()->rowCount(), 0);
    QCOMPARE(listed.size(), 1);
    QCOMPARE(listed.first(), QVariantList{true});
}

void tst_PluginAlarmManagerAnswers::addedAlarmBecomesTheFirstRow()
{
    // Given a listed rule and an add request
    PluginFixture fixture;
    fixture.plugin.setAlarmMsgParser(new StubAlarmMessageParser);
    fixture.addRow(AlarmRow::of("a1", "Gate").item());
    QAbstractItemModelTester tester(fixture.plugin.getAlarmModel());
    QVERIFY(fixture.plugin.addAlarm("Front door", "Löbby & hall", "<TriggerList/>", "<ActionList/>", "<Devices/>",
                                    "Weekdays", weekdaysMapping, false));
    QSignalSpy added(&fixture.plugin, &PluginAlarmManager::addAlarmResp);

    // When the server answers with the new id and its own trigger and action documents
    fixture.answerLast(METHOD_ADD_ALARM, QVariantMap{{ARG_ALARM_ID, "n1"},
                                                     {ARG_ALARM_TRG_LIST, addedTriggerXml},
                                                     {ARG_ALARM_ACT_LIST, addedActionXml}});

    // Then the new rule stands first, enabled at revision 1, with the decoded texts
    QCOMPARE(added.size(), 1);
    QCOMPARE(added.first(), QVariantList({true, "n1"}));
    QCOMPARE(column(fixture.plugin.getAlarmModel(), AlarmModel::idRole), QStringList({"n1", "a1"}));
    QCOMPARE(rowJson(fixture.plugin.getAlarmModel(), 0),
             decodedRow("n1", "Front door", true, {"Weekdays", "success", "{\"frames\":1}"}, 1, "Löbby & hall"));
}

void tst_PluginAlarmManagerAnswers::failedAddLeavesTheList_data()
{
    QTest::addColumn<QString>("returnCode");
    QTest::newRow("refused by the server") << "1";
    QTest::newRow("empty return code") << "";
}

void tst_PluginAlarmManagerAnswers::failedAddLeavesTheList()
{
    QFETCH(QString, returnCode);
    PluginFixture fixture;
    fixture.addRow(AlarmRow::of("a1", "Gate").item());
    QVERIFY(fixture.plugin.addAlarm("n", "d", "", "", "", "", ""));
    QSignalSpy added(&fixture.plugin, &PluginAlarmManager::addAlarmResp);
    fixture.answerLast(METHOD_ADD_ALARM, QVariantMap{{ARG_ALARM_ID, "n1"}}, returnCode);
    QCOMPARE(added.size(), 1);
    QCOMPARE(added.first(), QVariantList({false, ""}));
    QCOMPARE(column(fixture.plugin.getAlarmModel(), AlarmModel::idRole), QStringList{"a1"});
}

void tst_PluginAlarmManagerAnswers::editedAlarmRowFollowsTheRequest()
{
    // Given a listed rule at revision 4 and an edit of it
    PluginFixture fixture;
    fixture.plugin.setAlarmMsgParser(new StubAlarmMessageParser);
    fixture.addRow(AlarmRow::of("a0", "Other").item());
    fixture.addRow(AlarmRow::of("a1", "Gate", true, 4).item());
    QAbstractItemModelTester tester(fixture.plugin.getAlarmModel());
    QVERIFY(fixture.plugin.updateAlarm("a1", "Back door", "50% off", addedTriggerXml, addedActionXml, "", "Nights",
                                       "{\"Rectangles\":[]}", false));
    QSignalSpy edited(&fixture.plugin, &PluginAlarmManager::updateAlarmResp);

    // When the server accepts it
    fixture.answerLast(METHOD_UPD_ALARM, QVariant());

    // Then the row holds the edit at the next revision
    QCOMPARE(edited.size(), 1);
    QCOMPARE(edited.first(), QVariantList({true, "a1"}));
    QCOMPARE(rowJson(fixture.plugin.getAlarmModel(), 1),
             decodedRow("a1", "Back door", false, {"Nights", "success", "{\"Rectangles\":[]}"}, 5, "50% off"));
    QCOMPARE(column(fixture.plugin.getAlarmModel(), AlarmModel::nameRole), QStringList({"Other", "Back door"}));
}

void tst_PluginAlarmManagerAnswers::failedEditLeavesTheRow_data()
{
    QTest::addColumn<QString>("alarmId");
    QTest::addColumn<QString>("returnCode");
    QTest::newRow("refused by the server") << "a1" << "1";
    QTest::newRow("alarm gone meanwhile") << "a9" << "0";
}

void tst_PluginAlarmManagerAnswers::failedEditLeavesTheRow()
{
    QFETCH(QString, alarmId);
    QFETCH(QString, returnCode);
    PluginFixture fixture;
    fixture.addRow(AlarmRow::of("a1", "Gate", true, 4).item());
    const QString before = rowJson(fixture.plugin.getAlarmModel(), 0);
    QVERIFY(fixture.plugin.updateAlarm(alarmId, "Back door", "", "", "", "", "", ""));
    QSignalSpy edited(&fixture.plugin, &PluginAlarmManager::updateAlarmResp);
    fixture.answerLast(METHOD_UPD_ALARM, QVariant(), returnCode);
    QCOMPARE(edited.size(), 1);
    QCOMPARE(edited.first(), QVariantList({false, ""}));
    QCOMPARE(rowJson(fixture.plugin.getAlarmModel(), 0), before);
}

void tst_PluginAlarmManagerAnswers::deletionBatchReportsOnceAfterTheLastAnswer()
{
    // Given three listed rules, all to be deleted
    PluginFixture fixture;
    for (const QString id : {"a1", "a2", "a3"})
        fixture.addRow(AlarmRow::of(id, id).item());
    QAbstractItemModelTester tester(fixture.plugin.getAlarmModel());
    QVERIFY(fixture.plugin.deleteAlarms({0, 1, 2}));
    QCOMPARE(fixture.framework.requests.size(), 3);
    QSignalSpy deleted(&fixture.plugin, &PluginAlarmManager::alarmDeleted);
    QSignalSpy batchDone(&fixture.plugin, &PluginAlarmManager::deleteAlarmsResp);

    // When the first two answers come (one refused), the batch is still open
    const QList<RecordedRequest> sent = fixture.framework.requests;
    fixture.answer(METHOD_DEL_ALARM, "a1", sent.at(0).context);
    fixture.answer(METHOD_DEL_ALARM, "a2", sent.at(1).context, "1");
    QCOMPARE(batchDone.size(), 0);

    // Then the third closes it with the successes among all three
    fixture.answer(METHOD_DEL_ALARM, "a3", sent.at(2).context);
    QCOMPARE(batchDone.size(), 1);
    QCOMPARE(batchDone.first(), QVariantList({3, 2}));
    QCOMPARE(deleted.size(), 2);
    QCOMPARE(column(fixture.plugin.getAlarmModel(), AlarmModel::idRole), QStringList{"a2"});
    QVERIFY(fixture.plugin.pendingBatches().isEmpty());
}

void tst_PluginAlarmManagerAnswers::deletionAnswerWithoutBatchIsDropped()
{
    PluginFixture fixture;
    fixture.addRow(AlarmRow::of("a1", "Gate").item());
    SignalRecorder recorder(&fixture.plugin);
    fixture.answer(METHOD_DEL_ALARM, "a1", new qint64(42));
    QCOMPARE(recorder.emitted(), QStringList());
    QCOMPARE(fixture.plugin.getAlarmModel()->rowCount(), 1);
}

void tst_PluginAlarmManagerAnswers::toggleAnswerSetsTheFlags_data()
{
    QTest::addColumn<QString>("returnCode");
    QTest::addColumn<bool>("success");
    QTest::addColumn<QStringList>("enabledFlags");
    QTest::newRow("accepted") << "0" << true << QStringList{"false", "true", "true"};
    QTest::newRow("refused") << "3" << false << QStringList{"true", "false", "true"};
}

void tst_PluginAlarmManagerAnswers::toggleAnswerSetsTheFlags()
{
    QFETCH(QString, returnCode);
    QFETCH(bool, success);
    QFETCH(QStringList, enabledFlags);

    // Given three rules, the first two toggled (and one unknown id)
    PluginFixture fixture;
    fixture.addRow(AlarmRow::of("a1", "A", true).item());
    fixture.addRow(AlarmRow::of("a2", "B", false).item());
    fixture.addRow(AlarmRow::of("a3", "C", true).item());
    QAbstractItemModelTester tester(fixture.plugin.getAlarmModel());
    QVERIFY(fixture.plugin.toggleAlarm({QVariantMap{{"id", "a1"}, {"enable", false}},
                                        QVariantMap{{"id", "a2"}, {"enable", true}},
                                        QVariantMap{{"id", "a9"}, {"enable", true}}}));
    QSignalSpy toggled(&fixture.plugin, &PluginAlarmManager::toggleAlarmResp);

    // When the server answers
    fixture.answerLast(METHOD_TOGGLE_ALARM, QVariant(), returnCode);

    // Then QML is told, the result is kept, and only an accepted toggle changes the rows
    QCOMPARE(toggled.size(), 1);
    QCOMPARE(toggled.first(), QVariantList{success});
    QCOMPARE(fixture.plugin.getToggleAlarmResult(), success);
    QCOMPARE(column(fixture.plugin.getAlarmModel(), AlarmModel::enabledRole), enabledFlags);
}

void tst_PluginAlarmManagerAnswers::virtualTriggerAnswerCarriesItsId_data()
{
    QTest::addColumn<QString>("returnCode");
    QTest::addColumn<bool>("success");
    QTest::newRow("fired") << "0" << true;
    QTest::newRow("refused") << "1" << false;
}

void tst_PluginAlarmManagerAnswers::virtualTriggerAnswerCarriesItsId()
{
    QFETCH(QString, returnCode);
    QFETCH(bool, success);
    PluginFixture fixture;
    QVERIFY(fixture.plugin.sendVirtualTriggerAlarm("Open gate", "cam1", 2, 7, "Gate"));
    QSignalSpy fired(&fixture.plugin, &PluginAlarmManager::sendVirtualTriggerAlarmResp);
    fixture.answerLast(METHOD_VIRTUAL_TRIGGER, QVariant(), returnCode);
    QCOMPARE(fired.size(), 1);
    QCOMPARE(fired.first(), QVariantList({success, 7}));
}

void tst_PluginAlarmManagerAnswers::soundSyncAsksForMissingSounds_data()
{
    QTest::addColumn<QStringList>("serverSounds");
    QTest::addColumn<QString>("returnCode");
    QTest::addColumn<QStringList>("requests");
    QTest::addColumn<QStringList>("asked");

    QTest::newRow("missing ones in server order")
        << QStringList{"c.mp3", "a.mp3", "b.mp3"} << "0" << QStringList{METHOD_GET_ALARM_SOUND_CONTENT}
        << QStringList{"c.mp3", "b.mp3"};
    QTest::newRow("nothing missing still asks") << QStringList{"a.mp3"} << "0"
                                                << QStringList{METHOD_GET_ALARM_SOUND_CONTENT} << QStringList();
    QTest::newRow("failure asks nothing") << QStringList{"c.mp3"} << "1" << QStringList() << QStringList();
}

void tst_PluginAlarmManagerAnswers::soundSyncAsksForMissingSounds()
{
    QFETCH(QStringList, serverSounds);
    QFETCH(QString, returnCode);
    QFETCH(QStringList, requests);
    QFETCH(QStringList, asked);

    // Given a sound folder holding a.mp3
    QTemporaryDir soundFolder;
    QVERIFY(soundFolder.isValid());
    QFile local(soundFolder.filePath("a.mp3"));
    QVERIFY(local.open(QIODevice::WriteOnly));
    local.close();
    PluginFixture fixture;
    fixture.framework.soundPath.soundPath = soundFolder.path();
    fixture.plugin.LoadPairPluginDone();

    // When the server lists its sounds
    fixture.answer(METHOD_GET_ALARM_SOUND_LIST_FOR_SYNC, serverSounds, nullptr, returnCode);

    // Then the missing ones are asked for
    QCOMPARE(fixture.framework.methods(), requests);
    if (!requests.isEmpty())
        QCOMPARE(fixture.framework.requests.first().argument.toStringList(), asked);
}

void tst_PluginAlarmManagerAnswers::soundContentIsSavedInsideTheSoundFolder()
{
    // Given a sound folder inside a parent folder
    QTemporaryDir parent;
    QVERIFY(parent.isValid());
    const QString soundFolder = parent.filePath("sounds");
    PluginFixture fixture;
    fixture.framework.soundPath.soundPath = soundFolder;
    fixture.plugin.LoadPairPluginDone();

    // When the server sends one good sound and several whose names or contents are unusable
    const auto sound = [](const QString& name, const QString& content) {
        return QVariant(QVariantMap{{ARG_SOUND_NAME, name}, {ARG_SOUND_CONTENT, content}});
    };
    const QString beep = QString::fromLatin1(QByteArray("beep-beep").toBase64());
    fixture.answer(METHOD_GET_ALARM_SOUND_CONTENT,
                   QVariantList{sound("bell.mp3", beep), sound("../escape.mp3", beep), sound("..", beep),
                                sound(".", beep), sound("", beep), sound("sub/x.mp3", beep),
                                sound("back\\slash.mp3", beep), sound("bad.mp3", "***"), QVariant("not a map")},
                   nullptr);

    // Then only the good one is written, decoded, and nothing lands outside the folder
    QCOMPARE(QDir(soundFolder).entryList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot), QStringList{"bell.mp3"});
    QCOMPARE(QDir(parent.path()).entryList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot), QStringList{"sounds"});
    QFile bell(QDir(soundFolder).filePath("bell.mp3"));
    QVERIFY(bell.open(QIODevice::ReadOnly));
    QCOMPARE(bell.readAll(), QByteArray("beep-beep"));
}

void tst_PluginAlarmManagerAnswers::failedSoundContentSavesNothing()
{
    QTemporaryDir soundFolder;
    QVERIFY(soundFolder.isValid());
    PluginFixture fixture;
    fixture.framework.soundPath.soundPath = soundFolder.path();
    fixture.plugin.LoadPairPluginDone();
    fixture.answer(METHOD_GET_ALARM_SOUND_CONTENT,
                   QVariantList{QVariantMap{{ARG_SOUND_NAME, "bell.mp3"}, {ARG_SOUND_CONTENT, "YmVlcA=="}}}, nullptr,
                   "1");
    QCOMPARE(QDir(soundFolder.path()).entryList(QDir::Files), QStringList());
}

void tst_PluginAlarmManagerAnswers::soundContentWithoutFolderSavesNothing()
{
    // Given no sound-path peer, so the store has no folder
    PluginFixture fixture;
    fixture.framework.peers.remove(SOUND_PATH_PLUGIN_ID);
    fixture.plugin.LoadPairPluginDone();
    const QString name = QStringLiteral("core-test-%1.mp3").arg(QCoreApplication::applicationPid());

    // When sounds arrive, nothing is written at the top of the file system
    fixture.answer(METHOD_GET_ALARM_SOUND_CONTENT,
                   QVariantList{QVariantMap{{ARG_SOUND_NAME, name}, {ARG_SOUND_CONTENT, "YmVlcA=="}}}, nullptr);
    QVERIFY(!QFile::exists(QStringLiteral("/") + name));
}

void tst_PluginAlarmManagerAnswers::addedAlarmStartsAnEmptyList()
{
    // Given an empty list, watched by a model tester
    PluginFixture fixture;
    fixture.answer(METHOD_GET_ALL_ALARM, QStringLiteral("<GetEvtTmcardRes/>"), nullptr);
    QAbstractItemModelTester tester(fixture.plugin.getAlarmModel());
    QVERIFY(fixture.plugin.addAlarm("Gate", "", "", "", "", "", ""));

    // When the first alarm is added, it is the only row
    fixture.answerLast(METHOD_ADD_ALARM, QVariantMap{{ARG_ALARM_ID, "n1"}});
    QCOMPARE(column(fixture.plugin.getAlarmModel(), AlarmModel::nameRole), QStringList{"Gate"});
}

QTEST_MAIN(tst_PluginAlarmManagerAnswers)
#include "tst_pluginalarmmanager_answers.moc"
