#ifndef KO_NODELISTVIEW_H
#define KO_NODELISTVIEW_H

#include "NodeListModel.h"
#include "ko/TrContext.h"

#include <QTreeView>

class QMimeData;
class QSettings;

namespace ko {

/// The table of nodes. What is selected stays selected, by identifier, when the filter shows other rows.
class NodeListView : public QTreeView
{
    Q_OBJECT
    KO_TR_CONTEXT(NodeListView)

public:
    explicit NodeListView(QWidget* parent = nullptr);

    void setNodeModel(NodeListModel* model);

    /// Identifiers of the selected nodes, in the order of the rows.
    QStringList selectedIds() const;
    int selectedCount() const;

    /// The selected rows in their order, the columns that are shown parted by tabs.
    QString selectedText() const;
    void selectNode(const QString& id);

    /// Brings up the menu of the header, in which columns are shown and hidden.
    void chooseColumns();

    /// Names the entries of that menu like the columns.
    void retranslate();

    /// Which columns there are, how wide, in which order, and by which the list is sorted.
    void saveColumns(QSettings& settings) const;
    /// Does nothing if the columns are no longer those that were saved.
    void restoreColumns(const QSettings& settings);

    /// A list that has the focus has a current row, also if its rows came later.
    void ensureCurrent();

    /// For the search field: the focus goes to the current row, or to the first one.
    void enter();

    /// Selects those of the nodes that are shown, and no others.
    void selectNodes(const QStringList& ids);

    /// Whether it is the drag of nodes that are selected in a list of this process.
    static bool isDragOfNodes(const QMimeData& data);

signals:
    /// Return was pressed or a row was double-clicked.
    void nodeActivated(const QString& id);

    /// The user has shown or hidden one.
    void columnsChanged();

protected:
    void startDrag(Qt::DropActions actions) override;
    void keyPressEvent(QKeyEvent* event) override;
    void setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
    void rowsAboutToBeRemoved(const QModelIndex& parent, int start, int end) override;

private:
    void addColumnActions();
    QStringList columnKeys() const;
    void remember();
    void restore();
    void aboutToSort();
    void sorted();

    NodeListModel* m_model = nullptr;
    QString m_current;
    QString m_top;                 ///< the first row in sight, if the current one is not
    bool m_selectionIsNew = false; ///< the user's, not yet kept in the model's marks
    bool m_restoring = false;
    bool m_selectAfterSort = false;
};

} // namespace ko

#endif
