#include "store/StoreSchema.h"

namespace ko {

namespace StoreSchema {

namespace {

// Numbers of nodes are never given twice: they say which node is older, and another process may still
// hold the number of a node that is gone.
// The columns location, recording and lookup repeat what follows from the properties, so that a list can
// be shown without reading them.
const QVector<QVector<const char*>>& steps()
{
    static const QVector<QVector<const char*>> steps = {
        {
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
        },
        {
            "CREATE INDEX nodes_lookup ON nodes (lookup) WHERE lookup <> ''",
            "CREATE INDEX relations_destination ON relations (destination)",
        },
        {
            // Passwords are sealed with what SQL does not know; see StoredSecrets.
            "INSERT OR REPLACE INTO settings SELECT 'secrets.toSeal', '1'"
            " WHERE EXISTS (SELECT 1 FROM properties) OR EXISTS (SELECT 1 FROM settings)",
        },
    };
    return steps;
}

} // namespace

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
