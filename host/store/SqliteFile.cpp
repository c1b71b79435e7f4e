#include "store/SqliteFile.h"

#include "store/SqliteStore.h"

#include <QFile>

#include <memory>

#include <sqlite3.h>

namespace ko {

namespace {

const int pagesAtOnce = 1000;
const int pause = 20; // milliseconds, while another process writes

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

void SqliteFile::execute(const char* sql)
{
    check(sqlite3_exec(m_handle, sql, nullptr, nullptr, nullptr));
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
    sqlite3_backup* backup = sqlite3_backup_init(target.m_handle, "main", m_handle, "main");
    if (!backup)
        target.check(sqlite3_errcode(target.m_handle));
    int waited = 0;
    int result = SQLITE_OK;
    while (result == SQLITE_OK || result == SQLITE_BUSY || result == SQLITE_LOCKED) {
        result = sqlite3_backup_step(backup, pagesAtOnce);
        if (result != SQLITE_BUSY && result != SQLITE_LOCKED)
            continue;
        if (waited > SqliteStore::BusyTimeout)
            break;
        waited += pause;
        sqlite3_sleep(pause);
    }
    const int finished = sqlite3_backup_finish(backup);
    target.check(result == SQLITE_DONE ? finished : result);
}

} // namespace ko
