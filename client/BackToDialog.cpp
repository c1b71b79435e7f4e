#include "BackToDialog.h"

#include "PlainTable.h"
#include "WindowSize.h"
#include "database/HostNodeDB.h"
#include "database/StoredHistory.h"
#include "ko/dialogFlags.h"
#include "utils/Retranslation.h"

#include <QDateTimeEdit>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace ko {

namespace {

/// What the field can show.
QDateTime thisMinute()
{
    const QDateTime now = QDateTime::currentDateTime();
    return QDateTime(now.date(), QTime(now.time().hour(), now.time().minute()));
}

} // namespace

BackToDialog::BackToDialog(HostNodeDB& db, QWidget* parent)
    : QDialog(parent, dialogFlags(true))
    , m_sets(db.history())
    , m_hint(new QLabel(this))
    , m_timeLabel(new QLabel(this))
    , m_time(new QDateTimeEdit(thisMinute(), this))
    , m_setsLabel(new QLabel(this))
    , m_setsView(new QTableView(this))
    , m_buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this))
{
    setObjectName(QStringLiteral("BackToDialog"));
    m_hint->setWordWrap(true);
    m_time->setObjectName(QStringLiteral("timeDateTimeEdit"));
    m_time->setDisplayFormat(QStringLiteral("yyyy-MM-dd HH:mm")); // as in the list
    m_time->setCalendarPopup(true);
    m_timeLabel->setBuddy(m_time);
    createTable();
    QHBoxLayout* time = new QHBoxLayout;
    time->addWidget(m_timeLabel);
    time->addWidget(m_time);
    time->addStretch();
    QVBoxLayout* layout = new QVBoxLayout(this);
    layout->addWidget(m_hint);
    layout->addLayout(time);
    layout->addWidget(m_setsLabel);
    layout->addWidget(m_setsView, 1);
    layout->addWidget(m_buttons);
    connect(m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_time, &QDateTimeEdit::dateTimeChanged, this, [this](const QDateTime& time) {
        if (time == m_until)
            return; // Return says it again
        m_first = 0;
        look();
    });
    setTranslated(this, [this] { retranslate(); });
    resizeWithinScreen(*this, QSize(700, 420));
    db.flush(); // what is not stored has no number yet
    look();
    m_setsView->resizeColumnsToContents();
    m_time->setFocus();
}

void BackToDialog::createTable()
{
    preparePlainTable(m_setsView, "setsTableView", &m_sets);
    m_setsView->setSelectionMode(QAbstractItemView::SingleSelection);
    m_setsView->horizontalHeader()->setSectionResizeMode(HistoryModel::TitleColumn, QHeaderView::Stretch);
    m_setsLabel->setBuddy(m_setsView);
    connect(m_setsView, &QTableView::doubleClicked, this, &QDialog::accept);
    connect(m_setsView->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &BackToDialog::showState);
    connect(&m_sets, &HistoryModel::rowsInserted, this, &BackToDialog::choose);
    connect(&m_sets, &HistoryModel::lookingChanged, this, &BackToDialog::showState);
}

void BackToDialog::retranslate()
{
    setWindowTitle(tr("Back to"));
    m_hint->setText(
        tr("Shows all nodes as they were, in a window of its own. Nothing is changed by that; what is "
           "shown there can be put back."));
    m_timeLabel->setText(tr("Not later than:"));
    m_setsLabel->setText(tr("As it was after this was done:"));
    m_setsView->setAccessibleName(tr("What was done"));
    m_buttons->button(QDialogButtonBox::Ok)->setText(tr("Show"));
}

/// What was done in the minute that is shown belongs to it.
void BackToDialog::look()
{
    HistoryFilter filter;
    m_until = m_time->dateTime();
    filter.to = m_until.addSecs(60).toMSecsSinceEpoch() - 1;
    m_setsView->clearSelection();
    m_sets.setFilter(filter);
    choose();
    showState();
}

void BackToDialog::choose()
{
    if (!m_setsView->selectionModel()->hasSelection() && m_sets.rowCount() > 0)
        m_setsView->selectRow(std::min(m_first, m_sets.rowCount() - 1));
}

void BackToDialog::showState()
{
    m_buttons->button(QDialogButtonBox::Ok)->setEnabled(moment().has_value());
}

std::optional<ChangeSetRow> BackToDialog::moment() const
{
    const QModelIndexList selected = m_setsView->selectionModel()->selectedRows();
    const ChangeSetRow row = selected.isEmpty() ? ChangeSetRow() : m_sets.row(selected.first().row());
    return selected.isEmpty() || row.isThinned ? std::nullopt : std::make_optional(row);
}

} // namespace ko
