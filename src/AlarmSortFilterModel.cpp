#include "AlarmSortFilterModel.h"

#include <algorithm>

#include "AlarmModel.h"
#include "VariantTree.h"
#include "stdafx.h"

// A list stored under a role or inside one; a text, which QVariant would split into characters, is none.
using VariantTree::listOf;
using namespace ActionParserCommon;
using namespace AlarmMessageParserCommon;

namespace {

// Stands between the texts of one row in its search text; a keyword holding it is matched text by text.
constexpr QChar SEARCH_SEPARATOR = QChar(0x1F);

// The texts a keyword is looked for in, per display shape.
QStringList triggerSourceTexts(const QVariantList& list)
{
    QStringList texts;
    for (const QVariant& element : list) {
        const QVariantMap source = element.toMap();
        texts << source.value(TRIGGER_DEV_NAME).toString() << source.value(TRIGGER_DISPLAY_VALUE).toString();
    }
    return texts;
}

QStringList elementTexts(const QVariantList& list)
{
    QStringList texts;
    texts.reserve(list.size());
    for (const QVariant& element : list)
        texts << element.toString();
    return texts;
}

QStringList actionTargetTexts(const QVariantList& list)
{
    QStringList texts;
    for (const QVariant& element : list) {
        const QVariantList targets = listOf(element);
        for (const QVariant& targetElement : targets) {
            const QVariantMap target = targetElement.toMap();
            texts << target.value(TARGET_NAME).toString() << target.value(TARGET_ACTION).toString();
        }
    }
    return texts;
}

bool anyContains(const QStringList& texts, const QString& keyword)
{
    return std::any_of(texts.cbegin(), texts.cend(),
                       [&keyword](const QString& text) { return text.contains(keyword, Qt::CaseInsensitive); });
}

// Sort keys: the texts a row is ordered by, compared position by position.
QStringList triggerSourceKey(const QVariantList& list)
{
    // Only the first source names the rule's origin in the list; the rest do not take part.
    if (list.isEmpty())
        return {};
    return {list.constFirst().toMap().value(TRIGGER_DEV_NAME).toString()};
}

QStringList actionTargetKey(const QVariantList& list)
{
    QStringList key;
    key.reserve(list.size());
    for (const QVariant& element : list) {
        const QVariantList targets = listOf(element);
        key << (targets.isEmpty() ? QString() : targets.constFirst().toMap().value(TARGET_NAME).toString());
    }
    return key;
}

QStringList scheduleKey(const QVariant& value)
{
    const QVariantList schedule = listOf(value);
    if (schedule.isEmpty())
        return {};
    return {schedule.constFirst().toString()};
}

// The first differing text decides, by character code; a key that is a prefix of the other sorts first, so
// an empty list sorts before any other.
bool keyLess(const QStringList& a, const QStringList& b)
{
    const qsizetype common = std::min(a.size(), b.size());
    for (qsizetype i = 0; i < common; ++i) {
        const int order = a.at(i).compare(b.at(i), Qt::CaseSensitive);
        if (order != 0)
            return order < 0;
    }
    return a.size() < b.size();
}

// A rule without a schedule is never less, and against one it counts as a schedule named "", which no
// name sorts before.
bool scheduleKeyLess(const QStringList& a, const QStringList& b)
{
    if (a.isEmpty())
        return false;
    return a.constFirst() < (b.isEmpty() ? QString() : b.constFirst());
}

} // namespace

AlarmSortFilterModel::AlarmSortFilterModel(QObject* parent)
    : QSortFilterProxyModel(parent)
{
}

AlarmSortFilterModel::~AlarmSortFilterModel() = default;

void AlarmSortFilterModel::setSourceModel(QAbstractItemModel* newSourceModel)
{
    // Followed before the base class connects its own handling, so that the kept texts and keys are right by
    // the time it filters and sorts the changed rows.
    m_rows.follow(this, newSourceModel);
    QSortFilterProxyModel::setSourceModel(newSourceModel);
}

void AlarmSortFilterModel::applyFilter(const QString& filterString)
{
    // Split at every single blank, empty parts kept: an empty keyword matches every row.
    m_keywords = filterString.split(QLatin1Char(' '), Qt::KeepEmptyParts);
    m_foldedKeywords.clear();
    m_keywordsHoldSeparator = false;
    for (const QString& keyword : std::as_const(m_keywords)) {
        m_foldedKeywords << keyword.toCaseFolded();
        m_keywordsHoldSeparator = m_keywordsHoldSeparator || keyword.contains(SEARCH_SEPARATOR);
    }
    invalidateFilter();
    sort(0, sortOrder());
}

