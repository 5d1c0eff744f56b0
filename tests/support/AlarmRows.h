#pragma once

#include <QStandardItem>
#include <QVariant>
#include <QVariantList>
#include <QVariantMap>

// Alarm rows with raw role values as the codecs decode them, for the model and proxy tests that need a
// list without going through the codec.
namespace AlarmRows {

QVariantMap trigger(const QString& device, const QString& type, const QVariant& index = {}, const QVariant& value = {});

// A shown action target: what the display proxy leaves of one target.
QVariantMap shown(const QString& target, const QString& action);

QStandardItem* alarmRow(const QString& name, const QVariant& sources, const QVariant& type, const QVariant& actionTypes,
                        const QVariant& actionTargets,
                        const QVariant& schedule = QVariantList{"Always", "success", "{}"});

// The value of one role in every row, in order.
QVariantList column(const QAbstractItemModel& model, int role);

} // namespace AlarmRows
