#include "database/NodeIndex.h"

#include "database/NodeCache.h"

#include <QHash>

namespace ko {

namespace {

size_t placeOf(std::string_view id, size_t mask)
{
    return size_t(qHashBits(id.data(), id.size())) & mask;
}

} // namespace

NodeRecord* NodeIndex::find(const QString& id) const
{
    // The identifiers that this program gives need no conversion that allocates.
    char text[64];
    const int size = int(id.size());
    const QChar* letters = id.constData();
    int plain = 0;
    for (; plain < size && plain < int(sizeof text) && letters[plain] < QChar(0x80); ++plain)
        text[plain] = letters[plain].toLatin1();
    return findUtf8(plain == size ? std::string_view(text, size_t(size)) : id.toStdString());
}

NodeRecord* NodeIndex::findUtf8(std::string_view id) const
{
    if (m_table.empty())
        return nullptr;
    const size_t mask = m_table.size() - 1;
    for (size_t place = placeOf(id, mask); m_table[place]; place = (place + 1) & mask) {
        if (m_table[place]->summary.idUtf8() == id)
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
    size_t place = placeOf(record->summary.idUtf8(), mask);
    while (m_table[place])
        place = (place + 1) & mask;
    m_table[place] = record;
}

void NodeIndex::reserve(size_t count)
{
    size_t size = qMax<size_t>(16, m_table.size());
    while (4 * count > 3 * size)
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
    size_t hole = placeOf(record->summary.idUtf8(), mask);
    while (m_table[hole] != record)
        hole = (hole + 1) & mask;
    // Those behind it that would no longer be found move up.
    for (size_t place = (hole + 1) & mask; m_table[place]; place = (place + 1) & mask) {
        const size_t wanted = placeOf(m_table[place]->summary.idUtf8(), mask);
        if (((place - wanted) & mask) < ((place - hole) & mask))
            continue;
        m_table[hole] = m_table[place];
        hole = place;
    }
    m_table[hole] = nullptr;
    --m_count;
}

} // namespace ko
