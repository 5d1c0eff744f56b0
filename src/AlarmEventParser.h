#pragma once

#include <QString>
#include <QVariant>
#include <QVariantMap>

// Reads one triggered-alarm event document into the values of the alarmTriggered signal. SetMessage
// keeps the "AlarmNotification"/"Alarm" map; a missing key always reads as an empty value.
// The core asks every getter once per event, so SetMessage also keeps the few maps and type texts that
// nearly every getter starts from; they depend only on the document, so the results are the same as
// deriving them again on each call.
class AlarmEventParser
{
public:
    void SetMessage(const QString& xml);

    QVariantMap GetQuessaEventMap() const;
    QString GetAlarmName() const;
    QVariantMap GetTriggerMap() const;
    QString GetTriggerType() const;
    QString getTriggerValueTag(const QVariantMap& body) const;
    QString GetTriggerEvent() const;
    QString GetVCARuleName(const QVariantMap& rule) const;
    QString GetVCAValue(const QVariantMap& vca) const;
    QString GetTriggerValue() const;
    QString GetDIOIndex() const;
    QString GetNodeID() const;
    qint64 GetServerTime() const;
    qint64 parseServerTimestamp(const QVariant& value) const;
    QString GetDeviceName() const;
    QString GetAlarmId() const;
    QString GetTimecardId() const;
    bool Mute() const;

private:
    QString eventTypeAsSent() const;

    QVariantMap m_alarm;
    QVariantMap m_quessaEvent;
    QString m_typeAsSent;
    QString m_triggerType;
    QVariantMap m_triggerBody;
};
