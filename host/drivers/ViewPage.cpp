#include "drivers/ViewPage.h"

#include "drivers/NodeTypes.h"
#include "drivers/ViewNodesModel.h"
#include "ko/Node.h"
#include "ko/NodeDB.h"
#include "ko/NodeHint.h"
#include "ko/PropertyKeys.h"
#include "model/SearchText.h"
#include "utils/Fields.h"
#include "utils/Retranslation.h"

#include <QAction>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QSet>

#include <algorithm>
#include <limits>

namespace ko {

namespace {

const QLatin1Char separator(';'); ///< occurs in no identifier

/// In the order in which people count: "Camera 2" before "Camera 10".
QStringList devicesByName()
{
    std::vector<std::pair<QString, NodeID>> devices;
    const QList<ENodeType> types = NodeTypes::all();
    for (const ENodeType type : types) {
        const QStringList ids = NodeTypes::isDevice(type) ? NodeDB::getDB()->nodeIdList(type) : QStringList();
        for (const QString& id : ids) {
            NodeBrief brief;
            if (NodeDB::getDB()->getBrief(id, &brief))
                devices.emplace_back(SearchText::sortKey(brief.name), id);
        }
    }
    std::stable_sort(devices.begin(), devices.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    QStringList ids;
    for (const auto& device : devices)
        ids.append(device.second);
    return ids;
}

QListView* createList(const char* name, ViewNodesModel* model, QWidget* parent)
{
    auto* list = new QListView(parent);
    list->setObjectName(QLatin1String(name));
    list->setModel(model);
    list->setUniformItemSizes(true);
    list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    list->setTabKeyNavigation(false);
    list->setDragEnabled(true);
    list->setAcceptDrops(true);
    list->setDropIndicatorShown(true);
    list->setDefaultDropAction(Qt::CopyAction); // what is dragged is put in its place by the page
    return list;
}

} // namespace

ViewPage::ViewPage(QWidget* parent)
    : QWidget(parent)
    , m_nodes(new QLineEdit(this))
    , m_filter(new QLineEdit(this))
    , m_availableNodes(new ViewNodesModel(this))
    , m_chosenNodes(new ViewNodesModel(this))
    , m_available(createList("availableListView", m_availableNodes, this))
    , m_chosen(createList("chosenListView", m_chosenNodes, this))
    , m_availableLabel(new QLabel(this))
    , m_chosenLabel(new QLabel(this))
    , m_add(new QPushButton(this))
    , m_remove(new QPushButton(this))
    , m_up(new QPushButton(this))
    , m_down(new QPushButton(this))
{
    setObjectName(QStringLiteral("viewPage"));
    m_nodes->setObjectName(PropertyKeys::Nodes);
    m_nodes->setMaxLength(std::numeric_limits<int>::max()); // the toolkit's holds no two thousand cameras
    m_nodes->hide();
    m_filter->setObjectName(QStringLiteral("filterLineEdit"));
    m_filter->setClearButtonEnabled(true);
    m_add->setObjectName(QStringLiteral("addButton"));
    m_remove->setObjectName(QStringLiteral("removeButton"));
    m_up->setObjectName(QStringLiteral("upButton"));
    m_down->setObjectName(QStringLiteral("downButton"));
    layOut();
    connectAll();
    setTranslated(this, [this] { retranslate(); });
}

void ViewPage::layOut()
{
    auto* buttons = new QHBoxLayout;
    for (QPushButton* button : {m_add, m_remove, m_up, m_down})
        button->setAutoDefault(false); // Return is for OK
    for (QPushButton* button : {m_remove, m_up, m_down})
        buttons->addWidget(button);
    buttons->addStretch();
    auto* grid = new QGridLayout(this);
    grid->addWidget(m_availableLabel, 0, 0);
    grid->addWidget(m_filter, 1, 0);
    grid->addWidget(m_chosenLabel, 1, 1);
    grid->addWidget(m_available, 2, 0);
    grid->addWidget(m_chosen, 2, 1);
    grid->addWidget(m_add, 3, 0, Qt::AlignLeft);
    grid->addLayout(buttons, 3, 1);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    m_availableLabel->setBuddy(m_filter);
    m_chosenLabel->setBuddy(m_chosen);
    const QWidgetList order = {m_filter, m_available, m_chosen, m_add, m_remove, m_up, m_down};
    for (int i = 1; i < order.size(); ++i)
        setTabOrder(order.at(i - 1), order.at(i));
}

void ViewPage::connectAll()
{
    const auto addSelected = [this] {
        put(m_availableNodes->idsAt(m_available->selectionModel()->selectedIndexes()), int(nodes().size()));
    };
    connect(m_add, &QPushButton::clicked, this, addSelected);
    connect(m_available, &QListView::doubleClicked, this, addSelected);
    connect(m_remove, &QPushButton::clicked, this, &ViewPage::takeOut);
    connect(m_chosen, &QListView::doubleClicked, this, &ViewPage::takeOut);
    auto* removeKey = new QAction(m_chosen);
    removeKey->setShortcut(QKeySequence::Delete);
    removeKey->setShortcutContext(Qt::WidgetShortcut);
    m_chosen->addAction(removeKey);
    connect(removeKey, &QAction::triggered, this, &ViewPage::takeOut);
    connect(m_up, &QPushButton::clicked, this, [this] { move(-1); });
    connect(m_down, &QPushButton::clicked, this, [this] { move(1); });
    connect(m_filter, &QLineEdit::textChanged, m_availableNodes, &ViewNodesModel::setFilter);
    connect(m_availableNodes, &ViewNodesModel::dropped, this, [this](const QStringList& ids) { leave(ids); });
    connect(m_chosenNodes, &ViewNodesModel::dropped, this, &ViewPage::put);
    connect(m_nodes, &QLineEdit::textChanged, this, &ViewPage::showLists);
    for (const QListView* list : {m_available, m_chosen}) {
        connect(list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
                &ViewPage::updateButtons);
        connect(list->model(), &QAbstractItemModel::modelReset, this, &ViewPage::updateButtons);
    }
    updateButtons();
}

void ViewPage::retranslate()
{
    m_availableLabel->setText(tr("Cameras:"));
    m_chosenLabel->setText(tr("In this view:"));
    m_filter->setPlaceholderText(tr("Search"));
    m_filter->setAccessibleName(tr("Search cameras"));
    m_available->setAccessibleName(tr("Cameras that are not in this view"));
    m_chosen->setAccessibleName(tr("Cameras in this view"));
    m_add->setText(tr("Add"));
    m_remove->setText(tr("Take Out"));
    m_up->setText(tr("Up"));
    m_down->setText(tr("Down"));
}

void ViewPage::init(const QString& nodeId)
{
    const kom::smart<const Node> node = NodeDB::getDB()->node(nodeId);
    if (!node.null())
        m_nodes->setText(node->stringProperty(PropertyKeys::Nodes, QString()));
}

void ViewPage::init(const NodeHint* hint)
{
    m_nodes->setText(hint->stringProperty(PropertyKeys::Nodes, QString()));
}

void ViewPage::accept(Node* node)
{
    if (node)
        storeField(*node, PropertyKeys::Nodes, m_nodes);
}

void ViewPage::accept(NodeHint* hint)
{
    storeField(*hint, PropertyKeys::Nodes, m_nodes);
}

void ViewPage::setReadOnly(bool readOnly)
{
    m_isReadOnly = readOnly;
    setFieldReadOnly(m_nodes, readOnly);
    for (QListView* list : {m_available, m_chosen})
        list->setDragDropMode(readOnly ? QAbstractItemView::NoDragDrop : QAbstractItemView::DragDrop);
    m_filter->setEnabled(!readOnly);
    updateButtons();
}

/// Names of all devices are nothing for an editor of which another page is looked at.
void ViewPage::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    m_devices = devicesByName();
    showLists();
}

void ViewPage::showLists()
{
    if (!isVisible())
        return;
    const QStringList chosen = nodes();
    const QSet<QString> isChosen(chosen.begin(), chosen.end());
    QStringList others;
    std::copy_if(m_devices.begin(), m_devices.end(), std::back_inserter(others),
                 [&isChosen](const QString& id) { return !isChosen.contains(id); });
    m_availableNodes->setNodes(others);
    m_chosenNodes->setNodes(chosen);
}

void ViewPage::updateButtons()
{
    for (QListView* list : {m_available, m_chosen}) // nothing would tell that an empty one has the focus
        list->setFocusPolicy(list->model()->rowCount() > 0 ? Qt::StrongFocus : Qt::NoFocus);
    const QModelIndexList chosen = m_chosen->selectionModel()->selectedIndexes();
    const auto isAt = [&chosen](int row) {
        return std::any_of(chosen.begin(), chosen.end(),
                           [row](const QModelIndex& index) { return index.row() == row; });
    };
    m_add->setEnabled(!m_isReadOnly && m_available->selectionModel()->hasSelection());
    m_remove->setEnabled(!m_isReadOnly && !chosen.isEmpty());
    m_up->setEnabled(m_remove->isEnabled() && !isAt(0));
    m_down->setEnabled(m_remove->isEnabled() && !isAt(m_chosenNodes->rowCount() - 1));
}

QStringList ViewPage::nodes() const
{
    return m_nodes->text().split(separator, Qt::SkipEmptyParts);
}

/// Before the row that is shown at that place now.
void ViewPage::put(const QStringList& ids, int before)
{
    if (m_isReadOnly || ids.isEmpty())
        return;
    QStringList all = nodes();
    // The next one that stays: what is moved may stand there itself.
    QString next;
    for (int row = before; row < m_chosenNodes->rowCount() && next.isEmpty(); ++row)
        next = ids.contains(m_chosenNodes->idAt(row)) ? QString() : m_chosenNodes->idAt(row);
    for (const QString& id : ids)
        all.removeAll(id);
    int place = next.isEmpty() ? int(all.size()) : int(all.indexOf(next));
    for (const QString& id : ids)
        all.insert(place++, id);
    m_nodes->setText(all.join(separator));
    select(ids);
}

void ViewPage::leave(const QStringList& ids)
{
    if (m_isReadOnly || ids.isEmpty())
        return;
    const int row = m_chosen->currentIndex().row();
    QStringList all = nodes();
    for (const QString& id : ids)
        all.removeAll(id);
    m_nodes->setText(all.join(separator));
    const QModelIndex next = m_chosenNodes->index(qMin(row, m_chosenNodes->rowCount() - 1));
    if (next.isValid())
        m_chosen->setCurrentIndex(next);
}

void ViewPage::takeOut()
{
    leave(m_chosenNodes->idsAt(m_chosen->selectionModel()->selectedIndexes()));
}

void ViewPage::move(int step)
{
    const QStringList ids = m_chosenNodes->idsAt(m_chosen->selectionModel()->selectedIndexes());
    if (!ids.isEmpty())
        put(ids, step < 0 ? m_chosenNodes->rowOf(ids.first()) - 1 : m_chosenNodes->rowOf(ids.last()) + 2);
}

void ViewPage::select(const QStringList& ids)
{
    for (const QString& id : ids) {
        const QModelIndex index = m_chosenNodes->index(m_chosenNodes->rowOf(id));
        if (id == ids.first())
            m_chosen->setCurrentIndex(index);
        m_chosen->selectionModel()->select(index, QItemSelectionModel::Select);
    }
}

} // namespace ko
