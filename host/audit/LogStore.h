#ifndef KO_LOGSTORE_H
#define KO_LOGSTORE_H

#include "model/LogRows.h"

#include <QVector>

namespace ko {

/// Where the logs keep their records: in the database and in its transactions.
class LogStore
{
public:
    virtual ~LogStore() = default;

    virtual void append(const AuditRow& row) = 0;
    virtual void append(const ProgramRow& row) = 0;

    // Reading stores first what is not stored yet; empty or 0 when the store cannot be read.
    virtual QVector<AuditRow> auditRows(const LogRange& range) = 0;
    virtual qint64 auditCount() = 0;
    /// The number of the first entry that was written with a change set; 0: there is none.
    virtual qint64 firstAuditWithChanges() = 0;
    /// At most \a count change sets before number \a before without an entry in the audit log, newest first.
    virtual QVector<ChangeSetRow> silentChangeSets(qint64 before, int count) = 0;
    virtual QVector<ProgramRow> programRows(const LogRange& range) = 0;
    virtual qint64 programCount() = 0;
};

} // namespace ko

#endif
