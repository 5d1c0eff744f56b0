#pragma once

#include <QMap>
#include <QSharedPointer>
#include <QString>
#include <QVariant>
#include <QVariantList>

class PluginAlarmManager;

// A single child element that may repeat, always as a list: [] for a null variant, the list for a list
// or string list, [value] for anything else.
QVariantList transContentAsList(const QVariant& value);

// One codec per action type: the <Action> element (as a variant tree) to the action model the editor and
// the display proxy use, {"actionType": type, "actionTarget": [target maps]}, and an edited target list
// back to <Action> XML. Codecs are stateless and never report errors: missing parts read as empty.
class IActionParser
{
public:
    virtual ~IActionParser();
    virtual QMap<QString, QVariant> XmlToActionModel(const QVariant& action, PluginAlarmManager* manager) = 0;
    virtual QString ActionTargetToXml(const QVariant& actionTarget) = 0;
};

class SendMailActionParser : public IActionParser
{
public:
    QMap<QString, QVariant> XmlToActionModel(const QVariant& action, PluginAlarmManager* manager) override;
    QString ActionTargetToXml(const QVariant& actionTarget) override;
};

class SMSActionParser : public IActionParser
{
public:
    QMap<QString, QVariant> XmlToActionModel(const QVariant& action, PluginAlarmManager* manager) override;
    QString ActionTargetToXml(const QVariant& actionTarget) override;
};

// "target" holds the method label and "action" the URL, the reverse of the other types.
class HTTPActionParser : public IActionParser
{
public:
    QMap<QString, QVariant> XmlToActionModel(const QVariant& action, PluginAlarmManager* manager) override;
    QString ActionTargetToXml(const QVariant& actionTarget) override;
};

class RecordingActionParser : public IActionParser
{
public:
    QMap<QString, QVariant> XmlToActionModel(const QVariant& action, PluginAlarmManager* manager) override;
    QString ActionTargetToXml(const QVariant& actionTarget) override;
};

class PresetActionParser : public IActionParser
{
public:
    QMap<QString, QVariant> XmlToActionModel(const QVariant& action, PluginAlarmManager* manager) override;
    QString ActionTargetToXml(const QVariant& actionTarget) override;
};

class SetDOActionParser : public IActionParser
{
public:
    QMap<QString, QVariant> XmlToActionModel(const QVariant& action, PluginAlarmManager* manager) override;
    QString ActionTargetToXml(const QVariant& actionTarget) override;
};

class ClientNotifyGotoLiveStreamActionParser : public IActionParser
{
public:
    QMap<QString, QVariant> XmlToActionModel(const QVariant& action, PluginAlarmManager* manager) override;
    QString ActionTargetToXml(const QVariant& actionTarget) override;
};

// The codecs below only decode: the plug-in shows these actions but never writes them, and their
// ActionTargetToXml returns "" whatever it is given.
class ClientNotifyGotoEMapActionParser : public IActionParser
{
public:
    QMap<QString, QVariant> XmlToActionModel(const QVariant& action, PluginAlarmManager* manager) override;
    QString ActionTargetToXml(const QVariant& actionTarget) override;
    QString transformTargetName(QString name);
};

class ClientNotifySoundTheAlarmActionParser : public IActionParser
{
public:
    QMap<QString, QVariant> XmlToActionModel(const QVariant& action, PluginAlarmManager* manager) override;
    QString ActionTargetToXml(const QVariant& actionTarget) override;
};

class AddBookmarkAlarmActionParser : public IActionParser
{
public:
    QMap<QString, QVariant> XmlToActionModel(const QVariant& action, PluginAlarmManager* manager) override;
    QString ActionTargetToXml(const QVariant& actionTarget) override;
};

class PlayIPAudioAlarmActionParser : public IActionParser
{
public:
    QMap<QString, QVariant> XmlToActionModel(const QVariant& action, PluginAlarmManager* manager) override;
    QString ActionTargetToXml(const QVariant& actionTarget) override;
};

class MobileNotificationActionParser : public IActionParser
{
public:
    QMap<QString, QVariant> XmlToActionModel(const QVariant& action, PluginAlarmManager* manager) override;
    QString ActionTargetToXml(const QVariant& actionTarget) override;
};

// Picks the codec of one action; a null pointer means the action has no codec and is skipped.
class ActionParserFactory
{
public:
    // By the "actionType" of an action model.
    static QSharedPointer<IActionParser> GetActionParser(const QString& actionType);
    // By the decoded <Action> element: the first known type child wins.
    static QSharedPointer<IActionParser> GetActionParser(const QMap<QString, QVariant>& action);
};
