// Placeholder bodies until the real implementation lands.
#include "ClientNotificationParser.h"

ClientNotificationParser::ClientNotificationParser(const QString&) {}

int ClientNotificationParser::GetType() const
{
    return {};
}

QString ClientNotificationParser::GetTimecardId() const
{
    return {};
}

QVariant ClientNotificationParser::GetParsedData() const
{
    return {};
}

QVariantList ClientNotificationParser::ParsePopupWindow(const QVariantMap&) const
{
    return {};
}

QVariantList ClientNotificationParser::ParseGoToEMap(const QVariantMap&) const
{
    return {};
}

QVariantList ClientNotificationParser::ParseSoundTheAlarm(const QVariantMap&) const
{
    return {};
}

QStringList ClientNotificationParser::parseCamEvent(QVariantMap&) const
{
    return {};
}

QStringList ClientNotificationParser::parseDataMagnet(QVariantMap&) const
{
    return {};
}

void ClientNotificationParser::composeUniqueList(QVariantList&, QStringList&) const {}
