#ifndef KO_STOREPROGRESS_H
#define KO_STOREPROGRESS_H

#include "WaitBox.h"
#include "ko/TrContext.h"

#include <QPointer>
#include <QTimer>

namespace ko {

class HostNodeDB;

/// Shows how far storing is when it takes longer than a moment: what the user sees done is on the disk when
/// this has closed.
class StoreProgress : public QObject
{
    Q_OBJECT
    KO_TR_CONTEXT(StoreProgress)

public:
    /// The database outlives the window, which owns this.
    StoreProgress(HostNodeDB& db, QWidget* window);

private:
    void follow();
    void show();
    void endUnlessGoingOn();

    HostNodeDB& m_db;
    QWidget* const m_window;
    QTimer m_timer;
    QPointer<WaitBox> m_box; ///< goes with the window above which it is shown
};

} // namespace ko

#endif
