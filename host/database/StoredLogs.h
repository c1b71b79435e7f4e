#ifndef KO_STOREDLOGS_H
#define KO_STOREDLOGS_H

#include "audit/LogStore.h"
#include "database/ChangeQueue.h"

namespace ko {

/// The logs in the store; what is appended belongs to the change set of the moment.
class StoredLogs : public LogStore
{
public:
    /// All outlive the logs.
    StoredLogs(NodeStore& store, NodeMemory& memory, ChangeQueue& queue);

    void append(const AuditRow& row) override;
    void append(const ProgramRow& row) override;
    QVector<AuditRow> auditRows(const LogRange& range) override;
    qint64 auditCount() override;
    qint64 firstAuditWithChanges() override;
    QVector<ChangeSetRow> silentChangeSets(qint64 before, int count) override;
    QVector<ProgramRow> programRows(const LogRange& range) override;
    qint64 programCount() override;

private:
    NodeStore& m_store;
    NodeMemory& m_memory;
    ChangeQueue& m_queue;
};

} // namespace ko

#endif
