#ifndef KO_NODEFACTS_H
#define KO_NODEFACTS_H

#include "HostExport.h"
#include "devices/DeviceFacts.h"

#include <QVariant>

namespace ko {

class IPDeviceNode;
class Node;

/// A property of a node that its device tells otherwise.
struct NodeFact
{
    QString key;
    QVariant before;    ///< invalid: the node does not have it
    QVariant after;     ///< in the type of the property
    bool isSet = false; ///< what the node has may be somebody's choice: not to be replaced unasked
};

/// What a device told of itself, as properties of its node.
///
/// Model, version, MAC address, "UrlPTZStream" of a URL camera: as the node's pages show them. Addresses and
/// factory extension: as docs/lookup.md says. Besides, this host's own: number of channels, resolutions (in
/// the texts of NodeDBUtils, "Custom (1920x1080)" for what these do not have), and whether the device can be
/// turned.
namespace NodeFacts {

/// In the order in which a user wants to see them; nothing that the node has already.
KO_HOST_EXPORT QVector<NodeFact> changes(const IPDeviceNode& node, const DeviceFacts& facts);

/// Whether the node still has what it had before.
KO_HOST_EXPORT bool isCurrent(const Node& node, const NodeFact& fact);

/// Writes it into \a node, with what belongs to it.
KO_HOST_EXPORT void write(Node& node, const NodeFact& fact);

/// What a property is called, and its value in words.
KO_HOST_EXPORT QString title(const QString& key);
KO_HOST_EXPORT QString text(const QVariant& value);

} // namespace NodeFacts

} // namespace ko

#endif
