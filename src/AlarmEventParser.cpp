// Placeholder bodies until the real implementation lands.
#include "AlarmEventParser.h"

void AlarmEventParser::SetMessage(const QString&) {}

QVariantMap AlarmEventParser::GetQuessaEventMap() const
{
    return {};
}

QString AlarmEventParser::GetAlarmName() const
{
    return {};
}

QVariantMap AlarmEventParser::GetTriggerMap() const
{
    return {};
}

QString AlarmEventParser::GetTriggerType() const
{
    return {};
}

QString AlarmEventParser::getTriggerValueTag(const QVariantMap&) const
{
    return {};
}

QString AlarmEventParser::GetTriggerEvent() const
{
    return {};
}

QString AlarmEventParser::GetVCARuleName(const QVariantMap&) const
{
    return {};
}

QString AlarmEventParser::GetVCAValue(const QVariantMap&) const
{
    return {};
}

QString AlarmEventParser::GetTriggerValue() const
{
    return {};
}

QString AlarmEventParser::GetDIOIndex() const
{
    return {};
}

QString AlarmEventParser::GetNodeID() const
{
    return {};
}

qint64 AlarmEventParser::GetServerTime() const
{
    return {};
}

qint64 AlarmEventParser::parseServerTimestamp(const QVariant&) const
{
    return {};
}

QString AlarmEventParser::GetDeviceName() const
{
    return {};
}

QString AlarmEventParser::GetAlarmId() const
{
    return {};
}

QString AlarmEventParser::GetTimecardId() const
{
    return {};
}

bool AlarmEventParser::Mute() const
{
    return {};
}

QString AlarmEventParser::eventTypeAsSent() const
{
    return {};
}
