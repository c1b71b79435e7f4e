#include "NodeListView.h"

#include "exchange/CsvFormula.h"
#include "utils/Retranslation.h"

#include <QAction>
#include <QCoreApplication>
#include <QDrag>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QSettings>

#include <algorithm>

namespace ko {

namespace {

const char columnsKey[] = "window/columns";
const char keysKey[] = "window/columnKeys";
const char dragFormat[] = "application/x-konodeui-nodes"; ///< with the process

} // namespace

NodeListView::NodeListView(QWidget* parent)
    : QTreeView(parent)
{
    setObjectName(QStringLiteral("nodeListView"));
    setTranslated(this, [this] { setAccessibleName(tr("Nodes")); });
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
    connect(model, &QAbstractItemModel::layoutAboutToBeChanged, this, &NodeListView::aboutToSort);
    setModel(model);
    connect(model, &QAbstractItemModel::modelReset, this, &NodeListView::restore);
    connect(model, &QAbstractItemModel::layoutChanged, this, &NodeListView::sorted);
    connect(model, &QAbstractItemModel::rowsRemoved, this, [this] { m_restoring = false; });
    connect(this, &QTreeView::doubleClicked, this,
            [this](const QModelIndex& index) { emit nodeActivated(m_model->idAt(index.row())); });
    addColumnActions();
}

/// The menu of the header. The name stays: without it nobody knows what a row is. Properties are there for
/// who wants them.
void NodeListView::addColumnActions()
{
    for (int column = NodeListModel::NameColumn + 1; column < m_model->columnCount(); ++column) {
        const QString title = m_model->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        QAction* action = new QAction(title, header());
        action->setObjectName(QStringLiteral("column%1").arg(column));
        action->setCheckable(true);
        action->setChecked(column < NodeListModel::FirstPropertyColumn);
        setColumnHidden(column, !action->isChecked());
        connect(action, &QAction::toggled, this, [this, column](bool shown) {
            setColumnHidden(column, !shown);
            emit columnsChanged();
        });
        header()->addAction(action);
    }
    header()->setContextMenuPolicy(Qt::ActionsContextMenu);
}

/// What tells columns apart in any language.
QStringList NodeListView::columnKeys() const
{
    QStringList keys;
    for (int column = 0; column < m_model->columnCount(); ++column)
        keys.append(m_model->columns().key(column));
    return keys;
}

void NodeListView::saveColumns(QSettings& settings) const
{
    settings.setValue(QLatin1String(columnsKey), header()->saveState());
    settings.setValue(QLatin1String(keysKey), columnKeys());
}

void NodeListView::restoreColumns(const QSettings& settings)
{
    // The header takes its columns by their places, which another version may have given to others.
    if (settings.value(QLatin1String(keysKey)).toStringList() != columnKeys())
        return;
    header()->restoreState(settings.value(QLatin1String(columnsKey)).toByteArray());
    const QList<QAction*> actions = header()->actions();
    for (int i = 0; i < actions.size(); ++i)
        actions.at(i)->setChecked(!isColumnHidden(NodeListModel::NameColumn + 1 + i));
}

void NodeListView::retranslate()
{
    const QList<QAction*> actions = header()->actions();
    for (int i = 0; i < actions.size(); ++i)
        actions.at(i)->setText(m_model->columns().title(NodeListModel::NameColumn + 1 + i));
}

void NodeListView::chooseColumns()
{
    QMenu::exec(header()->actions(), header()->mapToGlobal(QPoint(0, header()->height())), nullptr, header());
}

void NodeListView::ensureCurrent()
{
    if (!currentIndex().isValid() && window()->focusWidget() == this && m_model->rowCount() > 0)
        selectionModel()->setCurrentIndex(m_model->index(0, 0), QItemSelectionModel::NoUpdate);
}

void NodeListView::enter()
{
    if (!currentIndex().isValid() && m_model->rowCount() > 0)
        selectNode(m_model->idAt(0));
    setFocus(Qt::TabFocusReason);
}

QString NodeListView::selectedText() const
{
    QStringList lines;
    const QStringList ids = selectedIds();
    for (const QString& id : ids) {
        QStringList cells;
        for (int visual = 0; visual < header()->count(); ++visual) {
            const int column = header()->logicalIndex(visual);
            if (isColumnHidden(column))
                continue;
            QString text = m_model->index(m_model->rowOf(id), column).data().toString();
            text.replace(QLatin1Char('\t'), QLatin1Char(' '));
            cells.append(isCsvFormula(text) ? QLatin1Char('\'') + text : text); // as the export writes it
        }
        lines.append(cells.join(QLatin1Char('\t')));
    }
    return lines.join(QLatin1Char('\n'));
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

void NodeListView::selectNodes(const QStringList& ids)
{
    QItemSelection selection;
    for (const QString& id : ids) {
        const int row = m_model->rowOf(id);
        if (row >= 0)
            selection.append(
                QItemSelectionRange(m_model->index(row, 0), m_model->index(row, m_model->columnCount() - 1)));
    }
    if (selection.isEmpty())
        return;
    const QModelIndex first = selection.constFirst().topLeft();
    selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    scrollTo(first);
}

bool NodeListView::isDragOfNodes(const QMimeData& data)
{
    return data.data(QLatin1String(dragFormat)).toLongLong() == QCoreApplication::applicationPid();
}

/// What is dragged is what is selected; the model would write all cells of it.
void NodeListView::startDrag(Qt::DropActions)
{
    auto* data = new QMimeData;
    data->setData(QLatin1String(dragFormat), QByteArray::number(QCoreApplication::applicationPid()));
    auto* drag = new QDrag(this);
    drag->setMimeData(data);
    drag->setPixmap(m_model->data(currentIndex().siblingAtColumn(0), Qt::DecorationRole)
                        .value<QIcon>()
                        .pixmap(iconSize().isValid() ? iconSize() : QSize(16, 16)));
    drag->exec(Qt::CopyAction);
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

void NodeListView::setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command)
{
    m_selectionIsNew = true; // a click on the only row that is shown changes nothing but means it
    QTreeView::setSelection(rect, command);
}

void NodeListView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    m_selectionIsNew = m_selectionIsNew || !m_restoring;
    QTreeView::selectionChanged(selected, deselected);
}

void NodeListView::rowsAboutToBeRemoved(const QModelIndex& parent, int start, int end)
{
    // A node that a change hides is still selected when the filter shows it again.
    remember();
    m_restoring = true;
    QTreeView::rowsAboutToBeRemoved(parent, start, end);
}

void NodeListView::remember()
{
    // What the filter hides stays selected until the user selects something else.
    if (m_selectionIsNew)
        m_model->setMarked(selectionModel()->selection());
    m_selectionIsNew = false;
    if (currentIndex().isValid())
        m_current = m_model->idAt(currentIndex().row());
    const bool inSight = viewport()->rect().intersects(visualRect(currentIndex()));
    const QModelIndex top = inSight ? QModelIndex() : indexAt(QPoint(0, 0));
    m_top = top.isValid() ? m_model->idAt(top.row()) : QString();
}

void NodeListView::restore()
{
    const QScopedValueRollback<bool> restoring(m_restoring, true);
    const QModelIndex current = m_model->index(m_model->rowOf(m_current), 0);
    if (current.isValid())
        selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    selectionModel()->select(m_model->marked(), QItemSelectionModel::ClearAndSelect);
    if (m_top.isEmpty())
        scrollTo(current);
    else
        scrollTo(m_model->index(m_model->rowOf(m_top), 0), PositionAtTop);
}

void NodeListView::aboutToSort()
{
    // The toolkit would follow every selected row by itself, which is fine for a few.
    m_selectAfterSort = selectedCount() > 1000;
    if (!m_selectAfterSort)
        return;
    const QScopedValueRollback<bool> restoring(m_restoring, true);
    remember();
    selectionModel()->clearSelection();
}

void NodeListView::sorted()
{
    if (!m_selectAfterSort)
        return;
    m_selectAfterSort = false;
    const QScopedValueRollback<bool> restoring(m_restoring, true);
    selectionModel()->select(m_model->marked(), QItemSelectionModel::ClearAndSelect);
}

} // namespace ko
