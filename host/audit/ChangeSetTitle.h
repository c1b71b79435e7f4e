#ifndef KO_CHANGESETTITLE_H
#define KO_CHANGESETTITLE_H

#include "HostExport.h"
#include "model/LogRows.h"

#include <QVector>

namespace ko {

/// What a change set is called, in words of the user's language.
namespace ChangeSetTitle {

/// "Recording folders of 400 cameras"; names of nodes as they are.
KO_HOST_EXPORT QString of(const ChangeSetRow& row);

/// All change sets of this purpose, for a list of them.
KO_HOST_EXPORT QString kind(Purpose purpose);

/// What was done where no dialog logged it.
QString logged(Purpose purpose);

/// The nodes alone: the name of the first and how many others.
QString nodes(const ChangeSetRow& row);

/// All purposes that a user knows, in an order for a list.
KO_HOST_EXPORT QVector<Purpose> all();

} // namespace ChangeSetTitle

} // namespace ko

#endif
