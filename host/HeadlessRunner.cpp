#include "HeadlessRunner.h"

#include "AlarmHost.h"
#include "HostFramework.h"
#include "Site.h"
#include "SimulatedServer.h"
#include "stdafx.h"

#include <QAbstractItemModel>
#include <QEventLoop>
#include <QJsonDocument>
#include <QSocketNotifier>
#include <QTextStream>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <unistd.h>

namespace {

QTextStream& out()
{
    static QTextStream stream(stdout);
    return stream;
}

QTextStream& err()
{
    static QTextStream stream(stderr);
    return stream;
}

QJsonValue jsonValue(const QVariant& value)
{
    if (value.typeId() == QMetaType::QVariantList || value.typeId() == QMetaType::QStringList) {
        QJsonArray array;
        for (const QVariant& item : value.toList())
            array.append(jsonValue(item));
        return array;
    }
    if (value.typeId() == QMetaType::QVariantMap) {
        QJsonObject object;
        const QVariantMap map = value.toMap();
        for (auto it = map.cbegin(); it != map.cend(); ++it)
            object.insert(it.key(), jsonValue(it.value()));
        return object;
    }
    return QJsonValue::fromVariant(value);
}

QString compact(const QJsonValue& value)
{
    if (value.isArray())
        return QString::fromUtf8(QJsonDocument(value.toArray()).toJson(QJsonDocument::Compact));
    if (value.isObject())
        return QString::fromUtf8(QJsonDocument(value.toObject()).toJson(QJsonDocument::Compact));
    return value.toVariant().toString();
}

QString joinedText(const QString& first, const QString& second)
{
    return (first + QLatin1Char(' ') + second).trimmed();
}

// Calls one of the plug-in's request invokables; true when the plug-in sent the request.
template <typename... Arguments>
bool sendRequest(QObject* plugin, const char* method, Arguments... arguments)
{
    bool isSent = false;
    QMetaObject::invokeMethod(plugin, method, Qt::DirectConnection, Q_RETURN_ARG(bool, isSent), arguments...);
    return isSent;
}

QJsonObject signalAsJson(const QString& name, const QVariantList& arguments)
{
    return QJsonObject{{QStringLiteral("signal"), name}, {QStringLiteral("arguments"), jsonValue(arguments)}};
}

} // namespace

HeadlessRunner::HeadlessRunner(AlarmHost* host, Script script, QObject* parent)
    : QObject(parent)
    , m_host(host)
    , m_script(std::move(script))
{
    connect(m_host, &AlarmHost::pluginSignal, this, [this](const QString& name, const QVariantList& arguments) {
        m_signals.append({name, arguments});
        if (m_isPrintingLive)
            printSignal(name, arguments);
    });
}

bool HeadlessRunner::waitFor(const QString& signalName, QVariantList* arguments)
{
    const qsizetype start = m_signals.size();
    auto findFrom = [this, &signalName](qsizetype from) {
        for (qsizetype i = from; i < m_signals.size(); ++i) {
            if (m_signals.at(i).first == signalName)
                return i;
        }
        return qsizetype(-1);
    };
    QEventLoop loop;
    QTimer timeout;
    timeout.setSingleShot(true);
    connect(&timeout, &QTimer::timeout, &loop, &QEventLoop::quit);
    const auto connection = connect(m_host, &AlarmHost::pluginSignal, &loop, [&loop, &signalName](const QString& name) {
        if (name == signalName)
            loop.quit();
    });
    if (findFrom(start) < 0) {
        timeout.start(m_script.timeoutMs);
        loop.exec();
    }
    disconnect(connection);
    const qsizetype found = findFrom(start);
    if (found < 0)
        return false;
    if (arguments)
        *arguments = m_signals.at(found).second;
    return true;
}

bool HeadlessRunner::awaitAnswer(bool isSent, const QString& answerSignal, Step* step, QVariantList* arguments)
{
    if (isSent && waitFor(answerSignal, arguments))
        return true;
    step->details.insert(QStringLiteral("error"), isSent ? QStringLiteral("no answer") : QStringLiteral("not sent"));
    return false;
}

