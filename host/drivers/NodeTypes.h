#ifndef KO_NODETYPES_H
#define KO_NODETYPES_H

#include "HostExport.h"
#include "kom/smart.h"
#include "model/NodeData.h"

#include <QIcon>
#include <QList>

#include <memory>

namespace ko {

class INodeDriverComponent;
class Node;
class NodeHint;
class Vault;

/// A property of a type of node, declared once.
struct NodeProperty
{
    QLatin1String key;
    QVariant value; ///< QString, bool, int or float: the property's type, and what a new node has
    const char* column = nullptr; ///< its title in lists of cameras; null where they leave it out
};

/// The node types this host knows, as free functions over one table.
namespace NodeTypes {

/// All types, in the order of their numbers.
KO_HOST_EXPORT QList<ENodeType> all();

/// Translated name, for an unknown type a generic one with its number.
KO_HOST_EXPORT QString readableName(ENodeType type);

/// The names of \a types; if null, of those of which a user may add nodes, but for internal recorders, which
/// no scan finds. \a sorted as the locale does.
QList<QPair<ENodeType, QString>> readableNames(const QList<ENodeType>* types, bool sorted);
KO_HOST_EXPORT QIcon icon(ENodeType type);

/// Whether a user may add nodes of this type (its driver makes hints).
KO_HOST_EXPORT bool canBeAdded(ENodeType type);

/// Whether nodes of this type are reached over the network (they are IPDeviceNodes).
KO_HOST_EXPORT bool isDevice(ENodeType type);

/// What every new node of the type carries.
KO_HOST_EXPORT QVector<NodeProperty> properties(ENodeType type);

/// Gives all devices one more property, which a page shows (addPage()) and lists of cameras hold. To be
/// called before the database is opened; a device that is there already has the property once it is set.
KO_HOST_EXPORT void declareForDevices(const NodeProperty& property);

/// The driver, or a null handle for an unknown type. One driver serves all types.
KO_HOST_EXPORT kom::smart<INodeDriverComponent> driver(ENodeType type);

/// A node over \a data; an unknown type gives a plain node. \a data.id is kept as it is. \a vault seals its
/// passwords; without one they are in the clear.
KO_HOST_EXPORT std::unique_ptr<Node> createNode(const NodeData& data,
                                                const std::shared_ptr<Vault>& vault = nullptr);

/// What a hint says: its name and the properties it carries or stands for, no id.
KO_HOST_EXPORT NodeData described(const NodeHint& hint);

/// The data of the node that a hint describes: what it says on top of the type's defaults, no id.
KO_HOST_EXPORT NodeData dataOf(const NodeHint& hint);

/// The data of a node with the settings of the remote preview server for \a camera: the system's defaults,
/// with the address of the default server. No id.
NodeData remotePreviewOf(const NodeData& camera, const QString& address);

/// What lists show.
KO_HOST_EXPORT NodeSummary summaryOf(const NodeData& data);

/// Two nodes with the same key are the same node; an empty key equals none (see docs/lookup.md).
KO_HOST_EXPORT QString lookupKey(const NodeData& data);

/// A key that was stored earlier, when the notation of IPv6 addresses made a difference, as it is made now.
QString lookupKeyToday(const QString& stored);

} // namespace NodeTypes

} // namespace ko

#endif
