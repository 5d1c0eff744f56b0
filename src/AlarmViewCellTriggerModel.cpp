#include "AlarmViewCellTriggerModel.h"

AlarmViewCellTriggerModel::AlarmViewCellTriggerModel(QObject* parent)
    : QStandardItemModel(parent)
{
    m_roleNames = {
        {idRole, "idRole"},
        {nameRole, "nameRole"},
        {iconTypeRole, "iconTypeRole"},
    };
}

AlarmViewCellTriggerModel::~AlarmViewCellTriggerModel() = default;

QHash<int, QByteArray> AlarmViewCellTriggerModel::roleNames() const
{
    return m_roleNames;
}

void AlarmViewCellTriggerModel::insert(const QString& id, const QString& name, int iconType)
{
    auto* item = new QStandardItem;
    item->setData(id, idRole);
    item->setData(name, nameRole);
    item->setData(iconType, iconTypeRole);
    insertRow(0, item);
}
