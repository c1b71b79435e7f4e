#ifndef EXAMPLE_MEMORYNODEDB_H
#define EXAMPLE_MEMORYNODEDB_H

#include "DomeDriver.h"
#include "ko/Environments.h"
#include "ko/GlobalNetworkProxy.h"
#include "ko/Node.h"
#include "ko/NodeDB.h"
#include "ko/NodeHint.h"
#include "ko/PropertyKeys.h"
#include "kogen/Property.h"

#include <map>
#include <memory>
#include <tuple>

namespace example {

/// Gives Base, a ko::Node or ko::NodeHint, its properties: the typed pairs over one property set.
template <class Base>
class Record : public Base
{
public:
    explicit Record(ko::ENodeType type)
        : Base(type)
    {
    }

    QString name() const override { return stringProperty(ko::PropertyKeys::Name, QString()); }
    const kogen::PropertySet& properties() const override { return m_all; }
    bool hasProperty(const QString& key) const override { return m_all.contains(key); }

    bool boolProperty(const QString& key, bool other) const override { return get(key, other); }
    void setBoolProperty(const QString& key, bool value) override { set(key, value); }
    int intProperty(const QString& key, int other) const override { return get(key, other); }
    void setIntProperty(const QString& key, int value) override { set(key, value); }
    QString stringProperty(const QString& key, const QString& other) const override
    {
        return get(key, other);
    }
    void setStringProperty(const QString& key, const QString& value) override { set(key, value); }
    float floatProperty(const QString& key, float other) const override { return get(key, other); }
    void setFloatProperty(const QString& key, float value) override { set(key, value); }
    kogen::PropertySet propertySetProperty(const QString& key, const kogen::PropertySet& other) const override
    {
        return get(key, other);
    }
    void setPropertySetProperty(const QString& key, const kogen::PropertySet& value) override
    {
        set(key, value);
    }
    void addProperty(const kogen::BaseProperty& property) override
    {
        add<bool>(property) || add<int>(property) || add<QString>(property) || add<float>(property) ||
            add<kogen::PropertySet>(property);
    }

private:
    template <class T>
    T get(const QString& key, const T& other) const
    {
        const auto property = m_all[key].template cast<kogen::Property<T>>();
        return property.null() ? other : property->getValue();
    }
    template <class T>
    void set(const QString& key, const T& value)
    {
        m_all.insert(kom::makeSmart<kogen::Property<T>>(key, value));
    }
    template <class T>
    bool add(const kogen::BaseProperty& property)
    {
        const auto* typed = dynamic_cast<const kogen::Property<T>*>(&property);
        if (typed)
            set(typed->propertyName(), typed->getValue());
        return typed;
    }

    kogen::PropertySet m_all;
};

class MemoryHint : public Record<ko::NodeHint>
{
public:
    using Record::Record;

    static kom::smart<ko::NodeHint> make(ko::ENodeType type) { return kom::makeSmart<MemoryHint>(type); }
    void setName(const QString& name) override { setStringProperty(ko::PropertyKeys::Name, name); }
};

class MemoryNode : public Record<ko::Node>
{
public:
    MemoryNode(const QString& id, const ko::NodeHint& hint)
        : Record(hint.type)
        , m_id(id)
        , m_context(hint.context)
    {
        takeOverProperties(hint);
    }

    QString id() const override { return m_id; }
    QIcon icon() const override { return QIcon(); }
    ko::InspectorWidget* createInspectorWidget(bool readOnly, unsigned flags) const override
    {
        return createDomeInspector(m_id, readOnly, flags);
    }
    void takeOverProperties(const ko::NodeHint& hint) override
    {
        for (const auto& property : hint.properties())
            addProperty(*property.second);
    }
    void* creationContext() const override { return m_context; }
    bool hasCreationContext() const override { return m_context != nullptr; }

private:
    const QString m_id;
    void* const m_context;
};

class MemoryEnvironments : public ko::Environments
{
public:
    List getList() const override { return m_list; }
    void setList(const List& list) override { m_list = list; }
    void remove(const QString& id) override
    {
        for (int i = m_list.size(); i-- > 0;) {
            if (m_list.at(i).first == id)
                m_list.removeAt(i);
        }
    }

private:
    List m_list;
};

/// The least that the library needs of a node database: nodes in a map, one type, no scanners.
class MemoryNodeDB : public ko::NodeDB
{
public:
    kom::smart<const ko::Node> node(const QString& id) const override
    {
        const auto found = m_nodes.find(id);
        return found == m_nodes.end() ? kom::smart<const ko::Node>()
                                      : kom::smart<const ko::Node>(found->second);
    }

