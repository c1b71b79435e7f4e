#ifndef KO_STOREERROR_H
#define KO_STOREERROR_H

#include "HostExport.h"

#include <QMetaType>
#include <QString>

namespace ko {

/// Why the store could not be opened or written.
struct StoreError
{
    enum Kind {
        None,
        NotADatabase, ///< the file is something else
        OtherProgram, ///< a database, but not a node database
        OtherTables,  ///< a node database whose tables another program has changed
        Emptied,      ///< empty or missing, with a log or backups beside it that say that it was not always
        Damaged,
        NewerVersion, ///< written by a newer version of this program
        ReadOnly,     ///< file or folder may not be written
        Locked,       ///< held by another program longer than we wait
        DiskFull,
        CannotOpen,      ///< no such folder, no permission to read, ...
        NotAFile,        ///< a folder, a device, a pipe or a socket
        SameFile,        ///< a copy would go into the database that it is made of
        SealedElsewhere, ///< passwords cannot be opened; the database can be used
        NotSealed,       ///< passwords were put there by something else; the database can be used
        KeyNotKept,      ///< there is no key with which passwords could be stored
        SealedForSite,   ///< passwords of a copy of a site cannot be opened; it can be used
        SiteKeyMissing,  ///< the key of the site, with which passwords are stored, is not here
        Other
    };

    Kind kind = None;
    QString message; ///< translated, says what to do; plain text
    QString detail;  ///< what the database engine said, untranslated

    explicit operator bool() const { return kind != None; }

    /// The error with its message for the database file \a file.
    KO_HOST_EXPORT static StoreError make(Kind kind, const QString& file, const QString& detail);
};

/// What became of work that was to be stored at once.
enum class StoreOutcome {
    Stored,
    NotStored, ///< what was done waits in memory; the failure has been made known
    NotRun     ///< another program holds the file, or it cannot be written; nothing was done
};

/// How to wait until changes are stored.
enum class StoreWait {
    Blocking,
    /// The event loop goes on, but for what the user does. What is a lot is stored by a thread then.
    InEventLoop
};

/// Thrown inside the store, caught by whoever uses it; never leaves the host.
struct StoreFailure
{
    StoreError error;
};

} // namespace ko

Q_DECLARE_METATYPE(ko::StoreError)

#endif
