// Placeholder bodies until the real implementation lands.
#include "AlarmSortFilterModel.h"

AlarmSortFilterModel::AlarmSortFilterModel(QObject* parent)
    : QSortFilterProxyModel(parent)
{
}

AlarmSortFilterModel::~AlarmSortFilterModel() = default;

void AlarmSortFilterModel::applyFilter(const QString&) {}

void AlarmSortFilterModel::sortByRole(int, Qt::SortOrder) {}

bool AlarmSortFilterModel::triggerSourceListMatches(const QVariantList&, const QString&) const
{
    return {};
}

bool AlarmSortFilterModel::actionTypeListMatches(const QVariantList&, const QString&) const
{
    return {};
}

bool AlarmSortFilterModel::actionTargetListMatches(const QVariantList&, const QString&) const
{
    return {};
}

bool AlarmSortFilterModel::triggerSourceLessThan(const QVariantList&, const QVariantList&) const
{
    return {};
}

bool AlarmSortFilterModel::actionTypeLessThan(const QVariantList&, const QVariantList&) const
{
    return {};
}

bool AlarmSortFilterModel::actionTargetLessThan(const QVariantList&, const QVariantList&) const
{
    return {};
}

bool AlarmSortFilterModel::filterAcceptsRow(int, const QModelIndex&) const
{
    return {};
}

bool AlarmSortFilterModel::lessThan(const QModelIndex&, const QModelIndex&) const
{
    return {};
}
