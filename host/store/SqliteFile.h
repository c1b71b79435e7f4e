#ifndef KO_SQLITEFILE_H
#define KO_SQLITEFILE_H

#include "model/StoreError.h"
#include "store/SqliteRows.h"

#include <QVariant>

#include <initializer_list>
#include <memory>
#include <unordered_map>

namespace ko {

/// A database file that is open, by SQLite's own interface: QtSql makes a variant of every value, and has no
/// words for much that is done here. Everything throws StoreFailure. A value of a statement never stands in
/// the text of an error.
///
/// Whoever wrote the file may mean harm: its triggers and views do not run.
class KO_HOST_EXPORT SqliteFile
{
public:
    enum Mode { ReadOnly, ReadWrite };

    /// How long a call waits for another process, in milliseconds.
    static constexpr int BusyTimeout = 2000;

    /// What a result code of SQLite means, extended or not.
    static StoreError::Kind kindOf(int code);

    ///  file exists.
    SqliteFile(const QString& file, Mode mode);
    ~SqliteFile();

    const QString& fileName() const { return m_file; }

    typedef SqliteRows Rows;

    /// Runs a statement. It is prepared once and found again by its address, so  sql is a literal, and its
    /// rows are gone before it is run again.
    Rows run(const char* sql, std::initializer_list<SqlValue> values = {});
    Rows run(const char* sql, const QVector<SqlValue>& values);

    /// The first column of the first row, or an invalid value.
    QVariant value(const char* sql, std::initializer_list<SqlValue> values = {});

    /// Runs statements that are not worth keeping.
    void execute(const QByteArray& sql);

    /// Throws what the last call of  handle, open on  file, failed with.
    [[noreturn]] static void fail(sqlite3* handle, const QString& file);

    /// Waits as long as other connections of this program do. Whoever writes in many transactions, one after
    /// the other, calls it between two of them.
    static void letOthersIn();

    /// What every connection of this program is told before it reads: triggers and views of the file do not
    /// run, nothing in it may change the schema, and no value is longer than a node needs.
    static void harden(sqlite3* handle);

    /// What a row-by-row copy takes with it: parents before children, so that references hold.
    static const char* const Tables[10];

    /// Whether closing may bring the log into the file: not as long as the file may be a damaged one.
    static void setCheckpointOnClose(sqlite3* handle, bool on);

    /// Throws unless the tables are those of the version that the file says it has, and nothing else is
    /// there.
    void requireTables();

    /// The same, and unless all pages are sound and all references lead somewhere.
    void requireSound();

    sqlite3* handle() const { return m_handle; }

    void attach(const QString& file, const char* name);

    /// Makes \a target the same as this one is now, in one transaction of the target, whoever reads or
    /// writes either.
    void copyTo(SqliteFile& target);

    /// The same, and \a target is then one file without a log. Throws, with \a target as it was, if another
    /// program has it open.
    void replace(SqliteFile& target);

private:
    Q_DISABLE_COPY(SqliteFile)
    Rows run(const char* sql, const SqlValue* values, int count);
    void check(int result) const;
    int copyPages(SqliteFile& target, int* result);

    struct Finalize
    {
        void operator()(sqlite3_stmt* statement) const;
    };

    const QString m_file;
    sqlite3* m_handle = nullptr;
    std::unordered_map<const char*, std::unique_ptr<sqlite3_stmt, Finalize>> m_statements;
};

} // namespace ko

#endif
