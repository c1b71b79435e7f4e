#include "SavedSearchesDialog.h"

#include "PlainMessageBox.h"
#include "SavedSearches.h"
#include "ko/OutsideText.h"
#include "ko/dialogFlags.h"
#include "utils/Retranslation.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace ko {

SavedSearchesDialog::SavedSearchesDialog(QWidget* parent)
    : QDialog(parent, dialogFlags(false))
    , m_list(new QListWidget(this))
    , m_problem(new QLabel(this))
    , m_rename(new QPushButton(this))
    , m_remove(new QPushButton(this))
{
    setObjectName(QStringLiteral("SavedSearchesDialog"));
    m_list->setObjectName(QStringLiteral("searchesListWidget"));
    m_list->setEditTriggers(QAbstractItemView::EditKeyPressed | QAbstractItemView::DoubleClicked);
    m_list->setTabKeyNavigation(false);
    m_problem->setObjectName(QStringLiteral("problemLabel"));
    m_problem->setWordWrap(true);
    m_problem->hide();
    m_rename->setObjectName(QStringLiteral("renameButton"));
    m_remove->setObjectName(QStringLiteral("removeButton"));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    buttons->addButton(m_rename, QDialogButtonBox::ActionRole);
    buttons->addButton(m_remove, QDialogButtonBox::ActionRole);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_list);
    layout->addWidget(m_problem);
    layout->addWidget(buttons);
    auto* removeKey = new QAction(m_list);
    removeKey->setShortcut(QKeySequence::Delete);
    removeKey->setShortcutContext(Qt::WidgetShortcut);
    m_list->addAction(removeKey);
    connect(removeKey, &QAction::triggered, this, &SavedSearchesDialog::remove);
    connect(m_rename, &QPushButton::clicked, this, &SavedSearchesDialog::rename);
    connect(m_remove, &QPushButton::clicked, this, &SavedSearchesDialog::remove);
    connect(m_list, &QListWidget::itemChanged, this, &SavedSearchesDialog::renamed);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    fill(QString());
    m_list->setFocus();
    setTranslated(this, [this] { retranslate(); });
}

void SavedSearchesDialog::retranslate()
{
    setWindowTitle(tr("Saved Searches"));
    m_list->setAccessibleName(tr("Saved searches"));
    m_rename->setText(tr("Re&name"));
    m_remove->setText(tr("&Remove..."));
    m_problem->setText(
        tr("There is already a search of this name, or the name is empty. The search keeps its old name."));
}

void SavedSearchesDialog::fill(const QString& current)
{
    const QSignalBlocker blocker(m_list);
    m_list->clear();
    const QVector<SavedSearch> searches = SavedSearches::all();
    for (const SavedSearch& search : searches) {
        auto* item = new QListWidgetItem(search.name, m_list);
        item->setData(Qt::UserRole, search.name);
        item->setToolTip(
            QStringLiteral("<span>%1</span>").arg(OutsideText::visible(search.text).toHtmlEscaped()));
        item->setFlags(item->flags() | Qt::ItemIsEditable);
        if (search.name == current || m_list->count() == 1)
            m_list->setCurrentItem(item);
    }
    m_rename->setEnabled(!searches.isEmpty());
    m_remove->setEnabled(!searches.isEmpty());
}

void SavedSearchesDialog::rename()
{
    if (m_list->currentItem())
        m_list->editItem(m_list->currentItem());
}

void SavedSearchesDialog::renamed(QListWidgetItem* item)
{
    const QString before = item->data(Qt::UserRole).toString();
    const QString after = item->text().simplified();
    const bool isDone = SavedSearches::rename(before, after);
    m_problem->setVisible(!isDone);
    fill(isDone ? after : before);
}

void SavedSearchesDialog::remove()
{
    const QListWidgetItem* item = m_list->currentItem();
    if (!item)
        return;
    const QString name = item->data(Qt::UserRole).toString();
    PlainMessageBox box(
        QMessageBox::Question, windowTitle(),
        tr("Remove the search \"%1\"? The nodes that it finds stay.").arg(OutsideText::visible(name)),
        QMessageBox::Cancel, this);
    box.setObjectName(QStringLiteral("removeSearchBox"));
    const QPushButton* remove = box.addButton(tr("&Remove"), QMessageBox::DestructiveRole);
    box.setDefaultButton(QMessageBox::Cancel);
    box.setEscapeButton(QMessageBox::Cancel);
    box.exec();
    if (box.clickedButton() != static_cast<const QAbstractButton*>(remove))
        return;
    const int row = m_list->currentRow();
    SavedSearches::remove(name);
    m_problem->hide();
    fill(QString());
    m_list->setCurrentRow(qMin(row, m_list->count() - 1));
}

} // namespace ko
