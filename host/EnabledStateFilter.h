#pragma once

#include <QSortFilterProxyModel>

// The page's "show enabled / disabled / all" switch, stacked on the plug-in's filter proxy. Rows keep
// the plug-in's order and roles; sourceRow() maps back to the rows the plug-in's requests take.
class EnabledStateFilter : public QSortFilterProxyModel
{
    Q_OBJECT
    Q_PROPERTY(int state READ state WRITE setState NOTIFY stateChanged)
    Q_PROPERTY(int count READ count NOTIFY countChanged)
public:
    enum State { All = 0, EnabledOnly = 1, DisabledOnly = 2 };
    Q_ENUM(State)

    explicit EnabledStateFilter(QObject* parent = nullptr);

    int state() const { return m_state; }
    void setState(int state);
    int count() const { return rowCount(); }

    Q_INVOKABLE int sourceRow(int row) const;
    Q_INVOKABLE QVariant value(int row, const QString& roleName) const;

signals:
    void stateChanged();
    void countChanged();

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const override;

private:
    int m_state = All;
};
