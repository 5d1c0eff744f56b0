#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QStandardItem>
#include <QtTest>

#include "AlarmModel.h"
#include "AlarmRows.h"
#include "AlarmTranslatedModel.h"

// The display texts of the alarm list: what each raw trigger and action value reads as, that nothing else
// is touched, and that the texts kept between calls follow every change of the rows below.
class tst_AlarmTranslatedModel : public QObject
{
    Q_OBJECT
private slots:
    void displayText_data();
    void displayText();
    void otherRolesPassThrough();
    void wrongShapesGiveEmptyTexts_data();
    void wrongShapesGiveEmptyTexts();
    void textsFollowSetData();
    void triggerListChangeAlsoChangesTheTypeText();
    void textsFollowInsertedAndRemovedRows();
    void textsFollowSortAndReset();
};

using namespace AlarmRows;

namespace {

QVariantMap ioTrigger(const QString& type, const QVariant& index, int kind)
{
    QVariantMap map = trigger("IO box", type, index, "High");
    map.insert("typeDIO", kind);
    return map;
}

QVariantMap source(const QString& device, const QString& displayValue)
{
    return {{"devName", device}, {"displayValue", displayValue}};
}

QVariantMap mailTarget(const QString& to, const QString& cc)
{
    return {{"target", to}, {"action", ""},       {"senderName", "NVR"}, {"from", "nvr@site"},
            {"cc", cc},     {"subject", "Alarm"}, {"content", "Door"},   {"snapshotCameraList", QVariantList()}};
}

QVariantMap doTarget(const QString& device, const QString& output, const QString& value)
{
    return {{"target", device}, {"action", "SetDO"}, {"index", output}, {"value", value},
            {"period", 0},      {"camId", "io-1"},   {"ioIndex", 1}};
}

// Every translated role of every row, as one list, to compare a whole model at once.
QVariantList displayedRows(const QAbstractItemModel& model)
{
    QVariantList rows;
    for (int row = 0; row < model.rowCount(); ++row) {
        const QModelIndex index = model.index(row, 0);
        rows.append(QVariantList{index.data(AlarmModel::nameRole), index.data(AlarmModel::triggerSourceRole),
                                 index.data(AlarmModel::triggerTypeRole), index.data(AlarmModel::actionTypeRole),
                                 index.data(AlarmModel::actionTargetRole)});
    }
    return rows;
}

// A source model of three rules and the proxy over it, each watched by the model tester.
struct Chain
{
    AlarmModel source;
    AlarmTranslatedModel proxy;
    QAbstractItemModelTester sourceTester{&source, QAbstractItemModelTester::FailureReportingMode::QtTest};
    QAbstractItemModelTester proxyTester{&proxy, QAbstractItemModelTester::FailureReportingMode::QtTest};

    Chain()
    {
        proxy.setSourceModel(&source);
        source.appendRow(alarmRow("Door", QVariantList{trigger("Lobby", "DI", 1, "High")}, "DI",
                                  QVariantList{"SendMail"},
                                  QVariantList{QVariant(QVariantList{mailTarget("guard@site", "")})}));
        source.appendRow(alarmRow("Yard", QVariantList{trigger("Yard", "Motion", 2)}, "Motion", QVariantList{"SMS"},
                                  QVariantList{QVariant(QVariantList{shown("0912", "")})}));
        source.appendRow(alarmRow("Gate", QVariantList{trigger("Gate", "CamConn", {}, "Lost")}, "CamConn",
                                  QVariantList{"SetDO"},
                                  QVariantList{QVariant(QVariantList{doTarget("IO box", "Siren", "1")})}));
    }

    // What a proxy that never kept anything shows for the same source.
    QVariantList fresh()
    {
        AlarmTranslatedModel reference;
        reference.setSourceModel(&source);
        return displayedRows(reference);
    }
};

} // namespace

