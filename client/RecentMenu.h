#ifndef KO_RECENTMENU_H
#define KO_RECENTMENU_H

#include "ko/TrContext.h"

#include <QMenu>

namespace ko {

class MainWindow;

/// The databases that were opened last, each to be opened again.
class RecentMenu : public QMenu
{
    Q_OBJECT
    KO_TR_CONTEXT(RecentMenu)

public:
    /// The window owns it.
    explicit RecentMenu(MainWindow& window);

private:
    void fill();

    MainWindow& m_window;
};

} // namespace ko

#endif
