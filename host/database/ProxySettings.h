#ifndef KO_PROXYSETTINGS_H
#define KO_PROXYSETTINGS_H

#include "store/NodeTables.h"

namespace ko {

class GlobalNetworkProxy;

/// How the global proxy stands among the settings. A password that is not to be saved is not among them.
namespace ProxySettings {

NodeTables::Settings fromProxy(const GlobalNetworkProxy& proxy);

/// Leaves a password that was not saved as it is.
void toProxy(const NodeTables::Settings& settings, GlobalNetworkProxy& proxy);

} // namespace ProxySettings

} // namespace ko

#endif
