#include "PlaceDock.h"

#include "MainWindow.h"
#include "NodeListModel.h"
#include "NodeListView.h"
#include "PlaceCommands.h"
#include "PlaceTree.h"
#include "Places.h"
#include "database/HostNodeDB.h"
#include "drivers/NodeTypes.h"
#include "utils/Retranslation.h"

#include <QAction>
#include <QEvent>
#include <QMenu>

namespace ko {

namespace {

} // namespace

PlaceDock::PlaceDock(MainWindow& window, NodeListModel& model, QMenu& view)
    : QDockWidget(&window)
    , m_window(window)
    , m_model(model)
    , m_tree(new PlaceTree(this))
    , m_index(window.database())
{
    setObjectName(QStringLiteral("placeDock"));
    setFeatures(QDockWidget::DockWidgetClosable);
    setWidget(m_tree);
    toggleViewAction()->setObjectName(QStringLiteral("actionLocations"));
    view.addAction(toggleViewAction());
    hide(); // until the window brings back how it was
    window.addDockWidget(Qt::LeftDockWidgetArea, this);
    setTranslated(this, [this] {
        setWindowTitle(tr("Locations"));
        toggleViewAction()->setText(tr("L&ocations"));
        toggleViewAction()->setStatusTip(tr("Shows the sites, buildings and floors beside the list"));
        if (m_isActive)
            m_tree->fill(m_index);
    });
    connect(m_tree, &PlaceTree::chosenChanged, this, &PlaceDock::filter);
    connect(m_tree, &PlaceTree::dropped, this, [this](const QString& place) {
        PlaceCommands::assign(m_window, m_window.list().selectedIds(), {place, std::nullopt});
    });
}

bool PlaceDock::event(QEvent* event)
{
    const bool isDone = QDockWidget::event(event);
    // Not what happens to it with its window, which may be minimized, or on its way out.
    if (event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent)
        setActive(event->type() == QEvent::ShowToParent);
    return isDone;
}

void PlaceDock::setActive(bool isActive)
{
    if (isActive == m_isActive)
        return;
    m_isActive = isActive;
    m_window.list().setDragEnabled(isActive);
    if (!isActive)
        showAll();
    else if (m_window.database().isLoaded())
        read();
    else // the first picture does not wait for it
        connect(&m_window.database(), &HostNodeDB::loaded, this, &PlaceDock::read);
}

void PlaceDock::read()
{
    if (!m_isActive)
        return;
    m_index.read();
    m_tree->fill(m_index);
}

void PlaceDock::take(const QVector<NodeSummary>& changed, const QStringList& removed)
{
    if (!m_isActive || !m_index.take(changed, removed))
        return;
    m_tree->fill(m_index);
    if (m_tree->chosen())
        filter(); // other nodes are there
}

void PlaceDock::showAll()
{
    m_tree->choose(std::nullopt);
}

void PlaceDock::filter()
{
    const std::optional<QString> chosen = m_tree->chosen();
    if (!chosen) {
        m_model.setFilter({});
        return;
    }
    m_model.setFilter([this, place = *chosen](const NodeSummary& node) {
        const QString at = m_index.placeOf(node.id);
        if (place.isEmpty())
            return at.isEmpty() && NodeTypes::isDevice(node.type);
        return Places::isWithin(at, place);
    });
}

} // namespace ko
