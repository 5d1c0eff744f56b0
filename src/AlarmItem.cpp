#include "AlarmItem.h"

#include "AlarmModel.h"

#include <new>

namespace {

// Where an XML role keeps its text, or -1 for any other role.
int xmlTextIndex(int role)
{
    return role == AlarmModel::triggerXmlRole ? 0 : role == AlarmModel::actionXmlRole ? 1 : -1;
}

QByteArray utf8Of(const QVariant& text)
{
    if (text.typeId() == QMetaType::QByteArray) {
        const QByteArray bytes = text.toByteArray();
        return bytes.isNull() ? QByteArray("") : bytes;
    }
    const QString string = text.toString();
    // Not null, so that a row always answers the XML roles with a string, as when it was set.
    return string.isEmpty() ? QByteArray("") : string.toUtf8();
}

} // namespace

QStandardItem* AlarmItem::create(QMap<int, QVariant>& roles)
{
    // A failed allocation yields null rather than throwing: the caller traces it and goes on with the
    // next rule.
    auto* item = new (std::nothrow) AlarmItem;
    if (!item)
        return nullptr;
    item->setData(roles[AlarmModel::idRole].toString(), AlarmModel::idRole);
    item->setData(roles[AlarmModel::nameRole].toString(), AlarmModel::nameRole);
    item->setData(roles[AlarmModel::enabledRole].toBool(), AlarmModel::enabledRole);
    item->setData(roles[AlarmModel::triggerSourceRole], AlarmModel::triggerSourceRole);
    item->setData(roles[AlarmModel::triggerTypeRole], AlarmModel::triggerTypeRole);
    item->setData(roles[AlarmModel::actionTypeRole], AlarmModel::actionTypeRole);
    item->setData(roles[AlarmModel::actionTargetRole], AlarmModel::actionTargetRole);
    item->setData(roles[AlarmModel::scheduleRole], AlarmModel::scheduleRole);
    item->setData(roles[AlarmModel::revisionRole].toLongLong(), AlarmModel::revisionRole);
    item->setData(roles[AlarmModel::descriptionRole].toString(), AlarmModel::descriptionRole);
    // Not yet in a model, so nobody is told; stored directly.
    item->m_xmlTexts[0] = utf8Of(roles[AlarmModel::triggerXmlRole]);
    item->m_xmlTexts[1] = utf8Of(roles[AlarmModel::actionXmlRole]);
    return item;
}

QVariant AlarmItem::data(int role) const
{
    const int index = xmlTextIndex(role);
    if (index >= 0 && !m_xmlTexts[index].isNull())
        return QString::fromUtf8(m_xmlTexts[index]);
    return QStandardItem::data(role);
}

bool AlarmItem::xmlTextContains(const QStandardItem* item, int role, QLatin1StringView text)
{
    const auto* alarm = dynamic_cast<const AlarmItem*>(item);
    const int index = xmlTextIndex(role);
    if (alarm && index >= 0 && !alarm->m_xmlTexts[index].isNull())
        return alarm->m_xmlTexts[index].contains(QByteArrayView(text.data(), text.size()));
    return item && item->data(role).toString().contains(text);
}

void AlarmItem::setData(const QVariant& value, int role)
{
    const int index = xmlTextIndex(role);
    if (index >= 0 && !m_xmlTexts[index].isNull()) {
        if (value == data(role))
            return; // as QStandardItem does for an unchanged value
        // A text set after creation (an edit) is kept as given, so the model is told about this role alone.
        m_xmlTexts[index] = QByteArray();
    }
    QStandardItem::setData(value, role);
}
