#pragma once

#include <QMap>
#include <QVariant>

class QStandardItem;

// Builds one alarm row from a map of role number to value.
class AlarmItem
{
public:
    // Stores the twelve alarm roles in role order; a role missing from the map is stored empty
    // (empty string, false, 0 or an invalid variant). The caller owns the item.
    static QStandardItem* create(QMap<int, QVariant>& roles);
};
