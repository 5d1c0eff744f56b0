#include <QFile>
#include <QtTest>

#include <dlfcn.h>

#include "FakeFramework.h"
#include "PluginAlarmManager.h"

// Runs with the stand-in tracing library on the library path (see tracing.cmake): the plug-in must find
// it at load, register itself, ask the filter with the trace site's file and line, and write the exact
// message text unless the filter suppresses it.
class tst_Tracing : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void registersAtLoad();
    void failedSendWritesItsMessage_data();
    void failedSendWritesItsMessage();
    void filterSuppressesOnlyItsLevel();

private:
    template<typename Function>
    Function standIn(const char* name)
    {
        auto function = reinterpret_cast<Function>(dlsym(m_standIn, name));
        if (!function)
            qFatal("stand-in tracing library lacks %s", name);
        return function;
    }
    static int lineOf(const QString& sourceFile, const QString& text);

    void* m_standIn = nullptr;
};

void tst_Tracing::initTestCase()
{
    // Already loaded by the plug-in's load-time set-up; RTLD_NOLOAD proves that it was.
    m_standIn = dlopen("libKrylLogUtl.dylib", RTLD_LAZY | RTLD_NOLOAD);
    QVERIFY2(m_standIn, "the plug-in did not load the tracing library");
}

void tst_Tracing::init()
{
    standIn<void (*)()>("standIn_reset")();
}

void tst_Tracing::registersAtLoad()
{
    QCOMPARE(standIn<int (*)()>("standIn_registeredKind")(), 19);
    QCOMPARE(standIn<const char* (*)()>("standIn_registeredName")(), "AlarmManager");
}

int tst_Tracing::lineOf(const QString& sourceFile, const QString& text)
{
    QFile file(sourceFile);
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    int line = 0;
    while (!file.atEnd()) {
        ++line;
        if (QString::fromUtf8(file.readLine()).contains(text))
            return line;
    }
    return -1;
}

void tst_Tracing::failedSendWritesItsMessage_data()
{
    QTest::addColumn<bool>("isBlocking");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("traceSite");

    QTest::newRow("non-blocking") << false << "SendRequestToServer, Send command failed."
                                  << R"("%s, Send command failed.", "SendRequestToServer")";
    QTest::newRow("blocking") << true << "SendBlockRequestToServer, Send command failed."
                              << R"("%s, Send command failed.", "SendBlockRequestToServer")";
}

void tst_Tracing::failedSendWritesItsMessage()
{
    QFETCH(bool, isBlocking);
    QFETCH(QString, message);
    QFETCH(QString, traceSite);

    // Given a plug-in whose framework refuses every request
    FakeFramework framework;
    framework.refuseAll();
    PluginAlarmManager plugin;
    int handle = 0;
    QVERIFY(plugin.InitialPluginBase(nullptr, &handle, &framework));
    standIn<void (*)()>("standIn_reset")();

    // When a request fails to go out
    const bool isSent = isBlocking ? plugin.SendBlockRequestToServer(QStringLiteral("GetAllAlarm"), QVariant(), nullptr)
                                   : plugin.SendRequestToServer(QStringLiteral("GetAllAlarm"), QVariant(), nullptr);

    // Then exactly one message is written, asked for at level 2 with the trace site's file and line
    QVERIFY(!isSent);
    QCOMPARE(standIn<int (*)()>("standIn_messageCount")(), 1);
    QCOMPARE(QString::fromUtf8(standIn<const char* (*)(int)>("standIn_message")(0)), message);
    QCOMPARE(standIn<int (*)()>("standIn_filterCount")(), 1);
    QCOMPARE(standIn<int (*)(int)>("standIn_filteredModuleLevel")(0), (7 << 8) | 2);
    const QString sourceFile = QStringLiteral(ALARM_SOURCE_DIR "/PluginAlarmManager.cpp");
    QCOMPARE(QString::fromUtf8(standIn<const char* (*)(int)>("standIn_filteredFile")(0)), sourceFile);
    QCOMPARE(standIn<int (*)(int)>("standIn_filteredLine")(0), lineOf(sourceFile, traceSite));
}

void tst_Tracing::filterSuppressesOnlyItsLevel()
{
    FakeFramework framework;
    framework.refuseAll();
    PluginAlarmManager plugin;
    int handle = 0;
    QVERIFY(plugin.InitialPluginBase(nullptr, &handle, &framework));

    standIn<void (*)()>("standIn_reset")();
    standIn<void (*)(int)>("standIn_suppressLevel")(3);
    QVERIFY(!plugin.SendRequestToServer(QStringLiteral("GetAllAlarm"), QVariant(), nullptr));
    QCOMPARE(standIn<int (*)()>("standIn_messageCount")(), 1);

    standIn<void (*)()>("standIn_reset")();
    standIn<void (*)(int)>("standIn_suppressLevel")(2);
    QVERIFY(!plugin.SendRequestToServer(QStringLiteral("GetAllAlarm"), QVariant(), nullptr));
    QCOMPARE(standIn<int (*)()>("standIn_filterCount")(), 1);
    QCOMPARE(standIn<int (*)()>("standIn_messageCount")(), 0);
}

QTEST_GUILESS_MAIN(tst_Tracing)
#include "tst_tracing.moc"
