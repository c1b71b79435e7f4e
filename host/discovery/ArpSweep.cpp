#include "discovery/ArpSweep.h"

#include "discovery/ScanClock.h"

#include <QCoreApplication>
#include <QHostAddress>

#include <cerrno>
#include <cstring>
#include <utility>

#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace ko {

namespace {

const quint16 DiscardPort = 9;
const int MostTries = 2;
const int RepeatDelay = 100; // ms; what failed just before we asked must not count for our datagram

/// Says over which interface and from which address a datagram goes, whatever the routes prefer.
void setSource(msghdr& message, char* buffer, size_t size, const ArpSweepRange& range)
{
    std::memset(buffer, 0, size);
    message.msg_control = buffer;
    message.msg_controllen = size;
    cmsghdr* header = CMSG_FIRSTHDR(&message);
    header->cmsg_level = IPPROTO_IP;
    header->cmsg_type = IP_PKTINFO;
    header->cmsg_len = CMSG_LEN(sizeof(in_pktinfo));
    in_pktinfo source = {};
    source.ipi_ifindex = range.interface;
    source.ipi_spec_dst.s_addr = htonl(range.ownAddress);
    std::memcpy(CMSG_DATA(header), &source, sizeof source);
}

DiscoveredDevice deviceOf(const ArpSweepPorts::Answer& answer, const QByteArray& mac)
{
    DiscoveredDevice device;
    device.address = QHostAddress(answer.address).toString();
    device.port = answer.port;
    device.macAddress = QString::fromLatin1(mac.toHex(':'));
    return device;
}

} // namespace

ArpSweep::ArpSweep(const ArpSweepRange& range)
    : m_range(range)
    , m_socket(socket(AF_INET, SOCK_DGRAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0))
    , m_next(range.first)
{
    QVector<Neighbour> neighbours;
    if (m_socket < 0 || !NeighbourTable::read(neighbours))
        m_error = TranslatableText("ArpScanner",
                                   QT_TRANSLATE_NOOP("ArpScanner", "the system provides no socket: %1"),
                                   qt_error_string(errno));
}

ArpSweep::~ArpSweep()
{
    if (m_socket >= 0)
        close(m_socket);
}

bool ArpSweep::isDone() const
{
    return m_next > qint64(m_range.last) && m_flights.empty() && m_ports.isIdle();
}

QVector<DiscoveredDevice> ArpSweep::step(int wakeup)
{
    sendNext();
    wait(wakeup);
    if (scanClock() - m_lastLook >= StepTime) {
        m_lastLook = scanClock();
        readTable();
    }
    return askPorts();
}

/// False when it cannot go out just now. One that the system refuses for good counts as sent, and then as
/// silent.
bool ArpSweep::send(quint32 address)
{
    sockaddr_in peer = {};
    peer.sin_family = AF_INET;
    peer.sin_port = htons(DiscardPort);
    peer.sin_addr.s_addr = htonl(address);
    char byte = 0;
    iovec content = {&byte, 1};
    alignas(cmsghdr) char control[CMSG_SPACE(sizeof(in_pktinfo))];
    msghdr message = {};
    message.msg_name = &peer;
    message.msg_namelen = sizeof peer;
    message.msg_iov = &content;
    message.msg_iovlen = 1;
    setSource(message, control, sizeof control, m_range);
    const bool isSent = sendmsg(m_socket, &message, MSG_DONTROUTE | MSG_NOSIGNAL) >= 0;
    return isSent || (errno != EAGAIN && errno != ENOBUFS && errno != EINTR);
}

void ArpSweep::sendNext()
{
    int budget = MostPerStep;
    for (auto& flight : m_flights) {
        if (flight.second.sent == 0 || flight.second.sentAt != 0)
            continue;
        if (budget-- == 0 || !send(flight.first))
            return;
        ++flight.second.sent;
        flight.second.sentAt = scanClock();
    }
    for (; budget > 0 && m_next <= qint64(m_range.last) && m_flights.size() < MostInFlight; ++m_next) {
        const auto address = quint32(m_next);
        if (address == m_range.ownAddress) {
            ++m_done;
            continue;
        }
        if (!send(address))
            return;
        m_flights[address] = {1, scanClock()};
        --budget;
    }
}

void ArpSweep::wait(int wakeup) const
{
    std::vector<pollfd> descriptors = {{wakeup, POLLIN, 0}};
    m_ports.appendTo(descriptors);
    poll(descriptors.data(), descriptors.size(), StepTime);
}

bool ArpSweep::isSilent(const Flight& flight, bool failed) const
{
    const qint64 age = flight.sentAt == 0 ? 0 : scanClock() - flight.sentAt;
    return age >= AnswerTimeout || (failed && age >= RepeatDelay);
}

void ArpSweep::readTable()
{
    std::map<quint32, Neighbour> entries;
    QVector<Neighbour> neighbours;
    NeighbourTable::read(neighbours); // what cannot be read now is read next time
    for (const Neighbour& neighbour : std::as_const(neighbours)) {
        if (neighbour.interface == m_range.interface)
            entries[neighbour.address] = neighbour;
    }
    for (auto flight = m_flights.begin(); flight != m_flights.end();) {
        const Neighbour& entry = entries[flight->first];
        if (!entry.macAddress.isEmpty()) {
            m_macs[flight->first] = entry.macAddress;
            m_ports.add(flight->first);
            m_there.append(entry);
            flight = m_flights.erase(flight);
        } else if (!isSilent(flight->second, entry.failed)) {
            ++flight;
        } else if (flight->second.sent < MostTries) {
            flight->second.sentAt = 0;
            ++flight;
        } else {
            ++m_done;
            flight = m_flights.erase(flight);
        }
    }
}

QVector<DiscoveredDevice> ArpSweep::askPorts()
{
    QVector<DiscoveredDevice> found;
    const QVector<ArpSweepPorts::Answer> answers = m_ports.step();
    for (const ArpSweepPorts::Answer& answer : answers) {
        ++m_done;
        const auto mac = m_macs.find(answer.address);
        if (answer.port != 0)
            found.append(deviceOf(answer, mac->second));
        m_macs.erase(mac);
    }
    return found;
}

} // namespace ko