    // Nodes handed out never change: an update works on a copy, which then takes the place of the old node.
    ko::Node* beginUpdateNode(const QString& id, int) override
    {
        const auto found = m_nodes.find(id);
        return found == m_nodes.end() ? nullptr : new MemoryNode(*found->second);
    }
    void endUpdateNode(ko::Node* node) override
    {
        const kom::smart<const MemoryNode> changed(static_cast<const MemoryNode*>(node));
        const auto found = changed.null() ? m_nodes.end() : m_nodes.find(changed->id());
        if (found == m_nodes.end() || found->second->properties() == changed->properties())
            return;
        found->second = changed;
        emit nodeUpdated(changed->id());
    }

    void newNodeHint(const ko::NodeHint& hint) override
    {
        const QString id =
            QString::fromLatin1("dome%1").arg(++m_lastId, 6, 10, QLatin1Char('0')); // sorts by age
        m_nodes[id] = kom::makeSmart<const MemoryNode>(id, hint);
        emit nodeInserted(id);
    }
    QString lookupHint(const ko::NodeHint& hint) const override
    {
        for (const auto& entry : m_nodes) {
            if (entry.second->name() == hint.name())
                return entry.first;
        }
        return QString();
    }
    void removeNode(const QString& id) override
    {
        if (!m_nodes.erase(id))
            return;
        for (int i = m_relations.size(); i-- > 0;) {
            if (std::get<0>(m_relations.at(i)) == id || std::get<1>(m_relations.at(i)) == id)
                m_relations.removeAt(i);
        }
        emit nodeRemoved(id);
    }
    QStringList nodeIdList(ko::ENodeType type) const override
    {
        QStringList ids;
        for (const auto& entry : m_nodes) {
            if (type == ko::AllNodeTypes || entry.second->type == type)
                ids.append(entry.first);
        }
        return ids;
    }

    QString readableNodeTypeName(ko::ENodeType) const override { return "Dome camera"; }
    TypeNames readableNodeTypeNames(const QList<ko::ENodeType>*, bool) const override
    {
        return {{DomeType, readableNodeTypeName(DomeType)}};
    }
    kom::smart<ko::INodeDriverComponent> nodeDriver(ko::ENodeType type) const override
    {
        const auto driver = kom::makeSmart<DomeDriver>();
        driver->makeHint = MemoryHint::make;
        return type == DomeType ? driver : kom::smart<DomeDriver>();
    }

    void addNodeRelation(const QString& from, const QString& to, ko::ENodeRelationType type) override
    {
        if (!m_relations.contains(Relation(from, to, type)))
            m_relations.append(Relation(from, to, type));
    }
    void removeNodeRelation(const QString& from, const QString& to, ko::ENodeRelationType type) override
    {
        m_relations.removeAll(Relation(from, to, type));
    }
    QStringList relatedNodes(const QString& id, ko::ENodeRelationType type) const override
    {
        QStringList related;
        for (const Relation& relation : m_relations) {
            if (std::get<0>(relation) == id && std::get<2>(relation) == type)
                related.append(std::get<1>(relation));
        }
        return related;
    }
    bool isDestinationOfNodeRelation(const QString& id, ko::ENodeRelationType type) const override
    {
        for (const Relation& relation : m_relations) {
            if (std::get<1>(relation) == id && std::get<2>(relation) == type)
                return true;
        }
        return false;
    }

    void startScanners(const std::string&, unsigned, int) override {}
    void stopScanners(const std::string&) override {}
    QString globalRecordingFolderPath() const override { return QString(); }
    QString defaultRecordingTransponderIP() const override { return QString(); }
    int bandwidth() const override { return ko::FastLocal; }
    ko::GlobalNetworkProxy& globalProxy() override { return m_proxy; }
    ko::Environments& environments() override { return m_environments; }
    QString activeEnvironment() const override { return m_activeEnvironment; }
    void setActiveEnvironment(const QString& id) override { m_activeEnvironment = id; }

private:
    typedef std::tuple<QString, QString, ko::ENodeRelationType> Relation; ///< from, to, kind

    std::map<QString, kom::smart<const MemoryNode>> m_nodes;
    QList<Relation> m_relations;
    int m_lastId = 0;
    ko::GlobalNetworkProxy m_proxy;
    MemoryEnvironments m_environments;
    QString m_activeEnvironment;
};

} // namespace example

#endif
