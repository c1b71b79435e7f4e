#include "PlaceTree.h"

#include "NodeListView.h"
#include "PlaceIndex.h"
#include "ko/OutsideText.h"
#include "utils/Retranslation.h"

#include <QDropEvent>
#include <QHash>
#include <QLocale>
#include <QScopedValueRollback>
#include <QSet>
#include <QStandardItemModel>
#include <QStyleOption>

namespace ko {

namespace {

const int PlaceRole = Qt::UserRole; ///< invalid for all nodes

} // namespace

PlaceTree::PlaceTree(QWidget* parent)
    : QTreeView(parent)
    , m_model(new QStandardItemModel(this))
{
    setObjectName(QStringLiteral("placeTreeView"));
    setModel(m_model);
    setHeaderHidden(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setUniformRowHeights(true);
    setAcceptDrops(true);
    setDragDropMode(QAbstractItemView::DropOnly);
    m_all = add(m_model->invisibleRootItem(), QString(), QVariant());
    m_nowhere = add(m_model->invisibleRootItem(), QString(), QString::fromLatin1(""));
    setCurrentIndex(m_all->index());
    setTranslated(this, [this] { retranslate(); });
    connect(selectionModel(), &QItemSelectionModel::currentChanged, this, [this] {
        if (!m_isFilling)
            emit chosenChanged();
    });
}

void PlaceTree::retranslate()
{
    setAccessibleName(tr("Locations"));
    m_all->setText(tr("All nodes"));
    m_nowhere->setText(tr("Devices without a location"));
}

QStandardItem* PlaceTree::add(QStandardItem* parent, const QString& text, const QVariant& place)
{
    auto* item = new QStandardItem(text);
    item->setData(place, PlaceRole);
    parent->appendRow(item);
    return item;
}

void PlaceTree::fill(const PlaceIndex& index)
{
    const std::optional<QString> before = chosen();
    QSet<QString> open;
    const QModelIndexList all = m_model->match(m_all->index(), Qt::DisplayRole, QStringLiteral("*"), -1,
                                               Qt::MatchFlags(Qt::MatchWildcard | Qt::MatchRecursive));
    for (const QModelIndex& each : all) {
        if (isExpanded(each))
            open.insert(each.data(PlaceRole).toString());
    }
    {
        const QScopedValueRollback<bool> filling(m_isFilling, true);
        m_model->removeRows(m_nowhere->row() + 1, m_model->rowCount() - m_nowhere->row() - 1);
        QHash<QString, QStandardItem*> items;
        const QStringList places = index.places(); // what is around a place comes before it
        for (const QString& place : places) {
            const int slash = int(place.lastIndexOf(QLatin1Char('/')));
            QStandardItem* parent = slash < 0 ? m_model->invisibleRootItem() : items.value(place.left(slash));
            const QString text = tr("%1 (%2)").arg(OutsideText::visible(place.mid(slash + 1)),
                                                   QLocale().toString(index.count(place)));
            QStandardItem* item = add(parent, text, place);
            items.insert(place, item);
            if (open.contains(place))
                expand(item->index());
        }
        choose(before);
    }
    if (chosen() != before)
        emit chosenChanged();
}

std::optional<QString> PlaceTree::chosen() const
{
    const QVariant place = currentIndex().data(PlaceRole);
    return place.isValid() ? std::make_optional(place.toString()) : std::nullopt;
}

void PlaceTree::choose(const std::optional<QString>& place)
{
    const QModelIndexList found =
        place ? m_model->match(m_nowhere->index(), PlaceRole, *place, 1,
                               Qt::MatchFlags(Qt::MatchExactly | Qt::MatchCaseSensitive | Qt::MatchRecursive))
              : QModelIndexList();
    setCurrentIndex(found.isEmpty() ? m_all->index() : found.constFirst());
}

/// Invalid where nothing of it can be dropped.
QModelIndex PlaceTree::targetOf(const QDropEvent& event) const
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    const QModelIndex at = indexAt(event.position().toPoint());
#else
    const QModelIndex at = indexAt(event.pos());
#endif
    const bool isTaken = NodeListView::isDragOfNodes(*event.mimeData()) && at.data(PlaceRole).isValid();
    return isTaken ? at : QModelIndex();
}

void PlaceTree::mark(const QModelIndex& target)
{
    if (m_target == target)
        return;
    m_target = target;
    viewport()->update();
}

void PlaceTree::dragEnterEvent(QDragEnterEvent* event)
{
    if (NodeListView::isDragOfNodes(*event->mimeData()))
        event->acceptProposedAction();
}

void PlaceTree::dragMoveEvent(QDragMoveEvent* event)
{
    QTreeView::dragMoveEvent(event); // scrolls and opens what the pointer stays on
    mark(targetOf(*event));
    event->setAccepted(m_target.isValid());
}

void PlaceTree::dragLeaveEvent(QDragLeaveEvent* event)
{
    QTreeView::dragLeaveEvent(event);
    mark(QModelIndex());
}

void PlaceTree::dropEvent(QDropEvent* event)
{
    const QModelIndex target = targetOf(*event);
    mark(QModelIndex());
    if (!target.isValid())
        return;
    event->acceptProposedAction();
    emit dropped(target.data(PlaceRole).toString());
}

/// The toolkit marks a target only where its model takes the data.
void PlaceTree::drawRow(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QTreeView::drawRow(painter, option, index);
    if (m_target != index)
        return;
    QStyleOption frame;
    frame.initFrom(this);
    frame.rect = option.rect;
    style()->drawPrimitive(QStyle::PE_IndicatorItemViewItemDrop, &frame, painter, this);
}

} // namespace ko
