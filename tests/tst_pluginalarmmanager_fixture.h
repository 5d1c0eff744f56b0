#pragma once

// Shared by the PluginAlarmManager tests: the plug-in set up the way the host sets it up, answers and
// events delivered the way the host delivers them, and alarm rows built without the codec.

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardItem>
#include <QUrl>
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

    void answer(const QString& method, const QVariant& result, void* context, const QString& returnCode = "0")
    {
        plugin.CommandProcessor(method, result, context, returnCode, QString(), false, QString());
    }

    // Answers the latest request of that method with its own context.
    void answerLast(const QString& method, const QVariant& result, const QString& returnCode = "0")
    {
        const QList<RecordedRequest> sent = framework.requestsFor(method);
        QVERIFY2(!sent.isEmpty(), qPrintable(method));
        answer(method, result, sent.last().context, returnCode);
    }

    void push(const QString& eventName, const QVariant& data, const QString& target = QString())
    {
        plugin.EventProcessor(eventName, 0, 0, 0, data, target);
    }

    template <typename... Args>
    bool invoke(const char* invokable, Args... args)
    {
        bool ok = false;
        const bool invoked = QMetaObject::invokeMethod(&plugin, invokable, Q_RETURN_ARG(bool, ok), args...);
        if (!invoked)
            qWarning("cannot invoke %s", invokable);
        return ok;
    }

    void addRow(QStandardItem* item) { plugin.getAlarmModel()->appendRow(item); }
};

// One alarm rule as the codec would hand it over.
struct AlarmRow
{
    QString id;
    QString name;
    bool enabled = true;
    qlonglong revision = 1;
    QString triggerXml;
    QVariantList schedule{QStringLiteral("Always"), QStringLiteral("success"), QString()};
    QString triggerType = QStringLiteral("Motion");
    QString description;
    QString actionXml;

    static AlarmRow of(const QString& id, const QString& name, bool enabled = true, qlonglong revision = 1)
    {
        AlarmRow row;
        row.id = id;
        row.name = name;
        row.enabled = enabled;
        row.revision = revision;
        return row;
    }

    QStandardItem* item() const
    {
        auto* row = new QStandardItem;
        row->setData(id, AlarmModel::idRole);
        row->setData(name, AlarmModel::nameRole);
        row->setData(enabled, AlarmModel::enabledRole);
        row->setData(QVariantList(), AlarmModel::triggerSourceRole);
        row->setData(triggerType, AlarmModel::triggerTypeRole);
        row->setData(QVariantList(), AlarmModel::actionTypeRole);
        row->setData(QVariantList(), AlarmModel::actionTargetRole);
        row->setData(schedule, AlarmModel::scheduleRole);
        row->setData(revision, AlarmModel::revisionRole);
        row->setData(description, AlarmModel::descriptionRole);
        row->setData(triggerXml, AlarmModel::triggerXmlRole);
        row->setData(actionXml, AlarmModel::actionXmlRole);
        return row;
    }
};

// One virtual trigger of a trigger document.
struct VirtualTrigger
{
    QString name;
    QString camera;
    int iconType = 0;
};

inline QString triggerXml(const QList<VirtualTrigger>& triggers)
{
    QString xml = QStringLiteral("<TriggerList><CamEventTrigger><CamName>c_9</CamName><EventType>Motion</EventType>"
                                 "<Motion><Index>1</Index></Motion></CamEventTrigger>");
    for (const VirtualTrigger& trigger : triggers) {
        xml += QStringLiteral("<ExtDeviceEventTrigger><EventType>VirtualTrigger</EventType><VirtualTrigger>"
                              "<Name>%1</Name><Camera>%2</Camera><IconType>%3</IconType></VirtualTrigger>"
                              "<Rule><Latency>0</Latency></Rule></ExtDeviceEventTrigger>")
                   .arg(QString::fromLatin1(QUrl::toPercentEncoding(trigger.name)), trigger.camera)
                   .arg(trigger.iconType);
    }
    return xml + QStringLiteral("</TriggerList>");
}

// The codec stand-in: lists the rows it was given and decodes edits by a fixed, visible rule, so the
// handlers' own behaviour can be checked apart from the real codec.
class StubAlarmMessageParser : public IAlarmMessageParser
{
public:
    QList<AlarmRow> rows;
    QVariant lastMessage;

    QList<QStandardItem*> createAlarmItemList(const QVariant& message) override
    {
        lastMessage = message;
        QList<QStandardItem*> items;
        for (const AlarmRow& row : std::as_const(rows))
            items.append(row.item());
        return items;
    }
    void ParseTimeframeData(const QMap<QString, QVariant>& rule, QString& scheduleName,
                            QString& rectangleJson) override
    {
        scheduleName = QStringLiteral("parsed name");
        rectangleJson = QStringLiteral("{\"frames\":%1}")
                            .arg(XML2Json::transContentAsList(rule.value("Mapping").toMap().value("Ele")).size());
    }
    void ParseTriggerData(const QMap<QString, QVariant>& rule, QString& triggerType,
                          QList<QVariant>& triggerSources) override
    {
        const QVariantMap triggerList = rule.value(QStringLiteral("TriggerList")).toMap();
        triggerType = triggerList.keys().join(QLatin1Char('+'));
        triggerSources = {triggerList.keys().size()};
    }
    void ParseActionData(const QMap<QString, QVariant>& rule, QList<QVariant>& actionTypes,
                         QList<QVariant>& actionTargets) override
    {
        const QVariantMap actionList = rule.value(QStringLiteral("ActionList")).toMap();
        for (auto it = actionList.cbegin(); it != actionList.cend(); ++it) {
            actionTypes.append(it.key());
            actionTargets.append(it.value());
        }
    }
};

inline QString mapJson(const QVariantMap& map)
{
    return QString::fromUtf8(QJsonDocument(QJsonObject::fromVariantMap(map)).toJson(QJsonDocument::Compact));
}

// A model row as one JSON text keyed by role name, so a comparison shows every field that differs.
inline QString rowJson(const QAbstractItemModel* model, int row)
{
    QVariantMap roles;
    const QHash<int, QByteArray> names = model->roleNames();
    const QModelIndex index = model->index(row, 0);
    for (auto it = names.cbegin(); it != names.cend(); ++it)
        roles.insert(QString::fromLatin1(it.value()), index.data(it.key()));
    return mapJson(roles);
}

// Any argument (null, number, list, map) as one JSON text, wrapped in an array.
inline QString argumentJson(const QVariant& argument)
{
    const QJsonArray wrapped{QJsonValue::fromVariant(argument)};
    return QString::fromUtf8(QJsonDocument(wrapped).toJson(QJsonDocument::Compact));
}

// The rows of one model under one role, in order.
inline QStringList column(const QAbstractItemModel* model, int role)
{
    QStringList values;
    for (int row = 0; row < model->rowCount(); ++row)
        values.append(model->index(row, 0).data(role).toString());
    return values;
}
