#pragma once

#include <QDateTime>
#include <QMap>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <functional>

class QNetworkAccessManager;

// The alarm server as one client sees it, kept in a data folder: one XML document per alarm rule
// (rules/<id>.xml, the server's own "Tmcard" form), the server's alarm sounds (sounds/*.mp3) and a few
// settings (server.json). Every change is written before it is answered, each file replaced atomically,
// so a crash leaves either the old or the new rule, never half of one.
//
// Requests are answered on the event loop after the configured latency, never from within request(),
// because the plug-in frees a request's context in its answer handler and must not see the answer before
// the send call has returned. Changes are announced to every client through eventPushed, after the answer.
class SimulatedServer : public QObject
{
    Q_OBJECT
public:
    using Reply = std::function<void(const QVariant& result, const QString& returnCode)>;

    // Return codes: "0" success; anything else is a failure the plug-in reports as such.
    static const QString CODE_OK;
    static const QString CODE_BAD_REQUEST;
    static const QString CODE_NOT_FOUND;
    static const QString CODE_STALE_REVISION;
    static const QString CODE_NO_RULE_FIRED;
    static const QString CODE_NOT_ALLOWED;
    static const QString CODE_UNKNOWN_METHOD;
    static const QString CODE_STORAGE_FAILED;
    static const QString CODE_HTTP_FAILED;

    explicit SimulatedServer(const QString& dataDirectory, QObject* parent = nullptr);
    ~SimulatedServer() override;

    // Reads the data folder; rule files that do not parse are skipped (and left alone) with a warning.
    bool load(QString* errorText = nullptr);

    void setLatency(int milliseconds) { m_latencyMs = milliseconds; }
    int latency() const { return m_latencyMs; }
    // The clock that decides whether a rule's schedule is active; tests pin it.
    void setClock(std::function<QDateTime()> clock) { m_clock = std::move(clock); }

    // Queues one request; reply runs later on the event loop (exactly once, unless the server is destroyed
    // first). Returns false for the requests that have no answer in the protocol (the close broadcasts):
    // their reply never runs.
    bool request(const QString& method, const QVariant& argument, Reply reply);

    // What another client does behind this one's back: edits a rule (its revision goes up by one) and
    // announces it. Returns false for an unknown id.
    bool editElsewhere(const QString& alarmId);

    QString dataDirectory() const { return m_dataDirectory; }
    QStringList alarmIds() const;
    QString alarmDocument(const QString& alarmId) const;
    qint64 alarmRevision(const QString& alarmId) const;
    bool isAlarmEnabled(const QString& alarmId) const;

signals:
    void eventPushed(const QString& name, const QVariant& payload);

private:
    struct Rule
    {
        QString id;
        qint64 revision = 1;
        QString encodedName;
        bool isEnabled = true;
        QString encodedDescription;
        QString mappingXml;
        QString triggerListXml;
        QString actionListXml;
        QString relatedDevicesXml;
    };
    struct Answer
    {
        QVariant result;
        QString returnCode;
        QList<QPair<QString, QVariant>> events;
    };

    Answer handle(const QString& method, const QVariant& argument);
    Answer getAllAlarm() const;
    Answer addAlarm(const QVariantMap& argument);
    Answer updateAlarm(const QVariantMap& argument);
    Answer deleteAlarm(const QVariantMap& argument);
    Answer toggleAlarm(const QVariant& argument);
    Answer toggleAllAlarm(const QVariantMap& argument);
    Answer updateAlarmSchedule(const QVariantMap& argument);
    Answer virtualTrigger(const QVariantMap& argument);
    Answer soundContent(const QVariant& argument) const;
    void sendHttp(const QVariantMap& argument, Reply reply);
    void deliver(Answer answer, Reply reply);

    QString ruleDocument(const Rule& rule) const;
    QString ruleFilePath(const QString& alarmId) const;
    static QPair<QString, QVariant> ruleEvent(const QString& eventType, const Rule& rule);
    bool storeRule(const Rule& rule);
    bool storeSettings();
    bool setEnabled(Rule& rule, bool isEnabled, QList<QPair<QString, QVariant>>& events);
    bool isScheduleActive(const Rule& rule, const QDateTime& when) const;
    QStringList soundNames() const;
    QString nextAlarmId();
    QList<const Rule*> rulesInListOrder() const;

    QString m_dataDirectory;
    QMap<QString, Rule> m_rules;
    qint64 m_lastAlarmId = 1000;
    int m_reserveTime = 30;
    int m_latencyMs = 30;
    quint64 m_occurrenceCount = 0;
    std::function<QDateTime()> m_clock;
    QNetworkAccessManager* m_network = nullptr;
};
