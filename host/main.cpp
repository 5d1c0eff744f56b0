// alarm-host: a reference host for the alarm plug-in, with a simulated server and a sample site.
// Without a display (or with --list) it prints the alarm list; with --gui it shows the example QML page.

#include "AlarmHost.h"
#include "GuiRunner.h"
#include "HeadlessRunner.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QGuiApplication>
#include <QTextStream>

#include <memory>

namespace {

const QString VERSION_TEXT = QStringLiteral("alarm-host " ALARM_HOST_VERSION);

struct CommandLine
{
    AlarmHost::Options host;
    HeadlessRunner::Script script;
    GuiRunner::Settings gui;
    bool isGui = false;
};

bool hasDisplay()
{
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    if (platform == "offscreen" || platform == "minimal")
        return false;
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
}

// Parsed before any application object exists, because the kind of application depends on the mode.
bool parse(const QStringList& arguments, CommandLine& commandLine, QString* message)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Reference host for the alarm plug-in: loads the plug-in, simulates the server with a sample site and\n"
        "shows the alarm list (QML page with --gui; printed without a display or with --list)."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption data(QStringLiteral("data"),
                                  QStringLiteral("Data folder of the simulated server (default: %1; the sample site is "
                                                 "copied into an empty folder).")
                                      .arg(AlarmHost::defaultDataDirectory()),
                                  QStringLiteral("dir"));
    const QCommandLineOption plugin(QStringLiteral("plugin"),
                                    QStringLiteral("The plug-in library (default: the installed plug-in folder, "
                                                   "or lib/ beside bin/ of this build)."),
                                    QStringLiteral("path"));
    const QCommandLineOption latency(QStringLiteral("latency"),
                                     QStringLiteral("Milliseconds the server takes per answer (default 30)."),
                                     QStringLiteral("ms"), QStringLiteral("30"));
    const QCommandLineOption list(QStringLiteral("list"), QStringLiteral("Print the alarm list and exit (no window)."));
    const QCommandLineOption noList(QStringLiteral("no-list"), QStringLiteral("Do not print the alarm list."));
    const QCommandLineOption gui(QStringLiteral("gui"), QStringLiteral("Show the example QML page."));
    const QCommandLineOption json(QStringLiteral("json"), QStringLiteral("Machine-readable output."));
    const QCommandLineOption filter(QStringLiteral("filter"), QStringLiteral("Show only rules matching the words."),
                                    QStringLiteral("text"));
    const QCommandLineOption sort(QStringLiteral("sort"),
                                  QStringLiteral("Sort by a role of the list (nameRole, triggerTypeRole, ...)."),
                                  QStringLiteral("role[:desc]"));
    const QCommandLineOption fire(QStringLiteral("fire"),
                                  QStringLiteral("Fire a virtual trigger and print the signals that follow."),
                                  QStringLiteral("[camera/]name"));
    const QCommandLineOption watch(QStringLiteral("watch"),
                                   QStringLiteral("Keep running and print signals as they come; reads commands "
                                                  "(fire NAME, list, reload, quit) from stdin."));
    const QCommandLineOption timeout(QStringLiteral("timeout"),
                                     QStringLiteral("Milliseconds to wait for each answer (default 10000)."),
                                     QStringLiteral("ms"), QStringLiteral("10000"));
    // Scripting options for tests and demos.
    const QCommandLineOption addJson(QStringLiteral("add-json"), QStringLiteral("Add a rule."), QStringLiteral("json"));
    const QCommandLineOption editJson(QStringLiteral("edit-json"), QStringLiteral("Edit a rule."),
                                      QStringLiteral("json"));
    const QCommandLineOption toggle(QStringLiteral("toggle"), QStringLiteral("Switch a rule on or off."),
                                    QStringLiteral("id:on|off"));
    const QCommandLineOption remove(QStringLiteral("delete"), QStringLiteral("Delete a rule."), QStringLiteral("id"));
    const QCommandLineOption schedule(QStringLiteral("update-schedule"),
                                      QStringLiteral("Move every rule on one schedule template to another."),
                                      QStringLiteral("old:new"));
    const QCommandLineOption concurrentEdit(QStringLiteral("concurrent-edit"),
                                            QStringLiteral("Another client edits the rule first."),
                                            QStringLiteral("id"));
    const QCommandLineOption screenshot(QStringLiteral("screenshot"),
                                        QStringLiteral("Show the page offscreen, save a screenshot, print what the "
                                                       "list shows and exit."),
                                        QStringLiteral("file"));
    const QCommandLineOption search(QStringLiteral("search"), QStringLiteral("Type this into the page's search field."),
                                    QStringLiteral("text"));
    const QCommandLineOption language(QStringLiteral("language"), QStringLiteral("Language of the page (e.g. de)."),
                                      QStringLiteral("lang"));
    const QCommandLineOption camera(QStringLiteral("camera"), QStringLiteral("Camera whose view cell the page shows."),
                                    QStringLiteral("id"));
    const QCommandLineOption editorRow(QStringLiteral("editor-row"),
                                       QStringLiteral("Open the rule editor on this row of the page."),
                                       QStringLiteral("row"));
    const QCommandLineOption pageAction(QStringLiteral("page-action"),
                                        QStringLiteral("Use the page's buttons: enable, disable, delete or duplicate "
                                                       "a rule."),
                                        QStringLiteral("action:id"));
    for (QCommandLineOption option : {addJson, editJson, toggle, remove, schedule, concurrentEdit, editorRow,
                                       pageAction}) {
        option.setFlags(QCommandLineOption::HiddenFromHelp);
        parser.addOption(option);
    }
    parser.addOptions({data, plugin, latency, list, noList, gui, json, filter, sort, fire, watch, timeout, screenshot, search,
                       language, camera});
    if (!parser.parse(arguments)) {
        *message = parser.errorText();
        return false;
    }
    if (parser.isSet(QStringLiteral("help"))) {
        *message = parser.helpText();
        return false;
    }
    if (parser.isSet(QStringLiteral("version"))) {
        *message = VERSION_TEXT;
        return false;
    }

