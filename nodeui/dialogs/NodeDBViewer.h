#ifndef KO_NODEDBVIEWER_H
#define KO_NODEDBVIEWER_H

#include "NodeUIExport.h"
#include "ko/TrContext.h"

#include "ko/NodeViewModel.h"

#include <QScopedPointer>
#include <QWidget>

namespace Ui {
class NodeDBViewer;
}

class QSortFilterProxyModel;

namespace ko {

/// A window that lists every node of the database with symbol, name and type.
///
/// Nodes inserted later are added; a node removed from the database keeps its row, with empty cells. A
/// double click opens a window with the node's properties. Nothing in it changes the database.
class KO_NODEUI_EXPORT NodeDBViewer : public QWidget
{
    Q_OBJECT
    KO_TR_CONTEXT(NodeDBViewer)

public:
    class ViewerModel;

    explicit NodeDBViewer(QWidget* parent = nullptr);

    /// Leaves model and proxy behind; the model's handle keeps the list alive as long as the model lives.
    ~NodeDBViewer() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private slots:
    void openPropertyWindow(const QModelIndex index);

private:
    Q_DISABLE_COPY(NodeDBViewer)

    const QScopedPointer<Ui::NodeDBViewer> m_ui;
    const kom::smart<NodeView> m_view;
    ViewerModel* const m_model;
    QSortFilterProxyModel* const m_proxy;
};

/// The viewer's columns over the list of nodes; entries that are not nodes show nothing.
class KO_NODEUI_EXPORT NodeDBViewer::ViewerModel : public NodeViewModel
{
public:
    ViewerModel(kom::smart<NodeView> view, QObject* parent);

    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
};

} // namespace ko

#endif