void tst_AlarmTranslatedModel::displayText_data()
{
    QTest::addColumn<int>("role");
    QTest::addColumn<QVariant>("sources");
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QVariant>("text");

    // The stored value goes under the role, and the trigger list under its own role.
    const auto type = [](const char* name, const QString& stored, const QVariantList& sources, const QString& text) {
        QTest::newRow(name) << int(AlarmModel::triggerTypeRole) << QVariant(sources) << QVariant(stored)
                            << QVariant(text);
    };
    type("fixed table", "Motion", {trigger("Lobby", "Motion", 1)}, "Motion detection");
    type("access rule shares the data magnet text", "ExtAccessRule", {}, "Data magnet");
    type("unknown type shown as it is", "NewEventOfNextYear", {}, "NewEventOfNextYear");
    type("type text is case-sensitive", "motion", {}, "motion");
    type("vca rule kind from the codec", "LineDetection", {trigger("Lobby", "VCA", "LineDetection")},
         "Line crossing detection");
    type("i/o device input", "ExtIODevice", {ioTrigger("ExtIODevice", 1, 0)}, "DI/DO Device DI");
    type("i/o device output", "ExtIODevice", {ioTrigger("ExtIODevice", 1, 1)}, "DI/DO Device DO");
    type("station i/o without a kind is an input", "DIOStatus", {trigger("NVR", "DIOStatus", 1)}, "DI/DO Device DI");
    type("camera lost", "CamConn", {trigger("Lobby", "CamConn", {}, "Lost")}, "Camera disconnected");
    type("unknown camera state falls back to the raw type", "CamConn", {trigger("Lobby", "CamConn", {}, "Sleeping")},
         "CamConn");
    type("value of the trigger of that type, not of the last one", "RecStatus",
         {trigger("Lobby", "RecStatus", {}, "Stop"), trigger("Yard", "Motion", 1)}, "Stop recording");
    type("numeric state value", "VideoLossRestore", {trigger("Lobby", "VideoLossRestore", {}, 0)}, "Video loss");
    type("other numeric state value", "VideoLossRestore", {trigger("Lobby", "VideoLossRestore", {}, 1)},
         "Video restore");
    type("same state word, another type", "SysNetwork", {trigger("NVR", "SysNetwork", {}, "Down")},
         "Network disconnected");
    type("g-sensor whatever the value", "Gsensor", {}, "Abnormal G-sensor motion (Mobile NVR)");

    const auto sources = [](const char* name, const QVariantList& sources, const QVariantList& shownSources) {
        QTest::newRow(name) << int(AlarmModel::triggerSourceRole) << QVariant(sources) << QVariant()
                            << QVariant(shownSources);
    };
    sources("camera input and output", {trigger("Lobby", "DI", 1, "High"), trigger("Lobby", "DO", 2, "Low")},
            {source("Lobby", "DI-1"), source("Lobby", "DO-2")});
    sources("motion window", {trigger("Yard", "Motion", 3)}, {source("Yard", "Window 3")});
    sources("vca rule by its name", {trigger("Yard", "VCA", "Loitering")}, {source("Yard", "VCA-Loitering detection")});
    sources("thermal rule and area", {trigger("Tank", "Thermal", "TemperatureRiseAlarm", 4)},
            {source("Tank", "Temperature rise alarm 4")});
    sources("numbered i/o device output", {ioTrigger("ExtIODevice", 2, 1)}, {source("IO box", "DO-2")});
    sources("named i/o device input", {ioTrigger("ExtIODevice", "Door contact", 0)},
            {source("IO box", "Door contact")});
    sources("status in words", {trigger("Lobby", "CamConn", {}, "Lost")}, {source("Lobby", "Camera disconnected")});
    sources("position triggers in capitals",
            {trigger("Bus 4", "GPSConn", {}, "0"), trigger("Bus 4", "GPSSpeed", {}, "80")},
            {source("Bus 4", "GPS disconnected"), source("Bus 4", "Speeding")});
    sources("other kinds join index and value", {trigger("NVR", "Guardian", 3, "Visitors")},
            {source("NVR", "3 Visitors")});
    sources("only a value", {trigger("NVR", "ExtTCPMessage", {}, "OPEN")}, {source("NVR", "OPEN")});
    sources("neither index nor value", {trigger("Panel", "VirtualTrigger")}, {source("Panel", "")});

    const auto actions = [](const char* name, int role, const QVariantList& stored, const QVariantList& texts) {
        QTest::newRow(name) << role << QVariant() << QVariant(stored) << QVariant(texts);
    };
    const int types = AlarmModel::actionTypeRole;
    actions("mail and http", types, {"SendMail", "HTTP"}, {"Email", "Send HTTP requests"});
    actions("client notifications", types,
            {"ClientNotificationGotoLiveStream", "ClientNotificationGotoEMap", "ClientNotificationSoundTheAlarm"},
            {"Send live streaming", "Go to E-Map", "Sound the alarm"});
    actions("decode-only kinds", types, {"AddBookmark", "PlayIPAudio", "MobileNotification"},
            {"Add bookmark", "Play audio file with network audio device", "Send notification to mobile device"});
    actions("unknown action type shown as it is", types, {"Teleport", "sendmail"}, {"Teleport", "sendmail"});
    actions("whole action models", types, {QVariantMap{{"actionType", "SMS"}, {"actionTarget", QVariantList()}}},
            {"GSM short message"});

    const int targets = AlarmModel::actionTargetRole;
    const auto one = [](const QVariantMap& target) { return QVariant(QVariantList{target}); };
    const QVariantMap post{{"target", "POST Method"},
                           {"action", "http://hook/door"},
                           {"needAuth", "false"},
                           {"user", ""},
                           {"pwd", ""},
                           {"post", true},
                           {"contentType", ""},
                           {"httpContent", ""}};
    const QVariantMap triggerCamera{
        {"target", "Ereignisauslösende Kamera"}, {"action", ""}, {"camId", ""}, {"includeTriggerCam", true}};
    const QVariantMap popupCamera{{"target", "Lobby"}, {"action", ""}, {"camId", "7"}, {"includeTriggerCam", false}};
    const QVariantMap allRoles{{"target", "Alle Rollen"}, {"action", ""}, {"pushAll", true}};
    const QVariantMap audio{{"target", "Hall speaker"}, {"action", "chime.mp3"}, {"fileId", 2}, {"ipAudioId", 5}};
    actions("mail without copies", targets, {one(mailTarget("a@site;b@site", ""))},
            {one(shown("To: a@site;b@site", ""))});
    actions("mail with copies", targets, {one(mailTarget("a@site", "boss@site"))},
            {one(shown("To: a@site", "Cc: boss@site"))});
    actions("output values in digits, words and unknown", targets,
            {QVariant(QVariantList{doTarget("IO box", "Siren", "1"), doTarget("IO box", "Lamp", "0"),
                                   doTarget("IO box", "Horn", "Trigger"), doTarget("IO box", "Fan", "Blink")})},
            {QVariant(QVariantList{shown("IO box", "Set Siren to Trigger"), shown("IO box", "Set Lamp to Normal"),
                                   shown("IO box", "Set Horn to Trigger"), shown("IO box", "Set Fan to Blink")})});
    actions("unnamed output by number", targets, {one(doTarget("IO box", "", "1"))},
            {one(shown("IO box", "Set DO-1 to Trigger"))});
    actions("http method and address", targets, {one(post)}, {one(shown("POST Method", "http://hook/door"))});
    actions("texts decoded in another language shown in the current one", targets,
            {QVariantList{triggerCamera, popupCamera}, one(allRoles)},
            {QVariantList{shown("Event triggering camera", ""), shown("Lobby", "")}, one(shown("All roles", ""))});
    actions("other kinds keep target and action", targets, {one(audio)}, {one(shown("Hall speaker", "chime.mp3"))});
    actions("whole action models keep their targets", targets,
            {QVariantMap{{"actionType", "SMS"}, {"actionTarget", QVariantList{shown("0912", "")}}}},
            {one(shown("0912", ""))});
    actions("action without targets", targets, {QVariant(QVariantList())}, {QVariant(QVariantList())});
}

