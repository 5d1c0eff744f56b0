#pragma once

#include <QByteArray>
#include <QLatin1StringView>
#include <QMap>
#include <QStandardItem>
#include <QVariant>

// One alarm row. The rule's two XML texts are its largest values and are read rarely (when a rule is
// edited or its triggers are looked up), so they are kept as UTF-8, half the size of a QString, and
// handed out as QString like every other role.
class AlarmItem : public QStandardItem
{
public:
    // Stores the twelve alarm roles in role order; a role missing from the map is stored empty
    // (empty string, false, 0 or an invalid variant). An XML text may come as UTF-8 bytes, which are
    // kept as they are. The caller owns the item.
    static QStandardItem* create(QMap<int, QVariant>& roles);

    QVariant data(int role = Qt::UserRole + 1) const override;
    // Whether the row's XML text under role holds text, read without making a QString of it.
    static bool xmlTextContains(const QStandardItem* item, int role, QLatin1StringView text);
    void setData(const QVariant& value, int role = Qt::UserRole + 1) override;

private:
    // Index 0 the trigger list, 1 the action list; a null array when the role holds no text.
    QByteArray m_xmlTexts[2];
};
