#include "AlarmSortFilterModel.h"

#include <algorithm>

#include "AlarmModel.h"

namespace {

const QString KEY_DEV_NAME = QStringLiteral("devName");
const QString KEY_DISPLAY_VALUE = QStringLiteral("displayValue");
const QString KEY_TARGET = QStringLiteral("target");
const QString KEY_ACTION = QStringLiteral("action");

// Lists as the display proxy gives them; a text, which QVariant would split into characters, is no list.
QVariantList listOf(const QVariant& value)
{
    const int type = value.typeId();
    return type == QMetaType::QVariantList || type == QMetaType::QStringList ? value.toList() : QVariantList();
}

bool containsKeyword(const QString& text, const QString& keyword)
{
    return text.contains(keyword, Qt::CaseInsensitive);
}

// The "target" of the first map of one action's target list.
QString firstTarget(const QVariant& actionTargets)
{
    const QVariantList targets = listOf(actionTargets);
    return targets.isEmpty() ? QString() : targets.constFirst().toMap().value(KEY_TARGET).toString();
}

// Walks both lists in step; the first differing key decides, and a list that is a prefix of the other sorts
// first. An empty list against a non-empty one is the same prefix rule.
template <typename KeyOf>
bool lexicographicallyLess(const QVariantList& a, const QVariantList& b, KeyOf keyOf)
{
    const qsizetype common = std::min(a.size(), b.size());
    for (qsizetype i = 0; i < common; ++i) {
        const QString left = keyOf(a.at(i));
        const QString right = keyOf(b.at(i));
        if (left != right)
            return left < right;
    }
    return a.size() < b.size();
}

} // namespace

AlarmSortFilterModel::AlarmSortFilterModel(QObject* parent)
    : QSortFilterProxyModel(parent)
{
}

AlarmSortFilterModel::~AlarmSortFilterModel() = default;

void AlarmSortFilterModel::applyFilter(const QString& filterString)
{
    // Split at every single blank, empty parts kept: an empty keyword matches every row.
    m_keywords = filterString.split(QLatin1Char(' '), Qt::KeepEmptyParts);
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
    return std::any_of(list.cbegin(), list.cend(), [&keyword](const QVariant& element) {
        const QVariantMap source = element.toMap();
        return containsKeyword(source.value(KEY_DEV_NAME).toString(), keyword)
               || containsKeyword(source.value(KEY_DISPLAY_VALUE).toString(), keyword);
    });
}

bool AlarmSortFilterModel::actionTypeListMatches(const QVariantList& list, const QString& keyword) const
{
    return std::any_of(list.cbegin(), list.cend(),
                       [&keyword](const QVariant& element) { return containsKeyword(element.toString(), keyword); });
}

bool AlarmSortFilterModel::actionTargetListMatches(const QVariantList& list, const QString& keyword) const
{
    return std::any_of(list.cbegin(), list.cend(), [&keyword](const QVariant& element) {
        const QVariantList targets = listOf(element);
        return std::any_of(targets.cbegin(), targets.cend(), [&keyword](const QVariant& targetElement) {
            const QVariantMap target = targetElement.toMap();
            return containsKeyword(target.value(KEY_TARGET).toString(), keyword)
                   || containsKeyword(target.value(KEY_ACTION).toString(), keyword);
        });
    });
}

bool AlarmSortFilterModel::triggerSourceLessThan(const QVariantList& a, const QVariantList& b) const
{
    if (a.isEmpty() || b.isEmpty())
        return a.size() < b.size();
    // Only the first source names the rule's origin in the list; the rest do not take part.
    return a.constFirst().toMap().value(KEY_DEV_NAME).toString() < b.constFirst().toMap().value(KEY_DEV_NAME).toString();
}

bool AlarmSortFilterModel::actionTypeLessThan(const QVariantList& a, const QVariantList& b) const
{
    return lexicographicallyLess(a, b, [](const QVariant& type) { return type.toString(); });
}

bool AlarmSortFilterModel::actionTargetLessThan(const QVariantList& a, const QVariantList& b) const
{
    return lexicographicallyLess(a, b, firstTarget);
}

bool AlarmSortFilterModel::filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const
{
    if (m_keywords.isEmpty())
        return true;
    const QAbstractItemModel* model = sourceModel();
    if (!model)
        return true;
    const QModelIndex row = model->index(sourceRow, 0, sourceParent);

    // Each field is read at most once per row, and only when some keyword got that far.
    QString name;
    QVariantList triggerSources;
    QString triggerType;
    QVariantList actionTypes;
    QVariantList actionTargets;
    QVariantList schedule;
    int fieldsRead = 0;
    const auto readUpTo = [&](int field) {
        for (; fieldsRead < field; ++fieldsRead) {
            switch (fieldsRead) {
            case 0: name = row.data(AlarmModel::nameRole).toString(); break;
            case 1: triggerSources = listOf(row.data(AlarmModel::triggerSourceRole)); break;
            case 2: triggerType = row.data(AlarmModel::triggerTypeRole).toString(); break;
            case 3: actionTypes = listOf(row.data(AlarmModel::actionTypeRole)); break;
            case 4: actionTargets = listOf(row.data(AlarmModel::actionTargetRole)); break;
            default: schedule = listOf(row.data(AlarmModel::scheduleRole)); break;
            }
        }
    };

    for (const QString& keyword : m_keywords) {
        readUpTo(1);
        if (containsKeyword(name, keyword))
            continue;
        readUpTo(2);
        if (triggerSourceListMatches(triggerSources, keyword))
            continue;
        readUpTo(3);
        if (containsKeyword(triggerType, keyword))
            continue;
        readUpTo(4);
        if (actionTypeListMatches(actionTypes, keyword))
            continue;
        readUpTo(5);
        if (actionTargetListMatches(actionTargets, keyword))
            continue;
        readUpTo(6);
        if (actionTypeListMatches(schedule, keyword)) // a list of strings, like the action types
            continue;
        return false;
    }
    return true;
}

bool AlarmSortFilterModel::lessThan(const QModelIndex& left, const QModelIndex& right) const
{
    const int role = sortRole();
    const QVariant leftValue = left.data(role);
    const QVariant rightValue = right.data(role);
    switch (role) {
    case AlarmModel::triggerSourceRole:
        return triggerSourceLessThan(listOf(leftValue), listOf(rightValue));
    case AlarmModel::actionTypeRole:
        return actionTypeLessThan(listOf(leftValue), listOf(rightValue));
    case AlarmModel::actionTargetRole:
        return actionTargetLessThan(listOf(leftValue), listOf(rightValue));
    case AlarmModel::scheduleRole: {
        const QVariantList leftSchedule = listOf(leftValue);
        if (!leftValue.isValid() || leftSchedule.isEmpty())
            return false;
        // An empty right schedule counts as a schedule named "".
        const QVariantList rightSchedule = listOf(rightValue);
        const QString rightName = rightSchedule.isEmpty() ? QString() : rightSchedule.constFirst().toString();
        return leftSchedule.constFirst().toString() < rightName;
    }
    default:
        // By character code, so upper case sorts before lower case.
        return leftValue.toString() < rightValue.toString();
    }
}
