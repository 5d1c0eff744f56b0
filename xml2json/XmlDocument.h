#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>

#include <pugixml.hpp>

#include <memory>

// One parse of a server document, shared by everything that reads it: the variant tree (XML2Json) and
// the rule texts written from the same nodes. pugixml is lenient where XML is not (a "--" in a comment,
// a "<" in an attribute value, a repeated attribute, an undeclared entity, a stray character), so the
// text is also checked against the rules of well-formed XML; a document that breaks one of them is
// refused as a whole, like one pugixml cannot read. Refused too: a DOCTYPE or entity declaration, text or
// a second element beside the root, nesting deeper than maxDepth, and any character XML does not allow.
class XmlDocument
{
public:
    static constexpr int maxDepth = 256;

    explicit XmlDocument(const QString& xml);
    ~XmlDocument();
    XmlDocument(const XmlDocument&) = delete;
    XmlDocument& operator=(const XmlDocument&) = delete;

    // Null when the document was refused. An element's leading text is its value(), not a child node.
    pugi::xml_node root() const { return m_root; }

    // The variant tree of one element of this document (its content, without its own tag), as XML2Json
    // describes it.
    QVariant valueOf(const pugi::xml_node& element);
    const QString& nameOf(const pugi::xml_node& element);

    class Names; // shared copies of the tag and attribute names

private:

    QByteArray m_utf8; // pugixml parses in place: the nodes' strings point into it
    pugi::xml_document m_document;
    pugi::xml_node m_root;
    std::unique_ptr<Names> m_names;
};
