#ifndef KO_HOSTNODE_H
#define KO_HOSTNODE_H

#include "database/StoredNode.h"
#include "drivers/NodeInspector.h"
#include "drivers/NodeTypes.h"
#include "drivers/PropertyKeys.h"
#include "drivers/PropertyStorage.h"
#include "ko/Node.h"
#include "ko/NodeHint.h"

namespace ko {

/// A node of this host: \a Base, a kind of Node, over NodeData.
template <class Base>
class HostNode : public PropertyStorage<Base>, public StoredNode
{
public:
    explicit HostNode(const NodeData& data)
        : PropertyStorage<Base>(data.type)
        , m_data(data)
    {
    }

    NodeData nodeData() const override { return m_data; }

    QString id() const override { return m_data.id; }
    QString name() const override { return m_data.name; }
    QIcon icon() const override { return NodeTypes::icon(this->type); }
    void* creationContext() const override { return m_data.context; }
    bool hasCreationContext() const override { return m_data.hasContext; }

    InspectorWidget* createInspectorWidget(bool readOnly, unsigned flags) const override
    {
        return createNodeInspector(m_data.id, this->type, readOnly, flags);
    }

    void takeOverProperties(const NodeHint& hint) override
    {
        const NodeData described = NodeTypes::described(hint);
        if (!described.name.isEmpty())
            m_data.name = described.name;
        for (const PropertyList::Entry& entry : described.properties)
            write(entry.name, entry.value);
        this->touched();
    }

protected:
    PropertyList list() const override
    {
        PropertyList all = nodeData().properties;
        all.set(QLatin1String(PropertyKeys::Name), m_data.name);
        all.set(QLatin1String(PropertyKeys::NodeType), int(m_data.type));
        return all;
    }

    QVariant read(const QString& name) const override
    {
        if (name == QLatin1String(PropertyKeys::Name))
            return m_data.name;
        if (name == QLatin1String(PropertyKeys::NodeType))
            return int(m_data.type);
        return m_data.properties.value(name);
    }

    void write(const QString& name, const QVariant& value) override
    {
        if (name == QLatin1String(PropertyKeys::Name))
            m_data.name = value.toString();
        else if (name != QLatin1String(PropertyKeys::NodeType))
            m_data.properties.set(name, value);
    }

    NodeData m_data;
};

typedef HostNode<Node> PlainNode;

} // namespace ko

#endif