void tst_AlarmTranslatedModel::displayText()
{
    QFETCH(int, role);
    QFETCH(QVariant, sources);
    QFETCH(QVariant, stored);
    QFETCH(QVariant, text);

    AlarmModel model;
    AlarmTranslatedModel proxy;
    QAbstractItemModelTester tester(&proxy, QAbstractItemModelTester::FailureReportingMode::QtTest);
    proxy.setSourceModel(&model);
    const auto storedFor = [&](int storedRole) { return role == storedRole ? stored : QVariant(); };
    model.appendRow(alarmRow("Rule", sources, storedFor(AlarmModel::triggerTypeRole),
                             storedFor(AlarmModel::actionTypeRole), storedFor(AlarmModel::actionTargetRole)));

    QCOMPARE(proxy.index(0, 0).data(role), text);
}
void tst_AlarmTranslatedModel::otherRolesPassThrough()
{
    Chain chain;
    const QList<int> rawRoles{Qt::DisplayRole,
                              Qt::EditRole,
                              AlarmModel::idRole,
                              AlarmModel::nameRole,
                              AlarmModel::enabledRole,
                              AlarmModel::scheduleRole,
                              AlarmModel::revisionRole,
                              AlarmModel::descriptionRole,
                              AlarmModel::triggerXmlRole,
                              AlarmModel::actionXmlRole};
    for (int row = 0; row < chain.source.rowCount(); ++row) {
        QVariantList shownValues;
        QVariantList sourceValues;
        for (int role : rawRoles) {
            shownValues.append(chain.proxy.index(row, 0).data(role));
            sourceValues.append(chain.source.index(row, 0).data(role));
        }
        QCOMPARE(shownValues, sourceValues);
    }
    QCOMPARE(chain.proxy.roleNames(), chain.source.roleNames());
}

