#include <QAbstractItemModelTester>
#include <QtTest>

#include "tst_pluginalarmmanager_fixture.h"

using namespace PluginAlarmManagerCommon;

// The per-camera view-cell models of PluginAlarmManager: which virtual triggers of a trigger document
// they show, under which camera, and how QML's proxies over them behave while they change.
class tst_PluginAlarmManagerViewCells : public QObject
{
    Q_OBJECT
private slots:
    void virtualTriggerInfo_data();
    void virtualTriggerInfo();
    void triggerTreeShapes_data();
    void triggerTreeShapes();
    void insertCreatesTheCameraModel();
    void removeLeavesEveryCamera();
    void clearKeepsTheModelsQmlHolds();
    void proxyListsTriggersByName();
};

namespace {
// Every camera's model as "camera: id/name/icon" lines, newest row first.
QStringList shown(PluginAlarmManager& plugin, const QStringList& cameras)
{
    QStringList lines;
    for (const QString& camera : cameras) {
        const QAbstractItemModel* model = plugin.getAlarmViewCellTriggerModel(camera)->sourceModel();
        for (int row = 0; row < model->rowCount(); ++row) {
            const QModelIndex index = model->index(row, 0);
            lines.append(QStringLiteral("%1: %2/%3/%4")
                             .arg(camera, index.data(AlarmViewCellTriggerModel::idRole).toString(),
                                  index.data(AlarmViewCellTriggerModel::nameRole).toString(),
                                  index.data(AlarmViewCellTriggerModel::iconTypeRole).toString()));
        }
    }
    return lines;
}

QVariantMap tree(const QString& xml)
{
    return XML2Json::parse(xml).toMap();
}
} // namespace

void tst_PluginAlarmManagerViewCells::virtualTriggerInfo_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QVariantMap>("info");

    QTest::newRow("fields of the virtual trigger, name decoded")
        << "<E><VirtualTrigger><Name>Open%20gate</Name><Camera>cam1</Camera><IconType>3</IconType></VirtualTrigger></E>"
        << QVariantMap{{ARG_CAMERA, "cam1"}, {ARG_VIRTUAL_TRIGGER_NAME, "Open gate"}, {ARG_VIRTUAL_TRIGGER_ICON_TYPE, 3}};
    QTest::newRow("camera and icon beside the virtual trigger")
        << "<E><VirtualTrigger><Name>Bell</Name></VirtualTrigger><Camera>cam2</Camera><IconType>1</IconType></E>"
        << QVariantMap{{ARG_CAMERA, "cam2"}, {ARG_VIRTUAL_TRIGGER_NAME, "Bell"}, {ARG_VIRTUAL_TRIGGER_ICON_TYPE, 1}};
    QTest::newRow("the virtual trigger's own fields win")
        << "<E><VirtualTrigger><Name>B</Name><Camera>in</Camera></VirtualTrigger><Camera>out</Camera></E>"
        << QVariantMap{{ARG_CAMERA, "in"}, {ARG_VIRTUAL_TRIGGER_NAME, "B"}, {ARG_VIRTUAL_TRIGGER_ICON_TYPE, 0}};
    QTest::newRow("non-ASCII name kept as typed")
        << "<E><VirtualTrigger><Name>Tür%20auf</Name><Camera>c</Camera></VirtualTrigger></E>"
        << QVariantMap{{ARG_CAMERA, "c"}, {ARG_VIRTUAL_TRIGGER_NAME, "Tür%20auf"}, {ARG_VIRTUAL_TRIGGER_ICON_TYPE, 0}};
    QTest::newRow("missing fields read empty")
        << "<E><VirtualTrigger/></E>"
        << QVariantMap{{ARG_CAMERA, ""}, {ARG_VIRTUAL_TRIGGER_NAME, ""}, {ARG_VIRTUAL_TRIGGER_ICON_TYPE, 0}};
    QTest::newRow("icon that is no number reads 0")
        << "<E><VirtualTrigger><Camera>c</Camera><IconType>big</IconType></VirtualTrigger></E>"
        << QVariantMap{{ARG_CAMERA, "c"}, {ARG_VIRTUAL_TRIGGER_NAME, ""}, {ARG_VIRTUAL_TRIGGER_ICON_TYPE, 0}};
}

void tst_PluginAlarmManagerViewCells::virtualTriggerInfo()
{
    QFETCH(QString, entry);
    QFETCH(QVariantMap, info);
    PluginFixture fixture;
    QCOMPARE(mapJson(fixture.plugin.getVirtualTriggerInfo(tree(entry).value("E").toMap())), mapJson(info));
}