HeadlessRunner::Step HeadlessRunner::withAnswer(Step step, bool isSent, const QString& answerSignal)
{
    QVariantList arguments;
    if (awaitAnswer(isSent, answerSignal, &step, &arguments))
        step.isSuccess = arguments.value(0).toBool();
    return step;
}

void HeadlessRunner::settle()
{
    // Answers still on their way (and the events behind them) belong to this run's output.
    QEventLoop loop;
    QTimer poll;
    int quietRounds = 0;
    connect(&poll, &QTimer::timeout, &loop, [this, &loop, &quietRounds] {
        quietRounds = m_host->framework()->pendingRequests() == 0 ? quietRounds + 1 : 0;
        if (quietRounds > 2)
            loop.quit();
    });
    poll.start(m_host->server()->latency() + 20);
    QTimer::singleShot(m_script.timeoutMs, &loop, &QEventLoop::quit);
    loop.exec();
}

int HeadlessRunner::run()
{
    m_model = m_host->filterModel();
    if (!m_model) {
        err() << "The plug-in offers no alarm list model (getAlarmFilterModel).\n";
        return 2;
    }
    m_isPrintingLive = m_script.isWatching && m_script.isJson;
    if (!waitForFirstList())
        return 3;
    const QList<Step> steps = runSteps();
    QString viewError;
    if (!applyView(&viewError)) {
        err() << viewError << '\n';
        return 2;
    }
    if (m_script.isJson)
        printJson(steps);
    else
        printText(steps);
    out().flush();
    if (m_script.isWatching)
        return watch();
    const bool isEveryStepDone =
        std::all_of(steps.cbegin(), steps.cend(), [](const Step& step) { return step.isSuccess; });
    return isEveryStepDone ? 0 : 1;
}

bool HeadlessRunner::waitForFirstList()
{
    // The plug-in asks for the list when the server link comes up.
    QVariantList arguments;
    if (!waitFor(QStringLiteral("getAlarmResp"), &arguments)) {
        err() << "No alarm list arrived (getAlarmResp) within " << m_script.timeoutMs << " ms.\n";
        return false;
    }
    if (arguments.value(0).toBool() == false) {
        err() << "The alarm list could not be loaded (getAlarmResp(false)).\n";
        return false;
    }
    return true;
}

QList<HeadlessRunner::Step> HeadlessRunner::runSteps()
{
    QList<Step> steps;
    for (const QString& id : std::as_const(m_script.concurrentEdits))
        steps.append(Step{QStringLiteral("concurrentEdit"), id, m_host->server()->editElsewhere(id), {}});
    if (!m_script.concurrentEdits.isEmpty())
        settle();
    // In this order, each kind of step for every entry the command line gave.
    using StepRunner = Step (HeadlessRunner::*)(const QString&);
    const QList<QPair<const QStringList*, StepRunner>> kinds = {
        {&m_script.additions, &HeadlessRunner::addAlarm},
        {&m_script.edits, &HeadlessRunner::editAlarm},
        {&m_script.toggles, &HeadlessRunner::toggleAlarm},
        {&m_script.deletions, &HeadlessRunner::deleteAlarm},
        {&m_script.scheduleUpdates, &HeadlessRunner::updateSchedule},
        {&m_script.fires, &HeadlessRunner::fire},
    };
    for (const auto& [entries, runStep] : kinds) {
        for (const QString& entry : *entries)
            steps.append((this->*runStep)(entry));
    }
    settle();
    return steps;
}

bool HeadlessRunner::applyView(QString* errorText)
{
    if (!m_script.filter.isEmpty())
        QMetaObject::invokeMethod(m_model, "applyFilter", Qt::DirectConnection, Q_ARG(QString, m_script.filter));
    return m_script.sort.isEmpty() || applySort(m_script.sort, errorText);
}

