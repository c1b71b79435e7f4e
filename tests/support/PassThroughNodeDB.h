#ifndef TESTS_SUPPORT_PASSTHROUGHNODEDB_H
#define TESTS_SUPPORT_PASSTHROUGHNODEDB_H

#include "ko/NodeDB.h"

namespace testsupport {

/// A database that hands everything on to another one; tests override what they watch.
class PassThroughNodeDB : public ko::NodeDB
{
public:
    explicit PassThroughNodeDB(ko::NodeDB* real)
        : m_real(real)
    {
        connect(real, SIGNAL(nodeInserted(ko::NodeID)), this, SIGNAL(nodeInserted(ko::NodeID)));
        connect(real, SIGNAL(nodeUpdated(ko::NodeID)), this, SIGNAL(nodeUpdated(ko::NodeID)));
        connect(real, SIGNAL(nodeRemoved(ko::NodeID)), this, SIGNAL(nodeRemoved(ko::NodeID)));
    }

    kom::smart<const ko::Node> node(const QString& id) const override { return m_real->node(id); }
    ko::Node* beginUpdateNode(const QString& id, int limit) override
    {
        return m_real->beginUpdateNode(id, limit);
    }
    void endUpdateNode(ko::Node* node) override { m_real->endUpdateNode(node); }
    void newNodeHint(const ko::NodeHint& hint) override { m_real->newNodeHint(hint); }
    QString lookupHint(const ko::NodeHint& hint) const override { return m_real->lookupHint(hint); }
    void removeNode(const QString& id) override { m_real->removeNode(id); }
    QStringList nodeIdList(ko::ENodeType type) const override { return m_real->nodeIdList(type); }
    QString readableNodeTypeName(ko::ENodeType type) const override
    {
        return m_real->readableNodeTypeName(type);
    }
    TypeNames readableNodeTypeNames(const QList<ko::ENodeType>* types, bool sorted) const override
    {
        return m_real->readableNodeTypeNames(types, sorted);
    }
    kom::smart<ko::INodeDriverComponent> nodeDriver(ko::ENodeType type) const override
    {
        return m_real->nodeDriver(type);
    }
    void addNodeRelation(const QString& from, const QString& to, ko::ENodeRelationType type) override
    {
        m_real->addNodeRelation(from, to, type);
    }
    void removeNodeRelation(const QString& from, const QString& to, ko::ENodeRelationType type) override
    {
        m_real->removeNodeRelation(from, to, type);
    }
    QStringList relatedNodes(const QString& id, ko::ENodeRelationType type) const override
    {
        return m_real->relatedNodes(id, type);
    }
    bool isDestinationOfNodeRelation(const QString& id, ko::ENodeRelationType type) const override
    {
        return m_real->isDestinationOfNodeRelation(id, type);
    }
    void startScanners(const std::string& name, unsigned interfaces, int limit) override
    {
        m_real->startScanners(name, interfaces, limit);
    }
    void stopScanners(const std::string& name) override { m_real->stopScanners(name); }
    QString globalRecordingFolderPath() const override { return m_real->globalRecordingFolderPath(); }
    QString defaultRecordingTransponderIP() const override { return m_real->defaultRecordingTransponderIP(); }
    int bandwidth() const override { return m_real->bandwidth(); }
    ko::GlobalNetworkProxy& globalProxy() override { return m_real->globalProxy(); }
    ko::Environments& environments() override { return m_real->environments(); }
    QString activeEnvironment() const override { return m_real->activeEnvironment(); }
    void setActiveEnvironment(const QString& id) override { m_real->setActiveEnvironment(id); }

private:
    ko::NodeDB* const m_real;
};

} // namespace testsupport

#endif
