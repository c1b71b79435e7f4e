#ifndef KO_LOGCHECKPOINT_H
#define KO_LOGCHECKPOINT_H

#include "HostExport.h"
#include "model/LogFinding.h"

#include <QString>

namespace ko {

/// Where the log of a database ended when this installation saw it last, kept outside of the database: by it
/// alone it shows that the end of a log was cut off, or that another log took its place.
///
/// A file for each database in `konodeui/logs` of the user's state folder ($XDG_STATE_HOME, or
/// ~/.local/state), named after a hash of the path.
namespace LogCheckpoint {

KO_HOST_EXPORT QString fileFor(const QString& database);

/// Empty if there is none.
KO_HOST_EXPORT LogEnd read(const QString& database);

/// False if it cannot be written.
KO_HOST_EXPORT bool write(const QString& database, const LogEnd& end);

/// For a database that gets another log: it was restored, or made anew.
KO_HOST_EXPORT void forget(const QString& database);

} // namespace LogCheckpoint

} // namespace ko

#endif
