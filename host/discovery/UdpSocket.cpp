#include "discovery/UdpSocket.h"

#include <algorithm>

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace ko {

namespace {

const int ReceiveBuffer = 1 << 20; // bytes; a site answers all at once
const int LongestDatagram = 65536;

sockaddr_in placeOf(quint32 address, quint16 port)
{
    sockaddr_in place = {};
    place.sin_family = AF_INET;
    place.sin_port = htons(port);
    place.sin_addr.s_addr = htonl(address);
    return place;
}

} // namespace

UdpSocket::UdpSocket(quint32 address, quint16 port)
    : m_descriptor(socket(AF_INET, SOCK_DGRAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0))
{
    if (m_descriptor < 0)
        return;
    const int yes = 1;
    const int no = 0;
    setsockopt(m_descriptor, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
    setsockopt(m_descriptor, SOL_SOCKET, SO_RCVBUF, &ReceiveBuffer, sizeof ReceiveBuffer);
    // Groups that other sockets of the machine have joined are none of this one's.
    setsockopt(m_descriptor, IPPROTO_IP, IP_MULTICAST_ALL, &no, sizeof no);
    const sockaddr_in place = placeOf(address, port);
    if (bind(m_descriptor, reinterpret_cast<const sockaddr*>(&place), sizeof place) != 0) {
        close(m_descriptor);
        m_descriptor = -1;
    }
}

UdpSocket::~UdpSocket()
{
    if (m_descriptor >= 0)
        close(m_descriptor);
}

bool UdpSocket::sendsToGroupsOver(int interface)
{
    ip_mreqn request = {};
    request.imr_ifindex = interface;
    return setsockopt(m_descriptor, IPPROTO_IP, IP_MULTICAST_IF, &request, sizeof request) == 0;
}

bool UdpSocket::join(quint32 group, int interface)
{
    ip_mreqn request = {};
    request.imr_multiaddr.s_addr = htonl(group);
    request.imr_ifindex = interface;
    return setsockopt(m_descriptor, IPPROTO_IP, IP_ADD_MEMBERSHIP, &request, sizeof request) == 0;
}

bool UdpSocket::send(const QByteArray& content, quint32 address, quint16 port)
{
    const sockaddr_in place = placeOf(address, port);
    return sendto(m_descriptor, content.constData(), size_t(content.size()), MSG_NOSIGNAL,
                  reinterpret_cast<const sockaddr*>(&place), sizeof place) == content.size();
}

bool UdpSocket::receive(QByteArray& content, QHostAddress& sender)
{
    content.resize(LongestDatagram);
    sockaddr_in place = {};
    socklen_t size = sizeof place;
    const ssize_t length = recvfrom(m_descriptor, content.data(), size_t(content.size()), 0,
                                    reinterpret_cast<sockaddr*>(&place), &size);
    content.resize(int(std::max<ssize_t>(0, length)));
    sender.setAddress(ntohl(place.sin_addr.s_addr));
    return length >= 0;
}

} // namespace ko
