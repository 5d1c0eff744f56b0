#pragma once

#include <QIdentityProxyModel>
#include <QList>
#include <QVariant>
#include <QVariantList>

#include "SourceRowCache.h"

// Adds the display texts QML shows for the trigger and action roles (written in AlarmDisplayTexts); every
// other role passes through. Raw server values stay in AlarmModel so that editing round-trips exactly.
// The texts are built once per row and kept until the row, the rows around it or the UI language change,
// because the filter proxy above reads them for every row on every keystroke and every comparison.
class AlarmTranslatedModel : public QIdentityProxyModel
{
    Q_OBJECT
public:
    explicit AlarmTranslatedModel(QObject* parent = nullptr);
    ~AlarmTranslatedModel() override;

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    void setSourceModel(QAbstractItemModel* sourceModel) override;

    QString translatedTriggerType(const QString& type) const;
    bool isIOBoxTriggerType(const QString& type) const;
    QString translatedTriggerTypeWithIOBox(const QVariantList& sourceList) const;
    QString translatedTriggerTypeWithSourceValue(const QString& type, const QVariantList& sourceList) const;
    QVariantList translatedTriggerSourceType(const QVariantList& sourceList) const;
    QVariantList translatedActionType(const QVariantList& typeList) const;
    QVariantList translatedActionTarget(const QVariantList& targetList) const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // Display values of the four translated roles of one top-level row; an invalid variant is not built yet
    // (every built value is a valid string or list).
    struct RowTexts
    {
        QVariant triggerSources;
        QVariant triggerType;
        QVariant actionTypes;
        QVariant actionTargets;
    };

    QVariant buildDisplayValue(const QModelIndex& sourceIndex, int role) const;

    void announceTriggerTypeChange(const QModelIndex& topLeft, const QModelIndex& bottomRight, const QList<int>& roles);

    mutable SourceRowCache<RowTexts> m_rowTexts;
};
