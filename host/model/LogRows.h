#ifndef KO_LOGROWS_H
#define KO_LOGROWS_H

#include "model/Cause.h"

namespace ko {

/// One record of the audit log as it is stored.
struct AuditRow
{
    qint64 seq = 0;  ///< given by the store
    qint64 time = 0; ///< milliseconds since 1970, UTC
    QString user;
    QString host;
    quint32 code = 0;
    QString data;         ///< JSON object: key to value
    qint64 changeSet = 0; ///< with which it was written; 0: none
};

/// A change set that belongs to no entry of the audit log, as far as a log shows it.
struct ChangeSetRow
{
    qint64 number = 0;
    Cause cause;
    int nodes = 0;     ///< that were added, changed or removed
    QString firstName; ///< of these
    /// Its details were taken out of the history: nobody knows any more what it changed.
    bool isThinned = false;
};

/// When a node was changed last, or came, and by whom.
struct LastChange
{
    QString node;    ///< its identifier
    qint64 time = 0; ///< milliseconds since 1970, UTC
    QString user;
};

/// One line of the program log as it is stored.
struct ProgramRow
{
    qint64 seq = 0;
    qint64 time = 0;
    int level = 0;
    QString line;
};

/// Some rows of a log, counted from one of its ends.
struct LogRange
{
    qint64 skip;
    qint64 count;
    bool newestFirst;
};

} // namespace ko

#endif
