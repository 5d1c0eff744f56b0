#include <QtTest>

#include <dlfcn.h>

#include <functional>

#include "FakeFramework.h"
#include "PluginAlarmManager.h"

using Failure = std::function<void(PluginAlarmManager&)>;
Q_DECLARE_METATYPE(Failure)

// Runs with the stand-in tracing library on the library path (see tracing.cmake): the plug-in must find
// it at load, register itself, ask the filter with the trace site's file and line, and write the exact
// message text unless the filter suppresses its level.
class tst_Tracing : public QObject
{
    Q_OBJECT
private slots:
    void failureIsTraced_data();
    void failureIsTraced();
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

void tst_Tracing::failureIsTraced_data()
{
    QTest::addColumn<Failure>("failure");
    QTest::addColumn<int>("suppressedLevel");
    QTest::addColumn<QStringList>("log");

    const QString sendSite = R"("%s, Send command failed.", "SendRequestToServer")";
    const QString send = "filter " + site("PluginAlarmManager.cpp", sendSite) + " module 7 level 2";
    const QString sendText = "write SendRequestToServer, Send command failed.";
    const Failure refusedList = [](PluginAlarmManager& plugin) { plugin.getAllAlarm(); };
    QTest::newRow("refused request") << refusedList << -1 << QStringList{send, sendText};
    QTest::newRow("its level suppressed") << refusedList << 2 << QStringList{send};
    QTest::newRow("refused request with a context names the blocking sender")
        << Failure([](PluginAlarmManager& plugin) { plugin.addAlarm("n", "", "", "", "", "", ""); }) << -1
        << QStringList{send, sendText,
                       "filter " + site("PluginAlarmManager_Req.cpp", "SendBlockRequestToServer failed")
                           + " module 7 level 2",
                       "write addAlarm, SendBlockRequestToServer failed"};
    QTest::newRow("failed list answer")
        << Failure([](PluginAlarmManager& p) { p.CommandProcessor("GetAllAlarm", {}, nullptr, "3", {}, false, {}); })
        << -1
        << QStringList{"filter " + site("PluginAlarmManager_Hdlr.cpp", "handle get all alarm failed")
                           + " module 7 level 2",
                       "write HandleGetAllAlarm, handle get all alarm failed, returnCode = 3"};
}

void tst_Tracing::failureIsTraced()
{
    QFETCH(Failure, failure);
    QFETCH(int, suppressedLevel);
    QFETCH(QStringList, log);

    // Given the stand-in the plug-in registered with at load, and a framework that refuses every request
    void* standIn = dlopen("libKrylLogUtl.dylib", RTLD_LAZY | RTLD_NOLOAD);
    QVERIFY2(standIn, "the plug-in did not load the tracing library");
    FakeFramework framework;
    framework.refuse = [](const RecordedRequest&) { return true; };
    int handle = 0;
    PluginAlarmManager plugin;
    QVERIFY(plugin.InitialPluginBase(nullptr, &handle, &framework));
    reinterpret_cast<void (*)(int)>(dlsym(standIn, "standIn_reset"))(suppressedLevel);

    // When something fails, each trace site asks the filter at level 2 and writes unless suppressed
    failure(plugin);
    const char* logged = reinterpret_cast<const char* (*)()>(dlsym(standIn, "standIn_log"))();
    QCOMPARE(QString::fromUtf8(logged).split('\n'), QStringList{"registered 19 AlarmManager"} + log + QStringList{""});
}

QTEST_GUILESS_MAIN(tst_Tracing)
#include "tst_tracing.moc"
