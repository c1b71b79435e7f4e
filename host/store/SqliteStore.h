#ifndef KO_SQLITESTORE_H
#define KO_SQLITESTORE_H

#include "store/SqliteFile.h"
#include "store/StoreSchema.h"

namespace ko {

/// One connection to a node database file, which was looked at and brought to the version of this program.
class KO_HOST_EXPORT SqliteStore : public SqliteFile
{
public:
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

    /// Another connection, that only reads, to a file that this process has open.
    static std::unique_ptr<SqliteStore> openBeside(const QString& file);

    /// With Check::ByUser, after findDamage() found nothing: from now on the file may be changed.
    void setSound();

    /// Looks through every page of \a file, which may be in use. From any thread.
    static StoreError findDamage(const QString& file);

    /// Changes whenever another connection, of this or another process, has committed.
    qint64 dataVersion();

private:
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
