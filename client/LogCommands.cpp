#include "LogCommands.h"

#include "Application.h"
#include "ClientWindow.h"
#include "database/HostNodeDB.h"
#include "ko/Terminal.h"
#include "store/LogCheckpoint.h"
#include "store/NodeStore.h"

#include <QCoreApplication>
#include <QDir>

namespace ko {

using Terminal::say;

namespace LogCommands {

int verify(const QString& database)
{
    StoreError error;
    const std::optional<LogReport> report = NodeStore::verifyLogs(
        database, LogCheckpoint::read(database), [](qint64) { return true; }, &error);
    if (!report) {
        say(stderr, error.message);
        return Application::NoDatabase;
    }
    for (const LogFinding& finding : report->findings)
        say(stderr, finding.text());
    if (report->thinned > 0)
        say(stdout,
            QCoreApplication::translate("Application", "Details up to change number %1 were taken out")
                .arg(report->thinned));
    say(stdout, QCoreApplication::translate("Application", "%1 entries looked at, %2 older than the chain, "
                                                           "%3 links without a seal")
                    .arg(report->entries)
                    .arg(report->older)
                    .arg(report->unsealed));
    if (!report->findings.isEmpty())
        return Application::SomeLinesBad;
    if (!report->end.log.isEmpty() && !LogCheckpoint::write(database, report->end))
        say(stderr, QCoreApplication::translate("Application", "%1 cannot be written.")
                        .arg(QDir::toNativeSeparators(LogCheckpoint::fileFor(database))));
    return Application::Good;
}

int thin(const QString& database, int days)
{
    StoreError error;
    const std::optional<ThinnedHistory> thinned = NodeStore::thinHistory(
        database, {days, 0}, [] { return true; }, &error);
    if (!thinned) {
        say(stderr, error.message);
        return Application::Failed;
    }
    say(stdout, QCoreApplication::translate("Application", "%1 details taken out, up to change number %2")
                    .arg(thinned->lines)
                    .arg(thinned->last));
    if (thinned->lines > 0) {
        const std::unique_ptr<HostNodeDB> db = HostNodeDB::open(database, &error);
        if (!db) {
            say(stderr, error.message);
            return Application::NoDatabase;
        }
        ClientWindow::logThinned(*db, *thinned);
    }
    if (thinned->isAltered)
        say(stderr, QCoreApplication::translate(
                        "Application", "Stopped: the history was altered. --verify-log says where."));
    return thinned->isAltered ? Application::SomeLinesBad : Application::Good;
}

} // namespace LogCommands

} // namespace ko
