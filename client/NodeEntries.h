#ifndef KO_NODEENTRIES_H
#define KO_NODEENTRIES_H

#include "NodeSearch.h"
#include "model/NodeData.h"

#include <QHash>

#include <functional>
#include <vector>

namespace ko {

/// The nodes of a list, each in a slot of its own, with what their order and the search need made once: then
/// sorting and filtering a hundred thousand is plain comparing.
class NodeEntries
{
public:
    typedef int Slot; ///< stays with its node until the node is removed
    typedef QVector<Slot> Slots;
    typedef std::function<QString(const NodeSummary&, int column)> CellText;

    NodeEntries(CellText text, int columns);

    /// What takes longest of a long list, made beforehand.
    class Content;
    /// In any thread. No two nodes have the same identifier.
    static Content contentOf(const QVector<NodeSummary>& nodes);
    /// In place of all that is there. Returns all nodes, sorted.
    Slots setContent(Content content);
    int count() const { return int(m_slotOf.size()); }
    int deviceCount() const { return m_devices; }
    int slotCount() const { return int(m_entries.size()); } ///< all slots are below it

    /// Adds a node, or puts it in the place of the one with its identifier. A mark stays.
    Slot put(const NodeSummary& node);
    void remove(Slot slot);

    Slot slotOf(const QString& id) const { return m_slotOf.value(id, -1); }
    const NodeSummary& node(Slot slot) const { return m_entries[size_t(slot)].node; }
    QString text(Slot slot, int column) const { return m_text(node(slot), column); }
    bool isMarked(Slot slot) const { return m_entries[size_t(slot)].marked; }
    void setMarked(Slot slot, bool marked) { m_entries[size_t(slot)].marked = marked; }

    /// Order by a column, what is alike there by name, and names of devices before all others: a total order,
    /// so that a node is found where it stands.
    void setOrder(int column, Qt::SortOrder order);
    int sortColumn() const { return m_column; }
    Qt::SortOrder sortOrder() const { return m_order; }
    bool less(Slot a, Slot b) const;
    void sort(Slots& rows) const;
    Slots sorted() const; ///< all nodes

    /// Where a node stands in sorted rows, or would stand.
    int place(const Slots& rows, Slot slot) const;

    /// Where the node of a \a row is to stand that is the only one that may be out of order.
    int placeOfMoved(const Slots& rows, int row) const;

    /// Takes what was \a touched out of \a rows and puts \a sorted into them.
    void putInPlace(Slots& rows, const std::vector<bool>& touched, const Slots& sorted) const;

    /// Whether cameras that record into a folder will show something else.
    bool changesFolders(const QVector<NodeSummary>& changed, const QStringList& removed) const;

    bool matches(Slot slot, const NodeSearch& search) const;

    /// The texts of a column are no longer what they were.
    void forgetTexts(int column);
    /// Those of a node, which is shown as it was until it is put again.
    void forgetTexts(const QString& id);

    /// Whether putting the node would change nothing that is shown, as far as that is known.
    bool isShownBy(const NodeSummary& node) const;

    /// Prepares some nodes for the search, for about a millisecond; false when all are.
    bool prepareSome() const;

private:
    struct Entry
    {
        NodeSummary node;
        QString nameKey;
        QString columnKey; ///< of the column that is sorted by
        bool marked = false;
        mutable QString lines; ///< all columns, folded, one to a line; null until it is needed
    };

    typedef std::vector<Entry> Entries;
    static void sortStably(const Entries& entries, Slots& rows, QString Entry::*key);
    Slots inOrder(Slots rows) const;
    const Entry& entry(Slot slot) const { return m_entries[size_t(slot)]; }
    QString columnKey(const Entry& entry) const;
    const QString& lines(const Entry& entry) const;
    QString linesNow(const NodeSummary& node) const;

    const CellText m_text;
    const int m_columns;
    Entries m_entries;
    Slots m_free;
    QHash<QString, Slot> m_slotOf;
    int m_devices = 0;
    int m_column = 0;
    Qt::SortOrder m_order = Qt::AscendingOrder;
    mutable size_t m_prepared = 0; ///< all before it
};

class NodeEntries::Content
{
    friend class NodeEntries;
    Entries entries;
    QHash<QString, Slot> slotOf;
    int devices = 0;
    Slots byName;
};

} // namespace ko

#endif
