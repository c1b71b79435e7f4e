#ifndef KO_STOREBACKUP_H
#define KO_STOREBACKUP_H

#include "model/StoreError.h"

#include <QDateTime>
#include <QVector>

namespace ko {

/// Copies of a node database that are made and brought back while programs use it.
///
/// Nothing here shows or asks anything. Each call may take as long as copying the file does, and belongs
/// to no thread.
namespace StoreBackup {

/// Copies \a database as it is now, what others write meanwhile included or not, to \a target. The copy is
/// looked through completely before \a target is touched; it is its owner's alone. A node database of that
/// name is replaced if no program has it open; anything else of that name, and \a database itself, is
/// refused. False and \a error when there is no good copy; a file of that name is then as it was.
KO_HOST_EXPORT bool write(const QString& database, const QString& target, StoreError* error);

/// Gives \a database the content of \a backup, in one step that all programs see as a change by another
/// process. The present content is kept as a backup first, in folderOf(\a database), unless it cannot be
/// read. A backup of an older version is brought up to date on the way; it stays as it is itself.
KO_HOST_EXPORT bool restore(const QString& backup, const QString& database, StoreError* error);

/// Makes an empty database in the place of \a database, which no program may have open. What is there is kept
/// under another name; its backups stay.
KO_HOST_EXPORT bool startAnew(const QString& database, StoreError* error);

/// Whether the whole of the file is sound and holds our tables and nothing else; slower than what is looked
/// at when a database is opened.
KO_HOST_EXPORT bool verify(const QString& file, StoreError* error);

/// Where the backups of a database lie: the folder "NAME.backups" beside it.
KO_HOST_EXPORT QString folderOf(const QString& database);

struct Backup
{
    QString file;
    QDateTime time; ///< when it was made, UTC
};

/// The backups of a database, newest first; by name, none is opened.
KO_HOST_EXPORT QVector<Backup> backups(const QString& database);

/// Makes a backup in folderOf(\a database) and returns its name; empty and \a error if that failed.
KO_HOST_EXPORT QString add(const QString& database, StoreError* error);

/// Deletes backups that are older than \a days, but never the newest that is left.
KO_HOST_EXPORT void removeOld(const QString& database, int days);

/// Whether \a database is missing or empty although a log or backups of it say that it held something.
bool isEmptied(const QString& database);

/// The newest backup that verify() finds sound, or an empty text.
KO_HOST_EXPORT QString newestGood(const QString& database);

} // namespace StoreBackup

} // namespace ko

#endif
