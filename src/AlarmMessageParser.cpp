#include "AlarmMessageParser.h"

#include "AlarmActionParser.h"
#include "AlarmItem.h"
#include "AlarmModel.h"
#include "PluginAlarmManager.h"
#include "PluginAlarmManager_Log.h"
#include "VariantTree.h"
#include "XML2Json.h"
#include "XmlDocument.h"
#include "stdafx.h"

#include <QHash>
#include <QStandardItem>
#include <QStringBuilder>
#include <QIODevice>
#include <QTextStream>

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <cstring>
#include <limits>
#include <string>
#include <string_view>

using namespace AlarmMessageParserCommon;
using namespace VariantTree;

namespace {

// A rule's two list texts as the writer gives them, UTF-8.
struct Utf8RuleTexts
{
    QByteArray triggerXml;
    QByteArray actionXml;
};

// A number as QVariant converts it.
template<typename Node>
int intAt(const Node& node, std::initializer_list<QString> path)
{
    return valueAt(node, path).toInt();
}

int latencyOf(const QVariantMap& trigger)
{
    return intAt(trigger, {QStringLiteral("Rule"), QStringLiteral("Latency")});
}

int dioTypeOf(const QString& ioName)
{
    // The same test the device lookups use to tell inputs from outputs.
    return ioName.contains(QLatin1String("DI")) ? TRIGGER_DIO_TYPE_DI : TRIGGER_DIO_TYPE_DO;
}

// A day number as the schedule stores it ("3" or "3.0"), truncated; out-of-range numbers clamp instead of
// overflowing the conversion.
int dayNumberOf(const QVariant& day)
{
    const double number = std::trunc(valueAt(day, {QStringLiteral("@B")}).toDouble());
    if (std::isnan(number))
        return 0;
    return int(std::clamp(number, double(std::numeric_limits<int>::min()), double(std::numeric_limits<int>::max())));
}

bool isOneOf(const QString& value, std::initializer_list<QLatin1String> candidates)
{
    return std::any_of(candidates.begin(), candidates.end(),
                       [&value](QLatin1String candidate) { return value == candidate; });
}

// ---- Rule XML texts without a DOM ------------------------------------------------------------------

// Writes a rule's lists from the parsed document exactly as QDomNode::save(stream, 4) writes the DOM that
// Qt's reader would build from the same text. The DOM drops blank text and keeps everything else, so
// the nodes that count here are the elements, comments, processing instructions, CDATA sections and
// text that is not blank. A node is indented and followed by a line break unless a text sibling stands
// next to it. The text is written as UTF-8, which is how the rows keep it.
class DomTextWriter
{
public:
    explicit DomTextWriter(size_t budget)
        : m_budget(budget)
    {
    }

    // False once the texts together outgrow the budget: deep nesting indents every line by its depth, so
    // a small hostile document could otherwise ask for gigabytes.
    bool isWithinBudget() const { return m_written <= m_budget; }

    QByteArray textOf(const pugi::xml_node& list)
    {
        if (!list || !isWithinBudget())
            return {};
        m_out.clear();
        const pugi::xml_node previous = keptSibling(list, false);
        const bool followsText = previous ? isText(previous) : hasLeadingText(list.parent());
        const pugi::xml_node next = keptSibling(list, true);
        save(list, 1, followsText, next && isText(next));
        m_written += m_out.size();
        if (!isWithinBudget())
            return {};
        return QByteArray(m_out.data(), qsizetype(m_out.size()));
    }

private:
    static bool isKept(const pugi::xml_node& node)
    {
        switch (node.type()) {
        case pugi::node_element:
        case pugi::node_comment:
        case pugi::node_pi:
        case pugi::node_cdata:
            return true;
        case pugi::node_pcdata:
            return !isBlank(node.value());
        default:
            return false;
        }
    }

    // Blank as QString::trimmed sees it; non-ASCII spaces are rare enough to be decoded.
    static bool isBlank(const char* text)
    {
        bool hasOtherThanAscii = false;
        for (const char* c = text; *c; ++c) {
            if (static_cast<unsigned char>(*c) >= 0x80)
                hasOtherThanAscii = true;
            else if (!(*c == ' ' || (*c >= '\t' && *c <= '\r')))
                return false;
        }
        return !hasOtherThanAscii || QString::fromUtf8(text).trimmed().isEmpty();
    }

