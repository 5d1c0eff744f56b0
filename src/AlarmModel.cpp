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
