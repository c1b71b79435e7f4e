#include "discovery/NearbyAddresses.h"

#include <QNetworkInterface>

#include <algorithm>

namespace ko {

namespace {

const int GoodFor = 5000; // ms

QVector<NearbyAddresses::Network> networks(const QStringList& texts)
{
    QVector<NearbyAddresses::Network> result;
    for (const QString& text : texts)
        result.append(QHostAddress::parseSubnet(text));
    return result;
}

/// Those of this computer alone, of many, and of nobody. 240.0.0.0/4 holds the broadcast address too.
const QVector<NearbyAddresses::Network>& nobodys()
{
    static const QVector<NearbyAddresses::Network> all =
        networks({QStringLiteral("0.0.0.0/8"), QStringLiteral("127.0.0.0/8"), QStringLiteral("224.0.0.0/4"),
                  QStringLiteral("240.0.0.0/4"), QStringLiteral("::/127"), QStringLiteral("ff00::/8")});
    return all;
}

const QVector<NearbyAddresses::Network>& local()
{
    static const QVector<NearbyAddresses::Network> all =
        networks({QStringLiteral("10.0.0.0/8"), QStringLiteral("100.64.0.0/10"),
                  QStringLiteral("169.254.0.0/16"), QStringLiteral("172.16.0.0/12"),
                  QStringLiteral("192.168.0.0/16"), QStringLiteral("fc00::/7"), QStringLiteral("fe80::/10")});
    return all;
}

bool isIn(const QHostAddress& address, const QVector<NearbyAddresses::Network>& networks)
{
    return std::any_of(networks.cbegin(), networks.cend(), [&address](const auto& network) {
        return address.isInSubnet(network.first, network.second);
    });
}

/// The last address of an IPv4 network means all of its hosts.
bool isBroadcast(const QHostAddress& address, const NearbyAddresses::Network& network)
{
    const bool hasOne = address.protocol() == QAbstractSocket::IPv4Protocol && network.second < 31 &&
                        address.isInSubnet(network.first, network.second);
    const quint32 hosts = ~quint32(0) >> (hasOne ? network.second : 0);
    return hasOne && (address.toIPv4Address() & hosts) == hosts;
}

} // namespace

NearbyAddresses::NearbyAddresses(const QVector<Network>& attached)
    : m_looks(false)
    , m_attached(attached)
{
}

bool NearbyAddresses::contains(const QHostAddress& address)
{
    look();
    const bool isOfAll = std::any_of(m_attached.cbegin(), m_attached.cend(),
                                     [&](const Network& network) { return isBroadcast(address, network); });
    return !isOfAll && !isIn(address, nobodys()) && (isIn(address, local()) || isIn(address, m_attached));
}

void NearbyAddresses::look()
{
    if (!m_looks || (m_sinceLook.isValid() && !m_sinceLook.hasExpired(GoodFor)))
        return;
    m_sinceLook.start();
    m_attached.clear();
    const QList<QNetworkInterface> interfaces = QNetworkInterface::allInterfaces();
    for (const QNetworkInterface& interface : interfaces) {
        const QList<QNetworkAddressEntry> entries = interface.addressEntries();
        for (const QNetworkAddressEntry& entry : entries) {
            // A network that is everything says nothing.
            if (entry.prefixLength() > 0)
                m_attached.append({entry.ip(), entry.prefixLength()});
        }
    }
}

} // namespace ko
