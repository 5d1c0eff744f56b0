#include "AlarmModel.h"

AlarmModel::AlarmModel(QObject* parent)
    : QStandardItemModel(parent)
{
    m_roleNames = {
        {idRole, "idRole"},
        {nameRole, "nameRole"},
        {enabledRole, "enabledRole"},
        {triggerSourceRole, "triggerSourceRole"},
        {triggerTypeRole, "triggerTypeRole"},
        {actionTypeRole, "actionTypeRole"},
        {actionTargetRole, "actionTargetRole"},
        {scheduleRole, "scheduleRole"},
        {revisionRole, "revisionRole"},
        {descriptionRole, "descriptionRole"},
        {triggerXmlRole, "triggerXmlRole"},
        {actionXmlRole, "actionXmlRole"},
    };
}

AlarmModel::~AlarmModel() = default;

QHash<int, QByteArray> AlarmModel::roleNames() const
{
    return m_roleNames;
}

QMap<int, QVariant> AlarmModel::itemData(const QModelIndex& index) const
{
    QMap<int, QVariant> roles = QStandardItemModel::itemData(index);
    if (const QStandardItem* item = itemFromIndex(index)) {
        for (int role : {int(triggerXmlRole), int(actionXmlRole)}) {
            const QVariant text = item->data(role);
            if (text.isValid())
                roles.insert(role, text);
        }
    }
    return roles;
}
