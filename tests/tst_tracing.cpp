#include <QFileInfo>
#include <QtTest>

#include <dlfcn.h>

#include <functional>

#include "FakeFramework.h"
#include "PluginAlarmManager.h"

using Request = std::function<bool(PluginAlarmManager&)>;
Q_DECLARE_METATYPE(Request)

// Runs with the stand-in tracing library on the library path (see tracing.cmake): the plug-in must find
// it at load, register itself, ask the filter with the trace site's file and line, and write the exact
// message text unless the filter suppresses it.
class tst_Tracing : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void refusedRequestWritesItsMessages_data();
    void refusedRequestWritesItsMessages();
    void filterSuppressesOnlyItsLevel();

private:
    template <typename Function>
    Function standIn(const char* name)
    {
        auto function = reinterpret_cast<Function>(dlsym(m_standIn, name));
        if (!function)
            qFatal("stand-in tracing library lacks %s", name);
        return function;
    }
    // The messages written since the last reset, as "file:line module/level: text".
    QStringList written();

    void* m_standIn = nullptr;
    FakeFramework m_framework;
    int m_handle = 0;
};

namespace {
// The line of the source file holding the trace site, so the test follows the code as it moves.
QString site(const QString& file, const QString& text)
{
    QFile source(QStringLiteral(ALARM_SOURCE_DIR "/") + file);
    if (!source.open(QIODevice::ReadOnly))
        return file + ":missing";
    for (int line = 1; !source.atEnd(); ++line) {
        if (QString::fromUtf8(source.readLine()).contains(text))
            return QStringLiteral("%1:%2").arg(file).arg(line);
    }
    return file + ":no site";
}
} // namespace

void tst_Tracing::initTestCase()
{
    // Already loaded by the plug-in's load-time set-up; RTLD_NOLOAD proves that it was.
    m_standIn = dlopen("libKrylLogUtl.dylib", RTLD_LAZY | RTLD_NOLOAD);
    QVERIFY2(m_standIn, "the plug-in did not load the tracing library");
    QCOMPARE(standIn<int (*)()>("standIn_registeredKind")(), 19);
    QCOMPARE(standIn<const char* (*)()>("standIn_registeredName")(), "AlarmManager");
    m_framework.refuse = [](const RecordedRequest&) { return true; };
}

QStringList tst_Tracing::written()
{
    QStringList lines;
    const int filtered = standIn<int (*)()>("standIn_filterCount")();
    for (int i = 0; i < filtered; ++i) {
        const int moduleLevel = standIn<int (*)(int)>("standIn_filteredModuleLevel")(i);
        lines.append(QStringLiteral("%1:%2 %3/%4")
                         .arg(QFileInfo(standIn<const char* (*)(int)>("standIn_filteredFile")(i)).fileName())
                         .arg(standIn<int (*)(int)>("standIn_filteredLine")(i))
                         .arg(moduleLevel >> 8)
                         .arg(moduleLevel & 0xff));
    }
    for (int i = 0; i < standIn<int (*)()>("standIn_messageCount")(); ++i)
        lines.append(QString::fromUtf8(standIn<const char* (*)(int)>("standIn_message")(i)));
    return lines;
}

void tst_Tracing::refusedRequestWritesItsMessages_data()
{
    QTest::addColumn<Request>("request");
    QTest::addColumn<QStringList>("messages");

    const QString failedSend = site("PluginAlarmManager.cpp", R"("%s, Send command failed.", "SendRequestToServer")");
    QTest::newRow("plain request") << Request([](PluginAlarmManager& plugin) { return plugin.getAllAlarm(); })
                                   << QStringList{failedSend + " 7/2", "SendRequestToServer, Send command failed."};
    QTest::newRow("request with a context names the blocking sender")
        << Request([](PluginAlarmManager& plugin) { return plugin.addAlarm("n", "", "", "", "", "", ""); })
        << QStringList{failedSend + " 7/2", site("PluginAlarmManager_Req.cpp", "SendBlockRequestToServer failed") + " 7/2",
                       "SendRequestToServer, Send command failed.", "addAlarm, SendBlockRequestToServer failed"};
}

void tst_Tracing::refusedRequestWritesItsMessages()
{
    QFETCH(Request, request);
    QFETCH(QStringList, messages);

    // Given a plug-in whose framework refuses every request
    PluginAlarmManager plugin;
    QVERIFY(plugin.InitialPluginBase(nullptr, &m_handle, &m_framework));
    standIn<void (*)()>("standIn_reset")();

    // When a request fails to go out, its messages are asked for at level 2 and written
    QVERIFY(!request(plugin));
    QCOMPARE(written(), messages);
}

void tst_Tracing::filterSuppressesOnlyItsLevel()
{
    PluginAlarmManager plugin;
    QVERIFY(plugin.InitialPluginBase(nullptr, &m_handle, &m_framework));
    for (const int level : {3, 2}) {
        standIn<void (*)()>("standIn_reset")();
        standIn<void (*)(int)>("standIn_suppressLevel")(level);
        QVERIFY(!plugin.getAllAlarm());
        QCOMPARE(standIn<int (*)()>("standIn_messageCount")(), level == 2 ? 0 : 1);
    }
}

QTEST_GUILESS_MAIN(tst_Tracing)
#include "tst_tracing.moc"
