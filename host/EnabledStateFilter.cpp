#include "EnabledStateFilter.h"

EnabledStateFilter::EnabledStateFilter(QObject* parent)
    : QSortFilterProxyModel(parent)
{
    // The plug-in's proxy sorts; this one must not reorder.
    setDynamicSortFilter(true);
    for (auto signal : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
        connect(this, signal, this, &EnabledStateFilter::countChanged);
    connect(this, &QAbstractItemModel::modelReset, this, &EnabledStateFilter::countChanged);
    connect(this, &QAbstractItemModel::layoutChanged, this, &EnabledStateFilter::countChanged);
}

void EnabledStateFilter::setState(int state)
{
    if (state == m_state)
        return;
    m_state = state;
    invalidateFilter();
    emit stateChanged();
    emit countChanged();
}

int EnabledStateFilter::sourceRow(int row) const
{
    return mapToSource(index(row, 0)).row();
}

QVariant EnabledStateFilter::value(int row, const QString& roleName) const
{
    const int role = roleNames().key(roleName.toUtf8(), -1);
    return role < 0 ? QVariant() : index(row, 0).data(role);
}

bool EnabledStateFilter::filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const
{
    if (m_state == All || !sourceModel())
        return true;
    const int role = sourceModel()->roleNames().key("enabledRole", -1);
    const bool isEnabled = sourceModel()->index(sourceRow, 0, sourceParent).data(role).toBool();
    return m_state == EnabledOnly ? isEnabled : !isEnabled;
}
