#include "RuleEntries.h"

#include "Site.h"

#include <QAbstractItemModel>
#include <QDomDocument>
#include <QMap>
#include <QSet>
#include <QTextStream>
#include <QXmlStreamReader>

namespace {

// Roles of the plug-in's alarm list that carry a rule's lists as the server sent them.
constexpr int TRIGGER_XML_ROLE = Qt::UserRole + 11;
constexpr int ACTION_XML_ROLE = Qt::UserRole + 12;

const QString TAG_TRIGGER_LIST = QStringLiteral("TriggerList");

QString childText(const QDomElement& element, const QString& tag)
{
    return element.firstChildElement(tag).text();
}

QString saved(const QDomNode& node)
{
    QString text;
    QTextStream stream(&text);
    node.save(stream, -1);
    return text;
}

// Calls visit for every element below root in document order, with the tag of root's first child (the
// action's own element) for context.
template<typename Visit>
void forEachElement(const QDomElement& root, Visit visit)
{
    QList<QDomElement> pending{root};
    while (!pending.isEmpty()) {
        const QDomElement element = pending.takeLast();
        QList<QDomElement> children;
        for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement())
            children.append(child);
        for (auto it = children.crbegin(); it != children.crend(); ++it)
            pending.append(*it);
        if (element != root)
            visit(element);
    }
}

} // namespace

RuleEntries::RuleEntries(const Site* site, const QAbstractItemModel* alarms, QObject* parent)
    : QObject(parent)
    , m_site(site)
    , m_alarms(alarms)
{
}

QStringList RuleEntries::split(const QString& listXml) const
{
    QStringList entries;
    QXmlStreamReader reader(listXml);
    int depth = 0;
    qsizetype start = 0;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement()) {
            // The reader stands just after the start tag; its offsets before a token are not exact (it
            // reads ahead through text), but no '<' can occur inside a tag.
            if (++depth == 2)
                start = listXml.lastIndexOf(QLatin1Char('<'), reader.characterOffset() - 1);
        } else if (reader.isEndElement()) {
            if (depth-- == 2)
                entries.append(listXml.mid(start, reader.characterOffset() - start));
        }
    }
    return reader.hasError() ? QStringList() : entries;
}

QString RuleEntries::join(const QString& tag, const QStringList& entries) const
{
    return entries.isEmpty() ? QStringLiteral("<%1/>").arg(tag) : QStringLiteral("<%1>%2</%1>").arg(tag, entries.join(QString()));
}

QString RuleEntries::kindOf(const QString& entryXml) const
{
    QDomDocument document;
    if (!document.setContent(entryXml))
        return QString();
    const QDomElement root = document.documentElement();
    if (root.tagName() == QLatin1String("Action")) {
        const QDomElement action = root.firstChildElement();
        if (action.tagName() == QLatin1String("ClientNotification"))
            return action.tagName() + QLatin1Char('/') + childText(action, QStringLiteral("Type"));
        return action.tagName();
    }
    const QString type = childText(root, QStringLiteral("EventType"));
    if (type == QLatin1String("VCA") || type == QLatin1String("Thermal"))
        return type + QLatin1Char('/') + childText(root.firstChildElement(type), QStringLiteral("Type"));
    if (type == QLatin1String("VideoLossRestore"))
        return type + QLatin1Char('/') + childText(root.firstChildElement(QStringLiteral("VLR")), QStringLiteral("Type"));
    return type;
}

QString RuleEntries::pickerOf(const QString& element, const QString& parent, const QString& entryTag)
{
    if (element == QLatin1String("CamName") || element == QLatin1String("Camera") || element == QLatin1String("Cam")
        || element == QLatin1String("PlayCam") || element == QLatin1String("CamId"))
        return QStringLiteral("camera");
    if (element == QLatin1String("StationAddress"))
        return QStringLiteral("station");
    if (element == QLatin1String("DeviceName"))
        return parent == QLatin1String("ExtIODevice") ? QStringLiteral("io") : QStringLiteral("station");
    if (element == QLatin1String("Name") && parent == QLatin1String("Entry"))
        return entryTag == QLatin1String("SetDO") ? QStringLiteral("output") : QStringLiteral("camera");
    if (element == QLatin1String("MapId"))
        return QStringLiteral("map");
    if (element == QLatin1String("Sound"))
        return QStringLiteral("sound");
    if (element == QLatin1String("RoleId"))
        return QStringLiteral("role");
    return QString();
}

