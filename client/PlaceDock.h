#ifndef KO_PLACEDOCK_H
#define KO_PLACEDOCK_H

#include "PlaceIndex.h"
#include "ko/TrContext.h"

#include <QDockWidget>

class QMenu;

namespace ko {

class MainWindow;
class NodeListModel;
class PlaceTree;

/// The tree of locations beside the list, which shows only what is at the one that is chosen.
///
/// Knows the locations only while it is shown: that reads a property of all devices.
class PlaceDock : public QDockWidget
{
    Q_OBJECT
    KO_TR_CONTEXT(PlaceDock)

public:
    /// \a view is the menu in which it can be shown. The window owns it.
    PlaceDock(MainWindow& window, NodeListModel& model, QMenu& view);

    /// Of nodes that are new, changed or gone, when the list has taken them.
    void take(const QVector<NodeSummary>& changed, const QStringList& removed);

    void showAll();

protected:
    bool event(QEvent* event) override;

private:
    void setActive(bool isActive);
    void read();
    void filter();

    MainWindow& m_window;
    NodeListModel& m_model;
    PlaceTree* const m_tree;
    PlaceIndex m_index;
    bool m_isActive = false;
};

} // namespace ko

#endif
