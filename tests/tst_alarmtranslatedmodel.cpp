#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QStandardItem>
#include <QtTest>

#include "AlarmModel.h"
#include "AlarmTranslatedModel.h"

// The display texts of the alarm list: what each raw trigger and action value reads as, that nothing else
// is touched, and that the texts kept between calls follow every change of the rows below.
class tst_AlarmTranslatedModel : public QObject
{
    Q_OBJECT
private slots:
    void triggerType_data();
    void triggerType();
    void triggerSources_data();
    void triggerSources();
    void actionTypes_data();
    void actionTypes();
    void actionTargets_data();
    void actionTargets();
    void otherRolesPassThrough();
    void wrongShapesGiveEmptyTexts_data();
    void wrongShapesGiveEmptyTexts();
    void textsFollowSetData();
    void triggerListChangeAlsoChangesTheTypeText();
    void textsFollowInsertedAndRemovedRows();
    void textsFollowSortAndReset();
};

namespace {

QVariantMap trigger(const QString& device, const QString& type, const QVariant& index = {}, const QVariant& value = {})
{
    QVariantMap map{{"devRealName", device.toLower()}, {"devName", device}, {"trigger", type}, {"latency", 0}};
    if (index.isValid())
        map.insert("index", index);
    if (value.isValid())
        map.insert("value", value);
    return map;
}

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

QVariantMap shown(const QString& target, const QString& action)
{
    return {{"target", target}, {"action", action}};
}

QVariantMap mailTarget(const QString& to, const QString& cc)
{
    return {{"target", to}, {"action", ""}, {"senderName", "NVR"}, {"from", "nvr@site"}, {"cc", cc},
            {"subject", "Alarm"}, {"content", "Door"}, {"snapshotCameraList", QVariantList()}};
}

QVariantMap doTarget(const QString& device, const QString& output, const QString& value)
{
    return {{"target", device}, {"action", "SetDO"}, {"index", output}, {"value", value}, {"period", 0},
            {"camId", "io-1"}, {"ioIndex", 1}};
}

QStandardItem* alarmRow(const QString& name, const QVariant& sources, const QVariant& type, const QVariant& actionTypes,
                        const QVariant& actionTargets)
{
    auto* item = new QStandardItem;
    item->setData(name.toLower(), AlarmModel::idRole);
    item->setData(name, AlarmModel::nameRole);
    item->setData(true, AlarmModel::enabledRole);
    item->setData(sources, AlarmModel::triggerSourceRole);
    item->setData(type, AlarmModel::triggerTypeRole);
    item->setData(actionTypes, AlarmModel::actionTypeRole);
    item->setData(actionTargets, AlarmModel::actionTargetRole);
    item->setData(QVariantList{"Always", "success", "{}"}, AlarmModel::scheduleRole);
    item->setData(qint64(7), AlarmModel::revisionRole);
    item->setData("at the gate", AlarmModel::descriptionRole);
    item->setData("<TriggerList/>", AlarmModel::triggerXmlRole);
    item->setData("<ActionList/>", AlarmModel::actionXmlRole);
    return item;
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
        source.appendRow(alarmRow("Door", QVariantList{trigger("Lobby", "DI", 1, "High")}, "DI", QVariantList{"SendMail"},
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

void tst_AlarmTranslatedModel::triggerType_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QVariantList>("sources");
    QTest::addColumn<QString>("text");

    QTest::newRow("fixed table") << "Motion" << QVariantList{trigger("Lobby", "Motion", 1)} << "Motion detection";
    QTest::newRow("access rule shares the data magnet text") << "ExtAccessRule" << QVariantList() << "Data magnet";
    QTest::newRow("unknown type shown as it is") << "NewEventOfNextYear" << QVariantList() << "NewEventOfNextYear";
    QTest::newRow("vca rule kind from the codec") << "LineDetection" << QVariantList{trigger("Lobby", "VCA", "LineDetection")}
                                                  << "Line crossing detection";
    QTest::newRow("i/o device input") << "ExtIODevice" << QVariantList{ioTrigger("ExtIODevice", 1, 0)} << "DI/DO Device DI";
    QTest::newRow("i/o device output") << "ExtIODevice" << QVariantList{ioTrigger("ExtIODevice", 1, 1)} << "DI/DO Device DO";
    QTest::newRow("station i/o without a kind is an input") << "DIOStatus" << QVariantList{trigger("NVR", "DIOStatus", 1)}
                                                            << "DI/DO Device DI";
    QTest::newRow("camera lost") << "CamConn" << QVariantList{trigger("Lobby", "CamConn", {}, "Lost")} << "Camera disconnected";
    QTest::newRow("camera connected") << "CamConn" << QVariantList{trigger("Lobby", "CamConn", {}, "Connected")}
                                      << "Camera connected";
    QTest::newRow("unknown camera state falls back to the raw type")
        << "CamConn" << QVariantList{trigger("Lobby", "CamConn", {}, "Sleeping")} << "CamConn";
    QTest::newRow("value of the trigger of that type, not of the last one")
        << "RecStatus" << QVariantList{trigger("Lobby", "RecStatus", {}, "Stop"), trigger("Yard", "Motion", 1)}
        << "Stop recording";
    QTest::newRow("video loss") << "VideoLossRestore" << QVariantList{trigger("Lobby", "VideoLossRestore", {}, 0)}
                                << "Video loss";
    QTest::newRow("video restore") << "VideoLossRestore" << QVariantList{trigger("Lobby", "VideoLossRestore", {}, 1)}
                                   << "Video restore";
    QTest::newRow("station link down") << "StationConn" << QVariantList{trigger("NVR", "StationConn", {}, "Down")}
                                       << "Network disconnected";
    QTest::newRow("station link up") << "StationConn" << QVariantList{trigger("NVR", "StationConn", {}, "Up")}
                                     << "Network connected";
    QTest::newRow("system network down") << "SysNetwork" << QVariantList{trigger("NVR", "SysNetwork", {}, "Down")}
                                         << "Network disconnected";
    QTest::newRow("virtual memory low") << "SysVirMem" << QVariantList{trigger("NVR", "SysVirMem", {}, "Low")}
                                        << "Low virtual memory";
    QTest::newRow("virtual memory healthy") << "SysVirMem" << QVariantList{trigger("NVR", "SysVirMem", {}, "Healthy")}
                                            << "Virtual memory available";
    QTest::newRow("failover standby") << "FailoverState" << QVariantList{trigger("NVR", "FailoverState", {}, "Standby")}
                                      << "Failover server on standby";
    QTest::newRow("storage full") << "StorageCapacity" << QVariantList{trigger("NVR", "StorageCapacity", {}, "Exhausted")}
                                  << "Storage full";
    QTest::newRow("trial expired") << "SysLicense" << QVariantList{trigger("NVR", "SysLicense", {}, "TrialExpired")}
                                   << "Trial expired";
    QTest::newRow("g-sensor whatever the value") << "Gsensor" << QVariantList() << "Abnormal G-sensor motion (Mobile NVR)";
    QTest::newRow("gps link") << "GpsConn" << QVariantList{trigger("Bus 4", "GpsConn", {}, "Lost")} << "GPS disconnected";
    QTest::newRow("type text is case-sensitive") << "motion" << QVariantList() << "motion";
}

void tst_AlarmTranslatedModel::triggerType()
{
    QFETCH(QString, type);
    QFETCH(QVariantList, sources);
    QFETCH(QString, text);

    AlarmModel source;
    AlarmTranslatedModel proxy;
    proxy.setSourceModel(&source);
    source.appendRow(alarmRow("Rule", sources, type, QVariantList(), QVariantList()));

    QCOMPARE(proxy.index(0, 0).data(AlarmModel::triggerTypeRole), QVariant(text));
}

void tst_AlarmTranslatedModel::triggerSources_data()
{
    QTest::addColumn<QVariantList>("sources");
    QTest::addColumn<QVariantList>("shownSources");

    QTest::newRow("camera input and output")
        << QVariantList{trigger("Lobby", "DI", 1, "High"), trigger("Lobby", "DO", 2, "Low")}
        << QVariantList{source("Lobby", "DI-1"), source("Lobby", "DO-2")};
    QTest::newRow("motion window") << QVariantList{trigger("Yard", "Motion", 3)} << QVariantList{source("Yard", "Window 3")};
    QTest::newRow("vca rule by its name") << QVariantList{trigger("Yard", "VCA", "Loitering")}
                                          << QVariantList{source("Yard", "VCA-Loitering detection")};
    QTest::newRow("thermal rule and area") << QVariantList{trigger("Tank", "Thermal", "TemperatureRiseAlarm", 4)}
                                           << QVariantList{source("Tank", "Temperature rise alarm 4")};
    QTest::newRow("numbered i/o device output") << QVariantList{ioTrigger("ExtIODevice", 2, 1)}
                                                << QVariantList{source("IO box", "DO-2")};
    QTest::newRow("named i/o device input") << QVariantList{ioTrigger("ExtIODevice", "Door contact", 0)}
                                            << QVariantList{source("IO box", "Door contact")};
    QTest::newRow("status in words") << QVariantList{trigger("Lobby", "CamConn", {}, "Lost")}
                                     << QVariantList{source("Lobby", "Camera disconnected")};
    QTest::newRow("position triggers in capitals") << QVariantList{trigger("Bus 4", "GPSConn", {}, "0"),
                                                                   trigger("Bus 4", "GPSSpeed", {}, "80")}
                                                   << QVariantList{source("Bus 4", "GPS disconnected"),
                                                                   source("Bus 4", "Speeding")};
    QTest::newRow("other kinds join index and value") << QVariantList{trigger("NVR", "Guardian", 3, "Visitors")}
                                                      << QVariantList{source("NVR", "3 Visitors")};
    QTest::newRow("only a value") << QVariantList{trigger("NVR", "ExtTCPMessage", {}, "OPEN")}
                                  << QVariantList{source("NVR", "OPEN")};
    QTest::newRow("neither index nor value") << QVariantList{trigger("Panel", "VirtualTrigger")}
                                             << QVariantList{source("Panel", "")};
    QTest::newRow("no triggers") << QVariantList() << QVariantList();
}

void tst_AlarmTranslatedModel::triggerSources()
{
    QFETCH(QVariantList, sources);
    QFETCH(QVariantList, shownSources);

    AlarmModel model;
    AlarmTranslatedModel proxy;
    proxy.setSourceModel(&model);
    model.appendRow(alarmRow("Rule", sources, "", QVariantList(), QVariantList()));

    QCOMPARE(proxy.index(0, 0).data(AlarmModel::triggerSourceRole), QVariant(shownSources));
}

void tst_AlarmTranslatedModel::actionTypes_data()
{
    QTest::addColumn<QVariantList>("types");
    QTest::addColumn<QVariantList>("texts");

    QTest::newRow("mail and http") << QVariantList{"SendMail", "HTTP"} << QVariantList{"Email", "Send HTTP requests"};
    QTest::newRow("client notifications")
        << QVariantList{"ClientNotificationGotoLiveStream", "ClientNotificationGotoEMap", "ClientNotificationSoundTheAlarm"}
        << QVariantList{"Send live streaming", "Go to E-Map", "Sound the alarm"};
    QTest::newRow("decode-only kinds") << QVariantList{"AddBookmark", "PlayIPAudio", "MobileNotification"}
                                       << QVariantList{"Add bookmark", "Play audio file with network audio device",
                                                       "Send notification to mobile device"};
    QTest::newRow("unknown type shown as it is") << QVariantList{"Teleport", "sendmail"}
                                                 << QVariantList{"Teleport", "sendmail"};
    QTest::newRow("whole action models") << QVariantList{QVariantMap{{"actionType", "SMS"}, {"actionTarget", QVariantList()}}}
                                         << QVariantList{"GSM short message"};
    QTest::newRow("empty list") << QVariantList() << QVariantList();
}

void tst_AlarmTranslatedModel::actionTypes()
{
    QFETCH(QVariantList, types);
    QFETCH(QVariantList, texts);

    AlarmModel model;
    AlarmTranslatedModel proxy;
    proxy.setSourceModel(&model);
    model.appendRow(alarmRow("Rule", QVariantList(), "", types, QVariantList()));

    QCOMPARE(proxy.index(0, 0).data(AlarmModel::actionTypeRole), QVariant(texts));
}

void tst_AlarmTranslatedModel::actionTargets_data()
{
    QTest::addColumn<QVariantList>("targets");
    QTest::addColumn<QVariantList>("shownTargets");

    const QVariantMap post{{"target", "POST Method"}, {"action", "http://hook/door"}, {"needAuth", "false"},
                           {"user", ""}, {"pwd", ""}, {"post", true}, {"contentType", ""}, {"httpContent", ""}};
    const QVariantMap triggerCamera{{"target", "Ereignisauslösende Kamera"}, {"action", ""}, {"camId", ""},
                                    {"includeTriggerCam", true}};
    const QVariantMap popupCamera{{"target", "Lobby"}, {"action", ""}, {"camId", "7"}, {"includeTriggerCam", false}};
    const QVariantMap allRoles{{"target", "Alle Rollen"}, {"action", ""}, {"pushAll", true}};
    const QVariantMap audio{{"target", "Hall speaker"}, {"action", "chime.mp3"}, {"fileId", 2}, {"ipAudioId", 5}};

    QTest::newRow("mail without copies") << QVariantList{QVariant(QVariantList{mailTarget("a@site;b@site", "")})}
                                         << QVariantList{QVariant(QVariantList{shown("To: a@site;b@site", "")})};
    QTest::newRow("mail with copies") << QVariantList{QVariant(QVariantList{mailTarget("a@site", "boss@site")})}
                                      << QVariantList{QVariant(QVariantList{shown("To: a@site", "Cc: boss@site")})};
    QTest::newRow("outputs to trigger and to normal")
        << QVariantList{QVariant(QVariantList{doTarget("IO box", "Siren", "1"), doTarget("IO box", "Lamp", "0")})}
        << QVariantList{QVariant(QVariantList{shown("IO box", "Set Siren to Trigger"), shown("IO box", "Set Lamp to Normal")})};
    QTest::newRow("output value in words and unknown")
        << QVariantList{QVariant(QVariantList{doTarget("IO box", "Siren", "Trigger"), doTarget("IO box", "Lamp", "Blink")})}
        << QVariantList{QVariant(QVariantList{shown("IO box", "Set Siren to Trigger"), shown("IO box", "Set Lamp to Blink")})};
    QTest::newRow("unnamed output by number") << QVariantList{QVariant(QVariantList{doTarget("IO box", "", "1")})}
                                              << QVariantList{QVariant(QVariantList{shown("IO box", "Set DO-1 to Trigger")})};
    QTest::newRow("http method and address") << QVariantList{QVariant(QVariantList{post})}
                                             << QVariantList{QVariant(QVariantList{shown("POST Method", "http://hook/door")})};
    QTest::newRow("texts decoded in another language shown in the current one")
        << QVariantList{QVariant(QVariantList{triggerCamera, popupCamera}), QVariant(QVariantList{allRoles})}
        << QVariantList{QVariant(QVariantList{shown("Event triggering camera", ""), shown("Lobby", "")}),
                        QVariant(QVariantList{shown("All roles", "")})};
    QTest::newRow("other kinds keep target and action") << QVariantList{QVariant(QVariantList{audio})}
                                                        << QVariantList{QVariant(QVariantList{shown("Hall speaker", "chime.mp3")})};
    QTest::newRow("whole action models") << QVariantList{QVariantMap{{"actionType", "SMS"},
                                                                     {"actionTarget", QVariantList{shown("0912", "")}}}}
                                         << QVariantList{QVariant(QVariantList{shown("0912", "")})};
    QTest::newRow("action without targets") << QVariantList{QVariant(QVariantList())} << QVariantList{QVariant(QVariantList())};
}

void tst_AlarmTranslatedModel::actionTargets()
{
    QFETCH(QVariantList, targets);
    QFETCH(QVariantList, shownTargets);

    AlarmModel model;
    AlarmTranslatedModel proxy;
    proxy.setSourceModel(&model);
    model.appendRow(alarmRow("Rule", QVariantList(), "", QVariantList(), targets));

    QCOMPARE(proxy.index(0, 0).data(AlarmModel::actionTargetRole), QVariant(shownTargets));
}

void tst_AlarmTranslatedModel::otherRolesPassThrough()
{
    Chain chain;
    const QList<int> rawRoles{Qt::DisplayRole, Qt::EditRole, AlarmModel::idRole, AlarmModel::nameRole,
                              AlarmModel::enabledRole, AlarmModel::scheduleRole, AlarmModel::revisionRole,
                              AlarmModel::descriptionRole, AlarmModel::triggerXmlRole, AlarmModel::actionXmlRole};
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
    QTest::newRow("texts where lists belong") << QVariant("Lobby") << QVariant() << QVariant("SendMail")
                                              << QVariant("guard@site") << emptyRow;
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
    chain.source.item(2)->setData(QVariantList{trigger("Gate", "CamConn", {}, "Connected")}, AlarmModel::triggerSourceRole);

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