    commandLine.host.dataDirectory = parser.isSet(data) ? parser.value(data) : AlarmHost::defaultDataDirectory();
    commandLine.host.pluginPath = parser.value(plugin);
    commandLine.host.latencyMs = std::max(0, parser.value(latency).toInt());

    HeadlessRunner::Script& script = commandLine.script;
    script.additions = parser.values(addJson);
    script.edits = parser.values(editJson);
    script.toggles = parser.values(toggle);
    script.deletions = parser.values(remove);
    script.scheduleUpdates = parser.values(schedule);
    script.concurrentEdits = parser.values(concurrentEdit);
    script.fires = parser.values(fire);
    script.filter = parser.value(filter);
    script.sort = parser.value(sort);
    script.isJson = parser.isSet(json);
    script.isWatching = parser.isSet(watch);
    script.isListing = !parser.isSet(noList);
    script.timeoutMs = std::max(100, parser.value(timeout).toInt());

    commandLine.gui.screenshotPath = parser.value(screenshot);
    commandLine.gui.searchText = parser.value(search);
    commandLine.gui.language = parser.value(language);
    commandLine.gui.cameraId = parser.value(camera);
    commandLine.gui.fires = script.fires;
    commandLine.gui.pageActions = parser.values(pageAction);
    commandLine.gui.editorRow = parser.isSet(editorRow) ? parser.value(editorRow).toInt() : -1;
    commandLine.gui.timeoutMs = script.timeoutMs;

    const bool isScripted = parser.isSet(list) || parser.isSet(noList) || parser.isSet(json) || parser.isSet(watch)
        || !script.additions.isEmpty() || !script.edits.isEmpty() || !script.toggles.isEmpty()
        || !script.deletions.isEmpty() || !script.scheduleUpdates.isEmpty() || !script.concurrentEdits.isEmpty();
    commandLine.isGui = parser.isSet(screenshot) || parser.isSet(gui) || (!isScripted && hasDisplay());
    return true;
}

} // namespace

int main(int argc, char* argv[])
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    CommandLine commandLine;
    QString message;
    if (!parse(arguments, commandLine, &message)) {
        const bool isHelp = message.startsWith(QLatin1String("Usage")) || message == VERSION_TEXT;
        message.replace(QLatin1String("<executable_name>"), QLatin1String("alarm-host"));
        QTextStream(isHelp ? stdout : stderr) << message << '\n';
        return isHelp ? 0 : 2;
    }

    std::unique_ptr<QCoreApplication> application;
    if (commandLine.isGui)
        application = GuiRunner::createApplication(argc, argv, commandLine.gui);
    else
        application = std::make_unique<QCoreApplication>(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("alarm-host"));
    if (commandLine.host.pluginPath.isEmpty())
        commandLine.host.pluginPath = AlarmHost::defaultPluginPath();

    AlarmHost host;
    if (commandLine.isGui) {
        GuiRunner gui(&host, commandLine.gui);
        return gui.run(commandLine.host);
    }
    HeadlessRunner runner(&host, commandLine.script);
    QString errorText;
    if (!host.start(commandLine.host, nullptr, &errorText)) {
        QTextStream(stderr) << errorText << '\n';
        return 2;
    }
    return runner.run();
}
