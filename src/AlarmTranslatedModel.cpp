#include "AlarmTranslatedModel.h"

#include <algorithm>

#include <QCoreApplication>
#include <QEvent>

#include "AlarmDisplayTexts.h"
#include "AlarmModel.h"
#include "VariantTree.h"

// A list stored under a role or inside one; a text, which QVariant would split into characters, is none.
using VariantTree::listOf;

namespace {

bool isDisplayRole(int role)
{
    return role >= AlarmModel::triggerSourceRole && role <= AlarmModel::actionTargetRole;
}

bool touchesDisplayRoles(const QList<int>& roles)
{
    return roles.isEmpty() || std::any_of(roles.cbegin(), roles.cend(), isDisplayRole);
}

} // namespace

AlarmTranslatedModel::AlarmTranslatedModel(QObject* parent)
    : QIdentityProxyModel(parent)
{
    // Language changes are announced to the application object only; the texts are rebuilt on them.
    QCoreApplication* application = QCoreApplication::instance();
    if (application && application->thread() == thread())
        application->installEventFilter(this);
}

AlarmTranslatedModel::~AlarmTranslatedModel() = default;

void AlarmTranslatedModel::setSourceModel(QAbstractItemModel* newSourceModel)
{
    // Followed before the base class connects its own forwarding, so the kept texts are already right when
    // the proxies above react to the forwarded signal and read the rows again.
    m_rowTexts.follow(this, newSourceModel, touchesDisplayRoles,
                      [this](const QModelIndex& topLeft, const QModelIndex& bottomRight, const QList<int>& roles) {
                          announceTriggerTypeChange(topLeft, bottomRight, roles);
                      });
    QIdentityProxyModel::setSourceModel(newSourceModel);
}

QVariant AlarmTranslatedModel::data(const QModelIndex& index, int role) const
{
    if (!isDisplayRole(role) || !index.isValid() || !sourceModel())
        return QIdentityProxyModel::data(index, role);
    const QModelIndex sourceIndex = mapToSource(index);
    // Only the alarm rows themselves are kept: the list is flat, anything else is built on each call.
    RowTexts* texts = sourceIndex.column() == 0 ? m_rowTexts.find(sourceIndex) : nullptr;
    if (!texts)
        return buildDisplayValue(sourceIndex, role);

    QVariant* kept = nullptr;
    switch (role) {
    case AlarmModel::triggerSourceRole: kept = &texts->triggerSources; break;
    case AlarmModel::triggerTypeRole: kept = &texts->triggerType; break;
    case AlarmModel::actionTypeRole: kept = &texts->actionTypes; break;
    default: kept = &texts->actionTargets; break;
    }
    if (!kept->isValid())
        *kept = buildDisplayValue(sourceIndex, role);
    return *kept;
}

QVariant AlarmTranslatedModel::buildDisplayValue(const QModelIndex& sourceIndex, int role) const
{
    switch (role) {
    case AlarmModel::triggerSourceRole:
        return AlarmDisplayTexts::translatedTriggerSourceType(listOf(sourceIndex.data(AlarmModel::triggerSourceRole)));
    case AlarmModel::triggerTypeRole:
        return AlarmDisplayTexts::triggerTypeText(sourceIndex.data(AlarmModel::triggerTypeRole).toString(),
                                                  listOf(sourceIndex.data(AlarmModel::triggerSourceRole)));
    case AlarmModel::actionTypeRole:
        return AlarmDisplayTexts::translatedActionType(listOf(sourceIndex.data(AlarmModel::actionTypeRole)));
    default:
        return AlarmDisplayTexts::translatedActionTarget(listOf(sourceIndex.data(AlarmModel::actionTargetRole)));
    }
}

QString AlarmTranslatedModel::translatedTriggerType(const QString& type) const
{
    return AlarmDisplayTexts::translatedTriggerType(type);
}

bool AlarmTranslatedModel::isIOBoxTriggerType(const QString& type) const
{
    return AlarmDisplayTexts::isIOBoxTriggerType(type);
}

QString AlarmTranslatedModel::translatedTriggerTypeWithIOBox(const QVariantList& sourceList) const
{
    return AlarmDisplayTexts::translatedTriggerTypeWithIOBox(sourceList);
}

QString AlarmTranslatedModel::translatedTriggerTypeWithSourceValue(const QString& type,
                                                                   const QVariantList& sourceList) const
{
    return AlarmDisplayTexts::translatedTriggerTypeWithSourceValue(type, sourceList);
}

QVariantList AlarmTranslatedModel::translatedTriggerSourceType(const QVariantList& sourceList) const
{
    return AlarmDisplayTexts::translatedTriggerSourceType(sourceList);
}

QVariantList AlarmTranslatedModel::translatedActionType(const QVariantList& typeList) const
{
    return AlarmDisplayTexts::translatedActionType(typeList);
}

QVariantList AlarmTranslatedModel::translatedActionTarget(const QVariantList& targetList) const
{
    return AlarmDisplayTexts::translatedActionTarget(targetList);
}

bool AlarmTranslatedModel::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::LanguageChange && watched == QCoreApplication::instance()) {
        m_rowTexts.forgetAll();
        const int rows = rowCount();
        if (rows > 0) {
            emit dataChanged(index(0, 0), index(rows - 1, columnCount() - 1),
                             {AlarmModel::triggerSourceRole, AlarmModel::triggerTypeRole, AlarmModel::actionTypeRole,
                              AlarmModel::actionTargetRole});
        }
    }
    return QIdentityProxyModel::eventFilter(watched, event);
}

void AlarmTranslatedModel::announceTriggerTypeChange(const QModelIndex& topLeft, const QModelIndex& bottomRight,
                                                     const QList<int>& roles)
{
    // The trigger type text reads the trigger list too: a change of the list alone changes it.
    if (!roles.contains(AlarmModel::triggerSourceRole) || roles.contains(AlarmModel::triggerTypeRole))
        return;
    const QModelIndex first = mapFromSource(topLeft);
    const QModelIndex last = mapFromSource(bottomRight);
    if (first.isValid() && last.isValid())
        emit dataChanged(first, last, {AlarmModel::triggerTypeRole});
}
