#ifndef KO_STOREFILE_H
#define KO_STOREFILE_H

#include "HostExport.h"

#include <QString>

namespace ko {

/// What can be told about a database file without opening it as one. Failures are thrown as StoreFailure.
namespace StoreFile {

/// Makes an empty file that only its owner may read. False if \a file was there before.
bool create(const QString& file);

/// Throws unless \a file is empty or a node database of \a version or older that may be written.
void check(const QString& file, int version);

/// Throws unless \a file begins as a node database of \a version or older does.
void checkHeader(const QString& file, int version);

/// Gives a file that cannot be used, and what SQLite keeps beside it, a new name that tells when.
void moveAside(const QString& file);

/// Whether the disk under \a file is as good as full.
bool isDiskFull(const QString& file);

/// Whether files of this type of file system, as the system names it ("nfs4"), lie on another computer.
KO_HOST_EXPORT bool isNetworkFileSystem(const QByteArray& type);

/// Whether \a file does. Locks, on which two programs rely, often do not work there.
KO_HOST_EXPORT bool isOnNetwork(const QString& file);

} // namespace StoreFile

} // namespace ko

#endif
