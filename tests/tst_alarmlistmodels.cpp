#include <QAbstractItemModelTester>
#include <QMetaEnum>
#include <QSignalSpy>
#include <QStandardItem>
#include <QTranslator>
#include <QtTest>

#include "AlarmModel.h"
#include "AlarmSortFilterModel.h"
#include "AlarmTranslatedModel.h"
#include "AlarmViewCellTriggerModel.h"

// The alarm list as QML binds it, AlarmModel -> AlarmTranslatedModel -> AlarmSortFilterModel: role names,
// display texts, keyword filter, sorting, and all of them following row changes and a language switch.
class tst_AlarmListModels : public QObject
{
    Q_OBJECT
private slots:
    void roleNamesAreTheRoleEnums();
    void viewCellPutsNewestTriggerFirst();
    void displayTexts_data();
    void displayTexts();
    void filter_data();
    void filter();
    void sort_data();
    void sort();
    void listFollowsRowChanges();
    void listFollowsALanguageSwitch_data();
    void listFollowsALanguageSwitch();
};

namespace {

using Tester = QAbstractItemModelTester;
constexpr auto QT_TEST_REPORTING = QAbstractItemModelTester::FailureReportingMode::QtTest;

// Raw role values as the codecs decode them.
QVariantMap trigger(const QString& device, const QString& type, const QVariant& index = {}, const QVariant& value = {},
                    const QVariant& ioKind = {})
{
    QVariantMap map{{"devName", device}, {"trigger", type}, {"index", index}, {"value", value}, {"typeDIO", ioKind}};
    map.removeIf([](const auto& entry) { return !entry.value().isValid(); });
    return map;
}

QVariantMap target(const QString& target, const QString& action) { return {{"target", target}, {"action", action}}; }

QVariantMap mail(const QString& to, const QString& cc) { return {{"target", to}, {"action", ""}, {"cc", cc}}; }

QVariantMap output(const QString& name, const QString& value)
{
    return {{"target", "IO box"}, {"action", "SetDO"}, {"index", name}, {"value", value}, {"ioIndex", 1}};
}

QStandardItem* alarmRow(const QString& name, const QVariant& sources, const QVariant& type, const QVariant& actionTypes,
                        const QVariant& actionTargets, const QString& schedule = "Always")
{
    auto* item = new QStandardItem;
    const QVariantList values{name.toLower(), name, true, sources, type, actionTypes, actionTargets,
                              QVariantList{schedule, "success", "{}"}, qint64(7), "at the gate", "<TriggerList/>",
                              "<ActionList/>"};
    for (int role = AlarmModel::idRole; role <= AlarmModel::actionXmlRole; ++role)
        item->setData(values.at(role - AlarmModel::idRole), role);
    return item;
}

// One row as one line: name | device:value, ... | trigger type | action types | [target/action; ...] per action.
QString rendered(const QModelIndex& row)
{
    QStringList sources;
    QStringList targets;
    for (const QVariant& source : row.data(AlarmModel::triggerSourceRole).toList())
        sources << source.toMap().value("devName").toString() + ':' + source.toMap().value("displayValue").toString();
    for (const QVariant& action : row.data(AlarmModel::actionTargetRole).toList()) {
        QStringList shown;
        for (const QVariant& element : action.toList())
            shown << element.toMap().value("target").toString() + '/' + element.toMap().value("action").toString();
        targets << '[' + shown.join("; ") + ']';
    }
    return QStringList{row.data(AlarmModel::nameRole).toString(), sources.join(", "),
                       row.data(AlarmModel::triggerTypeRole).toString(),
                       row.data(AlarmModel::actionTypeRole).toStringList().join(", "), targets.join(' ')}
        .join(" | ");
}

QStringList renderedRows(const QAbstractItemModel& model)
{
    QStringList rows;
    for (int row = 0; row < model.rowCount(); ++row)
        rows << rendered(model.index(row, 0));
    return rows;
}

QStringList names(const QAbstractItemModel& model)
{
    QStringList shown;
    for (int row = 0; row < model.rowCount(); ++row)
        shown << model.index(row, 0).data(AlarmModel::nameRole).toString();
    return shown;
}

// The whole chain over five rules whose orders differ for every sort role, each model under the tester.
struct Chain
{
    AlarmModel source;
    AlarmTranslatedModel texts;
    AlarmSortFilterModel list;
    Tester sourceTester{&source, QT_TEST_REPORTING};
    Tester textsTester{&texts, QT_TEST_REPORTING};
    Tester listTester{&list, QT_TEST_REPORTING};

