// Placeholder bodies until the real implementation lands.
#include "AlarmMessageParser.h"
#include "PluginAlarmManager.h"

AlarmMessageParser::AlarmMessageParser(PluginAlarmManager* owner)
    : m_owner(owner)
{
}

AlarmMessageParser::~AlarmMessageParser() = default;

QList<QStandardItem*> AlarmMessageParser::createAlarmItemList(const QVariant&)
{
    return {};
}

void AlarmMessageParser::ParseTimeframeData(const QMap<QString, QVariant>&, QString&, QString&) {}

void AlarmMessageParser::ParseTriggerData(const QMap<QString, QVariant>&, QString&, QList<QVariant>&) {}

void AlarmMessageParser::ParseActionData(const QMap<QString, QVariant>&, QList<QVariant>&, QList<QVariant>&) {}

QString AlarmMessageParser::GetDomNodeXmlString(const QDomNode&)
{
    return {};
}

QString AlarmMessageParser::ComposeJsonTimeframeMsg(const QList<QVariant>&)
{
    return {};
}

QString AlarmMessageParser::TransformDayIntervalIntoJsonFormat(const QList<QVariant>&, const QMap<QString, QVariant>&)
{
    return {};
}

QVariantMap AlarmMessageParser::BuildTriggerMap(const QString&, const QString&, const QString&, const QVariant&, const QVariant&, const QVariant&) const
{
    return {};
}

QVariantMap AlarmMessageParser::BuildCamStatusTriggerMap(const QString&, const int&, const QMap<QString, QVariant>&)
{
    return {};
}

QVariantMap AlarmMessageParser::BuildStationTriggerMap(const QString&, const int&, const QMap<QString, QVariant>&)
{
    return {};
}

QVariantMap AlarmMessageParser::BuildStationDIOTriggerMap(const QString&, const QMap<QString, QVariant>&, int) const
{
    return {};
}

QVariantMap AlarmMessageParser::BuildGSensorTriggerMap(const QString&, const int&, const QMap<QString, QVariant>&)
{
    return {};
}

QVariantMap AlarmMessageParser::BuildRemainingPeopleTriggerMap(const QString&, const int&, const QMap<QString, QVariant>&)
{
    return {};
}

QVariantMap AlarmMessageParser::BuildTcpTriggerMap(const QMap<QString, QVariant>&) const
{
    return {};
}

QVariantMap AlarmMessageParser::BuildDataMagnetTriggerMap(const QMap<QString, QVariant>&) const
{
    return {};
}

QVariantMap AlarmMessageParser::BuildVirtualTriggerMap(const QMap<QString, QVariant>&) const
{
    return {};
}
