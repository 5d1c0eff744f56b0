#pragma once

// The plug-in set up the way the host sets it up, with answers and events delivered the way the host
// delivers them; shared by the plug-in tests.

#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

#include "AlarmMessageParser.h"
#include "FakeFramework.h"
#include "PluginAlarmManager.h"
#include "TestData.h"
#include "XML2Json.h"
#include "stdafx.h"

// The plug-in initialised by a fake host; the plug-in goes before the framework it was handed.
struct PluginFixture
{
    FakeFramework framework;
    int handle = 0;
    PluginAlarmManager plugin;

    PluginFixture() { plugin.InitialPluginBase(nullptr, &handle, &framework); }

    // The host answers every request it accepted, so the plug-in frees each context it handed over; the
    // close-tab requests are the exception, never answered by contract.
    ~PluginFixture()
    {
        for (int index = 0; index < framework.requests.size(); ++index) {
            const RecordedRequest request = framework.requests.at(index);
            if (request.context && !answered.contains(index) && request.method != PluginAlarmManagerCommon::METHOD_CLOSE_EMAP_TAB
                && request.method != PluginAlarmManagerCommon::METHOD_CLOSE_ALARM_TAB)
                answer(request.method, QVariant(), request.context, QStringLiteral("1"));
        }
    }

    void answer(const QString& method, const QVariant& result, void* context, const QString& returnCode = "0")
    {
        // The newest unanswered request with this context: a freed context's address may be handed out again.
        for (int index = framework.requests.size() - 1; index >= 0; --index) {
            if (framework.requests.at(index).context == context && !answered.contains(index)) {
                answered.insert(index);
                break;
            }
        }
        plugin.CommandProcessor(method, result, context, returnCode, QString(), false, QString());
    }

    QSet<int> answered; // indices into framework.requests

    void push(const QString& eventName, const QVariant& data, const QString& target = QString())
    {
        plugin.EventProcessor(eventName, 0, 0, 0, data, target);
    }
};

// Any value as plain text: a map as {key=value ...}, a list as [a, b], an enumerator as its number.
inline QString valueText(const QVariant& value)
{
    QStringList parts;
    if (value.typeId() == QMetaType::QVariantMap) {
        const QVariantMap map = value.toMap();
        for (auto it = map.cbegin(); it != map.cend(); ++it)
            parts.append(it.key() + "=" + valueText(it.value()));
        return "{" + parts.join(' ') + "}";
    }
    if (value.typeId() == QMetaType::QVariantList || value.typeId() == QMetaType::QStringList) {
        for (const QVariant& item : value.toList())
            parts.append(valueText(item));
        return "[" + parts.join(", ") + "]";
    }
    if (value.metaType().flags() & QMetaType::IsEnumeration)
        return QString::number(value.toInt());
    return value.isNull() ? QStringLiteral("null") : value.toString();
}

// A model row as one JSON text keyed by role name, so a comparison shows every field that differs.
inline QString rowJson(const QAbstractItemModel* model, int row)
{
    QJsonObject roles;
    const QHash<int, QByteArray> names = model->roleNames();
    for (auto it = names.cbegin(); it != names.cend(); ++it)
        roles.insert(QString::fromLatin1(it.value()), QJsonValue::fromVariant(model->index(row, 0).data(it.key())));
    return QString::fromUtf8(QJsonDocument(roles).toJson(QJsonDocument::Compact));
}

// The rows of one model under one role, in order.
inline QStringList column(const QAbstractItemModel* model, int role)
{
    QStringList values;
    for (int row = 0; row < model->rowCount(); ++row)
        values.append(model->index(row, 0).data(role).toString());
    return values;
}
