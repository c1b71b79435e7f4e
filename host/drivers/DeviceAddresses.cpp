#include "drivers/DeviceAddresses.h"

#include "ko/PropertyAccess.h"
#include "ko/PropertyKeys.h"
#include "model/NumberedTexts.h"
#include "network/NetworkText.h"

#include <algorithm>

namespace ko {

namespace DeviceAddresses {

QStringList read(const PropertyAccess& device)
{
    return NumberedTexts::fromSet(
        device.propertySetProperty(PropertyKeys::IPAddresses, kogen::PropertySet()));
}

void write(PropertyAccess& device, const QStringList& addresses)
{
    const kogen::PropertySet set = toSet(addresses);
    if (device.propertySetProperty(PropertyKeys::IPAddresses, kogen::PropertySet()) != set)
        device.setPropertySetProperty(PropertyKeys::IPAddresses, set);
    if (device.stringProperty(PropertyKeys::IP, QString()) != addresses.value(0))
        device.setStringProperty(PropertyKeys::IP, addresses.value(0));
}

QStringList merged(const QStringList& known, const QStringList& seen)
{
    QStringList all = seen;
    for (const QString& address : known) {
        const int kind = NetworkText::rank(address);
        if (std::none_of(seen.cbegin(), seen.cend(),
                         [kind](const QString& other) { return NetworkText::rank(other) == kind; }))
            all.append(address);
    }
    std::stable_sort(all.begin(), all.end(), [](const QString& a, const QString& b) {
        return NetworkText::rank(a) < NetworkText::rank(b);
    });
    return all;
}

kogen::PropertySet toSet(const QStringList& addresses)
{
    return NumberedTexts::toSet(addresses.mid(0, Most));
}

} // namespace DeviceAddresses

} // namespace ko
