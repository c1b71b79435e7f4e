#include "ClientWindow.h"

#include "DatabaseCommands.h"
#include "MainWindow.h"
#include "PlainMessageBox.h"
#include "SharingStatus.h"
#include "SiteKeyPrompt.h"
#include "SiteSharing.h"
#include "audit/AuditLog.h"
#include "audit/HistoryLogEntry.h"
#include "audit/ProgramLog.h"
#include "database/HostNodeDB.h"
#include "discovery/ArpScanner.h"
#include "discovery/MdnsScanner.h"
#include "discovery/Scanners.h"
#include "discovery/WsDiscoveryScanner.h"
#include "ko/LogQt.h"
#include "sharing/SiteAddress.h"
#include "store/BackupKeeper.h"
#include "store/HistoryKeeper.h"
#include "store/StoreFile.h"

#include <QApplication>
#include <QDir>
#include <QSettings>
#include <QStatusBar>

#include <memory>

namespace ko {

namespace ClientWindow {

namespace {

/// Once for each file: there is no need to repeat it at every start.
void warnAboutNetwork(const QString& file, QWidget* parent)
{
    QSettings settings;
    const QString key = QStringLiteral("knownOnNetwork");
    QStringList known = settings.value(key).toStringList();
    if (known.contains(file))
        return;
    settings.setValue(key, known << file);
    PlainMessageBox::ask(
        QMessageBox::Warning, parent, QCoreApplication::translate("Application", "Node Database"),
        QCoreApplication::translate(
            "Application", "The node database \"%1\" is on a network drive. Two programs that use it there "
                           "at the same time may damage it. Move it to a disk of this computer.")
            .arg(QDir::toNativeSeparators(file)));
}

} // namespace

void logThinned(HostNodeDB& db, const ThinnedHistory& thinned)
{
    db.auditLog().log(HistoryLogEntry(QString::number(thinned.last), QString::number(thinned.lines)));
}

bool run(HostNodeDB& db, const QString& site, const QStringList& problems, int* exitCode, Next* next)
{
    const ProgramLog log(db.logStore());
    for (const QString& problem : problems)
        LogQt::line(LogQt::Error, problem);
    const BackupKeeper backups(db.fileName());
    const HistoryKeeper history(db.fileName());
    QObject::connect(&history, &HistoryKeeper::thinned, &db,
                     [&db](const ThinnedHistory& thinned) { logThinned(db, thinned); });
    std::unique_ptr<SiteSharing> sharing;
    if (!site.isEmpty())
        sharing = std::make_unique<SiteSharing>(db, site);
    Scanners::of(db).add(std::make_unique<MdnsScanner>());
    Scanners::of(db).add(std::make_unique<ArpScanner>());
    Scanners::of(db).add(std::make_unique<WsDiscoveryScanner>());
    MainWindow window(db);
    if (sharing) {
        window.setDatabaseName(SiteAddress::shown(site));
        window.statusBar()->addPermanentWidget(new SharingStatus(db, *sharing, &window));
        SiteKeyPrompt::watch(db, *sharing, &window);
        QObject::connect(sharing.get(), &SiteSharing::newCopyWanted, &window, [next] {
            next->newCopy = true;
            QApplication::exit();
        });
    }
    if (!sharing)
        DatabaseCommands::addRecent(db.fileName());
    QObject::connect(&window, &MainWindow::closedForNext, &window, [] { QApplication::exit(); });
    bool isUsable = true;
    QObject::connect(&db, &HostNodeDB::checked, &window, [&isUsable](const StoreError& error) {
        isUsable = !error;
        if (error)
            QApplication::exit();
    });
    window.show();
    if (StoreFile::isOnNetwork(db.fileName()))
        warnAboutNetwork(db.fileName(), &window);
    if (isUsable)
        *exitCode = QApplication::exec();
    next->database = window.next();
    return isUsable;
}

} // namespace ClientWindow

} // namespace ko
