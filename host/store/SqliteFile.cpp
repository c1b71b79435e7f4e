#include "store/SqliteFile.h"

#include "store/SqliteStore.h"

#include <QFile>

#include <memory>

#include <sqlite3.h>

namespace ko {

namespace {

const int pagesAtOnce = 1000;
const int pause = 20; // milliseconds, while another process writes

/// Bytes. The longest texts of nodes have some thousands of characters.
const int longestValue = 16 * 1024 * 1024;

struct Finalize
{
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
typedef std::unique_ptr<sqlite3_stmt, Finalize> Statement;

Statement prepare(sqlite3* handle, const QByteArray& sql)
{
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(handle, sql.constData(), int(sql.size()), &statement, nullptr);
    return Statement(statement);
}

QString textOf(sqlite3_stmt* row, int column)
{
    return QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(row, column)),
                             sqlite3_column_bytes(row, column));
}

} // namespace

const char* const SqliteFile::Tables[10] = {"nodes",        "properties",  "relations", "settings",
                                            "environments", "change_sets", "audit",     "changes",
                                            "program_log",  "chain"};

SqliteFile::SqliteFile(const QString& file, Mode mode)
    : m_file(file)
{
    const int flags = mode == ReadOnly ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE;
    const int result = sqlite3_open_v2(QFile::encodeName(file).constData(), &m_handle, flags, nullptr);
    if (result != SQLITE_OK) {
        sqlite3_close(m_handle);
        m_handle = nullptr;
        throw StoreFailure{StoreError::make(SqliteStore::kindOf(result), file, QLatin1String("open"))};
    }
    sqlite3_busy_timeout(m_handle, SqliteStore::BusyTimeout);
    harden(m_handle);
}

SqliteFile::~SqliteFile()
{
    sqlite3_close(m_handle);
}

void SqliteFile::check(int result) const
{
    if (result != SQLITE_OK && result != SQLITE_ROW && result != SQLITE_DONE)
        throw StoreFailure{StoreError::make(SqliteStore::kindOf(result), m_file,
                                            QString::fromUtf8(sqlite3_errmsg(m_handle)))};
}

void SqliteFile::harden(sqlite3* handle)
{
    sqlite3_db_config(handle, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_ENABLE_VIEW, 0, nullptr);
    sqlite3_limit(handle, SQLITE_LIMIT_LENGTH, longestValue);
}

void SqliteFile::setCheckpointOnClose(sqlite3* handle, bool on)
{
    sqlite3_db_config(handle, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, on ? 0 : 1, nullptr);
}

void SqliteFile::requireTables()
{
    const int version = text("PRAGMA user_version").toInt();
    int result = SQLITE_OK;
    const QString difference = StoreSchema::difference(m_handle, version, StoreSchema::Extent::Only, &result);
    check(result);
    if (!difference.isEmpty())
        throw StoreFailure{StoreError::make(StoreError::OtherTables, m_file, difference)};
}

void SqliteFile::requireSound()
{
    requireTables();
    const QString damage = text("PRAGMA integrity_check(1)");
    if (damage != QLatin1String("ok"))
        throw StoreFailure{StoreError::make(StoreError::Damaged, m_file, damage)};
    if (!text("PRAGMA foreign_key_check").isEmpty())
        throw StoreFailure{StoreError::make(StoreError::Damaged, m_file, QLatin1String("broken references"))};
}

void SqliteFile::execute(const QByteArray& sql)
{
    check(sqlite3_exec(m_handle, sql.constData(), nullptr, nullptr, nullptr));
}

QString SqliteFile::text(const char* sql)
{
    const Statement statement = prepare(m_handle, sql);
    check(statement ? sqlite3_step(statement.get()) : sqlite3_errcode(m_handle));
    return textOf(statement.get(), 0);
}

void SqliteFile::attach(const QString& file, const char* name)
{
    const Statement statement = prepare(m_handle, QByteArray("ATTACH DATABASE ? AS ") + name);
    const QByteArray path = file.toUtf8();
    check(statement ? SQLITE_OK : sqlite3_errcode(m_handle));
    sqlite3_bind_text(statement.get(), 1, path.constData(), int(path.size()), SQLITE_TRANSIENT);
    check(sqlite3_step(statement.get()));
}

void SqliteFile::copyTo(SqliteFile& target)
{
    // Without a transaction each commit of another program would make SQLite begin anew.
    execute("BEGIN");
    text("PRAGMA user_version");
    int result = SQLITE_OK;
    const int finished = copyPages(target, &result);
    execute("COMMIT");
    target.check(result == SQLITE_DONE ? finished : result);
}

/// The result of the last step, and that of the end.
int SqliteFile::copyPages(SqliteFile& target, int* result)
{
    sqlite3_backup* backup = sqlite3_backup_init(target.m_handle, "main", m_handle, "main");
    if (!backup) {
        *result = sqlite3_errcode(target.m_handle);
        return *result;
    }
    int waited = 0;
    do {
        *result = sqlite3_backup_step(backup, pagesAtOnce);
        if (*result != SQLITE_BUSY && *result != SQLITE_LOCKED)
            continue;
        if (waited > SqliteStore::BusyTimeout)
            break;
        waited += pause;
        sqlite3_sleep(pause);
    } while (*result == SQLITE_OK || *result == SQLITE_BUSY || *result == SQLITE_LOCKED);
    return sqlite3_backup_finish(backup);
}

void SqliteFile::replace(SqliteFile& target)
{
    // Whoever uses a database with a log has a lock on it all the time; whoever comes now waits for this one.
    target.execute("PRAGMA locking_mode = EXCLUSIVE");
    if (target.text("PRAGMA journal_mode = DELETE") != QLatin1String("delete"))
        throw StoreFailure{StoreError::make(StoreError::Locked, target.m_file, QLatin1String("in use"))};
    target.text(
        "PRAGMA journal_mode = TRUNCATE"); // a journal of nothing is all that a lock kept so long leaves
    target.execute("BEGIN EXCLUSIVE");
    target.execute("COMMIT");
    copyTo(target);
    target.execute("PRAGMA locking_mode = NORMAL");
    target.text("PRAGMA user_version");          // the lock goes
    target.text("PRAGMA journal_mode = DELETE"); // and so does the journal
}

} // namespace ko
