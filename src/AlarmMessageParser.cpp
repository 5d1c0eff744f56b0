#include "AlarmMessageParser.h"

#include "AlarmActionParser.h"
#include "AlarmItem.h"
#include "AlarmModel.h"
#include "PluginAlarmManager.h"
#include "PluginAlarmManager_Log.h"
#include "VariantTree.h"
#include "XML2Json.h"
#include "stdafx.h"

#include <QDomDocument>
#include <QMultiHash>
#include <QStandardItem>
#include <QTextStream>
#include <QXmlStreamReader>

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <limits>

using namespace AlarmMessageParserCommon;
using namespace VariantTree;

namespace {

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

// Escaping exactly as QDomNode::save writes text and attribute values.
void appendEncoded(QString& out, QStringView text, bool isAttribute)
{
    qsizetype runStart = 0;
    auto flush = [&](qsizetype end) {
        out.append(text.mid(runStart, end - runStart));
        runStart = end + 1;
    };
    for (qsizetype i = 0; i < text.size(); ++i) {
        switch (text[i].unicode()) {
        case u'<':
            flush(i);
            out.append(QLatin1String("&lt;"));
            break;
        case u'&':
            flush(i);
            out.append(QLatin1String("&amp;"));
            break;
        case u'"':
            if (isAttribute) {
                flush(i);
                out.append(QLatin1String("&quot;"));
            }
            break;
        case u'>':
            if (i >= 2 && text[i - 1] == u']' && text[i - 2] == u']') {
                flush(i);
                out.append(QLatin1String("&gt;"));
            }
            break;
        case u'\r':
            flush(i);
            out.append(QLatin1String("&#xd;"));
            break;
        case u'\n':
            if (isAttribute) {
                flush(i);
                out.append(QLatin1String("&#xa;"));
            }
            break;
        case u'\t':
            if (isAttribute) {
                flush(i);
                out.append(QLatin1String("&#x9;"));
            }
            break;
        default:
            break;
        }
    }
    out.append(text.mid(runStart));
}

// Qt's XML readers check each attribute of a start tag against every earlier one, so a tag with many
// thousands of attributes stalls the GUI thread for seconds. No server writes more than a few per element;
// a document with a tag over this many gets no rule texts. The document is well-formed (the tree was read),
// so outside comments, CDATA and processing instructions a "<" opens a tag and a quote in a tag opens a value.
constexpr qsizetype maxAttributesPerElement = 64;

bool hasAttributeFlood(const QString& xml)
{
    static const QList<QPair<QLatin1String, QLatin1String>> skipped{
        {QLatin1String("<!--"), QLatin1String("-->")},
        {QLatin1String("<![CDATA["), QLatin1String("]]>")},
        {QLatin1String("<?"), QLatin1String("?>")},
    };
    const qsizetype size = xml.size();
    for (qsizetype i = xml.indexOf(QLatin1Char('<')); i >= 0 && i < size; i = xml.indexOf(QLatin1Char('<'), i)) {
        const auto construct = std::find_if(skipped.cbegin(), skipped.cend(), [&](const auto& bounds) {
            return QStringView(xml).mid(i).startsWith(bounds.first);
        });
        if (construct != skipped.cend()) {
            const qsizetype end = xml.indexOf(construct->second, i + construct->first.size());
            if (end < 0)
                return false;
            i = end + construct->second.size();
            continue;
        }
        qsizetype attributeCount = 0;
        for (++i; i < size && xml.at(i) != QLatin1Char('>'); ++i) {
            const QChar c = xml.at(i);
            if (c == QLatin1Char('"') || c == QLatin1Char('\'')) {
                const qsizetype closing = xml.indexOf(c, i + 1);
                if (closing < 0)
                    return false;
                i = closing;
            } else if (c == QLatin1Char('=') && ++attributeCount > maxAttributesPerElement) {
                return true;
            }
        }
    }
    return false;
}

// Replays the token stream the DOM parser is built from and writes, for every "Tmcard" element, its first
// "TriggerList" and "ActionList" child as QDomNode::save(stream, 4) would: a node is indented and followed
// by a line break unless a text sibling stands next to it, so the writer keeps per open element whether
// its last kept child was text and decides each pending line break when the next sibling shows up.
class RuleXmlWriter
{
public:
    using Texts = AlarmMessageParser::RuleXmlTexts;