    static bool isText(const pugi::xml_node& node)
    {
        return node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata;
    }

    // The parser keeps an element's leading text as its value: a first child the DOM has as a text node.
    static bool hasLeadingText(const pugi::xml_node& element)
    {
        return *element.value() && !isBlank(element.value());
    }

    static pugi::xml_node keptSibling(pugi::xml_node node, bool isNext)
    {
        do
            node = isNext ? node.next_sibling() : node.previous_sibling();
        while (node && !isKept(node));
        return node;
    }

    void indent(int depth) { m_out.append(size_t(4 * depth), ' '); }

    // Fixed pieces go in with their length known, without a strlen each.
    std::string& put(std::string_view piece) { return m_out.append(piece.data(), piece.size()); }

    void save(const pugi::xml_node& node, int depth, bool followsText, bool precedesText)
    {
        switch (node.type()) {
        case pugi::node_pcdata:
            appendEncoded(node.value(), false);
            return;
        case pugi::node_cdata:
            put("<![CDATA[").append(node.value());
            put("]]>");
            return;
        case pugi::node_comment: {
            if (!followsText)
                indent(depth);
            const std::string_view value(node.value());
            put("<!--").append(value);
            if (!value.empty() && value.back() == '-')
                m_out.push_back(' ');
            put("-->");
            if (!precedesText)
                m_out.push_back('\n');
            return;
        }
        case pugi::node_pi:
            put("<?").append(node.name()).push_back(' ');
            appendWithLineFeeds(node.value());
            put("?>\n");
            return;
        default:
            break;
        }

        // Checked per element, so that a text over budget stops growing soon after.
        if (m_written + m_out.size() > m_budget)
            return;
        if (!followsText)
            indent(depth);
        put("<").append(node.name());
        appendAttributes(node);
        const bool hasText = hasLeadingText(node);
        pugi::xml_node child = node.first_child();
        while (child && !isKept(child))
            child = child.next_sibling();
        if (!hasText && !child) {
            put("/>");
        } else {
            m_out.push_back('>');
            bool isLastText = hasText;
            if (hasText)
                appendEncoded(node.value(), false);
            else if (!isText(child))
                m_out.push_back('\n');
            while (child) {
                const pugi::xml_node after = keptSibling(child, true);
                save(child, depth + 1, isLastText, after && isText(after));
                isLastText = isText(child);
                child = after;
            }
            if (!isLastText)
                indent(depth);
            put("</").append(node.name()).push_back('>');
        }
        if (!precedesText)
            m_out.push_back('\n');
    }

    // pugixml leaves the line ends of processing instructions as written; XML reads each "\r\n" and lone
    // "\r" as "\n".
    void appendWithLineFeeds(const char* text)
    {
        for (const char* c = text; *c; ++c) {
            if (*c != '\r')
                m_out.push_back(*c);
            else if (c[1] != '\n')
                m_out.push_back('\n');
        }
    }

    // The DOM keeps attributes in a hash and writes them in its iteration order; a hash with the same
    // keys inserted in the same order iterates alike.
    void appendAttributes(const pugi::xml_node& node)
    {
        const pugi::xml_attribute first = node.first_attribute();
        if (!first)
            return;
        if (!first.next_attribute()) {
            appendAttribute(first);
            return;
        }
        QHash<QString, pugi::xml_attribute> order;
        for (pugi::xml_attribute attribute = first; attribute; attribute = attribute.next_attribute())
            order.insert(QString::fromUtf8(attribute.name()), attribute);
        for (auto it = order.constBegin(); it != order.constEnd(); ++it)
            appendAttribute(it.value());
    }

    void appendAttribute(const pugi::xml_attribute& attribute)
    {
        put(" ").append(attribute.name());
        put("=\"");
        appendEncoded(attribute.value(), true);
        m_out.push_back('"');
    }

