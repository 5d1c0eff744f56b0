#pragma once

// Shared by the action codec tests: the codec input as the alarm document decoder hands it, a manager
// whose peers know a few devices and roles, and a typed rendering of action models so that a failed
// comparison shows the differing target, with "0" and 0 told apart.

#include <QMetaType>
#include <QStringList>
#include <QVariant>
#include <QVariantList>
#include <QVariantMap>

#include "FakeFramework.h"
#include "PluginAlarmManager.h"
#include "TestData.h"
#include "XML2Json.h"

namespace ActionTest {

// The variant of one <Action> element, as the decoder takes it out of a parsed "ActionList".
inline QVariant actionOf(const QString& xml)
{
    return XML2Json::parse(xml).toMap().value(QStringLiteral("Action"));
}

inline QVariant actionFromFile(const QString& fileName)
{
    return actionOf(TestData::text(fileName));
}

inline QVariantMap model(const QString& actionType, const QVariantList& targets)
{
    return {{QStringLiteral("actionType"), actionType}, {QStringLiteral("actionTarget"), targets}};
}

inline QString describe(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::QVariantMap: {
        QStringList entries;
        const QVariantMap map = value.toMap();
        for (auto it = map.cbegin(); it != map.cend(); ++it)
            entries.append(it.key() + QStringLiteral(": ") + describe(it.value()));
        return QStringLiteral("{") + entries.join(QStringLiteral(", ")) + QStringLiteral("}");
    }
    case QMetaType::QVariantList: {
        QStringList items;
        const QVariantList list = value.toList();
        for (const QVariant& item : list)
            items.append(describe(item));
        return QStringLiteral("[") + items.join(QStringLiteral(", ")) + QStringLiteral("]");
    }
    case QMetaType::QString:
        return QLatin1Char('"') + value.toString() + QLatin1Char('"');
    case QMetaType::Bool:
        return value.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    case QMetaType::Int:
        return QStringLiteral("int ") + value.toString();
    default:
        return value.isValid() ? QString::fromLatin1(value.typeName()) + QLatin1Char(' ') + value.toString()
                               : QStringLiteral("invalid");
    }
}

// One line per map entry, and one per element of a list entry ("actionTarget[1]: {...}"), so QCOMPARE
// names the first differing target.
inline QStringList describeLines(const QVariantMap& map)
{
    QStringList lines;
    for (auto it = map.cbegin(); it != map.cend(); ++it) {
        if (it.value().typeId() != QMetaType::QVariantList) {
            lines.append(it.key() + QStringLiteral(": ") + describe(it.value()));
            continue;
        }
        const QVariantList items = it.value().toList();
        if (items.isEmpty())
            lines.append(it.key() + QStringLiteral(": []"));
        for (int index = 0; index < items.size(); ++index)
            lines.append(QStringLiteral("%1[%2]: %3").arg(it.key()).arg(index).arg(describe(items.at(index))));
    }
    return lines;
}

// A manager whose device-tree and user-role peers know two cameras, one I/O box with two named outputs
// and two user roles.
struct ManagerWithPeers
{
    FakeFramework framework;
    PluginAlarmManager plugin;
    int handle = 0;

    ManagerWithPeers()
    {
        framework.deviceTree.deviceTree[QStringLiteral("cam1")][QStringLiteral("nameRole")] = QStringLiteral("Lobby");
        framework.deviceTree.deviceTree[QStringLiteral("cam2")][QStringLiteral("nameRole")] = QStringLiteral("Car park");
        framework.deviceTree.deviceTree[QStringLiteral("io7")][QStringLiteral("nameRole")] = QStringLiteral("Door box");
        framework.deviceTree.deviceTree[QStringLiteral("io7")][QStringLiteral("doNameListRole")] =
            QStringList{QStringLiteral("Siren"), QStringLiteral("Gate")};
        framework.userRoles.roleNames[3] = QStringLiteral("Operators");
        framework.userRoles.roleNames[5] = QStringLiteral("Guards");
        plugin.InitialPluginBase(nullptr, &handle, &framework);
    }
};

} // namespace ActionTest
