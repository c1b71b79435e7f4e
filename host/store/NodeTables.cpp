#include "store/NodeTables.h"

#include "ko/LogQt.h"
#include "ko/PropertyKeys.h"
#include "store/JsonText.h"
#include "store/PropertyCoding.h"

#include <algorithm>
#include <string_view>
#include <utility>

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

/// Of many nodes that are read together.
const int idsOfAStatement = 500;

QVector<Relation> relationRows(SqliteStore::Rows rows)
{
    QVector<Relation> result;
    while (rows.next())
        result.append({rows.text(0), rows.text(1), ENodeRelationType(rows.number(2))});
    return result;
}

/// Of the columns id, n, type, name, location, recording, lookup.
void take(const SqliteStore::Rows& rows, NodeRow* row)
{
    row->place = rows.number(1);
    row->summary = PackedSummary(
        NodeSummary{row->id, ENodeType(rows.number(2)), rows.text(3), rows.text(4), int(rows.number(5))});
    row->lookupKey = rows.text(6);
}

PropertyList propertiesOf(const NodeID& id, std::string_view json)
{
    const std::optional<PropertyList> list = PropertyCoding::listFromText(json);
    if (!list)
        LogQt::line(LogQt::Error, QString::fromLatin1("The properties of node %1 cannot be read").arg(id));
    return list.value_or(PropertyList());
}

QStringList identifiers(SqliteStore::Rows rows)
{
    QStringList ids;
    while (rows.next())
        ids.append(rows.text(0));
    return ids;
}

} // namespace

NodeTables::NodeTables(SqliteStore& store)
    : m_store(store)
{
}

void NodeTables::forEachNode(const std::function<void(qint64, const PackedSummary&)>& visit)
{
    SqliteStore::Rows rows =
        m_store.run("SELECT n, id, type, name, location, recording FROM nodes ORDER BY n");
    while (rows.next()) {
        const std::string_view id = rows.utf8(1);
        if (isIdentifier(id))
            visit(rows.number(0),
                  PackedSummary(NodeID::fromUtf8(id.data(), int(id.size())), ENodeType(rows.number(2)),
                                rows.utf8(3), rows.utf8(4), int(rows.number(5))));
        else
            LogQt::line(
                LogQt::Error,
                QString::fromLatin1("Node %1 is left out: its identifier is no text").arg(rows.number(0)));
    }
}

NodeRow NodeTables::node(const NodeID& id)
{
    NodeRow row;
    row.id = id;
    SqliteStore::Rows rows =
        m_store.run("SELECT id, n, type, name, location, recording, lookup FROM nodes WHERE id = ?", {id});
    if (rows.next())
        take(rows, &row);
    return row;
}

QVector<NodeRow> NodeTables::nodes(const QStringList& ids)
{
    QVector<NodeRow> result;
    result.reserve(ids.size());
    QHash<NodeID, int> numbers;
    for (const NodeID& id : ids) {
        numbers.insert(id, int(result.size()));
        NodeRow row;
        row.id = id;
        result.append(row);
    }
    for (int first = 0; first < ids.size(); first += idsOfAStatement) {
        SqliteStore::Rows rows =
            m_store.run("SELECT n.id, n.n, n.type, n.name, n.location, n.recording, n.lookup"
                        " FROM json_each(?) j CROSS JOIN nodes n ON n.id = j.value",
                        {JsonText::list(ids.mid(first, idsOfAStatement))});
        while (rows.next())
            take(rows, &result[numbers.value(rows.text(0))]);
    }
    return result;
}

void NodeTables::forEachLookupKey(const std::function<void(const NodeID&, const QString&)>& visit)
{
    SqliteStore::Rows rows = m_store.run("SELECT id, lookup FROM nodes WHERE lookup <> ''");
    while (rows.next())
        visit(rows.text(0), rows.text(1));
}

std::optional<StoredProperties> NodeTables::properties(const NodeID& id)
{
    SqliteStore::Rows rows =
        m_store.run("SELECT n.n, p.properties FROM nodes n LEFT JOIN node_properties p ON p.node = n.n"
                    " WHERE n.id = ?",
                    {id});
    if (!rows.next())
        return std::nullopt;
    return StoredProperties{rows.number(0), propertiesOf(id, rows.utf8(1))};
}

