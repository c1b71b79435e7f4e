#include "store/Salvage.h"

#include "store/SqliteFile.h"
#include "store/SqliteStore.h"
#include "store/StoreFile.h"
#include "store/StoreSchema.h"

#include <QFile>
#include <QFileInfo>

#include <memory>

#include <sqlite3.h>

namespace ko {

namespace {

constexpr int HeaderSize = 100; // of an SQLite file
constexpr int PageSize = 4096;  // of those that we make
constexpr int PageCountOffset = 28;

/// What of the copy is replaced before it is read, each more than the one before.
enum class Mend {
    Length,   ///< nothing but that no page is said to be there that is not
    Header,   ///< also the header, as when something else was written over the start of the file
    FirstPage ///< also where the tables begin: in databases of ours, mostly in the same pages
};

struct Finalize
{
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
typedef std::unique_ptr<sqlite3_stmt, Finalize> Statement;

struct Close
{
    void operator()(sqlite3* handle) const { sqlite3_close(handle); }
};
typedef std::unique_ptr<sqlite3, Close> Handle;

/// Null if it cannot be opened. A damaged file may be a hostile one: nothing in it is run.
Handle openDefensively(const QString& file)
{
    sqlite3* opened = nullptr;
    const int result =
        sqlite3_open_v2(QFile::encodeName(file).constData(), &opened, SQLITE_OPEN_READWRITE, nullptr);
    Handle handle(opened);
    if (result != SQLITE_OK)
        return nullptr;
    SqliteFile::harden(opened);
    return handle;
}

Statement prepare(sqlite3* handle, const QByteArray& sql)
{
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(handle, sql.constData(), int(sql.size()), &statement, nullptr);
    return Statement(statement);
}

/// The order that is reversed by going backwards.
const char* backwards(const QByteArray& table)
{
    if (table == "properties")
        return " ORDER BY node DESC, key DESC";
    return table == "settings" ? " ORDER BY key DESC" : " ORDER BY rowid DESC";
}

QByteArrayList columns(sqlite3* handle, const QByteArray& table)
{
    const Statement rows = prepare(handle, "SELECT * FROM " + table);
    QByteArrayList names;
    for (int column = 0; column < sqlite3_column_count(rows.get()); ++column)
        names.append(sqlite3_column_name(rows.get(), column));
    return names;
}

/// Copies rows up to the first page that cannot be read, and returns how many were new. Rows that do not fit
/// are left out. \a most is more than a sound file can hold: pages of a damaged one may go in circles.
qint64 copyRows(sqlite3* from, sqlite3* to, const QByteArray& table, const char* order, qint64 most)
{
    QByteArrayList common; // a table of an older version has fewer columns
    const QByteArrayList there = columns(from, table);
    const QByteArrayList ours = columns(to, table);
    QByteArrayList places;
    for (const QByteArray& column : ours) {
        if (there.contains(column)) {
            common.append(column);
            places.append("?");
        }
    }
    const QByteArray list = common.join(", ");
    const Statement rows = prepare(from, "SELECT " + list + " FROM " + table + order);
    const Statement insert =
        prepare(to, "INSERT OR IGNORE INTO " + table + " (" + list + ") VALUES (" + places.join(", ") + ")");
    if (!rows || !insert)
        return 0;
    qint64 copied = 0;
    while (most-- > 0 && sqlite3_step(rows.get()) == SQLITE_ROW) {
        for (int column = 0; column < places.size(); ++column)
            sqlite3_bind_value(insert.get(), column + 1, sqlite3_column_value(rows.get(), column));
        if (sqlite3_step(insert.get()) == SQLITE_DONE)
            copied += sqlite3_changes(to);
        sqlite3_reset(insert.get());
    }
    return copied;
}

/// What lies after a bad page is reached from the other end.
qint64 copyTable(sqlite3* from, sqlite3* to, const QByteArray& table, qint64 most)
{
    qint64 copied = 0;
    for (const char* order : {"", backwards(table)})
        copied += copyRows(from, to, table, order, most);
    return copied;
}

qint64 copyTables(sqlite3* from, sqlite3* to, qint64 most)
{
    qint64 copied = 0;
    for (const char* table : SqliteFile::Tables)
        copied += copyTable(from, to, table, most);
    return copied;
}

bool copyFile(const QString& from, const QString& to)
{
    QFile::remove(to);
    // A named pipe would be waited for without end.
    return QFileInfo(from).isFile() && QFile::copy(from, to) &&
           QFile::setPermissions(to, QFile::ReadOwner | QFile::WriteOwner);
}

/// Copies \a database with its journals to \a copy. False if that fails.
bool copyDatabase(const QString& database, const QString& copy)
{
    for (const char* end : {"-wal", "-journal"}) {
        copyFile(database + QLatin1String(end), copy + QLatin1String(end));
        QFile::remove(copy + QLatin1String("-shm"));
    }
    return copyFile(database, copy);
}

/// The page size that the header tells, or ours.
int pageSizeOf(const QByteArray& header)
{
    const int size = uchar(header.at(16)) << 8 | uchar(header.at(17));
    const bool isPowerOfTwo = size >= 512 && (size & (size - 1)) == 0;
    return size == 1 ? 65536 : isPowerOfTwo ? size : PageSize;
}

bool mend(const QString& copy, const QByteArray& soundPage, Mend what)
{
    QFile file(copy);
    if (!file.open(QIODevice::ReadWrite))
        return false;
    QByteArray header = what == Mend::Length ? file.read(HeaderSize) : soundPage.left(HeaderSize);
    if (header.size() < HeaderSize)
        return false;
    const int pageSize = pageSizeOf(header);
    const qint64 pages = (file.size() + pageSize - 1) / pageSize;
    for (int i = 0; i < 4; ++i)
        header[PageCountOffset + i] = char(pages >> (24 - 8 * i));
    return file.resize(pages * pageSize) && file.seek(0) &&
           file.write(what == Mend::FirstPage ? header + soundPage.mid(HeaderSize) : header) >= HeaderSize;
}

void execute(sqlite3* handle, const QString& file, const QByteArray& sql)
{
    const int result = sqlite3_exec(handle, sql.constData(), nullptr, nullptr, nullptr);
    if (result != SQLITE_OK)
        throw StoreFailure{
            StoreError::make(SqliteStore::kindOf(result), file, QString::fromUtf8(sqlite3_errmsg(handle)))};
}

qint64 countNodes(sqlite3* handle)
{
    const Statement statement = prepare(handle, "SELECT count(*) FROM nodes");
    return statement && sqlite3_step(statement.get()) == SQLITE_ROW ? sqlite3_column_int64(statement.get(), 0)
                                                                    : 0;
}

/// Copies what can be read of \a copy into \a saved and returns how many rows were new.
qint64 save(const QString& copy, const QString& saved, qint64* nodes)
{
    const Handle from = openDefensively(copy);
    const Handle to = openDefensively(saved);
    if (!from || !to)
        return 0;
    execute(to.get(), saved, "PRAGMA foreign_keys = OFF");
    execute(to.get(), saved, "BEGIN");
    const qint64 most = QFileInfo(copy).size();
    qint64 copied = copyTables(from.get(), to.get(), most);
    // The file may be of a version that had a row for each property.
    execute(to.get(), saved,
            "CREATE TABLE properties (node, key, type, value, PRIMARY KEY (node, key)) WITHOUT ROWID");
    copied += copyTable(from.get(), to.get(), "properties", most);
    execute(to.get(), saved, StoreSchema::PropertyObjects);
    execute(to.get(), saved, "DROP TABLE properties");
    // Without their nodes these mean nothing.
    execute(to.get(), saved, "DELETE FROM node_properties WHERE node NOT IN (SELECT n FROM nodes)");
    execute(to.get(), saved,
            "DELETE FROM relations WHERE source NOT IN (SELECT n FROM nodes)"
            " OR destination NOT IN (SELECT n FROM nodes)");
    // In a database that came from an older version this table begins where the first page of a new one does
    // not know, and rows of another were taken for its rows.
    execute(to.get(), saved,
            "DELETE FROM change_sets WHERE typeof(time) <> 'integer' OR time < 1000000000000"); // ms: 2001
    for (const char* table : {"audit", "changes"})
        execute(to.get(), saved,
                QByteArray("UPDATE ") + table +
                    " SET change_set = NULL WHERE change_set NOT IN (SELECT seq FROM change_sets)");
    // It would be over rows that are not there.
    execute(to.get(), saved, "DELETE FROM chain");
    // The rows may be of a version that sealed no passwords.
    execute(to.get(), saved, "INSERT OR REPLACE INTO settings VALUES ('secrets.toSeal', '1')");
    execute(to.get(), saved, "COMMIT");
    *nodes = countNodes(to.get());
    return copied;
}

QByteArray firstPage(const QString& file)
{
    QFile reader(file);
    return reader.open(QIODevice::ReadOnly) ? reader.read(PageSize) : QByteArray();
}

/// Of a database of this version, made as \a file for a moment.
QByteArray firstPageOf(int version, const QString& file)
{
    StoreError error;
    SqliteStore::open(file, &error, SqliteStore::Check::First, version).reset();
    if (error)
        throw StoreFailure{error};
    QByteArray page = firstPage(file);
    StoreFile::removeWithCompanions(file);
    return page;
}

} // namespace

Salvage::Salvage(const QString& database)
    : m_folder(database + QLatin1String(".recovery"))
{
    try {
        run(database);
    } catch (const StoreFailure& failure) {
        m_error = failure.error;
    }
}

void Salvage::run(const QString& database)
{
    if (!m_folder.isValid())
        throw StoreFailure{StoreError::make(StoreError::ReadOnly, database, m_folder.errorString())};
    const QString saved = m_folder.filePath(QLatin1String("saved.kodb"));
    const QString copy = m_folder.filePath(QLatin1String("copy.kodb"));
    SqliteStore::open(saved, &m_error).reset();
    if (m_error)
        return;
    qint64 rows = 0;
    const auto attempt = [&](Mend what, const QByteArray& soundPage) {
        if (m_nodes == 0 && copyDatabase(database, copy) && mend(copy, soundPage, what))
            rows += save(copy, saved, &m_nodes);
    };
    attempt(Mend::Length, firstPage(saved));
    attempt(Mend::Header, firstPage(saved));
    for (int version = StoreSchema::latest(); version > 0 && m_nodes == 0; --version)
        attempt(Mend::FirstPage, firstPageOf(version, m_folder.filePath(QLatin1String("empty.kodb"))));
    StoreFile::removeWithCompanions(copy);
    if (rows == 0)
        throw StoreFailure{
            StoreError::make(StoreError::Damaged, database, QLatin1String("nothing could be read"))};
}

} // namespace ko