void tst_PluginAlarmManagerViewCells::triggerTreeShapes_data()
{
    QTest::addColumn<QString>("triggerXml");
    QTest::addColumn<QStringList>("lines");

    QTest::newRow("one entry")
        << "<TriggerList><ExtDeviceEventTrigger><EventType>VirtualTrigger</EventType><VirtualTrigger><Name>A</Name>"
           "<Camera>cam1</Camera><IconType>1</IconType></VirtualTrigger></ExtDeviceEventTrigger></TriggerList>"
        << QStringList{"cam1: a1/A/1"};
    QTest::newRow("several entries in document order")
        << triggerXml({{"A", "cam1", 1}, {"B", "cam2", 2}, {"C", "cam1", 3}})
        << QStringList{"cam1: a1/C/3", "cam1: a1/A/1", "cam2: a1/B/2"};
    QTest::newRow("other external triggers are no view-cell triggers")
        << "<TriggerList><ExtDeviceEventTrigger><EventType>ExtTCPMessage</EventType><ExtTCPMessage><Rule>x</Rule>"
           "</ExtTCPMessage></ExtDeviceEventTrigger><CamEventTrigger><VirtualTrigger><Camera>cam1</Camera>"
           "</VirtualTrigger></CamEventTrigger></TriggerList>"
        << QStringList();
    QTest::newRow("virtual trigger without camera is skipped")
        << "<TriggerList><ExtDeviceEventTrigger><VirtualTrigger><Name>A</Name></VirtualTrigger>"
           "</ExtDeviceEventTrigger></TriggerList>"
        << QStringList();
    QTest::newRow("empty trigger list") << "<TriggerList/>" << QStringList();
    QTest::newRow("not XML") << "<TriggerList><ExtDeviceEventTrigger>" << QStringList();
    QTest::newRow("other root") << "<Triggers><ExtDeviceEventTrigger><VirtualTrigger><Camera>cam1</Camera>"
                                   "</VirtualTrigger></ExtDeviceEventTrigger></Triggers>"
                                << QStringList();
}

void tst_PluginAlarmManagerViewCells::triggerTreeShapes()
{
    QFETCH(QString, triggerXml);
    QFETCH(QStringList, lines);
    PluginFixture fixture;
    fixture.plugin.InsertToViewCellTriggerModel("a1", tree(triggerXml));
    QCOMPARE(shown(fixture.plugin, {"cam1", "cam2"}), lines);
}

void tst_PluginAlarmManagerViewCells::insertCreatesTheCameraModel()
{
    // Given a camera QML has not asked for yet
    PluginFixture fixture;
    fixture.plugin.InsertToViewCellTriggerModel("a1", tree(triggerXml({{"Bell", "cam7", 1}})));

    // When QML asks for it, its proxy already shows the trigger
    QSortFilterProxyModel* proxy = fixture.plugin.getAlarmViewCellTriggerModel("cam7");
    QCOMPARE(proxy->rowCount(), 1);
    QCOMPARE(proxy->index(0, 0).data(AlarmViewCellTriggerModel::idRole).toString(), QStringLiteral("a1"));
}

void tst_PluginAlarmManagerViewCells::removeLeavesEveryCamera()
{
    // Given two alarms sharing cameras, watched through QML's proxies
    PluginFixture fixture;
    QAbstractItemModelTester cam1(fixture.plugin.getAlarmViewCellTriggerModel("cam1"));
    QAbstractItemModelTester cam2(fixture.plugin.getAlarmViewCellTriggerModel("cam2"));
    fixture.plugin.InsertToViewCellTriggerModel("a1", tree(triggerXml({{"A", "cam1", 1}, {"B", "cam2", 1}})));
    fixture.plugin.InsertToViewCellTriggerModel("a2", tree(triggerXml({{"C", "cam1", 2}})));
    fixture.plugin.InsertToViewCellTriggerModel("a1", tree(triggerXml({{"D", "cam1", 1}})));

    // When one alarm is removed
    fixture.plugin.RemoveFromViewCellTriggerModel("a1");

    // Then none of its rows is left anywhere, and the other alarm's rows stay
    QCOMPARE(shown(fixture.plugin, {"cam1", "cam2"}), QStringList{"cam1: a2/C/2"});
    fixture.plugin.RemoveFromViewCellTriggerModel(QString());
    QCOMPARE(shown(fixture.plugin, {"cam1", "cam2"}), QStringList{"cam1: a2/C/2"});
}

void tst_PluginAlarmManagerViewCells::clearKeepsTheModelsQmlHolds()
{
    PluginFixture fixture;
    QSortFilterProxyModel* proxy = fixture.plugin.getAlarmViewCellTriggerModel("cam1");
    QAbstractItemModel* model = proxy->sourceModel();
    QAbstractItemModelTester tester(proxy);
    fixture.plugin.InsertToViewCellTriggerModel("a1", tree(triggerXml({{"A", "cam1", 1}})));

    fixture.plugin.ClearViewCellTriggerModel();

    QCOMPARE(proxy->rowCount(), 0);
    QCOMPARE(fixture.plugin.getAlarmViewCellTriggerModel("cam1"), proxy);
    QCOMPARE(proxy->sourceModel(), model);
    fixture.plugin.InsertToViewCellTriggerModel("a1", tree(triggerXml({{"B", "cam1", 1}})));
    QCOMPARE(proxy->rowCount(), 1);
}

void tst_PluginAlarmManagerViewCells::proxyListsTriggersByName()
{
    PluginFixture fixture;
    QSortFilterProxyModel* proxy = fixture.plugin.getAlarmViewCellTriggerModel("cam1");
    QAbstractItemModelTester tester(proxy);
    fixture.plugin.InsertToViewCellTriggerModel("a1", tree(triggerXml({{"siren", "cam1", 1}, {"Bell", "cam1", 2}})));
    fixture.plugin.InsertToViewCellTriggerModel("a2", tree(triggerXml({{"alarm", "cam1", 3}})));
    QCOMPARE(column(proxy, AlarmViewCellTriggerModel::nameRole), QStringList({"alarm", "Bell", "siren"}));
    QCOMPARE(proxy->roleNames(), AlarmViewCellTriggerModel().roleNames());
}

QTEST_MAIN(tst_PluginAlarmManagerViewCells)
#include "tst_pluginalarmmanager_viewcells.moc"
