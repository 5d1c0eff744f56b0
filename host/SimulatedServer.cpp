#include "SimulatedServer.h"

#include "stdafx.h"

#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QHostAddress>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QSaveFile>
#include <QTextStream>
#include <QTimer>
#include <QUrl>

#include <algorithm>

using namespace PluginAlarmManagerCommon;

const QString SimulatedServer::CODE_OK = QStringLiteral("0");
const QString SimulatedServer::CODE_BAD_REQUEST = QStringLiteral("2");
const QString SimulatedServer::CODE_NOT_FOUND = QStringLiteral("3");
const QString SimulatedServer::CODE_STALE_REVISION = QStringLiteral("4");
const QString SimulatedServer::CODE_NO_RULE_FIRED = QStringLiteral("5");
const QString SimulatedServer::CODE_NOT_ALLOWED = QStringLiteral("6");
const QString SimulatedServer::CODE_UNKNOWN_METHOD = QStringLiteral("7");
const QString SimulatedServer::CODE_STORAGE_FAILED = QStringLiteral("8");
const QString SimulatedServer::CODE_HTTP_FAILED = QStringLiteral("9");

namespace {

const QString RULES_FOLDER = QStringLiteral("rules");
const QString SOUNDS_FOLDER = QStringLiteral("sounds");
const QString SETTINGS_FILE = QStringLiteral("server.json");
const QString TAG_TRIGGER_LIST = QStringLiteral("TriggerList");
const QString TAG_ACTION_LIST = QStringLiteral("ActionList");
const QString TAG_MAPPING = QStringLiteral("Mapping");
const QString TAG_RELATED_DEVICES = QStringLiteral("RelatedDevices");
constexpr int HTTP_TIMEOUT_MS = 3000;

QString nodeText(const QDomNode& node)
{
    QString text;
    QTextStream stream(&text);
    node.save(stream, -1);
    return text;
}

// The plug-in sends a list either as the whole element or as its children; the server always keeps the
// element. An empty text is an empty list; a text that is not XML gives a null string.
QString normalisedList(const QString& text, const QString& tag)
{
    if (text.trimmed().isEmpty())
        return QStringLiteral("<%1/>").arg(tag);
    QDomDocument document;
    if (document.setContent(text) && document.documentElement().tagName() == tag)
        return nodeText(document.documentElement());
    QDomDocument wrapped;
    if (!wrapped.setContent(QStringLiteral("<%1>%2</%1>").arg(tag, text)))
        return QString();
    return nodeText(wrapped.documentElement());
}

// Schedule templates arrive as the editor's rectangle JSON (whole days Left+1..Right, hours Top..Bottom)
// or already as the server's Mapping element. Returns false for content that is neither.
bool mappingFromTemplate(const QString& name, const QString& content, QString& mappingXml)
{
    const QString trimmed = content.trimmed();
    if (trimmed.isEmpty()) {
        mappingXml.clear();
        return true;
    }
    if (trimmed.startsWith(QLatin1Char('<'))) {
        QDomDocument document;
        if (!document.setContent(trimmed) || document.documentElement().tagName() != TAG_MAPPING)
            return false;
        mappingXml = nodeText(document.documentElement());
        return true;
    }
    QJsonParseError error;
    const QJsonDocument json = QJsonDocument::fromJson(trimmed.toUtf8(), &error);
    if (error.error != QJsonParseError::NoError || !json.isObject())
        return false;
    QDomDocument document;
    QDomElement mapping = document.createElement(TAG_MAPPING);
    document.appendChild(mapping);
    const QJsonArray rectangles = json.object().value(QLatin1String("Rectangles")).toArray();
    for (const QJsonValue& value : rectangles) {
        const QJsonObject rectangle = value.toObject();
        const int left = std::clamp(rectangle.value(QLatin1String("Left")).toInt(), 0, 7);
        const int right = std::clamp(rectangle.value(QLatin1String("Right")).toInt(), left, 7);
        const int top = std::clamp(rectangle.value(QLatin1String("Top")).toInt(), 0, 24);
        const int bottom = std::clamp(rectangle.value(QLatin1String("Bottom")).toInt(), top, 24);
        QDomElement ele = document.createElement(QStringLiteral("Ele"));
        QDomElement frame = document.createElement(QStringLiteral("Frame"));
        QDomElement frameName = document.createElement(QStringLiteral("Name"));
        frameName.appendChild(document.createTextNode(name));
        frame.appendChild(frameName);
        QDomElement days = document.createElement(QStringLiteral("DayList"));
        for (int day = left + 1; day <= right; ++day) {
            QDomElement dayElement = document.createElement(QStringLiteral("Ele"));
            dayElement.setAttribute(QStringLiteral("B"), day);
            days.appendChild(dayElement);
        }
        frame.appendChild(days);
        QDomElement intervals = document.createElement(QStringLiteral("Intervals"));
        QDomElement interval = document.createElement(QStringLiteral("Ele"));
        interval.setAttribute(QStringLiteral("B"), top * 3600);
        interval.setAttribute(QStringLiteral("E"), bottom * 3600);
        intervals.appendChild(interval);
        frame.appendChild(intervals);
        ele.appendChild(frame);
        mapping.appendChild(ele);
    }
    mappingXml = nodeText(mapping);
    return true;
}

void appendTextElement(QDomDocument& document, QDomElement& parent, const QString& tag, const QString& text)
{
    QDomElement element = document.createElement(tag);
    element.appendChild(document.createTextNode(text));
    parent.appendChild(element);
}

void appendXml(QDomDocument& document, QDomElement& parent, const QString& xml)
{
    if (xml.isEmpty())
        return;
    QDomDocument fragment;
    if (fragment.setContent(xml))
        parent.appendChild(document.importNode(fragment.documentElement(), true));
}

QString encoded(const QString& text)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(text));
}

