#ifndef KO_FILELOCKS_H
#define KO_FILELOCKS_H

#include "HostExport.h"

namespace ko {

/// Keeps the locks that this process has on database files.
///
/// SQLite uses POSIX locks, and those belong to the process: all that it has on a file are gone as soon as
/// any part of it closes any descriptor of that file, be it a file dialog that wanted to know the type.
/// Another program then takes the database for unused and removes its log.
///
/// From the moment this library is loaded, SQLite's locks in the whole process are those of an open file
/// description (fcntl(2), F_OFD_SETLK), one for each file. They conflict with POSIX locks of other processes
/// as before and go only when SQLite closes the file. Systems that do not have them keep the POSIX locks.
namespace FileLocks {

/// Whether that is so; false when SQLite does not let its system calls be replaced.
KO_HOST_EXPORT bool areKept();

} // namespace FileLocks

} // namespace ko

#endif
