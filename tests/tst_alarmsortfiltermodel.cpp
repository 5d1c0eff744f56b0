#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QStandardItem>
#include <QtTest>

#include "AlarmModel.h"
#include "AlarmRows.h"
#include "AlarmSortFilterModel.h"
#include "AlarmTranslatedModel.h"

// The alarm list as QML binds it: keyword filtering and sorting over the display texts of the whole chain
// AlarmModel -> AlarmTranslatedModel -> AlarmSortFilterModel.
class tst_AlarmSortFilterModel : public QObject
{
    Q_OBJECT
private slots:
    void filter_data();
    void filter();
    void sort_data();
    void sort();
    void emptyRightScheduleNamesNothing();
    void listComparisons_data();
    void listComparisons();
    void filterFollowsRowChanges();
    void applyFilterKeepsTheSortOrder();
    void sortFollowsRowChanges();
};

using namespace AlarmRows;

namespace {

QVariant targets(const QVariantList& list)
{
    return QVariant(list);
}

// Typed so that a single-element list never decays into its element.
QStandardItem* rule(const QString& name, const QVariantList& sources, const QString& type,
                    const QVariantList& actionTypes, const QVariantList& actionTargets, const QVariantList& schedule)
{
    return alarmRow(name, sources, type, actionTypes, actionTargets, schedule);
}

// Four rules whose orders differ for every sort role; raw values as the codecs decode them.
void addRules(AlarmModel& model)
{
    const QVariantMap mail{{"target", "guard@site"},
                           {"action", ""},
                           {"cc", ""},
                           {"senderName", ""},
                           {"from", ""},
                           {"subject", ""},
                           {"content", ""},
                           {"snapshotCameraList", QVariantList()}};
    const QVariantMap post{{"target", "POST Method"}, {"action", "http://hook"}, {"post", true}};
    const QVariantMap siren{{"target", "IO box"}, {"action", "SetDO"}, {"index", "Siren"}, {"value", "1"},
                            {"ioIndex", 1},       {"camId", "io-1"},   {"period", 0}};
    model.appendRow(rule("Front door", {trigger("Lobby", "DI", 1, "High")}, "DI", {"SendMail"}, {targets({mail})},
                         {"Office hours", "success", "{}"}));
    model.appendRow(rule("Back door", {trigger("Yard", "Motion", 2)}, "Motion", {"HTTP", "SetDO"},
                         {targets({post}), targets({siren})}, {"Night", "success", "{}"}));
    model.appendRow(rule("alpha", {trigger("Parking", "CamConn", {}, "Lost")}, "CamConn", {"Recording"},
                         {targets({shown("Gate cam", "")})}, {"Weekend", "success", "{}"}));
    model.appendRow(rule("Zeta", {}, "", {}, {}, {"Always", "success", "{}"}));
}

// A fifth rule, for the filter table: a name beyond ASCII and no schedule.
void addNonAsciiRule(AlarmModel& model)
{
    model.appendRow(rule("über alles", {}, "", {}, {}, {}));
}

QStringList names(const QAbstractItemModel& model)
{
    QStringList shown;
    for (int row = 0; row < model.rowCount(); ++row)
        shown.append(model.index(row, 0).data(AlarmModel::nameRole).toString());
    return shown;
}

struct Chain
{
    AlarmModel source;
    AlarmTranslatedModel texts;
    AlarmSortFilterModel list;
    QAbstractItemModelTester sourceTester{&source, QAbstractItemModelTester::FailureReportingMode::QtTest};
    QAbstractItemModelTester textsTester{&texts, QAbstractItemModelTester::FailureReportingMode::QtTest};
    QAbstractItemModelTester listTester{&list, QAbstractItemModelTester::FailureReportingMode::QtTest};

    Chain()
    {
        texts.setSourceModel(&source);
        list.setSourceModel(&texts);
        addRules(source);
    }
};

} // namespace

