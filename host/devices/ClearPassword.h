#ifndef KO_CLEARPASSWORD_H
#define KO_CLEARPASSWORD_H

#include "HostExport.h"

namespace ko {

class IPDeviceNode;

/// Whether the device of a node may be sent its password in the clear (HTTP basic). Nothing but the user
/// allows it, for the address and port that the node has then. Kept as a property of the node that is this
/// host's own: no page shows it, and lists of cameras leave it out.
namespace ClearPassword {

KO_HOST_EXPORT bool isAllowed(const IPDeviceNode& node);
KO_HOST_EXPORT void allow(IPDeviceNode& node);

} // namespace ClearPassword

} // namespace ko

#endif
