#ifndef KO_SQLITEFILE_H
#define KO_SQLITEFILE_H

#include <QByteArray>
#include <QString>

struct sqlite3;

namespace ko {

/// A database file opened with SQLite's own interface, for what QtSql has no words for. Everything throws
/// StoreFailure.
///
/// Whoever wrote the file may mean harm: its triggers and views do not run.
class SqliteFile
{
public:
    enum Mode { ReadOnly, ReadWrite };

    SqliteFile(const QString& file, Mode mode);
    ~SqliteFile();

    /// What every connection of this program is told before it reads: triggers and views of the file do not
    /// run, nothing in it may change the schema, and no value is longer than a node needs.
    static void harden(sqlite3* handle);

    /// What a copy row by row takes over: parents before children, so that references hold.
    static const char* const Tables[10];

    /// Whether closing may bring the log into the file: not as long as the file may be a damaged one.
    static void setCheckpointOnClose(sqlite3* handle, bool on);

    void execute(const QByteArray& sql);

    /// Throws unless the tables are those of the version that the file says it has, and nothing else is
    /// there.
    void requireTables();

    /// The same, and unless all pages are sound and all references lead somewhere.
    void requireSound();

    sqlite3* handle() const { return m_handle; }

    /// First column of the first row.
    QString text(const char* sql);

    void attach(const QString& file, const char* name);

    /// Makes \a target the same as this one is now, in one transaction of the target, whoever reads or
    /// writes either.
    void copyTo(SqliteFile& target);

    /// The same, and \a target is then one file without a log. Throws, with \a target as it was, if another
    /// program has it open.
    void replace(SqliteFile& target);

private:
    Q_DISABLE_COPY(SqliteFile)
    void check(int result) const;
    int copyPages(SqliteFile& target, int* result);

    const QString m_file;
    sqlite3* m_handle = nullptr;
};

} // namespace ko

#endif