void NodeTables::forEachProperties(const QStringList& ids,
                                   const std::function<void(const NodeID&, const PropertyList&)>& visit)
{
    for (int first = 0; first < ids.size(); first += idsOfAStatement) {
        SqliteStore::Rows rows =
            m_store.run("SELECT n.id, p.properties FROM json_each(?) j CROSS JOIN nodes n ON n.id = j.value"
                        " LEFT JOIN node_properties p ON p.node = n.n ORDER BY j.key",
                        {JsonText::list(ids.mid(first, idsOfAStatement))});
        while (rows.next()) {
            const NodeID id = rows.text(0);
            visit(id, propertiesOf(id, rows.utf8(1)));
        }
    }
}

void NodeTables::forEachValue(const QString& key,
                              const std::function<void(const NodeID&, const QVariant&)>& visit)
{
    SqliteStore::Rows rows = m_store.run(
        "SELECT n.id, CASE WHEN json_valid(p.properties) THEN json_extract(p.properties, ?) END AS pair"
        " FROM nodes n JOIN node_properties p ON p.node = n.n WHERE pair IS NOT NULL",
        {QString::fromLatin1("$.\"%1\"").arg(key)});
    while (rows.next())
        visit(rows.text(0), PropertyCoding::valueFromText(rows.utf8(1)));
}

QStringList NodeTables::nodesWithMac(const QString& mac)
{
    return identifiers(m_store.run("SELECT n.id FROM node_properties p JOIN nodes n ON n.n = p.node"
                                   " WHERE p.mac = ? AND p.mac <> ''",
                                   {mac}));
}

QStringList NodeTables::nodesWithExtension(const QString& extension)
{
    return identifiers(m_store.run("SELECT n.id FROM node_properties p JOIN nodes n ON n.n = p.node"
                                   " WHERE p.extension = ? AND p.extension <> ''",
                                   {extension}));
}

qint64 NodeTables::insertNode(qint64 place, const PackedSummary& packed, const QString& lookupKey)
{
    const NodeSummary summary = packed.unpacked();
    const auto insert = [&](const char* sql, const SqlValue& number) {
        return m_store.run(sql, {number, summary.id, int(summary.type), summary.name, summary.location,
                                 summary.recordingUsage, lookupKey});
    };
    if (place > 0 && insert("INSERT OR IGNORE INTO nodes (n, id, type, name, location, recording, lookup)"
                            " VALUES (?, ?, ?, ?, ?, ?, ?)",
                            place)
                             .changed() > 0)
        return place;
    return insert("INSERT INTO nodes (n, id, type, name, location, recording, lookup)"
                  " VALUES (?, ?, ?, ?, ?, ?, ?)",
                  SqlValue())
        .insertedId();
}

void NodeTables::updateNode(qint64 n, const PackedSummary& packed, const QString& lookupKey)
{
    const NodeSummary summary = packed.unpacked();
    m_store.run("UPDATE nodes SET name = ?, location = ?, recording = ?, lookup = ? WHERE n = ?",
                {summary.name, summary.location, summary.recordingUsage, lookupKey, n});
}

void NodeTables::removeNode(qint64 n)
{
    m_store.run("DELETE FROM nodes WHERE n = ?", {n});
}

QString NodeTables::setProperties(qint64 n, const PropertyList& properties)
{
    QString json;
    PropertyCoding::appendJson(&json, properties);
    const auto column = [&properties](QLatin1String key) {
        const QVariant value = properties.value(key);
        return value.userType() == QMetaType::QString ? value.toString() : QString();
    };
    m_store.run("INSERT INTO node_properties (node, properties, mac, extension) VALUES (?, ?, ?, ?)"
                " ON CONFLICT (node) DO UPDATE SET properties = excluded.properties, mac = excluded.mac,"
                " extension = excluded.extension",
                {n, json, column(PropertyKeys::MacAddress), column(PropertyKeys::FactoryIP)});
    return json;
}

QVector<Relation> NodeTables::relations()
{
    return relationRows(m_store.run("SELECT a.id, b.id, r.type FROM relations r JOIN nodes a ON a.n = "
                                    "r.source JOIN nodes b ON b.n = r.destination ORDER BY r.seq"));
}

