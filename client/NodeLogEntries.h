#ifndef KO_NODELOGENTRIES_H
#define KO_NODELOGENTRIES_H

#include "ko/LogEntry.h"

namespace ko {

/// What the client does to nodes and the library does not log: one entry with the node's name.
class NodeLogEntry : public LogEntry
{
public:
    enum Kind {
        Added,                ///< "NAdd"
        Removed,              ///< "NRem"
        DeviceAccepted,       ///< "NAcc": another device than before
        ClearPasswordAllowed, ///< "NClr"
    };

    NodeLogEntry(Kind kind, const QString& name);

    LogCategory category() const override { return LogCategoryDevices; }
    FourChars typeCode() const override;
    QString description() const override;
    QString title() const override;

private:
    const Kind m_kind;
    TLogValue<QString> m_name;
};

/// Lets stored entries be read back. To be called before the audit log is shown; again does no harm.
void registerNodeLogEntries();

} // namespace ko

#endif