    // Escaping exactly as QDomNode::save writes text and attribute values.
    void appendEncoded(const char* text, bool isAttribute)
    {
        const char* runStart = text;
        const auto replace = [&](const char* at, const char* replacement) {
            m_out.append(runStart, size_t(at - runStart)).append(replacement);
            runStart = at + 1;
        };
        for (const char* c = text; *c; ++c) {
            switch (*c) {
            case '<':
                replace(c, "&lt;");
                break;
            case '&':
                replace(c, "&amp;");
                break;
            case '"':
                if (isAttribute)
                    replace(c, "&quot;");
                break;
            case '>':
                if (c - text >= 2 && c[-1] == ']' && c[-2] == ']')
                    replace(c, "&gt;");
                break;
            case '\r':
                replace(c, "&#xd;");
                break;
            case '\n':
                if (isAttribute)
                    replace(c, "&#xa;");
                break;
            case '\t':
                if (isAttribute)
                    replace(c, "&#x9;");
                break;
            default:
                break;
            }
        }
        m_out.append(runStart);
    }

    std::string m_out;
    size_t m_written = 0;
    size_t m_budget;
};

// The texts of the "Tmcard" elements one after the other, in document order (the order of
// QDomDocument::elementsByTagName, by which the DOM pairs them with the tree's rules): each one's first
// "TriggerList" and "ActionList" child. Once the texts outgrow their budget, the one that did and the rest
// are left empty.
class RuleTexts
{
public:
    explicit RuleTexts(const XmlDocument& document, size_t documentSize)
        : m_top(document.root())
        , m_next(document.root())
        // Far above what any real list writes (about twice the document), far below what would hurt.
        , m_writer(16 * documentSize + (size_t(1) << 20))
    {
    }

    bool atEnd()
    {
        while (m_next && std::strcmp(m_next.name(), "Tmcard") != 0)
            advance();
        return !m_next;
    }

    // Whether the last texts were this rule's own and none still to come lies within it, so that its nodes
    // may go. Only where one rule holds another are the texts and the rules out of step.
    bool isDoneWith(const pugi::xml_node& rule)
    {
        if (m_lastRule != rule)
            return false;
        atEnd();
        for (pugi::xml_node node = m_next; node; node = node.parent()) {
            if (node == rule)
                return false;
        }
        return true;
    }

    Utf8RuleTexts next()
    {
        if (atEnd())
            return {};
        const pugi::xml_node rule = m_next;
        m_lastRule = rule;
        advance();
        return {m_writer.textOf(rule.child("TriggerList")), m_writer.textOf(rule.child("ActionList"))};
    }

private:
    static pugi::xml_node elementFrom(pugi::xml_node node)
    {
        while (node && node.type() != pugi::node_element)
            node = node.next_sibling();
        return node;
    }

    // The next element in document order below the top.
    void advance()
    {
        pugi::xml_node next = elementFrom(m_next.first_child());
        for (pugi::xml_node up = m_next; !next && up != m_top; up = up.parent())
            next = elementFrom(up.next_sibling());
        m_next = next;
    }

    pugi::xml_node m_top;
    pugi::xml_node m_next;
    pugi::xml_node m_lastRule;
    DomTextWriter m_writer;
};

} // namespace

AlarmMessageParser::AlarmMessageParser(PluginAlarmManager* owner)
    : m_owner(owner)
{
}

AlarmMessageParser::~AlarmMessageParser() = default;

QList<QStandardItem*> AlarmMessageParser::createAlarmItemList(const QVariant& alarmListMessage)
{
    using namespace PluginAlarmManagerCommon;
    QList<QStandardItem*> items;
    const QVariantMap message = alarmListMessage.toMap();
    const QVariantList rules = listAt(message.value(ARG_ALARM_LIST), {QStringLiteral("GetEvtTmcardRes"), QStringLiteral("Tmcard")});
    if (rules.isEmpty())
        return items;
    const QString text = message.value(ARG_ALARM_XML_MSG).toString();
    const XmlDocument document(text);
    RuleTexts texts(document, size_t(text.size()));

    items.reserve(rules.size());
    for (const QVariant& rule : rules) {
        const Utf8RuleTexts ruleTexts = texts.next();
        if (QStandardItem* item = createAlarmItem(rule.toMap(), ruleTexts.triggerXml, ruleTexts.actionXml))
            items.append(item);
    }
    return items;
}

