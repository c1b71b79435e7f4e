#ifndef KO_PROXYPROPERTIES_H
#define KO_PROXYPROPERTIES_H

#include "database/PropertyList.h"
#include "ko/NetworkProxy.h"

namespace ko {

/// The form in which a device's own proxy settings stand among its properties.
namespace ProxyProperties {

bool isKey(const QString& name);
NetworkProxy read(const PropertyList& properties);

/// Settings that were never touched leave no properties behind.
void write(PropertyList& properties, const NetworkProxy& proxy);

} // namespace ProxyProperties

} // namespace ko

#endif
