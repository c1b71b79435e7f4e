#ifndef KO_PLACETREE_H
#define KO_PLACETREE_H

#include "ko/TrContext.h"

#include <QTreeView>

#include <optional>

class QDropEvent;
class QStandardItem;
class QStandardItemModel;

namespace ko {

class PlaceIndex;

/// The places of devices as a tree, each with how many there are. Devices that are dropped on a place are to
/// be there.
class PlaceTree : public QTreeView
{
    Q_OBJECT
    KO_TR_CONTEXT(PlaceTree)

public:
    explicit PlaceTree(QWidget* parent);

    /// Shows them; what is chosen stays chosen as long as it is there, what is open stays open.
    void fill(const PlaceIndex& index);

    /// Nothing for all nodes, an empty place for the devices that have none.
    std::optional<QString> chosen() const;
    void choose(const std::optional<QString>& place);

signals:
    void chosenChanged();
    void dropped(const QString& place);

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                 const QModelIndex& index) const override;

private:
    QStandardItem* add(QStandardItem* parent, const QString& text, const QVariant& place);
    QModelIndex targetOf(const QDropEvent& event) const;
    void mark(const QModelIndex& target);
    void retranslate();

    QStandardItemModel* const m_model;
    QStandardItem* m_all = nullptr;
    QStandardItem* m_nowhere = nullptr;
    QPersistentModelIndex m_target; ///< the place that would take what is dragged now
    bool m_isFilling = false;
};

} // namespace ko

#endif
