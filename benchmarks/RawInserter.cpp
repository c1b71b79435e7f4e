#include "RawInserter.h"

#include "drivers/NodeTypes.h"
#include "interfaces/INodeDriverComponent.h"
#include "ko/NodeHint.h"
#include "model/PropertyList.h"
#include "store/PropertyCoding.h"

namespace bench {

using namespace ko;

QString propertiesOfACamera()
{
    QString json;
    PropertyCoding::appendJson(
        &json, NodeTypes::dataOf(*NodeTypes::driver(IPDeviceType)->createNodeHint(IPDeviceType)).properties);
    return json;
}

RawInserter::RawInserter(RawSqlite& database)
    : m_database(database)
    , m_properties(propertiesOfACamera())
    , m_node(database, "INSERT INTO nodes (id, type, name, location, recording, lookup)"
                       " VALUES (?, 2, ?, ?, 0, ?)")
    , m_property(database,
                 "INSERT INTO node_properties (node, properties, mac, extension) VALUES (?, ?, '', '')")
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
    m_property.bind(1, m_database.lastRow()).bind(2, m_properties).execute();
    m_change.bind(1, camera.id).execute();
}

} // namespace bench
