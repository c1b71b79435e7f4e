#ifndef KO_ACTIONLOG_H
#define KO_ACTIONLOG_H

#include "PlatformExport.h"

#include <QtGlobal>

namespace ko {

class LogEntry;

/// The audit log, implemented by the host.
class KO_PLATFORM_EXPORT ActionLog
{
public:
    /// The log constructed last; while there is none, one that drops what it gets. Never null.
    static ActionLog* getInstance();

    virtual ~ActionLog();

    /// Keeps a copy of what it needs; the entry may go afterwards.
    virtual void log(const LogEntry& entry) = 0;

protected:
    ActionLog();

private:
    Q_DISABLE_COPY(ActionLog)
};

} // namespace ko

#endif
