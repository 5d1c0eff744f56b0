#pragma once

#include <QString>
#include <QVariant>
#include <QVariantList>

// The texts the alarm list shows for a rule's triggers and actions, looked up in the current UI language
// under the QObject context. Unknown server values are shown as they are, never guessed at.
namespace AlarmDisplayTexts {

// The text of a row's trigger type: a state word where the type has one, the I/O device kind, or the name.
QString triggerTypeText(const QString& type, const QVariantList& sourceList);
// The name of a trigger type; an unknown type is shown as it is called.
QString translatedTriggerType(const QString& type);
bool isIOBoxTriggerType(const QString& type);
// "DI/DO Device DI" or "DO", by the kind of the list's I/O device trigger.
QString translatedTriggerTypeWithIOBox(const QVariantList& sourceList);
// The text of a state-reporting trigger type for the value of its trigger in the list; empty where the type
// reports no state or the value is not one of its words.
QString translatedTriggerTypeWithSourceValue(const QString& type, const QVariantList& sourceList);
// One {"devName", "displayValue"} map per trigger map.
QVariantList translatedTriggerSourceType(const QVariantList& sourceList);
// One text per action type string or action model.
QVariantList translatedActionType(const QVariantList& typeList);
// One list of {"target", "action"} maps per action model or action target list.
QVariantList translatedActionTarget(const QVariantList& targetList);

} // namespace AlarmDisplayTexts
