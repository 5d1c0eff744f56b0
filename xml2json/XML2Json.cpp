#include "XML2Json.h"

#include <QMap>
#include <QVarLengthArray>

#include <pugixml.hpp>

#include <vector>

namespace {

// One element on the way up: its node and the values of the children finished so far. The walk keeps
// its own stack, so document depth never reaches the call stack.
struct Frame
{
    pugi::xml_node node;
    pugi::xml_node nextChild;
    QList<QPair<QString, QVariant>> children;
    QString text;
};

QString nodeName(const pugi::xml_node& node)
{
    return QString::fromUtf8(node.name());
}

// Grouping first and wrapping last keeps repeated tags linear: a list is built once, never re-copied
// out of a QVariant on every append.
QVariant finishElement(Frame& frame)
{
    const pugi::xml_node& node = frame.node;
    const bool hasAttributes = bool(node.first_attribute());
    if (!hasAttributes && frame.children.isEmpty())
        return QVariant(frame.text);

    QMap<QString, QVariantList> grouped;
    for (auto& child : frame.children)
        grouped[child.first].append(std::move(child.second));

    QVariantMap map;
    for (auto it = grouped.begin(); it != grouped.end(); ++it) {
        if (it.value().size() == 1)
            map.insert(it.key(), std::move(it.value().first()));
        else
            map.insert(it.key(), QVariant(std::move(it.value())));
    }
    for (pugi::xml_attribute attribute = node.first_attribute(); attribute; attribute = attribute.next_attribute())
        map.insert(QLatin1Char('@') + QString::fromUtf8(attribute.name()), QString::fromUtf8(attribute.value()));
    if (!frame.text.trimmed().isEmpty())
        map.insert(QStringLiteral("#text"), frame.text);
    return map;
}

bool isText(const pugi::xml_node& node)
{
    return node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata;
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
            return {};
        case pugi::node_pcdata:
        case pugi::node_cdata:
            return {};
        default:
            break;
        }
    }
    if (!root)
        return {};

    std::vector<Frame> stack;
    stack.push_back(Frame{root, root.first_child(), {}, {}});
    QVariant rootValue;
    while (!stack.empty()) {
        Frame& top = stack.back();
        if (top.nextChild) {
            const pugi::xml_node child = top.nextChild;
            top.nextChild = child.next_sibling();
            if (child.type() == pugi::node_element) {
                if (int(stack.size()) >= maxDepth)
                    return {};
                stack.push_back(Frame{child, child.first_child(), {}, {}});
            } else if (isText(child)) {
                top.text += QString::fromUtf8(child.value());
            }
            continue;
        }
        QVariant value = finishElement(top);
        QString name = nodeName(top.node);
        stack.pop_back();
        if (stack.empty()) {
            QVariantMap document;
            document.insert(name, std::move(value));
            rootValue = document;
        } else {
            stack.back().children.append({std::move(name), std::move(value)});
        }
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
