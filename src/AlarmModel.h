#pragma once

#include <QHash>
#include <QStandardItemModel>

// One row per alarm rule of the server, every field of the rule under its own role. The values are the
// raw ones decoded from the server's XML; display texts are added by AlarmTranslatedModel on top.
class AlarmModel : public QStandardItemModel
{
    Q_OBJECT
public:
    // Consecutive from Qt::UserRole + 1; the proxies address the roles by these numbers.
    enum AlarmRoles {
        idRole = Qt::UserRole + 1,
        nameRole,
        enabledRole,
        triggerSourceRole,
        triggerTypeRole,
        actionTypeRole,
        actionTargetRole,
        scheduleRole,
        revisionRole,
        descriptionRole,
        triggerXmlRole,
        actionXmlRole,
    };
    Q_ENUM(AlarmRoles)

    explicit AlarmModel(QObject* parent = nullptr);
    ~AlarmModel() override;

    QHash<int, QByteArray> roleNames() const override;
    // Includes the roles AlarmItem keeps apart from QStandardItem's own values.
    QMap<int, QVariant> itemData(const QModelIndex& index) const override;

private:
    QHash<int, QByteArray> m_roleNames;
};
