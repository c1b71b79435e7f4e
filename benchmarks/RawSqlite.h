#ifndef KO_BENCHMARKS_RAWSQLITE_H
#define KO_BENCHMARKS_RAWSQLITE_H

#include <QString>

#include <sqlite3.h>

namespace bench {

/// The database library itself, with the settings that the store uses; ends the program when a call fails.
class RawSqlite
{
public:
    explicit RawSqlite(const QString& file);
    ~RawSqlite();

    void run(const char* sql);
    /// The first column of the first row.
    qint64 number(const char* sql);

    /// A prepared statement that is used again and again.
    class Statement
    {
    public:
        Statement(RawSqlite& database, const QByteArray& sql);
        ~Statement();

        Statement& bind(int parameter, const QString& text);
        Statement& bind(int parameter, qint64 number);
        /// What \a row has in its columns.
        Statement& bindAll(const Statement& row);
        void execute();
        bool next();
        int columns() const { return sqlite3_column_count(m_statement); }
        QString text(int column) const;
        qint64 number(int column) const { return sqlite3_column_int64(m_statement, column); }

    private:
        Q_DISABLE_COPY(Statement)
        RawSqlite& m_database;
        sqlite3_stmt* m_statement = nullptr;
    };

    qint64 lastRow() const { return sqlite3_last_insert_rowid(m_handle); }

private:
    Q_DISABLE_COPY(RawSqlite)
    void check(int result) const;

    sqlite3* m_handle = nullptr;
};

} // namespace bench

#endif
