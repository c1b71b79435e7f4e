#ifndef EXAMPLE_MEMORYNODEDB_H
#define EXAMPLE_MEMORYNODEDB_H

#include "Record.h"
#include "ko/Environments.h"
#include "ko/GlobalNetworkProxy.h"
#include "ko/Node.h"
#include "ko/NodeDB.h"
#include "ko/NodeHint.h"
#include "ko/PropertyKeys.h"

#include <map>
#include <memory>

namespace example {

class MemoryHint : public Record<ko::NodeHint>
{
public:
    using Record::Record;
    QString name() const override { return stringProperty(ko::PropertyKeys::Name, QString()); }
    void setName(const QString& name) override { setStringProperty(ko::PropertyKeys::Name, name); }
};

class MemoryNode : public Record<ko::Node>
{
public:
    MemoryNode(const QString& id, ko::ENodeType type);

    QString id() const override { return m_id; }
    QString name() const override { return stringProperty(ko::PropertyKeys::Name, QString()); }
    QIcon icon() const override { return QIcon(); }
    ko::InspectorWidget* createInspectorWidget(bool readOnly, unsigned flags) const override;
    void takeOverProperties(const ko::NodeHint& hint) override;
    void* creationContext() const override { return m_context; }
    bool hasCreationContext() const override { return m_context != nullptr; }

private:
    const QString m_id;
    void* m_context = nullptr;
};

class MemoryEnvironments : public ko::Environments
{
public:
    List getList() const override { return m_list; }
    void setList(const List& list) override { m_list = list; }
    void remove(const QString& id) override;

private:
    List m_list;
};

/// The least that the library needs of a node database: nodes in a map, one type, no scanners.
class MemoryNodeDB : public ko::NodeDB
{
    Q_OBJECT

public:
    kom::smart<const ko::Node> node(const QString& id) const override;
    ko::Node* beginUpdateNode(const QString& id, int limit) override;
    void endUpdateNode(ko::Node* node) override;
    void newNodeHint(const ko::NodeHint& hint) override;
    QString lookupHint(const ko::NodeHint& hint) const override;
    void removeNode(const QString& id) override;
    QStringList nodeIdList(ko::ENodeType type) const override;
    QString readableNodeTypeName(ko::ENodeType type) const override;
    TypeNames readableNodeTypeNames(const QList<ko::ENodeType>* types, bool sorted) const override;
    kom::smart<ko::INodeDriverComponent> nodeDriver(ko::ENodeType type) const override;

    void addNodeRelation(const QString&, const QString&, ko::ENodeRelationType) override {}
    void removeNodeRelation(const QString&, const QString&, ko::ENodeRelationType) override {}
    QStringList relatedNodes(const QString&, ko::ENodeRelationType) const override { return QStringList(); }
    bool isDestinationOfNodeRelation(const QString&, ko::ENodeRelationType) const override { return false; }
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
    std::map<QString, kom::smart<const MemoryNode>> m_nodes;
    int m_lastId = 0;
    ko::GlobalNetworkProxy m_proxy;
    MemoryEnvironments m_environments;
    QString m_activeEnvironment;
};

} // namespace example

#endif
