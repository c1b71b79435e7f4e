#ifndef KO_HOSTNODE_H
#define KO_HOSTNODE_H

#include "drivers/NodeInspector.h"
#include "drivers/NodeTypes.h"
#include "drivers/PropertyStorage.h"
#include "drivers/StoredNode.h"
#include "ko/Node.h"
#include "ko/NodeHint.h"
#include "ko/PropertyKeys.h"
#include "secrets/Secrets.h"

namespace ko {

/// A node of this host: \a Base, a kind of Node, over NodeData. Passwords are sealed in the data and in
/// what properties() hands out; asking for one by its name opens it.
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
        all.set(PropertyKeys::Name, m_data.name);
        all.set(PropertyKeys::NodeType, int(m_data.type));
        return all;
    }

    QVariant read(const QString& name) const override
    {
        if (name == PropertyKeys::Name)
            return m_data.name;
        if (name == PropertyKeys::NodeType)
            return int(m_data.type);
        return opened(name, m_data.properties.value(name));
    }

    QVariant opened(const QString& name, const QVariant& value) const
    {
        return isPassword(name, value) ? Secrets::open(m_data.id, name, value.toString()) : value;
    }

    void write(const QString& name, const QVariant& value) override
    {
        if (name == PropertyKeys::Name)
            m_data.name = value.toString();
        else if (name != PropertyKeys::NodeType)
            m_data.properties.set(name, isPassword(name, value) ? sealed(name, value.toString()) : value);
    }

    /// Of whatever type: one of another that was put into the database is no password of ours.
    static bool isPassword(const QString& name, const QVariant& value)
    {
        return value.isValid() && Secrets::isSecret(name);
    }

    QString sealed(const QString& name, const QString& password) const
    {
        return Secrets::seal(m_data.id, name, password, m_data.properties.value(name).toString());
    }

    NodeData m_data;
};

typedef HostNode<Node> PlainNode;

} // namespace ko

#endif
