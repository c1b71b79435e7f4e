#ifndef KO_WINDOWTITLE_H
#define KO_WINDOWTITLE_H

#include "ko/Node.h"
#include "ko/NodeDB.h"

namespace ko {

/// What a title calls a node: its name or, without one, its type.
inline QString calledInTitles(const Node& node)
{
    const QString name = node.name();
    return name.isEmpty() ? NodeDB::getDB()->readableNodeTypeName(node.type) : name;
}

/// \a text as it must stand in a window title to be shown as it is: the toolkit takes "[*]" for the place
/// of its mark for unsaved changes.
inline QString inWindowTitle(const QString& text)
{
    const QString marker = QLatin1String("[*]");
    return QString(text).replace(marker, marker + marker);
}

} // namespace ko

#endif
