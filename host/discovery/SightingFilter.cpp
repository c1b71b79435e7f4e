#include "discovery/SightingFilter.h"

#include "discovery/DeviceIntake.h"
#include "drivers/FactoryExtension.h"
#include "ko/LogQt.h"
#include "ko/MACAddress.h"
#include "model/NetworkAddress.h"
#include "network/NetworkText.h"

#include <utility>

namespace ko {

namespace {

/// An address that every device may claim says nothing about any.
QString usableMac(const QString& text)
{
    const QString mac = text.size() > 32 ? QString() : MACAddress(text).toString(true);
    return FactoryExtension::ofMac(mac).isEmpty() ? QString() : mac;
}

} // namespace

bool SightingFilter::pass(DiscoveredDevice& seen)
{
    seen.address = NetworkAddress::normalised(seen.address.left(100));
    if (seen.address.isEmpty() || seen.port < 0 || seen.port > 65535)
        return false;
    if (!m_nearby.contains(QHostAddress(seen.address))) {
        if (!std::exchange(m_saidFar, true))
            LogQt::line(LogQt::Info, QString::fromLatin1("The network scan leaves out announced addresses "
                                                         "of other networks, such as %1")
                                         .arg(seen.address));
        return false;
    }
    seen.name = NetworkText::cleaned(seen.name, DeviceIntake::NameLength);
    seen.model = NetworkText::cleaned(seen.model, DeviceIntake::TextLength);
    seen.version = NetworkText::cleaned(seen.version, DeviceIntake::TextLength);
    seen.service = NetworkText::cleaned(seen.service, DeviceIntake::TextLength);
    seen.location = NetworkText::cleaned(seen.location, DeviceIntake::TextLength);
    seen.identity = NetworkText::cleaned(seen.identity, DeviceIntake::NameLength);
    seen.macAddress = usableMac(seen.macAddress);
    seen.neighbourMac = usableMac(seen.neighbourMac);
    return true;
}

} // namespace ko
