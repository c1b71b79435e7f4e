#ifndef KO_ENVIRONMENTMENU_H
#define KO_ENVIRONMENTMENU_H

#include "ko/TrContext.h"

#include <QToolButton>

class QActionGroup;

namespace ko {

class HostNodeDB;

/// Shows the active environment in the main window, with a menu of all. Hidden where there is none to choose.
class EnvironmentMenu : public QToolButton
{
    Q_OBJECT
    KO_TR_CONTEXT(EnvironmentMenu)

public:
    /// The database outlives it.
    EnvironmentMenu(HostNodeDB& db, QWidget* parent);

    /// What the tool bar has for it, which is what hides and shows it.
    void setAction(QAction* action);

    /// Whatever window of the program changes it, this one becomes active after it.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void update();
    void fill();

    HostNodeDB& m_db;
    QMenu* const m_menu;
    QActionGroup* const m_group;
    QAction* m_action = nullptr;
};

} // namespace ko

#endif
