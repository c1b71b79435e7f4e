#ifndef KO_OWNNODETYPE_H
#define KO_OWNNODETYPE_H

#include "HostExport.h"
#include "drivers/NodeTypes.h"

#include <QVector>

namespace ko {

class InspectorWidget;

/// A node type that this host does not bring with it.
///
/// Its number is stored with its nodes and must stay the same for good. Where nobody declares it any more,
/// they are listed as "Node of type 1000" and keep all that they have.
struct OwnNodeType
{
    /// Numbers below are for the types that come with this host.
    static constexpr int First = 1000;

    ENodeType type = ENodeType(First);
    QString (*name)() = nullptr; ///< in the language that the program has when it asks; must be there
    QString icon;          ///< a picture of 16 x 16 points or more; empty for one that any type can have
    bool isDevice = false; ///< reached over the network: its nodes are IPDeviceNodes
    QVector<NodeProperty> properties; ///< what a new node has

    /// The editor of a node that is there, see INodeDriverComponent for what it must do. Null: the pages that
    /// addPage() gave the type, after one with the name.
    InspectorWidget* (*createEditor)(const NodeID& id, bool readOnly, unsigned flags) = nullptr;

    /// The editor of one that is to be added; null as above. Both or none.
    InspectorWidget* (*createHintEditor)(NodeHint& hint, unsigned flags) = nullptr;
};

namespace NodeTypes {

/// Makes a type known, after those that are known. To be called before a database is opened. Returns why it
/// cannot be done, and then nothing has changed; empty if it is done.
KO_HOST_EXPORT QString declareType(const OwnNodeType& type);

/// One that was declared, or null.
const OwnNodeType* ownType(ENodeType type);

/// In the order in which they were declared.
QList<ENodeType> ownTypes();

} // namespace NodeTypes

} // namespace ko

#endif
