#pragma once

#include <QIdentityProxyModel>
#include <QVariantList>

// Adds the display texts QML shows for the trigger and action roles; every other role passes through.
// Raw server values stay in AlarmModel so that editing round-trips exactly.
class AlarmTranslatedModel : public QIdentityProxyModel
{
    Q_OBJECT
public:
    explicit AlarmTranslatedModel(QObject* parent = nullptr);
    ~AlarmTranslatedModel() override;

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    QString translatedTriggerType(const QString& type) const;
    bool isIOBoxTriggerType(const QString& type) const;
    QString translatedTriggerTypeWithIOBox(const QVariantList& sourceList) const;
    QString translatedTriggerTypeWithSourceValue(const QString& type, const QVariantList& sourceList) const;
    QVariantList translatedTriggerSourceType(const QVariantList& sourceList) const;
    QVariantList translatedActionType(const QVariantList& typeList) const;
    QVariantList translatedActionTarget(const QVariantList& targetList) const;
};
