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
#include <QMenu>
#include <QSettings>

namespace ko {

namespace {

const char shownKey[] = "window/locations";

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
    window.addDockWidget(Qt::LeftDockWidgetArea, this);
    setTranslated(this, [this] {
        setWindowTitle(tr("Locations"));
        toggleViewAction()->setText(tr("L&ocations"));
        toggleViewAction()->setStatusTip(tr("Shows the sites, buildings and floors beside the list"));
        if (m_isActive)
            m_tree->fill(m_index);
    });
    setVisible(QSettings().value(QLatin1String(shownKey), false).toBool());
    setActive(!isHidden());
    connect(toggleViewAction(), &QAction::toggled, this, [this](bool isShown) {
        if (!parentWidget()->isVisible() || parentWidget()->isMinimized())
            return; // hidden with its window, which may be on its way out
        QSettings().setValue(QLatin1String(shownKey), isShown);
        setActive(isShown);
    });
    connect(m_tree, &PlaceTree::chosenChanged, this, &PlaceDock::filter);
    connect(m_tree, &PlaceTree::dropped, this, [this](const QString& place) {
        PlaceCommands::assign(m_window, m_window.list().selectedIds(), {place, std::nullopt});
    });
}

void PlaceDock::setActive(bool isActive)
{
    if (isActive == m_isActive)
        return;
    m_isActive = isActive;
    m_window.list().setDragEnabled(isActive);
    if (isActive) {
        m_index.read();
        m_tree->fill(m_index);
    } else {
        showAll();
    }
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
