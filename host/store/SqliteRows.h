#ifndef KO_SQLITEROWS_H
#define KO_SQLITEROWS_H

#include "HostExport.h"

#include <QString>

#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace ko {

/// What a parameter of a statement is given: a number, a text, bytes, or NULL. A null text is an empty one:
/// few columns take NULL.
class SqlValue
{
public:
    SqlValue() = default;
    SqlValue(int number) // NOLINT(google-explicit-constructor): they stand in lists
        : SqlValue(qint64(number))
    {
    }
    SqlValue(qint64 number) // NOLINT(google-explicit-constructor)
        : m_kind(Number)
        , m_number(number)
    {
    }
    SqlValue(const QString& text) // NOLINT(google-explicit-constructor)
        : m_kind(Text)
        , m_bytes(text.toUtf8())
    {
    }
    SqlValue(QLatin1String text) // NOLINT(google-explicit-constructor)
        : SqlValue(QString(text))
    {
    }
    SqlValue(const QByteArray& blob) // NOLINT(google-explicit-constructor)
        : m_kind(Blob)
        , m_bytes(blob)
    {
    }

    /// NULL for a null text.
    static SqlValue nullable(const QString& text) { return text.isNull() ? SqlValue() : SqlValue(text); }

    /// Returns SQLite's code. The value is copied.
    int bind(sqlite3_stmt* statement, int parameter) const;

private:
    enum Kind { Null, Number, Text, Blob };

    Kind m_kind = Null;
    qint64 m_number = 0;
    QByteArray m_bytes;
};

/// The rows of a statement that was run; it is free to be run again after the last one, or when they go.
/// Throws StoreFailure.
class KO_HOST_EXPORT SqliteRows
{
public:
    /// Takes the first step. \a statement belongs to somebody else; \a file stands in messages.
    SqliteRows(sqlite3_stmt* statement, const QString& file);
    SqliteRows(SqliteRows&& other) noexcept;
    ~SqliteRows();

    bool next();

    /// A null text for NULL.
    QString text(int column) const;
    /// Valid until the next row.
    std::string_view utf8(int column) const;
    qint64 number(int column) const;
    /// 'i', 'f', 't', 'b' or 'n', as the value is stored; to be asked before it is read.
    char type(int column) const;

    /// Of a statement that changes rows, before another one does.
    int changed() const;
    qint64 insertedId() const;

private:
    Q_DISABLE_COPY(SqliteRows)
    void step();

    sqlite3* const m_handle;
    sqlite3_stmt* m_statement; ///< null after the last row
    const QString m_file;
    bool m_isFirst = true; ///< its step was taken
};

} // namespace ko

#endif
