#ifndef KO_NODEEDITING_H
#define KO_NODEEDITING_H

#include "database/ChangeQueue.h"
#include "database/HostSettings.h"
#include "database/NodeCopies.h"

#include <functional>

namespace ko {

/// What changes nodes and relations: in memory at once, announced, and then left to the queue.
class NodeEditing
{
public:
    typedef std::function<void(const Notices&)> Announce;

    /// All outlive this.
    NodeEditing(NodeMemory& memory, ChangeQueue& queue, HostSettings& settings, Announce announce);

    /// The node as it is now, null if there is none or it cannot be read.
    kom::smart<const Node> node(const NodeID& id);

    /// A copy to be changed; null like node().
    Node* begin(const NodeID& id);
    /// Stores what is different in the copy, which is deleted.
    void end(Node* copy);

    /// Returns the identifier that the new node gets.
    NodeID add(NodeData data);
    /// With the remote preview that it alone uses.
    void remove(const NodeID& id);
    void change(const RelationChange& change);
    /// Does all that \a set says, as far as it still can be done: a node that is gone is not changed, one
    /// that is there not added. False, with nothing done, if something cannot be read.
    bool apply(const ChangeSet& set);
    /// Takes back what was changed under \a cause, which was entered; see HostNodeDB::endDraft().
    ChangeSet withdraw(const Cause& cause);

private:
    NodeRecord* read(const NodeID& id);
    Notices applyAll(const ChangeSet& set);
    void apply(const NodeChange& change, Notices* notices);
    void makeRemotePreview(const NodeID& camera);
    void written(const NodeID& id, ENodeType type);

    NodeMemory& m_memory;
    ChangeQueue& m_queue;
    HostSettings& m_settings;
    const Announce m_announce;
    NodeCopies m_copies;
};

} // namespace ko

#endif
