#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>

#include "AlarmHost.h"

class QCoreApplication;
class QQmlApplicationEngine;
class QTranslator;
class EnabledStateFilter;
class PageTranslator;
class RuleEntries;

// The host with the example QML page. QML sees the plug-in as "alarmManager", the site as "site", the
// page's enabled/disabled switch over the plug-in's list as "alarmList", and this object as "host"
// (languages, reconnect, sound files) and the editor's entry lists as "ruleEntries". With a screenshot path
// it renders offscreen, saves the window once the list is there, prints what the page shows as JSON
// (with the page's labels that found no translation) and exits.
class GuiRunner : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString language READ language NOTIFY languageChanged)
    Q_PROPERTY(QStringList languages READ languages CONSTANT)
public:
    struct Settings
    {
        QString screenshotPath;
        QString searchText;
        QString language;
        QString cameraId;
        QStringList fires;
        int editorRow = -1;
        // "disable:1001", "delete:1002", "duplicate:1003", "edit:1001:-action 1,+action SMS", "language:de",
        // "keys:Down Space Delete Return"
        QStringList pageActions;
        int timeoutMs = 10000;
    };

    // A screenshot run needs no display: it picks the offscreen platform and the software renderer.
    static std::unique_ptr<QCoreApplication> createApplication(int& argc, char** argv, const Settings& settings);

    GuiRunner(AlarmHost* host, Settings settings, QObject* parent = nullptr);
    ~GuiRunner() override;

    int run(const AlarmHost::Options& options);

    QString language() const { return m_language; }
    QStringList languages() const;
    // Switches the page and the plug-in's texts to a shipped translation ("en" for none).
    Q_INVOKABLE void setLanguage(const QString& language);
    Q_INVOKABLE void reconnect();
    // A sound of the plug-in's local store as a URL for the media player ("" when it is not there yet).
    Q_INVOKABLE QString soundUrl(const QString& name) const;

signals:
    void languageChanged();

private:
    bool applyTranslator(const QString& language);
    void listArrived();
    void pressKeys(const QStringList& keys);
    void takeScreenshot();

    AlarmHost* m_host;
    Settings m_settings;
    QQmlApplicationEngine* m_engine = nullptr;
    QTranslator* m_translator = nullptr;
    PageTranslator* m_pageTranslator = nullptr;
    RuleEntries* m_ruleEntries = nullptr;
    EnabledStateFilter* m_alarmList = nullptr;
    QString m_language = QStringLiteral("en");
    bool m_isScreenshotPending = false;
    bool m_isFirstList = true;
    QStringList m_awaitedSignals;
};