    // False when the text holds something this writer does not reproduce (entity references, processing
    // instructions inside a rule's lists); the caller then asks the DOM.
    bool run(const QString& xml)
    {
        QXmlStreamReader reader(xml);
        reader.setNamespaceProcessing(false);
        while (!reader.atEnd()) {
            reader.readNext();
            if (reader.hasError())
                break;
            switch (reader.tokenType()) {
            case QXmlStreamReader::StartElement:
                if (m_levels.size() >= XML2Json::maxDepth) {
                    // Deeper than any rule can be read; the texts would grow with the square of the depth.
                    m_texts.clear();
                    return true;
                }
                startElement(reader);
                break;
            case QXmlStreamReader::EndElement:
                endElement();
                break;
            case QXmlStreamReader::Characters:
                // The DOM keeps CDATA sections, and text that is not blank.
                if (!reader.isWhitespace() && (reader.isCDATA() || !reader.text().trimmed().isEmpty()))
                    text(reader.text(), reader.isCDATA());
                break;
            case QXmlStreamReader::Comment:
                comment(reader.text());
                break;
            case QXmlStreamReader::ProcessingInstruction:
                if (!m_open.isEmpty())
                    return false;
                beginChild(false);
                break;
            case QXmlStreamReader::EntityReference:
                return false;
            default:
                break;
            }
        }
        // A text that breaks off leaves the DOM with the elements read so far, closed where they stand.
        while (!m_levels.isEmpty())
            endElement();
        return true;
    }

    QList<Texts> takeTexts() { return std::move(m_texts); }

private:
    // One list being written. Its text grows in a reused buffer and is copied out at its exact size once
    // the line break after it is decided.
    struct Recorder
    {
        qsizetype rule;
        bool isActionList;
        qsizetype rootLevel;
        QString text;
    };

    struct Level
    {
        QString name; // kept only inside a recorded list, where the end tag is written
        bool isStartTagOpen = true;
        bool hasChild = false;
        bool isLastChildText = false;
        bool hasPendingLineBreak = false;
        qsizetype rule = -1; // index into m_texts for a "Tmcard" element
        bool hasTriggerList = false;
        bool hasActionList = false;
        QList<Recorder> awaitingLineBreak; // recorded lists that ended here, before their trailing break
    };

    void write(QStringView piece)
    {
        for (Recorder& recorder : m_open)
            recorder.text.append(piece);
    }

    static void appendIndent(QString& out, qsizetype depth)
    {
        static const QString spaces(4 * (XML2Json::maxDepth + 1), QLatin1Char(' '));
        out.append(QStringView(spaces).left(4 * depth));
    }

    // Indentation of a node whose parent is the innermost open element.
    void writeChildIndent()
    {
        for (Recorder& recorder : m_open)
            appendIndent(recorder.text, m_levels.size() - recorder.rootLevel + 1);
    }

    void finish(QList<Recorder>& recorders, bool withLineBreak)
    {
        for (Recorder& recorder : recorders) {
            if (withLineBreak)
                recorder.text.append(QLatin1Char('\n'));
            Texts& texts = m_texts[recorder.rule];
            (recorder.isActionList ? texts.actionXml : texts.triggerXml) = QString(recorder.text.constData(), recorder.text.size());
            recorder.text.truncate(0);
            m_buffers.append(std::move(recorder.text));
        }
        recorders.clear();
    }

    // Everything a new child of the innermost element decides about what stands before it.
    void beginChild(bool isText)
    {
        if (m_levels.isEmpty())
            return;
        Level& parent = m_levels.last();
        if (parent.isStartTagOpen) {
            write(isText ? u">" : u">\n");
            parent.isStartTagOpen = false;
        } else if (parent.hasPendingLineBreak && !isText) {
            write(u"\n");
        }
        finish(parent.awaitingLineBreak, !isText);
        if (!isText && !(parent.hasChild && parent.isLastChildText))
            writeChildIndent();
        parent.hasChild = true;
        parent.isLastChildText = isText;
        parent.hasPendingLineBreak = !isText;
    }

    void startElement(const QXmlStreamReader& reader)
    {
        const QStringView name = reader.qualifiedName();
        if (!m_levels.isEmpty() && m_levels.last().rule >= 0) {
            Level& parent = m_levels.last();
            const bool isTriggerList = !parent.hasTriggerList && name == u"TriggerList";
            const bool isActionList = !parent.hasActionList && name == u"ActionList";
            if (isTriggerList || isActionList) {
                parent.hasTriggerList = parent.hasTriggerList || isTriggerList;
                parent.hasActionList = parent.hasActionList || isActionList;
                const bool followsText = parent.hasChild && parent.isLastChildText;
                beginChild(false);
                // The list's own text starts here, after what beginChild wrote for the lists around it.
                m_open.append(Recorder{parent.rule, isActionList, m_levels.size(), m_buffers.isEmpty() ? QString() : m_buffers.takeLast()});
                if (!followsText)
                    appendIndent(m_open.last().text, 1);
                pushElement(reader);
                return;
            }
        }
        beginChild(false);
        pushElement(reader);
    }