// Whether a trigger list holds the virtual trigger of this camera, named by id or by name.
bool holdsVirtualTrigger(const QString& triggerListXml, const QString& camera, const QString& triggerId,
                         const QString& name)
{
    QDomDocument triggers;
    if (!triggers.setContent(triggerListXml))
        return false;
    const QDomNodeList virtualTriggers = triggers.elementsByTagName(ARG_VIRTUAL_TRIGGER);
    for (int i = 0; i < virtualTriggers.size(); ++i) {
        const QDomElement trigger = virtualTriggers.at(i).toElement();
        if (trigger.firstChildElement(QStringLiteral("Camera")).text() == camera
            && ((!triggerId.isEmpty() && trigger.firstChildElement(QStringLiteral("Id")).text() == triggerId)
                || (!name.isEmpty() && trigger.firstChildElement(QStringLiteral("Name")).text() == name)))
            return true;
    }
    return false;
}

// The "QuessaEvent" of a fired virtual trigger.
QString virtualTriggerEventXml(const QString& camera, const QString& name, const QString& cameraName,
                               const QDateTime& when)
{
    QDomDocument document;
    QDomElement quessaEvent = document.createElement(QStringLiteral("QuessaEvent"));
    document.appendChild(quessaEvent);
    appendTextElement(document, quessaEvent, QStringLiteral("Type"), ARG_VIRTUAL_TRIGGER);
    QDomElement body = document.createElement(ARG_VIRTUAL_TRIGGER);
    appendTextElement(document, body, QStringLiteral("Camera"), camera);
    appendTextElement(document, body, QStringLiteral("Name"), encoded(name));
    appendTextElement(document, body, QStringLiteral("RefName"), QStringLiteral("c_") + cameraName);
    appendTextElement(document, body, QStringLiteral("ServerTime"), when.toUTC().toString(Qt::ISODate));
    quessaEvent.appendChild(body);
    return nodeText(quessaEvent);
}

// The triggered-alarm message of one rule's occurrence.
QString alarmNotificationXml(const QString& encodedRuleName, const QString& alarmId, const QString& occurrenceId,
                             const QString& quessaEventXml)
{
    QDomDocument alarm;
    QDomElement notification = alarm.createElement(QStringLiteral("AlarmNotification"));
    alarm.appendChild(notification);
    QDomElement alarmElement = alarm.createElement(QStringLiteral("Alarm"));
    notification.appendChild(alarmElement);
    appendTextElement(alarm, alarmElement, QStringLiteral("Name"), encodedRuleName);
    appendTextElement(alarm, alarmElement, QStringLiteral("AlarmID"), alarmId);
    appendTextElement(alarm, alarmElement, QStringLiteral("TmcardID"), occurrenceId);
    appendXml(alarm, alarmElement, quessaEventXml);
    return nodeText(notification);
}

// One client notification message per "ClientNotification" action of the rule; a pop-up carries the event.
QStringList clientNotificationXmls(const QString& actionListXml, const QString& occurrenceId,
                                   const QString& quessaEventXml)
{
    QStringList messages;
    QDomDocument actions;
    actions.setContent(actionListXml);
    const QDomNodeList clientNotifications = actions.elementsByTagName(ActionParserCommon::ACTION_TYPE_CLIENTNOTIFY);
    for (int i = 0; i < clientNotifications.size(); ++i) {
        const QDomElement action = clientNotifications.at(i).toElement();
        QDomDocument message;
        QDomElement root = message.createElement(ActionParserCommon::ACTION_TYPE_CLIENTNOTIFY);
        message.appendChild(root);
        appendTextElement(message, root, QStringLiteral("TimecardId"), occurrenceId);
        for (QDomElement child = action.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
            QDomElement copy = message.importNode(child, true).toElement();
            if (copy.tagName() == QLatin1String("PopupWindow"))
                appendXml(message, copy, quessaEventXml);
            root.appendChild(copy);
        }
        messages.append(nodeText(root));
    }
    return messages;
}

