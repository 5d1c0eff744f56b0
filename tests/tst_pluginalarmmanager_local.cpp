#include <QtTest>

#include "FakeFramework.h"
#include "PluginAlarmManager.h"
#include "stdafx.h"

// Lookups through peer plug-ins and the percent decoder: display names, DI/DO names, role names and the
// sound folder come from peers asked anew on every call; a missing peer gives the empty or fallback value.
class tst_PluginAlarmManagerLocal : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void displayName_data();
    void displayName();
    void dioDisplayName_data();
    void dioDisplayName();
    void roleName_data();
    void roleName();
    void soundPathComesFromItsPeer();
    void missingPeersGiveEmptyValues();
    void lookupsWithoutAFrameworkGiveEmptyValues();
    void decodePercentEncoded_data();
    void decodePercentEncoded();

private:
    FakeFramework* m_framework = nullptr;
    PluginAlarmManager* m_plugin = nullptr;
    int m_handle = 0;
};

void tst_PluginAlarmManagerLocal::init()
{
    m_framework = new FakeFramework;
    m_framework->deviceTree.deviceTree.insert("cam1", {{"nameRole", "Lobby"}});
    m_framework->deviceTree.deviceTree.insert("io1", {{"nameRole", "Door box"},
                                                      {"diNameListRole", QStringList{"Door", "Window"}},
                                                      {"doNameListRole", QStringList{"Siren"}}});
    m_framework->userRoles.roleNames.insert(3, "Guards");
    m_framework->soundPath.soundPath = "/tmp/sounds";
    m_plugin = new PluginAlarmManager;
    m_plugin->InitialPluginBase(nullptr, &m_handle, m_framework);
}

void tst_PluginAlarmManagerLocal::cleanup()
{
    delete m_plugin;
    delete m_framework;
}

void tst_PluginAlarmManagerLocal::displayName_data()
{
    QTest::addColumn<QString>("deviceId");
    QTest::addColumn<QString>("name");

    QTest::newRow("known camera") << "cam1"
                                  << "Lobby";
    QTest::newRow("unknown device") << "cam9"
                                    << "";
    QTest::newRow("empty id") << ""
                              << "";
    QTest::newRow("ids are case-sensitive") << "CAM1"
                                            << "";
}

void tst_PluginAlarmManagerLocal::displayName()
{
    QFETCH(QString, deviceId);
    QFETCH(QString, name);
    QCOMPARE(m_plugin->queryDisplayName(deviceId), name);
}

void tst_PluginAlarmManagerLocal::dioDisplayName_data()
{
    QTest::addColumn<QString>("deviceId");
    QTest::addColumn<QString>("ioName");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("name");

    QTest::newRow("input by index from 1") << "io1"
                                           << "DI" << 2 << "Window";
    QTest::newRow("output by index from 1") << "io1"
                                            << "DO" << 1 << "Siren";
    QTest::newRow("io name containing DI reads inputs") << "io1"
                                                        << "ExtDI" << 1 << "Door";
    QTest::newRow("anything else reads outputs") << "io1"
                                                 << "di" << 1 << "Siren";
    QTest::newRow("index past the list falls back") << "io1"
                                                    << "DI" << 3 << "DI-3";
    QTest::newRow("index 0 falls back") << "io1"
                                        << "DO" << 0 << "DO-0";
    QTest::newRow("negative index falls back") << "io1"
                                               << "DI" << -1 << "DI--1";
    QTest::newRow("device without names falls back") << "cam1"
                                                     << "DO" << 2 << "DO-2";
    QTest::newRow("unknown device falls back") << "x"
                                               << "DI" << 1 << "DI-1";
}

void tst_PluginAlarmManagerLocal::dioDisplayName()
{
    QFETCH(QString, deviceId);
    QFETCH(QString, ioName);
    QFETCH(int, index);
    QFETCH(QString, name);
    QCOMPARE(m_plugin->queryDIDODisplayName(deviceId, ioName, index), name);
}

void tst_PluginAlarmManagerLocal::roleName_data()
{
    QTest::addColumn<int>("roleId");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("peerCalls");

    QTest::newRow("0 is the custom role, no peer asked") << 0 << "Customize" << 0;
    QTest::newRow("-1 is the administrator, no peer asked") << -1 << "Administrator" << 0;
    QTest::newRow("other ids ask the role peer") << 3 << "Guards" << 1;
    QTest::newRow("unknown id gives the peer's empty answer") << 42 << "" << 1;
}

void tst_PluginAlarmManagerLocal::roleName()
{
    QFETCH(int, roleId);
    QFETCH(QString, name);
    QFETCH(int, peerCalls);
    QCOMPARE(m_plugin->queryRoleName(roleId), name);
    QCOMPARE(m_framework->userRoles.callCount, peerCalls);
}

void tst_PluginAlarmManagerLocal::soundPathComesFromItsPeer()
{
    QCOMPARE(m_plugin->getSoundPath(), "/tmp/sounds");
    QCOMPARE(m_plugin->getSoundPath(), "/tmp/sounds");
    // Asked anew each time: nothing is cached.
    QCOMPARE(m_framework->soundPath.callCount, 2);
}

void tst_PluginAlarmManagerLocal::missingPeersGiveEmptyValues()
{
    m_framework->peers.clear();
    QCOMPARE(m_plugin->queryDisplayName("cam1"), QString());
    QCOMPARE(m_plugin->queryDIDODisplayName("io1", "DI", 1), "DI-1");
    QCOMPARE(m_plugin->queryRoleName(3), QString());
    QCOMPARE(m_plugin->getSoundPath(), QString());
    QVERIFY(m_plugin->getValueFromDeviceTreeModel("cam1", "nameRole").isNull());
}

void tst_PluginAlarmManagerLocal::lookupsWithoutAFrameworkGiveEmptyValues()
{
    PluginAlarmManager plugin;
    QCOMPARE(plugin.queryDisplayName("cam1"), QString());
    QCOMPARE(plugin.queryDIDODisplayName("io1", "DO", 1), "DO-1");
    QCOMPARE(plugin.queryRoleName(-1), "Administrator");
    QCOMPARE(plugin.getSoundPath(), QString());
}

void tst_PluginAlarmManagerLocal::decodePercentEncoded_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("decoded");

    QTest::newRow("plain text stays") << "Front door"
                                      << "Front door";
    QTest::newRow("blank written as %20") << "Front%20door"
                                          << "Front door";
    QTest::newRow("encoded UTF-8 decodes to non-ASCII") << "Cam%C3%A9ra" << QString::fromUtf8("Caméra");
    QTest::newRow("non-ASCII text is never decoded")
        << QString::fromUtf8("Caméra%20A") << QString::fromUtf8("Caméra%20A");
    QTest::newRow("a lone percent stays") << "100%"
                                          << "100%";
    QTest::newRow("empty") << ""
                           << "";
}

void tst_PluginAlarmManagerLocal::decodePercentEncoded()
{
    QFETCH(QString, text);
    QFETCH(QString, decoded);
    QCOMPARE(PluginAlarmManager::DecodePercentEncodedStr(text), decoded);
}

QTEST_GUILESS_MAIN(tst_PluginAlarmManagerLocal)
#include "tst_pluginalarmmanager_local.moc"
