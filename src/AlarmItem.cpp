// Placeholder bodies until the real implementation lands.
#include "AlarmItem.h"

QStandardItem* AlarmItem::create(QMap<int, QVariant>&)
{
    return {};
}
