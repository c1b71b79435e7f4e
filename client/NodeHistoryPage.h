#ifndef KO_NODEHISTORYPAGE_H
#define KO_NODEHISTORYPAGE_H

#include "AlterationModel.h"
#include "HistoryModel.h"
#include "ko/TrContext.h"

#include <QWidget>

class QDialog;
class QLabel;
class QTableView;

namespace ko {

class HostNodeDB;

/// What was done to one node, beside its properties. It is made and read when it is seen first, and follows
/// what is done.
class NodeHistoryPage : public QWidget
{
    Q_OBJECT
    KO_TR_CONTEXT(NodeHistoryPage)

public:
    NodeHistoryPage(HostNodeDB& db, const NodeID& id, QWidget* parent);

    /// Puts one after all pages of a dialog about a node that is there.
    static void addTo(QDialog& dialog, HostNodeDB& db, const NodeID& id);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void create();
    void retranslate();
    void look();
    void showSelected();

    HostNodeDB& m_db;
    const NodeID m_id;
    HistoryModel m_sets;
    AlterationModel m_changes;
    QLabel* m_setsLabel = nullptr;
    QTableView* m_setsView = nullptr; ///< null until the page is seen
    QLabel* m_changesLabel = nullptr;
    QTableView* m_changesView = nullptr;
};

} // namespace ko

#endif
