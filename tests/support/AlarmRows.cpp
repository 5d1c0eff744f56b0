#include "AlarmRows.h"

#include "AlarmModel.h"

namespace AlarmRows {

QVariantMap trigger(const QString& device, const QString& type, const QVariant& index, const QVariant& value)
{
    QVariantMap map{{"devRealName", device.toLower()}, {"devName", device}, {"trigger", type}, {"latency", 0}};
    if (index.isValid())
        map.insert("index", index);
    if (value.isValid())
        map.insert("value", value);
    return map;
}

QVariantMap shown(const QString& target, const QString& action)
{
    return {{"target", target}, {"action", action}};
}

QStandardItem* alarmRow(const QString& name, const QVariant& sources, const QVariant& type, const QVariant& actionTypes,
                        const QVariant& actionTargets, const QVariant& schedule)
{
    auto* item = new QStandardItem;
    item->setData(name.toLower(), AlarmModel::idRole);
    item->setData(name, AlarmModel::nameRole);
    item->setData(true, AlarmModel::enabledRole);
    item->setData(sources, AlarmModel::triggerSourceRole);
    item->setData(type, AlarmModel::triggerTypeRole);
    item->setData(actionTypes, AlarmModel::actionTypeRole);
    item->setData(actionTargets, AlarmModel::actionTargetRole);
    item->setData(schedule, AlarmModel::scheduleRole);
    item->setData(qint64(7), AlarmModel::revisionRole);
    item->setData("at the gate", AlarmModel::descriptionRole);
    item->setData("<TriggerList/>", AlarmModel::triggerXmlRole);
    item->setData("<ActionList/>", AlarmModel::actionXmlRole);
    return item;
}

QVariantList column(const QAbstractItemModel& model, int role)
{
    QVariantList values;
    for (int row = 0; row < model.rowCount(); ++row)
        values.append(model.index(row, 0).data(role));
    return values;
}

} // namespace AlarmRows
