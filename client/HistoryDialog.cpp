#include "HistoryDialog.h"

#include "HistoryExport.h"
#include "HistoryFilterBar.h"
#include "HistoryLimitDialog.h"
#include "MnemonicText.h"
#include "PlainTable.h"
#include "PutBackDialog.h"
#include "ReadAlterations.h"
#include "ReadOnlyNotice.h"
#include "WindowSize.h"
#include "audit/ChangeSetTitle.h"
#include "database/HostNodeDB.h"
#include "database/StoredHistory.h"
#include "ko/OutsideText.h"
#include "ko/dialogFlags.h"
#include "utils/Retranslation.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QSplitter>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace ko {

namespace {

const char sizeKey[] = "history/size";

} // namespace

HistoryDialog::HistoryDialog(HostNodeDB& db, const Scope& scope, QWidget* parent)
    : QDialog(parent, dialogFlags(true))
    , m_db(db)
    , m_scope(scope)
    , m_sets(db.history())
    , m_changes(db.history(), PutBackDialog::words(db))
    , m_filter(new HistoryFilterBar(this))
    , m_onlyScope(new QCheckBox(this))
    , m_setsView(new QTableView(this))
    , m_changesView(new QTableView(this))
    , m_setsLabel(new QLabel(this))
    , m_changesLabel(new QLabel(this))
    , m_state(new QLabel(this))
{
    setObjectName(QStringLiteral("HistoryDialog"));
    m_onlyScope->setObjectName(QStringLiteral("scopeCheckBox"));
    m_onlyScope->setChecked(!scope.nodes.isEmpty() || scope.changeSet != 0);
    m_onlyScope->setVisible(m_onlyScope->isChecked());
    m_state->setObjectName(QStringLiteral("stateLabel"));
    createTables();
    QSplitter* splitter = new QSplitter(Qt::Vertical, this);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(titled(m_setsLabel, m_setsView));
    splitter->addWidget(titled(m_changesLabel, m_changesView));
    QVBoxLayout* layout = new QVBoxLayout(this);
    for (QWidget* part : std::initializer_list<QWidget*>{m_filter, m_onlyScope, splitter, m_state})
        layout->addWidget(part);
    layout->setStretchFactor(splitter, 1);
    createButtons();
    connect(m_filter, &HistoryFilterBar::changed, this, &HistoryDialog::showFound);
    connect(m_onlyScope, &QCheckBox::toggled, this, &HistoryDialog::showFound);
    connect(&m_sets, &HistoryModel::lookingChanged, this, &HistoryDialog::showState);
    setTranslated(this, [this] { retranslate(); });
    m_db.flush(); // what is not stored has no number yet
    showFound();
    m_setsView->resizeColumnsToContents();
    m_setsView->setFocus();
    resizeWithinScreen(*this, QSettings().value(QLatin1String(sizeKey), QSize(960, 620)).toSize());
}

HistoryDialog::~HistoryDialog()
{
    QSettings().setValue(QLatin1String(sizeKey), size());
}

void HistoryDialog::createTables()
{
    preparePlainTable(m_setsView, "setsTableView", &m_sets);
    preparePlainTable(m_changesView, "changesTableView", &m_changes);
    m_changesView->horizontalHeader()->setStretchLastSection(true);
    m_setsView->horizontalHeader()->setSectionResizeMode(HistoryModel::TitleColumn, QHeaderView::Stretch);
    connect(m_setsView->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &HistoryDialog::showSelected);
    connect(m_changesView->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &HistoryDialog::showState);
}

void HistoryDialog::createButtons()
{
    QDialogButtonBox* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    const auto add = [&](const char* name, void (HistoryDialog::*run)()) {
        QPushButton* button = buttons->addButton(QString(), QDialogButtonBox::ActionRole);
        button->setObjectName(QLatin1String(name));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, run);
        return button;
    };
    m_putBack = add("putBackButton", &HistoryDialog::putBackSets);
    m_putBackLines = add("putBackLinesButton", &HistoryDialog::putBackLines);
    m_backToHere = add("backToButton", &HistoryDialog::goBack);
    m_export = add("exportButton", &HistoryDialog::exportFound);
    m_keep = add("keepButton", &HistoryDialog::askHowMuchToKeep);
    buttons->button(QDialogButtonBox::Close)->setDefault(true);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout()->addWidget(buttons);
}

QString HistoryDialog::scopeText() const
{
    if (m_scope.changeSet != 0)
        return tr("Only what was done up to the entry of the audit log");
    if (m_scope.nodes.size() == 1)
        return tr("Only of \"%1\"", "node")
            .arg(MnemonicText::literal(OutsideText::visible(m_db.summary(m_scope.nodes.first()).name)));
    return tr("Only of the %n selected node(s)", nullptr, int(m_scope.nodes.size()));
}

void HistoryDialog::retranslate()
{
    setWindowTitle(tr("History"));
    m_filter->retranslate();
    m_onlyScope->setText(scopeText());
    m_setsLabel->setText(tr("What was done:"));
    m_changesLabel->setText(tr("What it changed:"));
    m_setsView->setAccessibleName(tr("What was done"));
    m_changesView->setAccessibleName(tr("What it changed"));
    m_putBack->setText(tr("Put Back..."));
    m_putBackLines->setText(tr("Put Back Selected Changes..."));
    m_backToHere->setText(tr("Back to Here..."));
    m_export->setText(tr("Export..."));
    m_keep->setText(tr("Keep..."));
    showState();
}

