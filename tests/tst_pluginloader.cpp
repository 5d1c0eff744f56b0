#include <QJsonObject>
#include <QPluginLoader>
#include <QtTest>

#include "FakeFramework.h"
#include "PluginBase.h"
#include "stdafx.h"

// The host's view of the plug-in: a library QPluginLoader can open, with the host's interface id, the
// metadata the host reads before loading, and one instance that is a PluginBase.
class tst_PluginLoader : public QObject
{
    Q_OBJECT
private slots:
    void metadataIsWhatTheHostReads();
    void instanceIsOnePluginBase();
    void requestsCarryThePluginsOwnId();
};

void tst_PluginLoader::metadataIsWhatTheHostReads()
{
    QPluginLoader loader(QStringLiteral(ALARM_PLUGIN_PATH));
    const QJsonObject metaData = loader.metaData();
    QCOMPARE(metaData.value(QLatin1String("IID")).toString(), QStringLiteral("com.Corvane.UIFramework.PluginInterface"));
    QCOMPARE(metaData.value(QLatin1String("className")).toString(), QStringLiteral("PluginAlarmManager"));
    const QJsonObject pluginMetaData{{QStringLiteral("ClientOnly"), false},
                                     {QStringLiteral("PluginID"), QStringLiteral("8F52FB3C63934B05822A26CDA1E599CB")}};
    QCOMPARE(metaData.value(QLatin1String("MetaData")).toObject(), pluginMetaData);
}

void tst_PluginLoader::instanceIsOnePluginBase()
{
    QPluginLoader loader(QStringLiteral(ALARM_PLUGIN_PATH));
    QVERIFY2(loader.load(), qPrintable(loader.errorString()));
    QObject* instance = loader.instance();
    QVERIFY(instance);
    QVERIFY(qobject_cast<PluginBase*>(instance));
    QCOMPARE(instance->metaObject()->className(), "PluginAlarmManager");
    QCOMPARE(QPluginLoader(QStringLiteral(ALARM_PLUGIN_PATH)).instance(), instance);
}

void tst_PluginLoader::requestsCarryThePluginsOwnId()
{
    // Given the loaded plug-in initialised by a host
    QPluginLoader loader(QStringLiteral(ALARM_PLUGIN_PATH));
    auto* plugin = qobject_cast<PluginBase*>(loader.instance());
    QVERIFY(plugin);
    FakeFramework framework;
    int handle = 0;
    QVERIFY(plugin->InitialPluginBase(nullptr, &handle, &framework));

    // When the server link comes up
    plugin->PluginServerConnected();

    // Then both requests go out, non-blocking, with the plug-in id and the host's handle
    QCOMPARE(framework.methods(), QStringList({QStringLiteral("GetAlarmSoundListForSync"), QStringLiteral("GetAllAlarm")}));
    for (const RecordedRequest& request : std::as_const(framework.requests)) {
        QCOMPARE(request.senderPluginId, PALARMMANAGER_PLUGIN_ID);
        QCOMPARE(request.handle, static_cast<void*>(&handle));
        QVERIFY(!request.isBlocking);
        QCOMPARE(request.context, nullptr);
    }
}

QTEST_MAIN(tst_PluginLoader)
#include "tst_pluginloader.moc"
