#ifndef KO_HISTORYLOGENTRY_H
#define KO_HISTORYLOGENTRY_H

#include "HostExport.h"
#include "ko/LogEntry.h"

namespace ko {

/// Audit entry "HThn": old details were taken out of the history.
class KO_HOST_EXPORT HistoryLogEntry : public LogEntry
{
public:
    /// \a last: the number of the last change set that has lost them. \a lines: how many.
    HistoryLogEntry(const QString& last, const QString& lines);

    FourChars typeCode() const override;
    LogCategory category() const override;
    QString description() const override;
    QString title() const override;

private:
    TLogValue<QString> m_last;
    TLogValue<QString> m_lines;
};

} // namespace ko

#endif
