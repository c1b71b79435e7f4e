#ifndef KO_SQLITEFILE_H
#define KO_SQLITEFILE_H

#include <QString>

struct sqlite3;

namespace ko {

/// A database file opened with SQLite's own interface, for what QtSql has no words for. Everything throws
/// StoreFailure.
class SqliteFile
{
public:
    enum Mode { ReadOnly, ReadWrite };

    SqliteFile(const QString& file, Mode mode);
    ~SqliteFile();

    void execute(const char* sql);

    /// First column of the first row.
    QString text(const char* sql);

    void attach(const QString& file, const char* name);

    /// Makes \a target the same as this one, in one transaction of the target, whoever reads or writes
    /// either.
    void copyTo(SqliteFile& target);

private:
    Q_DISABLE_COPY(SqliteFile)
    void check(int result) const;

    const QString m_file;
    sqlite3* m_handle = nullptr;
};

} // namespace ko

#endif
