#include "store/NodeTables.h"

#include "ko/LogQt.h"
#include "store/PropertyCoding.h"

#include <algorithm>
#include <limits>
#include <string_view>

namespace ko {

namespace {

/// What comes back the same from a QString, by which the node will be asked for.
bool isIdentifier(std::string_view utf8)
{
    const auto isPlain = [](char c) { return c > 0; };
    if (std::all_of(utf8.begin(), utf8.end(), isPlain))
        return !utf8.empty();
    return QString::fromUtf8(utf8.data(), int(utf8.size())).toStdString() == utf8;
}

/// A null string would be bound as NULL, which no column takes.
QString notNull(const QString& text)
{
    return text.isNull() ? QString::fromLatin1("") : text;
}

NodeRow nodeRow(const SqliteStore::Rows& rows)
{
    NodeRow row;
    row.n = rows.number(0);
    row.summary.id = rows.text(1);
    row.summary.type = ENodeType(rows.number(2));
    row.summary.name = rows.text(3);
    row.summary.location = rows.text(4);
    row.summary.recordingUsage = int(rows.number(5));
    return row;
}

QVector<RelationRow> relationRows(SqliteStore::Rows rows)
{
    QVector<RelationRow> result;
    while (rows.next())
        result.append({rows.text(0), rows.text(1), ENodeRelationType(rows.number(2))});
    return result;
}

} // namespace

NodeTables::NodeTables(SqliteStore& store)
    : m_store(store)
{
}

void NodeTables::forEachNode(const std::function<void(qint64, const PackedSummary&)>& visit)
{
    SqliteRows rows = m_store.read("SELECT n, id, type, name, location, recording FROM nodes ORDER BY n");
    while (rows.next()) {
        if (isIdentifier(rows.utf8(1)))
            visit(rows.number(0), PackedSummary(rows.utf8(1), ENodeType(rows.number(2)), rows.utf8(3),
                                                rows.utf8(4), int(rows.number(5))));
        else
            LogQt::line(
                LogQt::Error,
                QString::fromLatin1("Node %1 is left out: its identifier is no text").arg(rows.number(0)));
    }
}

NodeRow NodeTables::node(const NodeID& id)
{
    SqliteStore::Rows rows = m_store.run(
        "SELECT n, id, type, name, location, recording, lookup FROM nodes WHERE id = ?", {notNull(id)});
    if (!rows.next())
        return NodeRow();
    NodeRow row = nodeRow(rows);
    row.lookupKey = rows.text(6);
    return row;
}

void NodeTables::forEachLookupKey(const std::function<void(const NodeID&, const QString&)>& visit)
{
    SqliteStore::Rows rows = m_store.run("SELECT id, lookup FROM nodes WHERE lookup <> ''");
    while (rows.next())
        visit(rows.text(0), rows.text(1));
}

qint64 NodeTables::number(const NodeID& id)
{
    return m_store.value("SELECT n FROM nodes WHERE id = ?", {notNull(id)}).toLongLong();
}

bool NodeTables::readProperties(const NodeID& id, PropertyList* properties)
{
    SqliteStore::Rows rows = m_store.run("SELECT key, type, value FROM properties"
                                         " WHERE node = (SELECT n FROM nodes WHERE id = ?) ORDER BY key",
                                         {notNull(id)});
    while (rows.next()) {
        const QVariant value = PropertyCoding::decode(int(rows.number(1)), rows.value(2));
        properties->set(rows.text(0), value);
    }
    return properties->count() > 0 || number(id) != 0;
}

qint64 NodeTables::insertNode(const NodeSummary& summary, const QString& lookupKey)
{
    return m_store
        .run("INSERT INTO nodes (id, type, name, location, recording, lookup) VALUES (?, ?, ?, ?, ?, ?)",
             {summary.id, int(summary.type), notNull(summary.name), notNull(summary.location),
              summary.recordingUsage, notNull(lookupKey)})
        .insertedId();
}

void NodeTables::updateNode(qint64 n, const NodeSummary& summary, const QString& lookupKey)
{
    m_store.run(
        "UPDATE nodes SET name = ?, location = ?, recording = ?, lookup = ? WHERE n = ?",
        {notNull(summary.name), notNull(summary.location), summary.recordingUsage, notNull(lookupKey), n});
}

void NodeTables::removeNode(const NodeID& id)
{
    m_store.run("DELETE FROM nodes WHERE id = ?", {notNull(id)});
}

void NodeTables::setProperty(qint64 n, const QString& name, const QVariant& value)
{
    if (!value.isValid()) {
        m_store.run("DELETE FROM properties WHERE node = ? AND key = ?", {n, notNull(name)});
        return;
    }
    const PropertyCoding::Stored stored = PropertyCoding::encode(value);
    m_store.run("INSERT INTO properties (node, key, type, value) VALUES (?, ?, ?, ?)"
                " ON CONFLICT (node, key) DO UPDATE SET type = excluded.type, value = excluded.value",
                {n, notNull(name), stored.type, stored.value});
}

QVector<RelationRow> NodeTables::relations()
{
    return relationRows(m_store.run("SELECT a.id, b.id, r.type FROM relations r JOIN nodes a ON a.n = "
                                    "r.source JOIN nodes b ON b.n = r.destination ORDER BY r.seq"));
}

QVector<RelationRow> NodeTables::relationsFrom(const NodeID& source)
{
    return relationRows(m_store.run("SELECT a.id, b.id, r.type FROM nodes a JOIN relations r ON r.source = "
                                    "a.n JOIN nodes b ON b.n = r.destination WHERE a.id = ? ORDER BY r.seq",
                                    {notNull(source)}));
}

void NodeTables::addRelation(const RelationRow& relation)
{
    // Adds nothing where another process has removed one of the nodes.
    m_store.run("INSERT OR IGNORE INTO relations (source, destination, type)"
                " SELECT a.n, b.n, ? FROM nodes a, nodes b WHERE a.id = ? AND b.id = ?",
                {int(relation.type), relation.source, relation.destination});
}

void NodeTables::removeRelation(const RelationRow& relation)
{
    m_store.run("DELETE FROM relations WHERE source = (SELECT n FROM nodes WHERE id = ?)"
                " AND destination = (SELECT n FROM nodes WHERE id = ?) AND type = ?",
                {relation.source, relation.destination, int(relation.type)});
}

NodeTables::Settings NodeTables::settings()
{
    Settings settings;
    SqliteStore::Rows rows = m_store.run("SELECT key, value FROM settings");
    while (rows.next())
        settings.insert(rows.text(0), rows.text(1));
    return settings;
}

void NodeTables::setSetting(const QString& key, const QString& value)
{
    m_store.run("INSERT OR REPLACE INTO settings (key, value) VALUES (?, ?)", {key, notNull(value)});
}

Environments::List NodeTables::environments()
{
    Environments::List list;
    SqliteStore::Rows rows = m_store.run("SELECT id, name FROM environments ORDER BY position");
    while (rows.next())
        list.append({rows.text(0), rows.text(1)});
    return list;
}

void NodeTables::setEnvironments(const Environments::List& list)
{
    m_store.run("DELETE FROM environments");
    int position = 0;
    for (const auto& environment : list)
        m_store.run("INSERT INTO environments (position, id, name) VALUES (?, ?, ?)",
                    {position++, notNull(environment.first), notNull(environment.second)});
}

void NodeTables::addAudit(const AuditRow& row)
{
    m_store.run("INSERT INTO audit (time, user, host, code, data) VALUES (?, ?, ?, ?, ?)",
                {row.time, notNull(row.user), notNull(row.host), row.code, notNull(row.data)});
}

QVector<AuditRow> NodeTables::audit(const LogRange& range)
{
    QVector<AuditRow> result;
    const QVariantList limits = {range.count, range.skip};
    SqliteStore::Rows rows = range.newestFirst
                                 ? m_store.run("SELECT seq, time, user, host, code, data FROM audit"
                                               " ORDER BY seq DESC LIMIT ? OFFSET ?",
                                               limits)
                                 : m_store.run("SELECT seq, time, user, host, code, data FROM audit"
                                               " ORDER BY seq LIMIT ? OFFSET ?",
                                               limits);
    while (rows.next())
        result.append({rows.number(0), rows.number(1), rows.text(2), rows.text(3), quint32(rows.number(4)),
                       rows.text(5)});
    return result;
}

qint64 NodeTables::auditCount()
{
    return m_store.value("SELECT count(*) FROM audit").toLongLong();
}

void NodeTables::addProgramLine(const ProgramRow& row)
{
    m_store.run("INSERT INTO program_log (time, level, line) VALUES (?, ?, ?)",
                {row.time, row.level, notNull(row.line)});
}

QVector<ProgramRow> NodeTables::programLines(const LogRange& range)
{
    QVector<ProgramRow> result;
    const QVariantList limits = {range.count, range.skip};
    SqliteStore::Rows rows =
        range.newestFirst
            ? m_store.run("SELECT seq, time, level, line FROM program_log ORDER BY seq DESC LIMIT ? OFFSET ?",
                          limits)
            : m_store.run("SELECT seq, time, level, line FROM program_log ORDER BY seq LIMIT ? OFFSET ?",
                          limits);
    while (rows.next())
        result.append({rows.number(0), rows.number(1), int(rows.number(2)), rows.text(3)});
    return result;
}

qint64 NodeTables::programLineCount()
{
    return m_store.value("SELECT count(*) FROM program_log").toLongLong();
}

qint64 NodeTables::lastChange()
{
    const qint64 last = m_store.value("SELECT seq FROM sqlite_sequence WHERE name = 'changes'").toLongLong();
    return qBound<qint64>(0, last, std::numeric_limits<qint64>::max() - 1); // another program's may be any
}

bool NodeTables::hasChangesSince(qint64 seq)
{
    // Rows go from the oldest on, without gaps.
    return lastChange() == seq || m_store.value("SELECT 1 FROM changes WHERE seq = ?", {seq + 1}).isValid();
}

QVector<ChangeRow> NodeTables::changesSince(qint64 seq)
{
    QVector<ChangeRow> result;
    SqliteStore::Rows rows = m_store.run("SELECT kind, id FROM changes WHERE seq > ? ORDER BY seq", {seq});
    while (rows.next()) {
        const QString kind = rows.text(0);
        if (!kind.isEmpty())
            result.append({ChangeRow::Kind(kind.at(0).toLatin1()), rows.text(1)});
    }
    return result;
}

void NodeTables::addChange(const ChangeRow& change)
{
    m_store.run("INSERT INTO changes (kind, id) VALUES (?, ?)",
                {QString(QLatin1Char(change.kind)), notNull(change.id)});
}

void NodeTables::trimChanges()
{
    m_store.run("DELETE FROM changes WHERE seq <= ?", {lastChange() - MaxChanges});
}

void NodeTables::trimProgramLines()
{
    m_store.run("DELETE FROM program_log WHERE seq <= (SELECT max(seq) FROM program_log) - ?",
                {MaxProgramLines});
}

} // namespace ko
