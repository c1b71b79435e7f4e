#include "store/SqliteRows.h"

#include "store/SqliteFile.h"

#include <utility>

#include <sqlite3.h>

namespace ko {

int SqlValue::bind(sqlite3_stmt* statement, int parameter) const
{
    switch (m_kind) {
    case Number:
        return sqlite3_bind_int64(statement, parameter, m_number);
    case Text:
        return sqlite3_bind_text(statement, parameter, m_bytes.constData(), int(m_bytes.size()),
                                 SQLITE_TRANSIENT);
    case Blob:
        return sqlite3_bind_blob(statement, parameter, m_bytes.constData(), int(m_bytes.size()),
                                 SQLITE_TRANSIENT);
    case Null:
        break;
    }
    return sqlite3_bind_null(statement, parameter);
}

SqliteRows::SqliteRows(sqlite3_stmt* statement, const QString& file)
    : m_handle(sqlite3_db_handle(statement))
    , m_statement(statement)
    , m_file(file)
{
    step();
}

SqliteRows::SqliteRows(SqliteRows&& other) noexcept
    : m_handle(other.m_handle)
    , m_statement(std::exchange(other.m_statement, nullptr))
    , m_file(other.m_file)
    , m_isFirst(other.m_isFirst)
{
}

SqliteRows::~SqliteRows()
{
    sqlite3_reset(m_statement);
}

void SqliteRows::step()
{
    const int result = sqlite3_step(m_statement);
    if (result == SQLITE_ROW)
        return;
    sqlite3_reset(std::exchange(m_statement, nullptr));
    if (result != SQLITE_DONE)
        SqliteFile::fail(m_handle, m_file);
}

bool SqliteRows::next()
{
    if (!std::exchange(m_isFirst, false) && m_statement)
        step();
    return m_statement != nullptr;
}

QString SqliteRows::text(int column) const
{
    const std::string_view text = utf8(column);
    return QString::fromUtf8(text.data(), int(text.size()));
}

std::string_view SqliteRows::utf8(int column) const
{
    const unsigned char* text = sqlite3_column_text(m_statement, column); // before its size
    return {reinterpret_cast<const char*>(text), size_t(sqlite3_column_bytes(m_statement, column))};
}

qint64 SqliteRows::number(int column) const
{
    return sqlite3_column_int64(m_statement, column);
}

char SqliteRows::type(int column) const
{
    return "iftbn"[sqlite3_column_type(m_statement, column) - SQLITE_INTEGER];
}

int SqliteRows::changed() const
{
    return sqlite3_changes(m_handle);
}

qint64 SqliteRows::insertedId() const
{
    return sqlite3_last_insert_rowid(m_handle);
}

} // namespace ko