    explicit Chain(bool withRules = true)
    {
        texts.setSourceModel(&source);
        list.setSourceModel(&texts);
        if (!withRules)
            return;
        const QVariantMap post{{"target", "POST Method"}, {"action", "http://hook"}, {"post", true}};
        source.appendRow(alarmRow("Front door", QVariantList{trigger("Lobby", "DI", 1, "High")}, "DI",
                                  QVariantList{"SendMail"}, QVariantList{QVariant(QVariantList{mail("guard@site", "")})},
                                  "Office hours"));
        source.appendRow(alarmRow("Back door", QVariantList{trigger("Yard", "Motion", 2)}, "Motion",
                                  QVariantList{"HTTP", "SetDO"},
                                  QVariantList{QVariantList{post}, QVariantList{output("Siren", "1")}}, "Night"));
        source.appendRow(alarmRow("alpha", QVariantList{trigger("Parking", "CamConn", {}, "Lost")}, "CamConn",
                                  QVariantList{"Recording"}, QVariantList{QVariant(QVariantList{target("Gate cam", "")})},
                                  "Weekend"));
        source.appendRow(alarmRow("Zeta", QVariantList(), "", QVariantList(), QVariantList()));
        // Same first device as "Front door": only the first device is a sort key.
        source.appendRow(alarmRow("über alles",
                                  QVariantList{trigger("Lobby", "Motion", 1), trigger("Aisle", "Motion", 3)},
                                  "Motion", QVariantList(), QVariantList(), "Holiday"));
    }
};

} // namespace

void tst_AlarmListModels::roleNamesAreTheRoleEnums()
{
    // QML binds the roles by these names, the proxies by their numbers.
    const auto namesOf = [](const QMetaEnum& roles) {
        QHash<int, QByteArray> table;
        for (int i = 0; i < roles.keyCount(); ++i)
            table.insert(roles.value(i), roles.key(i));
        return table;
    };
    Chain chain(false);
    QCOMPARE(chain.list.roleNames(), namesOf(QMetaEnum::fromType<AlarmModel::AlarmRoles>()));
    QCOMPARE(AlarmViewCellTriggerModel().roleNames(),
             namesOf(QMetaEnum::fromType<AlarmViewCellTriggerModel::ViewCellRoles>()));
}

void tst_AlarmListModels::viewCellPutsNewestTriggerFirst()
{
    AlarmViewCellTriggerModel model;
    Tester tester(&model, QT_TEST_REPORTING);
    model.insert("a", "Alpha", 1);
    model.insert("", "", -1);
    model.insert("c", "Gamma", 3);
    QStringList rows;
    for (int row = 0; row < model.rowCount(); ++row) {
        for (int role : {AlarmViewCellTriggerModel::idRole, AlarmViewCellTriggerModel::nameRole, AlarmViewCellTriggerModel::iconTypeRole})
            rows << model.index(row, 0).data(role).toString();
    }
    QCOMPARE(rows.join('/'), "c/Gamma/3///-1/a/Alpha/1");
}