void tst_AlarmSortFilterModel::filter_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QStringList>("shown");

    const QStringList all{"Front door", "Back door", "alpha", "Zeta", "über alles"};
    QTest::newRow("empty filter shows every rule") << "" << all;
    QTest::newRow("blanks only are empty keywords") << "  " << all;
    QTest::newRow("name") << "door" << QStringList{"Front door", "Back door"};
    QTest::newRow("case ignored") << "DOOR" << QStringList{"Front door", "Back door"};
    QTest::newRow("keywords joined by and") << "door mail" << QStringList{"Front door"};
    QTest::newRow("two blanks filter like one") << "door  mail" << QStringList{"Front door"};
    QTest::newRow("trigger type and source texts") << "CAM" << QStringList{"Front door", "alpha"};
    QTest::newRow("trigger source display value") << "window 2" << QStringList{"Back door"};
    QTest::newRow("action type text") << "record" << QStringList{"alpha"};
    QTest::newRow("raw action type is not searched") << "sendmail" << QStringList();
    QTest::newRow("mail target text") << "to: guard" << QStringList{"Front door"};
    QTest::newRow("output action text") << "siren trigger" << QStringList{"Back door"};
    QTest::newRow("schedule name") << "night" << QStringList{"Back door"};
    QTest::newRow("schedule status") << "success" << QStringList{"Front door", "Back door", "alpha", "Zeta"};
    QTest::newRow("nothing matches") << "zzz" << QStringList();
    QTest::newRow("one keyword of two matches nothing") << "door zzz" << QStringList();
    QTest::newRow("a keyword never spans two texts") << "door\u001Flobby" << QStringList();
    QTest::newRow("case folding beyond ascii") << "ÜBER" << QStringList{"über alles"};
}

void tst_AlarmSortFilterModel::filter()
{
    QFETCH(QString, filter);
    QFETCH(QStringList, shown);

    Chain chain;
    addNonAsciiRule(chain.source);
    chain.list.applyFilter(filter);

    QCOMPARE(names(chain.list), shown);
}

void tst_AlarmSortFilterModel::sort_data()
{
    QTest::addColumn<int>("role");
    QTest::addColumn<Qt::SortOrder>("order");
    QTest::addColumn<QStringList>("shown");

    QTest::newRow("name by character code")
        << int(AlarmModel::nameRole) << Qt::AscendingOrder << QStringList{"Back door", "Front door", "Zeta", "alpha"};
    QTest::newRow("name descending") << int(AlarmModel::nameRole) << Qt::DescendingOrder
                                     << QStringList{"alpha", "Zeta", "Front door", "Back door"};
    QTest::newRow("first trigger device, none first") << int(AlarmModel::triggerSourceRole) << Qt::AscendingOrder
                                                      << QStringList{"Zeta", "Front door", "alpha", "Back door"};
    QTest::newRow("trigger type text") << int(AlarmModel::triggerTypeRole) << Qt::AscendingOrder
                                       << QStringList{"Zeta", "Front door", "alpha", "Back door"};
    QTest::newRow("action type texts") << int(AlarmModel::actionTypeRole) << Qt::AscendingOrder
                                       << QStringList{"Zeta", "Front door", "Back door", "alpha"};
    QTest::newRow("first action target texts") << int(AlarmModel::actionTargetRole) << Qt::AscendingOrder
                                               << QStringList{"Zeta", "alpha", "Back door", "Front door"};
    QTest::newRow("schedule name") << int(AlarmModel::scheduleRole) << Qt::AscendingOrder
                                   << QStringList{"Zeta", "Back door", "Front door", "alpha"};
    QTest::newRow("schedule name descending") << int(AlarmModel::scheduleRole) << Qt::DescendingOrder
                                              << QStringList{"alpha", "Front door", "Back door", "Zeta"};
}

