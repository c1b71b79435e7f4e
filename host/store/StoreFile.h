#ifndef KO_STOREFILE_H
#define KO_STOREFILE_H

#include "HostExport.h"

#include <QString>

namespace ko {

/// What can be told about a database file without opening it as one. Failures are thrown as StoreFailure.
namespace StoreFile {

/// What SQLite keeps beside a database, under its name with these endings.
extern const char* const Companions[3];

/// The absolute name of \a file, links followed. SQLite looks for the log beside the file itself, not
/// beside a link to it, and could take a name that begins with "file:" for something else than a name.
KO_HOST_EXPORT QString resolved(const QString& file);

/// Whether both are one file, by whatever names. False if one is missing.
KO_HOST_EXPORT bool isSame(const QString& file, const QString& other);

/// Whether \a file is an SQLite database, of whatever program, or what SQLite keeps beside one.
bool belongsToDatabase(const QString& file);

/// Removes a database that nobody uses; the file itself last, which says whose the others are.
void removeWithCompanions(const QString& file);

/// Makes an empty file that only its owner may read. False if \a file was there before.
bool create(const QString& file);

/// Takes from everybody but the owner the right to read \a file and what SQLite keeps beside it. A group
/// that may write keeps its rights: such a database is shared on purpose.
void keepPrivate(const QString& file);

/// Puts names that were given or taken in the folder of \a file on the disk; false if that failed.
bool flushFolder(const QString& file);

/// Throws unless \a file is empty or a node database of \a version or older that may be written.
void check(const QString& file, int version);

/// Throws unless \a file begins as a node database of \a version or older does.
void checkHeader(const QString& file, int version);

/// Gives a file that cannot be used, and what SQLite keeps beside it, a new name that tells when. The file
/// itself may be missing; an empty one goes.
void moveAside(const QString& file);

/// Has the system bring \a file into its memory, and does not wait for that: a start reads rows that lie
/// scattered in it, for which a disk takes many times as long as for all of it at once. Only before this
/// process opens the file as a database: to close it takes SQLite's locks away.
KO_HOST_EXPORT void readAhead(const QString& file);

/// Whether the disk under \a file is as good as full.
bool isDiskFull(const QString& file);

/// Whether files of this type of file system, as the system names it ("nfs4"), lie on another computer.
KO_HOST_EXPORT bool isNetworkFileSystem(const QByteArray& type);

/// Whether \a file does. Locks, on which two programs rely, often do not work there.
KO_HOST_EXPORT bool isOnNetwork(const QString& file);

} // namespace StoreFile

} // namespace ko

#endif
