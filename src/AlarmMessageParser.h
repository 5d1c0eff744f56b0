#pragma once

#include <QDomNode>
#include <QList>
#include <QMap>
#include <QString>
#include <QVariant>

#include "stdafx.h"

class PluginAlarmManager;
class QStandardItem;

// The codec between the server's alarm documents and the rows of AlarmModel. createAlarmItemList calls
// the three parse operations through this interface, so a derived parser may replace any of them.
class IAlarmMessageParser
{
public:
    virtual ~IAlarmMessageParser() = default;
    virtual QList<QStandardItem*> createAlarmItemList(const QVariant& alarmListMessage) = 0;
    virtual void ParseTimeframeData(const QMap<QString, QVariant>& rule, QString& scheduleName,
                                    QString& rectangleJson) = 0;
    virtual void ParseTriggerData(const QMap<QString, QVariant>& rule, QString& triggerType,
                                  QList<QVariant>& triggerSources) = 0;
    virtual void ParseActionData(const QMap<QString, QVariant>& rule, QList<QVariant>& actionTypes,
                                 QList<QVariant>& actionTargets) = 0;
};

// Decodes rules read through XML2Json: schedules into rectangle JSON, trigger lists into flat trigger
// maps, action lists through the action codecs. Display names come from the owner's peer lookups.
// It never reports errors: missing parts read as empty values.
class AlarmMessageParser : public IAlarmMessageParser
{
public:
    explicit AlarmMessageParser(PluginAlarmManager* owner);
    ~AlarmMessageParser() override;

    QList<QStandardItem*> createAlarmItemList(const QVariant& alarmListMessage) override;
    // The same rows straight from the list's text, as createAlarmItemList gives them for the text and its
    // XML2Json tree. Each rule's tree is built, read and dropped in turn, so the whole list never stands
    // as one tree beside its rows.
    QList<QStandardItem*> createAlarmItemListFromXml(const QString& alarmListXml);
    void ParseTimeframeData(const QMap<QString, QVariant>& rule, QString& scheduleName,
                            QString& rectangleJson) override;
    void ParseTriggerData(const QMap<QString, QVariant>& rule, QString& triggerType,
                          QList<QVariant>& triggerSources) override;
    void ParseActionData(const QMap<QString, QVariant>& rule, QList<QVariant>& actionTypes,
                         QList<QVariant>& actionTargets) override;

    static QString GetDomNodeXmlString(const QDomNode& node);

    // The XML texts of one rule: its TriggerList and ActionList as GetDomNodeXmlString writes them.
    struct RuleXmlTexts
    {
        QString triggerXml;
        QString actionXml;
        bool operator==(const RuleXmlTexts& other) const
        {
            return triggerXml == other.triggerXml && actionXml == other.actionXml;
        }
    };
    // One entry per "Tmcard" element of the text, in the order of QDomDocument::elementsByTagName, with
    // exactly the texts the DOM would give. A text that is not well-formed XML gives none: it lists no
    // rules either, as XML2Json refuses it.
    static QList<RuleXmlTexts> RuleXmlTextsOf(const QString& alarmListXml);

    // Schedule codec.
    QString ComposeJsonTimeframeMsg(const QList<QVariant>& frames);
    QString TransformDayIntervalIntoJsonFormat(const QList<QVariant>& days, const QMap<QString, QVariant>& interval);

    // Trigger codec.
    QVariantMap BuildTriggerMap(const QString& realName, const QString& displayName, const QString& triggerType,
                                const QVariant& latency, const QVariant& index, const QVariant& value) const;
    QVariantMap BuildCamStatusTriggerMap(const QString& eventType, const int& latency,
                                         const QMap<QString, QVariant>& subElement);
    QVariantMap BuildStationTriggerMap(const QString& eventType, const int& latency,
                                       const QMap<QString, QVariant>& subElement);
    QVariantMap BuildStationDIOTriggerMap(const QString& eventType, const QMap<QString, QVariant>& trigger,
                                          int latency) const;
    QVariantMap BuildGSensorTriggerMap(const QString& eventType, const int& latency,
                                       const QMap<QString, QVariant>& subElement);
    QVariantMap BuildRemainingPeopleTriggerMap(const QString& eventType, const int& latency,
                                               const QMap<QString, QVariant>& trigger);
    QVariantMap BuildTcpTriggerMap(const QMap<QString, QVariant>& trigger) const;
    QVariantMap BuildDataMagnetTriggerMap(const QMap<QString, QVariant>& trigger) const;
    QVariantMap BuildVirtualTriggerMap(const QMap<QString, QVariant>& trigger) const;

private:
    // The list texts come as UTF-8, which is how the rows keep them.
    QStandardItem* createAlarmItem(const QVariantMap& rule, const QByteArray& triggerXml, const QByteArray& actionXml);
    QString displayNameOf(const QString& deviceId) const;
    QVariantMap cameraTriggerMap(const QVariantMap& trigger, QString& reportedType);
    QVariantMap statusTriggerMap(const QVariantMap& trigger, const QString& eventType);
    QVariantMap externalTriggerMap(const QVariantMap& trigger, const QString& eventType);

    // May be null (tests, tools): display names are then empty.
    PluginAlarmManager* m_owner = nullptr;
};
