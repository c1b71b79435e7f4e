#ifndef KO_NAMELIST_H
#define KO_NAMELIST_H

#include <QString>
#include <QStringList>

namespace ko {

/// Names for a message box in plain text, one to an indented line: the first ten, and how many more.
QString listOfNames(const QStringList& names);

} // namespace ko

#endif
