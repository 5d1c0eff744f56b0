#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariantList>

class AlarmHost;
class QAbstractItemModel;
class QSocketNotifier;

// The host without a display: waits for the first alarm list, runs the scripted steps of the command
// line one after another (each waits for the plug-in's answer signal), prints the list as the UI shows it
// and exits. With --watch it keeps running and prints the plug-in's signals as they come.
class HeadlessRunner : public QObject
{
    Q_OBJECT
public:
    struct Script
    {
        QStringList concurrentEdits; // ids another client edits first
        QStringList additions;       // JSON objects
        QStringList edits;           // JSON objects with "id"
        QStringList toggles;         // "id:on" / "id:off"
        QStringList deletions;       // ids
        QStringList scheduleUpdates; // "old template:new template"
        QString filter;
        QString sort;                // role name, optionally ":desc"
        QStringList fires;           // virtual trigger names, optionally "camera/name"
        bool isJson = false;
        bool isWatching = false;
        bool isListing = true;
        int timeoutMs = 10000;
    };

    HeadlessRunner(AlarmHost* host, Script script, QObject* parent = nullptr);

    // Runs the script; returns the process exit code (0 when every step succeeded). With --watch it
    // returns only when stdin sends "quit" or closes.
    int run();

private:
    struct Step
    {
        QString kind;
        QString subject;
        bool isSuccess = false;
        QJsonObject details;
    };

    bool waitForFirstList();
    QList<Step> runSteps();
    bool applyView(QString* errorText);
    int watch();
    bool runCommand(const QString& command);

    bool waitFor(const QString& signalName, QVariantList* arguments);
    // The answer to a request: true with its arguments, or false with the step's error when the plug-in did
    // not send the request or no answer came.
    bool awaitAnswer(bool isSent, const QString& answerSignal, Step* step, QVariantList* arguments);
    // The step with the answer's first argument as its result, as most answer signals carry it.
    Step withAnswer(Step step, bool isSent, const QString& answerSignal);
    void settle();
    Step addAlarm(const QString& json);
    Step editAlarm(const QString& json);
    Step toggleAlarm(const QString& choice);
    Step deleteAlarm(const QString& id);
    Step updateSchedule(const QString& choice);
    Step fire(const QString& choice);
    bool applySort(const QString& choice, QString* errorText);

    int rowOfId(const QString& id) const;
    QVariant rowValue(int row, const char* roleName) const;
    QJsonArray listAsJson() const;
    void printJson(const QList<Step>& steps) const;
    void printText(const QList<Step>& steps) const;
    void printSignal(const QString& name, const QVariantList& arguments) const;

    AlarmHost* m_host;
    Script m_script;
    QAbstractItemModel* m_model = nullptr;
    QList<QPair<QString, QVariantList>> m_signals;
    bool m_isPrintingLive = false;
    QSocketNotifier* m_stdin = nullptr;
};
