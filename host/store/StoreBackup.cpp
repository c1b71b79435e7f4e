#include "store/StoreBackup.h"

#include "store/SqliteFile.h"
#include "store/SqliteStore.h"
#include "store/StoreFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cstdio>

namespace ko {

namespace StoreBackup {

namespace {

const char TimeFormat[] = "yyyyMMdd'T'HHmmsszzz'Z'";

QString timeName(const QDateTime& time)
{
    return time.toUTC().toString(QLatin1String(TimeFormat));
}

/// A file beside \a file that is deleted when it goes, unless it was moved to its place.
class Draft
{
public:
    explicit Draft(const QString& file)
        : m_name(file + QLatin1String(".new-") + timeName(QDateTime::currentDateTimeUtc()))
    {
        if (!StoreFile::create(m_name))
            throw StoreFailure{StoreError::make(StoreError::CannotOpen, m_name, QLatin1String("exists"))};
    }

    ~Draft()
    {
        for (const char* end : {"", "-wal", "-shm", "-journal"})
            QFile::remove(m_name + QLatin1String(end));
    }

    const QString& name() const { return m_name; }

    void moveTo(const QString& target)
    {
        if (std::rename(QFile::encodeName(m_name).constData(), QFile::encodeName(target).constData()) != 0)
            throw StoreFailure{StoreError::make(StoreError::ReadOnly, target, QLatin1String("rename"))};
    }

private:
    Q_DISABLE_COPY(Draft)
    const QString m_name;
};

/// Answers whether \a work ended without a failure.
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
    SqliteFile opened(file, SqliteFile::ReadOnly);
    const QString result = opened.text("PRAGMA integrity_check(1)");
    if (result != QLatin1String("ok"))
        throw StoreFailure{StoreError::make(StoreError::Damaged, file, result)};
}

void copy(const QString& from, const QString& to)
{
    SqliteFile source(from, SqliteFile::ReadOnly);
    SqliteFile target(to, SqliteFile::ReadWrite);
    source.copyTo(target);
}

void writeOrThrow(const QString& database, const QString& target)
{
    StoreFile::checkHeader(database, StoreSchema::latest());
    Draft draft(target);
    copy(database, draft.name());
    SqliteFile(draft.name(), SqliteFile::ReadWrite).execute("PRAGMA journal_mode = DELETE"); // one file
    verifyOrThrow(draft.name());
    draft.moveTo(target);
}

/// Numbers go on where the present database stands, so that programs that have it open do not take
/// changes of the backup for those that they know, nor its nodes for others.
void continueNumbers(const QString& restored, const QString& present)
{
    SqliteFile file(restored, SqliteFile::ReadWrite);
    file.execute("DELETE FROM changes");
    try {
        file.attach(present, "present");
        file.execute("UPDATE main.sqlite_sequence SET seq = max(seq, coalesce((SELECT seq FROM"
                     " present.sqlite_sequence AS other WHERE other.name = sqlite_sequence.name), 0))");
    } catch (const StoreFailure&) {
        // The present one cannot be read; nobody has it open then.
    }
    file.execute("UPDATE sqlite_sequence SET seq = seq + 1 WHERE name = 'changes'");
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

/// Whether the file holds nothing that a backup could keep.
bool isUnusable(const StoreError& error)
{
    return error.kind == StoreError::Damaged || error.kind == StoreError::NotADatabase ||
           error.kind == StoreError::OtherProgram; // which a damaged header can look like
}

} // namespace

bool write(const QString& database, const QString& target, StoreError* error)
{
    return succeeds([&] { writeOrThrow(database, target); }, error);
}

bool verify(const QString& file, StoreError* error)
{
    return succeeds([&] { verifyOrThrow(file); }, error);
}

bool restore(const QString& backup, const QString& database, StoreError* error)
{
    return succeeds(
        [&] {
            verifyOrThrow(backup);
            StoreError notKept;
            if (QFile::exists(database))
                add(database, &notKept);
            const bool unusable = isUnusable(notKept);
            if (notKept && !unusable)
                throw StoreFailure{notKept};
            Draft draft(database);
            copy(backup, draft.name());
            StoreError failed;
            SqliteStore::open(draft.name(), &failed).reset(); // brings it up to date
            if (failed)
                throw StoreFailure{failed};
            continueNumbers(draft.name(), database);
            if (unusable)
                StoreFile::moveAside(database);
            StoreFile::create(database);
            copy(draft.name(), database);
            verifyOrThrow(database);
        },
        error);
}

QString folderOf(const QString& database)
{
    return database + QLatin1String(".backups");
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
