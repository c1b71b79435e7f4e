#include "StoreNotice.h"

#include "NameList.h"
#include "PlainMessageBox.h"
#include "StoreProgress.h"
#include "database/HostNodeDB.h"

#include <QMainWindow>
#include <QPushButton>
#include <QStatusBar>

namespace ko {

StoreNotice::StoreNotice(HostNodeDB& db, QMainWindow* window)
    : QObject(window)
    , m_db(db)
    , m_window(window)
{
    new StoreProgress(db, window);
    connect(&m_db, &HostNodeDB::storeFailed, this, &StoreNotice::storeFailed);
    connect(&m_db, &HostNodeDB::storeRecovered, this, &StoreNotice::storeRecovered);
    connect(&m_db, &HostNodeDB::storeDamaged, this, [this](const StoreError& error) {
        PlainMessageBox::ask(QMessageBox::Critical, m_window, tr("Node Database"), error.message);
    });
}

void StoreNotice::setQuiet(bool quiet)
{
    m_quiet = quiet;
    if (!quiet)
        m_db.flush();
}

QString StoreNotice::unstoredText() const
{
    QStringList text(tr("Nothing you entered is lost while this window is open."));
    QStringList names;
    const QStringList ids = m_db.unstoredNodes();
    for (const QString& id : ids) {
        const NodeSummary node = m_db.summary(id);
        if (!node.id.isEmpty())
            names.append(node.name);
    }
    if (!names.isEmpty())
        text << tr("What waits to be stored, all of it or nothing, belongs to:") << listOfNames(names);
    return text.join(QLatin1Char('\n'));
}

void StoreNotice::storeFailed(const StoreError& error)
{
    if (m_quiet)
        return;
    if (!m_box)
        ask(error);
    m_box->setText(error.message);
    m_box->setInformativeText(unstoredText());
}

void StoreNotice::ask(const StoreError& error)
{
    m_box = new PlainMessageBox(QMessageBox::Critical, tr("Changes Are Not Stored"), error.message,
                                QMessageBox::NoButton, m_window);
    m_box->setObjectName(QStringLiteral("storeFailedBox"));
    m_box->setAttribute(Qt::WA_DeleteOnClose);
    m_box->setInformativeText(unstoredText());
    m_box->setDetailedText(error.detail);
    QPushButton* retry = m_box->addButton(tr("&Retry"), QMessageBox::AcceptRole);
    QPushButton* discard = m_box->addButton(tr("&Discard Changes"), QMessageBox::DestructiveRole);
    m_box->setDefaultButton(retry);
    connect(m_box, &QMessageBox::buttonClicked, this, [this, discard](QAbstractButton* button) {
        const bool discards = button == static_cast<QAbstractButton*>(discard);
        m_box = nullptr; // it closes itself; a new failure gets a box of its own
        if (discards)
            m_db.discardUnstoredChanges();
        else
            m_db.flush();
    });
    m_box->open();
}

void StoreNotice::storeRecovered()
{
    if (m_box)
        m_box->done(0); // it has no button that closing it could stand for
    m_window->statusBar()->showMessage(tr("All changes are stored."), 10000);
}

bool StoreNotice::mayClose()
{
    if (m_db.flush())
        return true;
    const auto answer = PlainMessageBox::ask(
        QMessageBox::Warning, m_window, tr("Changes Are Not Stored"),
        tr("There are changes that could not be stored. They are lost when the program is closed now."),
        QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Cancel);
    if (answer != QMessageBox::Discard)
        return false;
    m_db.discardUnstoredChanges();
    return true;
}

} // namespace ko
