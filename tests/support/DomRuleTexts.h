#pragma once

#include "AlarmMessageParser.h"

// The rule texts as Qt's DOM gives them: the reference the plug-in's own writer is held to. It parses the
// whole text with QDomDocument, so it belongs to tests, benchmarks and fuzzing only.
namespace DomRuleTexts {
// isWellFormed, when given, says whether Qt's reader read the whole text.
QList<AlarmMessageParser::RuleXmlTexts> of(const QString& alarmListXml, bool* isWellFormed = nullptr);
}