QList<QStandardItem*> AlarmMessageParser::createAlarmItemListFromXml(const QString& alarmListXml)
{
    QList<QStandardItem*> items;
    XmlDocument document(alarmListXml);
    pugi::xml_node root = document.root();
    if (!root || std::strcmp(root.name(), "GetEvtTmcardRes") != 0)
        return items;
    RuleTexts texts(document, size_t(alarmListXml.size()));
    for (pugi::xml_node rule = root.child("Tmcard"); rule;) {
        const Utf8RuleTexts ruleTexts = texts.next();
        if (QStandardItem* item = createAlarmItem(document.valueOf(rule).toMap(), ruleTexts.triggerXml, ruleTexts.actionXml))
            items.append(item);
        const pugi::xml_node done = rule;
        rule = rule.next_sibling("Tmcard");
        // A rule read is a rule done: its nodes go back to the parser's pages, which are freed as they
        // empty, so the parsed list shrinks while the rows grow.
        if (texts.isDoneWith(done))
            root.remove_child(done);
    }
    return items;
}

QStandardItem* AlarmMessageParser::createAlarmItem(const QVariantMap& rule, const QByteArray& triggerXml,
                                                   const QByteArray& actionXml)
{
    using namespace PluginAlarmManagerCommon;
    const qlonglong revision = rule.value(QStringLiteral("Revision")).toLongLong();
    const QString id = rule.value(QStringLiteral("TmcardID")).toString();
    const QString name = PluginAlarmManager::DecodePercentEncodedStr(rule.value(QStringLiteral("Name")).toString());
    const bool isEnabled = rule.value(QStringLiteral("Enabled")).toBool();
    const QString description =
        PluginAlarmManager::DecodePercentEncodedStr(rule.value(QStringLiteral("Description")).toString());

    QString scheduleName;
    QString rectangles;
    ParseTimeframeData(rule, scheduleName, rectangles);
    QString triggerType;
    QList<QVariant> triggerSources;
    ParseTriggerData(rule, triggerType, triggerSources);
    QList<QVariant> actionTypes;
    QList<QVariant> actionTargets;
    ParseActionData(rule, actionTypes, actionTargets);

    QMap<int, QVariant> roles;
    roles.insert(AlarmModel::idRole, id);
    roles.insert(AlarmModel::nameRole, name);
    roles.insert(AlarmModel::enabledRole, isEnabled);
    roles.insert(AlarmModel::triggerTypeRole, triggerType);
    roles.insert(AlarmModel::triggerSourceRole, triggerSources);
    roles.insert(AlarmModel::actionTypeRole, actionTypes);
    roles.insert(AlarmModel::actionTargetRole, actionTargets);
    roles.insert(AlarmModel::scheduleRole, QVariantList{scheduleName, ARG_SCHE_STATUS_SUCCESS, rectangles});
    roles.insert(AlarmModel::revisionRole, revision);
    roles.insert(AlarmModel::descriptionRole, description);
    roles.insert(AlarmModel::triggerXmlRole, triggerXml);
    roles.insert(AlarmModel::actionXmlRole, actionXml);

    QStandardItem* item = AlarmItem::create(roles);
    if (!item)
        ALARM_TRACE_ERROR("%s, create an AlarmItem instance failed.", "createAlarmItemList");
    return item;
}

QString AlarmMessageParser::GetDomNodeXmlString(const QDomNode& node)
{
    QString xml;
    QTextStream stream(&xml, QIODevice::ReadWrite);
    node.save(stream, 4, QDomNode::EncodingFromTextStream);
    stream.flush();
    return xml;
}

QList<AlarmMessageParser::RuleXmlTexts> AlarmMessageParser::RuleXmlTextsOf(const QString& alarmListXml)
{
    const XmlDocument document(alarmListXml);
    RuleTexts texts(document, size_t(alarmListXml.size()));
    QList<RuleXmlTexts> all;
    while (!texts.atEnd()) {
        const Utf8RuleTexts rule = texts.next();
        all.append({QString::fromUtf8(rule.triggerXml), QString::fromUtf8(rule.actionXml)});
    }
    return all;
}

// ---- Schedule ----------------------------------------------------------------------------------------

void AlarmMessageParser::ParseTimeframeData(const QMap<QString, QVariant>& rule, QString& scheduleName,
                                            QString& rectangleJson)
{
    if (!rule.contains(QStringLiteral("Mapping")))
        return;
    const QVariantList frames = listAt(rule, {QStringLiteral("Mapping"), QStringLiteral("Ele")});
    for (const QVariant& frame : frames)
        scheduleName = textAt(frame, {QStringLiteral("Frame"), QStringLiteral("Name")});
    rectangleJson = ComposeJsonTimeframeMsg(frames);
}