// Entries of a toggle request: a list of maps, one map, or a map holding such a list.
QVariantList toggleEntries(const QVariant& argument)
{
    if (argument.canConvert<QVariantList>() && argument.typeId() != QMetaType::QString
        && argument.typeId() != QMetaType::QVariantMap)
        return argument.toList();
    const QVariantMap map = argument.toMap();
    if (map.contains(ARG_ALARM_ID))
        return {map};
    for (const QVariant& value : map) {
        if (value.typeId() == QMetaType::QVariantList)
            return value.toList();
    }
    return {};
}

// A rule lives in rules/<id>.xml.
QString ruleFileName(const QString& alarmId)
{
    return alarmId + QLatin1String(".xml");
}

bool isFileName(const QString& name)
{
    return !name.isEmpty() && !name.contains(QLatin1Char('/')) && !name.contains(QLatin1Char('\\'))
        && name != QLatin1String(".") && name != QLatin1String("..");
}

} // namespace

SimulatedServer::SimulatedServer(const QString& dataDirectory, QObject* parent)
    : QObject(parent)
    , m_dataDirectory(dataDirectory)
    , m_clock([] { return QDateTime::currentDateTime(); })
{
}

SimulatedServer::~SimulatedServer() = default;

bool SimulatedServer::load(QString* errorText)
{
    QDir data(m_dataDirectory);
    if (!data.mkpath(RULES_FOLDER) || !data.mkpath(SOUNDS_FOLDER)) {
        if (errorText)
            *errorText = QStringLiteral("cannot create the data folder %1").arg(m_dataDirectory);
        return false;
    }
    QFile settingsFile(data.filePath(SETTINGS_FILE));
    if (settingsFile.open(QIODevice::ReadOnly)) {
        const QJsonObject settings = QJsonDocument::fromJson(settingsFile.readAll()).object();
        m_lastAlarmId = settings.value(QLatin1String("lastAlarmId")).toInteger(m_lastAlarmId);
        m_reserveTime = settings.value(QLatin1String("reserveTime")).toInt(m_reserveTime);
    }

    m_rules.clear();
    const QDir rules(data.filePath(RULES_FOLDER));
    const QStringList files = rules.entryList({QStringLiteral("*.xml")}, QDir::Files, QDir::Name);
    for (const QString& fileName : files) {
        QFile file(rules.filePath(fileName));
        QDomDocument document;
        if (!file.open(QIODevice::ReadOnly) || !document.setContent(&file)
            || document.documentElement().tagName() != QLatin1String("Tmcard")) {
            qWarning("Skipping rule file %s: not a Tmcard document", qPrintable(file.fileName()));
            continue;
        }
        const QDomElement root = document.documentElement();
        Rule rule;
        rule.id = root.firstChildElement(QStringLiteral("TmcardID")).text().trimmed();
        if (rule.id.isEmpty() || fileName != ruleFileName(rule.id)) {
            qWarning("Skipping rule file %s: its TmcardID does not match the file name", qPrintable(file.fileName()));
            continue;
        }
        rule.revision = root.firstChildElement(QStringLiteral("Revision")).text().toLongLong();
        rule.encodedName = root.firstChildElement(QStringLiteral("Name")).text();
        rule.isEnabled = root.firstChildElement(QStringLiteral("Enabled")).text() == QLatin1String("true");
        rule.encodedDescription = root.firstChildElement(QStringLiteral("Description")).text();
        const QDomElement mapping = root.firstChildElement(TAG_MAPPING);
        if (!mapping.isNull())
            rule.mappingXml = nodeText(mapping);
        const QDomElement related = root.firstChildElement(TAG_RELATED_DEVICES);
        if (!related.isNull())
            rule.relatedDevicesXml = nodeText(related);
        rule.triggerListXml = normalisedList(nodeText(root.firstChildElement(TAG_TRIGGER_LIST)), TAG_TRIGGER_LIST);
        rule.actionListXml = normalisedList(nodeText(root.firstChildElement(TAG_ACTION_LIST)), TAG_ACTION_LIST);
        m_lastAlarmId = std::max(m_lastAlarmId, rule.id.toLongLong());
        m_rules.insert(rule.id, rule);
    }
    return true;
}

