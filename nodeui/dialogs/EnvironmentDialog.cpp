#include "dialogs/EnvironmentDialog.h"

#include "ko/Environments.h"
#include "ko/NodeDB.h"
#include "ko/RowHeightDelegate.h"
#include "ko/connect.h"
#include "ko/dialogFlags.h"
#include "utils/Retranslation.h"

#include "ui_EnvironmentDialog.h"

#include <QShortcut>
#include <QUuid>

namespace ko {

namespace {

const int rowHeight = 24;

/// Never reset, so that no two environments added in one session get the same name.
int nextUntitled = 1;

} // namespace

EnvironmentDialog::EnvironmentDialog(QWidget* parent, Qt::WindowFlags flags)
    : QDialog(parent, flags ? flags : dialogFlags(false))
    , m_ui(new Ui::EnvironmentDialog)
{
    m_ui->setupUi(this);
    onLanguageChange(this, [this] { retranslateForm(*m_ui, this); });
    m_ui->listWidget->setItemDelegate(new RowHeightDelegate(rowHeight, nullptr, nullptr));
    m_ui->listWidget->itemDelegate()->setParent(m_ui->listWidget); // a view does not own its delegate
    QShortcut* remove = new QShortcut(QKeySequence(QKeySequence::Delete), m_ui->listWidget);
    remove->setContext(Qt::WidgetShortcut); // leaves the key to the editor of an item

    ko::connect(this, SIGNAL(accepted()), this, SLOT(accepted()));
    ko::connect(m_ui->addPushButton, SIGNAL(clicked()), this, SLOT(addEnvironment()));
    ko::connect(m_ui->removePushButton, SIGNAL(clicked()), this, SLOT(removeEnvironment()));
    ko::connect(remove, SIGNAL(activated()), m_ui->removePushButton, SLOT(click()));
    ko::connect(m_ui->listWidget, SIGNAL(itemSelectionChanged()), this, SLOT(itemSelectionChanged()));
    initEnvironments();
}

EnvironmentDialog::~EnvironmentDialog() = default;

void EnvironmentDialog::initEnvironments()
{
    const Environments::List environments = NodeDB::getDB()->environments().getList();
    for (const Environments::List::value_type& environment : environments)
        appendItem(environment.first, environment.second);
    m_ui->listWidget->sortItems(Qt::AscendingOrder);
    ko::connect(m_ui->listWidget, SIGNAL(itemChanged(QListWidgetItem*)), this,
                SLOT(itemChanged(QListWidgetItem*)));
}

QListWidgetItem* EnvironmentDialog::appendItem(const QString& id, const QString& name)
{
    QListWidgetItem* item = new QListWidgetItem(name, m_ui->listWidget);
    item->setData(Qt::UserRole, id);
    item->setFlags(item->flags() | Qt::ItemIsEditable);
    return item;
}

void EnvironmentDialog::itemChanged(QListWidgetItem*)
{
    m_ui->listWidget->sortItems(Qt::AscendingOrder);
    m_dirty = true;
}

void EnvironmentDialog::addEnvironment()
{
    const QString id = QUuid::createUuid().toString();
    QListWidgetItem* item = appendItem(id, tr("Untitled %1").arg(nextUntitled++));
    m_ui->listWidget->setCurrentItem(item); // keys go on where the editor opens
    m_ui->listWidget->editItem(item);
    m_dirty = true;
}

void EnvironmentDialog::itemSelectionChanged()
{
    m_ui->removePushButton->setEnabled(m_ui->listWidget->count() > 1 &&
                                       !m_ui->listWidget->selectedItems().isEmpty());
}

void EnvironmentDialog::removeEnvironment()
{
    qDeleteAll(m_ui->listWidget->selectedItems());
    m_dirty = true;
    itemSelectionChanged();
}

void EnvironmentDialog::accepted()
{
    if (!m_dirty)
        return;
    const QString active = NodeDB::getDB()->activeEnvironment();
    bool activeIsLeft = false;
    Environments::List environments;
    for (int row = 0; row < m_ui->listWidget->count(); ++row) {
        const QListWidgetItem* item = m_ui->listWidget->item(row);
        const QString id = item->data(Qt::UserRole).toString();
        environments.append(qMakePair(id, item->text()));
        activeIsLeft |= id == active;
    }
    NodeDB::getDB()->environments().setList(environments);
    if (activeIsLeft || environments.isEmpty())
        return;
    // The new one first, so that the active environment is never one that is gone.
    NodeDB::getDB()->setActiveEnvironment(environments.first().first);
    NodeDB::getDB()->environments().remove(active);
}

} // namespace ko
