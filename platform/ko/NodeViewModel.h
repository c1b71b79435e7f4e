#ifndef KO_NODEVIEWMODEL_H
#define KO_NODEVIEWMODEL_H

#include "ko/NodeView.h"
#include "ko/OncePerFrame.h"
#include "ko/TrContext.h"

#include <QAbstractItemModel>

namespace ko {

/// Item model over a NodeView: its nodes and, as a tree, its lists.
///
/// Columns: name (with the node's icon), type, address. Cells are read from the database when they are
/// first shown and again when it says that a node changed; a node that is gone shows empty cells. Rows may
/// be dragged; the mime data carries the node identifiers.
///
/// What is appended to the view or changes is told at once as long as it is little. More waits until the
/// event loop is back and is told as one range: proxies and views take rows one by one in a time that grows
/// with the square.
class KO_PLATFORM_EXPORT NodeViewModel : public QAbstractItemModel
{
    Q_OBJECT
    KO_TR_CONTEXT(NodeViewModel)

public:
    enum Column { NameColumn, TypeColumn, AddressColumn, ColumnCount };

    /// Joins the group of \a view, which must not be null.
    NodeViewModel(kom::smart<NodeView> view, QObject* parent);
    ~NodeViewModel() override;

    /// The entry at an index of this model; null for an invalid index.
    kom::smart<NodeViewEntry> entry(const QModelIndex& index) const;

    QModelIndex index(int row, int column, const QModelIndex& parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;

    /// Mime type of dragged rows: identifiers in UTF-8, one to a line.
    static QString mimeType();

protected:
    const kom::smart<NodeView>& view() const { return m_view; }

private slots:
    void entriesAboutToBeInserted(unsigned listId, int first, int last);
    void entriesInserted();
    void entryAboutToBeRemoved(unsigned listId, int row);
    void entryRemoved();
    void aboutToBeCleared();
    void cleared();
    void nodeChanged(ko::NodeID id);
    void tellWaiting();

private:
    const NodeViewEntry* shownAt(const QModelIndex& index) const;
    const SubViewEntry* list(const QModelIndex& parent) const;
    QModelIndex indexOf(const NodeViewEntry& entry, int column) const;
    QModelIndex indexOfList(unsigned listId) const;
    bool isShown(const NodeViewEntry& entry) const;
    void tellChanged(int firstRow, int lastRow, const QModelIndex& parent);
    void tellChanges();
    void tellAppended();

    const kom::smart<NodeView> m_view;
    enum Told { Nothing, InRoot, InList };

    int m_rootRows;            ///< of the view's own list, whose other entries wait
    Told m_told = Nothing;     ///< of the change under way
    QList<unsigned> m_changed; ///< entries whose change waits
    OncePerFrame m_frame;
};

} // namespace ko

#endif