void tst_AlarmListModels::displayTexts_data()
{
    QTest::addColumn<QVariantList>("raw"); // trigger sources, trigger type, action types, action targets
    QTest::addColumn<QString>("shown");

    const auto row = [](const char* name, const QVariantList& sources, const QString& type, const QVariantList& actions,
                        const QVariantList& targets, const QString& shown) {
        QTest::newRow(name) << QVariantList{QVariant(sources), type, QVariant(actions), QVariant(targets)} << shown;
    };
    row("type table, camera input and mail with and without copies", {trigger("Lobby", "DI", 1, "High")}, "DI",
        {"SendMail"}, {QVariant(QVariantList{mail("a@site;b@site", "boss@site"), mail("c@site", "")})},
        "Rule | Lobby:DI-1 | Camera DI | Email | [To: a@site;b@site/Cc: boss@site; To: c@site/]");
    row("unknown kinds shown as they are, other sources join index and value",
        {trigger("NVR", "Guardian", 3, "Visitors"), trigger("Panel", "VirtualTrigger")}, "NewEventOfNextYear",
        {"Teleport", "sendmail"}, {QVariant(QVariantList{target("Hall speaker", "chime.mp3")})},
        "Rule | NVR:3 Visitors, Panel: | NewEventOfNextYear | Teleport, sendmail | [Hall speaker/chime.mp3]");
    row("state texts by the value of the trigger of that type",
        {trigger("Lobby", "RecStatus", {}, "Stop"), trigger("Yard", "CamConn", {}, "Lost")}, "RecStatus",
        {"ClientNotificationGotoLiveStream", "ClientNotificationSoundTheAlarm"}, {},
        "Rule | Lobby:Stop recording, Yard:Camera disconnected | Stop recording | Send live streaming, Sound the "
        "alarm | ");
    row("unknown state word falls back to the raw type", {trigger("Gate", "CamConn", {}, "Sleeping")}, "CamConn", {},
        {}, "Rule | Gate:Sleeping | CamConn |  | ");
    row("i/o device: kind as number, named input, type of the last one", {trigger("IO box", "ExtIODevice", "Door contact", "High", 0), trigger("IO box", "ExtIODevice", 2, "High", 1)},
        "ExtIODevice", {}, {}, "Rule | IO box:Door contact, IO box:DO-2 | DI/DO Device DO |  | ");
    row("analytics rule kinds through the type table",
        {trigger("Yard", "VCA", "Loitering"), trigger("Tank", "Thermal", "TemperatureRiseAlarm", 4)}, "LineDetection",
        {}, {}, "Rule | Yard:VCA-Loitering detection, Tank:Temperature rise alarm 4 | Line crossing detection |  | ");
    row("position triggers written in capitals", {trigger("Bus", "GPSConn", {}, "0"), trigger("Bus", "GPSSpeed", {}, "80")},
        "GpsConn", {}, {}, "Rule | Bus:GPS disconnected, Bus:Speeding | GPS disconnected |  | ");
    row("outputs in digits, words, unknown values and by number", {}, "", {"SetDO"},
        {QVariant(QVariantList{output("Siren", "1"), output("Lamp", "Normal"), output("Fan", "Blink"), output("", "0")})},
        "Rule |  |  | Set DO status | [IO box/Set Siren to Trigger; IO box/Set Lamp to Normal; IO box/Set Fan to Blink; "
        "IO box/Set DO-1 to Normal]");
    const QVariantMap get{{"target", "GET-Methode"}, {"action", "http://hook"}, {"post", false}};
    const QVariantMap triggerCamera{{"target", "Ereignisauslösende Kamera"}, {"action", ""}, {"includeTriggerCam", true}};
    const QVariantMap allRoles{{"target", "Alle Rollen"}, {"action", ""}, {"pushAll", true}};
    row("texts decoded in another language shown in the current one", {}, "",
        {"HTTP", "ClientNotificationGotoEMap", "MobileNotification"},
        {QVariantList{get}, QVariantList{triggerCamera, target("Lobby", "")}, QVariantList{allRoles}},
        "Rule |  |  | Send HTTP requests, Go to E-Map, Send notification to mobile device | [GET Method/http://hook] "
        "[Event triggering camera/; Lobby/] [All roles/]");
    const QVariantMap sms{{"actionType", "SMS"}, {"actionTarget", QVariantList{target("0912", "")}}};
    row("whole action models", {}, "", {sms}, {sms}, "Rule |  |  | GSM short message | [0912/]");
    QTest::newRow("texts or numbers where lists belong give empty texts")
        << QVariantList{"Lobby", QVariantList{1}, "SendMail", QVariantList{3}} << "Rule |  |  |  | []";
}

