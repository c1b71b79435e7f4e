#ifndef KO_PROXYSETTINGS_H
#define KO_PROXYSETTINGS_H

#include "model/ChangeSet.h"

namespace ko {

class GlobalNetworkProxy;
class Vault;

/// How the global proxy stands among the settings. The password is sealed; one that is not to be saved is
/// not among them.
namespace ProxySettings {

/// \a before: the settings as they are, of which a sealed password is kept when it is still the same.
Settings fromProxy(const GlobalNetworkProxy& proxy, const Settings& before, Vault& vault);

/// Leaves a password that was not saved as it is.
void toProxy(const Settings& settings, GlobalNetworkProxy& proxy, Vault& vault);

} // namespace ProxySettings

} // namespace ko

#endif
