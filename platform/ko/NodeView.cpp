#include "ko/NodeView.h"

namespace ko {

NodeView::NodeView(const QString& name)
    : m_root(new SubViewEntry(0, name))
{
}

NodeView::~NodeView() = default;

QString NodeView::name() const
{
    return m_root->name();
}

kom::smart<NodeViewEntry> NodeView::entryFromInternalId(unsigned internalId) const
{
    return m_entries.value(internalId);
}

QList<kom::smart<NodeEntry>> NodeView::entriesOf(const NodeID& id) const
{
    return m_entriesByNode.values(id);
}

/// Whether the list holds the node, or will when what is under way is done.
bool NodeView::holds(const SubViewEntry& list, const NodeID& id) const
{
    for (auto found = m_entriesByNode.constFind(id); found != m_entriesByNode.constEnd() && found.key() == id;
         ++found) {
        const SubViewEntry* parent = found.value()->m_parent;
        if (!parent || parent == &list)
            return true;
    }
    return false;
}

kom::smart<NodeEntry> NodeView::createEntry(const NodeID& id)
{
    kom::smart<NodeEntry> entry = kom::makeSmart<NodeEntry>(++m_lastInternalId, id);
    m_entriesByNode.insert(id, entry);
    return entry;
}

kom::smart<SubViewEntry> NodeView::addSubView(const QString& name)
{
    kom::smart<SubViewEntry> list = kom::makeSmart<SubViewEntry>(++m_lastInternalId, name);
    emit entriesAboutToBeInserted(m_root->internalId(), m_root->count(), m_root->count());
    append(*m_root, list);
    emit entriesInserted();
    return list;
}

void NodeView::addNodeTo(SubViewEntry& list, const NodeID& id)
{
    if (holds(list, id) || (&list != m_root.get() && list.m_parent != m_root.get()))
        return;
    const kom::smart<NodeEntry> entry = createEntry(id);
    emit entriesAboutToBeInserted(list.internalId(), list.count(), list.count());
    append(list, entry);
    emit entriesInserted();
}

void NodeView::addNode(ko::NodeID id)
{
    addNodeTo(*m_root, id);
}

void NodeView::addNodes(const QStringList& ids)
{
    m_entriesByNode.reserve(m_entriesByNode.size() + int(ids.size()));
    QVector<kom::smart<NodeEntry>> added;
    added.reserve(int(ids.size()));
    for (const QString& id : ids) {
        if (!holds(*m_root, id))
            added.append(createEntry(id));
    }
    if (added.isEmpty())
        return;
    const int first = m_root->count();
    emit entriesAboutToBeInserted(m_root->internalId(), first, first + int(added.size()) - 1);
    m_entries.reserve(m_entries.size() + int(added.size()));
    for (const kom::smart<NodeEntry>& entry : std::as_const(added))
        append(*m_root, entry);
    emit entriesInserted();
}

void NodeView::append(SubViewEntry& list, const kom::smart<NodeViewEntry>& entry)
{
    m_entries.insert(entry->internalId(), entry);
    list.append(entry);
}

void NodeView::removeNode(const QString& id, bool everywhere)
{
    const QList<kom::smart<NodeEntry>> entries = entriesOf(id);
    for (const kom::smart<NodeEntry>& entry : entries) {
        SubViewEntry* list = entry->m_parent;
        if (!list || (list != m_root.get() && !everywhere))
            continue;
        emit entryAboutToBeRemoved(list->internalId(), list->rowOf(*entry));
        m_entriesByNode.remove(id, entry);
        m_entries.remove(entry->internalId());
        list->remove(*entry);
        emit entryRemoved();
    }
}

void NodeView::removeAll()
{
    emit aboutToBeCleared();
    m_entries.clear();
    m_entriesByNode.clear();
    m_root->clear();
    emit cleared();
}

} // namespace ko
