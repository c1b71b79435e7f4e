#include "ko/NodeDB.h"

#include "ko/IPDeviceNode.h"

#include <QMetaType>

namespace ko {

namespace {

QList<NodeDB*>& instances()
{
    static QList<NodeDB*> list;
    return list;
}

} // namespace

NodeDB* NodeDB::getDB()
{
    return instances().isEmpty() ? nullptr : instances().last();
}

void NodeDB::readAhead(const QStringList&) const {}

bool NodeDB::getBrief(const QString& id, NodeBrief* brief) const
{
    const kom::smart<const Node> found = node(id);
    if (found.null())
        return false;
    const IPDeviceNode* device = dynamic_cast<const IPDeviceNode*>(found.get());
    *brief = NodeBrief{found->type, found->name(), device != nullptr, device ? device->address() : QString()};
    return true;
}

NodeDB::NodeDB(QObject* parent)
    : QObject(parent)
{
    // Queued connections and signal spies know the argument only under its written name.
    qRegisterMetaType<ko::NodeID>("ko::NodeID");
    instances().append(this);
}

NodeDB::~NodeDB()
{
    instances().removeAll(this);
}

} // namespace ko
