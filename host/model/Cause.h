#ifndef KO_CAUSE_H
#define KO_CAUSE_H

#include "HostExport.h"

#include <QString>
#include <QVector>

namespace ko {

/// What somebody did that changed the database. The words are stored.
enum class Purpose {
    Edit,
    Recording,   ///< where recordings are played from, and nothing else
    Credentials, ///< user names and passwords, and nothing else
    Add,
    Remove,
    Settings, ///< of the program: default paths, bandwidth, the active environment
    Proxy,    ///< the global one
    Environments,
    Scan,    ///< what a scanner found
    Address, ///< a device answers at another address, and the user agreed
    Check,   ///< by what a device is known again, as it said when it was checked
    FillIn,  ///< what devices told of themselves, and the user agreed
    Import,
    Start,   ///< what a new database begins with
    Restore, ///< a backup took the place of everything
    Undo,    ///< something was put back to what it was
    Reseal,  ///< passwords got another key, and are the same
    Unknown  ///< of a newer version of this program
};

/// Who changed something, where, when and what for.
struct KO_HOST_EXPORT Cause
{
    QString id; ///< what is written with one id is one change set, in however many commits
    QString user;
    QString station;
    qint64 time = 0; ///< milliseconds since 1970, UTC
    Purpose purpose = Purpose::Edit;
    QString subject; ///< of an import the name of its file, of Undo that of undoing(); else empty

    /// Something that the user of this process begins to do now.
    static Cause now(Purpose purpose, const QString& subject = QString());

    /// Beginning now to put back what \a others did.
    static Cause undoing(const QVector<Cause>& others);

    /// Of Undo: the purpose of what was put back, or that was put back before and now is again.
    Purpose undone() const;
    /// Of Undo: it is what had been put back that is put back.
    bool isRedo() const;

    /// The user of the operating system, not of the environment, which anyone can set for himself.
    static QString currentUser();
    static QString currentStation();
};

namespace Purposes {

KO_HOST_EXPORT QString word(Purpose purpose);
KO_HOST_EXPORT Purpose fromWord(const QString& word);

} // namespace Purposes

} // namespace ko

#endif
