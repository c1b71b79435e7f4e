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
#include "secrets/Vault.h"

namespace ko {

/// A node of this host: \a Base, a kind of Node, over NodeData. The passwords of a database's node are sealed
/// in the data and in what properties() hands out; asking for one by its name opens it.
template <class Base>
class HostNode : public PropertyStorage<Base>, public StoredNode
{
public:
    HostNode(const NodeData& data, std::shared_ptr<Vault> vault)
        : PropertyStorage<Base>(data.type)
        , m_data(data)
        , m_vault(std::move(vault))
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
        return opened(m_data, name);
    }

    QVariant opened(const NodeData& data, const QString& name) const
    {
        const QVariant value = data.properties.value(name);
        return isPassword(name, value) ? Vault::opened(m_vault.get(), data, name) : value;
    }

    void write(const QString& name, const QVariant& value) override
    {
        if (name == PropertyKeys::Name)
            m_data.name = value.toString();
        else if (name != PropertyKeys::NodeType)
            m_data.properties.set(name, isPassword(name, value)
                                            ? Vault::sealed(m_vault.get(), m_data, name, value.toString())
                                            : value);
    }

    /// Of whatever type: one of another that was put into the database is no password of ours.
    static bool isPassword(const QString& name, const QVariant& value)
    {
        return value.isValid() && Secrets::isSecret(name);
    }

    NodeData m_data;
    const std::shared_ptr<Vault> m_vault; ///< null for what belongs to no database
};

typedef HostNode<Node> PlainNode;

} // namespace ko

#endif
