#include "database/StoredHistory.h"

#include "database/ChangeQueue.h"

namespace ko {

StoredHistory::StoredHistory(NodeStore& store, NodeMemory& memory, ChangeQueue& queue)
    : m_store(store)
    , m_memory(memory)
    , m_queue(queue)
{
    connect(&queue, &ChangeQueue::stored, this, &StoredHistory::stored);
}

QVector<ChangeSet> StoredHistory::changeSets(qint64 after, int count)
{
    m_queue.flush();
    return m_queue.reading([&] { return m_store.changeSets(after, count); });
}

qint64 StoredHistory::newest()
{
    m_queue.flush();
    return m_queue.reading([this] { return m_store.newestChangeSet(); });
}

std::optional<ChangeSet> StoredHistory::changeSet(qint64 number)
{
    const QVector<ChangeSet> sets = changeSets(number - 1, 1);
    return sets.isEmpty() || sets.first().number != number ? std::nullopt : std::make_optional(sets.first());
}

std::optional<ChangeSetRow> StoredHistory::row(qint64 number)
{
    return m_queue.reading([&] { return m_store.changeSetRow(number); });
}

HistoryPage StoredHistory::page(const HistoryFilter& filter, qint64 before, int count)
{
    HistoryPage unread;
    unread.isAtEnd = true;
    return m_queue.reading([&] { return std::make_optional(m_store.history(filter, before, count)); })
        .value_or(unread);
}

LastChangesPart StoredHistory::lastChanges(qint64 after, int count)
{
    LastChangesPart unread;
    unread.isAtEnd = true;
    return m_queue.reading([&] { return std::make_optional(m_store.lastChanges(after, count)); })
        .value_or(unread);
}

QVector<LastChange> StoredHistory::lastChanges(const QStringList& nodes)
{
    return m_queue.reading([&] { return m_store.lastChanges(nodes); });
}

ChangeSetPart StoredHistory::changes(qint64 number, qint64 after, int count)
{
    ChangeSetPart unread;
    unread.isAtEnd = true;
    return m_queue.reading([&] { return std::make_optional(m_store.changes(number, after, count)); })
        .value_or(unread);
}

std::optional<ChangeSet> StoredHistory::changesOf(qint64 number, const QString& id)
{
    return m_queue.reading([&] { return std::make_optional(m_store.changesOf(number, id)); });
}

LaterPart StoredHistory::later(qint64 changeSet, qint64 after, int count)
{
    return m_queue.reading([&] { return std::make_optional(m_store.later(changeSet, after, count)); })
        .value_or(LaterPart{{}, after, 0});
}

std::optional<PresentState> StoredHistory::present(const PresentState::Wanted& wanted)
{
    PresentState state;
    const bool isRead = m_queue.reading([&] {
        for (const NodeID& id : wanted.values) {
            NodeRecord* record = m_memory.cache().find(id);
            if (record && m_memory.read(*record))
                state.nodes.insert(id, record->data());
        }
        return true;
    });
    if (!isRead)
        return std::nullopt;
    for (const NodeID& id : wanted.ends) {
        if (m_memory.cache().find(id))
            state.ends.insert(id);
    }
    for (const NodeID& id : wanted.sources)
        state.relations += m_memory.relations().relationsFrom(id);
    for (const NodeID& id : wanted.related)
        state.relations += m_memory.relations().relationsOf(id);
    state.settings = m_memory.settings;
    state.environments = m_memory.environments;
    return state;
}

QVector<UndoneChange> StoredHistory::undoneChanges()
{
    return m_queue.reading([this] { return m_store.undoneChanges(); });
}

void StoredHistory::dismissUndone(const QVector<qint64>& numbers)
{
    m_queue.endStoring();
    m_queue.reading([&] { return m_store.dismissUndone(numbers); });
}

HistoryLimit StoredHistory::limit() const
{
    const auto number = [this](const char* key) {
        return m_memory.settings.value(QLatin1String(key)).toInt();
    };
    return {number(HistoryLimits::Days), number(HistoryLimits::Megabytes)};
}

void StoredHistory::setLimit(const HistoryLimit& limit)
{
    const auto set = [this](const char* key, int value) {
        m_memory.setSetting(QLatin1String(key),
                            value > 0 ? std::make_optional(QString::number(value)) : std::nullopt);
    };
    set(HistoryLimits::Days, limit.days);
    set(HistoryLimits::Megabytes, limit.megabytes);
    m_queue.schedule();
}

} // namespace ko
