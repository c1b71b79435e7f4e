#ifndef KO_NODELISTMODEL_H
#define KO_NODELISTMODEL_H

#include "model/NodeData.h"

#include <QAbstractTableModel>
#include <QBasicTimer>
#include <QHash>
#include <QItemSelection>
#include <QStringList>
#include <QVector>

#include <functional>
#include <vector>

namespace ko {

/// The nodes of the client's list, sorted and filtered by the model itself.
///
/// A stock proxy takes most of a second to filter a hundred thousand rows under a view. Here each node has
/// its folded texts and its sort key ready, all nodes stand in an array in sorted order, and what is shown
/// is the part of it that passes the filter.
class NodeListModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { NameColumn, TypeColumn, AddressColumn, RecordingColumn, ColumnCount };
    enum Role { NodeIdRole = Qt::UserRole, NodeTypeRole };

    /// Says in words where a node is recorded; called on the GUI thread, must be quick.
    typedef std::function<QString(const NodeSummary&)> RecordingText;

    explicit NodeListModel(RecordingText recordingText, QObject* parent = nullptr);

    void setNodes(const QVector<NodeSummary>& nodes);

    /// Takes in nodes that are new or changed and forgets others, together. Many at once cost far less
    /// than one after the other. No node stands in both.
    void apply(const QVector<NodeSummary>& changed, const QStringList& removed);

    /// Shows only nodes in which each word of \a text stands in some column, whatever its case.
    void setSearch(const QString& text);

    /// Shows only nodes of a type; AllNodeTypes shows all.
    void setTypeFilter(ENodeType type);

    int nodeCount() const { return int(m_slotOf.size()); }
    QString idAt(int row) const { return node(row).id; }
    const NodeSummary& node(int row) const { return m_nodes[size_t(m_shown.at(row))].summary; }

    /// Row of a node; -1 if it is not shown or not there.
    int rowOf(const QString& id) const;

    /// Marks the nodes in these rows and no others. A mark stays with its node, shown or not, until the
    /// node is removed: a view keeps its selection in marks while the rows change.
    void setMarked(const QItemSelection& rows);

    /// The marked nodes among those that are shown.
    QItemSelection marked() const;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    void sort(int column, Qt::SortOrder order) override;

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    struct Entry
    {
        NodeSummary summary;
        QString nameKey;
        QString columnKey; ///< of the column that is sorted by
        bool marked = false;
        mutable QString haystack; ///< all columns, folded, one to a line; null until it is needed
    };
    typedef int Slot; ///< index into m_nodes
    typedef QVector<Slot> Slots;

    QString cell(const NodeSummary& node, int column) const;
    Entry entryOf(const NodeSummary& node) const;
    int compareKeys(Slot a, Slot b) const;
    bool less(Slot a, Slot b) const;
    int find(const Slots& rows, Slot slot) const;
    int findAgain(const Slots& rows, Slot slot, int from) const;
    const QString& haystack(const Entry& entry) const;
    bool matches(Slot slot) const;
    Slots filtered(const Slots& candidates) const;
    void show(const Slots& rows);
    void refilter(bool narrower);

    Slot addNode(const NodeSummary& node);
    void insertOne(const NodeSummary& node);
    void updateOne(Slot slot, const NodeSummary& node);
    void removeOne(Slot slot);
    void replace(Slot slot, const NodeSummary& node);
    void moveShown(Slot slot, int from, int to);

    void applyMany(const QVector<NodeSummary>& changed, const QStringList& removed);
    void putInPlace(Slots& rows, const std::vector<bool>& touched, const Slots& sorted);
    bool changesFolders(const QVector<NodeSummary>& changed, const QStringList& removed) const;
    void recordingTextsChanged();
    void sortRows(int column, Qt::SortOrder order);
    void makeColumnKeys();
    void sortAll();

    /// Sorts by numbers made of the first characters in which the keys differ; few need the whole key.
    void sortStably(QString Entry::*key);
    void reverse();
    void prepareHaystacks();

    const RecordingText m_recordingText;
    std::vector<Entry> m_nodes;
    Slots m_free;
    QHash<QString, Slot> m_slotOf;
    Slots m_sorted; ///< all nodes
    Slots m_shown;  ///< those that pass the filter, in the same order
    QStringList m_words;
    ENodeType m_type = AllNodeTypes;
    QBasicTimer m_preparing; ///< makes haystacks while nothing else is to do
    size_t m_prepared = 0;
    int m_sortColumn = NameColumn;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
};

} // namespace ko

#endif
