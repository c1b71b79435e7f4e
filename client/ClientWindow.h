#ifndef KO_CLIENTWINDOW_H
#define KO_CLIENTWINDOW_H

#include <QStringList>

namespace ko {

class HostNodeDB;
struct ThinnedHistory;

/// The main window with all that belongs to it as long as it is there: logs, backups, scanners, sharing.
namespace ClientWindow {

/// What the user wants instead.
struct Next
{
    QString database;     ///< another one, a file or a site; empty if none
    bool newCopy = false; ///< of the same site
};

/// Shows it until it is closed. \a db is a copy of \a site if that is not empty. What went wrong at
/// the start is noted in its log. Returns false when the file must not be used any more.
bool run(HostNodeDB& db, const QString& site, const QStringList& problems, int* exitCode, Next* next);

/// Notes in the audit log that old details were taken out of the history.
void logThinned(HostNodeDB& db, const ThinnedHistory& thinned);

} // namespace ClientWindow

} // namespace ko

#endif