void AlarmSortFilterModel::sortByRole(int role, Qt::SortOrder order)
{
    setSortRole(role);
    sort(0, order);
}

bool AlarmSortFilterModel::triggerSourceListMatches(const QVariantList& list, const QString& keyword) const
{
    return anyContains(triggerSourceTexts(list), keyword);
}

bool AlarmSortFilterModel::actionTypeListMatches(const QVariantList& list, const QString& keyword) const
{
    return anyContains(elementTexts(list), keyword);
}

bool AlarmSortFilterModel::actionTargetListMatches(const QVariantList& list, const QString& keyword) const
{
    return anyContains(actionTargetTexts(list), keyword);
}

bool AlarmSortFilterModel::triggerSourceLessThan(const QVariantList& a, const QVariantList& b) const
{
    return keyLess(triggerSourceKey(a), triggerSourceKey(b));
}

bool AlarmSortFilterModel::actionTypeLessThan(const QVariantList& a, const QVariantList& b) const
{
    return keyLess(elementTexts(a), elementTexts(b));
}

bool AlarmSortFilterModel::actionTargetLessThan(const QVariantList& a, const QVariantList& b) const
{
    return keyLess(actionTargetKey(a), actionTargetKey(b));
}

QStringList AlarmSortFilterModel::rowTexts(const QModelIndex& row) const
{
    // In the order a keyword is tried: name, trigger sources, trigger type, action types, action targets,
    // schedule. The schedule is a list of strings, like the action types.
    return QStringList{row.data(AlarmModel::nameRole).toString()}
           + triggerSourceTexts(listOf(row.data(AlarmModel::triggerSourceRole)))
           + QStringList{row.data(AlarmModel::triggerTypeRole).toString()}
           + elementTexts(listOf(row.data(AlarmModel::actionTypeRole)))
           + actionTargetTexts(listOf(row.data(AlarmModel::actionTargetRole)))
           + elementTexts(listOf(row.data(AlarmModel::scheduleRole)));
}

QStringList AlarmSortFilterModel::sortKey(const QModelIndex& row, int role) const
{
    const QVariant value = row.data(role);
    switch (role) {
    case AlarmModel::triggerSourceRole: return triggerSourceKey(listOf(value));
    case AlarmModel::actionTypeRole: return elementTexts(listOf(value));
    case AlarmModel::actionTargetRole: return actionTargetKey(listOf(value));
    case AlarmModel::scheduleRole: return scheduleKey(value);
    default: return {value.toString()};
    }
}

bool AlarmSortFilterModel::filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const
{
    if (m_keywords.isEmpty() || !sourceModel())
        return true;
    const QModelIndex row = sourceModel()->index(sourceRow, 0, sourceParent);

    RowCache* cache = m_rows.find(row);
    if (!cache || m_keywordsHoldSeparator) {
        const QStringList texts = rowTexts(row);
        return std::all_of(m_keywords.cbegin(), m_keywords.cend(),
                           [&texts](const QString& keyword) { return anyContains(texts, keyword); });
    }
    if (cache->searchText.isEmpty())
        cache->searchText = rowTexts(row).join(SEARCH_SEPARATOR).toCaseFolded();
    // Folded on both sides, a plain search ignores case as a case-insensitive one would.
    const QString& searchText = cache->searchText;
    return std::all_of(m_foldedKeywords.cbegin(), m_foldedKeywords.cend(),
                       [&searchText](const QString& keyword) { return searchText.contains(keyword); });
}

bool AlarmSortFilterModel::lessThan(const QModelIndex& left, const QModelIndex& right) const
{
    const int role = sortRole();
    const auto keyOf = [this, role](const QModelIndex& row) {
        RowCache* cache = m_rows.find(row);
        if (!cache)
            return sortKey(row, role);
        if (cache->sortKeyRole != role) {
            cache->sortKey = sortKey(row, role);
            cache->sortKeyRole = role;
        }
        return cache->sortKey;
    };
    const QStringList leftKey = keyOf(left);
    const QStringList rightKey = keyOf(right);
    return role == AlarmModel::scheduleRole ? scheduleKeyLess(leftKey, rightKey) : keyLess(leftKey, rightKey);
}
