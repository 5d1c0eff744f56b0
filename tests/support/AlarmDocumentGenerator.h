#pragma once

#include <QString>
#include <QStringList>
#include <QVariantMap>

// Alarm list documents as the server answers GetAllAlarm, for benchmarks, fuzzing seeds and tests that
// need many rules. Rule i cycles through every trigger kind, every action kind (including FTP and
// LaunchProgram, which have no codec), several schedules and percent-encoded names with non-ASCII
// characters. The output depends only on the arguments: the same count gives the same text.
class AlarmDocumentGenerator
{
public:
    // The whole answer, "GetEvtTmcardRes" with ruleCount "Tmcard" elements, indented as the server does.
    // About 1.2 kB per rule.
    static QString alarmListXml(int ruleCount);

    // One "Tmcard" element of that document (rule ids start at 1).
    static QString ruleXml(int ruleIndex);

    // The argument createAlarmItemList takes for a document: {"alarmList": tree, "alarmXmlMsg": xml}.
    static QVariantMap alarmListMessage(const QString& xml);

    // Device ids the documents use, so a test can give each a display name in the fake device tree.
    static QStringList deviceIds();
};
