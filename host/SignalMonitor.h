#pragma once

#include <QList>
#include <QMetaMethod>
#include <QObject>
#include <QString>
#include <QVariantList>

#include <functional>

// Sees every signal a plug-in declares, with its arguments, without compiling against the plug-in's
// header: the host only knows the plug-in through QPluginLoader and its meta-object, as a real host does.
// Works like QSignalSpy: each signal is connected by index to a slot index this object answers in
// qt_metacall.
class SignalMonitor : public QObject
{
public:
    using Handler = std::function<void(const QString& name, const QVariantList& arguments)>;

    explicit SignalMonitor(QObject* target, Handler handler, QObject* parent = nullptr);

    int qt_metacall(QMetaObject::Call call, int id, void** arguments) override;

private:
    QList<QMetaMethod> m_signals;
    Handler m_handler;
};
