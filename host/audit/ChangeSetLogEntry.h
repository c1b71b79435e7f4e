#ifndef KO_CHANGESETLOGENTRY_H
#define KO_CHANGESETLOGENTRY_H

#include "ko/LogEntry.h"
#include "model/LogRows.h"

namespace ko {

/// What was done to the database without an entry of its own in the audit log, in the shape of one. It is
/// made when the log is read, and stored nowhere.
class ChangeSetLogEntry : public LogEntry
{
public:
    explicit ChangeSetLogEntry(const ChangeSetRow& row);

    FourChars typeCode() const override { return "CSet"; }
    LogCategory category() const override { return LogCategoryDevices; }
    QString description() const override { return QLatin1String("%1"); }
    QString title() const override;

private:
    const Purpose m_purpose;
    TLogValue<QString> m_nodes;
};

} // namespace ko

#endif
