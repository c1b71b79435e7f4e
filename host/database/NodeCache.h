#ifndef KO_NODECACHE_H
#define KO_NODECACHE_H

#include "database/NodeIndex.h"
#include "model/NodeData.h"
#include "model/PackedSummary.h"

#include <QHash>
#include <QStringList>

#include <map>
#include <memory>

namespace ko {

class Node;

/// What is in memory of one node.
struct NodeRecord
{
    struct Contents
    {
        PropertyList properties;
        void* context = nullptr;          ///< of the hint; null: none
        std::shared_ptr<const Node> node; ///< with these properties; null until somebody asks for it
    };

    /// Its number in the store when that was last looked at, for the order only: other programs may change
    /// it. Larger than all of these while the node is not stored yet.
    qint64 order = 0;
    PackedSummary summary;              ///< its identifier stays the same
    std::unique_ptr<Contents> contents; ///< once somebody needed them
    QString lookupKey;                  ///< kept once NodeCache::lookupReady()

    bool isStored() const;

    /// Without properties that nobody needed yet.
    NodeData data() const;
};

/// All nodes of the database, oldest first. Finding, adding and removing one take the same time however
/// many there are.
class NodeCache
{
public:
    /// Another program may have given the number of one node to a second one: both are here until it is known
    /// what became of the first.
    typedef std::multimap<qint64, NodeRecord> Map;

    static constexpr qint64 FirstUnstored = qint64(1) << 62;

    Map::const_iterator begin() const { return m_nodes.begin(); }
    Map::const_iterator end() const { return m_nodes.end(); }
    Map::iterator begin() { return m_nodes.begin(); }
    Map::iterator end() { return m_nodes.end(); }
    int count() const { return int(m_nodes.size()); }

    NodeRecord* find(const NodeID& id) const;

    /// Gets the nodes ready for find() and ids(), which else do that when they are first called.
    void prepare() const;

    /// The identifiers of the nodes of a type, or of all; kept until a node comes, goes or changes its place.
    const QStringList& ids(ENodeType type) const;
    QVector<NodeSummary> summaries() const;

    /// Adds a node of the store that is not here yet.
    NodeRecord& insertStored(qint64 order, const PackedSummary& summary);

    /// Adds a node that is not stored yet.
    NodeRecord& append(const PackedSummary& summary);
    void remove(NodeRecord& record);

    /// The node has this number in the store now.
    void setStored(NodeRecord& record, qint64 order);

    // The lookup index is filled by its user, on first use.
    bool lookupReady() const { return m_lookupReady; }
    void setLookupReady() { m_lookupReady = true; }
    void clearLookup();
    void setLookupKey(NodeRecord& record, const QString& key);

    /// The oldest node with this key.
    const NodeRecord* findLookupKey(const QString& key) const;

private:
    NodeRecord& insert(qint64 order, const PackedSummary& summary);
    Map::iterator placeOf(const NodeRecord& record);

    Map m_nodes;
    void changed();

    mutable NodeIndex m_byId;
    mutable QHash<int, QStringList> m_ids; ///< by type; empty after a change
    mutable QStringList m_allIds;          ///< likewise
    mutable bool m_isReady = false;
    QMultiHash<QString, NodeRecord*> m_byLookupKey;
    qint64 m_nextUnstored = FirstUnstored;
    bool m_lookupReady = false;
};

} // namespace ko

#endif
