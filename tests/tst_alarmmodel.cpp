#include <QAbstractItemModelTester>
#include <QtTest>

#include "AlarmModel.h"
#include "AlarmViewCellTriggerModel.h"

// The role tables QML binds to by name and the proxies address by number, and the view-cell model's
// newest-first insertion.
class tst_AlarmModel : public QObject
{
    Q_OBJECT
private slots:
    void roleNames_data();
    void roleNames();
    void viewCellInsertPutsNewestFirst();
    void viewCellInsertTakesAnyValues();
};

void tst_AlarmModel::roleNames_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QStringList>("names");

    QTest::newRow("alarm model, 257 to 268 in order")
        << "alarm"
        << QStringList{"idRole", "nameRole", "enabledRole", "triggerSourceRole", "triggerTypeRole", "actionTypeRole",
                       "actionTargetRole", "scheduleRole", "revisionRole", "descriptionRole", "triggerXmlRole",
                       "actionXmlRole"};
    QTest::newRow("view-cell model, 257 to 259 in order") << "viewCell"
                                                          << QStringList{"idRole", "nameRole", "iconTypeRole"};
}

void tst_AlarmModel::roleNames()
{
    QFETCH(QString, model);
    QFETCH(QStringList, names);

    AlarmModel alarmModel;
    AlarmViewCellTriggerModel viewCellModel;
    const QHash<int, QByteArray> roles = model == QLatin1String("alarm") ? alarmModel.roleNames() : viewCellModel.roleNames();
    QHash<int, QByteArray> expected;
    for (int i = 0; i < names.size(); ++i)
        expected.insert(Qt::UserRole + 1 + i, names.at(i).toUtf8());
    QCOMPARE(roles, expected);
}

void tst_AlarmModel::viewCellInsertPutsNewestFirst()
{
    AlarmViewCellTriggerModel model;
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);

    model.insert(QStringLiteral("a"), QStringLiteral("Alpha"), 1);
    model.insert(QStringLiteral("b"), QStringLiteral("Beta"), 2);
    model.insert(QStringLiteral("c"), QStringLiteral("Gamma"), 3);

    QStringList rows;
    for (int row = 0; row < model.rowCount(); ++row) {
        const QModelIndex index = model.index(row, 0);
        rows.append(QStringLiteral("%1/%2/%3")
                        .arg(index.data(AlarmViewCellTriggerModel::idRole).toString(),
                             index.data(AlarmViewCellTriggerModel::nameRole).toString())
                        .arg(index.data(AlarmViewCellTriggerModel::iconTypeRole).toInt()));
    }
    QCOMPARE(rows, QStringList({"c/Gamma/3", "b/Beta/2", "a/Alpha/1"}));
}

void tst_AlarmModel::viewCellInsertTakesAnyValues()
{
    AlarmViewCellTriggerModel model;
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.insert(QString(), QString(), -1);
    QCOMPARE(model.rowCount(), 1);
    QCOMPARE(model.index(0, 0).data(AlarmViewCellTriggerModel::iconTypeRole).toInt(), -1);
}

QTEST_GUILESS_MAIN(tst_AlarmModel)
#include "tst_alarmmodel.moc"