void tst_AlarmTranslatedModel::wrongShapesGiveEmptyTexts_data()
{
    QTest::addColumn<QVariant>("sources");
    QTest::addColumn<QVariant>("type");
    QTest::addColumn<QVariant>("actionTypes");
    QTest::addColumn<QVariant>("actionTargets");
    QTest::addColumn<QVariantList>("shown");

    const QVariantList emptyRow{QVariantList(), QString(), QVariantList(), QVariantList()};
    QTest::newRow("nothing stored") << QVariant() << QVariant() << QVariant() << QVariant() << emptyRow;
    QTest::newRow("texts where lists belong")
        << QVariant("Lobby") << QVariant() << QVariant("SendMail") << QVariant("guard@site") << emptyRow;
    QTest::newRow("numbers inside the lists")
        << QVariant(QVariantList{42}) << QVariant(QVariantList{1, 2}) << QVariant(QVariantList{7})
        << QVariant(QVariantList{QVariant(QVariantList{3})})
        << QVariantList{QVariantList{source("", "")}, QString(), QVariantList{"7"},
                        QVariantList{QVariant(QVariantList{shown("", "")})}};
}

void tst_AlarmTranslatedModel::wrongShapesGiveEmptyTexts()
{
    QFETCH(QVariant, sources);
    QFETCH(QVariant, type);
    QFETCH(QVariant, actionTypes);
    QFETCH(QVariant, actionTargets);
    QFETCH(QVariantList, shown);

    AlarmModel model;
    AlarmTranslatedModel proxy;
    proxy.setSourceModel(&model);
    model.appendRow(alarmRow("Rule", sources, type, actionTypes, actionTargets));

    const QModelIndex index = proxy.index(0, 0);
    QCOMPARE(QVariantList({index.data(AlarmModel::triggerSourceRole), index.data(AlarmModel::triggerTypeRole),
                           index.data(AlarmModel::actionTypeRole), index.data(AlarmModel::actionTargetRole)}),
             shown);
}

void tst_AlarmTranslatedModel::textsFollowSetData()
{
    // Given every row read once, so that its texts are kept
    Chain chain;
    displayedRows(chain.proxy);

    // When the second rule's actions and triggers are edited in the source
    QStandardItem* yard = chain.source.item(1);
    yard->setData(QVariantList{"Recording"}, AlarmModel::actionTypeRole);
    yard->setData(QVariantList{QVariant(QVariantList{shown("Gate cam", "")})}, AlarmModel::actionTargetRole);
    yard->setData(QVariantList{trigger("Yard", "DO", 4, "Low")}, AlarmModel::triggerSourceRole);
    yard->setData("DO", AlarmModel::triggerTypeRole);

    // Then the proxy shows the new texts, exactly as a proxy that never kept any
    const QModelIndex index = chain.proxy.index(1, 0);
    QCOMPARE(index.data(AlarmModel::actionTypeRole), QVariant(QVariantList{"Start to record videos"}));
    QCOMPARE(index.data(AlarmModel::triggerSourceRole), QVariant(QVariantList{source("Yard", "DO-4")}));
    QCOMPARE(displayedRows(chain.proxy), chain.fresh());
}

