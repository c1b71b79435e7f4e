#ifndef KO_ROWINDEX_H
#define KO_ROWINDEX_H

#include "PlatformExport.h"

#include <QVector>

namespace ko {

/// Rows of a list whose members keep one number, their slot, while others come and go.
///
/// Appending, removing, and finding the row of a slot or the slot of a row take logarithmic time
/// (a Fenwick tree over the slots that are in use).
class KO_PLATFORM_EXPORT RowIndex
{
public:
    int count() const { return m_count; }

    /// A new slot behind all others.
    int append();

    /// The slots 0 to \a count - 1, into an empty index.
    void fill(int count);
    void remove(int slot);
    void clear();

    int rowOf(int slot) const;

    /// \a row must be below count().
    int slotAt(int row) const;

    /// Slots that were handed out and are still counted in the tree, removed ones included.
    int slotCount() const { return int(m_tree.size()); }

private:
    QVector<int> m_tree; ///< m_tree[i]: members among the slots i - lowest bit of (i + 1) + 1 .. i
    int m_count = 0;
};

} // namespace ko

#endif
