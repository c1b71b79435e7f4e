#include "RawSqlite.h"

namespace bench {

RawSqlite::RawSqlite(const QString& file)
{
    check(sqlite3_open(file.toUtf8().constData(), &m_handle));
    run("PRAGMA foreign_keys = ON");
    run("PRAGMA journal_mode = WAL");
    run("PRAGMA synchronous = FULL");
}

RawSqlite::~RawSqlite()
{
    sqlite3_close(m_handle);
}

void RawSqlite::check(int result) const
{
    if (result != SQLITE_OK && result != SQLITE_ROW && result != SQLITE_DONE)
        qFatal("sqlite: %s", sqlite3_errmsg(m_handle));
}

void RawSqlite::run(const char* sql)
{
    check(sqlite3_exec(m_handle, sql, nullptr, nullptr, nullptr));
}

qint64 RawSqlite::number(const char* sql)
{
    Statement statement(*this, sql);
    const qint64 number = statement.next() ? statement.number(0) : 0;
    while (statement.next()) {
    }
    return number;
}

RawSqlite::Statement::Statement(RawSqlite& database, const QByteArray& sql)
    : m_database(database)
{
    database.check(sqlite3_prepare_v2(database.m_handle, sql.constData(), -1, &m_statement, nullptr));
}

RawSqlite::Statement::~Statement()
{
    sqlite3_finalize(m_statement);
}

RawSqlite::Statement& RawSqlite::Statement::bind(int parameter, const QString& text)
{
    m_database.check(
        sqlite3_bind_text16(m_statement, parameter, text.utf16(), int(text.size()) * 2, SQLITE_TRANSIENT));
    return *this;
}

RawSqlite::Statement& RawSqlite::Statement::bind(int parameter, qint64 number)
{
    m_database.check(sqlite3_bind_int64(m_statement, parameter, number));
    return *this;
}

RawSqlite::Statement& RawSqlite::Statement::bindAll(const Statement& row)
{
    for (int i = 0; i < row.columns(); ++i)
        m_database.check(sqlite3_bind_value(m_statement, i + 1, sqlite3_column_value(row.m_statement, i)));
    return *this;
}

void RawSqlite::Statement::execute()
{
    while (next()) {
    }
}

bool RawSqlite::Statement::next()
{
    const int result = sqlite3_step(m_statement);
    if (result == SQLITE_ROW)
        return true;
    m_database.check(result);
    sqlite3_reset(m_statement);
    return false;
}

QString RawSqlite::Statement::text(int column) const
{
    const int bytes = sqlite3_column_bytes16(m_statement, column);
    return QString(static_cast<const QChar*>(sqlite3_column_text16(m_statement, column)), bytes / 2);
}

} // namespace bench
