#include "NodeHistoryPage.h"

#include "PlainTable.h"
#include "PutBackDialog.h"
#include "database/HostNodeDB.h"
#include "database/StoredHistory.h"
#include "utils/Retranslation.h"

#include <QDialog>
#include <QHeaderView>
#include <QLabel>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QTimer>
#include <QVBoxLayout>

namespace ko {

NodeHistoryPage::NodeHistoryPage(HostNodeDB& db, const NodeID& id, QWidget* parent)
    : QWidget(parent)
    , m_db(db)
    , m_id(id)
    , m_sets(db.history())
    , m_changes(db.history(), PutBackDialog::words(db))
{
    setObjectName(QStringLiteral("history"));
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored); // the other pages say how large the window is
    m_changes.setNode(id);
}

void NodeHistoryPage::create()
{
    m_setsLabel = new QLabel(this);
    m_setsView = new QTableView(this);
    m_changesLabel = new QLabel(this);
    m_changesView = new QTableView(this);
    preparePlainTable(m_setsView, "nodeSetsTableView", &m_sets);
    preparePlainTable(m_changesView, "nodeChangesTableView", &m_changes);
    m_setsView->setSelectionMode(QAbstractItemView::SingleSelection);
    m_setsView->setColumnHidden(HistoryModel::NodesColumn, true);
    m_setsView->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_setsView->horizontalHeader()->setSectionResizeMode(HistoryModel::TitleColumn, QHeaderView::Stretch);
    m_changesView->setColumnHidden(AlterationModel::NodeColumn, true);
    m_changesView->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    m_setsLabel->setBuddy(m_setsView);
    m_changesLabel->setBuddy(m_changesView);
    QVBoxLayout* layout = new QVBoxLayout(this);
    for (QWidget* part :
         std::initializer_list<QWidget*>{m_setsLabel, m_setsView, m_changesLabel, m_changesView}) {
        layout->addWidget(part);
        part->show(); // in this turn, in which what is seen gets its mnemonics
    }
    connect(m_setsView->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &NodeHistoryPage::showSelected);
    connect(&m_db.history(), &StoredHistory::stored, this, &NodeHistoryPage::look);
    connect(&m_db, &NodeDB::nodeUpdated, this, [this](const NodeID& updated) {
        if (updated == m_id)
            look(); // what another program did has no signal of its own
    });
    setTranslated(this, [this] { retranslate(); });
}

void NodeHistoryPage::retranslate()
{
    m_setsLabel->setText(tr("What was done to it:"));
    m_changesLabel->setText(tr("What that changed:"));
    m_setsView->setAccessibleName(tr("What was done"));
    m_changesView->setAccessibleName(tr("What it changed"));
}

void NodeHistoryPage::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (m_setsView)
        return;
    create();
    m_db.flush(); // what is not stored has no number yet
    look();
}

void NodeHistoryPage::look()
{
    HistoryFilter filter;
    filter.nodes = QStringList(m_id);
    m_sets.setFilter(filter);
    if (m_sets.rowCount() > 0)
        m_setsView->selectRow(0);
    showSelected();
}

void NodeHistoryPage::showSelected()
{
    const QModelIndexList selected = m_setsView->selectionModel()->selectedRows();
    m_changes.setChangeSets(selected.isEmpty() ? QVector<qint64>()
                                               : QVector<qint64>{m_sets.row(selected.first().row()).number});
}

void NodeHistoryPage::addTo(QDialog& dialog, HostNodeDB& db, const NodeID& id)
{
    auto* tabs = dialog.findChild<QTabWidget*>(QStringLiteral("tabWidget"));
    if (!tabs)
        return; // the node is gone
    auto* page = new NodeHistoryPage(db, id, tabs);
    tabs->addTab(page, QString());
    setTranslated(page, [tabs, page] {
        tabs->setTabText(tabs->indexOf(page), tr("History"));
        // The others get their titles in this turn, too. With one more, all should still be seen.
        QTimer::singleShot(0, page,
                           [tabs, page] { page->setMinimumWidth(tabs->tabBar()->sizeHint().width()); });
    });
}

} // namespace ko