QList<const SimulatedServer::Rule*> SimulatedServer::rulesInListOrder() const
{
    QList<const Rule*> rules;
    for (const Rule& rule : m_rules)
        rules.append(&rule);
    // Numeric ids in numeric order: shorter ids first, then by text.
    std::sort(rules.begin(), rules.end(), [](const Rule* a, const Rule* b) {
        return a->id.size() != b->id.size() ? a->id.size() < b->id.size() : a->id < b->id;
    });
    return rules;
}

QStringList SimulatedServer::alarmIds() const
{
    QStringList ids;
    for (const Rule* rule : rulesInListOrder())
        ids.append(rule->id);
    return ids;
}

QString SimulatedServer::alarmDocument(const QString& alarmId) const
{
    const auto found = m_rules.constFind(alarmId);
    return found == m_rules.constEnd() ? QString() : ruleDocument(*found);
}

qint64 SimulatedServer::alarmRevision(const QString& alarmId) const
{
    const auto found = m_rules.constFind(alarmId);
    return found == m_rules.constEnd() ? 0 : found->revision;
}

bool SimulatedServer::isAlarmEnabled(const QString& alarmId) const
{
    return m_rules.value(alarmId).isEnabled;
}

QString SimulatedServer::ruleDocument(const Rule& rule) const
{
    QDomDocument document;
    QDomElement root = document.createElement(QStringLiteral("Tmcard"));
    document.appendChild(root);
    appendTextElement(document, root, QStringLiteral("TmcardID"), rule.id);
    appendTextElement(document, root, QStringLiteral("Revision"), QString::number(rule.revision));
    appendTextElement(document, root, QStringLiteral("Name"), rule.encodedName);
    appendTextElement(document, root, QStringLiteral("Enabled"),
                      rule.isEnabled ? QStringLiteral("true") : QStringLiteral("false"));
    appendTextElement(document, root, QStringLiteral("Description"), rule.encodedDescription);
    appendXml(document, root, rule.mappingXml);
    appendXml(document, root, rule.relatedDevicesXml);
    appendXml(document, root, rule.triggerListXml);
    appendXml(document, root, rule.actionListXml);
    return nodeText(root);
}

// The announcement of an added or changed rule: its id and trigger list.
QPair<QString, QVariant> SimulatedServer::ruleEvent(const QString& eventType, const Rule& rule)
{
    return {eventType, QVariantMap{{ARG_ALARM_ID, rule.id}, {ARG_ALARM_TRG_LIST, rule.triggerListXml}}};
}

QString SimulatedServer::ruleFilePath(const QString& alarmId) const
{
    return QDir(m_dataDirectory).filePath(RULES_FOLDER + QLatin1Char('/') + ruleFileName(alarmId));
}

bool SimulatedServer::storeRule(const Rule& rule)
{
    QSaveFile file(ruleFilePath(rule.id));
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write(ruleDocument(rule).toUtf8());
    file.write("\n");
    return file.commit();
}

bool SimulatedServer::storeSettings()
{
    QSaveFile file(QDir(m_dataDirectory).filePath(SETTINGS_FILE));
    if (!file.open(QIODevice::WriteOnly))
        return false;
    const QJsonObject settings{{QStringLiteral("lastAlarmId"), m_lastAlarmId},
                               {QStringLiteral("reserveTime"), m_reserveTime}};
    file.write(QJsonDocument(settings).toJson());
    return file.commit();
}

QString SimulatedServer::nextAlarmId()
{
    ++m_lastAlarmId;
    while (m_rules.contains(QString::number(m_lastAlarmId)))
        ++m_lastAlarmId;
    return QString::number(m_lastAlarmId);
}

QStringList SimulatedServer::soundNames() const
{
    return QDir(QDir(m_dataDirectory).filePath(SOUNDS_FOLDER))
        .entryList({QStringLiteral("*.mp3")}, QDir::Files, QDir::Name);
}

bool SimulatedServer::request(const QString& method, const QVariant& argument, Reply reply)
{
    if (method == METHOD_SEND_HTTP) {
        sendHttp(argument.toMap(), std::move(reply));
        return true;
    }
    // The close requests only travel to every client as events; the plug-in expects no answer.
    if (method == METHOD_CLOSE_EMAP_TAB || method == METHOD_CLOSE_ALARM_TAB
        || method == METHOD_CLOSE_ALARM_NOTIFICATION) {
        Answer broadcast;
        broadcast.events.append({method, argument});
        deliver(broadcast, Reply());
        return false;
    }
    deliver(handle(method, argument), std::move(reply));
    return true;
}

void SimulatedServer::deliver(Answer answer, Reply reply)
{
    QTimer::singleShot(m_latencyMs, this, [this, answer = std::move(answer), reply = std::move(reply)] {
        if (reply)
            reply(answer.result, answer.returnCode);
        for (const auto& event : answer.events)
            emit eventPushed(event.first, event.second);
    });
}

