#include "SharingDialog.h"

#include "PlainMessageBox.h"
#include "SharingWords.h"
#include "SiteKeyPrompt.h"
#include "SiteKeyWords.h"
#include "SiteSharing.h"
#include "WindowSize.h"
#include "audit/ChangeSetTitle.h"
#include "database/HostNodeDB.h"
#include "database/StoredHistory.h"
#include "ko/OutsideText.h"
#include "ko/dialogFlags.h"
#include "utils/Retranslation.h"

#include <QDateTime>
#include <QDialogButtonBox>
#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace ko {

SharingDialog::SharingDialog(HostNodeDB& db, SiteSharing& sharing, QWidget* parent)
    : QDialog(parent, dialogFlags(true))
    , m_db(db)
    , m_sharing(sharing)
    , m_state(new QLabel(this))
    , m_hint(new QLabel(this))
    , m_table(new QTableWidget(0, 4, this))
    , m_buttons(new QDialogButtonBox(QDialogButtonBox::Close, this))
{
    setObjectName(QStringLiteral("SharingDialog"));
    m_state->setObjectName(QStringLiteral("stateLabel"));
    m_hint->setObjectName(QStringLiteral("hintLabel"));
    for (QLabel* label : {m_state, m_hint}) {
        label->setTextFormat(Qt::PlainText); // of servers and nodes
        label->setWordWrap(true);
    }
    m_state->setTextInteractionFlags(Qt::TextSelectableByMouse);
    createTable();
    createButtons();
    QVBoxLayout* layout = new QVBoxLayout(this);
    for (QWidget* part : std::initializer_list<QWidget*>{m_state, m_hint, m_table, m_buttons})
        layout->addWidget(part);
    layout->setStretchFactor(m_table, 1);
    connect(&m_sharing, &SiteSharing::changed, this, &SharingDialog::refresh);
    setTranslated(this, [this] { retranslate(); });
    resizeWithinScreen(*this, m_undone.isEmpty() ? QSize(560, 160) : QSize(760, 420));
}

void SharingDialog::createTable()
{
    m_table->setObjectName(QStringLiteral("undoneTableWidget"));
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setTabKeyNavigation(false); // Tab leaves the table
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setStretchLastSection(true);
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &SharingDialog::updateButtons);
}

void SharingDialog::createButtons()
{
    const auto add = [this](const char* name, auto* receiver, auto run) {
        QPushButton* button = m_buttons->addButton(QString(), QDialogButtonBox::ActionRole);
        button->setObjectName(QLatin1String(name));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, receiver, run);
        return button;
    };
    m_dismiss = add("dismissButton", this, &SharingDialog::dismiss);
    m_passphrase = add("passphraseButton", this, &SharingDialog::askForPassphrase);
    m_newCopy = add("newCopyButton", this, &SharingDialog::makeNewCopy);
    m_tryAgain = add("tryAgainButton", &m_sharing, &SiteSharing::tryAgain);
    m_buttons->button(QDialogButtonBox::Close)->setDefault(true);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void SharingDialog::retranslate()
{
    setWindowTitle(tr("Shared Database"));
    m_hint->setText(tr("These changes of yours could not be made, because somebody else had removed the node "
                       "before. Edit > History puts a removed node back."));
    m_table->setAccessibleName(tr("Changes that could not be made"));
    m_table->setHorizontalHeaderLabels({tr("Time"), tr("Change"), tr("Node"), tr("Removed By")});
    m_dismiss->setText(tr("&Dismiss Selected"));
    m_newCopy->setText(tr("&New Copy..."));
    m_passphrase->setText(tr("&Passphrase..."));
    m_tryAgain->setText(tr("&Try Again"));
    refresh();
}

void SharingDialog::refresh()
{
    const SiteKeyOutcome& key = m_sharing.key();
    const QString text = SharingWords::full(m_sharing.state(), m_sharing.address());
    m_state->setText(
        key.site.isEmpty() || key.isHere ? text : text + QStringLiteral("\n\n") + SiteKeyWords::missing(key));
    m_table->clearSelection(); // a row must not become another one under the user's hand
    m_undone = m_db.history().undoneChanges();
    m_table->setRowCount(int(m_undone.size()));
    for (int row = 0; row < m_table->rowCount(); ++row) {
        const UndoneChange& change = m_undone.at(row);
        const std::optional<ChangeSetRow> set = m_db.history().row(change.changeSet);
        const QString by =
            change.removal.id.isEmpty()
                ? QString()
                : tr("%1 at %2", "user, computer").arg(change.removal.user, change.removal.station);
        const QString texts[] = {
            QLocale().toString(QDateTime::fromMSecsSinceEpoch(change.cause.time), QLocale::ShortFormat),
            set ? ChangeSetTitle::of(*set) : QString(), change.node, by};
        for (int column = 0; column < m_table->columnCount(); ++column)
            m_table->setItem(row, column, new QTableWidgetItem(OutsideText::visible(texts[column])));
    }
    m_table->resizeColumnsToContents();
    updateButtons();
}

void SharingDialog::updateButtons()
{
    const bool isRefused = SharingWords::needsDecision(m_sharing.state());
    m_hint->setVisible(!m_undone.isEmpty());
    m_table->setVisible(!m_undone.isEmpty());
    m_dismiss->setVisible(!m_undone.isEmpty());
    m_dismiss->setEnabled(m_table->selectionModel()->hasSelection());
    m_passphrase->setVisible(m_sharing.needsPassphrase() ||
                             (m_sharing.key().isHere && m_sharing.key().record.mayChange));
    m_tryAgain->setVisible(isRefused);
    m_newCopy->setVisible(isRefused);
}

void SharingDialog::dismiss()
{
    QVector<qint64> numbers;
    const QModelIndexList rows = m_table->selectionModel()->selectedRows();
    for (const QModelIndex& row : rows)
        numbers.append(m_undone.at(row.row()).number);
    m_db.history().dismissUndone(numbers);
    emit m_sharing.changed();
}

void SharingDialog::askForPassphrase()
{
    SiteKeyPrompt::ask(m_sharing, this);
}

/// Nothing is lost by it: what was not sent stays in the file that there is.
void SharingDialog::makeNewCopy()
{
    const auto answer =
        PlainMessageBox::ask(QMessageBox::Question, this, tr("New Copy"),
                             tr("Close this window and make a new copy of what is at the server now? Changes "
                                "that were not sent are not "
                                "in it; the present copy, which has them, stays in the folder \"%1\".")
                                 .arg(QDir::toNativeSeparators(QFileInfo(m_db.fileName()).path())),
                             QMessageBox::Yes | QMessageBox::No, QMessageBox::No);
    if (answer != QMessageBox::Yes)
        return;
    accept();
    m_sharing.askForNewCopy();
}

} // namespace ko