void tst_AlarmSortFilterModel::sort()
{
    QFETCH(int, role);
    QFETCH(Qt::SortOrder, order);
    QFETCH(QStringList, shown);

    Chain chain;
    chain.list.sortByRole(role, order);

    QCOMPARE(names(chain.list), shown);
    QCOMPARE(chain.list.sortRole(), role);
}

void tst_AlarmSortFilterModel::emptyRightScheduleNamesNothing()
{
    // Given a rule with a schedule above one whose schedule list is empty
    AlarmModel source;
    AlarmTranslatedModel texts;
    AlarmSortFilterModel list;
    texts.setSourceModel(&source);
    list.setSourceModel(&texts);
    source.appendRow(rule("Named", {}, "", {}, {}, {"Night", "success", "{}"}));
    source.appendRow(rule("Unnamed", {}, "", {}, {}, {}));

    // When sorted by schedule either way
    // Then neither sorts before the other: an empty list counts as the empty name on the right, and as not
    // less on the left, so the stable sort keeps the rows where they were
    list.sortByRole(AlarmModel::scheduleRole, Qt::AscendingOrder);
    QCOMPARE(names(list), QStringList({"Named", "Unnamed"}));
    list.sortByRole(AlarmModel::scheduleRole, Qt::DescendingOrder);
    QCOMPARE(names(list), QStringList({"Named", "Unnamed"}));
}

void tst_AlarmSortFilterModel::listComparisons_data()
{
    QTest::addColumn<QString>("comparison");
    QTest::addColumn<QVariantList>("a");
    QTest::addColumn<QVariantList>("b");
    QTest::addColumn<QList<bool>>("lessBothWays");

    const auto sources = [](const QStringList& devices) {
        QVariantList list;
        for (const QString& device : devices)
            list.append(QVariantMap{{"devName", device}, {"displayValue", ""}});
        return list;
    };
    const auto actionTargets = [](const QStringList& firstTargets) {
        QVariantList list;
        for (const QString& first : firstTargets)
            list.append(targets({shown(first, ""), shown("zzz", "")}));
        return list;
    };

    QTest::newRow("sources: none before some")
        << "sources" << QVariantList() << sources({"A"}) << QList<bool>{true, false};
    QTest::newRow("sources: only the first device counts")
        << "sources" << sources({"Lobby", "A"}) << sources({"Lobby", "Z"}) << QList<bool>{false, false};
    QTest::newRow("sources: case-sensitive")
        << "sources" << sources({"Zeta"}) << sources({"alpha"}) << QList<bool>{true, false};
    QTest::newRow("types: first difference decides")
        << "types" << QVariantList{"Email", "Zap"} << QVariantList{"Email", "Bell"} << QList<bool>{false, true};
    QTest::newRow("types: prefix first") << "types" << QVariantList{"Email"} << QVariantList{"Email", "Bell"}
                                         << QList<bool>{true, false};
    QTest::newRow("types: equal lists") << "types" << QVariantList{"Email"} << QVariantList{"Email"}
                                        << QList<bool>{false, false};
    QTest::newRow("targets: first target of each action")
        << "targets" << actionTargets({"Gate", "B"}) << actionTargets({"Gate", "A"}) << QList<bool>{false, true};
    QTest::newRow("targets: prefix first")
        << "targets" << actionTargets({"Gate"}) << actionTargets({"Gate", "A"}) << QList<bool>{true, false};
    QTest::newRow("targets: no actions before some")
        << "targets" << QVariantList() << actionTargets({"A"}) << QList<bool>{true, false};
}

void tst_AlarmSortFilterModel::listComparisons()
{
    QFETCH(QString, comparison);
    QFETCH(QVariantList, a);
    QFETCH(QVariantList, b);
    QFETCH(QList<bool>, lessBothWays);

    const AlarmSortFilterModel list;
    const auto less = [&](const QVariantList& left, const QVariantList& right) {
        if (comparison == QLatin1String("sources"))
            return list.triggerSourceLessThan(left, right);
        if (comparison == QLatin1String("types"))
            return list.actionTypeLessThan(left, right);
        return list.actionTargetLessThan(left, right);
    };
    QCOMPARE(QList<bool>({less(a, b), less(b, a)}), lessBothWays);
}