QString RuleEntries::firstPicker(const QDomElement& root)
{
    // A mail's snapshot cameras are extras, not whom it goes to.
    const QString entryTag = root.firstChildElement().tagName();
    if (entryTag == QLatin1String("SendMail"))
        return QString();
    QString picker;
    forEachElement(root, [&](const QDomElement& element) {
        if (picker.isEmpty())
            picker = pickerOf(element.tagName(), element.parentNode().toElement().tagName(), entryTag);
    });
    return picker;
}

QString RuleEntries::fieldOf(const QString& kind)
{
    static const QMap<QString, QString> fields{{QStringLiteral("SendMail"), QStringLiteral("To")},
                                               {QStringLiteral("SMS"), QStringLiteral("PhoneNum")},
                                               {QStringLiteral("HTTP"), QStringLiteral("URL")},
                                               {QStringLiteral("FTP"), QStringLiteral("Path")},
                                               {QStringLiteral("LaunchProgram"), QStringLiteral("Path")},
                                               // Which input, output or motion window of the device.
                                               {QStringLiteral("DI"), QStringLiteral("Index")},
                                               {QStringLiteral("DO"), QStringLiteral("Index")},
                                               {QStringLiteral("Motion"), QStringLiteral("Index")},
                                               {QStringLiteral("ExtIODevice"), QStringLiteral("Index")}};
    return fields.value(kind);
}

QStringList RuleEntries::templates(const QString& tag) const
{
    QStringList found;
    QSet<QString> kinds;
    const int role = tag == TAG_TRIGGER_LIST ? TRIGGER_XML_ROLE : ACTION_XML_ROLE;
    for (int row = 0; m_alarms && row < m_alarms->rowCount(); ++row) {
        const QStringList entries = split(m_alarms->index(row, 0).data(role).toString());
        for (const QString& entry : entries) {
            const QString kind = kindOf(entry);
            if (!kind.isEmpty() && !kinds.contains(kind)) {
                kinds.insert(kind);
                found.append(entry);
            }
        }
    }
    return found;
}

QVariantList RuleEntries::kinds(const QString& tag) const
{
    QVariantList kinds;
    for (const QString& entry : templates(tag)) {
        QDomDocument document;
        document.setContent(entry);
        const QString kind = kindOf(entry);
        kinds.append(QVariantMap{{QStringLiteral("kind"), kind},
                                 {QStringLiteral("picker"), firstPicker(document.documentElement())},
                                 {QStringLiteral("field"), fieldOf(kind)}});
    }
    return kinds;
}

QString RuleEntries::make(const QString& tag, const QString& kind, const QString& device, const QString& text) const
{
    for (const QString& entry : templates(tag)) {
        if (kindOf(entry) != kind)
            continue;
        QDomDocument document;
        document.setContent(entry);
        const QDomElement root = document.documentElement();
        const QString entryTag = root.firstChildElement().tagName();
        const QString picker = firstPicker(root);
        QSet<QString> filled;
        QList<QDomElement> surplus;
        forEachElement(root, [&](QDomElement element) {
            const QString parent = element.parentNode().toElement().tagName();
            const QString elementPicker = pickerOf(element.tagName(), parent, entryTag);
            if (!elementPicker.isEmpty() && elementPicker == picker) {
                // One device per new entry: the first place it goes is filled, repeats are dropped.
                const QString place = parent + QLatin1Char('/') + element.tagName();
                if (filled.contains(place)) {
                    surplus.append(element.tagName() == QLatin1String("Name") ? element.parentNode().toElement() : element);
                    return;
                }
                filled.insert(place);
                while (element.hasChildNodes())
                    element.removeChild(element.firstChild());
                element.appendChild(document.createTextNode(device));
            } else if (element.tagName() == QLatin1String("CamRefName") && picker == QLatin1String("camera")) {
                while (element.hasChildNodes())
                    element.removeChild(element.firstChild());
                element.appendChild(document.createTextNode(m_site->deviceName(device)));
            }
        });
        for (QDomElement& element : surplus)
            element.parentNode().removeChild(element);
        QDomElement field = root.elementsByTagName(fieldOf(kind)).item(0).toElement();
        if (!text.isEmpty() && !field.isNull()) {
            while (field.hasChildNodes())
                field.removeChild(field.firstChild());
            field.appendChild(document.createTextNode(text));
        }
        // A new virtual trigger is a new button: it takes the next free id of the site.
        QDomElement virtualTrigger = root.firstChildElement(QStringLiteral("VirtualTrigger"));
        if (!virtualTrigger.isNull()) {
            int id = 1;
            for (const QVariant& known : m_site->virtualTriggers())
                id = std::max(id, known.toMap().value(QStringLiteral("id")).toInt() + 1);
            QDomElement idElement = virtualTrigger.firstChildElement(QStringLiteral("Id"));
            idElement.removeChild(idElement.firstChild());
            idElement.appendChild(document.createTextNode(QString::number(id)));
        }
        return saved(root);
    }
    return QString();
}

