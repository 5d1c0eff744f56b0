#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVariantMap>

// Whole results as JSON text, so a number and a text of the same digits differ and a failed comparison
// shows everything that differs.
namespace TestJson {

// Compact JSON of a map or list; any other value is wrapped in a one-element array.
QString of(const QVariant& value);

// One line per map entry, and one per element of a list entry ("actionTarget[1]: {...}"), so that
// QCOMPARE names the first differing element.
QStringList lines(const QVariantMap& map);

// A hand-written JSON text in the compact form `of` writes; aborts on a typo.
QString normalised(const char* json);

} // namespace TestJson
