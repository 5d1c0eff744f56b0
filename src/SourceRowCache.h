#pragma once

#include <QAbstractItemModel>
#include <QList>
#include <QMetaObject>

#include <algorithm>
#include <functional>
#include <vector>

// What a proxy keeps per top-level row of its source (texts, sort keys), following the source's row changes:
// inserted rows get an empty entry, removed ones take theirs along, changed rows are forgotten, and moves,
// layout changes and resets forget everything. Entries are filled on demand; rows of deeper levels are never
// kept (the alarm list is flat). Values of Row are default-constructed as "not built yet".
template <typename Row>
class SourceRowCache
{
public:
    // Whether a change of these roles touches what is kept; an empty list means any role.
    using ChangeFilter = bool (*)(const QList<int>& roles);
    // Run after a change was forgotten, with the source's dataChanged arguments.
    using ChangeFollowUp = std::function<void(const QModelIndex&, const QModelIndex&, const QList<int>&)>;

    SourceRowCache() = default;
    SourceRowCache(const SourceRowCache&) = delete;
    SourceRowCache& operator=(const SourceRowCache&) = delete;
    ~SourceRowCache() { stopFollowing(); }

    // To be called before the proxy's base class connects to the new source, so that the kept rows are right
    // by the time its own handling (and whatever sits above it) reads the changed rows again.
    void follow(QObject* proxy, QAbstractItemModel* source, ChangeFilter changeMatters = nullptr,
                ChangeFollowUp afterChange = {})
    {
        stopFollowing();
        m_source = source;
        if (!source)
            return;
        m_connections = {
            QObject::connect(source, &QAbstractItemModel::dataChanged, proxy,
                             [this, changeMatters, afterChange](const QModelIndex& topLeft,
                                                                const QModelIndex& bottomRight, const QList<int>& roles) {
                                 if (changeMatters && !changeMatters(roles))
                                     return;
                                 forgetChangedRows(topLeft, bottomRight);
                                 if (afterChange)
                                     afterChange(topLeft, bottomRight, roles);
                             }),
            QObject::connect(source, &QAbstractItemModel::rowsInserted, proxy,
                             [this](const QModelIndex& parent, int first, int last) { makeRoomForRows(parent, first, last); }),
            QObject::connect(source, &QAbstractItemModel::rowsRemoved, proxy,
                             [this](const QModelIndex& parent, int first, int last) { dropRows(parent, first, last); }),
            QObject::connect(source, &QAbstractItemModel::rowsMoved, proxy, [this] { forgetAll(); }),
            QObject::connect(source, &QAbstractItemModel::layoutChanged, proxy, [this] { forgetAll(); }),
            QObject::connect(source, &QAbstractItemModel::modelAboutToBeReset, proxy, [this] { forgetAll(); }),
            QObject::connect(source, &QAbstractItemModel::modelReset, proxy, [this] { forgetAll(); }),
        };
    }

    // The entry of a top-level source row; null for an invalid index, a row of a deeper level or a row the
    // source does not have.
    Row* find(const QModelIndex& sourceIndex)
    {
        if (!sourceIndex.isValid() || sourceIndex.parent().isValid() || !m_source)
            return nullptr;
        const size_t row = static_cast<size_t>(sourceIndex.row());
        if (row >= m_rows.size())
            m_rows.resize(static_cast<size_t>(m_source->rowCount()));
        return row < m_rows.size() ? &m_rows[row] : nullptr;
    }

    void forgetAll() { m_rows.clear(); }

private:
    void stopFollowing()
    {
        for (const QMetaObject::Connection& connection : std::as_const(m_connections))
            QObject::disconnect(connection);
        m_connections.clear();
        m_rows.clear();
        m_source = nullptr;
    }

    void forgetChangedRows(const QModelIndex& topLeft, const QModelIndex& bottomRight)
    {
        if (!topLeft.isValid() || !bottomRight.isValid() || topLeft.parent().isValid())
            return;
        const size_t end = std::min(m_rows.size(), static_cast<size_t>(bottomRight.row()) + 1);
        for (size_t row = static_cast<size_t>(topLeft.row()); row < end; ++row)
            m_rows[row] = Row();
    }

    void makeRoomForRows(const QModelIndex& parent, int first, int last)
    {
        // A row beyond what was ever read is filled on demand.
        if (parent.isValid() || first < 0 || last < first || static_cast<size_t>(first) > m_rows.size())
            return;
        m_rows.insert(m_rows.begin() + first, static_cast<size_t>(last - first + 1), Row());
    }

    void dropRows(const QModelIndex& parent, int first, int last)
    {
        if (parent.isValid() || first < 0 || last < first)
            return;
        const size_t begin = std::min(m_rows.size(), static_cast<size_t>(first));
        const size_t end = std::min(m_rows.size(), static_cast<size_t>(last) + 1);
        m_rows.erase(m_rows.begin() + static_cast<std::ptrdiff_t>(begin),
                     m_rows.begin() + static_cast<std::ptrdiff_t>(end));
    }

    std::vector<Row> m_rows;
    QAbstractItemModel* m_source = nullptr;
    QList<QMetaObject::Connection> m_connections;
};
