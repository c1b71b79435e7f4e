#include "NodeListView.h"

#include <QHeaderView>
#include <QKeyEvent>

#include <algorithm>

namespace ko {

NodeListView::NodeListView(QWidget* parent)
    : QTreeView(parent)
{
    setObjectName(QStringLiteral("nodeListView"));
    setAccessibleName(tr("Nodes"));
    setRootIsDecorated(false);
    setUniformRowHeights(true); // otherwise the view measures every row
    setAlternatingRowColors(true);
    setAllColumnsShowFocus(true);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setContextMenuPolicy(Qt::ActionsContextMenu);
    setSortingEnabled(true);
    header()->setSortIndicator(NodeListModel::NameColumn, Qt::AscendingOrder);
}

void NodeListView::setNodeModel(NodeListModel* model)
{
    m_model = model;
    // Connected before the view connects itself: the selection is still there.
    connect(model, &QAbstractItemModel::modelAboutToBeReset, this, &NodeListView::remember);
    setModel(model);
    connect(model, &QAbstractItemModel::modelReset, this, &NodeListView::restore);
    connect(this, &QTreeView::doubleClicked, this,
            [this](const QModelIndex& index) { emit nodeActivated(m_model->idAt(index.row())); });
}

QStringList NodeListView::selectedIds() const
{
    QVector<int> rows;
    const QItemSelection selection = selectionModel()->selection();
    for (const QItemSelectionRange& range : selection) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.append(row);
    }
    std::sort(rows.begin(), rows.end());
    QStringList ids;
    ids.reserve(int(rows.size()));
    for (const int row : std::as_const(rows))
        ids.append(m_model->idAt(row));
    return ids;
}

int NodeListView::selectedCount() const
{
    // By ranges: with everything selected there may be a hundred thousand rows.
    int count = 0;
    const QItemSelection selection = selectionModel()->selection();
    for (const QItemSelectionRange& range : selection)
        count += range.height();
    return count;
}

void NodeListView::selectNode(const QString& id)
{
    const int row = m_model->rowOf(id);
    if (row < 0)
        return;
    selectionModel()->setCurrentIndex(m_model->index(row, 0),
                                      QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    scrollTo(m_model->index(row, 0));
}

void NodeListView::keyPressEvent(QKeyEvent* event)
{
    const bool activates = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (activates && currentIndex().isValid()) {
        emit nodeActivated(m_model->idAt(currentIndex().row()));
        return;
    }
    QTreeView::keyPressEvent(event);
}

void NodeListView::remember()
{
    // Nodes that the filter hides meanwhile stay remembered until something else is selected.
    const QStringList ids = selectedIds();
    if (!ids.isEmpty())
        m_selected = QSet<QString>(ids.begin(), ids.end());
    if (currentIndex().isValid())
        m_current = m_model->idAt(currentIndex().row());
}

void NodeListView::restore()
{
    QVector<int> rows;
    for (const QString& id : std::as_const(m_selected)) {
        const int row = m_model->rowOf(id);
        if (row >= 0)
            rows.append(row);
    }
    std::sort(rows.begin(), rows.end());
    QItemSelection selection;
    for (int i = 0; i < rows.size();) {
        int end = i + 1;
        while (end < rows.size() && rows.at(end) == rows.at(end - 1) + 1)
            ++end;
        selection.append(QItemSelectionRange(
            m_model->index(rows.at(i), 0), m_model->index(rows.at(end - 1), NodeListModel::ColumnCount - 1)));
        i = end;
    }
    const int current = m_model->rowOf(m_current);
    if (current >= 0)
        selectionModel()->setCurrentIndex(m_model->index(current, 0), QItemSelectionModel::NoUpdate);
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    if (current >= 0)
        scrollTo(m_model->index(current, 0));
}

} // namespace ko