SimulatedServer::Answer SimulatedServer::handle(const QString& method, const QVariant& argument)
{
    if (method == METHOD_GET_ALL_ALARM)
        return getAllAlarm();
    if (method == METHOD_ADD_ALARM)
        return addAlarm(argument.toMap());
    if (method == METHOD_UPD_ALARM)
        return updateAlarm(argument.toMap());
    if (method == METHOD_DEL_ALARM)
        return deleteAlarm(argument.toMap());
    if (method == METHOD_TOGGLE_ALARM)
        return toggleAlarm(argument);
    if (method == METHOD_TOGGLE_ALL_ALARM)
        return toggleAllAlarm(argument.toMap());
    if (method == METHOD_UPD_ALARM_SCHEDULE)
        return updateAlarmSchedule(argument.toMap());
    if (method == METHOD_VIRTUAL_TRIGGER)
        return virtualTrigger(argument.toMap());
    if (method == METHOD_GET_ALARM_SOUND_LIST || method == METHOD_GET_ALARM_SOUND_LIST_FOR_SYNC)
        return {soundNames(), CODE_OK, {}};
    if (method == METHOD_GET_ALARM_SOUND_CONTENT)
        return soundContent(argument);
    if (method == METHOD_GET_RESERVE_TIME)
        return {m_reserveTime, CODE_OK, {}};
    if (method == METHOD_UPD_RESERVE_TIME) {
        bool isNumber = false;
        const int reserveTime = argument.toInt(&isNumber);
        if (!isNumber || reserveTime < 0)
            return {QVariant(), CODE_BAD_REQUEST, {}};
        const int previous = m_reserveTime;
        m_reserveTime = reserveTime;
        if (!storeSettings()) {
            m_reserveTime = previous;
            return {QVariant(), CODE_STORAGE_FAILED, {}};
        }
        return {reserveTime, CODE_OK, {}};
    }
    return {QStringLiteral("unknown method %1").arg(method), CODE_UNKNOWN_METHOD, {}};
}

SimulatedServer::Answer SimulatedServer::getAllAlarm() const
{
    QString document = QStringLiteral("<GetEvtTmcardRes>");
    for (const Rule* rule : rulesInListOrder())
        document += ruleDocument(*rule);
    document += QLatin1String("</GetEvtTmcardRes>");
    return {document, CODE_OK, {}};
}

SimulatedServer::Answer SimulatedServer::addAlarm(const QVariantMap& argument)
{
    Rule rule;
    rule.encodedName = argument.value(ARG_ALARM_NAME).toString();
    rule.encodedDescription = argument.value(ARG_ALARM_DESC).toString();
    rule.triggerListXml = normalisedList(argument.value(ARG_ALARM_TRG_LIST).toString(), TAG_TRIGGER_LIST);
    rule.actionListXml = normalisedList(argument.value(ARG_ALARM_ACT_LIST).toString(), TAG_ACTION_LIST);
    const QString related = argument.value(ARG_ALARM_RELATED_DEV).toString();
    if (rule.triggerListXml.isNull() || rule.actionListXml.isNull()
        || !mappingFromTemplate(argument.value(ARG_ALARM_TEMP_NAME).toString(),
                                argument.value(ARG_ALARM_TEMP_CONTENT).toString(), rule.mappingXml))
        return {QVariant(), CODE_BAD_REQUEST, {}};
    if (!related.trimmed().isEmpty()) {
        rule.relatedDevicesXml = normalisedList(related, TAG_RELATED_DEVICES);
        if (rule.relatedDevicesXml.isNull())
            return {QVariant(), CODE_BAD_REQUEST, {}};
    }
    // Every new rule starts enabled at revision 1, whatever the request asked for.
    rule.revision = 1;
    rule.isEnabled = true;
    const qint64 previousLastId = m_lastAlarmId;
    rule.id = nextAlarmId();
    if (!storeRule(rule) || !storeSettings()) {
        m_lastAlarmId = previousLastId;
        QFile::remove(ruleFilePath(rule.id));
        return {QVariant(), CODE_STORAGE_FAILED, {}};
    }
    m_rules.insert(rule.id, rule);
    const QVariantMap result{{ARG_ALARM_ID, rule.id},
                             {ARG_ALARM_TRG_LIST, rule.triggerListXml},
                             {ARG_ALARM_ACT_LIST, rule.actionListXml}};
    return {result, CODE_OK, {ruleEvent(EVENT_TYPE_ADD_ALARM, rule)}};
}

