#ifndef KO_NODEOVERVIEWDIALOG_H
#define KO_NODEOVERVIEWDIALOG_H

#include "NodeUIExport.h"
#include "ko/TrContext.h"

#include "ko/Types.h"
#include "kom/smart.h"

#include <QDialog>
#include <QModelIndex>
#include <QScopedPointer>
#include <QStringList>

namespace Ui {
class NodeOverviewDialog;
}

class QSortFilterProxyModel;

namespace ko {

class NodeView;
class NodeViewModel;

/// A pick-list of the nodes that arrive in the database while it is open: found by the scanners that it
/// switches on and off, or added by the user.
///
/// It starts empty. Taking a node off the list never deletes it from the database. A scanner that is
/// left on keeps running when the dialog is gone.
class KO_NODEUI_EXPORT NodeOverviewDialog : public QDialog
{
    Q_OBJECT
    KO_TR_CONTEXT(NodeOverviewDialog)

public:
    explicit NodeOverviewDialog(QWidget* parent = nullptr);
    ~NodeOverviewDialog() override;

    /// The nodes that were selected at the last accept(), in the order of the selection; empty before.
    const QStringList& selected() const { return m_selected; }

public slots:
    void accept() override;

private slots:
    void add();
    void edit();
    void remove();
    void remove_selected();
    void remove_all();
    void filter();
    void selectionChanged();
    void bonjourScan(bool on);
    void arpScan(bool on);

private:
    Q_DISABLE_COPY(NodeOverviewDialog)

    void createContextMenu();
    void scan(const char* scanner, bool on);
    QModelIndexList selectedRows() const;
    NodeID nodeAt(const QModelIndex& proxyIndex) const;
    QStringList nodesAt(const QModelIndexList& proxyIndexes) const;

    const kom::smart<NodeView> m_view;
    QScopedPointer<NodeViewModel> m_model;
    QScopedPointer<QSortFilterProxyModel> m_proxy;
    const QScopedPointer<Ui::NodeOverviewDialog> m_ui;
    QStringList m_selected;
};

} // namespace ko

#endif
