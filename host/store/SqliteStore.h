#ifndef KO_SQLITESTORE_H
#define KO_SQLITESTORE_H

#include "model/StoreError.h"
#include "store/SqliteRows.h"
#include "store/StoreSchema.h"

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QVariant>

#include <memory>
#include <unordered_map>

namespace ko {

/// One connection to a node database file.
///
/// Everything but open() throws StoreFailure when it fails. A value of a statement never stands in the
/// text of an error.
class KO_HOST_EXPORT SqliteStore
{
public:
    /// How long a call waits for another process, in milliseconds.
    static constexpr int BusyTimeout = 2000;

    /// What a result code of SQLite means, extended or not.
    static StoreError::Kind kindOf(int code);

    /// When the pages of a file that is opened are looked through for damage, which takes a second for
    /// each few hundred megabytes.
    enum class Check {
        First,  ///< before anything else; a damaged file is not opened and stays byte for byte as it is
        ByUser, ///< whoever opens calls findDamage() before the first write
    };

    struct Opening
    {
        Check check = Check::First;
        bool mayBeEmptied = false; ///< make it anew also where a log or backups tell of an older one
        bool keepsCopy = true;     ///< of the file as it was, beside it, when it is migrated
        int version = StoreSchema::latest(); ///< another one serves the tests of migration
    };

    /// Opens \a file after looking whether it may be opened; a missing or empty file becomes an empty
    /// database of mode 0600. An older version is checked and migrated. On failure null and \a error, and
    /// the file is as it was.
    static std::unique_ptr<SqliteStore> open(const QString& file, StoreError* error, const Opening& opening);
    static std::unique_ptr<SqliteStore> open(const QString& file, StoreError* error,
                                             Check check = Check::First, int version = StoreSchema::latest());

    /// With Check::ByUser, after findDamage() found nothing: from now on the file may be changed.
    void setSound();

    /// Looks through every page of \a file, which may be in use. From any thread.
    static StoreError findDamage(const QString& file);
    ~SqliteStore();

    const QString& fileName() const { return m_file; }

    /// The rows of a statement that was run; ends the statement when it goes, so keep it short.
    class KO_HOST_EXPORT Rows
    {
    public:
        Rows(const SqliteStore& store, QSqlQuery& query);
        Rows(Rows&& other) noexcept;
        ~Rows();

        bool next();
        QVariant value(int column) const { return m_query->value(column); }
        QString text(int column) const { return value(column).toString(); }
        qint64 number(int column) const { return value(column).toLongLong(); }
        int changed() const { return m_query->numRowsAffected(); }
        qint64 insertedId() const { return m_query->lastInsertId().toLongLong(); }

    private:
        Q_DISABLE_COPY(Rows)
        const SqliteStore& m_store;
        QSqlQuery* m_query;
    };

    /// Runs a statement. It is prepared once and found again by its address, so \a sql is a literal.
    Rows run(const char* sql, const QVariantList& values = QVariantList());

    /// Rows of a statement without values that goes through a whole table.
    SqliteRows read(const char* sql) const;

    /// The first column of the first row, or an invalid value.
    QVariant value(const char* sql, const QVariantList& values = QVariantList());

    /// Runs a statement that is not worth keeping.
    void execute(const QString& sql);

    /// Changes whenever another connection, of this or another process, has committed.
    qint64 dataVersion();

    sqlite3* handle() const;

private:
    enum Mode { ReadOnly, ReadWrite };

    SqliteStore(const QString& file, Mode mode);
    Q_DISABLE_COPY(SqliteStore)

    static std::unique_ptr<SqliteStore> openOrThrow(const QString& file, const Opening& opening);
    static void checkFile(const QString& file, const Opening& opening);
    void checkTables(int version);
    void findDamage();
    void prepare(const Opening& opening);
    void create(int version);
    void migrate(int from, const Opening& opening);
    QString backUp(int version);
    int userVersion();
    void applySteps(int from, int to);
    [[noreturn]] void fail(const QSqlError& error) const;

    const QString m_file;
    const QString m_connection;
    QSqlDatabase m_database;
    std::unordered_map<const char*, QSqlQuery> m_statements;
};

/// Rolled back unless commit() was reached.
class KO_HOST_EXPORT Transaction
{
public:
    enum Kind {
        Read,     ///< one unchanging view of the database
        Write,    ///< keeps other writers out from the start
        Exclusive ///< also keeps other readers out
    };

    Transaction(SqliteStore& store, Kind kind);
    ~Transaction();

    void commit();

private:
    Q_DISABLE_COPY(Transaction)
    SqliteStore& m_store;
    bool m_open = true;
};

} // namespace ko

#endif