SimulatedServer::Answer SimulatedServer::updateAlarm(const QVariantMap& argument)
{
    const QString id = argument.value(ARG_ALARM_ID).toString();
    const auto found = m_rules.find(id);
    if (found == m_rules.end())
        return {id, CODE_NOT_FOUND, {}};
    // Optimistic locking: an edit names the revision it creates, which must follow the stored one.
    bool isNumber = false;
    const qint64 revision = argument.value(ARG_ALARM_REV).toLongLong(&isNumber);
    if (!isNumber || revision != found->revision + 1)
        return {id, CODE_STALE_REVISION, {}};
    Rule edited = *found;
    edited.revision = revision;
    edited.encodedName = argument.value(ARG_ALARM_NAME).toString();
    edited.encodedDescription = argument.value(ARG_ALARM_DESC).toString();
    edited.triggerListXml = normalisedList(argument.value(ARG_ALARM_TRG_LIST).toString(), TAG_TRIGGER_LIST);
    edited.actionListXml = normalisedList(argument.value(ARG_ALARM_ACT_LIST).toString(), TAG_ACTION_LIST);
    if (argument.contains(ARG_ALARM_ENABLED))
        edited.isEnabled = argument.value(ARG_ALARM_ENABLED).toBool();
    const QString templateName = argument.value(ARG_ALARM_TEMP_NAME).toString();
    const QString templateContent = argument.value(ARG_ALARM_TEMP_CONTENT).toString();
    // An edit without any schedule keeps the rule's schedule.
    const bool isScheduleValid = (templateName.isEmpty() && templateContent.isEmpty())
        || mappingFromTemplate(templateName, templateContent, edited.mappingXml);
    if (edited.triggerListXml.isNull() || edited.actionListXml.isNull() || !isScheduleValid)
        return {id, CODE_BAD_REQUEST, {}};
    if (!storeRule(edited))
        return {id, CODE_STORAGE_FAILED, {}};
    *found = edited;
    const QVariantMap result{{ARG_ALARM_ID, id}, {ARG_ALARM_REV, revision}};
    return {result, CODE_OK, {ruleEvent(EVENT_TYPE_UPDATE_ALARM, edited)}};
}

SimulatedServer::Answer SimulatedServer::deleteAlarm(const QVariantMap& argument)
{
    const QString id = argument.value(ARG_ALARM_ID).toString();
    const auto found = m_rules.find(id);
    if (found == m_rules.end())
        return {id, CODE_NOT_FOUND, {}};
    // A deletion names the revision the client saw; one that missed a later edit is refused.
    if (argument.contains(ARG_ALARM_REV) && argument.value(ARG_ALARM_REV).toLongLong() != found->revision)
        return {id, CODE_STALE_REVISION, {}};
    if (!QFile::remove(ruleFilePath(id)))
        return {id, CODE_STORAGE_FAILED, {}};
    m_rules.erase(found);
    return {id, CODE_OK, {{EVENT_TYPE_DELETE_ALARM, id}}};
}

bool SimulatedServer::setEnabled(Rule& rule, bool isEnabled, QList<QPair<QString, QVariant>>& events)
{
    if (rule.isEnabled != isEnabled) {
        Rule toggled = rule;
        toggled.isEnabled = isEnabled;
        if (!storeRule(toggled))
            return false;
        rule = toggled;
    }
    const QVariantMap entry{{ARG_ALARM_ID, rule.id}, {ARG_TOGGLE_ENABLE, isEnabled}};
    if (events.isEmpty() || events.last().first != EVENT_TYPE_TOGGLE_ALARM)
        events.append({EVENT_TYPE_TOGGLE_ALARM, QVariantList()});
    QVariantList entries = events.last().second.toList();
    entries.append(entry);
    events.last().second = entries;
    return true;
}

SimulatedServer::Answer SimulatedServer::toggleAlarm(const QVariant& argument)
{
    const QVariantList entries = toggleEntries(argument);
    if (entries.isEmpty())
        return {QVariantList(), CODE_BAD_REQUEST, {}};
    Answer answer{QVariantList(), CODE_OK, {}};
    QVariantList applied;
    for (const QVariant& entry : entries) {
        const QVariantMap map = entry.toMap();
        const auto found = m_rules.find(map.value(ARG_ALARM_ID).toString());
        if (found == m_rules.end() || !map.contains(ARG_TOGGLE_ENABLE)) {
            answer.returnCode = CODE_NOT_FOUND;
            continue;
        }
        const bool isEnabled = map.value(ARG_TOGGLE_ENABLE).toBool();
        if (!setEnabled(*found, isEnabled, answer.events)) {
            answer.returnCode = CODE_STORAGE_FAILED;
            continue;
        }
        applied.append(QVariantMap{{ARG_ALARM_ID, found->id}, {ARG_TOGGLE_ENABLE, isEnabled}});
    }
    answer.result = applied;
    return answer;
}

