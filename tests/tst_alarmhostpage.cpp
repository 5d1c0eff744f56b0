#include <QDir>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
#include <QtTest>

// The example QML page, rendered offscreen by alarm-host: it lists the site's rules, the search field
// narrows the list, and the screenshot (kept in the build folder under artefacts/) shows real content.
class tst_AlarmHostPage : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void pageShows_data();
    void pageShows();
    void pageButtonsChangeTheRules();

private:
    QJsonObject screenshot(const QString& file, const QStringList& arguments, const QString& dataDir = QString());
    QJsonObject listOf(const QString& dataDir);
};

void tst_AlarmHostPage::initTestCase()
{
#ifndef ALARM_HOST_EXECUTABLE
    QSKIP("this build has no alarm-host");
#else
    QVERIFY(QDir().mkpath(QStringLiteral(ALARM_HOST_ARTEFACT_DIR)));
#endif
}

QJsonObject tst_AlarmHostPage::screenshot(const QString& file, const QStringList& arguments, const QString& dataPath)
{
#ifdef ALARM_HOST_EXECUTABLE
    QTemporaryDir temporaryDir;
    const QString dataDir = dataPath.isEmpty() ? temporaryDir.path() : dataPath;
    QProcess host;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    // In a sanitizer build the page's process reports Qt Quick's own texture leaks; those are not ours.
    environment.insert(QStringLiteral("LSAN_OPTIONS"),
                       QStringLiteral("suppressions=%1:print_suppressions=0").arg(QStringLiteral(ALARM_HOST_LSAN_SUPPRESSIONS)));
    host.setProcessEnvironment(environment);
    host.start(QStringLiteral(ALARM_HOST_EXECUTABLE),
               QStringList{"--data", dataDir, "--latency", "5", "--timeout", "30000", "--screenshot", file} + arguments);
    if (!host.waitForFinished(120000) || host.exitCode() != 0) {
        host.kill();
        qWarning("alarm-host failed:\n%s", host.readAllStandardError().constData());
        return {};
    }
    return QJsonDocument::fromJson(host.readAllStandardOutput()).object();
#else
    Q_UNUSED(file);
    Q_UNUSED(arguments);
    Q_UNUSED(dataPath);
    return {};
#endif
}

QJsonObject tst_AlarmHostPage::listOf(const QString& dataDir)
{
#ifdef ALARM_HOST_EXECUTABLE
    QProcess host;
    host.start(QStringLiteral(ALARM_HOST_EXECUTABLE), {"--data", dataDir, "--list", "--json", "--latency", "0"});
    if (!host.waitForFinished(60000))
        host.kill();
    return QJsonDocument::fromJson(host.readAllStandardOutput()).object();
#else
    Q_UNUSED(dataDir);
    return {};
#endif
}

void tst_AlarmHostPage::pageShows_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("listCount");
    QTest::addColumn<int>("firedCount");
    QTest::newRow("whole list") << "alarm-page.png" << QStringList() << 64 << 0;
    QTest::newRow("search narrows it") << "alarm-page-search.png" << QStringList({"--search", "operator:"}) << 4 << 0;
    QTest::newRow("in German") << "alarm-page-de.png" << QStringList({"--language", "de"}) << 64 << 0;
    // The lockdown rule fires with a sound and an e-map notification.
    QTest::newRow("fired alarm in the panel") << "alarm-page-fired.png"
                                              << QStringList({"--camera", "cam-03", "--search", "lockdown", "--fire",
                                                              "cam-03/Lockdown"})
                                              << 1 << 3;
}

void tst_AlarmHostPage::pageShows()
{
    QFETCH(QString, fileName);
    QFETCH(QStringList, arguments);
    QFETCH(int, listCount);
    QFETCH(int, firedCount);
#ifdef ALARM_HOST_ARTEFACT_DIR
    const QString file = QDir(QStringLiteral(ALARM_HOST_ARTEFACT_DIR)).filePath(fileName);
    QFile::remove(file);

    const QJsonObject report = screenshot(file, arguments);

    QCOMPARE(report.value(QLatin1String("listCount")).toInt(), listCount);
    QCOMPARE(report.value(QLatin1String("modelCount")).toInt(), listCount);
    QCOMPARE(report.value(QLatin1String("firedCount")).toInt(), firedCount);
    const QImage image(file);
    QVERIFY2(!image.isNull(), qPrintable(file));
    QVERIFY(image.width() >= 1000 && image.height() >= 600);
    // A page with text, rows and controls has many colours; an empty or failed render has one or two.
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); y += 3) {
        for (int x = 0; x < image.width(); x += 3)
            colours.insert(image.pixel(x, y));
    }
    QVERIFY2(colours.size() > 40, qPrintable(QString::number(colours.size())));
#else
    Q_UNUSED(fileName);
    Q_UNUSED(arguments);
    Q_UNUSED(listCount);
    Q_UNUSED(firedCount);
#endif
}

void tst_AlarmHostPage::pageButtonsChangeTheRules()
{
#ifdef ALARM_HOST_ARTEFACT_DIR
    // Given the page on the sample site
    QTemporaryDir dataDir;
    const QString file = QDir(QStringLiteral(ALARM_HOST_ARTEFACT_DIR)).filePath(QStringLiteral("alarm-page-buttons.png"));

    // When the user switches one rule off, deletes another and duplicates a third with the page's buttons
    const QJsonObject report = screenshot(file, {"--page-action", "disable:1001", "--page-action", "delete:1002",
                                                 "--page-action", "duplicate:1003"},
                                          dataDir.path());

    // Then the page and the server's rules show all three changes
    QCOMPARE(report.value(QLatin1String("listCount")).toInt(), 64);
    QStringList rules;
    for (const QJsonValue& alarm : listOf(dataDir.path()).value(QLatin1String("alarms")).toArray()) {
        const QJsonObject rule = alarm.toObject();
        const QString id = rule.value(QLatin1String("id")).toString();
        if (id == QLatin1String("1001") || id == QLatin1String("1002") || id == QLatin1String("1065"))
            rules.append(QStringLiteral("%1 %2 %3").arg(id, rule.value(QLatin1String("name")).toString(),
                                                         rule.value(QLatin1String("enabled")).toBool() ? "on" : "off"));
    }
    rules.sort();
    QCOMPARE(rules, QStringList({"1001 Gate forced open off", "1065 Intercom call at main gate (copy) on"}));
#endif
}

QTEST_MAIN(tst_AlarmHostPage)
#include "tst_alarmhostpage.moc"
