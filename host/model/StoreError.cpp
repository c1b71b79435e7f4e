#include "model/StoreError.h"

#include "model/Redaction.h"

#include <QCoreApplication>
#include <QDir>

#include <algorithm>
#include <iterator>

namespace ko {

namespace {

/// %1 is the file. What happened comes first, then what to do about it.
const struct
{
    StoreError::Kind kind;
    const char* text;
} patterns[] = {
    {StoreError::None, ""},
    {StoreError::NotADatabase,
     QT_TRANSLATE_NOOP("StoreError",
                       "\"%1\" is not a node database but some other kind of file. It was left as it "
                       "is. Choose your database file, or a new file name to start an empty one.")},
    {StoreError::OtherProgram,
     QT_TRANSLATE_NOOP("StoreError",
                       "\"%1\" is a database of another program and holds no nodes. It was left as "
                       "it is. Choose your node database, or a new file name to start an empty one.")},
    {StoreError::OtherTables,
     QT_TRANSLATE_NOOP("StoreError",
                       "The tables of the node database \"%1\" were changed by another program and "
                       "cannot be trusted. It was left as it is. Put a backup copy in its place.")},
    {StoreError::Emptied,
     QT_TRANSLATE_NOOP("StoreError",
                       "The node database \"%1\" is empty or gone, but its log or its backups are "
                       "still there. Nothing was changed. Restore a backup of it, or choose a new "
                       "file name to start an empty one.")},
    {StoreError::Damaged,
     QT_TRANSLATE_NOOP(
         "StoreError",
         "The node database \"%1\" is damaged. It was left as it is. Restore a backup of it; those "
         "that this program made are in the folder \"%1.backups\".")},
    {StoreError::NewerVersion,
     QT_TRANSLATE_NOOP("StoreError",
                       "The node database \"%1\" was written by a newer version of this program. "
                       "Install that version on this computer, or open the backup copy that it made "
                       "in the same folder.")},
    {StoreError::ReadOnly,
     QT_TRANSLATE_NOOP("StoreError",
                       "The node database \"%1\" cannot be changed, because the file or its folder is "
                       "write-protected for you. Ask your administrator for the right to write there, "
                       "or copy the database into a folder of your own and open the copy.")},
    {StoreError::Locked,
     QT_TRANSLATE_NOOP("StoreError",
                       "The node database \"%1\" is held by another program. Close that program, or "
                       "wait until its backup or copy is finished, and try again.")},
    {StoreError::DiskFull,
     QT_TRANSLATE_NOOP("StoreError",
                       "There is no space left for the node database \"%1\". Delete files that you do "
                       "not need from this disk, and try again.")},
    {StoreError::CannotOpen,
     QT_TRANSLATE_NOOP("StoreError",
                       "The node database \"%1\" cannot be opened. Check that its folder exists, that "
                       "the disk or network drive is connected, and that you may read the file.")},
    {StoreError::NotAFile,
     QT_TRANSLATE_NOOP("StoreError",
                       "\"%1\" is a folder, a device or a pipe and cannot hold a node database. It "
                       "was left as it is. Choose another file.")},
    {StoreError::SameFile,
     QT_TRANSLATE_NOOP("StoreError",
                       "\"%1\" is the node database itself and was left as it is. Choose another "
                       "file for the copy.")},
    {StoreError::SealedElsewhere,
     QT_TRANSLATE_NOOP("StoreError",
                       "Some passwords in the node database \"%1\" cannot be read and are shown empty, "
                       "because the key that they were sealed with is not there. Unlock your keychain "
                       "or bring the key file back, and start the program again. They stay in the "
                       "database until you give new ones.")},
    {StoreError::NotSealed,
     QT_TRANSLATE_NOOP("StoreError",
                       "Some passwords in the node database \"%1\" were changed by something other than "
                       "this program, and are shown empty. They stay in the database until you give new "
                       "ones. Find out who can write to the file, or go back to a backup.")},
    {StoreError::KeyNotKept,
     QT_TRANSLATE_NOOP("StoreError",
                       "Passwords cannot be stored in the node database \"%1\", because the key that "
                       "seals them can be found neither in your keychain nor in a file, nor kept there. "
                       "Unlock your keychain, bring the key file back, or make your configuration "
                       "folder writable, and try again.")},
    {StoreError::SealedForSite,
     QT_TRANSLATE_NOOP("StoreError",
                       "Some passwords of the shared database in \"%1\" cannot be read and are shown empty, "
                       "because this computer does not have the key that they were sealed with. Click on "
                       "the state of the connection in the status bar, and give the passphrase of the "
                       "site. They stay in the database until you give new ones.")},
    {StoreError::SiteKeyMissing,
     QT_TRANSLATE_NOOP("StoreError",
                       "Passwords cannot be stored in the shared database in \"%1\", because this computer "
                       "does not have the key of the site. Click on the state of the connection in the "
                       "status bar, give the passphrase of the site, and try again.")},
    {StoreError::Other,
     QT_TRANSLATE_NOOP("StoreError",
                       "The node database \"%1\" cannot be read or written. Check that its disk or network "
                       "drive is connected, and try again.")},
};

const char* pattern(StoreError::Kind kind)
{
    const auto found = std::find_if(std::begin(patterns), std::end(patterns),
                                    [kind](const auto& pattern) { return pattern.kind == kind; });
    return found->text;
}

} // namespace

StoreError StoreError::make(Kind kind, const QString& file, const QString& detail)
{
    StoreError error;
    error.kind = kind;
    error.message =
        QCoreApplication::translate("StoreError", pattern(kind)).arg(QDir::toNativeSeparators(file));
    error.detail = Redaction::redacted(detail);
    return error;
}

} // namespace ko
