#ifndef KO_STOREERROR_H
#define KO_STOREERROR_H

#include <QString>

namespace ko {

/// Why the store could not be opened or written.
struct StoreError
{
    enum Kind {
        None,
        NotADatabase, ///< the file is something else
        OtherProgram, ///< a database, but not a node database
        Damaged,
        NewerVersion, ///< written by a newer version of this program
        ReadOnly,     ///< file or folder may not be written
        Locked,       ///< held by another program longer than we wait
        DiskFull,
        CannotOpen, ///< no such folder, no permission to read, ...
        Other
    };

    Kind kind = None;
    QString message; ///< translated, says what to do; plain text
    QString detail;  ///< what the database engine said, untranslated

    explicit operator bool() const { return kind != None; }
};

} // namespace ko

#endif
