#include "RawInserter.h"

#include "drivers/NodeTypes.h"
#include "interfaces/INodeDriverComponent.h"
#include "ko/NodeHint.h"
#include "model/PropertyList.h"
#include "store/PropertyCoding.h"

namespace bench {

using namespace ko;

namespace {

/// All that a new camera carries.
QMap<QString, QVariant> propertiesOfACamera()
{
    const NodeData data = NodeTypes::dataOf(*NodeTypes::driver(IPDeviceType)->createNodeHint(IPDeviceType));
    QMap<QString, QVariant> properties;
    for (const auto& property : data.properties)
        properties.insert(property.name, property.value);
    return properties;
}

} // namespace

RawInserter::RawInserter(RawSqlite& database)
    : m_database(database)
    , m_properties(propertiesOfACamera())
    , m_node(database, "INSERT INTO nodes (id, type, name, location, recording, lookup)"
                       " VALUES (?, 2, ?, ?, 0, ?)")
    , m_property(database, "INSERT INTO properties (node, key, type, value) VALUES (?, ?, ?, ?)")
    , m_change(database, "INSERT INTO changes (kind, id) VALUES ('N', ?)")
{
}

void RawInserter::insert(const NodeSummary& camera)
{
    m_node.bind(1, camera.id)
        .bind(2, camera.name)
        .bind(3, camera.location)
        .bind(4, camera.location)
        .execute();
    const qint64 node = m_database.lastRow();
    for (auto property = m_properties.begin(); property != m_properties.end(); ++property) {
        const PropertyCoding::Stored stored = PropertyCoding::encode(property.value());
        m_property.bind(1, node).bind(2, property.key()).bind(3, qint64(stored.type));
        m_property.bind(4, stored.value.toString()).execute();
    }
    m_change.bind(1, camera.id).execute();
}

} // namespace bench
