#ifndef KO_REMOVENODESBOX_H
#define KO_REMOVENODESBOX_H

#include <QStringList>

class QWidget;

namespace ko {

enum class Removal { None, Nodes, NodesAndFolders };

/// Asks whether the nodes of these names are to be removed, and with them the recording folders that nobody
/// else uses, if there are any; says how many there are and names the first ten.
Removal askToRemove(const QStringList& names, const QStringList& folders, QWidget* parent);

} // namespace ko

#endif
