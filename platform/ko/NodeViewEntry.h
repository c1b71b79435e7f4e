#ifndef KO_NODEVIEWENTRY_H
#define KO_NODEVIEWENTRY_H

#include "ko/RowIndex.h"
#include "ko/Types.h"
#include "kom/smart.h"

#include <QStringList>

#include <memory>

namespace ko {

struct NodeBrief;
class SubViewEntry;

/// One entry of a NodeView: a node or a sub-view.
class KO_PLATFORM_EXPORT NodeViewEntry
{
public:
    virtual ~NodeViewEntry();

    virtual bool isNode() const = 0;

    /// Number of the entry in its view, never 0 and never used again.
    unsigned internalId() const { return m_internalId; }

protected:
    explicit NodeViewEntry(unsigned internalId);

private:
    friend class NodeView;
    friend class SubViewEntry;
    Q_DISABLE_COPY(NodeViewEntry)

    const unsigned m_internalId;
    SubViewEntry* m_parent = nullptr; ///< null once the entry was taken off its view
    int m_slot = -1;
};

/// Stands for a node of the database, which may have gone meanwhile.
class KO_PLATFORM_EXPORT NodeEntry : public NodeViewEntry
{
public:
    NodeEntry(unsigned internalId, const NodeID& id);
    ~NodeEntry() override;

    bool isNode() const override { return true; }
    const NodeID& id() const { return m_id; }

private:
    friend class NodeViewModel;

    const NodeID m_id;
    mutable std::unique_ptr<NodeBrief> m_shown; ///< as it was read for a cell; null: to be read again
};

/// A named list of entries inside a view.
class KO_PLATFORM_EXPORT SubViewEntry : public NodeViewEntry
{
public:
    SubViewEntry(unsigned internalId, const QString& name);
    ~SubViewEntry() override;

    bool isNode() const override { return false; }
    const QString& name() const { return m_name; }

    int count() const { return m_rows.count(); }

    /// The entry in a row; null when there is no such row.
    kom::smart<NodeViewEntry> entryAt(int row) const;
    /// The number of the entry in a row that there is.
    unsigned internalIdAt(int row) const { return m_internalIds.at(m_rows.slotAt(row)); }
    int rowOf(const NodeViewEntry& entry) const { return m_rows.rowOf(entry.m_slot); }

private:
    friend class NodeView;

    void append(const kom::smart<NodeViewEntry>& entry);
    void fill(const QStringList& ids, unsigned firstInternalId);
    const kom::smart<NodeViewEntry>& entryInSlot(int slot) const;
    void remove(NodeViewEntry& entry);
    void clear();
    void compact();

    QString m_name;
    RowIndex m_rows;
    /// Null where an entry was removed or, in the slots of m_filled, not made yet.
    mutable QVector<kom::smart<NodeViewEntry>> m_slots;
    QVector<unsigned> m_internalIds; ///< of the slots, as they are wanted for every row of a list
    QStringList m_filled;            ///< nodes of the first slots, none of which was removed
    unsigned m_firstFilled = 0;
};

} // namespace ko

#endif
