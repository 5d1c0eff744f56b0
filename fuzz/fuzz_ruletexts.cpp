#include "AlarmMessageParser.h"
#include "AlarmModel.h"
#include "DomRuleTexts.h"
#include "XML2Json.h"
#include "stdafx.h"

#include <QCoreApplication>
#include <QStandardItem>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <algorithm>

namespace {

QByteArray escaped(const QString& text)
{
    QByteArray out;
    for (const QChar c : text)
        out += c.unicode() < 0x20 || c.unicode() > 0x7E ? QByteArray("\\u") + QByteArray::number(c.unicode(), 16) : QByteArray(1, char(c.unicode()));
    return out;
}

// Prints where the texts first part, escaped, so that a difference in blanks shows.
[[noreturn]] void fail(const char* what, const QString& ours, const QString& dom)
{
    qsizetype at = 0;
    while (at < ours.size() && at < dom.size() && ours.at(at) == dom.at(at))
        ++at;
    const qsizetype from = std::max<qsizetype>(0, at - 60);
    std::fprintf(stderr, "%s, from character %lld\n--- ours:\n%s\n--- DOM:\n%s\n", what, static_cast<long long>(at),
                 escaped(ours.mid(from, 120)).constData(), escaped(dom.mid(from, 120)).constData());
    std::abort();
}

} // namespace

// The rows the answer handler builds rule by rule from the text must be the rows of the tree and the text.
void compareRows(const QString& text)
{
    AlarmMessageParser parser(nullptr);
    const QList<QStandardItem*> fromText = parser.createAlarmItemListFromXml(text);
    const QList<QStandardItem*> fromTree = parser.createAlarmItemList(
        QVariantMap{{PluginAlarmManagerCommon::ARG_ALARM_LIST, XML2Json::parse(text)},
                    {PluginAlarmManagerCommon::ARG_ALARM_XML_MSG, text}});
    if (fromText.size() != fromTree.size())
        fail("row count differs", QString::number(fromText.size()), QString::number(fromTree.size()));
    for (qsizetype i = 0; i < fromText.size(); ++i) {
        for (int role = AlarmModel::idRole; role <= AlarmModel::actionXmlRole; ++role) {
            if (fromText.at(i)->data(role) != fromTree.at(i)->data(role))
                fail("rows differ", fromText.at(i)->data(role).toString(), fromTree.at(i)->data(role).toString());
        }
    }
    qDeleteAll(fromText);
    qDeleteAll(fromTree);
}

// Differential: any text the converter reads must be one Qt's DOM reads whole, and every rule's two texts
// must be byte for byte what the DOM saves. Text the converter refuses lists no rules and gets no texts;
// it never reaches the DOM, whose reader in this Qt has known faults on hostile DTDs.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data), qsizetype(size));
    compareRows(text);
    const QList<AlarmMessageParser::RuleXmlTexts> ours = AlarmMessageParser::RuleXmlTextsOf(text);
    if (!XML2Json::parse(text).isValid()) {
        if (!ours.isEmpty())
            fail("texts for a refused document", ours.first().triggerXml, QString());
        return 0;
    }
    bool isWellFormed = false;
    const QList<AlarmMessageParser::RuleXmlTexts> dom = DomRuleTexts::of(text, &isWellFormed);
    if (!isWellFormed)
        fail("read a document Qt's reader refuses", text, QString());
    if (ours.size() != dom.size())
        fail("rule count differs", QString::number(ours.size()), QString::number(dom.size()));
    for (qsizetype i = 0; i < ours.size(); ++i) {
        if (ours.at(i).triggerXml != dom.at(i).triggerXml)
            fail("trigger list text differs", ours.at(i).triggerXml, dom.at(i).triggerXml);
        if (ours.at(i).actionXml != dom.at(i).actionXml)
            fail("action list text differs", ours.at(i).actionXml, dom.at(i).actionXml);
    }
    return 0;
}
