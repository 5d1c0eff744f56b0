#include <QStandardItem>
#include <QtTest>

#include "AlarmItem.h"
#include "AlarmModel.h"

// One alarm row from a map of role number to value: each role stored with the type the models and QML
// read, whatever shape the value was handed in.
class tst_AlarmItem : public QObject
{
    Q_OBJECT
private slots:
    void storesEachRole_data();
    void storesEachRole();
};

namespace {

// The twelve roles of a row in role order, each as type name and value.
QStringList rowOf(const QStandardItem* item)
{
    QStringList row;
    for (int role = AlarmModel::idRole; role <= AlarmModel::actionXmlRole; ++role) {
        const QVariant value = item->data(role);
        row.append(QStringLiteral("%1 %2=%3")
                       .arg(role)
                       .arg(QLatin1String(value.isValid() ? value.typeName() : "invalid"),
                            value.typeId() == QMetaType::QVariantList ? QString::number(value.toList().size()) + QStringLiteral(" entries")
                                                                       : value.toString()));
    }
    return row;
}

} // namespace

void tst_AlarmItem::storesEachRole_data()
{
    QTest::addColumn<QVariantMap>("roles"); // role number as text -> value
    QTest::addColumn<QStringList>("expectedRow");

    const QVariantList twoTriggers{QVariantMap{}, QVariantMap{}};
    QTest::newRow("every role given")
        << QVariantMap{{QString::number(AlarmModel::idRole), QStringLiteral("11")},
                       {QString::number(AlarmModel::nameRole), QStringLiteral("Lobby")},
                       {QString::number(AlarmModel::enabledRole), true},
                       {QString::number(AlarmModel::triggerSourceRole), twoTriggers},
                       {QString::number(AlarmModel::triggerTypeRole), QStringLiteral("Motion")},
                       {QString::number(AlarmModel::actionTypeRole), QVariantList{QStringLiteral("SMS")}},
                       {QString::number(AlarmModel::actionTargetRole), QVariantList{QVariantList{}}},
                       {QString::number(AlarmModel::scheduleRole), QVariantList{QStringLiteral("Always"), QStringLiteral("success"), QString()}},
                       {QString::number(AlarmModel::revisionRole), qlonglong(9000000000)},
                       {QString::number(AlarmModel::descriptionRole), QStringLiteral("Night")},
                       {QString::number(AlarmModel::triggerXmlRole), QStringLiteral("<TriggerList/>")},
                       {QString::number(AlarmModel::actionXmlRole), QStringLiteral("<ActionList/>")}}
        << QStringList{QStringLiteral("257 QString=11"), QStringLiteral("258 QString=Lobby"), QStringLiteral("259 bool=true"),
                       QStringLiteral("260 QVariantList=2 entries"), QStringLiteral("261 QString=Motion"),
                       QStringLiteral("262 QVariantList=1 entries"), QStringLiteral("263 QVariantList=1 entries"),
                       QStringLiteral("264 QVariantList=3 entries"), QStringLiteral("265 qlonglong=9000000000"),
                       QStringLiteral("266 QString=Night"), QStringLiteral("267 QString=<TriggerList/>"),
                       QStringLiteral("268 QString=<ActionList/>")};
    QTest::newRow("missing roles stored empty")
        << QVariantMap{}
        << QStringList{QStringLiteral("257 QString="), QStringLiteral("258 QString="), QStringLiteral("259 bool=false"),
                       QStringLiteral("260 invalid="), QStringLiteral("261 invalid="), QStringLiteral("262 invalid="),
                       QStringLiteral("263 invalid="), QStringLiteral("264 invalid="), QStringLiteral("265 qlonglong=0"),
                       QStringLiteral("266 QString="), QStringLiteral("267 QString="), QStringLiteral("268 QString=")};
    QTest::newRow("texts converted to the stored types")
        << QVariantMap{{QString::number(AlarmModel::idRole), 42},
                       {QString::number(AlarmModel::enabledRole), QStringLiteral("true")},
                       {QString::number(AlarmModel::triggerTypeRole), 7},
                       {QString::number(AlarmModel::revisionRole), QStringLiteral("12")},
                       {QString::number(AlarmModel::descriptionRole), 1.5}}
        << QStringList{QStringLiteral("257 QString=42"), QStringLiteral("258 QString="), QStringLiteral("259 bool=true"),
                       QStringLiteral("260 invalid="), QStringLiteral("261 int=7"), QStringLiteral("262 invalid="),
                       QStringLiteral("263 invalid="), QStringLiteral("264 invalid="), QStringLiteral("265 qlonglong=12"),
                       QStringLiteral("266 QString=1.5"), QStringLiteral("267 QString="), QStringLiteral("268 QString=")};
}

void tst_AlarmItem::storesEachRole()
{
    QFETCH(QVariantMap, roles);
    QFETCH(QStringList, expectedRow);
    QMap<int, QVariant> roleMap;
    for (auto it = roles.begin(); it != roles.end(); ++it)
        roleMap.insert(it.key().toInt(), it.value());

    const QScopedPointer<QStandardItem> item(AlarmItem::create(roleMap));

    QVERIFY(item);
    QCOMPARE(rowOf(item.data()), expectedRow);
}

QTEST_MAIN(tst_AlarmItem)
#include "tst_alarmitem.moc"