void HeadlessRunner::printJson(const QList<Step>& steps) const
{
    // Watching prints the signals one by one instead.
    if (m_script.isWatching)
        return;
    QJsonArray stepArray;
    for (const Step& step : steps) {
        QJsonObject object = step.details;
        object.insert(QStringLiteral("step"), step.kind);
        object.insert(QStringLiteral("subject"), step.subject);
        object.insert(QStringLiteral("success"), step.isSuccess);
        stepArray.append(object);
    }
    QJsonArray signalArray;
    for (const auto& signal : std::as_const(m_signals))
        signalArray.append(signalAsJson(signal.first, signal.second));
    QJsonObject document{{QStringLiteral("site"), m_host->site()->name()},
                         {QStringLiteral("steps"), stepArray},
                         {QStringLiteral("signals"), signalArray}};
    if (m_script.isListing) {
        const QJsonArray alarms = listAsJson();
        document.insert(QStringLiteral("count"), alarms.size());
        document.insert(QStringLiteral("alarms"), alarms);
    }
    out() << QJsonDocument(document).toJson(QJsonDocument::Indented);
}

int HeadlessRunner::watch()
{
    // Signals as they come, and a few commands from stdin.
    m_isPrintingLive = true;
    if (!m_script.isJson)
        out() << "Watching the plug-in's signals. Commands: fire NAME | list | reload | quit\n";
    out().flush();
    QEventLoop loop;
    m_stdin = new QSocketNotifier(STDIN_FILENO, QSocketNotifier::Read, this);
    connect(m_stdin, &QSocketNotifier::activated, this, [this, &loop] {
        char line[1024];
        if (!fgets(line, sizeof line, stdin)) {
            m_stdin->setEnabled(false);
            loop.quit();
            return;
        }
        if (!runCommand(QString::fromLocal8Bit(line).trimmed()))
            loop.quit();
        out().flush();
        err().flush();
    });
    loop.exec();
    return 0;
}

bool HeadlessRunner::runCommand(const QString& command)
{
    if (command == QLatin1String("quit"))
        return false;
    if (command == QLatin1String("list")) {
        printText({});
    } else if (command == QLatin1String("reload")) {
        m_host->reconnect();
    } else if (command.startsWith(QLatin1String("fire "))) {
        const Step step = fire(command.mid(5).trimmed());
        if (!step.isSuccess)
            err() << "fire: " << step.details.value(QStringLiteral("error")).toString() << '\n';
    } else if (!command.isEmpty()) {
        err() << "unknown command: " << command << '\n';
    }
    return true;
}

HeadlessRunner::Step HeadlessRunner::addAlarm(const QString& json)
{
    Step step{QStringLiteral("add"), QString(), false, {}};
    const QJsonObject rule = QJsonDocument::fromJson(json.toUtf8()).object();
    const QString name = rule.value(QLatin1String("name")).toString();
    step.subject = name;
    const QString schedule = rule.value(QLatin1String("schedule")).toString();
    const QString scheduleContent = rule.contains(QLatin1String("scheduleContent"))
        ? rule.value(QLatin1String("scheduleContent")).toString()
        : m_host->site()->scheduleContent(schedule);
    const QString triggerXml = rule.contains(QLatin1String("triggerXml"))
        ? rule.value(QLatin1String("triggerXml")).toString()
        : m_host->site()->triggerListXml(rule.value(QLatin1String("triggers")).toArray().toVariantList());
    const QString actionXml = rule.contains(QLatin1String("actionXml"))
        ? rule.value(QLatin1String("actionXml")).toString()
        : m_host->site()->actionListXml(rule.value(QLatin1String("actions")).toArray().toVariantList());
    const bool isSent = sendRequest(
        m_host->plugin(), "addAlarm", Q_ARG(QString, name),
        Q_ARG(QString, rule.value(QLatin1String("description")).toString()), Q_ARG(QString, triggerXml),
        Q_ARG(QString, actionXml), Q_ARG(QString, QString()), Q_ARG(QString, schedule), Q_ARG(QString, scheduleContent),
        Q_ARG(bool, rule.value(QLatin1String("enabled")).toBool(true)));
    QVariantList arguments;
    if (!awaitAnswer(isSent, QStringLiteral("addAlarmResp"), &step, &arguments))
        return step;
    step.isSuccess = arguments.value(0).toBool();
    step.details.insert(QStringLiteral("id"), arguments.value(1).toString());
    return step;
}

