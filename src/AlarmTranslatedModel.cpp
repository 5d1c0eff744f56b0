// Placeholder bodies until the real implementation lands.
#include "AlarmTranslatedModel.h"

AlarmTranslatedModel::AlarmTranslatedModel(QObject* parent)
    : QIdentityProxyModel(parent)
{
}

AlarmTranslatedModel::~AlarmTranslatedModel() = default;

QVariant AlarmTranslatedModel::data(const QModelIndex&, int) const
{
    return {};
}

QString AlarmTranslatedModel::translatedTriggerType(const QString&) const
{
    return {};
}

bool AlarmTranslatedModel::isIOBoxTriggerType(const QString&) const
{
    return {};
}

QString AlarmTranslatedModel::translatedTriggerTypeWithIOBox(const QVariantList&) const
{
    return {};
}

QString AlarmTranslatedModel::translatedTriggerTypeWithSourceValue(const QString&, const QVariantList&) const
{
    return {};
}

QVariantList AlarmTranslatedModel::translatedTriggerSourceType(const QVariantList&) const
{
    return {};
}

QVariantList AlarmTranslatedModel::translatedActionType(const QVariantList&) const
{
    return {};
}

QVariantList AlarmTranslatedModel::translatedActionTarget(const QVariantList&) const
{
    return {};
}