void tst_AlarmListModels::displayTexts()
{
    QFETCH(QVariantList, raw);
    QFETCH(QString, shown);

    Chain chain(false);
    chain.source.appendRow(alarmRow("Rule", raw.at(0), raw.at(1), raw.at(2), raw.at(3)));

    QCOMPARE(renderedRows(chain.list), QStringList{shown});
    // Every other role passes through untouched.
    for (int role = Qt::DisplayRole; role <= AlarmModel::actionXmlRole; ++role) {
        if (role < AlarmModel::triggerSourceRole || role > AlarmModel::actionTargetRole)
            QCOMPARE(chain.list.index(0, 0).data(role), chain.source.index(0, 0).data(role));
    }
}

void tst_AlarmListModels::filter_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QStringList>("shown");

    QTest::newRow("empty filter shows every rule") << "" << QStringList{"Front door", "Back door", "alpha", "Zeta", "über alles"};
    QTest::newRow("keywords joined by and, case ignored, two blanks like one") << "DOOR  mail" << QStringList{"Front door"};
    QTest::newRow("trigger source display value") << "window 2" << QStringList{"Back door"};
    QTest::newRow("trigger type text") << "detection" << QStringList{"Back door", "über alles"};
    QTest::newRow("action type text, not the raw type") << "sendmail" << QStringList();
    QTest::newRow("action target texts") << "siren trigger" << QStringList{"Back door"};
    QTest::newRow("schedule name") << "night" << QStringList{"Back door"};
    QTest::newRow("a keyword never spans two texts") << "door\u001Flobby" << QStringList();
    QTest::newRow("case folding beyond ascii") << "ÜBER" << QStringList{"über alles"};
}

void tst_AlarmListModels::filter()
{
    QFETCH(QString, filter);
    QFETCH(QStringList, shown);

    Chain chain;
    chain.list.applyFilter(filter);

    QCOMPARE(names(chain.list), shown);
}

void tst_AlarmListModels::sort_data()
{
    QTest::addColumn<int>("role");
    QTest::addColumn<Qt::SortOrder>("order");
    QTest::addColumn<QStringList>("shown");

    const auto row = [](const char* name, int role, Qt::SortOrder order, const QStringList& shown) {
        QTest::newRow(name) << role << order << shown;
    };
    row("name by character code", AlarmModel::nameRole, Qt::AscendingOrder,
        {"Back door", "Front door", "Zeta", "alpha", "über alles"});
    row("name descending", AlarmModel::nameRole, Qt::DescendingOrder,
        {"über alles", "alpha", "Zeta", "Front door", "Back door"});
    row("first trigger device, none first", AlarmModel::triggerSourceRole, Qt::AscendingOrder,
        {"Zeta", "Front door", "über alles", "alpha", "Back door"});
    row("trigger type text", AlarmModel::triggerTypeRole, Qt::AscendingOrder,
        {"Zeta", "Front door", "alpha", "Back door", "über alles"});
    row("action type texts, none first", AlarmModel::actionTypeRole, Qt::AscendingOrder,
        {"Zeta", "über alles", "Front door", "Back door", "alpha"});
    row("first target of each action", AlarmModel::actionTargetRole, Qt::AscendingOrder,
        {"Zeta", "über alles", "alpha", "Back door", "Front door"});
    row("schedule name descending", AlarmModel::scheduleRole, Qt::DescendingOrder,
        {"alpha", "Front door", "Back door", "über alles", "Zeta"});
}

void tst_AlarmListModels::sort()
{
    QFETCH(int, role);
    QFETCH(Qt::SortOrder, order);
    QFETCH(QStringList, shown);

    Chain chain;
    chain.list.sortByRole(role, order);

    QCOMPARE(names(chain.list), shown);
}

