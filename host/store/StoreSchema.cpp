#include "store/StoreSchema.h"

#include <QStringList>

#include <algorithm>
#include <memory>

#include <sqlite3.h>

namespace ko {

namespace StoreSchema {

namespace {

const char changeSetTable[] =
    "CREATE TABLE change_sets (seq INTEGER PRIMARY KEY AUTOINCREMENT, id TEXT NOT NULL UNIQUE,"
    " time INTEGER NOT NULL, user TEXT NOT NULL, host TEXT NOT NULL, purpose TEXT NOT NULL,"
    " subject TEXT NOT NULL)";

const char chainTable[] =
    "CREATE TABLE chain (seq INTEGER PRIMARY KEY AUTOINCREMENT, kind TEXT NOT NULL,"
    " set_end INTEGER NOT NULL, change_end INTEGER NOT NULL, audit_end INTEGER NOT NULL,"
    " sets INTEGER NOT NULL, changes INTEGER NOT NULL, audits INTEGER NOT NULL,"
    " checks BLOB NOT NULL, hash BLOB NOT NULL, seal BLOB NOT NULL)";

const char propertiesTable[] =
    "CREATE TABLE node_properties (node INTEGER PRIMARY KEY REFERENCES nodes (n) ON DELETE CASCADE,"
    " properties TEXT NOT NULL, mac TEXT NOT NULL, extension TEXT NOT NULL)";

// Numbers of nodes are never given twice: they say which node is older, and another process may still
// hold the number of a node that is gone.
// The columns location, recording and lookup repeat what follows from the properties, so that a list can
// be shown without reading them.
QVector<const char*> firstTables()
{
    return {
        "CREATE TABLE nodes (n INTEGER PRIMARY KEY AUTOINCREMENT, id TEXT NOT NULL UNIQUE,"
        " type INTEGER NOT NULL, name TEXT NOT NULL, location TEXT NOT NULL,"
        " recording INTEGER NOT NULL, lookup TEXT NOT NULL)",
        "CREATE TABLE properties (node INTEGER NOT NULL REFERENCES nodes (n) ON DELETE CASCADE,"
        " key TEXT NOT NULL, type INTEGER NOT NULL CHECK (type BETWEEN 0 AND 4), value,"
        " PRIMARY KEY (node, key)) WITHOUT ROWID",
        "CREATE TABLE relations (seq INTEGER PRIMARY KEY,"
        " source INTEGER NOT NULL REFERENCES nodes (n) ON DELETE CASCADE,"
        " destination INTEGER NOT NULL REFERENCES nodes (n) ON DELETE CASCADE,"
        " type INTEGER NOT NULL, UNIQUE (source, destination, type))",
        "CREATE TABLE settings (key TEXT PRIMARY KEY, value TEXT NOT NULL) WITHOUT ROWID",
        "CREATE TABLE environments (position INTEGER PRIMARY KEY, id TEXT NOT NULL, name TEXT NOT NULL)",
        "CREATE TABLE audit (seq INTEGER PRIMARY KEY, time INTEGER NOT NULL, user TEXT NOT NULL,"
        " host TEXT NOT NULL, code INTEGER NOT NULL, data TEXT NOT NULL)",
        "CREATE TABLE program_log (seq INTEGER PRIMARY KEY, time INTEGER NOT NULL,"
        " level INTEGER NOT NULL, line TEXT NOT NULL)",
        "CREATE TABLE changes (seq INTEGER PRIMARY KEY AUTOINCREMENT, kind TEXT NOT NULL,"
        " id TEXT NOT NULL)",
    };
}

const QVector<QVector<const char*>>& steps()
{
    static const QVector<QVector<const char*>> steps = {
        firstTables(),
        {
            "CREATE INDEX nodes_lookup ON nodes (lookup) WHERE lookup <> ''",
            "CREATE INDEX relations_destination ON relations (destination)",
        },
        {
            // Passwords are sealed with what SQL does not know; see StoredSecrets.
            "INSERT OR REPLACE INTO settings SELECT 'secrets.toSeal', '1'"
            " WHERE EXISTS (SELECT 1 FROM properties) OR EXISTS (SELECT 1 FROM settings)",
        },
        {
            // From here on the changes that processes tell each other of are the history, too.
            changeSetTable,
            "ALTER TABLE changes ADD COLUMN change_set INTEGER REFERENCES change_sets (seq)",
            "ALTER TABLE changes ADD COLUMN before TEXT",
            "ALTER TABLE changes ADD COLUMN after TEXT",
            "ALTER TABLE audit ADD COLUMN change_set INTEGER REFERENCES change_sets (seq)",
            "CREATE INDEX changes_set ON changes (change_set) WHERE change_set IS NOT NULL",
            "CREATE INDEX audit_set ON audit (change_set) WHERE change_set IS NOT NULL",
            // A scan asks for each device that it finds.
            "CREATE INDEX properties_mac ON properties (value) WHERE key = 'MACAddress'",
        },
        {
            // Each device that gets a factory extension asks whether another one has it.
            "CREATE INDEX properties_extension ON properties (value) WHERE key = 'FactoryIP'",
        },
        {
            // The history of one node.
            "CREATE INDEX changes_id ON changes (id, change_set)",
        },
        {
            // Over the logs; see LogChain.
            chainTable,
        },
        {
            // One row a node, as it is always read. The columns mac and extension repeat what is asked for by
            // an index.
            propertiesTable,
            PropertyObjects,
            "DROP TABLE properties",
            "CREATE INDEX properties_mac ON node_properties (mac) WHERE mac <> ''",
            "CREATE INDEX properties_extension ON node_properties (extension) WHERE extension <> ''",
        },
    };
    return steps;
}

/// All that a database has, as texts that begin with the kind and the name of a thing and are in order.
QStringList objects(sqlite3* handle, int* error)
{
    QStringList found;
    sqlite3_stmt* rows = nullptr;
    // An administrator's ANALYZE leaves tables of statistics.
    *error = sqlite3_prepare_v2(handle,
                                "SELECT type || ' ' || name || ' ' || tbl_name || ' ' || coalesce(sql, '')"
                                " FROM main.sqlite_schema WHERE name NOT GLOB 'sqlite_stat[0-9]' ORDER BY 1",
                                -1, &rows, nullptr);
    int result = *error == SQLITE_OK ? SQLITE_ROW : *error;
    while (result == SQLITE_ROW && (result = sqlite3_step(rows)) == SQLITE_ROW)
        found.append(QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(rows, 0))));
    sqlite3_finalize(rows);
    *error = result == SQLITE_DONE ? SQLITE_OK : result;
    return found;
}

/// What a new database of this version has, and with it what a shared one has.
QStringList expectedObjects(int version, bool isShared, int* error)
{
    sqlite3* handle = nullptr;
    *error = sqlite3_open_v2(":memory:", &handle, SQLITE_OPEN_READWRITE | SQLITE_OPEN_MEMORY, nullptr);
    const std::unique_ptr<sqlite3, int (*)(sqlite3*)> closing(handle, &sqlite3_close);
    for (int step = 0; step < version && *error == SQLITE_OK; ++step) {
        const QVector<const char*> statements = stepFrom(step);
        for (const char* statement : statements) {
            if (*error == SQLITE_OK)
                *error = sqlite3_exec(handle, statement, nullptr, nullptr, nullptr);
        }
    }
    for (int i = 0; isShared && i < sharingStatements().size() && *error == SQLITE_OK; ++i)
        *error = sqlite3_exec(handle, sharingStatements().at(i), nullptr, nullptr, nullptr);
    return *error == SQLITE_OK ? objects(handle, error) : QStringList();
}

QString firstWords(const QString& object)
{
    return object.section(QLatin1Char(' '), 0, 1);
}

} // namespace