QString AlarmMessageParser::ComposeJsonTimeframeMsg(const QList<QVariant>& frames)
{
    if (frames.isEmpty())
        return {};
    QString rectangles;
    for (const QVariant& frame : frames) {
        if (!rectangles.isEmpty())
            rectangles.append(QLatin1Char(','));
        const QVariantList days = listAt(frame, {QStringLiteral("Frame"), QStringLiteral("DayList"), QStringLiteral("Ele")});
        // One interval per frame; should the server send several, the first stands.
        const QVariantMap interval =
            listAt(frame, {QStringLiteral("Frame"), QStringLiteral("Intervals"), QStringLiteral("Ele")}).value(0).toMap();
        rectangles.append(TransformDayIntervalIntoJsonFormat(days, interval));
    }
    return QLatin1String("{\"Rectangles\":[") + rectangles + QLatin1String("]}");
}

QString AlarmMessageParser::TransformDayIntervalIntoJsonFormat(const QList<QVariant>& days,
                                                               const QMap<QString, QVariant>& interval)
{
    QList<int> dayNumbers;
    dayNumbers.reserve(days.size());
    for (const QVariant& day : days)
        dayNumbers.append(dayNumberOf(day));
    std::sort(dayNumbers.begin(), dayNumbers.end());
    // Days between the first and the last are not checked: the editor draws one rectangle per frame.
    const int left = dayNumbers.isEmpty() ? 0 : int(qMax(qint64(dayNumbers.first()) - 1, qint64(std::numeric_limits<int>::min())));
    const int right = dayNumbers.isEmpty() ? 0 : dayNumbers.last();
    const int top = interval.value(QStringLiteral("@B")).toInt() / 3600;
    const int bottom = interval.value(QStringLiteral("@E")).toInt() / 3600;
    // Built in one allocation; a chain of arg() calls re-scans and re-allocates the text four times.
    return QLatin1String("{\"Bottom\":") % QString::number(bottom) % QLatin1String(",\"Left\":") % QString::number(left)
           % QLatin1String(",\"RecordingMode\":\"Continuous\",\"Right\":") % QString::number(right)
           % QLatin1String(",\"Top\":") % QString::number(top) % QLatin1Char('}');
}

// ---- Triggers ----------------------------------------------------------------------------------------

QString AlarmMessageParser::displayNameOf(const QString& deviceId) const
{
    return m_owner ? m_owner->queryDisplayName(deviceId) : QString();
}

void AlarmMessageParser::ParseTriggerData(const QMap<QString, QVariant>& rule, QString& triggerType,
                                          QList<QVariant>& triggerSources)
{
    const QVariantMap triggerList = mapAt(rule, {QStringLiteral("TriggerList")});
    auto append = [&](const QVariantMap& trigger, const QString& reportedType) {
        triggerSources.append(trigger);
        triggerType = reportedType;
    };
    auto forEachTrigger = [&triggerList](const QString& section, auto&& handle) {
        if (!triggerList.contains(section))
            return;
        const QVariantList triggers = listAt(triggerList, {section});
        for (const QVariant& trigger : triggers)
            handle(trigger.toMap());
    };

    forEachTrigger(QStringLiteral("CamEventTrigger"), [&](const QVariantMap& trigger) {
        QString reportedType = textAt(trigger, {QStringLiteral("EventType")});
        const QVariantMap map = cameraTriggerMap(trigger, reportedType);
        append(map, reportedType);
    });
    forEachTrigger(QStringLiteral("StatusEventTrigger"), [&](const QVariantMap& trigger) {
        const QString eventType = textAt(trigger, {QStringLiteral("EventType")});
        append(statusTriggerMap(trigger, eventType), eventType);
    });
    forEachTrigger(QStringLiteral("SysEventTrigger"), [&](const QVariantMap& trigger) {
        const QString eventType = textAt(trigger, {QStringLiteral("EventType")});
        const int latency = latencyOf(trigger);
        if (eventType == QLatin1String("SysVcaAreaReport"))
            append(BuildRemainingPeopleTriggerMap(eventType, latency, trigger), eventType);
        else
            append(BuildStationTriggerMap(eventType, latency, mapAt(trigger, {eventType})), eventType);
    });
    forEachTrigger(QStringLiteral("ExtDeviceEventTrigger"), [&](const QVariantMap& trigger) {
        const QString eventType = textAt(trigger, {QStringLiteral("EventType")});
        append(externalTriggerMap(trigger, eventType), eventType);
    });
}

