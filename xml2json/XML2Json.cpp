#include "XML2Json.h"

#include <QVariantMap>

#include <pugixml.hpp>

#include <string_view>
#include <unordered_map>
#include <vector>

namespace {

// A finished child waiting for its parent to finish.
struct Child
{
    QString name;
    QVariant value;
};

// One open element: where its children start in the shared child buffer, and its text so far. The walk
// keeps its own stack, so document depth never reaches the call stack.
struct Frame
{
    pugi::xml_node node;
    pugi::xml_node nextChild;
    size_t firstChild;
    QString text;
};

// Tag and attribute names repeat thousands of times in an alarm list; handing out shared copies of one
// QString per name saves an allocation per key.
class NameTable
{
public:
    const QString& name(const char* utf8) { return intern(utf8, QString()); }
    const QString& attributeName(const char* utf8) { return intern(utf8, QStringLiteral("@")); }

private:
    const QString& intern(const char* utf8, const QString& prefix)
    {
        auto& table = prefix.isEmpty() ? m_names : m_attributeNames;
        const std::string_view key(utf8);
        auto it = table.find(key);
        if (it == table.end())
            it = table.emplace(key, prefix + QString::fromUtf8(utf8, qsizetype(key.size()))).first;
        return it->second;
    }

    // Keys point into the parsed document, which outlives the table.
    std::unordered_map<std::string_view, QString> m_names;
    std::unordered_map<std::string_view, QString> m_attributeNames;
};

bool isText(const pugi::xml_node& node)
{
    return node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata;
}

// Repeated tags are gathered into one list built in place, so thousands of siblings stay linear instead
// of re-copying a list out of a QVariant on every append.
QVariant finishElement(Frame& frame, std::vector<Child>& children, NameTable& names)
{
    const pugi::xml_node& node = frame.node;
    const auto begin = children.begin() + std::ptrdiff_t(frame.firstChild);
    const auto end = children.end();
    if (!node.first_attribute() && begin == end)
        return QVariant(std::move(frame.text));

    QVariantMap map;
    for (auto child = begin; child != end; ++child) {
        if (child->name.isNull())
            continue; // already gathered into an earlier sibling's list
        auto repeat = std::find_if(child + 1, end, [&](const Child& other) { return other.name == child->name; });
        if (repeat == end) {
            map.insert(child->name, std::move(child->value));
            continue;
        }
        QVariantList list{std::move(child->value)};
        for (; repeat != end; ++repeat) {
            if (repeat->name == child->name) {
                list.append(std::move(repeat->value));
                repeat->name = QString();
            }
        }
        map.insert(child->name, QVariant(std::move(list)));
    }
    children.erase(begin, end);

    for (pugi::xml_attribute attribute = node.first_attribute(); attribute; attribute = attribute.next_attribute())
        map.insert(names.attributeName(attribute.name()), QString::fromUtf8(attribute.value()));
    if (!frame.text.trimmed().isEmpty())
        map.insert(QStringLiteral("#text"), frame.text);
    return map;
}

} // namespace

QVariant XML2Json::parse(const QString& xml)
{
    if (xml.contains(QChar(0)))
        return {};
    const QByteArray utf8 = xml.toUtf8();

    pugi::xml_document document;
    // As a fragment, stray text beside the root shows up as a node we can reject instead of being skipped.
    const unsigned options = pugi::parse_default | pugi::parse_doctype | pugi::parse_fragment;
    const pugi::xml_parse_result result = document.load_buffer(utf8.constData(), size_t(utf8.size()), options,
                                                               pugi::encoding_utf8);
    if (!result)
        return {};

    pugi::xml_node root;
    for (pugi::xml_node node = document.first_child(); node; node = node.next_sibling()) {
        switch (node.type()) {
        case pugi::node_element:
            if (root)
                return {};
            root = node;
            break;
        case pugi::node_doctype:
        case pugi::node_pcdata:
        case pugi::node_cdata:
            return {};
        default:
            break;
        }
    }
    if (!root)
        return {};

    NameTable names;
    std::vector<Child> children;
    std::vector<Frame> stack;
    stack.push_back(Frame{root, root.first_child(), 0, {}});
    QVariant rootValue;
    while (!stack.empty()) {
        Frame& top = stack.back();
        if (top.nextChild) {
            const pugi::xml_node child = top.nextChild;
            top.nextChild = child.next_sibling();
            if (child.type() == pugi::node_element) {
                if (int(stack.size()) >= maxDepth)
                    return {};
                stack.push_back(Frame{child, child.first_child(), children.size(), {}});
            } else if (isText(child)) {
                top.text += QString::fromUtf8(child.value());
            }
            continue;
        }
        QVariant value = finishElement(top, children, names);
        const QString& name = names.name(top.node.name());
        stack.pop_back();
        if (stack.empty())
            rootValue = QVariantMap{{name, std::move(value)}};
        else
            children.push_back(Child{name, std::move(value)});
    }
    return rootValue;
}

QVariantList XML2Json::transContentAsList(const QVariant& value)
{
    if (!value.isValid())
        return {};
    if (value.typeId() == QMetaType::QVariantList)
        return value.toList();
    return QVariantList{value};
}
