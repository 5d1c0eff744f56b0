#include "SignalMonitor.h"

SignalMonitor::SignalMonitor(QObject* target, Handler handler, QObject* parent)
    : QObject(parent)
    , m_handler(std::move(handler))
{
    const QMetaObject* meta = target->metaObject();
    const int slotBase = QObject::staticMetaObject.methodCount();
    // QObject's own signals (destroyed, objectNameChanged) are not the plug-in's.
    for (int index = QObject::staticMetaObject.methodCount(); index < meta->methodCount(); ++index) {
        const QMetaMethod method = meta->method(index);
        if (method.methodType() != QMetaMethod::Signal)
            continue;
        QMetaObject::connect(target, index, this, slotBase + static_cast<int>(m_signals.size()), Qt::DirectConnection);
        m_signals.append(method);
    }
}

int SignalMonitor::qt_metacall(QMetaObject::Call call, int id, void** arguments)
{
    id = QObject::qt_metacall(call, id, arguments);
    if (id < 0 || call != QMetaObject::InvokeMetaMethod)
        return id;
    if (id < m_signals.size()) {
        const QMetaMethod& method = m_signals.at(id);
        QVariantList values;
        for (int i = 0; i < method.parameterCount(); ++i) {
            const QMetaType type = method.parameterMetaType(i);
            // Enumerations travel as their number, which is what a script can compare.
            if (type.flags().testFlag(QMetaType::IsEnumeration) && type.sizeOf() == sizeof(int))
                values.append(*static_cast<const int*>(arguments[i + 1]));
            else if (type == QMetaType::fromType<QVariant>())
                values.append(*static_cast<const QVariant*>(arguments[i + 1]));
            else
                values.append(QVariant(type, arguments[i + 1]));
        }
        if (m_handler)
            m_handler(QString::fromLatin1(method.name()), values);
    }
    return id - static_cast<int>(m_signals.size());
}
