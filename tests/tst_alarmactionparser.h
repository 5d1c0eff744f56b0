#pragma once

// Shared by the action codec tests: the codec input as the alarm document decoder hands it, a manager
// whose peers know a few devices and roles, and a typed rendering of action models so that a failed
// comparison shows the differing target.

#include <QMetaType>
#include <QStringList>
#include <QVariant>
#include <QVariantList>
#include <QVariantMap>

#include "FakeFramework.h"
#include "PluginAlarmManager.h"
#include "TestData.h"
#include "TestJson.h"
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

using TestJson::lines;

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
