#ifndef KO_FORMTWIN_H
#define KO_FORMTWIN_H

#include "HostExport.h"
#include "kom/smart.h"

class QWidget;

namespace ko {

class Node;

/// The other node that is reached, by address, port and channel, as the one that is edited or made in a
/// window will be. Null if there is none, or if it is not a device.
KO_HOST_EXPORT kom::smart<const Node> twinInForm(const QWidget& window);

} // namespace ko

#endif