QString RuleEntries::deviceOf(const QString& entryXml) const
{
    QDomDocument document;
    if (!document.setContent(entryXml))
        return QString();
    const QDomElement root = document.documentElement();
    const QString entryTag = root.firstChildElement().tagName();
    QString device;
    forEachElement(root, [&](const QDomElement& element) {
        if (device.isEmpty() && !pickerOf(element.tagName(), element.parentNode().toElement().tagName(), entryTag).isEmpty())
            device = element.text();
    });
    return device;
}

QVariantMap RuleEntries::fieldsOf(const QString& entryXml) const
{
    QDomDocument document;
    document.setContent(entryXml);
    QVariantMap fields;
    const QDomElement action = document.documentElement().firstChildElement();
    for (QDomElement field = action.firstChildElement(); !field.isNull(); field = field.nextSiblingElement())
        fields.insert(field.tagName(), field.text());
    return fields;
}

bool RuleEntries::hasTarget(const QString& entryXml) const
{
    const QString kind = kindOf(entryXml);
    const QVariantMap fields = fieldsOf(entryXml);
    // The field that names an action's target, for the kinds whose target is not a device.
    static const QHash<QString, QString> targetFields = {
        {QStringLiteral("SendMail"), QStringLiteral("To")},
        {QStringLiteral("SMS"), QStringLiteral("PhoneNum")},
        {QStringLiteral("HTTP"), QStringLiteral("URL")},
        {QStringLiteral("FTP"), QStringLiteral("Server")},
        {QStringLiteral("LaunchProgram"), QStringLiteral("Path")},
        {QStringLiteral("PlayIPAudio"), QStringLiteral("IPAudioInfo")},
    };
    if (const auto field = targetFields.constFind(kind); field != targetFields.cend())
        return !fields.value(*field).toString().trimmed().isEmpty();
    if (kind == QLatin1String("MobileNotification"))
        return entryXml.contains(QLatin1String("<PushAll>true</PushAll>")) || entryXml.contains(QLatin1String("<RoleId>"));
    // A live view may show just the camera that triggered.
    if (entryXml.contains(QLatin1String("<IncludeTriggerCam>true</IncludeTriggerCam>")))
        return true;
    return !deviceOf(entryXml).trimmed().isEmpty();
}

QStringList RuleEntries::unknownDevices(const QString& triggerXml, const QString& actionXml) const
{
    QStringList unknown;
    for (const QString& list : {triggerXml, actionXml}) {
        for (const QString& entry : split(list)) {
            QDomDocument document;
            document.setContent(entry);
            const QDomElement root = document.documentElement();
            const QString entryTag = root.firstChildElement().tagName();
            forEachElement(root, [&](const QDomElement& element) {
                const QString picker = pickerOf(element.tagName(), element.parentNode().toElement().tagName(), entryTag);
                if (picker != QLatin1String("camera") && picker != QLatin1String("station") && picker != QLatin1String("io")
                    && picker != QLatin1String("output"))
                    return;
                // Data magnets and access rules name their cameras as one comma-separated text.
                for (const QString& id : element.text().split(QLatin1Char(','), Qt::SkipEmptyParts)) {
                    if (m_site->deviceName(id.trimmed()).isEmpty() && !unknown.contains(id.trimmed()))
                        unknown.append(id.trimmed());
                }
            });
        }
    }
    return unknown;
}