SimulatedServer::Answer SimulatedServer::toggleAllAlarm(const QVariantMap& argument)
{
    if (!argument.contains(ARG_TOGGLE_ENABLE))
        return {QVariant(), CODE_BAD_REQUEST, {}};
    const bool isEnabled = argument.value(ARG_TOGGLE_ENABLE).toBool();
    const int intervalMinutes = argument.value(ARG_TOGGLE_INTERVAL).toInt();
    Answer answer{QVariant(), CODE_OK, {}};
    QStringList switchedOff;
    for (Rule& rule : m_rules) {
        if (rule.isEnabled && !isEnabled)
            switchedOff.append(rule.id);
        if (!setEnabled(rule, isEnabled, answer.events))
            answer.returnCode = CODE_STORAGE_FAILED;
    }
    // Switching everything off for a while: the rules switched off now come back on by themselves.
    if (!isEnabled && intervalMinutes > 0 && !switchedOff.isEmpty()) {
        QTimer::singleShot(std::chrono::minutes(intervalMinutes), this, [this, switchedOff] {
            QVariantList entries;
            for (const QString& id : switchedOff)
                entries.append(QVariantMap{{ARG_ALARM_ID, id}, {ARG_TOGGLE_ENABLE, true}});
            request(METHOD_TOGGLE_ALARM, entries, Reply());
        });
    }
    return answer;
}

SimulatedServer::Answer SimulatedServer::updateAlarmSchedule(const QVariantMap& argument)
{
    const QString id = argument.value(ARG_ALARM_ID).toString();
    const QVariantMap echo{{ARG_ALARM_ID, id}, {ARG_CONTEXT_UID, argument.value(ARG_CONTEXT_UID)}};
    const auto found = m_rules.find(id);
    if (found == m_rules.end())
        return {echo, CODE_NOT_FOUND, {}};
    if (argument.contains(ARG_ALARM_REV) && argument.value(ARG_ALARM_REV).toLongLong() != found->revision + 1)
        return {echo, CODE_STALE_REVISION, {}};
    Rule edited = *found;
    if (!mappingFromTemplate(argument.value(ARG_ALARM_TEMP_NAME).toString(),
                             argument.value(ARG_ALARM_TEMP_CONTENT).toString(), edited.mappingXml))
        return {echo, CODE_BAD_REQUEST, {}};
    ++edited.revision;
    if (!storeRule(edited))
        return {echo, CODE_STORAGE_FAILED, {}};
    *found = edited;
    QVariantMap result = echo;
    result.insert(ARG_ALARM_REV, edited.revision);
    return {result, CODE_OK, {ruleEvent(EVENT_TYPE_UPDATE_ALARM, edited)}};
}

bool SimulatedServer::editElsewhere(const QString& alarmId)
{
    const auto found = m_rules.find(alarmId);
    if (found == m_rules.end())
        return false;
    Rule edited = *found;
    ++edited.revision;
    if (!storeRule(edited))
        return false;
    *found = edited;
    Answer announcement;
    announcement.events.append(ruleEvent(EVENT_TYPE_UPDATE_ALARM, edited));
    deliver(announcement, Reply());
    return true;
}

bool SimulatedServer::isScheduleActive(const Rule& rule, const QDateTime& when) const
{
    if (rule.mappingXml.isEmpty())
        return true;
    QDomDocument document;
    if (!document.setContent(rule.mappingXml))
        return true;
    const QDomNodeList frames = document.elementsByTagName(QStringLiteral("Frame"));
    if (frames.isEmpty())
        return true;
    const int day = when.date().dayOfWeek();
    const int second = when.time().msecsSinceStartOfDay() / 1000;
    for (int i = 0; i < frames.size(); ++i) {
        const QDomElement frame = frames.at(i).toElement();
        const QDomElement interval =
            frame.firstChildElement(QStringLiteral("Intervals")).firstChildElement(QStringLiteral("Ele"));
        const int begin = interval.attribute(QStringLiteral("B")).toInt();
        const int end = interval.attribute(QStringLiteral("E")).toInt();
        if (second < begin || second >= end)
            continue;
        for (QDomElement dayElement = frame.firstChildElement(QStringLiteral("DayList")).firstChildElement();
             !dayElement.isNull(); dayElement = dayElement.nextSiblingElement()) {
            if (static_cast<int>(dayElement.attribute(QStringLiteral("B")).toDouble()) == day)
                return true;
        }
    }
    return false;
}

