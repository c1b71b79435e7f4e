#ifndef KO_NODEMEMORY_H
#define KO_NODEMEMORY_H

#include "database/NodeLoading.h"
#include "database/Notices.h"
#include "database/PendingChanges.h"
#include "ko/NodeDB.h"
#include "model/Delta.h"
#include "store/NodeStore.h"

#include <utility>

namespace ko {

/// The database as this process sees it: what was read from the store, with what waits to be written
/// already done. Changing it notes what is to be written.
class NodeMemory
{
public:
    Settings settings;
    Environments::List environments;
    PendingChanges pending;
    qint64 revision = 0;     ///< of the store, which is in here
    bool isReadOnly = false; ///< the user may not change anything; what others change still comes

    /// Reads everything but properties; for the nodes see NodeLoading. Throws StoreFailure. \a store outlives
    /// the memory.
    NodeMemory(NodeStore& store, std::launch when, const std::function<void()>& loaded);

    /// All nodes and relations. Wait until they are here; empty if that failed.
    NodeCache& cache() const { return nodes().cache; }
    RelationIndex& relations() const { return nodes().relations; }

    /// Whether nobody has to wait any more.
    bool isLoaded() const;
    /// The nodes as they were read; waits. Once.
    QVector<PackedSummary> takeLoaded() { return std::exchange(nodes().read, {}); }

    /// Throws StoreFailure once it is known that the nodes could not be read.
    void requireNodes() const;

    /// See HostNodeDB. They do not wait: what is not here yet is read from the store. Throw StoreFailure.
    NodeSummary summary(const NodeID& id) const;
    QStringList relatedNodes(const NodeID& id, ENodeRelationType type) const;

    /// Of the passwords in the store.
    const std::shared_ptr<Vault>& vault() const { return m_store.vault(); }

    /// See NodeDB.
    bool getBrief(const NodeID& id, NodeBrief* brief) const;

    /// Reads the properties of \a record, unless they are here. False if the store has lost the node. Throws
    /// StoreFailure.
    bool read(NodeRecord& record);

    /// The same for all of these together, if they are there.
    void readAhead(const QStringList& ids);

    /// The oldest node with this look-up key; empty if there is none. Throws StoreFailure.
    QString nodeWithLookupKey(const QString& key);

    /// See NodeStore. Throws StoreFailure.
    QStringList nodesWithMac(const QString& mac);

    /// See HostNodeDB. Throws StoreFailure.
    void column(const QString& key, const std::function<void(const NodeID&, const QVariant&)>& visit);

    /// Brings in what the store has now. A node that is said to have changed is announced also when
    /// nothing is seen to differ, since its properties may not have been read; not so when everything was
    /// looked at.
    Notices take(const Delta& delta);

    /// What waited at PendingChanges::beginStoring() is stored.
    void stored(const NodeStore::Commit& commit, Notices* notices);

    /// A node with the name and the properties of \a data, which has its identifier. See NodeChange::place.
    void add(const NodeData& data, qint64 place = 0);
    /// The node of \a record gets the name and the properties of \a data. False if it has them.
    bool update(NodeRecord& record, const NodeData& data);
    /// The same, as a part of what was done to the node last.
    void amend(NodeRecord& record, const NodeData& data);
    /// Takes the node with its relations out of memory.
    void remove(NodeRecord& record);
    /// False if nothing changes.
    bool change(const RelationChange& change);
    /// False if it is the same already.
    bool setSetting(const QString& key, const std::optional<QString>& value);
    void setEnvironments(const Environments::List& list);

private:
    NodeLoading::Nodes& nodes() const
    {
        if (m_loading)
            finishLoading();
        return m_nodes;
    }
    void finishLoading() const;
    void readLookupKeys();
    void setData(NodeRecord& record, const NodeData& data);
    void takeNode(const NodeRow& row, bool always, Notices* notices);
    bool takeRow(NodeRecord& record, const NodeRow& row);
    void removeMissing(const Delta& delta, Notices* notices);
    void takeRelations(const Delta& delta, Notices* notices);
    void takeSettings(const Delta& delta, Notices* notices);
    void forget(NodeRecord& record);

    NodeStore& m_store;
    mutable NodeLoading::Nodes m_nodes;
    mutable std::unique_ptr<NodeLoading> m_loading; ///< as long as they are on their way
    mutable StoreError m_loadingFailure;
};

} // namespace ko

#endif
