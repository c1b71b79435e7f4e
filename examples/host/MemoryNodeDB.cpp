#include "MemoryNodeDB.h"

#include "GateDriver.h"
#include "GateInspector.h"

namespace example {

MemoryNode::MemoryNode(const QString& id, ko::ENodeType type)
    : Record(type)
    , m_id(id)
{
}

ko::InspectorWidget* MemoryNode::createInspectorWidget(bool readOnly, unsigned flags) const
{
    return new GateInspector(m_id, readOnly, flags);
}

void MemoryNode::takeOverProperties(const ko::NodeHint& hint)
{
    for (const auto& property : hint.properties())
        addProperty(*property.second);
    m_context = hint.context;
}

void MemoryEnvironments::remove(const QString& id)
{
    for (int i = m_list.size(); i-- > 0;) {
        if (m_list.at(i).first == id)
            m_list.removeAt(i);
    }
}

kom::smart<const ko::Node> MemoryNodeDB::node(const QString& id) const
{
    const auto found = m_nodes.find(id);
    return found == m_nodes.end() ? kom::smart<const ko::Node>() : kom::smart<const ko::Node>(found->second);
}

// Nodes handed out never change: an update works on a copy, which then takes the place of the old node.
ko::Node* MemoryNodeDB::beginUpdateNode(const QString& id, int)
{
    const auto found = m_nodes.find(id);
    return found == m_nodes.end() ? nullptr : new MemoryNode(*found->second);
}

void MemoryNodeDB::endUpdateNode(ko::Node* node)
{
    const kom::smart<const MemoryNode> changed(static_cast<const MemoryNode*>(node));
    if (changed.null())
        return;
    const auto found = m_nodes.find(changed->id());
    if (found == m_nodes.end() || found->second->properties() == changed->properties())
        return;
    found->second = changed;
    emit nodeUpdated(changed->id());
}

void MemoryNodeDB::newNodeHint(const ko::NodeHint& hint)
{
    const QString id = QString::fromLatin1("gate%1").arg(++m_lastId, 6, 10, QLatin1Char('0')); // sorts by age
    std::unique_ptr<MemoryNode> node(new MemoryNode(id, hint.type));
    node->takeOverProperties(hint);
    m_nodes[id] = kom::smart<const MemoryNode>(node.release());
    emit nodeInserted(id);
}

QString MemoryNodeDB::lookupHint(const ko::NodeHint& hint) const
{
    for (const auto& entry : m_nodes) {
        if (entry.second->name() == hint.name())
            return entry.first;
    }
    return QString();
}

void MemoryNodeDB::removeNode(const QString& id)
{
    if (m_nodes.erase(id))
        emit nodeRemoved(id);
}

QStringList MemoryNodeDB::nodeIdList(ko::ENodeType type) const
{
    QStringList ids;
    for (const auto& entry : m_nodes) {
        if (type == ko::AllNodeTypes || entry.second->type == type)
            ids.append(entry.first);
    }
    return ids;
}

QString MemoryNodeDB::readableNodeTypeName(ko::ENodeType) const
{
    return tr("Gate");
}

MemoryNodeDB::TypeNames MemoryNodeDB::readableNodeTypeNames(const QList<ko::ENodeType>*, bool) const
{
    return {{GateType, readableNodeTypeName(GateType)}};
}

kom::smart<ko::INodeDriverComponent> MemoryNodeDB::nodeDriver(ko::ENodeType type) const
{
    if (type != GateType)
        return kom::smart<ko::INodeDriverComponent>();
    return kom::makeSmart<GateDriver>();
}

} // namespace example
