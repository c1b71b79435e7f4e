#include "store/StoreBackup.h"

#include "model/Cause.h"
#include "secrets/Keyring.h"
#include "store/DraftFile.h"
#include "store/LogChain.h"
#include "store/LogCheckpoint.h"
#include "store/SqliteFile.h"
#include "store/SqliteStore.h"
#include "store/StoreFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace ko {

namespace StoreBackup {

namespace {

const char TimeFormat[] = "yyyyMMdd'T'HHmmsszzz'Z'";

QString timeName(const QDateTime& time)
{
    return time.toUTC().toString(QLatin1String(TimeFormat));
}

[[noreturn]] void fail(StoreError::Kind kind, const QString& file, const char* detail)
{
    throw StoreFailure{StoreError::make(kind, file, QLatin1String(detail))};
}

/// Returns whether \a work ended without a failure.
template <class Work>
bool succeeds(Work work, StoreError* error)
{
    try {
        *error = StoreError();
        work();
    } catch (const StoreFailure& failure) {
        *error = failure.error;
    }
    return !*error;
}

void verifyOrThrow(const QString& file)
{
    StoreFile::checkHeader(file, StoreSchema::latest());
    SqliteFile(file, SqliteFile::ReadOnly).requireSound();
}

void copy(const QString& from, const QString& to)
{
    SqliteFile source(from, SqliteFile::ReadOnly);
    SqliteFile target(to, SqliteFile::ReadWrite);
    source.copyTo(target);
}

/// Throws if a copy of \a database must not go to \a target.
void checkTarget(const QString& database, const QString& target)
{
    if (StoreFile::isSame(database, target))
        fail(StoreError::SameFile, target, "the same file");
    if (QFileInfo::exists(target))
        StoreFile::check(target, StoreSchema::latest());
    // A new file would get what is in the old one's log.
    else if (QFileInfo::exists(target + QLatin1String("-wal")))
        fail(StoreError::Emptied, target, "a log without its database");
}

void writeOrThrow(const QString& database, const QString& target)
{
    StoreFile::checkHeader(database, StoreSchema::latest());
    checkTarget(database, target);
    DraftFile draft(target);
    copy(database, draft.name());
    SqliteFile(draft.name(), SqliteFile::ReadWrite).execute("PRAGMA journal_mode = DELETE"); // one file
    verifyOrThrow(draft.name());
    if (draft.publish())
        return;
    // A program that has only just opened the file would go on with one that has no name any more, were it
    // replaced. Its content can be, which every program sees.
    checkTarget(database, target);
    SqliteFile present(target, SqliteFile::ReadWrite);
    SqliteFile(draft.name(), SqliteFile::ReadOnly).replace(present);
    StoreFile::keepPrivate(target);
}

/// Files are named by their times down to the millisecond; two in one are told apart by waiting for the next.
QString newName(const QString& database)
{
    const QDir folder(folderOf(database));
    QString file;
    do
        file = folder.filePath(timeName(QDateTime::currentDateTimeUtc()) + QLatin1String(".kodb"));
    while (QFile::exists(file));
    return file;
}

/// Whether the file holds nothing that a backup could keep. What is not a node database at all is somebody
/// else's, unless backups tell that something was written over one.
bool isUnusable(const QString& database, const StoreError& error)
{
    if (error.kind == StoreError::NotADatabase || error.kind == StoreError::OtherProgram)
        return !backups(database).isEmpty();
    return error.kind == StoreError::Damaged || error.kind == StoreError::OtherTables;
}

/// Opens \a database, made if need be, and closes it again. Throws.
void bringUpToDate(const QString& database)
{
    SqliteStore::Opening opening;
    opening.keepsCopy = false;
    opening.mayBeEmptied = true;
    StoreError error;
    SqliteStore::open(database, &error, opening).reset();
    if (error)
        throw StoreFailure{error};
}

/// Makes \a database one that can be opened; what is there and cannot is moved out of the way. Returns
/// whether there was anything.
bool makeUsable(const QString& database)
{
    const bool emptied = isEmptied(database);
    if (emptied)
        StoreFile::moveAside(database); // with its log, which would go into what comes in its place
    const bool hasContent = QFileInfo(database).size() > 0;
    try {
        bringUpToDate(database);
        return hasContent;
    } catch (const StoreFailure& failure) {
        if (!isUnusable(database, failure.error))
            throw;
    }
    StoreFile::moveAside(database);
    bringUpToDate(database);
    return false;
}

void keepPresent(const QString& database)
{
    StoreError error;
    add(database, &error);
    if (error)
        throw StoreFailure{error};
}

QByteArray quoted(const QString& text)
{
    return "'" + QString(text).replace(QLatin1Char('\''), QLatin1String("''")).toUtf8() + "'";
}

/// Tells all programs to look at everything, and the history who did that.
void noteRestore(SqliteFile& file)
{
    const Cause cause = Cause::now(Purpose::Restore);
    file.execute("INSERT INTO main.change_sets (id, time, user, host, purpose, subject) VALUES (" +
                 quoted(cause.id) + ", " + QByteArray::number(cause.time) + ", " + quoted(cause.user) + ", " +
                 quoted(cause.station) + ", " + quoted(Purposes::word(cause.purpose)) + ", '')");
    file.execute("INSERT INTO main.changes (kind, id, change_set)"
                 " SELECT 'A', '', max(seq) FROM main.change_sets");
}

/// Gives \a database, which programs may have open, the rows of \a restored in one transaction. Numbers of
/// nodes and changes go on from where the database is at that moment, so that no program takes a change for
/// one that it knows.
void replaceRows(const QString& database, const QString& restored, bool keep)
{
    const std::shared_ptr<const InstallationKey> key = Keyring::ofInstallation().key();
    SqliteFile file(database, SqliteFile::ReadWrite);
    file.attach(restored, "restored");
    file.execute("BEGIN IMMEDIATE");
    if (keep)
        keepPresent(database); // now, when nobody can add to it any more
    for (const char* table : SqliteFile::Tables) {
        const QByteArray name(table);
        file.execute("DELETE FROM main." + name);
        file.execute("INSERT INTO main." + name + " SELECT * FROM restored." + name);
    }
    file.execute("INSERT INTO main.sqlite_sequence SELECT name, seq FROM restored.sqlite_sequence"
                 " WHERE name NOT IN (SELECT name FROM main.sqlite_sequence)");
    file.execute("UPDATE main.sqlite_sequence SET seq = max(seq, coalesce((SELECT other.seq FROM"
                 " restored.sqlite_sequence AS other WHERE other.name = sqlite_sequence.name), 0))");
    LogChain chain(file, key->sealer);
    chain.begin();
    noteRestore(file);
    chain.end();
    file.execute("COMMIT");
}

void restoreOrThrow(const QString& backup, const QString& database)
{
    if (StoreFile::isSame(backup, database))
        fail(StoreError::SameFile, database, "the same file");
    verifyOrThrow(backup);
    DraftFile draft(database);
    copy(backup, draft.name());
    bringUpToDate(draft.name());
    const bool keep = makeUsable(database);
    try {
        replaceRows(database, draft.name(), keep);
    } catch (const StoreFailure& failure) {
        if (!keep || !isUnusable(database, failure.error))
            throw;
        StoreFile::moveAside(database); // what is damaged cannot be kept in another way
        bringUpToDate(database);
        replaceRows(database, draft.name(), false);
    }
    verifyOrThrow(database);
}

} // namespace

bool write(const QString& database, const QString& target, StoreError* error)
{
    return succeeds([&] { writeOrThrow(StoreFile::resolved(database), StoreFile::resolved(target)); }, error);
}

bool verify(const QString& file, StoreError* error)
{
    return succeeds([&] { verifyOrThrow(file); }, error);
}

bool restore(const QString& backup, const QString& database, StoreError* error)
{
    return succeeds(
        [&] {
            restoreOrThrow(backup, StoreFile::resolved(database));
            LogCheckpoint::forget(database);
        },
        error);
}

bool startAnew(const QString& database, StoreError* error)
{
    return succeeds(
        [&] {
            StoreFile::moveAside(StoreFile::resolved(database));
            bringUpToDate(database);
            LogCheckpoint::forget(database);
        },
        error);
}

QString folderOf(const QString& database)
{
    return StoreFile::resolved(database) + QLatin1String(".backups");
}

QVector<Backup> backups(const QString& database)
{
    QVector<Backup> found;
    const QDir folder(folderOf(database));
    const QStringList names =
        folder.entryList({QLatin1String("*.kodb")}, QDir::Files, QDir::Name | QDir::Reversed);
    for (const QString& name : names) {
        QDateTime time =
            QDateTime::fromString(name.section(QLatin1Char('.'), 0, 0), QLatin1String(TimeFormat));
        time.setTimeSpec(Qt::UTC);
        if (time.isValid())
            found.append({folder.filePath(name), time});
    }
    return found;
}

QString add(const QString& database, StoreError* error)
{
    const QString folder = folderOf(database);
    const bool isNew = !QFileInfo::exists(folder);
    if (!QDir().mkpath(folder)) {
        *error = StoreError::make(StoreError::ReadOnly, folder, QLatin1String("mkpath"));
        return QString();
    }
    if (isNew)
        QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    const QString file = newName(database);
    return write(database, file, error) ? file : QString();
}

void removeOld(const QString& database, int days)
{
    const QVector<Backup> found = backups(database);
    const QDateTime oldest = QDateTime::currentDateTimeUtc().addDays(-days);
    for (int i = 1; i < found.size(); ++i) {
        if (found.at(i).time < oldest)
            QFile::remove(found.at(i).file);
    }
}

bool isEmptied(const QString& database)
{
    const QFileInfo info(database);
    if (info.size() > 0 || (info.exists() && !info.isFile()))
        return false;
    return QFileInfo(database + QLatin1String("-wal")).size() > 0 || !backups(database).isEmpty();
}

QString newestGood(const QString& database)
{
    const QVector<Backup> found = backups(database);
    for (const Backup& backup : found) {
        StoreError error;
        if (verify(backup.file, &error))
            return backup.file;
    }
    return QString();
}

} // namespace StoreBackup

} // namespace ko
