#ifndef KO_NODECACHE_H
#define KO_NODECACHE_H

#include "database/NodeIndex.h"
#include "database/PackedSummary.h"
#include "ko/Node.h"
#include "kom/smart.h"

#include <QHash>
#include <QStringList>

#include <map>

namespace ko {

/// What is in memory of one node.
struct NodeRecord
{
    qint64 order = 0;      ///< its number in the store; larger than all of these while it is not stored yet
    PackedSummary summary; ///< its identifier stays the same
    kom::smart<const Node> snapshot; ///< null until somebody needs the properties
    QString lookupKey;               ///< kept once NodeCache::lookupReady()
    void* context = nullptr;         ///< null: none

    bool isStored() const;

    /// Of the snapshot, which must be there.
    NodeData data() const;
};

/// All nodes of the database, oldest first. Finding, adding and removing one take the same time however
/// many there are.
class NodeCache
{
public:
    typedef std::map<qint64, NodeRecord> Map;

    static constexpr qint64 FirstUnstored = qint64(1) << 62;

    Map::const_iterator begin() const { return m_nodes.begin(); }
    Map::const_iterator end() const { return m_nodes.end(); }
    int count() const { return int(m_nodes.size()); }

    NodeRecord* find(const NodeID& id) const;

    /// The identifiers of all nodes; kept until a node comes, goes or changes its place.
    const QStringList& ids() const;

    /// Adds a node of the store.
    NodeRecord& insert(qint64 order, const PackedSummary& summary);

    /// Adds a node that is not stored yet.
    NodeRecord& append(const PackedSummary& summary);
    void remove(NodeRecord& record);

    /// The node is stored now under this number.
    void setStored(NodeRecord& record, qint64 order);

    // The lookup index is filled by its user, on first use.
    bool lookupReady() const { return m_lookupReady; }
    void setLookupReady() { m_lookupReady = true; }
    void clearLookup();
    void setLookupKey(NodeRecord& record, const QString& key);
    NodeRecord* findOrder(qint64 order);

    /// The oldest node with this key.
    const NodeRecord* findLookupKey(const QString& key) const;

private:
    Map m_nodes;
    mutable NodeIndex m_byId; ///< empty until a node is looked for
    mutable bool m_indexed = false;
    mutable QStringList m_ids;
    QMultiHash<QString, NodeRecord*> m_byLookupKey;
    qint64 m_nextUnstored = FirstUnstored;
    bool m_lookupReady = false;
};

} // namespace ko

#endif