HeadlessRunner::Step HeadlessRunner::editAlarm(const QString& json)
{
    const QJsonObject edit = QJsonDocument::fromJson(json.toUtf8()).object();
    const QString id = edit.value(QLatin1String("id")).toString();
    Step step{QStringLiteral("edit"), id, false, {}};
    const int row = rowOfId(id);
    if (row < 0) {
        step.details.insert(QStringLiteral("error"), QStringLiteral("no such alarm"));
        return step;
    }
    // Whatever the edit leaves out stays as the list shows it.
    const QVariantList schedule = rowValue(row, "scheduleRole").toList();
    const QString scheduleName = edit.value(QLatin1String("schedule")).toString(schedule.value(0).toString());
    const QString scheduleContent = edit.contains(QLatin1String("schedule"))
        ? m_host->site()->scheduleContent(scheduleName)
        : schedule.value(2).toString();
    const QString triggerXml = edit.contains(QLatin1String("triggers"))
        ? m_host->site()->triggerListXml(edit.value(QLatin1String("triggers")).toArray().toVariantList())
        : rowValue(row, "triggerXmlRole").toString();
    const QString actionXml = edit.contains(QLatin1String("actions"))
        ? m_host->site()->actionListXml(edit.value(QLatin1String("actions")).toArray().toVariantList())
        : rowValue(row, "actionXmlRole").toString();
    const bool isSent = sendRequest(
        m_host->plugin(), "updateAlarm", Q_ARG(QString, id),
        Q_ARG(QString, edit.value(QLatin1String("name")).toString(rowValue(row, "nameRole").toString())),
        Q_ARG(QString, edit.value(QLatin1String("description")).toString(rowValue(row, "descriptionRole").toString())),
        Q_ARG(QString, triggerXml), Q_ARG(QString, actionXml), Q_ARG(QString, QString()), Q_ARG(QString, scheduleName),
        Q_ARG(QString, scheduleContent),
        Q_ARG(bool, edit.value(QLatin1String("enabled")).toBool(rowValue(row, "enabledRole").toBool())));
    return withAnswer(step, isSent, QStringLiteral("updateAlarmResp"));
}

HeadlessRunner::Step HeadlessRunner::toggleAlarm(const QString& choice)
{
    const QString id = choice.section(QLatin1Char(':'), 0, 0);
    const bool isEnabled = choice.section(QLatin1Char(':'), 1) != QLatin1String("off");
    Step step{QStringLiteral("toggle"), choice, false, {}};
    const QVariantList configuration{QVariantMap{{QStringLiteral("id"), id}, {QStringLiteral("enable"), isEnabled}}};
    const bool isSent = sendRequest(m_host->plugin(), "toggleAlarm", Q_ARG(QVariantList, configuration));
    return withAnswer(step, isSent, QStringLiteral("toggleAlarmResp"));
}

HeadlessRunner::Step HeadlessRunner::deleteAlarm(const QString& id)
{
    Step step{QStringLiteral("delete"), id, false, {}};
    const int row = rowOfId(id);
    if (row < 0) {
        step.details.insert(QStringLiteral("error"), QStringLiteral("no such alarm"));
        return step;
    }
    const bool isSent = sendRequest(m_host->plugin(), "deleteAlarms", Q_ARG(QVariantList, QVariantList{row}));
    QVariantList arguments;
    if (awaitAnswer(isSent, QStringLiteral("deleteAlarmsResp"), &step, &arguments))
        step.isSuccess = arguments.value(0).toInt() == 1 && arguments.value(1).toInt() == 1;
    return step;
}

HeadlessRunner::Step HeadlessRunner::updateSchedule(const QString& choice)
{
    // Every rule on the old template moves to the new one, as the schedule editor saves a template.
    Step step{QStringLiteral("schedule"), choice, false, {}};
    const QString oldName = choice.section(QLatin1Char(':'), 0, 0);
    const QString newName = choice.section(QLatin1Char(':'), 1);
    const bool isSent = sendRequest(m_host->plugin(), "updateAlarmSchedule", Q_ARG(QString, oldName),
                                    Q_ARG(QString, newName), Q_ARG(QString, m_host->site()->scheduleContent(newName)));
    return withAnswer(step, isSent, QStringLiteral("updateAllAlarmScheduleResp"));
}