SimulatedServer::Answer SimulatedServer::virtualTrigger(const QVariantMap& argument)
{
    const QString camera = argument.value(ARG_CAMERA).toString();
    const QString name = argument.value(ARG_VIRTUAL_TRIGGER_NAME).toString();
    const QString triggerId = argument.value(ARG_VIRTUAL_TRIGGER_ID).toString();
    const QString cameraName = argument.value(ARG_CAMERA_NAME).toString();
    if (camera.isEmpty() || (name.isEmpty() && triggerId.isEmpty()))
        return {QVariant(), CODE_BAD_REQUEST, {}};

    const QDateTime now = m_clock();
    Answer answer{QVariant(), CODE_NO_RULE_FIRED, {}};
    QStringList firedIds;
    for (const Rule* rule : rulesInListOrder()) {
        if (!rule->isEnabled || !isScheduleActive(*rule, now)
            || !holdsVirtualTrigger(rule->triggerListXml, camera, triggerId, name))
            continue;
        const QString occurrenceId = QStringLiteral("%1%2").arg(now.toMSecsSinceEpoch()).arg(++m_occurrenceCount, 4, 10, QLatin1Char('0'));
        // The triggering event as the client's parsers read it, shared by the alarm and its notifications.
        const QString quessaEventXml = virtualTriggerEventXml(camera, name, cameraName, now);
        answer.events.append({EVENT_TYPE_ALARM_TRIGGERED,
                              QVariantMap{{QStringLiteral("xml"), alarmNotificationXml(rule->encodedName, rule->id,
                                                                                       occurrenceId, quessaEventXml)}}});
        for (const QString& notification : clientNotificationXmls(rule->actionListXml, occurrenceId, quessaEventXml))
            answer.events.append({EVENT_TYPE_CLIENT_NOTIFICATION, notification});
        firedIds.append(rule->id);
    }
    if (!firedIds.isEmpty()) {
        answer.returnCode = CODE_OK;
        answer.result = firedIds;
    }
    return answer;
}

SimulatedServer::Answer SimulatedServer::soundContent(const QVariant& argument) const
{
    const QDir sounds(QDir(m_dataDirectory).filePath(SOUNDS_FOLDER));
    QVariantList contents;
    for (const QVariant& entry : argument.toList()) {
        const QString name = entry.toString();
        if (!isFileName(name))
            continue;
        QFile file(sounds.filePath(name));
        if (!file.open(QIODevice::ReadOnly))
            continue;
        contents.append(QVariantMap{{ARG_SOUND_NAME, name},
                                    {ARG_SOUND_CONTENT, QString::fromLatin1(file.readAll().toBase64())}});
    }
    return {contents, CODE_OK, {}};
}

void SimulatedServer::sendHttp(const QVariantMap& argument, Reply reply)
{
    const QUrl url(argument.value(ARG_HTTP_URL).toString());
    const QString host = url.host();
    const bool isLoopback = host.compare(QLatin1String("localhost"), Qt::CaseInsensitive) == 0
        || QHostAddress(host).isLoopback();
    const bool isHttp = url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
    // The demo server reaches nothing beyond this machine.
    if (!url.isValid() || !isHttp || !isLoopback) {
        deliver({QStringLiteral("only loopback http(s) addresses are allowed"), CODE_NOT_ALLOWED, {}}, std::move(reply));
        return;
    }
    if (!m_network)
        m_network = new QNetworkAccessManager(this);
    QNetworkRequest request(url);
    request.setTransferTimeout(HTTP_TIMEOUT_MS);
    const QString contentType = argument.value(ARG_HTTP_CONTENT_TYPE).toString();
    if (!contentType.isEmpty())
        request.setHeader(QNetworkRequest::ContentTypeHeader, contentType);
    if (argument.value(ARG_HTTP_NEEDAUTH).toBool()) {
        const QByteArray credentials =
            (argument.value(ARG_HTTP_USER).toString() + QLatin1Char(':') + argument.value(ARG_HTTP_PWD).toString()).toUtf8();
        request.setRawHeader("Authorization", "Basic " + credentials.toBase64());
    }
    const QString method = argument.value(ARG_HTTP_METHOD).toString().toUpper();
    const QByteArray content = argument.value(ARG_HTTP_CONTENT).toString().toUtf8();
    QNetworkReply* networkReply = nullptr;
    if (method.contains(QLatin1String("POST")))
        networkReply = m_network->post(request, content);
    else if (method.contains(QLatin1String("PUT")))
        networkReply = m_network->put(request, content);
    else
        networkReply = m_network->get(request);
    connect(networkReply, &QNetworkReply::finished, this, [this, networkReply, reply = std::move(reply)] {
        networkReply->deleteLater();
        const int status = networkReply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        const bool isSuccess = networkReply->error() == QNetworkReply::NoError && status > 0 && status < 400;
        const QString result = status > 0 ? QString::number(status) : networkReply->errorString();
        deliver({result, isSuccess ? CODE_OK : CODE_HTTP_FAILED, {}}, reply);
    });
}