// Another program may have put there what is no JSON.
const char* const PropertyObjects =
    "INSERT OR IGNORE INTO node_properties (node, properties, mac, extension) SELECT n,"
    " (SELECT json_group_object(key, json(CASE WHEN json_valid(pair) THEN pair ELSE '[0,\"\"]' END)) FROM"
    " (SELECT key, '[' || type || ',' || CASE WHEN typeof(value) = 'blob' THEN '\"\"' WHEN type = 4 THEN "
    "value"
    " ELSE json_quote(value) END || ']' AS pair FROM properties WHERE node = n ORDER BY key)),"
    " coalesce((SELECT value FROM properties WHERE node = n AND key = 'MACAddress' AND type = 0), ''),"
    " coalesce((SELECT value FROM properties WHERE node = n AND key = 'FactoryIP' AND type = 0), '')"
    " FROM nodes";

QString difference(sqlite3* handle, int version, Extent extent, int* error)
{
    *error = SQLITE_OK;
    if (version < 0 || version > latest()) // the file may say anything
        return QString::fromLatin1("version %1").arg(version);
    QStringList found = objects(handle, error);
    if (*error != SQLITE_OK)
        return QString();
    const bool isShared = std::any_of(found.constBegin(), found.constEnd(), [](const QString& object) {
        return object.startsWith(QLatin1String("table shared_site "));
    });
    const QStringList expected = expectedObjects(version, isShared, error);
    for (const QString& object : expected) {
        if (!found.removeOne(object))
            return QLatin1String("not as it should be: ") + firstWords(object);
    }
    const auto isForeign = [extent](const QString& object) {
        return extent == Extent::Only || object.startsWith(QLatin1String("trigger "));
    };
    const auto foreign = std::find_if(found.constBegin(), found.constEnd(), isForeign);
    return foreign == found.constEnd() ? QString()
                                       : QLatin1String("should not be there: ") + firstWords(*foreign);
}

// The number of a line is negative while the site has lost it; its line is NULL when the site made it. Undone
// is what this desk changed and the site could not do for want of the node, until the user has seen it.
const QVector<const char*>& sharingStatements()
{
    static const QVector<const char*> statements = {
        "CREATE TABLE IF NOT EXISTS shared_site (one INTEGER PRIMARY KEY CHECK (one = 1), id TEXT NOT NULL,"
        " position INTEGER NOT NULL)",
        "CREATE TABLE IF NOT EXISTS shared_parcels (number INTEGER PRIMARY KEY, id TEXT NOT NULL)",
        "CREATE TABLE IF NOT EXISTS shared_lines (seq INTEGER PRIMARY KEY, change_set INTEGER NOT NULL,"
        " line INTEGER, number INTEGER NOT NULL, UNIQUE (change_set, line))",
        "CREATE INDEX IF NOT EXISTS shared_lines_number ON shared_lines (number)",
        "CREATE TABLE IF NOT EXISTS shared_undone (seq INTEGER PRIMARY KEY, node TEXT NOT NULL)",
    };
    return statements;
}

int latest()
{
    return int(steps().size());
}

QVector<const char*> stepFrom(int version)
{
    return steps().at(version);
}

} // namespace StoreSchema

} // namespace ko
