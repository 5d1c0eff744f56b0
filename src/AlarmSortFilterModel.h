#pragma once

#include <QSortFilterProxyModel>
#include <QStringList>
#include <QVariantList>

#include "SourceRowCache.h"

// The alarm list as QML shows it: a free-text AND filter over the display texts and sorting by any
// role. Its source must be AlarmTranslatedModel, since it reads the display shapes, not raw values.
// Per row it keeps the texts it searches and the key it sorts by, so that a keystroke or a click on a
// column header costs one string search or one key comparison per row; both follow every change of the rows.
class AlarmSortFilterModel : public QSortFilterProxyModel
{
    Q_OBJECT
public:
    explicit AlarmSortFilterModel(QObject* parent = nullptr);
    ~AlarmSortFilterModel() override;

    Q_INVOKABLE void applyFilter(const QString& filterString);
    Q_INVOKABLE void sortByRole(int role, Qt::SortOrder order);

    void setSourceModel(QAbstractItemModel* sourceModel) override;

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
    struct RowCache
    {
        QString searchText; // every searched text, case-folded, one separator between them; empty: not built
        QStringList sortKey;
        int sortKeyRole = -1; // the role sortKey was built for; -1: not built
    };

    QStringList rowTexts(const QModelIndex& row) const;
    QStringList sortKey(const QModelIndex& row, int role) const;

    QStringList m_keywords;
    QStringList m_foldedKeywords;
    bool m_keywordsHoldSeparator = false;
    mutable SourceRowCache<RowCache> m_rows;
};
