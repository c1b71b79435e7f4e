#ifndef KO_STORENOTICE_H
#define KO_STORENOTICE_H

#include "ko/TrContext.h"
#include "model/StoreError.h"

#include <QObject>
#include <QPointer>

class QMainWindow;

namespace ko {

class HostNodeDB;
class PlainMessageBox;

/// Tells the user of a window when changes cannot be stored, and lets the user try again or give them up.
class StoreNotice : public QObject
{
    Q_OBJECT
    KO_TR_CONTEXT(StoreNotice)

public:
    /// The database outlives the window, which owns this.
    StoreNotice(HostNodeDB& db, QMainWindow* window);

    /// Leaves it to somebody else to tell that storing fails. When that one ends, what still waits is told
    /// here.
    void setQuiet(bool quiet);

    /// For a window that is to be closed: false when something is not stored and the user would rather stay.
    bool mayClose();

private:
    void storeFailed(const StoreError& error);
    void storeRecovered();
    void ask(const StoreError& error);
    QString unstoredText() const;

    HostNodeDB& m_db;
    QMainWindow* const m_window;
    QPointer<PlainMessageBox> m_box;
    bool m_quiet = false;
};

} // namespace ko

#endif
