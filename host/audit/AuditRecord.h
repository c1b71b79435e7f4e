#ifndef KO_AUDITRECORD_H
#define KO_AUDITRECORD_H

#include "ko/LogEntry.h"

#include <QDateTime>

#include <memory>

namespace ko {

/// One stored record of a log, read back.
struct AuditRecord
{
    qint64 seq;     ///< larger than that of every older record of the same log
    QDateTime time; ///< UTC
    QString user;   ///< of the operating system; empty in the program log
    QString host;
    FourChars code;
    std::unique_ptr<LogEntry> entry; ///< never null; a GenericLogEntry where the code is unknown
    qint64 changeSet = 0;            ///< that it tells of; 0: none
    bool changedNothing = false;     ///< whoever pressed OK had changed no property
};

} // namespace ko

#endif
