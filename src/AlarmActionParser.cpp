// Placeholder bodies until the real implementation lands.
#include "AlarmActionParser.h"

IActionParser::~IActionParser() = default;

QVariantList transContentAsList(const QVariant&)
{
    return {};
}



QMap<QString, QVariant> SendMailActionParser::XmlToActionModel(const QVariant&, PluginAlarmManager*)
{
    return {};
}

QString SendMailActionParser::ActionTargetToXml(const QVariant&)
{
    return {};
}

QMap<QString, QVariant> SMSActionParser::XmlToActionModel(const QVariant&, PluginAlarmManager*)
{
    return {};
}

QString SMSActionParser::ActionTargetToXml(const QVariant&)
{
    return {};
}

QMap<QString, QVariant> HTTPActionParser::XmlToActionModel(const QVariant&, PluginAlarmManager*)
{
    return {};
}

QString HTTPActionParser::ActionTargetToXml(const QVariant&)
{
    return {};
}

QMap<QString, QVariant> RecordingActionParser::XmlToActionModel(const QVariant&, PluginAlarmManager*)
{
    return {};
}

QString RecordingActionParser::ActionTargetToXml(const QVariant&)
{
    return {};
}

QMap<QString, QVariant> PresetActionParser::XmlToActionModel(const QVariant&, PluginAlarmManager*)
{
    return {};
}

QString PresetActionParser::ActionTargetToXml(const QVariant&)
{
    return {};
}

QMap<QString, QVariant> SetDOActionParser::XmlToActionModel(const QVariant&, PluginAlarmManager*)
{
    return {};
}

QString SetDOActionParser::ActionTargetToXml(const QVariant&)
{
    return {};
}

QMap<QString, QVariant> ClientNotifyGotoLiveStreamActionParser::XmlToActionModel(const QVariant&, PluginAlarmManager*)
{
    return {};
}

QString ClientNotifyGotoLiveStreamActionParser::ActionTargetToXml(const QVariant&)
{
    return {};
}

QMap<QString, QVariant> ClientNotifyGotoEMapActionParser::XmlToActionModel(const QVariant&, PluginAlarmManager*)
{
    return {};
}

QString ClientNotifyGotoEMapActionParser::ActionTargetToXml(const QVariant&)
{
    return {};
}

QString ClientNotifyGotoEMapActionParser::transformTargetName(QString)
{
    return {};
}

QMap<QString, QVariant> ClientNotifySoundTheAlarmActionParser::XmlToActionModel(const QVariant&, PluginAlarmManager*)
{
    return {};
}

QString ClientNotifySoundTheAlarmActionParser::ActionTargetToXml(const QVariant&)
{
    return {};
}

QMap<QString, QVariant> AddBookmarkAlarmActionParser::XmlToActionModel(const QVariant&, PluginAlarmManager*)
{
    return {};
}

QString AddBookmarkAlarmActionParser::ActionTargetToXml(const QVariant&)
{
    return {};
}

QMap<QString, QVariant> PlayIPAudioAlarmActionParser::XmlToActionModel(const QVariant&, PluginAlarmManager*)
{
    return {};
}

QString PlayIPAudioAlarmActionParser::ActionTargetToXml(const QVariant&)
{
    return {};
}

QMap<QString, QVariant> MobileNotificationActionParser::XmlToActionModel(const QVariant&, PluginAlarmManager*)
{
    return {};
}

QString MobileNotificationActionParser::ActionTargetToXml(const QVariant&)
{
    return {};
}

QSharedPointer<IActionParser> ActionParserFactory::GetActionParser(const QString&)
{
    return {};
}

QSharedPointer<IActionParser> ActionParserFactory::GetActionParser(const QMap<QString, QVariant>&)
{
    return {};
}
