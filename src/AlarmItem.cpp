#include "AlarmItem.h"

#include "AlarmModel.h"

#include <QStandardItem>

#include <new>

QStandardItem* AlarmItem::create(QMap<int, QVariant>& roles)
{
    // A failed allocation yields null rather than throwing: the caller traces it and goes on with the
    // next rule.
    auto* item = new (std::nothrow) QStandardItem;
    if (!item)
        return nullptr;
    item->setData(roles[AlarmModel::idRole].toString(), AlarmModel::idRole);
    item->setData(roles[AlarmModel::nameRole].toString(), AlarmModel::nameRole);
    item->setData(roles[AlarmModel::enabledRole].toBool(), AlarmModel::enabledRole);
    item->setData(roles[AlarmModel::triggerSourceRole], AlarmModel::triggerSourceRole);
    item->setData(roles[AlarmModel::triggerTypeRole], AlarmModel::triggerTypeRole);
    item->setData(roles[AlarmModel::actionTypeRole], AlarmModel::actionTypeRole);
    item->setData(roles[AlarmModel::actionTargetRole], AlarmModel::actionTargetRole);
    item->setData(roles[AlarmModel::scheduleRole], AlarmModel::scheduleRole);
    item->setData(roles[AlarmModel::revisionRole].toLongLong(), AlarmModel::revisionRole);
    item->setData(roles[AlarmModel::descriptionRole].toString(), AlarmModel::descriptionRole);
    item->setData(roles[AlarmModel::triggerXmlRole].toString(), AlarmModel::triggerXmlRole);
    item->setData(roles[AlarmModel::actionXmlRole].toString(), AlarmModel::actionXmlRole);
    return item;
}
