#include "database/StoredLogs.h"

namespace ko {

StoredLogs::StoredLogs(NodeStore& store, NodeMemory& memory, ChangeQueue& queue)
    : m_store(store)
    , m_memory(memory)
    , m_queue(queue)
{
}

void StoredLogs::append(const AuditRow& row)
{
    m_memory.pending.logged(row);
    m_queue.schedule();
}

void StoredLogs::append(const ProgramRow& row)
{
    m_memory.pending.logged(row, NodeStore::MaxProgramLines);
    m_queue.scheduleLine();
}

QVector<AuditRow> StoredLogs::auditRows(const LogRange& range)
{
    m_queue.flush();
    return m_queue.reading([&] { return m_store.audit(range); });
}

qint64 StoredLogs::auditCount()
{
    m_queue.flush();
    return m_queue.reading([&] { return m_store.auditCount(); });
}

qint64 StoredLogs::firstAuditWithChanges()
{
    m_queue.flush();
    return m_queue.reading([&] { return m_store.firstAuditWithChanges(); });
}

QVector<ChangeSetRow> StoredLogs::silentChangeSets(qint64 before, int count)
{
    m_queue.flush();
    return m_queue.reading([&] { return m_store.silentChangeSets(before, count); });
}

QVector<ProgramRow> StoredLogs::programRows(const LogRange& range)
{
    m_queue.flush();
    return m_queue.reading([&] { return m_store.programLines(range); });
}

qint64 StoredLogs::programCount()
{
    m_queue.flush();
    return m_queue.reading([&] { return m_store.programLineCount(); });
}

} // namespace ko