QVector<Relation> NodeTables::relationsFrom(const NodeID& source)
{
    return relationRows(m_store.run("SELECT a.id, b.id, r.type FROM nodes a JOIN relations r ON r.source = "
                                    "a.n JOIN nodes b ON b.n = r.destination WHERE a.id = ? ORDER BY r.seq",
                                    {source}));
}

QHash<NodeID, QVector<Relation>> NodeTables::relationsFrom(const QStringList& sources)
{
    QHash<NodeID, QVector<Relation>> result;
    for (int first = 0; first < sources.size(); first += idsOfAStatement) {
        const QStringList some = sources.mid(first, idsOfAStatement);
        for (const NodeID& source : some)
            result.insert(source, {});
        const QVector<Relation> relations = relationRows(m_store.run(
            "SELECT a.id, b.id, r.type FROM json_each(?) j CROSS JOIN nodes a ON a.id = j.value CROSS JOIN"
            " relations r ON r.source = a.n CROSS JOIN nodes b ON b.n = r.destination ORDER BY r.seq",
            {JsonText::list(some)}));
        for (const Relation& relation : relations)
            result[relation.source].append(relation);
    }
    return result;
}

QVector<RelationChange> NodeTables::relationsOf(qint64 n)
{
    QVector<RelationChange> result;
    SqliteStore::Rows rows = m_store.run("SELECT a.id, b.id, r.type, r.seq FROM relations r"
                                         " JOIN nodes a ON a.n = r.source JOIN nodes b ON b.n = r.destination"
                                         " WHERE r.source = ? OR r.destination = ? ORDER BY r.seq",
                                         {n, n});
    while (rows.next())
        result.append(
            {{rows.text(0), rows.text(1), ENodeRelationType(rows.number(2))}, false, rows.number(3)});
    return result;
}

qint64 NodeTables::addRelation(const Relation& relation, qint64 place)
{
    // Adds nothing where another process has removed one of the nodes.
    const SqliteStore::Rows rows =
        m_store.run("INSERT OR IGNORE INTO relations (seq, source, destination, type)"
                    " SELECT ?, a.n, b.n, ? FROM nodes a, nodes b WHERE a.id = ? AND b.id = ?",
                    {place > 0 ? SqlValue(place) : SqlValue(), int(relation.type), relation.source,
                     relation.destination});
    if (rows.changed() > 0)
        return rows.insertedId();
    return place > 0 ? addRelation(relation, 0) : 0;
}

qint64 NodeTables::removeRelation(const Relation& relation)
{
    const qint64 place =
        m_store
            .value("SELECT seq FROM relations WHERE source = (SELECT n FROM nodes WHERE id = ?)"
                   " AND destination = (SELECT n FROM nodes WHERE id = ?) AND type = ?",
                   {relation.source, relation.destination, int(relation.type)})
            .toLongLong();
    if (place != 0)
        m_store.run("DELETE FROM relations WHERE seq = ?", {place});
    return place;
}

Settings NodeTables::settings()
{
    Settings settings;
    SqliteStore::Rows rows = m_store.run("SELECT key, value FROM settings");
    while (rows.next())
        settings.insert(rows.text(0), rows.text(1));
    return settings;
}

std::optional<QString> NodeTables::setting(const QString& key)
{
    const QVariant value = m_store.value("SELECT value FROM settings WHERE key = ?", {key});
    return value.isValid() ? std::make_optional(value.toString()) : std::nullopt;
}

void NodeTables::setSetting(const QString& key, const std::optional<QString>& value)
{
    if (value)
        m_store.run("INSERT OR REPLACE INTO settings (key, value) VALUES (?, ?)", {key, *value});
    else
        m_store.run("DELETE FROM settings WHERE key = ?", {key});
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
                    {position++, environment.first, environment.second});
}

void NodeTables::addProgramLine(const ProgramRow& row)
{
    m_store.run("INSERT INTO program_log (time, level, line) VALUES (?, ?, ?)",
                {row.time, row.level, row.line});
}

QVector<ProgramRow> NodeTables::programLines(const LogRange& range)
{
    QVector<ProgramRow> result;
    const std::initializer_list<SqlValue> limits = {range.count, range.skip};
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

void NodeTables::trimProgramLines()
{
    m_store.run("DELETE FROM program_log WHERE seq <= (SELECT max(seq) FROM program_log) - ?",
                {MaxProgramLines});
}

} // namespace ko
