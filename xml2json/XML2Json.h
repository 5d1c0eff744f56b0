#pragma once

#include <QString>
#include <QVariant>
#include <QVariantList>

#include "XmlDocument.h"

// Turns an XML document into the variant tree the alarm codecs read by key:
//   - the result is a map with one entry, keyed by the root element's tag;
//   - an element with attributes or child elements becomes a map: children under their tag, attributes
//     under "@" + name, its own non-blank text under "#text";
//   - an element with neither becomes its text (an empty element becomes the empty string);
//   - a tag that repeats under one parent becomes a list in document order;
//   - whitespace-only text between elements is dropped; other text is kept exactly as written.
// Anything that is not one well-formed element tree gives an invalid QVariant, so every reader sees
// empty values: malformed text, a DOCTYPE or entity declaration, more than one root, nesting deeper
// than maxDepth, or a character XML does not allow (XmlDocument says what is refused).
class XML2Json
{
public:
    static constexpr int maxDepth = XmlDocument::maxDepth;

    static QVariant parse(const QString& xml);

    // A child that may occur once or many times, always as a list: the list itself, a one-element list
    // for a single value, an empty list for an invalid variant.
    static QVariantList transContentAsList(const QVariant& value);
};
