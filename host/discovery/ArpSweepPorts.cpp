#include "discovery/ArpSweepPorts.h"

#include "discovery/ScanClock.h"

#include <algorithm>
#include <cerrno>

#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace ko {

namespace {

const int portTable[] = {80, 8080, 443, 8443, 8000, 554, 8554};
static_assert(sizeof portTable / sizeof *portTable == ArpSweepPorts::PortCount, "one socket for each port");

void closeSocket(int& descriptor)
{
    if (descriptor >= 0)
        close(descriptor);
    descriptor = -1;
}

/// Below 0 when it is decided already, with \a isOpen set.
int beginConnect(quint32 address, int port, bool& isOpen)
{
    isOpen = false;
    int descriptor = socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    if (descriptor < 0)
        return -1;
    sockaddr_in peer = {};
    peer.sin_family = AF_INET;
    peer.sin_port = htons(quint16(port));
    peer.sin_addr.s_addr = htonl(address);
    isOpen = connect(descriptor, reinterpret_cast<const sockaddr*>(&peer), sizeof peer) == 0;
    if (isOpen || errno != EINPROGRESS)
        closeSocket(descriptor);
    return descriptor;
}

/// Whether the connection is made or refused by now.
bool isSettled(int descriptor, bool& isOpen)
{
    pollfd wait = {descriptor, POLLOUT, 0};
    if (poll(&wait, 1, 0) <= 0)
        return false;
    int error = 0;
    socklen_t size = sizeof error;
    isOpen = getsockopt(descriptor, SOL_SOCKET, SO_ERROR, &error, &size) == 0 && error == 0;
    return true;
}

} // namespace

ArpSweepPorts::~ArpSweepPorts()
{
    for (Host& host : m_hosts)
        std::for_each(host.sockets, host.sockets + PortCount, closeSocket);
}

const int* ArpSweepPorts::ports()
{
    return portTable;
}

void ArpSweepPorts::appendTo(std::vector<pollfd>& descriptors) const
{
    for (const Host& host : m_hosts) {
        for (int descriptor : host.sockets) {
            if (descriptor >= 0)
                descriptors.push_back({descriptor, POLLOUT, 0});
        }
    }
}

ArpSweepPorts::Host ArpSweepPorts::begin(quint32 address)
{
    Host host;
    host.address = address;
    host.deadline = scanClock() + Patience;
    for (int i = 0; i < PortCount; ++i)
        host.sockets[i] = beginConnect(address, portTable[i], host.open[i]);
    return host;
}

/// An open port is the answer when none before it may still open.
bool ArpSweepPorts::isDecided(Host& host)
{
    const bool isLate = scanClock() >= host.deadline;
    for (int i = 0; i < PortCount; ++i) {
        if (host.sockets[i] >= 0 && (isSettled(host.sockets[i], host.open[i]) || isLate))
            closeSocket(host.sockets[i]);
    }
    for (int i = 0; i < PortCount; ++i) {
        if (host.sockets[i] >= 0)
            return false;
        if (host.open[i])
            return true;
    }
    return true;
}

QVector<ArpSweepPorts::Answer> ArpSweepPorts::step()
{
    while (!m_waiting.empty() && m_hosts.size() < MostHosts) {
        m_hosts.push_back(begin(m_waiting.front()));
        m_waiting.pop_front();
    }
    QVector<Answer> answers;
    for (auto host = m_hosts.begin(); host != m_hosts.end();) {
        if (!isDecided(*host)) {
            ++host;
            continue;
        }
        const bool* open = std::find(host->open, host->open + PortCount, true);
        answers.append({host->address, open == host->open + PortCount ? 0 : portTable[open - host->open]});
        std::for_each(host->sockets, host->sockets + PortCount, closeSocket);
        host = m_hosts.erase(host);
    }
    return answers;
}

} // namespace ko
