#include "AuditLogDialog.h"

#include "AuditLogModel.h"
#include "WindowSize.h"
#include "ko/dialogFlags.h"
#include "utils/Retranslation.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace ko {

namespace {

const char sizeKey[] = "auditLog/size";

} // namespace

AuditLogDialog::AuditLogDialog(AuditLog& log, QWidget* parent)
    : QDialog(parent, dialogFlags(true))
    , m_model(new AuditLogModel(log, this))
    , m_found(new QSortFilterProxyModel(this))
    , m_view(new QTableView(this))
{
    setObjectName(QStringLiteral("AuditLogDialog"));
    m_found->setSourceModel(m_model);
    m_found->setFilterKeyColumn(-1);
    m_found->setFilterCaseSensitivity(Qt::CaseInsensitive);
    createView();
    m_model->fetchMore(QModelIndex());
    m_view->resizeColumnsToContents();

    QLineEdit* searchField = new QLineEdit(this);
    searchField->setObjectName(QStringLiteral("searchLineEdit"));
    searchField->setClearButtonEnabled(true);
    connect(searchField, &QLineEdit::textChanged, this, &AuditLogDialog::search);

    QAction* copyAction = new QAction(m_view);
    copyAction->setObjectName(QStringLiteral("copyAction"));
    copyAction->setShortcut(QKeySequence::Copy);
    copyAction->setShortcutContext(Qt::WidgetShortcut);
    connect(copyAction, &QAction::triggered, this, &AuditLogDialog::copy);
    m_view->addAction(copyAction);
    m_view->setContextMenuPolicy(Qt::ActionsContextMenu);

    QDialogButtonBox* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    createHistory(*buttons);
    QVBoxLayout* layout = new QVBoxLayout(this);
    QHBoxLayout* searchRow = new QHBoxLayout;
    QLabel* searchLabel = new QLabel(this);
    searchLabel->setBuddy(searchField);
    searchRow->addWidget(searchLabel);
    searchRow->addWidget(searchField);
    layout->addLayout(searchRow);
    layout->addWidget(m_view);
    layout->addWidget(buttons);
    setTranslated(this, [this, searchField, searchLabel, copyAction] {
        setWindowTitle(tr("Audit Log"));
        m_view->setAccessibleName(tr("Entries"));
        searchField->setPlaceholderText(tr("Search"));
        searchField->setAccessibleName(tr("Search"));
        searchLabel->setText(tr("&Find:"));
        copyAction->setText(tr("Copy"));
        m_history->setText(tr("Show in History..."));
    });
    resizeWithinScreen(*this, QSettings().value(QLatin1String(sizeKey), QSize(960, 520)).toSize());
}

void AuditLogDialog::createView()
{
    m_view->setObjectName(QStringLiteral("entriesTableView"));
    m_view->setModel(m_found);
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_view->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_view->setAlternatingRowColors(true);
    m_view->setWordWrap(false);
    m_view->setTabKeyNavigation(false); // Tab leaves the view
    m_view->verticalHeader()->hide();
    m_view->horizontalHeader()->setStretchLastSection(true);
}

void AuditLogDialog::createHistory(QDialogButtonBox& buttons)
{
    m_history = buttons.addButton(QString(), QDialogButtonBox::ActionRole);
    m_history->setObjectName(QStringLiteral("historyButton"));
    m_history->setAutoDefault(false);
    connect(m_history, &QPushButton::clicked, this, [this] { m_showHistory(selectedChangeSet()); });
    connect(m_view, &QTableView::doubleClicked, m_history, &QPushButton::click);
    connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &AuditLogDialog::enableHistory);
    enableHistory();
}

AuditLogDialog::~AuditLogDialog()
{
    QSettings().setValue(QLatin1String(sizeKey), size());
}

void AuditLogDialog::setHistory(const std::function<void(qint64)>& show)
{
    m_showHistory = show;
    enableHistory();
}

/// 0: of none, or of several.
qint64 AuditLogDialog::selectedChangeSet() const
{
    const QModelIndexList rows = m_view->selectionModel()->selectedRows();
    return rows.size() == 1 ? m_model->changeSetAt(m_found->mapToSource(rows.first()).row()) : 0;
}

void AuditLogDialog::enableHistory()
{
    m_history->setEnabled(m_showHistory && selectedChangeSet() != 0);
}

void AuditLogDialog::search(const QString& text)
{
    // What is looked for may stand in what was not read yet.
    while (!text.isEmpty() && m_model->canFetchMore(QModelIndex()))
        m_model->fetchMore(QModelIndex());
    m_found->setFilterFixedString(text);
}

void AuditLogDialog::copy() const
{
    QModelIndexList rows = m_view->selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end());
    QStringList lines;
    for (const QModelIndex& row : std::as_const(rows)) {
        QStringList cells;
        for (int column = 0; column < m_found->columnCount(); ++column)
            cells.append(row.sibling(row.row(), column).data().toString());
        lines.append(cells.join(QLatin1Char('\t')));
    }
    if (!lines.isEmpty())
        QApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
}

} // namespace ko
