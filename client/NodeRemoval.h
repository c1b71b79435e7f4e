#ifndef KO_NODEREMOVAL_H
#define KO_NODEREMOVAL_H

#include <QStringList>

namespace ko {

class HostNodeDB;
class MainWindow;

/// Taking nodes out of the database, with what is left of them.
namespace NodeRemoval {

/// The recording folders that these nodes use and no others do.
QStringList foldersOfNobodyElse(const HostNodeDB& db, const QStringList& ids);

/// Asks, removes the nodes that are selected in the window as one change set, and says so.
void run(MainWindow& window);

} // namespace NodeRemoval

} // namespace ko

#endif
