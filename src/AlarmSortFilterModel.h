#pragma once

#include <QSortFilterProxyModel>
#include <QStringList>
#include <QVariantList>

// The alarm list as QML shows it: a free-text AND filter over the display texts and sorting by any
// role. Its source must be AlarmTranslatedModel, since it reads the display shapes, not raw values.
class AlarmSortFilterModel : public QSortFilterProxyModel
{
    Q_OBJECT
public:
    explicit AlarmSortFilterModel(QObject* parent = nullptr);
    ~AlarmSortFilterModel() override;

    Q_INVOKABLE void applyFilter(const QString& filterString);
    Q_INVOKABLE void sortByRole(int role, Qt::SortOrder order);

    bool triggerSourceListMatches(const QVariantList& list, const QString& keyword) const;
    bool actionTypeListMatches(const QVariantList& list, const QString& keyword) const;
    bool actionTargetListMatches(const QVariantList& list, const QString& keyword) const;
    bool triggerSourceLessThan(const QVariantList& a, const QVariantList& b) const;
    bool actionTypeLessThan(const QVariantList& a, const QVariantList& b) const;
    bool actionTargetLessThan(const QVariantList& a, const QVariantList& b) const;

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const override;
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

private:
    QStringList m_keywords;
};