QVariantMap AlarmMessageParser::cameraTriggerMap(const QVariantMap& trigger, QString& reportedType)
{
    const QString realName = textAt(trigger, {QStringLiteral("CamName")});
    const QString displayName = displayNameOf(realName);
    const QString eventType = reportedType;
    const int latency = latencyOf(trigger);
    auto withDetail = [&](const QVariant& index, const QVariant& value) {
        return BuildTriggerMap(realName, displayName, eventType, latency, index, value);
    };
    const QString index = QStringLiteral("Index");
    const QString type = QStringLiteral("Type");
    if (eventType == QLatin1String("DI") || eventType == QLatin1String("DO"))
        return withDetail(intAt(trigger, {eventType, index}), textAt(trigger, {eventType, QStringLiteral("Value")}));
    if (eventType == QLatin1String("Motion"))
        return withDetail(intAt(trigger, {eventType, index}), QVariant());
    if (eventType == QLatin1String("VideoLossRestore"))
        return withDetail(QVariant(), intAt(trigger, {QStringLiteral("VLR"), type}));
    if (eventType == QLatin1String("VCA")) {
        // The row reports the kind of analytics, not "VCA"; the trigger map keeps "VCA".
        reportedType = textAt(trigger, {eventType, type});
        return withDetail(reportedType, QVariant());
    }
    if (eventType == QLatin1String("Thermal")) {
        reportedType = textAt(trigger, {eventType, type});
        return withDetail(reportedType, intAt(trigger, {eventType, QStringLiteral("TemperatureInfo"), QStringLiteral("AreaId")}));
    }
    if (eventType == QLatin1String("Guardian"))
        return withDetail(intAt(trigger, {eventType, QStringLiteral("Id")}), textAt(trigger, {eventType, QStringLiteral("Name")}));
    return withDetail(QVariant(), QVariant());
}

QVariantMap AlarmMessageParser::statusTriggerMap(const QVariantMap& trigger, const QString& eventType)
{
    const int latency = latencyOf(trigger);
    const QVariantMap subElement = mapAt(trigger, {eventType});
    if (isOneOf(eventType, {QLatin1String("RecStatus"), QLatin1String("RecErr"), QLatin1String("CamConn")}))
        return BuildCamStatusTriggerMap(eventType, latency, subElement);
    if (eventType == QLatin1String("StorageCapacity"))
        return BuildStationTriggerMap(eventType, latency, mapAt(trigger, {QStringLiteral("StorageCap")}));
    if (eventType == QLatin1String("DIOStatus"))
        return BuildStationDIOTriggerMap(eventType, subElement, latency);
    if (isOneOf(eventType, {QLatin1String("Gsensor"), QLatin1String("GpsSpeed")}))
        return BuildGSensorTriggerMap(eventType, latency, subElement);
    if (isOneOf(eventType, {QLatin1String("BruteForceAttack"), QLatin1String("CyberAttack"), QLatin1String("QuarantineEvent")})) {
        const QString address = textAt(subElement, {QStringLiteral("StationAddress")});
        return BuildTriggerMap(address, displayNameOf(address), eventType, latency, QVariant(), QVariant(QString()));
    }
    // "StationConn", "FailoverState", "StorageConn", "FanStatus", "GpsConn", and any status the server adds
    // later: a station reporting a state.
    return BuildStationTriggerMap(eventType, latency, subElement);
}

