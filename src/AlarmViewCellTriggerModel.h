#pragma once

#include <QHash>
#include <QStandardItemModel>

// The virtual triggers one camera's view cell offers as buttons, newest first. The plug-in keeps one per
// camera and hands QML a sorting proxy over it.
class AlarmViewCellTriggerModel : public QStandardItemModel
{
    Q_OBJECT
public:
    enum ViewCellRoles {
        idRole = Qt::UserRole + 1,
        nameRole,
        iconTypeRole,
    };
    Q_ENUM(ViewCellRoles)

    explicit AlarmViewCellTriggerModel(QObject* parent = nullptr);
    ~AlarmViewCellTriggerModel() override;

    QHash<int, QByteArray> roleNames() const override;

    // Adds one trigger as the first row; no check of the values is made.
    void insert(const QString& id, const QString& name, int iconType);

private:
    QHash<int, QByteArray> m_roleNames;
};
