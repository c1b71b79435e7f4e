#ifndef KO_LOGFINDING_H
#define KO_LOGFINDING_H

#include "HostExport.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QVector>

namespace ko {

/// Something that an altered log shows.
struct KO_HOST_EXPORT LogFinding
{
    Q_DECLARE_TR_FUNCTIONS(LogFinding)

public:
    enum Kind {
        Altered,
        Missing,
        PutIn,     ///< by another program, or by somebody without the key
        Rewritten, ///< from the entry on, the first of its link of the chain
        OtherKey,  ///< the same, sealed with the key of another installation
        CutOff,    ///< after the entry, which is the last one there
        OtherLog   ///< it is not the log that was seen here before
    };
    enum Table { ChangeSets, Changes, Audit };

    Kind kind = Altered;
    Table table = ChangeSets;
    qint64 entry = 0; ///< its number in the table; 0 if there is none

    /// For the user: "Entry 12 of the audit log was altered."
    QString text() const;
};

/// Where a log ends.
struct LogEnd
{
    QByteArray log; ///< tells it from any other; empty if there is none
    qint64 link = 0;
    QByteArray hash; ///< over everything up to there
};

/// What was found in a log.
struct LogReport
{
    enum Limits { MostFindings = 100 };

    QVector<LogFinding> findings; ///< the first ones
    qint64 entries = 0;           ///< that were looked at
    qint64 older = 0;             ///< of these: as they were when the chain began
    qint64 unsealed = 0;          ///< links that were made without a key
    qint64 thinned = 0;           ///< the last change set whose details were thinned out
    LogEnd end;
};

} // namespace ko

#endif
