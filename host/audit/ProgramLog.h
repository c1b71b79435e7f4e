#ifndef KO_PROGRAMLOG_H
#define KO_PROGRAMLOG_H

#include "HostExport.h"
#include "audit/AuditRecord.h"
#include "ko/LogQt.h"

#include <QObject>

#include <vector>

namespace ko {

class LogStore;

/// Takes the lines of LogQt while it lives: to the standard error stream and into the node database.
///
/// Passwords in lines are replaced first, see Redaction, and what cannot be seen is spelt out. A line is on
/// disk about a second later, or with the next change of a node; the newest 10,000 are kept.
class KO_HOST_EXPORT ProgramLog : public QObject, public LogSink
{
    Q_OBJECT

public:
    /// \a store, which is HostNodeDB::logStore(), outlives the log. Made and deleted on the GUI thread.
    explicit ProgramLog(LogStore& store);
    ~ProgramLog() override;

    /// From any thread; a line of another thread is taken in by the event loop.
    void write(int level, const QString& line) override;

    /// At most \a count lines after skipping \a from, as ProgramLogEntry.
    std::vector<AuditRecord> entries(qint64 from, qint64 count, bool newestFirst) const;
    qint64 count() const;

private:
    LogStore& m_store;
};

} // namespace ko

#endif