void tst_AlarmSortFilterModel::filterFollowsRowChanges()
{
    // Given the list sorted by name and filtered for "door"
    Chain chain;
    chain.list.sortByRole(AlarmModel::nameRole, Qt::AscendingOrder);
    chain.list.applyFilter("door");
    QCOMPARE(names(chain.list), QStringList({"Back door", "Front door"}));

    // When a rule is renamed into the filter, another renamed out of it, one added and one removed
    chain.source.item(3)->setData("Side door", AlarmModel::nameRole);
    chain.source.item(0)->setData("Front gate", AlarmModel::nameRole);
    chain.source.appendRow(rule("Cellar door", {}, "", {}, {}, {}));
    chain.source.removeRow(1);

    // Then the list follows each change
    QCOMPARE(names(chain.list), QStringList({"Cellar door", "Side door"}));

    // When an action of a listed rule changes so that its display text matches a second keyword
    chain.list.applyFilter("door mail");
    QCOMPARE(names(chain.list), QStringList());
    chain.source.item(2)->setData(QVariantList{"SendMail"}, AlarmModel::actionTypeRole);

    // Then the rule is shown by that display text
    QCOMPARE(names(chain.list), QStringList({"Side door"}));
}

void tst_AlarmSortFilterModel::applyFilterKeepsTheSortOrder()
{
    // Given the list sorted by name, descending
    Chain chain;
    chain.list.sortByRole(AlarmModel::nameRole, Qt::DescendingOrder);
    QSignalSpy layoutChanges(&chain.list, &QAbstractItemModel::layoutChanged);

    // When filtered
    chain.list.applyFilter("door");

    // Then the shown rules keep the order and no extra reordering was announced
    QCOMPARE(names(chain.list), QStringList({"Front door", "Back door"}));
    QCOMPARE(chain.list.sortOrder(), Qt::DescendingOrder);
    QCOMPARE(layoutChanges.count(), 0);
}

void tst_AlarmSortFilterModel::sortFollowsRowChanges()
{
    // Given the list sorted by first trigger device
    Chain chain;
    chain.list.sortByRole(AlarmModel::triggerSourceRole, Qt::AscendingOrder);
    QCOMPARE(names(chain.list), QStringList({"Zeta", "Front door", "alpha", "Back door"}));

    // When a rule's first device is renamed, a rule is added and another removed
    chain.source.item(0)->setData(QVariantList{trigger("Zoo", "DI", 1, "High")}, AlarmModel::triggerSourceRole);
    chain.source.insertRow(0, rule("Attic", {trigger("Attic", "Motion", 1)}, "Motion", {}, {}, {}));
    chain.source.removeRow(4);

    // Then the order follows
    QCOMPARE(names(chain.list), QStringList({"Attic", "alpha", "Back door", "Front door"}));

    // When the source reorders its rows, then is emptied and refilled
    chain.source.setSortRole(AlarmModel::nameRole);
    chain.source.sort(0, Qt::DescendingOrder);
    QCOMPARE(names(chain.list), QStringList({"Attic", "alpha", "Back door", "Front door"}));
    chain.source.clear();
    addRules(chain.source);

    // Then the order is that of the new rows, and another role sorts by its own keys
    QCOMPARE(names(chain.list), QStringList({"Zeta", "Front door", "alpha", "Back door"}));
    chain.list.sortByRole(AlarmModel::actionTargetRole, Qt::AscendingOrder);
    QCOMPARE(names(chain.list), QStringList({"Zeta", "alpha", "Back door", "Front door"}));
}

QTEST_MAIN(tst_AlarmSortFilterModel)
#include "tst_alarmsortfiltermodel.moc"
