#include <QDir>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <QtTest>

// The example QML page, rendered offscreen by alarm-host: it lists the site's rules in every language, the
// search field narrows the list, the editor changes a rule entry by entry, and the screenshots (kept in the
// build folder under artefacts/, one per language) show real content.
class tst_AlarmHostPage : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void pageShows_data();
    void pageShows();
    void pageButtonsChangeTheRules();
    void editorChangesOnlyTheEntriesTouched();
    void germanPageLeavesNoLabelInEnglish();

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
    QTest::newRow("in English") << "alarm-page-en.png" << QStringList({"--language", "en"}) << 64 << 0;
    QTest::newRow("in German") << "alarm-page-de.png" << QStringList({"--language", "de"}) << 64 << 0;
    QTest::newRow("in Traditional Chinese") << "alarm-page-zh_TW.png" << QStringList({"--language", "zh_TW"}) << 64 << 0;
    QTest::newRow("search narrows it") << "alarm-page-search.png" << QStringList({"--search", "operator:"}) << 4 << 0;
    QTest::newRow("editor open") << "alarm-page-editor.png" << QStringList({"--editor-row", "0"}) << 64 << 0;
    // Without a mouse: from the search field down to the second rule, select it, delete it, confirm.
    QTest::newRow("keyboard deletes") << "alarm-page-keys.png" << QStringList({"--page-action", "keys:Down Down Space Delete Return"})
                                      << 63 << 0;
    // The lockdown rule fires with a sound and an e-map notification.
    QTest::newRow("fired alarm in the panel") << "alarm-page-fired.png"
                                              << QStringList({"--camera", "cam-03", "--search", "lockdown", "--fire",
                                                              "cam-03/Lockdown"})
                                              << 1 << 3;
}

