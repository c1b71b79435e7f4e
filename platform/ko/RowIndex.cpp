#include "ko/RowIndex.h"

namespace ko {

namespace {

int lowestBit(int n)
{
    return n & -n;
}

} // namespace

int RowIndex::append()
{
    // The new node of the tree covers itself and the nodes that end right before it.
    const int position = int(m_tree.size()) + 1;
    int covered = 1;
    for (int below = position - 1; below > position - lowestBit(position); below -= lowestBit(below))
        covered += m_tree.at(below - 1);
    m_tree.append(covered);
    ++m_count;
    return position - 1;
}

void RowIndex::fill(int count)
{
    m_tree.resize(count);
    int* tree = m_tree.data();
    for (int position = 1; position <= count; ++position)
        tree[position - 1] = lowestBit(position);
    m_count = count;
}

void RowIndex::remove(int slot)
{
    int* tree = m_tree.data();
    for (int position = slot + 1; position <= m_tree.size(); position += lowestBit(position))
        --tree[position - 1];
    --m_count;
}

void RowIndex::clear()
{
    m_tree.clear();
    m_count = 0;
}

int RowIndex::rowOf(int slot) const
{
    if (m_count == m_tree.size())
        return slot;
    int row = 0;
    for (int position = slot; position > 0; position -= lowestBit(position))
        row += m_tree.at(position - 1);
    return row;
}

int RowIndex::slotAt(int row) const
{
    if (m_count == m_tree.size())
        return row;
    int step = 1;
    while (step * 2 <= m_tree.size())
        step *= 2;
    int position = 0;
    for (; step > 0; step /= 2) {
        if (position + step <= m_tree.size() && m_tree.at(position + step - 1) <= row) {
            position += step;
            row -= m_tree.at(position - 1);
        }
    }
    return position;
}

} // namespace ko