QVariantMap AlarmMessageParser::externalTriggerMap(const QVariantMap& trigger, const QString& eventType)
{
    if (eventType == QLatin1String("ExtIODevice")) {
        const QVariantMap device = mapAt(trigger, {eventType});
        const QString deviceName = textAt(device, {QStringLiteral("DeviceName")});
        const QString ioName = textAt(device, {QStringLiteral("EventType")});
        const int ioIndex = intAt(device, {QStringLiteral("Index")});
        QVariantMap map = BuildTriggerMap(deviceName, displayNameOf(deviceName), eventType, latencyOf(device),
                                          m_owner ? m_owner->queryDIDODisplayName(deviceName, ioName, ioIndex) : QString(),
                                          textAt(device, {QStringLiteral("Value")}));
        map.insert(TRIGGER_DIO_TYPE, dioTypeOf(ioName));
        map.insert(TRIGGER_IO_INDEX, ioIndex);
        return map;
    }
    if (eventType == QLatin1String("ExtTCPMessage"))
        return BuildTcpTriggerMap(trigger);
    if (eventType == QLatin1String("ExtDataMagnet"))
        return BuildDataMagnetTriggerMap(trigger);
    if (eventType == QLatin1String("ExtAccessRule")) {
        const QVariantMap accessRule = mapAt(trigger, {eventType});
        return BuildTriggerMap(QString(), QString(), eventType, latencyOf(accessRule),
                               intAt(accessRule, {QStringLiteral("RuleId")}), QVariant());
    }
    if (eventType == QLatin1String("VirtualTrigger"))
        return BuildVirtualTriggerMap(trigger);
    return BuildTriggerMap(QString(), QString(), eventType, latencyOf(mapAt(trigger, {eventType})), QVariant(), QVariant());
}

QVariantMap AlarmMessageParser::BuildTriggerMap(const QString& realName, const QString& displayName,
                                                const QString& triggerType, const QVariant& latency,
                                                const QVariant& index, const QVariant& value) const
{
    QVariantMap map;
    map.insert(TRIGGER_DEV_REALNAME, realName);
    map.insert(TRIGGER_DEV_NAME, displayName);
    map.insert(TRIGGER_TYPE, triggerType);
    map.insert(TRIGGER_LATENCY, latency);
    if (index.isValid())
        map.insert(TRIGGER_INDEX, index);
    if (value.isValid())
        map.insert(TRIGGER_VALUE, value);
    return map;
}

QVariantMap AlarmMessageParser::BuildCamStatusTriggerMap(const QString& eventType, const int& latency,
                                                         const QMap<QString, QVariant>& subElement)
{
    const QString camera = textAt(subElement, {QStringLiteral("CamName")});
    return BuildTriggerMap(camera, displayNameOf(camera), eventType, latency, QVariant(),
                           textAt(subElement, {QStringLiteral("State")}));
}

QVariantMap AlarmMessageParser::BuildStationTriggerMap(const QString& eventType, const int& latency,
                                                       const QMap<QString, QVariant>& subElement)
{
    const QString address = textAt(subElement, {QStringLiteral("StationAddress")});
    return BuildTriggerMap(address, displayNameOf(address), eventType, latency, QVariant(),
                           textAt(subElement, {QStringLiteral("State")}));
}

QVariantMap AlarmMessageParser::BuildStationDIOTriggerMap(const QString& eventType, const QMap<QString, QVariant>& trigger,
                                                          int latency) const
{
    const QString deviceName = textAt(trigger, {QStringLiteral("DeviceName")});
    const QString ioName = textAt(trigger, {QStringLiteral("EventType")});
    const QString refName = textAt(trigger, {QStringLiteral("RefName")});
    // The input or output as the station names it; without a stored name, "DI-2" as the device tree
    // would fall back to.
    const QString ioDisplayName =
        refName.isEmpty() ? QStringLiteral("%1-%2").arg(ioName, textAt(trigger, {QStringLiteral("Index")})) : refName;
    QVariantMap map = BuildTriggerMap(deviceName, displayNameOf(deviceName), eventType, latency, ioDisplayName,
                                      textAt(trigger, {QStringLiteral("Value")}));
    map.insert(TRIGGER_DIO_TYPE, dioTypeOf(ioName));
    map.insert(TRIGGER_IO_INDEX, intAt(trigger, {QStringLiteral("ioIndex")}));
    return map;
}

QVariantMap AlarmMessageParser::BuildGSensorTriggerMap(const QString& eventType, const int& latency,
                                                       const QMap<QString, QVariant>& subElement)
{
    const QString address = textAt(subElement, {QStringLiteral("StationAddress")});
    return BuildTriggerMap(address, displayNameOf(address), eventType, latency, QVariant(),
                           textAt(subElement, {QStringLiteral("Type")}));
}

