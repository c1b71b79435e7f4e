#include "drivers/DeviceAddresses.h"

#include "ko/PropertyAccess.h"
#include "ko/PropertyKeys.h"
#include "kogen/Property.h"
#include "network/NetworkText.h"

#include <algorithm>

namespace ko {

namespace DeviceAddresses {

QStringList read(const PropertyAccess& device)
{
    return fromSet(device.propertySetProperty(PropertyKeys::IPAddresses, kogen::PropertySet()));
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

/// The names of the entries keep their order.
kogen::PropertySet toSet(const QStringList& addresses)
{
    kogen::PropertySet set;
    for (int i = 0; i < std::min<int>(Most, int(addresses.size())); ++i) {
        const QString name = QString::number(i + 1).rightJustified(2, QLatin1Char('0'));
        set.insert(kom::makeSmart<kogen::StringProperty>(name, addresses.at(i)));
    }
    return set;
}

QStringList fromSet(const kogen::PropertySet& set)
{
    QStringList addresses;
    for (const auto& entry : set)
        addresses.append(entry.second->value().toString());
    return addresses;
}

} // namespace DeviceAddresses

} // namespace ko
