#ifndef KO_REMOVENODESBOX_H
#define KO_REMOVENODESBOX_H

#include <QStringList>

class QWidget;

namespace ko {

/// Asks whether the nodes of these names are to be removed; says how many and names the first ten.
bool confirmRemoval(const QStringList& names, QWidget* parent);

} // namespace ko

#endif
