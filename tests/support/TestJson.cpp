#include "TestJson.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace TestJson {

QString of(const QVariant& value)
{
    QJsonDocument document;
    if (value.typeId() == QMetaType::QVariantMap)
        document = QJsonDocument(QJsonObject::fromVariantMap(value.toMap()));
    else if (value.typeId() == QMetaType::QVariantList || value.typeId() == QMetaType::QStringList)
        document = QJsonDocument(QJsonArray::fromVariantList(value.toList()));
    else
        document = QJsonDocument(QJsonArray{QJsonValue::fromVariant(value)});
    return QString::fromUtf8(document.toJson(QJsonDocument::Compact));
}

QStringList lines(const QVariantMap& map)
{
    QStringList result;
    for (auto it = map.cbegin(); it != map.cend(); ++it) {
        if (it.value().typeId() != QMetaType::QVariantList) {
            result.append(it.key() + QStringLiteral(": ") + of(it.value()));
            continue;
        }
        const QVariantList items = it.value().toList();
        if (items.isEmpty())
            result.append(it.key() + QStringLiteral(": []"));
        for (int index = 0; index < items.size(); ++index)
            result.append(QStringLiteral("%1[%2]: %3").arg(it.key()).arg(index).arg(of(items.at(index))));
    }
    return result;
}

QString normalised(const char* json)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError)
        qFatal("bad expected JSON: %s", qPrintable(error.errorString()));
    return QString::fromUtf8(document.toJson(QJsonDocument::Compact));
}

} // namespace TestJson
