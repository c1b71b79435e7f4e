#ifndef KO_AUDITLOG_H
#define KO_AUDITLOG_H

#include "HostExport.h"
#include "audit/AuditRecord.h"
#include "ko/ActionLog.h"

#include <vector>

namespace ko {

class LogStore;

/// The audit log in the node database: who did what, when, at which computer.
class KO_HOST_EXPORT AuditLog : public ActionLog
{
public:
    /// \a store outlives the log.
    explicit AuditLog(LogStore& store);

    void log(const LogEntry& entry) override;

    /// At most \a count records after skipping \a from, beginning with the newest or the oldest.
    std::vector<AuditRecord> entries(qint64 from, qint64 count, bool newestFirst) const;
    qint64 count() const;

    /// What was done to the database before the change set of number \a before without an entry here: found
    /// by a scan, set in the preferences... At most \a count records, newest first; their numbers are those
    /// of the change sets.
    std::vector<AuditRecord> silentChanges(qint64 before, int count) const;

private:
    LogStore& m_store;
    const QString m_user;
    const QString m_host;
};

} // namespace ko

#endif
