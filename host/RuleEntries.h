#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>

class QAbstractItemModel;
class QDomElement;
class Site;

// The rule editor's view of a rule's trigger and action lists: one entry per child element, kept as the
// exact text the server sent, so that saving a rule resends the entries the user did not touch unchanged.
// New entries are made from the first entry of each kind among the site's rules, with the picked device
// put in; so the editor offers exactly the kinds the site's server knows how to write.
class RuleEntries : public QObject
{
    Q_OBJECT
public:
    RuleEntries(const Site* site, const QAbstractItemModel* alarms, QObject* parent = nullptr);

    // The child elements of a <TriggerList> or <ActionList> text, each exactly as written.
    Q_INVOKABLE QStringList split(const QString& listXml) const;
    Q_INVOKABLE QString join(const QString& tag, const QStringList& entries) const;

    // Kind of one entry: a trigger's event type (with the analytics type for "VCA" and "Thermal", as in
    // "VCA/LineDetection"); an action's element (with the notification type, "ClientNotification/GoToEMap").
    Q_INVOKABLE QString kindOf(const QString& entryXml) const;
    // The kinds the site's rules hold, as {"kind", "picker", "field"} in order of first use; picker names
    // the list the device comes from: "camera", "station", "io", "output", "map", "sound", "role" or "";
    // field is the element a typed text goes to (a mail's "To", an SMS's "PhoneNum", a URL, a path, the
    // "Index" of an input, output or motion window) or "".
    Q_INVOKABLE QVariantList kinds(const QString& tag) const;
    // A new entry of that kind for the device (an id, or a name for "sound") with the typed text, when
    // given, in its field; "" for a kind the site's rules do not hold.
    Q_INVOKABLE QString make(const QString& tag, const QString& kind, const QString& device,
                             const QString& text = QString()) const;
    // The device an entry names first ("" for none), for its line in the editor.
    Q_INVOKABLE QString deviceOf(const QString& entryXml) const;

    // The texts of an action's own fields by tag ("URL", "Post", ...), for the HTTP action's test request.
    Q_INVOKABLE QVariantMap fieldsOf(const QString& entryXml) const;
    // Whether an action says whom or what it acts on; the server refuses a rule with an action that does not.
    Q_INVOKABLE bool hasTarget(const QString& entryXml) const;

    // Cameras, recorders and I/O boxes a rule names that the site does not know, each once.
    Q_INVOKABLE QStringList unknownDevices(const QString& triggerXml, const QString& actionXml) const;

private:
    static QString pickerOf(const QString& element, const QString& parent, const QString& entryTag);
    static QString firstPicker(const QDomElement& root);
    static QString fieldOf(const QString& kind);
    QStringList templates(const QString& tag) const;

    const Site* m_site;
    const QAbstractItemModel* m_alarms;
};
