#ifndef KO_SHAREDROW_H
#define KO_SHAREDROW_H

#include <QByteArray>

namespace ko {

/// What a site and the copies of it have, apart from the history.
enum class SharedTable {
    Nodes,
    Relations,
    Rest ///< one row: settings and environments
};

/// A row as JSON: the same at a desk as at its site, but for blanks and the order of keys.
struct SharedRow
{
    qint64 place = 0; ///< in the order of age; rows come by it
    QByteArray json;
};

} // namespace ko

#endif
