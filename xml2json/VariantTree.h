#pragma once

#include <QString>
#include <QVariant>
#include <QVariantList>
#include <QVariantMap>

#include <initializer_list>

#include "XML2Json.h"

// Reads the variant tree XML2Json::parse gives (and the maps the editor hands back) by tag, the way every
// codec wants it read: the wrong shape where a value is expected reads as empty, never as something else.
// A text where a map belongs is no map, a map or a repeated tag where a leaf belongs is no text, and a
// text is no list (QVariant would split it into characters or turn a one-element string list into text).
namespace VariantTree {

// The shapes a node of the tree comes in besides a leaf: a map of children (or a hash, from hand-built
// trees) and a list (a repeated tag; a string list from the editor).
bool isMap(const QVariant& value);
bool isList(const QVariant& value);

// The node at a path of tags; a step that meets anything but a map, or a missing tag, gives an invalid
// variant.
QVariant valueAt(const QVariant& node, std::initializer_list<QString> path);
QVariant valueAt(const QVariantMap& map, std::initializer_list<QString> path);

// A leaf as text: empty for a map or a list.
QString textOf(const QVariant& value);
// An element as a map of its children and attributes: empty for a text or a list.
QVariantMap mapOf(const QVariant& value);
// A list as it is: empty for anything else.
QVariantList listOf(const QVariant& value);
// The text of an element that may carry attributes or children: its "#text" then, else the leaf itself.
QString ownTextOf(const QVariant& element);

template <typename Node>
QString textAt(const Node& node, std::initializer_list<QString> path)
{
    return textOf(valueAt(node, path));
}

template <typename Node>
QVariantMap mapAt(const Node& node, std::initializer_list<QString> path)
{
    return mapOf(valueAt(node, path));
}

// A child that may occur once or many times, always as a list (XML2Json::transContentAsList).
template <typename Node>
QVariantList listAt(const Node& node, std::initializer_list<QString> path)
{
    return XML2Json::transContentAsList(valueAt(node, path));
}

} // namespace VariantTree
