#include "StoreProgress.h"

#include "database/HostNodeDB.h"

#include <QApplication>

namespace ko {

namespace {

constexpr int Moment = 300;  // ms
constexpr int Interval = 50; // ms

} // namespace

StoreProgress::StoreProgress(HostNodeDB& db, QWidget* window)
    : QObject(window)
    , m_db(db)
    , m_window(window)
{
    connect(&m_timer, &QTimer::timeout, this, &StoreProgress::show);
    connect(&m_db, &HostNodeDB::storing, this, &StoreProgress::follow);
}

void StoreProgress::follow()
{
    if (!m_db.isStoring())
        QTimer::singleShot(0, this, &StoreProgress::endUnlessGoingOn);
    else if (!m_timer.isActive())
        m_timer.start(Moment);
}

/// The next part may have begun by now.
void StoreProgress::endUnlessGoingOn()
{
    if (m_db.isStoring())
        return;
    m_timer.stop();
    delete m_box.data();
}

void StoreProgress::show()
{
    m_timer.start(Interval);
    QWidget* above = QApplication::activeModalWidget();
    if (!m_box && qobject_cast<QProgressDialog*>(above))
        return; // that says already that something goes on, and can be cancelled
    if (!m_box) {
        m_box = new WaitBox(tr("Node Database"), tr("Storing changes..."), above ? above : m_window);
        m_box->setObjectName(QStringLiteral("storeProgress"));
        m_box->show();
    }
    m_box->setMaximum(m_db.permilleStored() > 0 ? 1000 : 0);
    m_box->setValue(m_db.permilleStored());
}

} // namespace ko