HeadlessRunner::Step HeadlessRunner::fire(const QString& choice)
{
    Step step{QStringLiteral("fire"), choice, false, {}};
    AlarmHost::VirtualTrigger trigger;
    if (!m_host->findVirtualTrigger(choice, &trigger)) {
        step.details.insert(QStringLiteral("error"), QStringLiteral("no rule holds the virtual trigger %1").arg(choice));
        return step;
    }
    const qsizetype firstSignal = m_signals.size();
    const bool isSent = m_host->fireVirtualTrigger(trigger);
    QVariantList arguments;
    if (!awaitAnswer(isSent, QStringLiteral("sendVirtualTriggerAlarmResp"), &step, &arguments))
        return step;
    step.isSuccess = arguments.value(0).toBool();
    settle();
    QJsonArray followed;
    for (qsizetype i = firstSignal; i < m_signals.size(); ++i)
        followed.append(signalAsJson(m_signals.at(i).first, m_signals.at(i).second));
    step.details.insert(QStringLiteral("camera"), trigger.cameraId);
    step.details.insert(QStringLiteral("signals"), followed);
    if (!m_isPrintingLive && !m_script.isJson) {
        out() << "Fired \"" << trigger.name << "\" on " << m_host->site()->cameraName(trigger.cameraId) << " ("
              << trigger.cameraId << "); the plug-in's signals:\n";
        for (qsizetype i = firstSignal; i < m_signals.size(); ++i)
            printSignal(m_signals.at(i).first, m_signals.at(i).second);
    }
    return step;
}

bool HeadlessRunner::applySort(const QString& choice, QString* errorText)
{
    const QByteArray roleName = choice.section(QLatin1Char(':'), 0, 0).toUtf8();
    const bool isDescending = choice.section(QLatin1Char(':'), 1) == QLatin1String("desc");
    const int role = m_model->roleNames().key(roleName, -1);
    if (role < 0) {
        QStringList known;
        for (const QByteArray& name : m_model->roleNames())
            known.append(QString::fromUtf8(name));
        known.sort();
        *errorText = QStringLiteral("unknown role %1; roles: %2").arg(QString::fromUtf8(roleName), known.join(QLatin1String(", ")));
        return false;
    }
    return QMetaObject::invokeMethod(m_model, "sortByRole", Qt::DirectConnection, Q_ARG(int, role),
                                     Q_ARG(Qt::SortOrder, isDescending ? Qt::DescendingOrder : Qt::AscendingOrder));
}

int HeadlessRunner::rowOfId(const QString& id) const
{
    // Rows are what the list shows; an id hidden by a filter is still found after clearing it.
    QMetaObject::invokeMethod(m_model, "applyFilter", Qt::DirectConnection, Q_ARG(QString, QString()));
    for (int row = 0; row < m_model->rowCount(); ++row) {
        if (rowValue(row, "idRole").toString() == id)
            return row;
    }
    return -1;
}

QVariant HeadlessRunner::rowValue(int row, const char* roleName) const
{
    const int role = m_model->roleNames().key(roleName, -1);
    return role < 0 ? QVariant() : m_model->index(row, 0).data(role);
}