void tst_AlarmTranslatedModel::triggerListChangeAlsoChangesTheTypeText()
{
    // Given a camera-status rule whose type text has been read
    Chain chain;
    QCOMPARE(chain.proxy.index(2, 0).data(AlarmModel::triggerTypeRole), QVariant("Camera disconnected"));
    QSignalSpy changed(&chain.proxy, &QAbstractItemModel::dataChanged);

    // When only its trigger list changes, to a camera that came back
    chain.source.item(2)->setData(QVariantList{trigger("Gate", "CamConn", {}, "Connected")},
                                  AlarmModel::triggerSourceRole);

    // Then views hear that the type text changed too, and read the new one
    QList<int> changedRoles;
    for (const QList<QVariant>& arguments : std::as_const(changed)) {
        QCOMPARE(arguments.at(0).toModelIndex().row(), 2);
        changedRoles += arguments.at(2).value<QList<int>>();
    }
    std::sort(changedRoles.begin(), changedRoles.end());
    QCOMPARE(changedRoles, QList<int>({AlarmModel::triggerSourceRole, AlarmModel::triggerTypeRole}));
    QCOMPARE(chain.proxy.index(2, 0).data(AlarmModel::triggerTypeRole), QVariant("Camera connected"));
}

void tst_AlarmTranslatedModel::textsFollowInsertedAndRemovedRows()
{
    // Given every row read once
    Chain chain;
    displayedRows(chain.proxy);

    // When a rule is inserted in front and another in the middle, then one is removed
    chain.source.insertRow(0, alarmRow("Tank", QVariantList{trigger("Tank", "Thermal", "TemperatureRiseAlarm", 1)},
                                       "TemperatureRiseAlarm", QVariantList{"AddBookmark"}, QVariantList()));
    QCOMPARE(displayedRows(chain.proxy), chain.fresh());
    chain.source.insertRow(2, alarmRow("Hall", QVariantList(), "Gsensor", QVariantList{"PlayIPAudio"}, QVariantList()));
    QCOMPARE(displayedRows(chain.proxy), chain.fresh());
    chain.source.removeRows(1, 2);

    // Then each row shows its own texts, not those of the row that stood there before
    QCOMPARE(displayedRows(chain.proxy), chain.fresh());
    QCOMPARE(chain.proxy.index(0, 0).data(AlarmModel::triggerTypeRole), QVariant("Temperature rise alarm"));
    QCOMPARE(chain.proxy.rowCount(), 3);
}

void tst_AlarmTranslatedModel::textsFollowSortAndReset()
{
    // Given every row read once
    Chain chain;
    displayedRows(chain.proxy);

    // When the source reorders its rows
    chain.source.setSortRole(AlarmModel::nameRole);
    chain.source.sort(0, Qt::DescendingOrder);

    // Then the texts move with their rows
    QCOMPARE(chain.proxy.index(0, 0).data(AlarmModel::nameRole), QVariant("Yard"));
    QCOMPARE(displayedRows(chain.proxy), chain.fresh());

    // When the source is emptied and refilled
    chain.source.clear();
    chain.source.appendRow(alarmRow("Solo", QVariantList(), "Motion", QVariantList{"SMS"}, QVariantList()));

    // Then only the new row's texts are shown
    QCOMPARE(displayedRows(chain.proxy), chain.fresh());
    QCOMPARE(chain.proxy.index(0, 0).data(AlarmModel::actionTypeRole), QVariant(QVariantList{"GSM short message"}));
}

QTEST_MAIN(tst_AlarmTranslatedModel)
#include "tst_alarmtranslatedmodel.moc"
