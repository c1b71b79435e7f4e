#ifndef KO_NODELISTMODEL_H
#define KO_NODELISTMODEL_H

#include "ListColumns.h"
#include "NodeEntries.h"
#include "ko/TrContext.h"

#include <QAbstractTableModel>
#include <QBasicTimer>
#include <QItemSelection>

#include <functional>

namespace ko {

/// The nodes of the client's list, sorted and filtered by the model itself: a stock proxy takes most of a
/// second to filter a hundred thousand rows under a view.
class NodeListModel : public QAbstractTableModel
{
    Q_OBJECT
    KO_TR_CONTEXT(NodeListModel)

public:
    enum Column {
        NameColumn,
        TypeColumn,
        AddressColumn,
        RecordingColumn,
        StateColumn,
        FirstPropertyColumn ///< from here on, see ListColumns
    };
    enum Role { NodeIdRole = Qt::UserRole, NodeTypeRole };

    /// Says in words where a node is recorded; called on the GUI thread, must be quick.
    typedef ListColumns::RecordingText RecordingText;

    explicit NodeListModel(RecordingText recordingText, QObject* parent = nullptr);

    void setNodes(const QVector<NodeSummary>& nodes) { setContent(NodeEntries::contentOf(nodes)); }
    /// The same in a fraction of the time.
    void setContent(NodeEntries::Content content);

    /// Takes in nodes that are new or changed and forgets others, together. Many at once cost far less
    /// than one after the other. No node stands in both. One that shows what it did is left alone.
    void apply(const QVector<NodeSummary>& changed, const QStringList& removed);

    /// What checks said; of nodes that are not there it is dropped.
    void setStates(const QHash<QString, CameraState>& states);
    CameraState stateOf(const QString& id) const;

    const ListColumns& columns() const { return m_columns; }

    /// Takes its texts, and those that the columns name, in the language that the program has now.
    void retranslate();

    /// The same identifier, in the memory that it has here already if the node is there.
    QString knownId(const QString& id) const
    {
        const Slot slot = m_entries.slotOf(id);
        return slot < 0 ? id : m_entries.node(slot).id;
    }

    /// The column of a property gets its texts, and from then on those of nodes that change by setText().
    void fill(int column, const ListColumns::Texts& texts);
    /// It is not looked at any more.
    void empty(int column);
    /// Shown by the next apply() with that node.
    void setText(int column, const QString& id, const QString& text);

    /// Shows only nodes that match; see NodeSearch. The fields are the titles of the columns.
    void setSearch(const QString& text);

    /// Shows only nodes of a type; AllNodeTypes shows all.
    void setTypeFilter(ENodeType type);

    /// Shows only nodes that also pass this one, which is asked again whenever a node changes and when it is
    /// set; none shows all.
    typedef std::function<bool(const NodeSummary& node)> Filter;
    void setFilter(const Filter& filter)
    {
        m_filter = filter;
        refilter(false);
    }

    int nodeCount() const { return m_entries.count(); }
    int deviceCount() const { return m_entries.deviceCount(); }
    QString idAt(int row) const { return node(row).id; }
    const NodeSummary& node(int row) const { return m_entries.node(m_shown.at(row)); }

    /// Of the nodes that come first, whether they are shown or not.
    QStringList firstIds(int count) const;

    /// Row of a node; -1 if it is not shown or not there.
    int rowOf(const QString& id) const;

    /// Marks the nodes in these rows and no others. A mark stays with its node, shown or not, until the
    /// node is removed: a view keeps its selection in marks while the rows change.
    void setMarked(const QItemSelection& rows);

    /// The marked nodes among those that are shown.
    QItemSelection marked() const;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override
    {
        return parent.isValid() ? 0 : int(m_shown.size());
    }
    int columnCount(const QModelIndex& parent = QModelIndex()) const override
    {
        return parent.isValid() ? 0 : m_columns.count();
    }
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    void sort(int column, Qt::SortOrder order) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override
    {
        const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
        return index.isValid() ? flags | Qt::ItemIsDragEnabled : flags; // where the view lets it be dragged
    }

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    typedef NodeEntries::Slot Slot;
    typedef NodeEntries::Slots Slots;

    bool passes(Slot slot) const;
    Slots filtered(const Slots& candidates) const;
    void refilter(bool narrower);

    void put(const QVector<NodeSummary>& changed, const QStringList& removed);
    void applyOneByOne(const QVector<NodeSummary>& changed, const QStringList& removed);
    void insertOne(const NodeSummary& node);
    void updateOne(Slot slot, const NodeSummary& node);
    void removeOne(Slot slot);
    void showRow(Slot slot);
    void hideRow(int row);
    void moveRow(int from, int to);

    void applyMany(const QVector<NodeSummary>& changed, const QStringList& removed);
    void textsChanged(int column);
    void stateCellsChanged(const QVector<NodeSummary>& nodes);
    void sortRows(int column, Qt::SortOrder order);

    ListColumns m_columns;
    NodeEntries m_entries;
    Slots m_sorted; ///< all nodes
    Slots m_shown;  ///< those that pass the filter, in the same order
    NodeSearch m_search;
    ENodeType m_type = AllNodeTypes;
    Filter m_filter;
    QBasicTimer m_preparing; ///< makes the entries ready for the search while nothing else is to do
};

} // namespace ko

#endif
