#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVariantList>
#include <QVariantMap>

// Reads one client-notification document (pop-up, e-map or sound) at construction; the object then only
// answers its getters. Unknown kinds read as a pop-up with no data.
class ClientNotificationParser
{
public:
    explicit ClientNotificationParser(const QString& xml);

    int GetType() const;
    QString GetTimecardId() const;
    QVariant GetParsedData() const;

    QVariantList ParsePopupWindow(const QVariantMap& body) const;
    QVariantList ParseGoToEMap(const QVariantMap& body) const;
    QVariantList ParseSoundTheAlarm(const QVariantMap& body) const;
    QStringList parseCamEvent(QVariantMap& event) const;
    QStringList parseDataMagnet(QVariantMap& event) const;
    void composeUniqueList(QVariantList& out, QStringList& in) const;

private:
    int m_type = 1;
    QString m_timecardId;
    QVariantList m_parsedData;
};