void tst_AlarmHostPage::pageShows()
{
#ifdef ALARM_HOST_ARTEFACT_DIR
    QFETCH(QString, fileName);
    QFETCH(QStringList, arguments);
    QFETCH(int, listCount);
    QFETCH(int, firedCount);
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

void tst_AlarmHostPage::editorChangesOnlyTheEntriesTouched()
{
#ifdef ALARM_HOST_ARTEFACT_DIR
    // Given the sample site, where camera 02 has since been removed from the site
    QTemporaryDir dataDir;
    listOf(dataDir.path());
    QFile siteFile(QDir(dataDir.path()).filePath(QStringLiteral("site.json")));
    QVERIFY(siteFile.open(QIODevice::ReadWrite));
    QJsonObject site = QJsonDocument::fromJson(siteFile.readAll()).object();
    QJsonArray cameras = site.value(QLatin1String("cameras")).toArray();
    cameras.removeAt(1);
    site.insert(QLatin1String("cameras"), cameras);
    QVERIFY(siteFile.resize(0) && siteFile.write(QJsonDocument(site).toJson()) > 0 && siteFile.flush());
    QFile original(QStringLiteral(ALARM_SAMPLE_SITE_DIR "/rules/1016.xml"));
    QVERIFY(original.open(QIODevice::ReadOnly));
    const QString before = QString::fromUtf8(original.readAll());
    const QString file = QDir(QStringLiteral(ALARM_HOST_ARTEFACT_DIR)).filePath(QStringLiteral("alarm-page-edited.png"));

    // When the user opens rule 1016, removes its first action, adds a recording on camera 05 and saves
    const QJsonObject report =
        screenshot(file, {"--page-action", "edit:1016:-action 0,+action Recording cam-05"}, dataDir.path());

    // Then the stored rule differs exactly there (and in its revision)
    QFile stored(QDir(dataDir.path()).filePath(QStringLiteral("rules/1016.xml")));
    QVERIFY(stored.open(QIODevice::ReadOnly));
    const QString removed = before.section(QLatin1String("<ActionList>"), 1).section(QLatin1String("<Action><AddBookmark>"), 0, 0);
    QString expected = before;
    expected.replace(QLatin1String("<Revision>1</Revision>"), QLatin1String("<Revision>2</Revision>"))
        .remove(removed)
        .replace(QLatin1String("</ActionList>"),
                 QLatin1String("<Action><Recording><Cam GrpID=\"1\">cam-05</Cam></Recording></Action></ActionList>"));
    // The server writes the schedule's attributes in no fixed order.
    QString after = QString::fromUtf8(stored.readAll());
    after.replace(QRegularExpression(QStringLiteral("<Ele E=\"(\\d+)\" B=\"(\\d+)\"/>")), QStringLiteral("<Ele B=\"\\2\" E=\"\\1\"/>"));
    QCOMPARE(after, expected);

    // And the list shows the new texts, and marks every rule naming the removed camera with it
    QStringList shown, marked;
    for (const QJsonValue& value : report.value(QLatin1String("rows")).toArray()) {
        const QJsonObject row = value.toObject();
        const QStringList unknown = row.value(QLatin1String("unknownDevices")).toVariant().toStringList();
        if (row.value(QLatin1String("id")).toString() == QLatin1String("1016"))
            shown.append(row.value(QLatin1String("actions")).toString());
        if (!unknown.isEmpty())
            marked.append(row.value(QLatin1String("id")).toString() + QLatin1Char(' ') + unknown.join(QLatin1Char(',')));
    }
    QCOMPARE(shown, QStringList({"Add bookmark (Aisle A); Start to record videos (Yard north)"}));
    QStringList naming;
    const QRegularExpression namesCamera(QStringLiteral("[>,]cam-02[<,]"));
    for (const QString& rule : QDir(QStringLiteral(ALARM_SAMPLE_SITE_DIR "/rules")).entryList({"*.xml"}, QDir::Files, QDir::Name)) {
        QFile ruleFile(QStringLiteral(ALARM_SAMPLE_SITE_DIR "/rules/") + rule);
        if (ruleFile.open(QIODevice::ReadOnly) && QString::fromUtf8(ruleFile.readAll()).contains(namesCamera))
            naming.append(rule.chopped(4) + QLatin1String(" cam-02"));
    }
    QVERIFY(!naming.isEmpty());
    marked.sort();
    QCOMPARE(marked, naming);
#endif
}

void tst_AlarmHostPage::germanPageLeavesNoLabelInEnglish()
{
#ifdef ALARM_HOST_ARTEFACT_DIR
    // Given the page's texts whose German differs from the English, as patterns of what they show
    // (a number for %n, any text for %1, either plural form)
    QList<QRegularExpression> english;
    QFile catalogue(QStringLiteral(ALARM_TRANSLATIONS_DIR "/alarmpage_de.ts"));
    QVERIFY(catalogue.open(QIODevice::ReadOnly));
    QXmlStreamReader reader(&catalogue);
    QString source;
    while (reader.readNextStartElement() || !reader.atEnd()) {
        if (reader.isStartElement() && reader.name() == QLatin1String("source"))
            source = reader.readElementText();
        else if (reader.isStartElement() && reader.name() == QLatin1String("translation")
                 && reader.readElementText(QXmlStreamReader::IncludeChildElements) != source)
            english.append(QRegularExpression(QLatin1Char('^') + QRegularExpression::escape(source)
                                                  .replace(QLatin1String("\\%n"), QLatin1String("\\d+"))
                                                  .replace(QRegularExpression(QStringLiteral("\\\\%[1-9]")), ".+")
                                                  .replace(QLatin1String("\\(s\\)"), QLatin1String("s?")) + QLatin1Char('$')));
        else
            reader.readNext();
    }
    QVERIFY(english.size() > 100);
    const QString file = QDir(QStringLiteral(ALARM_HOST_ARTEFACT_DIR)).filePath(QStringLiteral("alarm-page-de-editor.png"));

    // When the page comes up in English, the user switches to German and opens the editor
    const QJsonObject report = screenshot(file, {"--language", "en", "--page-action", "language:de", "--editor-row", "0"});

    // Then no label that shows is left in English: none without a translation, none not redrawn
    QStringList untranslated = report.value(QLatin1String("untranslated")).toVariant().toStringList();
    for (const QJsonValue& text : report.value(QLatin1String("visibleTexts")).toArray()) {
        for (const QRegularExpression& pattern : english)
            untranslated.append(pattern.match(text.toString()).hasMatch() ? text.toString() : QString());
    }
    untranslated.removeAll(QString());
    untranslated.removeAll(QStringLiteral("Name")); // the same word in both languages
    QCOMPARE(untranslated, QStringList());
#endif
}

QTEST_MAIN(tst_AlarmHostPage)
#include "tst_alarmhostpage.moc"
