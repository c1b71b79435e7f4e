#include "store/SharedTables.h"

#include "store/ChangeCoding.h"
#include "store/JsonText.h"
#include "store/PropertyCoding.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <simdjson.h>

namespace ko {

namespace {

namespace json = simdjson::ondemand;

/// [place, identifier, type, name, properties]; none if it is anything else.
std::optional<std::pair<qint64, NodeData>> nodeOf(const QByteArray& row)
{
    thread_local json::parser parser; // keeps its memory
    const simdjson::padded_string text(row.constData(), size_t(row.size()));
    std::pair<qint64, NodeData> node;
    NodeData& data = node.second;
    int column = 0;
    try {
        json::document document = parser.iterate(text);
        for (json::value value : document.get_array()) {
            switch (column++) {
            case 0:
                node.first = value.get_int64();
                break;
            case 1:
                data.id = JsonText::text(value.get_string());
                break;
            case 2:
                data.type = ENodeType(int(value.get_int64()));
                break;
            case 3:
                data.name = JsonText::text(value.get_string());
                break;
            case 4:
                json::object properties = value.get_object();
                const QByteArray compact = JsonText::withoutBlanks(properties.raw_json());
                if (std::optional<PropertyList> list = PropertyCoding::listFromText(compact.toStdString()))
                    data.properties = std::move(*list);
                break;
            }
        }
    } catch (const simdjson::simdjson_error&) {
        return std::nullopt;
    }
    return column == 5 ? std::make_optional(node) : std::nullopt;
}

} // namespace

SharedTables::SharedTables(SqliteStore& store, NodeTables& tables, const SharedLog::Describe& describe)
    : m_store(store)
    , m_tables(tables)
    , m_describe(describe)
{
}

bool SharedTables::apply(const SharedLine& line)
{
    if (line.kind == ChangeLog::NodeKind) {
        NodeChange change;
        change.id = line.id;
        change.before = ChangeCoding::nodeValues(line.before, &change);
        change.after = ChangeCoding::nodeValues(line.after, &change);
        if (change.isAdded())
            return addNode(change);
        return change.after ? updateNode(change) : removeNode(line.id);
    }
    if (line.kind == ChangeLog::RelationKind) {
        const RelationChange change = ChangeCoding::relationChange(line.id, line.before, line.after);
        return change.isAdded ? addRelation(change) : m_tables.removeRelation(change.relation) != 0;
    }
    return line.kind == ChangeLog::SettingKind ? setSetting(line) : setEnvironments(line);
}

void SharedTables::insert(SharedTable table, const SharedRow& row)
{
    if (table == SharedTable::Nodes) {
        if (const auto node = nodeOf(row.json))
            insertNode(node->first, node->second);
        return;
    }
    const QJsonArray item = QJsonDocument::fromJson(row.json).array();
    if (table == SharedTable::Relations) {
        m_tables.addRelation(
            {item.at(1).toString(), item.at(2).toString(), ENodeRelationType(item.at(3).toInt())},
            qint64(item.at(0).toDouble()));
        return;
    }
    const QJsonObject settings = item.at(0).toObject();
    for (auto it = settings.begin(); it != settings.end(); ++it)
        m_tables.setSetting(it.key(), it.value().toString());
    m_tables.setEnvironments(
        ChangeCoding::environments(JsonText::compact(QJsonDocument(item.at(1).toArray()))));
}

void SharedTables::insertNode(qint64 place, const NodeData& data)
{
    NodeSummary summary;
    QString lookupKey;
    m_describe(data, &summary, &lookupKey);
    const qint64 number = m_tables.insertNode(place, PackedSummary(summary), lookupKey);
    m_tables.setProperties(number, data.properties);
}

/// A node that is here already, because this desk added it too, becomes exactly what it is there.
bool SharedTables::addNode(const NodeChange& change)
{
    NodeRow row = m_tables.node(change.id);
    const bool isNew = row.place == 0;
    const bool isMoved = !isNew && row.place != change.place;
    if (isNew || isMoved)
        vacate(change.place);
    if (isMoved) {
        move(change.id, change.place);
        row.place = change.place;
    }
    if (!isNew)
        return write(row, change.after->name, propertiesOf(row.id), change.after->properties) || isMoved;
    insertNode(change.place, NodeData{change.id, change.type, change.after->name, change.after->properties});
    return true;
}

bool SharedTables::updateNode(const NodeChange& change)
{
    const NodeRow row = m_tables.node(change.id);
    if (row.place == 0)
        return false; // removed here, which the site will hear or has heard
    const bool isRenamed = change.before->name != change.after->name;
    const PropertyList stored = propertiesOf(change.id);
    PropertyList properties = stored;
    const auto differences = PropertyList::difference(change.before->properties, change.after->properties);
    for (const PropertyList::Entry& entry : differences)
        properties.set(entry.name, entry.value);
    return write(row, isRenamed ? change.after->name : row.summary.name(), stored, properties);
}

PropertyList SharedTables::propertiesOf(const NodeID& id)
{
    const std::optional<StoredProperties> stored = m_tables.properties(id);
    return stored ? stored->list : PropertyList();
}

/// Name and properties of a node that is here.
bool SharedTables::write(const NodeRow& row, const QString& name, const PropertyList& before,
                         const PropertyList& properties)
{
    if (PropertyList::difference(before, properties).isEmpty() && row.summary.name() == name)
        return false;
    m_tables.setProperties(row.place, properties);
    NodeSummary summary;
    QString lookupKey;
    m_describe(NodeData{row.id, row.summary.type(), name, properties}, &summary, &lookupKey);
    const PackedSummary packed(summary);
    if (packed != row.summary || lookupKey != row.lookupKey)
        m_tables.updateNode(row.place, packed, lookupKey);
    return true;
}

bool SharedTables::removeNode(const NodeID& id)
{
    const qint64 place = m_tables.node(id).place;
    if (place == 0)
        return false;
    const QVector<RelationChange> relations = m_tables.relationsOf(place);
    for (const RelationChange& change : relations)
        m_touched.append({ChangeLog::RelationKind, change.relation.source});
    m_tables.removeNode(place);
    return true;
}

/// Makes room: a node of this desk alone gets a number at the end, until its own line comes.
void SharedTables::vacate(qint64 place)
{
    const NodeID id = m_store.value("SELECT id FROM nodes WHERE n = ?", {place}).toString();
    if (!id.isNull())
        move(id, 0);
}

/// Numbers are referred to, so a node is taken out and put in again.
void SharedTables::move(const NodeID& id, qint64 place)
{
    const NodeRow row = m_tables.node(id);
    const PropertyList properties = propertiesOf(id);
    const QVector<RelationChange> relations = m_tables.relationsOf(row.place);
    m_tables.removeNode(row.place);
    const qint64 number = m_tables.insertNode(place, row.summary, row.lookupKey);
    m_tables.setProperties(number, properties);
    for (const RelationChange& change : relations)
        m_tables.addRelation(change.relation, change.place);
    m_touched.append({ChangeLog::NodeKind, id});
}

qint64 SharedTables::placeOf(const Relation& relation)
{
    return m_store
        .value(
            "SELECT r.seq FROM relations r JOIN nodes a ON a.n = r.source JOIN nodes b ON b.n = r.destination"
            " WHERE a.id = ? AND b.id = ? AND r.type = ?",
            {relation.source, relation.destination, int(relation.type)})
        .toLongLong();
}

bool SharedTables::addRelation(const RelationChange& change)
{
    const qint64 place = placeOf(change.relation);
    if (place == change.place || m_tables.node(change.relation.source).place == 0 ||
        m_tables.node(change.relation.destination).place == 0)
        return false;
    if (place != 0)
        m_tables.removeRelation(change.relation);
    const std::optional<Relation> other = takeRelationAt(change.place);
    m_tables.addRelation(change.relation, change.place);
    if (other) // one of this desk alone goes to the end, until its own line comes
        m_tables.addRelation(*other, 0);
    return true;
}

std::optional<Relation> SharedTables::takeRelationAt(qint64 place)
{
    Relation relation;
    {
        SqliteStore::Rows rows =
            m_store.run("SELECT a.id, b.id, r.type FROM relations r JOIN nodes a ON a.n = r.source"
                        " JOIN nodes b ON b.n = r.destination WHERE r.seq = ?",
                        {place});
        if (!rows.next())
            return std::nullopt;
        relation = {rows.text(0), rows.text(1), ENodeRelationType(rows.number(2))};
    }
    m_tables.removeRelation(relation);
    m_touched.append({ChangeLog::RelationKind, relation.source});
    return relation;
}

bool SharedTables::setSetting(const SharedLine& line)
{
    const std::optional<QString> value = line.after.isNull() ? std::nullopt : std::make_optional(line.after);
    if (m_tables.setting(line.id) == value)
        return false;
    m_tables.setSetting(line.id, value);
    return true;
}

bool SharedTables::setEnvironments(const SharedLine& line)
{
    const Environments::List list = ChangeCoding::environments(line.after);
    if (m_tables.environments() == list)
        return false;
    m_tables.setEnvironments(list);
    return true;
}

} // namespace ko
