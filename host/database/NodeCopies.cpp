#include "database/NodeCopies.h"

#include "drivers/NodeTypes.h"
#include "drivers/StoredNode.h"

namespace ko {

NodeCopies::NodeCopies(std::shared_ptr<Vault> vault)
    : m_vault(std::move(vault))
{
}

NodeCopies::~NodeCopies() = default;

Node* NodeCopies::begin(const NodeData& data)
{
    std::unique_ptr<Node> node = NodeTypes::createNode(data, m_vault);
    Node* copy = node.get();
    m_copies.emplace(copy, Copy{std::move(node), data});
    return copy;
}

std::optional<NodeCopies::Edit> NodeCopies::end(Node* copy)
{
    const auto found = m_copies.find(copy);
    if (found == m_copies.end())
        return std::nullopt;
    Edit edit;
    edit.m_before = found->second.before;
    edit.m_after = dynamic_cast<const StoredNode&>(*copy).nodeData();
    m_copies.erase(found);
    return edit;
}

NodeData NodeCopies::Edit::mergedInto(const NodeData& current) const
{
    NodeData merged = current;
    if (m_after.name != m_before.name)
        merged.name = m_after.name;
    const auto changes = PropertyList::difference(m_before.properties, m_after.properties);
    for (const PropertyList::Entry& change : changes)
        merged.properties.set(change.name, change.value);
    return merged;
}

} // namespace ko
