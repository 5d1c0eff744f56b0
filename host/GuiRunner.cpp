#include "GuiRunner.h"

#include "EnabledStateFilter.h"
#include "SimulatedServer.h"
#include "Site.h"

#include <QAbstractItemModel>
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QQmlApplicationEngine>
#include <QQmlContext>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QTextStream>
#include <QTimer>
#include <QTranslator>

namespace {
const QString TRANSLATIONS = QStringLiteral(":/i18n");
}

std::unique_ptr<QCoreApplication> GuiRunner::createApplication(int& argc, char** argv, const Settings& settings)
{
    const bool hasDisplay = qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
    if (!settings.screenshotPath.isEmpty() && !hasDisplay && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (qgetenv("QT_QPA_PLATFORM") == "offscreen")
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QQuickStyle::setStyle(QStringLiteral("Fusion"));
    return std::make_unique<QGuiApplication>(argc, argv);
}

GuiRunner::GuiRunner(AlarmHost* host, Settings settings, QObject* parent)
    : QObject(parent)
    , m_host(host)
    , m_settings(std::move(settings))
{
}

GuiRunner::~GuiRunner()
{
    // The page binds to the plug-in's models; it goes before the host detaches the plug-in.
    delete m_engine;
}

int GuiRunner::run(const AlarmHost::Options& options)
{
    m_engine = new QQmlApplicationEngine;
    m_alarmList = new EnabledStateFilter(this);
    QQmlContext* context = m_engine->rootContext();
    QString errorText;
    // The plug-in gets the root context before the page exists, as in the real client.
    if (!m_host->start(options, context, &errorText)) {
        QTextStream(stderr) << errorText << '\n';
        return 2;
    }
    m_alarmList->setSourceModel(m_host->filterModel());
    context->setContextProperty(QStringLiteral("alarmManager"), m_host->plugin());
    context->setContextProperty(QStringLiteral("site"), m_host->site());
    context->setContextProperty(QStringLiteral("alarmList"), m_alarmList);
    context->setContextProperty(QStringLiteral("host"), this);
    context->setContextProperty(QStringLiteral("initialCamera"), m_settings.cameraId);
    if (!m_settings.language.isEmpty())
        applyTranslator(m_settings.language);

    m_isScreenshotPending = !m_settings.screenshotPath.isEmpty();
    connect(m_host, &AlarmHost::pluginSignal, this, [this](const QString& name) {
        if (name == QLatin1String("getAlarmResp") && m_isFirstList) {
            m_isFirstList = false;
            QTimer::singleShot(0, this, &GuiRunner::listArrived);
        } else if (m_awaitedSignals.removeOne(name) && m_awaitedSignals.isEmpty() && m_isScreenshotPending) {
            // Let what follows the last answer (a fired alarm's notifications) reach the page too.
            QTimer::singleShot(m_host->server()->latency() + 50, this, &GuiRunner::takeScreenshot);
        }
    });
    if (m_isScreenshotPending) {
        QTimer::singleShot(m_settings.timeoutMs, this, [] {
            QTextStream(stderr) << "No alarm list arrived; no screenshot taken.\n";
            QCoreApplication::exit(3);
        });
    }

    m_engine->load(QUrl(QStringLiteral("qrc:/qml/Main.qml")));
    if (m_engine->rootObjects().isEmpty()) {
        QTextStream(stderr) << "The QML page failed to load.\n";
        return 2;
    }
    return QCoreApplication::exec();
}

QStringList GuiRunner::languages() const
{
    QStringList languages{QStringLiteral("en")};
    const QStringList files = QDir(TRANSLATIONS).entryList({QStringLiteral("alarmmanager_*.qm")}, QDir::Files, QDir::Name);
    for (const QString& file : files)
        languages.append(file.mid(13, file.size() - 13 - 3));
    return languages;
}

bool GuiRunner::applyTranslator(const QString& language)
{
    if (m_translator) {
        QCoreApplication::removeTranslator(m_translator);
        delete m_translator;
        m_translator = nullptr;
    }
    m_language = QStringLiteral("en");
    if (language == QLatin1String("en"))
        return true;
    auto* translator = new QTranslator(this);
    if (!translator->load(QLocale(language), QStringLiteral("alarmmanager"), QStringLiteral("_"), TRANSLATIONS)) {
        delete translator;
        QTextStream(stderr) << "No translation for " << language << '\n';
        return false;
    }
    QCoreApplication::installTranslator(translator);
    m_translator = translator;
    m_language = language;
    return true;
}

void GuiRunner::setLanguage(const QString& language)
{
    applyTranslator(language);
    if (m_engine)
        m_engine->retranslate();
    // The plug-in's list texts are made when rows are read; a reload redraws them in the new language.
    reconnect();
    emit languageChanged();
}

void GuiRunner::reconnect()
{
    m_host->reconnect();
}

void GuiRunner::listArrived()
{
    // Triggers asked for on the command line are pressed once the rules are known.
    for (const QString& choice : std::as_const(m_settings.fires)) {
        AlarmHost::VirtualTrigger trigger;
        if (m_host->findVirtualTrigger(choice, &trigger) && m_host->fireVirtualTrigger(trigger))
            m_awaitedSignals.append(QStringLiteral("alarmTriggered"));
        else
            QTextStream(stderr) << "Cannot fire " << choice << '\n';
    }
    QObject* window = m_engine->rootObjects().value(0);
    for (const QString& choice : std::as_const(m_settings.pageActions)) {
        const QString action = choice.section(QLatin1Char(':'), 0, 0);
        QVariant isDone;
        QMetaObject::invokeMethod(window, "performAction", Q_RETURN_ARG(QVariant, isDone), Q_ARG(QVariant, action),
                                  Q_ARG(QVariant, choice.section(QLatin1Char(':'), 1)));
        if (!isDone.toBool()) {
            QTextStream(stderr) << "Cannot " << choice << '\n';
            continue;
        }
        m_awaitedSignals.append(action == QLatin1String("duplicate") ? QStringLiteral("addAlarmResp")
                                : action == QLatin1String("delete")  ? QStringLiteral("deleteAlarmsResp")
                                                                     : QStringLiteral("toggleAlarmResp"));
    }
    if (m_isScreenshotPending && m_awaitedSignals.isEmpty())
        takeScreenshot();
}

void GuiRunner::takeScreenshot()
{
    if (!m_isScreenshotPending)
        return;
    m_isScreenshotPending = false;
    auto* window = qobject_cast<QQuickWindow*>(m_engine->rootObjects().value(0));
    if (!window) {
        QCoreApplication::exit(2);
        return;
    }
    QObject* search = window->findChild<QObject*>(QStringLiteral("searchField"));
    if (search && !m_settings.searchText.isEmpty())
        search->setProperty("text", m_settings.searchText);
    if (m_settings.editorRow >= 0) {
        if (QObject* editor = window->findChild<QObject*>(QStringLiteral("ruleEditor")))
            QMetaObject::invokeMethod(editor, "openForRow", Q_ARG(QVariant, m_settings.editorRow));
    }
    // Give the list a moment to lay out its delegates before grabbing.
    QTimer::singleShot(500, this, [this, window] {
        const QImage image = window->grabWindow();
        const bool isSaved = !image.isNull() && image.save(m_settings.screenshotPath);
        QObject* list = window->findChild<QObject*>(QStringLiteral("alarmListView"));
        QObject* fired = window->findChild<QObject*>(QStringLiteral("firedView"));
        const QJsonObject report{{QStringLiteral("screenshot"), m_settings.screenshotPath},
                                 {QStringLiteral("saved"), isSaved},
                                 {QStringLiteral("width"), image.width()},
                                 {QStringLiteral("height"), image.height()},
                                 {QStringLiteral("listCount"), list ? list->property("count").toInt() : -1},
                                 {QStringLiteral("modelCount"), m_alarmList->rowCount()},
                                 {QStringLiteral("firedCount"), fired ? fired->property("count").toInt() : -1}};
        QTextStream(stdout) << QJsonDocument(report).toJson(QJsonDocument::Indented);
        QCoreApplication::exit(isSaved ? 0 : 2);
    });
}
