#ifndef TESTS_SUPPORT_HOSTFIXTURE_H
#define TESTS_SUPPORT_HOSTFIXTURE_H

#include "database/HostNodeDB.h"
#include "drivers/NodeTypes.h"
#include "interfaces/INodeDriverComponent.h"
#include "ko/IPDeviceNode.h"
#include "ko/NodeHintIPDevice.h"

#include <QSignalSpy>
#include <QTemporaryDir>

#include <functional>
#include <memory>

namespace testsupport {

/// A real database in a folder of its own, and the few things every test does with one.
class HostFixture
{
public:
    HostFixture() { open(); }

    ko::HostNodeDB* db() const { return m_db.get(); }
    QString fileName() const { return m_folder.filePath(QLatin1String("nodes.kodb")); }

    /// Closes the database and opens it again, as a restart does.
    void reopen()
    {
        m_db.reset();
        open();
    }

    /// Adds a node and returns its id.
    QString add(ko::ENodeType type, const QString& name, const QString& address = QString())
    {
        const kom::smart<ko::NodeHint> hint = ko::NodeTypes::driver(type)->createNodeHint(type);
        hint->setName(name);
        if (auto* device = dynamic_cast<ko::NodeHintIPDevice*>(hint.get()))
            device->address = address;
        QSignalSpy inserted(m_db.get(), SIGNAL(nodeInserted(ko::NodeID)));
        m_db->newNodeHint(*hint);
        return inserted.count() == 1 ? inserted.first().first().toString() : QString();
    }

    /// One update of a node, not made by the object under test.
    void change(const QString& id, const std::function<void(ko::Node*)>& change)
    {
        ko::Node* node = m_db->beginUpdateNode(id, -1);
        if (node)
            change(node);
        m_db->endUpdateNode(node);
    }

private:
    void open()
    {
        ko::StoreError error;
        m_db = ko::HostNodeDB::open(fileName(), &error);
        if (!m_db)
            qFatal("%s", qPrintable(error.message));
    }

    QTemporaryDir m_folder;
    std::unique_ptr<ko::HostNodeDB> m_db;
};

} // namespace testsupport

#endif