QJsonArray HeadlessRunner::listAsJson() const
{
    QJsonArray alarms;
    for (int row = 0; row < m_model->rowCount(); ++row) {
        QJsonArray triggers;
        for (const QVariant& source : rowValue(row, "triggerSourceRole").toList()) {
            const QVariantMap map = source.toMap();
            triggers.append(joinedText(map.value(AlarmMessageParserCommon::TRIGGER_DEV_NAME).toString(),
                                       map.value(AlarmMessageParserCommon::TRIGGER_DISPLAY_VALUE).toString()));
        }
        QJsonArray actions;
        const QVariantList actionTypes = rowValue(row, "actionTypeRole").toList();
        const QVariantList actionTargets = rowValue(row, "actionTargetRole").toList();
        for (qsizetype i = 0; i < actionTypes.size(); ++i) {
            QJsonArray targets;
            for (const QVariant& target : actionTargets.value(i).toList()) {
                const QVariantMap map = target.toMap();
                targets.append(joinedText(map.value(ActionParserCommon::TARGET_NAME).toString(),
                                          map.value(ActionParserCommon::TARGET_ACTION).toString()));
            }
            actions.append(QJsonObject{{QStringLiteral("type"), actionTypes.at(i).toString()},
                                       {QStringLiteral("targets"), targets}});
        }
        const QVariantList schedule = rowValue(row, "scheduleRole").toList();
        alarms.append(QJsonObject{
            {QStringLiteral("id"), rowValue(row, "idRole").toString()},
            {QStringLiteral("name"), rowValue(row, "nameRole").toString()},
            {QStringLiteral("enabled"), rowValue(row, "enabledRole").toBool()},
            {QStringLiteral("revision"), rowValue(row, "revisionRole").toLongLong()},
            {QStringLiteral("description"), rowValue(row, "descriptionRole").toString()},
            {QStringLiteral("triggerType"), rowValue(row, "triggerTypeRole").toString()},
            {QStringLiteral("triggers"), triggers},
            {QStringLiteral("actions"), actions},
            {QStringLiteral("schedule"), schedule.value(0).toString()},
        });
    }
    return alarms;
}

void HeadlessRunner::printText(const QList<Step>& steps) const
{
    for (const Step& step : steps) {
        out() << step.kind << ' ' << step.subject << ": " << (step.isSuccess ? "ok" : "FAILED");
        if (step.details.contains(QStringLiteral("id")))
            out() << " (id " << step.details.value(QStringLiteral("id")).toString() << ')';
        if (step.details.contains(QStringLiteral("error")))
            out() << " (" << step.details.value(QStringLiteral("error")).toString() << ')';
        out() << '\n';
    }
    if (!m_script.isListing)
        return;
    const QJsonArray alarms = listAsJson();
    out() << m_host->site()->name() << ": " << alarms.size() << " alarm rules";
    if (!m_script.filter.isEmpty())
        out() << " matching \"" << m_script.filter << '"';
    if (!m_script.sort.isEmpty())
        out() << ", sorted by " << m_script.sort;
    out() << "\n\n";
    for (const QJsonValue& value : alarms) {
        const QJsonObject alarm = value.toObject();
        out() << qSetFieldWidth(6) << Qt::left << alarm.value(QLatin1String("id")).toString() << qSetFieldWidth(0)
              << (alarm.value(QLatin1String("enabled")).toBool() ? "[on]  " : "[off] ")
              << alarm.value(QLatin1String("name")).toString() << '\n';
        QStringList triggers;
        for (const QJsonValue& trigger : alarm.value(QLatin1String("triggers")).toArray())
            triggers.append(trigger.toString());
        out() << "        when:     " << alarm.value(QLatin1String("triggerType")).toString();
        if (!triggers.isEmpty())
            out() << " - " << triggers.join(QLatin1String(", "));
        out() << '\n';
        for (const QJsonValue& action : alarm.value(QLatin1String("actions")).toArray()) {
            QStringList targets;
            for (const QJsonValue& target : action.toObject().value(QLatin1String("targets")).toArray())
                targets.append(target.toString());
            out() << "        then:     " << action.toObject().value(QLatin1String("type")).toString();
            if (!targets.isEmpty())
                out() << ": " << targets.join(QLatin1String(", "));
            out() << '\n';
        }
        out() << "        schedule: " << alarm.value(QLatin1String("schedule")).toString() << '\n';
    }
}

void HeadlessRunner::printSignal(const QString& name, const QVariantList& arguments) const
{
    if (m_script.isJson) {
        out() << QJsonDocument(signalAsJson(name, arguments)).toJson(QJsonDocument::Compact) << '\n';
    } else {
        out() << "signal " << name << ' ' << compact(jsonValue(arguments)) << '\n';
    }
    out().flush();
}
