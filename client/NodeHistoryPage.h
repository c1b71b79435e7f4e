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

/// What was done to one node, beside its properties. It is read when it is seen first, and follows what is
/// done.
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
    void retranslate();
    void look();
    void showSelected();

    HostNodeDB& m_db;
    const NodeID m_id;
    HistoryModel m_sets;
    AlterationModel m_changes;
    QLabel* const m_setsLabel;
    QTableView* const m_setsView;
    QLabel* const m_changesLabel;
    QTableView* const m_changesView;
    bool m_wasSeen = false;
};

} // namespace ko

#endif
