#ifndef KO_NODELOGENTRIES_H
#define KO_NODELOGENTRIES_H

#include "HostExport.h"
#include "ko/LogEntry.h"

namespace ko {

/// What is done to nodes and the library does not log: one entry with the node's name. Stored entries can be
/// read back while this library is loaded.
class KO_HOST_EXPORT NodeLogEntry : public LogEntry
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

} // namespace ko

#endif