QVariantMap AlarmMessageParser::BuildRemainingPeopleTriggerMap(const QString& eventType, const int& latency,
                                                               const QMap<QString, QVariant>& trigger)
{
    const QString address = textAt(trigger, {QStringLiteral("StationAddress")});
    const QString report = QStringLiteral("VcaAreaReport");
    QVariantMap map = BuildTriggerMap(address, displayNameOf(address), eventType, latency,
                                      intAt(trigger, {report, QStringLiteral("AreaId")}), QVariant());
    map.insert(TRIGGER_REMAINING_PEOPLE, textAt(trigger, {report, QStringLiteral("RemainingPeople")}));
    map.insert(TRIGGER_COMPARISON, textAt(trigger, {report, QStringLiteral("Comparison")}));
    return map;
}

QVariantMap AlarmMessageParser::BuildTcpTriggerMap(const QMap<QString, QVariant>& trigger) const
{
    const QString eventType = QStringLiteral("ExtTCPMessage");
    const QVariantMap message = mapAt(trigger, {eventType});
    const QString address = textAt(message, {QStringLiteral("StationAddress")});
    // "Rule" holds the latency and, as its own text, the text to match.
    const QVariant rule = message.value(QStringLiteral("Rule"));
    QVariantMap map = BuildTriggerMap(address, displayNameOf(address), eventType, intAt(rule, {QStringLiteral("Latency")}),
                                      QVariant(), ownTextOf(rule));
    map.insert(TRIGGER_MATCHING_TYPE, textAt(message, {QStringLiteral("RuleType")}));
    map.insert(TRIGGER_CASE_INSENSITIVE, textAt(message, {QStringLiteral("CaseInsensitive")}));
    return map;
}

QVariantMap AlarmMessageParser::BuildDataMagnetTriggerMap(const QMap<QString, QVariant>& trigger) const
{
    const QString eventType = QStringLiteral("ExtDataMagnet");
    const QVariantMap magnet = mapAt(trigger, {eventType});
    // A data magnet has no device: its category names where the data comes from, so it stands in for both
    // device names.
    const QString category = textAt(magnet, {QStringLiteral("Category")});
    QString conditions;
    for (const QVariant& condition : listAt(magnet, {QStringLiteral("ConditionList"), QStringLiteral("Condition")})) {
        conditions.append(QStringLiteral("<Condition><FieldName>%1</FieldName><FieldType>%2</FieldType>"
                                         "<FieldValue>%3</FieldValue></Condition>")
                              .arg(textAt(condition, {QStringLiteral("FieldName")}),
                                   textAt(condition, {QStringLiteral("FieldType")}),
                                   textAt(condition, {QStringLiteral("FieldValue")})));
    }
    QVariantMap map = BuildTriggerMap(category, category, eventType, latencyOf(magnet), QVariant(), QVariant());
    map.insert(TRIGGER_CONDITION_LIST, conditions);
    return map;
}

QVariantMap AlarmMessageParser::BuildVirtualTriggerMap(const QMap<QString, QVariant>& trigger) const
{
    const QString eventType = QStringLiteral("VirtualTrigger");
    const QVariantMap virtualTrigger = mapAt(trigger, {eventType});
    // A virtual trigger is named by the user, not by the device tree.
    const QString name = textAt(virtualTrigger, {QStringLiteral("Name")});
    QVariantMap map = BuildTriggerMap(name, name, eventType, latencyOf(virtualTrigger), QVariant(), QVariant());
    map.insert(TRIGGER_ICON_TYPE, intAt(virtualTrigger, {QStringLiteral("IconType")}));
    return map;
}

// ---- Actions -----------------------------------------------------------------------------------------

void AlarmMessageParser::ParseActionData(const QMap<QString, QVariant>& rule, QList<QVariant>& actionTypes,
                                         QList<QVariant>& actionTargets)
{
    if (!rule.contains(QStringLiteral("ActionList")))
        return;
    const QVariantList actions = listAt(rule, {QStringLiteral("ActionList"), QStringLiteral("Action")});
    for (const QVariant& action : actions) {
        const QSharedPointer<IActionParser> parser = ActionParserFactory::GetActionParser(action.toMap());
        // Actions without a codec (FTP, programs to launch) are left out of both lists alike.
        if (!parser)
            continue;
        const QVariantMap model = parser->XmlToActionModel(action, m_owner);
        actionTypes.append(model.value(ActionParserCommon::ACTION_MODEL_TYPE).toString());
        actionTargets.append(QVariant(model.value(ActionParserCommon::ACTION_MODEL_TARGET).toList()));
    }
}
