#ifndef KO_PROGRAMLOGENTRY_H
#define KO_PROGRAMLOGENTRY_H

#include "HostExport.h"
#include "ko/LogEntry.h"

namespace ko {

/// A line of the program log in the shape of an audit log entry, so that one window shows both.
class KO_HOST_EXPORT ProgramLogEntry : public LogEntry
{
public:
    static FourChars code() { return "Prog"; }

    /// \a level is a LogQt::Level.
    explicit ProgramLogEntry(int level = 0, const QString& line = QString());

    FourChars typeCode() const override { return code(); }
    LogCategory category() const override;
    QString description() const override;
    QString title() const override;

    int level() const { return m_level.value().toInt(); }
    QString line() const { return m_line.value(); }

private:
    TLogValue<QString> m_level;
    TLogValue<QString> m_line;
};

} // namespace ko

#endif
