#ifndef KO_STORESCHEMA_H
#define KO_STORESCHEMA_H

#include "HostExport.h"

#include <QString>
#include <QVector>

struct sqlite3;

namespace ko {

/// The tables of the node database and the steps that lead from version to version.
///
/// A step, once released, never changes; a change of the tables is one more step.
namespace StoreSchema {

/// Tells our files from those of other programs: "KoDB" in the header of the file.
constexpr quint32 ApplicationId = 0x4b6f4442;

/// Before this version passwords stood in the clear.
constexpr int FirstSealed = 3;

/// From this version on there is a chain over the logs.
constexpr int FirstChained = 7;

/// Before this version each property had a row of its own.
constexpr int FirstPropertyObjects = 8;

/// Takes the rows of the table properties, as it was before that version, into node_properties, for the nodes
/// that have nothing there.
extern const char* const PropertyObjects;

KO_HOST_EXPORT int latest();

/// The statements that lead from \a version to the next.
QVector<const char*> stepFrom(int version);

/// What makes the tables that a shared file has beside these; see SharedLog. A file that was never shared
/// lacks them.
const QVector<const char*>& sharingStatements();

enum class Extent {
    Ours, ///< our tables and indexes are there as we make them, and there are no triggers
    Only, ///< and nothing else is there
};

/// What differs in the database that \a handle is open on from what \a version makes, in words for a log;
/// empty if nothing does. A table may be a view that never ends, and a trigger may do anything: nothing else
/// may be read or written before this was looked at. \a error is SQLite's code if it could not be read.
QString difference(sqlite3* handle, int version, Extent extent, int* error);

} // namespace StoreSchema

} // namespace ko

#endif
