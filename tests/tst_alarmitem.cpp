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
                            value.typeId() == QMetaType::QVariantList
                                ? QString::number(value.toList().size()) + " entries"
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
        << QVariantMap{{QString::number(AlarmModel::idRole), "11"},
                       {QString::number(AlarmModel::nameRole), "Lobby"},
                       {QString::number(AlarmModel::enabledRole), true},
                       {QString::number(AlarmModel::triggerSourceRole), twoTriggers},
                       {QString::number(AlarmModel::triggerTypeRole), "Motion"},
                       {QString::number(AlarmModel::actionTypeRole), QVariantList{"SMS"}},
                       {QString::number(AlarmModel::actionTargetRole), QVariantList{QVariantList{}}},
                       {QString::number(AlarmModel::scheduleRole), QVariantList{"Always", "success", QString()}},
                       {QString::number(AlarmModel::revisionRole), qlonglong(9000000000)},
                       {QString::number(AlarmModel::descriptionRole), "Night"},
                       {QString::number(AlarmModel::triggerXmlRole), "<TriggerList/>"},
                       {QString::number(AlarmModel::actionXmlRole), "<ActionList/>"}}
        << QStringList{"257 QString=11",
                       "258 QString=Lobby",
                       "259 bool=true",
                       "260 QVariantList=2 entries",
                       "261 QString=Motion",
                       "262 QVariantList=1 entries",
                       "263 QVariantList=1 entries",
                       "264 QVariantList=3 entries",
                       "265 qlonglong=9000000000",
                       "266 QString=Night",
                       "267 QString=<TriggerList/>",
                       "268 QString=<ActionList/>"};
    QTest::newRow("missing roles stored empty") << QVariantMap{}
                                                << QStringList{"257 QString=", "258 QString=", "259 bool=false",
                                                               "260 invalid=", "261 invalid=", "262 invalid=",
                                                               "263 invalid=", "264 invalid=", "265 qlonglong=0",
                                                               "266 QString=", "267 QString=", "268 QString="};
    QTest::newRow("texts converted to the stored types")
        << QVariantMap{{QString::number(AlarmModel::idRole), 42},
                       {QString::number(AlarmModel::enabledRole), "true"},
                       {QString::number(AlarmModel::triggerTypeRole), 7},
                       {QString::number(AlarmModel::revisionRole), "12"},
                       {QString::number(AlarmModel::descriptionRole), 1.5}}
        << QStringList{
               "257 QString=42", "258 QString=", "259 bool=true",    "260 invalid=",    "261 int=7",    "262 invalid=",
               "263 invalid=",   "264 invalid=", "265 qlonglong=12", "266 QString=1.5", "267 QString=", "268 QString="};
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
