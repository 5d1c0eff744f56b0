#include "XML2Json.h"

#include "XmlDocument.h"

#include <QVariantMap>

QVariant XML2Json::parse(const QString& xml)
{
    XmlDocument document(xml);
    const pugi::xml_node root = document.root();
    if (!root)
        return {};
    return QVariantMap{{document.nameOf(root), document.valueOf(root)}};
}

QVariantList XML2Json::transContentAsList(const QVariant& value)
{
    if (!value.isValid())
        return {};
    if (value.typeId() == QMetaType::QVariantList)
        return value.toList();
    return QVariantList{value};
}