void HistoryDialog::showFound()
{
    HistoryFilter filter = m_filter->filter();
    qint64 before = std::numeric_limits<qint64>::max();
    if (m_onlyScope->isChecked()) {
        filter.nodes = m_scope.nodes;
        before = m_scope.changeSet != 0 ? m_scope.changeSet + 1 : before;
    }
    m_sets.setFilter(filter, before);
    if (m_sets.rowCount() > 0)
        m_setsView->selectRow(0);
    showSelected();
}

QVector<ChangeSetRow> HistoryDialog::selectedSets() const
{
    QVector<ChangeSetRow> rows;
    QModelIndexList selected = m_setsView->selectionModel()->selectedRows();
    std::sort(selected.begin(), selected.end());
    for (const QModelIndex& index : std::as_const(selected))
        rows.append(m_sets.row(index.row()));
    return rows;
}

void HistoryDialog::showSelected()
{
    QVector<qint64> numbers;
    const QVector<ChangeSetRow> sets = selectedSets();
    for (const ChangeSetRow& set : sets)
        numbers.append(set.number);
    m_changes.setChangeSets(numbers);
    m_changesView->resizeColumnsToContents();
    showState();
}

void HistoryDialog::showState()
{
    const QVector<ChangeSetRow> sets = selectedSets();
    const bool isThinned =
        std::any_of(sets.cbegin(), sets.cend(), [](const ChangeSetRow& row) { return row.isThinned; });
    m_putBack->setEnabled(!sets.isEmpty() && !isThinned);
    m_putBackLines->setEnabled(m_changesView->selectionModel()->hasSelection());
    m_backToHere->setEnabled(sets.size() == 1 && !isThinned);
    m_export->setEnabled(m_sets.rowCount() > 0);
    m_state->setText(isThinned ? tr("The details were taken out of the history: it cannot be put back.")
                     : m_sets.isLooking()      ? tr("Looking for more...")
                     : m_sets.rowCount() == 0  ? tr("Nothing was found.")
                     : m_sets.canFetchMore({}) ? tr("There is more: scroll down to see it.")
                                               : tr("This is all."));
}

void HistoryDialog::putBackSets()
{
    const QVector<ChangeSetRow> sets = selectedSets();
    if (const auto alterations = readAlterations(m_db, sets, this))
        putBack(*alterations, sets);
}

void HistoryDialog::putBackLines()
{
    QHash<qint64, QSet<QString>> things; // by change set
    const QModelIndexList lines = m_changesView->selectionModel()->selectedRows();
    for (const QModelIndex& line : lines) {
        const Alteration& alteration = m_changes.alteration(line.row());
        things[alteration.changeSet].insert(alteration.thing());
    }
    QVector<ChangeSetRow> sets = selectedSets();
    sets.erase(std::remove_if(sets.begin(), sets.end(),
                              [&things](const ChangeSetRow& row) { return !things.contains(row.number); }),
               sets.end());
    QVector<Alteration> chosen;
    for (const ChangeSetRow& row : std::as_const(sets)) {
        const auto all = readAlterations(m_db, {row}, this);
        if (!all)
            return;
        chosen += Alterations::selected(*all, things.value(row.number));
    }
    putBack(chosen, sets);
}

void HistoryDialog::putBack(const QVector<Alteration>& alterations, const QVector<ChangeSetRow>& sets)
{
    if (ReadOnlyNotice::refuses(m_db, this))
        return;
    QVector<Cause> causes;
    for (const ChangeSetRow& set : sets)
        causes.append(set.cause);
    const auto title = [&sets] {
        return sets.size() == 1 ? ChangeSetTitle::of(sets.first())
                                : tr("%n selected change(s)", nullptr, int(sets.size()));
    };
    const Cause cause = Cause::undoing(causes);
    const std::optional<PutBack> now = PuttingBack::preview(m_db, alterations);
    if (!now)
        return;
    PutBackDialog dialog(
        title, *now, PutBackDialog::words(m_db),
        [this, &cause](const PutBack& shown) { return PuttingBack::apply(m_db, shown, cause); }, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    m_done = tr("Put back: %1").arg(OutsideText::visible(title()));
    showFound(); // with what was done just now
}

/// The other window can only be used when this one is closed.
void HistoryDialog::goBack()
{
    m_backTo = selectedSets().constFirst();
    accept();
}

void HistoryDialog::askHowMuchToKeep()
{
    HistoryLimitDialog dialog(m_db.history().limit(), this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    m_db.history().setLimit(dialog.limit());
    m_db.flush();
    showFound(); // with this change
}

void HistoryDialog::exportFound()
{
    HistoryFilter filter = m_filter->filter();
    if (m_onlyScope->isChecked())
        filter.nodes = m_scope.nodes;
    HistoryExport(m_db).run(filter, m_onlyScope->isChecked() ? m_scope.changeSet : 0, this);
}

} // namespace ko
