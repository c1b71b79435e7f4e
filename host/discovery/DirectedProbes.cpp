#include "discovery/DirectedProbes.h"

#include "discovery/ScanClock.h"
#include "discovery/WsDiscovery.h"

#include <algorithm>
#include <cerrno>

namespace ko {

DirectedProbes::DirectedProbes(quint16 port)
    : m_port(port)
    , m_probes(WsDiscovery::newProbes())
{
}

void DirectedProbes::ask(quint32 address, const QByteArray& mac)
{
    if (m_socket.isOpen())
        m_hosts[address] = {mac, 0, scanClock()};
}

QVector<DiscoveredDevice> DirectedProbes::step()
{
    QVector<DiscoveredDevice> devices;
    if (m_socket.isOpen())
        send();
    QByteArray message;
    QHostAddress sender;
    while (m_socket.isOpen() && m_socket.receive(message, sender))
        append(message, sender, devices);
    return devices;
}

/// One that the system refuses for good counts as sent.
void DirectedProbes::send()
{
    const qint64 now = scanClock();
    for (auto& host : m_hosts) {
        if (host.second.tries >= MostTries || host.second.due > now)
            continue;
        for (const QByteArray& probe : m_probes) {
            if (!m_socket.send(probe, host.first, m_port) && (errno == EAGAIN || errno == ENOBUFS))
                return;
        }
        ++host.second.tries;
        host.second.due = now + RepeatDelay;
        m_lastSent = now;
    }
}

void DirectedProbes::append(const QByteArray& message, const QHostAddress& sender,
                            QVector<DiscoveredDevice>& devices) const
{
    const auto host = m_hosts.find(sender.toIPv4Address());
    if (host == m_hosts.end())
        return;
    QVector<DiscoveredDevice> found = WsDiscovery::read(message, sender);
    for (DiscoveredDevice& device : found) {
        if (device.address == sender.toString())
            device.neighbourMac = QString::fromLatin1(host->second.mac.toHex(':'));
        devices.append(device);
    }
}

bool DirectedProbes::isDone() const
{
    const auto isAsked = [](const auto& host) { return host.second.tries >= MostTries; };
    return m_hosts.empty() ||
           (std::all_of(m_hosts.begin(), m_hosts.end(), isAsked) && scanClock() - m_lastSent > AnswerTimeout);
}

} // namespace ko
