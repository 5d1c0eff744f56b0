#include "GuiRunner.h"

#include "EnabledStateFilter.h"
#include "RuleEntries.h"
#include "SimulatedServer.h"
#include "Site.h"

#include <QAbstractItemModel>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLocale>
#include <QQmlApplicationEngine>
#include <QQmlContext>
#include <QQuickItem>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QSet>
#include <QTextStream>
#include <QTimer>
#include <QTranslator>
#include <QUrl>

namespace {
const QString TRANSLATIONS = QStringLiteral(":/i18n");
// The plug-in's own texts; everything in another context is the page's.
const char* const PLUGIN_CONTEXT = "QObject";

// Every text of a visible item of the page, for the report.
void collectVisibleTexts(const QQuickItem* item, QStringList& texts)
{
    if (!item || !item->isVisible() || item->opacity() <= 0)
        return;
    for (const char* property : {"text", "title", "placeholderText"}) {
        const QVariant value = item->property(property);
        if (value.typeId() == QMetaType::QString && !value.toString().trimmed().isEmpty())
            texts.append(value.toString());
    }
    for (const QQuickItem* child : item->childItems())
        collectVisibleTexts(child, texts);
}
} // namespace

// The page's catalogue; it notes the page's texts it had no translation for, so a screenshot run can
// say which visible labels are still in English.
class PageTranslator : public QTranslator
{
public:
    using QTranslator::QTranslator;
    QString translate(const char* context, const char* sourceText, const char* disambiguation, int n) const override
    {
        const QString text = QTranslator::translate(context, sourceText, disambiguation, n);
        if (qstrcmp(context, PLUGIN_CONTEXT) != 0 && (text.isEmpty() || text == QLatin1String(sourceText)))
            m_untranslated.insert(QString::fromUtf8(sourceText));
        return text;
    }
    QStringList untranslated() const { return QStringList(m_untranslated.cbegin(), m_untranslated.cend()); }

private:
    mutable QSet<QString> m_untranslated;
};

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
    m_ruleEntries = new RuleEntries(m_host->site(),
                                    qobject_cast<QAbstractItemModel*>(invokeForObject(m_host->plugin(), "getAlarmModel")), this);
    context->setContextProperty(QStringLiteral("ruleEntries"), m_ruleEntries);
    applyTranslator(m_settings.language.isEmpty() ? QStringLiteral("en") : m_settings.language);

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
    if (m_pageTranslator) {
        QCoreApplication::removeTranslator(m_pageTranslator);
        delete m_pageTranslator;
        m_pageTranslator = nullptr;
    }
    // The page has a catalogue for English too: it holds the English plural forms.
    auto* pageTranslator = new PageTranslator(this);
    if (pageTranslator->load(QStringLiteral("alarmpage_%1").arg(language), TRANSLATIONS)) {
        QCoreApplication::installTranslator(pageTranslator);
        m_pageTranslator = pageTranslator;
    } else {
        delete pageTranslator;
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

QString GuiRunner::soundUrl(const QString& name) const
{
    // The plug-in keeps the server's sounds in the client's folder the sound-path peer names.
    const QString path = QDir(m_host->server()->dataDirectory()).filePath(QStringLiteral("client-sounds/") + name);
    return QFileInfo::exists(path) ? QUrl::fromLocalFile(path).toString() : QString();
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
        if (action == QLatin1String("keys")) {
            // Keys typed one after another, the way a user without a mouse works the page; "Delete" at
            // the end of a run deletes after the confirmation.
            pressKeys(choice.section(QLatin1Char(':'), 1).split(QLatin1Char(' '), Qt::SkipEmptyParts));
            if (choice.contains(QLatin1String("Delete")))
                m_awaitedSignals.append(QStringLiteral("deleteAlarmsResp"));
            continue;
        }
        if (action == QLatin1String("language")) {
            // What the page's language box does; the list comes again in the new language.
            setLanguage(choice.section(QLatin1Char(':'), 1));
            m_awaitedSignals.append(QStringLiteral("getAlarmResp"));
            continue;
        }
        QVariant isDone;
        QMetaObject::invokeMethod(window, "performAction", Q_RETURN_ARG(QVariant, isDone), Q_ARG(QVariant, action),
                                  Q_ARG(QVariant, choice.section(QLatin1Char(':'), 1, 1)),
                                  Q_ARG(QVariant, choice.section(QLatin1Char(':'), 2)));
        if (!isDone.toBool()) {
            QTextStream(stderr) << "Cannot " << choice << '\n';
            continue;
        }
        m_awaitedSignals.append(action == QLatin1String("duplicate") ? QStringLiteral("addAlarmResp")
                                : action == QLatin1String("delete")  ? QStringLiteral("deleteAlarmsResp")
                                : action == QLatin1String("edit")    ? QStringLiteral("updateAlarmResp")
                                                                     : QStringLiteral("toggleAlarmResp"));
    }
    if (m_isScreenshotPending && m_awaitedSignals.isEmpty())
        takeScreenshot();
}

void GuiRunner::pressKeys(const QStringList& keys)
{
    auto* window = qobject_cast<QQuickWindow*>(m_engine->rootObjects().value(0));
    // Keys go to the active window's focused item; dialogs take their focus once they have opened, and a
    // pause between keys lets them.
    if (window)
        window->requestActivate();
    for (qsizetype i = 0; window && i < keys.size(); ++i) {
        QTimer::singleShot(100 * (i + 1), window, [window, key = keys.at(i)] {
            const QKeyCombination combination = QKeySequence::fromString(key)[0];
            for (QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
                QKeyEvent event(type, combination.key(), combination.keyboardModifiers());
                QCoreApplication::sendEvent(window, &event);
            }
        });
    }
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
        QStringList visibleTexts;
        collectVisibleTexts(window->contentItem(), visibleTexts);
        // Page texts without a translation that show somewhere on the page (a text with placeholders
        // counts by its part before the first one).
        QStringList untranslated;
        for (const QString& source : m_pageTranslator ? m_pageTranslator->untranslated() : QStringList()) {
            const QString fixedPart = source.section(QLatin1Char('%'), 0, 0).trimmed();
            for (const QString& text : std::as_const(visibleTexts)) {
                if (!fixedPart.isEmpty() && text.contains(fixedPart)) {
                    untranslated.append(source);
                    break;
                }
            }
        }
        untranslated.sort();
        QVariant rows;
        QMetaObject::invokeMethod(window, "shownRows", Q_RETURN_ARG(QVariant, rows));
        QJsonObject report{{QStringLiteral("screenshot"), m_settings.screenshotPath},
                                 {QStringLiteral("saved"), isSaved},
                                 {QStringLiteral("width"), image.width()},
                                 {QStringLiteral("height"), image.height()},
                                 {QStringLiteral("listCount"), list ? list->property("count").toInt() : -1},
                                 {QStringLiteral("modelCount"), m_alarmList->rowCount()},
                                 {QStringLiteral("firedCount"), fired ? fired->property("count").toInt() : -1},
                                 {QStringLiteral("language"), m_language},
                                 {QStringLiteral("untranslated"), QJsonArray::fromStringList(untranslated)},
                                 {QStringLiteral("rows"), QJsonDocument::fromJson(rows.toString().toUtf8()).array()},
                                 {QStringLiteral("visibleTexts"), QJsonArray::fromStringList(visibleTexts)}};
        QTextStream(stdout) << QJsonDocument(report).toJson(QJsonDocument::Indented);
        QCoreApplication::exit(isSaved ? 0 : 2);
    });
}
