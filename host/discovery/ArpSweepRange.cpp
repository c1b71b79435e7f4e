#include "discovery/ArpSweepRange.h"

#include "discovery/ScanInterfaces.h"

#include <QCoreApplication>
#include <QHostAddress>

#include <algorithm>
#include <memory>

#include <ifaddrs.h>
#include <net/if.h>
#include <netinet/in.h>

namespace ko {

namespace {

/// -1 for a mask with holes.
int prefixOf(quint32 mask)
{
    const quint32 hostBits = ~mask;
    return (hostBits & (hostBits + 1)) == 0 ? int(qPopulationCount(mask)) : -1;
}

quint32 maskOf(int prefix)
{
    return prefix == 0 ? 0 : ~quint32(0) << (32 - prefix);
}

QString networkText(quint32 address, int prefix)
{
    return QHostAddress(address & maskOf(prefix)).toString() + QLatin1Char('/') + QString::number(prefix);
}

quint32 addressOf(const sockaddr* address)
{
    return ntohl(reinterpret_cast<const sockaddr_in*>(address)->sin_addr.s_addr);
}

bool isUsable(const ifaddrs& entry)
{
    const unsigned wanted = IFF_UP | IFF_RUNNING;
    const unsigned unwanted = IFF_LOOPBACK | IFF_POINTOPOINT | IFF_NOARP;
    return entry.ifa_addr && entry.ifa_netmask && entry.ifa_addr->sa_family == AF_INET &&
           (entry.ifa_flags & (wanted | unwanted)) == wanted;
}

} // namespace

QString ArpSweepRange::text() const
{
    const QString range = interfaceName + QLatin1String(", ") + networkText(first, prefix);
    return isPart() ? QCoreApplication::translate("ArpScanner", "%1 of %2")
                          .arg(range, networkText(ownAddress, networkPrefix))
                    : range;
}

ArpSweepRange ArpSweepRange::around(quint32 ownAddress, quint32 mask)
{
    ArpSweepRange range;
    range.ownAddress = ownAddress;
    range.first = 1;
    range.networkPrefix = prefixOf(mask);
    range.prefix = std::max<int>(range.networkPrefix, ShortestPrefix);
    if (range.networkPrefix <= 0 || range.prefix == 32)
        return range;
    range.first = ownAddress & maskOf(range.prefix);
    range.last = range.first | ~maskOf(range.prefix);
    // The first and the last address of a network belong to nobody, except in the smallest.
    const bool hasBroadcast = range.networkPrefix < 31;
    if (hasBroadcast && range.first == (ownAddress & mask))
        ++range.first;
    if (hasBroadcast && range.last == (ownAddress | ~mask))
        --range.last;
    return range;
}

QVector<ArpSweepRange> ArpSweepRange::attached(unsigned interfaces)
{
    QVector<ArpSweepRange> ranges;
    ifaddrs* entries = nullptr;
    if (getifaddrs(&entries) != 0)
        return ranges;
    const std::unique_ptr<ifaddrs, decltype(&freeifaddrs)> owner(entries, freeifaddrs);
    for (const ifaddrs* entry = entries; entry; entry = entry->ifa_next) {
        const unsigned index = isUsable(*entry) ? if_nametoindex(entry->ifa_name) : 0;
        if (index == 0 || !isScanned(interfaces, int(index)))
            continue;
        ArpSweepRange range = around(addressOf(entry->ifa_addr), addressOf(entry->ifa_netmask));
        range.interface = int(index);
        range.interfaceName = QString::fromLocal8Bit(entry->ifa_name);
        const auto isSame = [&range](const ArpSweepRange& other) {
            return other.interface == range.interface && other.first == range.first &&
                   other.last == range.last;
        };
        if (!range.isEmpty() && std::none_of(ranges.constBegin(), ranges.constEnd(), isSame))
            ranges.append(range);
    }
    return ranges;
}

} // namespace ko
