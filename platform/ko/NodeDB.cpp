#include "ko/NodeDB.h"

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
