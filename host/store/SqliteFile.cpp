#include "store/SqliteFile.h"

#include "store/StoreFile.h"
#include "store/StoreSchema.h"

#include <QFile>

#include <atomic>

#include <sqlite3.h>

namespace ko {

namespace {

const int pagesAtOnce = 1000;
const int pause = 20; // milliseconds, while another process writes

/// Bytes. The longest texts of nodes have some thousands of characters.
const int longestValue = 16 * 1024 * 1024;

/// Connections of this program that wait for another one.
std::atomic<int> waiting{0};

/// SQLite's own would look more and more seldom, and not be there when the lock is free for a moment.
int waitForOther(void*, int attempts)
{
    if (attempts >= SqliteFile::BusyTimeout)
        return 0;
    ++waiting;
    sqlite3_sleep(1);
    --waiting;
    return 1;
}

} // namespace

const char* const SqliteFile::Tables[10] = {
    "nodes",       "node_properties", "relations", "settings",    "environments",
    "change_sets", "audit",           "changes",   "program_log", "chain"};

StoreError::Kind SqliteFile::kindOf(int code)
{
    // Extended codes carry more in their higher bytes.
    switch (code & 0xff) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return StoreError::Locked;
    case SQLITE_READONLY:
        return StoreError::ReadOnly;
    case SQLITE_CORRUPT:
        return StoreError::Damaged;
    case SQLITE_FULL:
        return StoreError::DiskFull;
    case SQLITE_CANTOPEN:
        return StoreError::CannotOpen;
    case SQLITE_NOTADB:
        return StoreError::NotADatabase;
    default:
        return StoreError::Other;
    }
}

SqliteFile::SqliteFile(const QString& file, Mode mode)
    : m_file(file)
{
    const int flags = mode == ReadOnly ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE;
    const int result = sqlite3_open_v2(QFile::encodeName(file).constData(), &m_handle, flags, nullptr);
    if (result != SQLITE_OK) {
        sqlite3_close(m_handle);
        throw StoreFailure{StoreError::make(kindOf(result), file, QLatin1String("open"))};
    }
    sqlite3_busy_handler(m_handle, waitForOther, nullptr);
    harden(m_handle);
}

void SqliteFile::letOthersIn()
{
    for (int i = 0; i < BusyTimeout && waiting > 0; ++i)
        sqlite3_sleep(1);
}

SqliteFile::~SqliteFile()
{
    m_statements.clear();
    sqlite3_close(m_handle);
}

void SqliteFile::Finalize::operator()(sqlite3_stmt* statement) const
{
    sqlite3_finalize(statement);
}

void SqliteFile::fail(sqlite3* handle, const QString& file)
{
    const int code = sqlite3_extended_errcode(handle);
    StoreError::Kind kind = kindOf(code);
    if (kind != StoreError::DiskFull && kind != StoreError::Locked && StoreFile::isDiskFull(file))
        kind = StoreError::DiskFull; // a file that cannot grow shows as an I/O error, too
    throw StoreFailure{StoreError::make(
        kind, file, QString::fromLatin1("%1 (%2)").arg(QString::fromUtf8(sqlite3_errmsg(handle))).arg(code))};
}

void SqliteFile::check(int result) const
{
    if (result != SQLITE_OK && result != SQLITE_ROW && result != SQLITE_DONE)
        fail(m_handle, m_file);
}

SqliteFile::Rows SqliteFile::run(const char* sql, const SqlValue* values, int count)
{
    auto& statement = m_statements[sql];
    if (!statement) {
        sqlite3_stmt* prepared = nullptr;
        check(sqlite3_prepare_v3(m_handle, sql, -1, SQLITE_PREPARE_PERSISTENT, &prepared, nullptr));
        statement.reset(prepared);
    }
    for (int i = 0; i < count; ++i)
        check(values[i].bind(statement.get(), i + 1));
    return Rows(statement.get(), m_file);
}

SqliteFile::Rows SqliteFile::run(const char* sql, std::initializer_list<SqlValue> values)
{
    return run(sql, values.begin(), int(values.size()));
}

SqliteFile::Rows SqliteFile::run(const char* sql, const QVector<SqlValue>& values)
{
    return run(sql, values.constData(), int(values.size()));
}

QVariant SqliteFile::value(const char* sql, std::initializer_list<SqlValue> values)
{
    Rows rows = run(sql, values);
    if (!rows.next())
        return QVariant();
    return rows.type(0) == 'i' ? QVariant(rows.number(0)) : QVariant(rows.text(0));
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
    const int version = value("PRAGMA user_version").toInt();
    int result = SQLITE_OK;
    const QString difference = StoreSchema::difference(m_handle, version, StoreSchema::Extent::Only, &result);
    check(result);
    if (!difference.isEmpty())
        throw StoreFailure{StoreError::make(StoreError::OtherTables, m_file, difference)};
}

void SqliteFile::requireSound()
{
    requireTables();
    const QString damage = value("PRAGMA integrity_check(1)").toString();
    if (damage != QLatin1String("ok"))
        throw StoreFailure{StoreError::make(StoreError::Damaged, m_file, damage)};
    if (value("PRAGMA foreign_key_check").isValid())
        throw StoreFailure{StoreError::make(StoreError::Damaged, m_file, QLatin1String("broken references"))};
}

void SqliteFile::execute(const QByteArray& sql)
{
    check(sqlite3_exec(m_handle, sql.constData(), nullptr, nullptr, nullptr));
}

void SqliteFile::attach(const QString& file, const char* name)
{
    run("ATTACH DATABASE ? AS ?", {file, QLatin1String(name)});
}

void SqliteFile::copyTo(SqliteFile& target)
{
    // Without a transaction each commit of another program would make SQLite begin anew.
    execute("BEGIN");
    execute("PRAGMA user_version");
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
        if (waited > BusyTimeout)
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
    if (target.value("PRAGMA journal_mode = DELETE").toString() != QLatin1String("delete"))
        throw StoreFailure{StoreError::make(StoreError::Locked, target.m_file, QLatin1String("in use"))};
    target.execute(
        "PRAGMA journal_mode = TRUNCATE"); // a journal of nothing is all that a lock kept so long leaves
    target.execute("BEGIN EXCLUSIVE");
    target.execute("COMMIT");
    copyTo(target);
    target.execute("PRAGMA locking_mode = NORMAL");
    target.execute("PRAGMA user_version");          // the lock goes
    target.execute("PRAGMA journal_mode = DELETE"); // and so does the journal
}

} // namespace ko
