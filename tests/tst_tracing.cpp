#include <QtTest>

#include <dlfcn.h>

#include "FakeFramework.h"
#include "PluginAlarmManager.h"

// Runs with the stand-in tracing library on the library path (see tracing.cmake): the plug-in must find
// it at load, register itself, ask the filter with the trace site's file and line, and write the exact
// message text unless the filter suppresses its level.
class tst_Tracing : public QObject
{
    Q_OBJECT
private slots:
    void refusedRequestIsTraced_data();
    void refusedRequestIsTraced();
};

namespace {
// "file:line" of the trace site holding that text, so the test follows the code as it moves.
QString site(const QString& file, const QString& text)
{
    QFile source(QStringLiteral(ALARM_SOURCE_DIR "/") + file);
    int line = 1;
    for (bool isOpen = source.open(QIODevice::ReadOnly); isOpen && !source.atEnd(); ++line) {
        if (QString::fromUtf8(source.readLine()).contains(text))
            return file + ":" + QString::number(line);
    }
    return file + ": no such site";
}
} // namespace

void tst_Tracing::refusedRequestIsTraced_data()
{
    QTest::addColumn<bool>("withContext");
    QTest::addColumn<int>("suppressedLevel");
    QTest::addColumn<QStringList>("log");

    const QString send = "filter " + site("PluginAlarmManager.cpp", R"("%s, Send command failed.", "SendRequestToServer")");
    const QString requester = "filter " + site("PluginAlarmManager_Req.cpp", "SendBlockRequestToServer failed");
    QTest::newRow("plain request") << false << -1
                                   << QStringList{send + " module 7 level 2", "write SendRequestToServer, Send command failed."};
    QTest::newRow("another level suppressed") << false << 3
                                              << QStringList{send + " module 7 level 2",
                                                             "write SendRequestToServer, Send command failed."};
    QTest::newRow("its level suppressed") << false << 2 << QStringList{send + " module 7 level 2"};
    QTest::newRow("request with a context names the blocking sender")
        << true << -1
        << QStringList{send + " module 7 level 2", "write SendRequestToServer, Send command failed.",
                       requester + " module 7 level 2", "write addAlarm, SendBlockRequestToServer failed"};
}

void tst_Tracing::refusedRequestIsTraced()
{
    QFETCH(bool, withContext);
    QFETCH(int, suppressedLevel);
    QFETCH(QStringList, log);

    // Given the stand-in the plug-in registered with at load, and a framework that refuses every request
    void* standIn = dlopen("libKrylLogUtl.dylib", RTLD_LAZY | RTLD_NOLOAD);
    QVERIFY2(standIn, "the plug-in did not load the tracing library");
    const auto logged = [standIn] {
        return QString::fromUtf8(reinterpret_cast<const char* (*)()>(dlsym(standIn, "standIn_log"))()).split('\n');
    };
    FakeFramework framework;
    framework.refuse = [](const RecordedRequest&) { return true; };
    int handle = 0;
    PluginAlarmManager plugin;
    QVERIFY(plugin.InitialPluginBase(nullptr, &handle, &framework));
    reinterpret_cast<void (*)(int)>(dlsym(standIn, "standIn_reset"))(suppressedLevel);

    // When a request fails to go out, each trace site asks the filter at level 2 and writes unless suppressed
    QVERIFY(withContext ? !plugin.addAlarm("n", "", "", "", "", "", "") : !plugin.getAllAlarm());
    QCOMPARE(logged(), QStringList{"registered 19 AlarmManager"} + log + QStringList{""});
}

QTEST_GUILESS_MAIN(tst_Tracing)
#include "tst_tracing.moc"
