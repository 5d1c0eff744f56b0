#include "VariantTree.h"

namespace VariantTree {

namespace {

const QString ELEMENT_TEXT = QStringLiteral("#text");

} // namespace

bool isMap(const QVariant& value)
{
    return value.typeId() == QMetaType::QVariantMap || value.typeId() == QMetaType::QVariantHash;
}

bool isList(const QVariant& value)
{
    return value.typeId() == QMetaType::QVariantList || value.typeId() == QMetaType::QStringList;
}

QVariant valueAt(const QVariant& node, std::initializer_list<QString> path)
{
    QVariant value = node;
    for (const QString& tag : path) {
        // The tree holds QVariantMap; a map is searched in place rather than copied at every step.
        if (value.typeId() == QMetaType::QVariantMap) {
            const auto* map = static_cast<const QVariantMap*>(value.constData());
            const auto found = map->constFind(tag);
            if (found == map->constEnd())
                return {};
            QVariant child = *found;
            value = std::move(child);
        } else if (value.typeId() == QMetaType::QVariantHash) {
            value = value.toHash().value(tag);
        } else {
            return {};
        }
    }
    return value;
}

QVariant valueAt(const QVariantMap& map, std::initializer_list<QString> path)
{
    return valueAt(QVariant(map), path);
}

QString textOf(const QVariant& value)
{
    return isMap(value) || isList(value) ? QString() : value.toString();
}

QVariantMap mapOf(const QVariant& value)
{
    return isMap(value) ? value.toMap() : QVariantMap();
}

QVariantList listOf(const QVariant& value)
{
    return isList(value) ? value.toList() : QVariantList();
}

QString ownTextOf(const QVariant& element)
{
    return isMap(element) ? textAt(element, {ELEMENT_TEXT}) : textOf(element);
}

} // namespace VariantTree
