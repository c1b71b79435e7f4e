#include "store/SqliteRows.h"

#include "store/SqliteStore.h"

#include <sqlite3.h>

namespace ko {

SqliteRows::SqliteRows(sqlite3* handle, const QString& file, const char* sql,
                       std::initializer_list<qint64> numbers)
    : m_handle(handle)
    , m_file(file)
{
    check(sqlite3_prepare_v2(m_handle, sql, -1, &m_statement, nullptr));
    int parameter = 0;
    for (const qint64 number : numbers)
        check(sqlite3_bind_int64(m_statement, ++parameter, number));
}

SqliteRows::~SqliteRows()
{
    sqlite3_finalize(m_statement);
}

void SqliteRows::check(int result) const
{
    if (result != SQLITE_OK && result != SQLITE_ROW && result != SQLITE_DONE)
        throw StoreFailure{StoreError::make(SqliteStore::kindOf(result), m_file,
                                            QString::fromUtf8(sqlite3_errmsg(m_handle)))};
}

void SqliteRows::bind(int parameter, const QByteArray& blob)
{
    check(sqlite3_bind_blob(m_statement, parameter, blob.constData(), int(blob.size()), SQLITE_TRANSIENT));
}

bool SqliteRows::next()
{
    const int result = sqlite3_step(m_statement);
    check(result);
    return result == SQLITE_ROW;
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

} // namespace ko
