#include "ko/NodeViewEntry.h"

#include "ko/NodeDB.h"

#include <numeric>

namespace ko {

NodeViewEntry::NodeViewEntry(unsigned internalId)
    : m_internalId(internalId)
{
}

NodeViewEntry::~NodeViewEntry() = default;

NodeEntry::NodeEntry(unsigned internalId, const NodeID& id)
    : NodeViewEntry(internalId)
    , m_id(id)
{
}

NodeEntry::~NodeEntry() = default;

SubViewEntry::SubViewEntry(unsigned internalId, const QString& name)
    : NodeViewEntry(internalId)
    , m_name(name)
{
}

SubViewEntry::~SubViewEntry()
{
    clear();
}

kom::smart<NodeViewEntry> SubViewEntry::entryAt(int row) const
{
    if (row < 0 || row >= count())
        return kom::smart<NodeViewEntry>();
    return entryInSlot(m_rows.slotAt(row));
}

const kom::smart<NodeViewEntry>& SubViewEntry::entryInSlot(int slot) const
{
    kom::smart<NodeViewEntry>& entry = m_slots[slot];
    if (entry.null() && slot < m_filled.size()) {
        entry = kom::makeSmart<NodeEntry>(m_firstFilled + unsigned(slot), m_filled.at(slot));
        entry->m_parent = const_cast<SubViewEntry*>(this);
        entry->m_slot = slot;
    }
    return entry;
}

/// Into an empty list. Most entries of a long one are never looked at, and are not made until they are.
void SubViewEntry::fill(const QStringList& ids, unsigned firstInternalId)
{
    m_filled = ids;
    m_firstFilled = firstInternalId;
    m_slots.resize(int(ids.size()));
    m_rows.fill(int(ids.size()));
    m_internalIds.resize(int(ids.size()));
    std::iota(m_internalIds.begin(), m_internalIds.end(), firstInternalId);
}

void SubViewEntry::append(const kom::smart<NodeViewEntry>& entry)
{
    entry->m_parent = this;
    entry->m_slot = m_rows.append();
    m_slots.append(entry);
    m_internalIds.append(entry->internalId());
}

void SubViewEntry::remove(NodeViewEntry& entry)
{
    const int slot = entry.m_slot;
    m_rows.remove(slot);
    entry.m_parent = nullptr;
    m_slots[slot].reset(); // may delete the entry
    if (m_slots.size() > 64 && m_slots.size() > 2 * count())
        compact();
}

void SubViewEntry::clear()
{
    // Somebody may still hold an entry's handle.
    for (const kom::smart<NodeViewEntry>& entry : std::as_const(m_slots)) {
        if (!entry.null())
            entry->m_parent = nullptr;
    }
    m_slots.clear();
    m_internalIds.clear();
    m_rows.clear();
    m_filled.clear();
}

void SubViewEntry::compact()
{
    QVector<kom::smart<NodeViewEntry>> kept;
    kept.reserve(count());
    m_rows.clear();
    m_internalIds.clear();
    for (const kom::smart<NodeViewEntry>& entry : std::as_const(m_slots)) {
        if (!entry.null()) {
            entry->m_slot = m_rows.append();
            m_internalIds.append(entry->internalId());
            kept.append(entry);
        }
    }
    m_slots.swap(kept);
}

} // namespace ko
