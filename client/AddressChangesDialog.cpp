#include "AddressChangesDialog.h"

#include "WindowSize.h"
#include "ko/dialogFlags.h"
#include "model/SearchText.h"
#include "utils/Retranslation.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace ko {

AddressChangesDialog::AddressChangesDialog(DeviceIntake& intake, QWidget* parent)
    : QDialog(parent, dialogFlags(true))
    , m_intake(intake)
    , m_table(new QTableWidget(0, 4, this))
{
    setObjectName(QStringLiteral("AddressChangesDialog"));
    QLabel* hint = new QLabel(this);
    hint->setWordWrap(true);
    m_table->setObjectName(QStringLiteral("changesTableWidget"));
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setTabKeyNavigation(false); // Tab leaves the table
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setStretchLastSection(true);

    QDialogButtonBox* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    m_accept = buttons->addButton(QString(), QDialogButtonBox::ActionRole);
    m_acceptAll = buttons->addButton(QString(), QDialogButtonBox::ActionRole);
    m_dismiss = buttons->addButton(QString(), QDialogButtonBox::ActionRole);
    m_accept->setObjectName(QStringLiteral("acceptButton"));
    m_acceptAll->setObjectName(QStringLiteral("acceptAllButton"));
    m_dismiss->setObjectName(QStringLiteral("dismissButton"));
    // Enter must not send credentials to a new address.
    for (QPushButton* button : {m_accept, m_acceptAll, m_dismiss})
        button->setAutoDefault(false);
    buttons->button(QDialogButtonBox::Close)->setDefault(true);
    QVBoxLayout* layout = new QVBoxLayout(this);
    layout->addWidget(hint);
    layout->addWidget(m_table);
    layout->addWidget(buttons);
    setTranslated(this, [this, hint] {
        setWindowTitle(tr("Seen at a New Address"));
        hint->setText(tr("These devices seem to answer at another address now. Accept only what you "
                         "expect: user name and password are sent to the new address from then on."));
        m_table->setAccessibleName(tr("Devices"));
        m_table->setHorizontalHeaderLabels(
            {tr("Name"), tr("Old Address"), tr("New Address"), tr("MAC Address")});
        m_accept->setText(tr("&Accept Selected"));
        m_acceptAll->setText(tr("Accept A&ll"));
        m_dismiss->setText(tr("&Dismiss Selected"));
    });
    resizeWithinScreen(*this, QSize(640, 360));

    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_accept, &QPushButton::clicked, this, [this] { m_intake.accept(selected()); });
    connect(m_acceptAll, &QPushButton::clicked, this, [this] {
        const QVector<AddressChange> shown = m_changes; // what came since was not seen
        m_intake.accept(shown);
    });
    connect(m_dismiss, &QPushButton::clicked, this, [this] { m_intake.dismiss(selected()); });
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &AddressChangesDialog::updateButtons);
    connect(&m_intake, &DeviceIntake::addressChangesChanged, this, &AddressChangesDialog::refresh);
    refresh();
}

void AddressChangesDialog::refresh()
{
    m_table->clearSelection(); // a row must not become another one under the user's hand
    m_changes = m_intake.addressChanges();
    const auto inOrder = [](const AddressChange& a, const AddressChange& b) {
        return SearchText::sortKey(a.name) < SearchText::sortKey(b.name); // "Camera 2" before "Camera 10"
    };
    std::stable_sort(m_changes.begin(), m_changes.end(), inOrder);
    m_table->setRowCount(int(m_changes.size()));
    for (int row = 0; row < m_table->rowCount(); ++row) {
        const AddressChange& change = m_changes.at(row);
        const QString texts[] = {change.name, change.oldAddress, change.newAddress, change.macAddress};
        for (int column = 0; column < 4; ++column)
            m_table->setItem(row, column, new QTableWidgetItem(texts[column]));
    }
    m_table->resizeColumnsToContents();
    updateButtons();
}

void AddressChangesDialog::updateButtons()
{
    const bool any = m_table->selectionModel()->hasSelection();
    m_accept->setEnabled(any);
    m_dismiss->setEnabled(any);
    m_acceptAll->setEnabled(!m_changes.isEmpty());
}

QVector<AddressChange> AddressChangesDialog::selected() const
{
    QVector<AddressChange> changes;
    const QModelIndexList rows = m_table->selectionModel()->selectedRows();
    for (const QModelIndex& row : rows)
        changes.append(m_changes.at(row.row()));
    return changes;
}

} // namespace ko
