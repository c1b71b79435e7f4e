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

/// Where the entry with this number stands, or null.
const kom::smart<NodeViewEntry>* NodeView::place(unsigned internalId) const
{
    // A smaller number gives a huge difference.
    const unsigned slot = internalId - m_root->m_firstFilled;
    if (slot < unsigned(m_root->m_filled.size()))
        return &m_root->entryInSlot(int(slot));
    const unsigned number = internalId - m_firstInternalId;
    return number < m_entries.size() ? &m_entries[number] : nullptr;
}

kom::smart<NodeViewEntry> NodeView::entryFromInternalId(unsigned internalId) const
{
    const kom::smart<NodeViewEntry>* found = place(internalId);
    return found ? *found : kom::smart<NodeViewEntry>();
}

const NodeViewEntry* NodeView::findEntry(unsigned internalId) const
{
    const kom::smart<NodeViewEntry>* found = place(internalId);
    return found ? found->get() : nullptr;
}

void NodeView::indexFilled() const
{
    const int count = int(m_root->m_filled.size());
    m_entriesByNode.reserve(m_entriesByNode.size() + count);
    for (int slot = 0; slot < count; ++slot) {
        const kom::smart<NodeViewEntry> entry = m_root->entryInSlot(slot);
        m_entries[entry->internalId() - m_firstInternalId] = entry;
        m_entriesByNode.insert(m_root->m_filled.at(slot), entry.cast<NodeEntry>());
    }
    m_root->m_filled.clear();
}

QList<kom::smart<NodeEntry>> NodeView::entriesOf(const NodeID& id) const
{
    indexFilled();
    return m_entriesByNode.values(id);
}

/// Whether the list holds the node, or will when what is under way is done.
bool NodeView::holds(const SubViewEntry& list, const NodeID& id) const
{
    indexFilled();
    for (auto found = m_entriesByNode.constFind(id); found != m_entriesByNode.constEnd() && found.key() == id;
         ++found) {
        const SubViewEntry* parent = found.value()->m_parent;
        if (!parent || parent == &list)
            return true;
    }
    return false;
}

kom::smart<SubViewEntry> NodeView::addSubView(const QString& name)
{
    kom::smart<SubViewEntry> list = kom::makeSmart<SubViewEntry>(++m_lastInternalId, name);
    m_entries.push_back(list);
    emit entriesAboutToBeInserted(m_root->internalId(), m_root->count(), m_root->count());
    m_root->append(list);
    emit entriesInserted();
    return list;
}

void NodeView::addNodeTo(SubViewEntry& list, const NodeID& id)
{
    if (holds(list, id) || (&list != m_root.get() && list.m_parent != m_root.get()))
        return;
    const kom::smart<NodeEntry> entry = kom::makeSmart<NodeEntry>(++m_lastInternalId, id);
    m_entries.push_back(entry);
    m_entriesByNode.insert(id, entry);
    emit entriesAboutToBeInserted(list.internalId(), list.count(), list.count());
    list.append(entry);
    emit entriesInserted();
}

void NodeView::addNode(ko::NodeID id)
{
    addNodeTo(*m_root, id);
}

void NodeView::fill(const QStringList& ids)
{
    Q_ASSERT(m_root->count() == 0);
    if (ids.isEmpty())
        return;
    emit entriesAboutToBeInserted(m_root->internalId(), 0, int(ids.size()) - 1);
    m_root->fill(ids, m_lastInternalId + 1);
    m_lastInternalId += unsigned(ids.size());
    m_entries.resize(m_entries.size() + size_t(ids.size()));
    emit entriesInserted();
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
        m_entries[entry->internalId() - m_firstInternalId].reset();
        while (!m_entries.empty() && m_entries.front().null()) {
            m_entries.pop_front();
            ++m_firstInternalId;
        }
        list->remove(*entry);
        emit entryRemoved();
    }
}

void NodeView::removeAll()
{
    emit aboutToBeCleared();
    m_entries.clear();
    m_firstInternalId = m_lastInternalId + 1;
    m_entriesByNode.clear();
    m_root->clear();
    emit cleared();
}

} // namespace ko
