#include "DomRuleTexts.h"

#include <QDomDocument>

QList<AlarmMessageParser::RuleXmlTexts> DomRuleTexts::of(const QString& alarmListXml, bool* isWellFormed)
{
    QDomDocument document;
    const bool isRead = bool(document.setContent(alarmListXml));
    if (isWellFormed)
        *isWellFormed = isRead;
    const QDomNodeList rules = document.elementsByTagName(QStringLiteral("Tmcard"));
    QList<AlarmMessageParser::RuleXmlTexts> texts;
    texts.reserve(rules.size());
    for (int i = 0; i < rules.size(); ++i) {
        const QDomNode rule = rules.at(i);
        texts.append({AlarmMessageParser::GetDomNodeXmlString(rule.firstChildElement(QStringLiteral("TriggerList"))),
                      AlarmMessageParser::GetDomNodeXmlString(rule.firstChildElement(QStringLiteral("ActionList")))});
    }
    return texts;
}
