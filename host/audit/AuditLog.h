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

    /// At most \a count records after passing over \a from, beginning with the newest or the oldest.
    std::vector<AuditRecord> entries(qint64 from, qint64 count, bool newestFirst) const;
    qint64 count() const;

private:
    LogStore& m_store;
    const QString m_user;
    const QString m_host;
};

} // namespace ko

#endif
