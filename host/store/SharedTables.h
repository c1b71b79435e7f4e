#ifndef KO_SHAREDTABLES_H
#define KO_SHAREDTABLES_H

#include "store/ChangeLog.h"
#include "store/NodeTables.h"
#include "store/SharedLog.h"

namespace ko {

/// Makes the tables of nodes, relations and settings what a line of the site says, whatever this desk did to
/// them meanwhile: that comes again, in later lines. Throws StoreFailure; opens no transactions.
class SharedTables
{
public:
    SharedTables(SqliteStore& store, NodeTables& tables, const SharedLog::Describe& describe);

    /// Returns whether anything was different.
    bool apply(const SharedLine& line);

    /// A row of the site, into tables that have nothing of it. One that cannot be read is left out.
    void insert(SharedTable table, const SharedRow& row);

    /// What else had to change, which nobody's change set tells.
    const QVector<ChangeLog::Row>& touched() const { return m_touched; }

private:
    void insertNode(qint64 place, const NodeData& data);
    bool addNode(const NodeChange& change);
    bool updateNode(const NodeChange& change);
    bool removeNode(const NodeID& id);
    bool addRelation(const RelationChange& change);
    bool setSetting(const SharedLine& line);
    bool setEnvironments(const SharedLine& line);
    PropertyList propertiesOf(const NodeID& id);
    bool write(const NodeRow& row, const QString& name, const PropertyList& before,
               const PropertyList& properties);
    void move(const NodeID& id, qint64 place);
    void vacate(qint64 place);
    std::optional<Relation> takeRelationAt(qint64 place);
    qint64 placeOf(const Relation& relation);

    SqliteStore& m_store;
    NodeTables& m_tables;
    const SharedLog::Describe& m_describe;
    QVector<ChangeLog::Row> m_touched;
};

} // namespace ko

#endif