    void pushElement(const QXmlStreamReader& reader)
    {
        const QStringView name = reader.qualifiedName();
        Level level;
        if (!m_open.isEmpty()) {
            level.name = name.toString();
            write(u"<");
            write(name);
            writeAttributes(reader.attributes());
        }
        if (name == u"Tmcard") {
            level.rule = m_texts.size();
            m_texts.append(Texts{});
        }
        m_levels.append(std::move(level));
    }

    // The DOM keeps attributes in a hash and writes them in its iteration order; a hash with the same
    // keys inserted in the same order iterates alike.
    void writeAttributes(const QXmlStreamAttributes& attributes)
    {
        if (attributes.size() == 1) {
            writeAttribute(attributes.first());
            return;
        }
        QMultiHash<QString, qsizetype> order;
        for (qsizetype i = 0; i < attributes.size(); ++i)
            order.insert(attributes.at(i).qualifiedName().toString(), i);
        for (auto it = order.constBegin(); it != order.constEnd(); ++it)
            writeAttribute(attributes.at(it.value()));
    }

    void writeAttribute(const QXmlStreamAttribute& attribute)
    {
        for (Recorder& recorder : m_open) {
            recorder.text.append(QLatin1Char(' '));
            recorder.text.append(attribute.qualifiedName());
            recorder.text.append(QLatin1String("=\""));
            appendEncoded(recorder.text, attribute.value(), true);
            recorder.text.append(QLatin1Char('"'));
        }
    }

    void endElement()
    {
        Level level = m_levels.takeLast();
        if (level.isStartTagOpen) {
            write(u"/>");
        } else {
            if (level.hasPendingLineBreak)
                write(u"\n");
            finish(level.awaitingLineBreak, true);
            if (!level.isLastChildText) {
                for (Recorder& recorder : m_open)
                    appendIndent(recorder.text, m_levels.size() - recorder.rootLevel + 1);
            }
            write(u"</");
            write(level.name);
            write(u">");
        }
        if (!m_open.isEmpty() && m_open.last().rootLevel == m_levels.size())
            m_levels.last().awaitingLineBreak.append(m_open.takeLast());
    }

    void text(QStringView value, bool isCData)
    {
        beginChild(true);
        if (isCData) {
            write(u"<![CDATA[");
            write(value);
            write(u"]]>");
            return;
        }
        for (Recorder& recorder : m_open)
            appendEncoded(recorder.text, value, false);
    }

    void comment(QStringView value)
    {
        beginChild(false);
        write(u"<!--");
        write(value);
        if (value.endsWith(u'-'))
            write(u" ");
        write(u"-->");
    }

    QList<Level> m_levels;
    QList<Recorder> m_open;
    QList<Texts> m_texts;
    QList<QString> m_buffers;
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
    const QList<RuleXmlTexts> xmlTexts = RuleXmlTextsOf(message.value(ARG_ALARM_XML_MSG).toString());

    items.reserve(rules.size());
    for (qsizetype i = 0; i < rules.size(); ++i) {
        const QVariantMap rule = rules.at(i).toMap();
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
        const RuleXmlTexts texts = xmlTexts.value(i);
        roles.insert(AlarmModel::triggerXmlRole, texts.triggerXml);
        roles.insert(AlarmModel::actionXmlRole, texts.actionXml);

        QStandardItem* item = AlarmItem::create(roles);
        if (!item) {
            ALARM_TRACE_ERROR("%s, create an AlarmItem instance failed.", "createAlarmItemList");
            continue;
        }
        items.append(item);
    }
    return items;
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
    if (hasAttributeFlood(alarmListXml)) {
        ALARM_TRACE_ERROR("%s, an element has more than %lld attributes", "RuleXmlTextsOf",
                          static_cast<long long>(maxAttributesPerElement));
        return {};
    }
    RuleXmlWriter writer;
    if (writer.run(alarmListXml))
        return writer.takeTexts();
    return RuleXmlTextsThroughDom(alarmListXml);
}

QList<AlarmMessageParser::RuleXmlTexts> AlarmMessageParser::RuleXmlTextsThroughDom(const QString& alarmListXml)
{
    QDomDocument document;
    document.setContent(alarmListXml);
    const QDomNodeList rules = document.elementsByTagName(QStringLiteral("Tmcard"));
    QList<RuleXmlTexts> texts;
    texts.reserve(rules.size());
    for (int i = 0; i < rules.size(); ++i) {
        const QDomNode rule = rules.at(i);
        texts.append({GetDomNodeXmlString(rule.firstChildElement(QStringLiteral("TriggerList"))),
                      GetDomNodeXmlString(rule.firstChildElement(QStringLiteral("ActionList")))});
    }
    return texts;
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
    return QStringLiteral("{\"Bottom\":%1,\"Left\":%2,\"RecordingMode\":\"Continuous\",\"Right\":%3,\"Top\":%4}")
        .arg(bottom)
        .arg(left)
        .arg(right)
        .arg(top);
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
