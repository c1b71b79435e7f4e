#ifndef KO_NODECOPIES_H
#define KO_NODECOPIES_H

#include "ko/Node.h"
#include "model/NodeData.h"

#include <memory>
#include <optional>
#include <unordered_map>

namespace ko {

class Vault;

/// The writable copies of nodes that are handed out for a change.
class NodeCopies
{
public:
    explicit NodeCopies(std::shared_ptr<Vault> vault);
    ~NodeCopies();

    /// A copy of the node with \a data, owned by this until end().
    Node* begin(const NodeData& data);

    class Edit
    {
    public:
        const NodeID& id() const { return m_before.id; }

        /// What was changed in the copy, on top of what others made of \a current meanwhile.
        NodeData mergedInto(const NodeData& current) const;

    private:
        friend class NodeCopies;
        NodeData m_before;
        NodeData m_after;
    };

    /// Deletes \a copy and returns what was done to it; none if it is not one of these.
    std::optional<Edit> end(Node* copy);

private:
    struct Copy
    {
        std::unique_ptr<Node> node;
        NodeData before;
    };
    const std::shared_ptr<Vault> m_vault;
    std::unordered_map<const Node*, Copy> m_copies;
};

} // namespace ko

#endif
