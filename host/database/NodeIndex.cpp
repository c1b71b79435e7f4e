#include "database/NodeIndex.h"

#include "database/NodeCache.h"

#include <QHash>

namespace ko {

namespace {

size_t placeOf(const NodeID& id, size_t mask)
{
    return size_t(qHash(id)) & mask;
}

} // namespace

NodeRecord* NodeIndex::find(const NodeID& id) const
{
    if (m_table.empty())
        return nullptr;
    const size_t mask = m_table.size() - 1;
    for (size_t place = placeOf(id, mask); m_table[place]; place = (place + 1) & mask) {
        if (m_table[place]->summary.id() == id)
            return m_table[place];
    }
    return nullptr;
}

void NodeIndex::insert(NodeRecord* record)
{
    reserve(m_count + 1);
    put(record);
    ++m_count;
}

void NodeIndex::put(NodeRecord* record)
{
    const size_t mask = m_table.size() - 1;
    size_t place = placeOf(record->summary.id(), mask);
    while (m_table[place])
        place = (place + 1) & mask;
    m_table[place] = record;
}

void NodeIndex::reserve(size_t count)
{
    size_t size = qMax<size_t>(16, m_table.size());
    while (5 * count > 4 * size)
        size *= 2;
    if (size > m_table.size())
        resize(size);
}

void NodeIndex::resize(size_t size)
{
    std::vector<NodeRecord*> old(size);
    old.swap(m_table);
    for (NodeRecord* record : old) {
        if (record)
            put(record);
    }
}

void NodeIndex::remove(const NodeRecord* record)
{
    const size_t mask = m_table.size() - 1;
    size_t hole = placeOf(record->summary.id(), mask);
    while (m_table[hole] != record)
        hole = (hole + 1) & mask;
    // Those behind it that would no longer be found move up.
    for (size_t place = (hole + 1) & mask; m_table[place]; place = (place + 1) & mask) {
        const size_t wanted = placeOf(m_table[place]->summary.id(), mask);
        if (((place - wanted) & mask) < ((place - hole) & mask))
            continue;
        m_table[hole] = m_table[place];
        hole = place;
    }
    m_table[hole] = nullptr;
    --m_count;
}

} // namespace ko