void tst_AlarmListModels::listFollowsRowChanges()
{
    // Given the list sorted by name, filtered, and every row read once, so that texts and keys are kept
    Chain chain;
    chain.list.sortByRole(AlarmModel::nameRole, Qt::AscendingOrder);
    chain.list.applyFilter("door");
    renderedRows(chain.texts);
    QSignalSpy textChanges(&chain.texts, &QAbstractItemModel::dataChanged);
    const auto sameAsANewChain = [&chain] {
        Chain fresh(false);
        fresh.texts.setSourceModel(&chain.source);
        fresh.list.sortByRole(chain.list.sortRole(), chain.list.sortOrder());
        fresh.list.applyFilter("door");
        return renderedRows(chain.texts) == renderedRows(fresh.texts)
               && renderedRows(chain.list) == renderedRows(fresh.list);
    };

    // When rules are renamed into and out of the filter, a camera comes back, one is added and one removed
    chain.source.item(3)->setData("Side door", AlarmModel::nameRole);
    chain.source.item(0)->setData("Front gate", AlarmModel::nameRole);
    chain.source.item(2)->setData(QVariantList{trigger("Parking", "CamConn", {}, "Connected")},
                                  AlarmModel::triggerSourceRole);
    chain.source.insertRow(0, alarmRow("Cellar door", QVariantList(), "Motion", QVariantList{"SMS"}, QVariantList()));
    chain.source.removeRow(2);

    // Then the list follows each change, and views hear that the camera's type text changed with its list
    QVERIFY(sameAsANewChain());
    QCOMPARE(names(chain.list), QStringList({"Cellar door", "Side door"}));
    QCOMPARE(chain.texts.index(2, 0).data(AlarmModel::triggerTypeRole).toString(), "Camera connected");
    QList<int> alphaRoles;
    for (const QList<QVariant>& change : std::as_const(textChanges)) {
        if (change.at(0).toModelIndex().row() == 2)
            alphaRoles += change.at(2).value<QList<int>>();
    }
    std::sort(alphaRoles.begin(), alphaRoles.end());
    QCOMPARE(alphaRoles, QList<int>({AlarmModel::triggerSourceRole, AlarmModel::triggerTypeRole}));

    // When the source reorders its rows, then is emptied and refilled
    chain.source.setSortRole(AlarmModel::nameRole);
    chain.source.sort(0, Qt::DescendingOrder);
    QVERIFY(sameAsANewChain());
    chain.source.clear();
    chain.source.appendRow(alarmRow("Solo door", QVariantList(), "DI", QVariantList{"Recording"}, QVariantList()));

    // Then only the new rows show, with their own texts
    QVERIFY(sameAsANewChain());
    QCOMPARE(renderedRows(chain.list), QStringList{"Solo door |  | Camera DI | Start to record videos | "});
}

void tst_AlarmListModels::listFollowsALanguageSwitch_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("keyword");
    QTest::addColumn<QString>("shown");
    QTest::newRow("German of Austria")
        << "de_AT" << "bewegung"
        << "Door | Lobby:Fenster 1 | Bewegungserkennung | E-Mail, DO-Status setzen | [An: guard@site/Cc: boss@site] "
           "[IO box/Siren auf Normal setzen]";
    QTest::newRow("Chinese of Taiwan")
        << "zh_TW" << "移動"
        << "Door | Lobby:視窗 1 | 移動偵測 | 電子郵件, 設定 DO 狀態 | [收件者：guard@site/副本：boss@site] [IO box/將 Siren 設為正常]";
}

void tst_AlarmListModels::listFollowsALanguageSwitch()
{
    QFETCH(QString, locale);
    QFETCH(QString, keyword);
    QFETCH(QString, shown);

    // Given a rule read in English
    Chain chain(false);
    chain.source.appendRow(alarmRow("Door", QVariantList{trigger("Lobby", "Motion", 1)}, "Motion",
                                    QVariantList{"SendMail", "SetDO"},
                                    QVariantList{QVariantList{mail("guard@site", "boss@site")},
                                                 QVariantList{output("Siren", "0")}}));
    const QStringList english = renderedRows(chain.list);

    // When the host installs the catalogue of its locale, the way the README shows
    QTranslator translator;
    QVERIFY(translator.load(QLocale(locale), "alarmmanager", "_", ":/i18n"));
    QVERIFY(QCoreApplication::installTranslator(&translator));

    // Then the list shows and filters the translated texts, and the English ones once it is removed
    QCOMPARE(renderedRows(chain.list), QStringList{shown});
    chain.list.applyFilter(keyword);
    QCOMPARE(chain.list.rowCount(), 1);
    QVERIFY(QCoreApplication::removeTranslator(&translator));
    QCOMPARE(renderedRows(chain.list), QStringList());
    chain.list.applyFilter("motion");
    QCOMPARE(renderedRows(chain.list), english);
}

QTEST_GUILESS_MAIN(tst_AlarmListModels)
#include "tst_alarmlistmodels.moc"
