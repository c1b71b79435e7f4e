#include "discovery/SightedDevices.h"

#include "discovery/ServiceTypes.h"
#include "discovery/WsDiscovery.h"
#include "model/NetworkAddress.h"
#include "network/NetworkText.h"

#include <QSet>

#include <algorithm>
#include <climits>

namespace ko {

namespace {

const int DevicesAtOnePlace = 64; // with one address or one name; bounds the work for one sighting
const int AddressesOfOne = 8;
const int ServicesOfOne = 16;

int rankOf(const QString& service)
{
    if (service == QLatin1String(WsDiscovery::Service))
        return wsDiscoveryRank;
    for (const ServiceType& known : serviceTypes) {
        if (service == QLatin1String(known.type))
            return known.rank;
    }
    return unknownServiceRank;
}

/// What is announced alike from all addresses of a device; empty when nothing is. A device with an identity
/// of its own is not known by its name, which many may have.
QString announcementKey(const DiscoveredDevice& seen)
{
    const QString& own = seen.identity.isEmpty() ? seen.name : seen.identity;
    const QString port = seen.identity.isEmpty() ? QString::number(seen.port) : QString();
    return own.isEmpty() || seen.service.isEmpty()
               ? QString()
               : QStringList{seen.service, port, own.toLower()}.join(QChar(0x1f));
}

bool isAnother(const SightedDevice::Service& service, const DiscoveredDevice& seen)
{
    return service.type == seen.service && service.port != seen.port &&
           (seen.identity.isEmpty() ? contradict(service.name, seen.name)
                                    : contradict(service.identity, seen.identity));
}

bool areAnother(const SightedDevice& device, const DiscoveredDevice& seen)
{
    return std::any_of(device.services.cbegin(), device.services.cend(),
                       [&seen](const SightedDevice::Service& service) { return isAnother(service, seen); });
}

} // namespace

bool contradict(const QString& a, const QString& b)
{
    return !a.isEmpty() && !b.isEmpty() && a.compare(b, Qt::CaseInsensitive) != 0;
}

QString SightedDevice::bestAddress() const
{
    return *std::min_element(addresses.cbegin(), addresses.cend(), [](const QString& a, const QString& b) {
        return NetworkText::rank(a) < NetworkText::rank(b);
    });
}

QStringList SightedDevice::macs() const
{
    QStringList all = {mac, neighbourMac};
    all.removeAll(QString());
    all.removeDuplicates();
    return all;
}

int SightedDevice::bestPort() const
{
    int port = 0;
    int rank = INT_MAX;
    for (const Service& service : services) {
        if (service.port > 0 && rankOf(service.type) < rank) {
            port = service.port;
            rank = rankOf(service.type);
        }
    }
    return port;
}

SightedDevice* SightedDevices::find(const DiscoveredDevice& seen) const
{
    SightedDevice* device = atSameAddress(seen);
    return device ? device : elsewhere(seen);
}

/// What answers at one address is one device, unless it offers one service twice, under two names at two
/// ports: then there are several behind that address.
SightedDevice* SightedDevices::atSameAddress(const DiscoveredDevice& seen) const
{
    const QVector<SightedDevice*> candidates = at(seen.address);
    SightedDevice* fits = nullptr;
    for (SightedDevice* device : candidates) {
        const bool isOther = areAnother(*device, seen);
        const bool sameName =
            !seen.name.isEmpty() && device->name.compare(seen.name, Qt::CaseInsensitive) == 0;
        if (sameName && (seen.identity.isEmpty() || !isOther))
            return device;
        if (!fits && !isOther)
            fits = device;
    }
    if (fits || candidates.size() < DevicesAtOnePlace)
        return fits;
    return candidates.at(0); // no more are kept apart at one place
}

/// The same announcement from another address is the same device when that is of the other family or
/// when the MAC addresses are equal too. An identity alone says less: cloned devices have the same.
SightedDevice* SightedDevices::elsewhere(const DiscoveredDevice& seen) const
{
    const QVector<SightedDevice*> candidates = m_byAnnouncement.value(announcementKey(seen));
    for (SightedDevice* device : candidates) {
        if (contradict(device->mac, seen.macAddress) || device->addresses.size() >= AddressesOfOne)
            continue;
        const bool sameMac =
            seen.identity.isEmpty() && !seen.macAddress.isEmpty() && device->mac == seen.macAddress;
        const bool otherFamily = std::none_of(
            device->addresses.cbegin(), device->addresses.cend(), [&seen](const QString& address) {
                return NetworkText::rank(address) == NetworkText::rank(seen.address);
            });
        if (otherFamily || (sameMac && device->isNew))
            return device;
    }
    return nullptr;
}

SightedDevice& SightedDevices::add()
{
    m_devices.push_back(std::make_unique<SightedDevice>());
    return *m_devices.back();
}

void SightedDevices::takeMac(QString& field, const QString& mac)
{
    if (!field.isEmpty() || mac.isEmpty())
        return;
    field = mac;
    ++m_macUses[mac];
}

void SightedDevices::absorb(SightedDevice& device, const DiscoveredDevice& seen)
{
    const auto take = [](QString& field, const QString& value) {
        if (field.isEmpty())
            field = value;
    };
    take(device.name, seen.name);
    take(device.model, seen.model);
    take(device.version, seen.version);
    take(device.location, seen.location);
    takeMac(device.mac, seen.macAddress);
    takeMac(device.neighbourMac, seen.neighbourMac);
    if (!device.addresses.contains(seen.address) && device.addresses.size() < AddressesOfOne) {
        device.addresses.append(seen.address);
        m_byAddress[NetworkAddress::key(seen.address)].append(&device);
    }
    const auto isSame = [&seen](const SightedDevice::Service& service) {
        return service.type == seen.service && service.port == seen.port && service.name == seen.name &&
               service.identity == seen.identity;
    };
    if (std::any_of(device.services.cbegin(), device.services.cend(), isSame) ||
        device.services.size() >= ServicesOfOne)
        return;
    device.services.append({seen.service, seen.name, seen.identity, seen.port});
    const QString key = announcementKey(seen);
    QVector<SightedDevice*>& alike = m_byAnnouncement[key];
    if (!key.isEmpty() && alike.size() < DevicesAtOnePlace && !alike.contains(&device))
        alike.append(&device);
}

QVector<SightedDevice*> SightedDevices::at(const QString& address) const
{
    return m_byAddress.value(NetworkAddress::key(address));
}

bool SightedDevices::sharesAddress(const SightedDevice& device) const
{
    return std::any_of(device.addresses.cbegin(), device.addresses.cend(),
                       [this](const QString& address) { return at(address).size() > 1; });
}

bool SightedDevices::sharesMac(const SightedDevice& device, const QString& mac, unsigned scan) const
{
    const auto isOther = [&](const std::unique_ptr<SightedDevice>& other) {
        return other.get() != &device && (other->mac == mac || other->neighbourMac == mac) &&
               other->scan == scan;
    };
    return m_macUses.value(mac) > 1 && std::any_of(m_devices.cbegin(), m_devices.cend(), isOther);
}

void SightedDevices::removeIf(const std::function<bool(const SightedDevice&)>& isGone)
{
    QSet<const SightedDevice*> gone;
    for (const auto& device : m_devices) {
        if (isGone(*device))
            gone.insert(device.get());
    }
    const auto isOfThese = [&gone](const auto& device) { return gone.contains(&*device); };
    for (auto* index : {&m_byAddress, &m_byAnnouncement}) {
        for (auto it = index->begin(); it != index->end();) {
            it->erase(std::remove_if(it->begin(), it->end(), isOfThese), it->end());
            it = it->isEmpty() ? index->erase(it) : std::next(it);
        }
    }
    for (const SightedDevice* device : std::as_const(gone)) {
        for (const QString& mac : {device->mac, device->neighbourMac}) {
            if (!mac.isEmpty() && --m_macUses[mac] == 0)
                m_macUses.remove(mac);
        }
    }
    m_devices.erase(std::remove_if(m_devices.begin(), m_devices.end(), isOfThese), m_devices.end());
}

} // namespace ko
