#ifndef KO_SQLITEROWS_H
#define KO_SQLITEROWS_H

#include <QString>

#include <initializer_list>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace ko {

/// The rows of a long reading, taken from SQLite itself: QtSql makes a variant of every value. Throws
/// StoreFailure.
class SqliteRows
{
public:
    /// \a file stands in messages.
    SqliteRows(sqlite3* handle, const QString& file, const char* sql,
               std::initializer_list<qint64> numbers = {});
    ~SqliteRows();

    /// Before the first row; the first number is 1.
    void bind(int parameter, const QByteArray& blob);

    bool next();
    /// Valid until the next row.
    std::string_view utf8(int column) const;
    qint64 number(int column) const;
    /// 'i', 'f', 't', 'b' or 'n', as the value is stored; to be asked before it is read.
    char type(int column) const;

private:
    Q_DISABLE_COPY(SqliteRows)
    void check(int result) const;

    sqlite3* const m_handle;
    const QString m_file;
    sqlite3_stmt* m_statement = nullptr;
};

} // namespace ko

#endif
