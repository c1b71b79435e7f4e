#include "discovery/NeighbourTable.h"

#include <cstring>

#include <linux/neighbour.h>
#include <linux/netlink.h>
#include <linux/rtnetlink.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

namespace ko {

namespace {

const int DatagramSize = 32768;
const int MostDatagrams = 1000; // far more than the largest table takes
const int MacSize = 6;
const int CompleteStates = NUD_REACHABLE | NUD_STALE | NUD_DELAY | NUD_PROBE | NUD_PERMANENT;

/// The header at \a position. By copy, because nothing promises its alignment.
template <class T>
bool readAt(const QByteArray& bytes, int position, T& header)
{
    if (position < 0 || bytes.size() - position < int(sizeof(T)))
        return false;
    std::memcpy(&header, bytes.constData() + position, sizeof(T));
    return true;
}

int aligned(int length)
{
    return (length + 3) & ~3;
}

/// The length that a header states for itself, its own size included; 0 when it does not fit.
int checked(quint32 length, int smallest, int available)
{
    return length < quint32(smallest) || length > quint32(available) ? 0 : int(length);
}

void readAttributes(const QByteArray& message, Neighbour& neighbour)
{
    rtattr attribute;
    int position = int(aligned(sizeof(ndmsg)));
    while (readAt(message, position, attribute)) {
        const int length = checked(attribute.rta_len, sizeof attribute, int(message.size()) - position);
        if (length == 0)
            return;
        const QByteArray value =
            message.mid(position + int(sizeof attribute), length - int(sizeof attribute));
        in_addr address;
        if (attribute.rta_type == NDA_DST && value.size() == int(sizeof address) && readAt(value, 0, address))
            neighbour.address = ntohl(address.s_addr);
        else if (attribute.rta_type == NDA_LLADDR && value.size() == MacSize)
            neighbour.macAddress = value;
        position += aligned(length);
    }
}

void readNeighbour(const QByteArray& message, QVector<Neighbour>& neighbours)
{
    ndmsg header;
    if (!readAt(message, 0, header) || header.ndm_family != AF_INET || header.ndm_ifindex <= 0)
        return;
    Neighbour neighbour;
    neighbour.interface = header.ndm_ifindex;
    neighbour.failed = header.ndm_state & NUD_FAILED;
    readAttributes(message, neighbour);
    if (!(header.ndm_state & CompleteStates))
        neighbour.macAddress.clear();
    if (neighbour.address != 0)
        neighbours.append(neighbour);
}

bool ask(int socket)
{
    struct
    {
        nlmsghdr header;
        ndmsg message;
    } request = {};
    request.header.nlmsg_len = sizeof request;
    request.header.nlmsg_type = RTM_GETNEIGH;
    request.header.nlmsg_flags = NLM_F_REQUEST | NLM_F_DUMP;
    request.message.ndm_family = AF_INET;
    sockaddr_nl kernel = {};
    kernel.nl_family = AF_NETLINK;
    return sendto(socket, &request, sizeof request, 0, reinterpret_cast<const sockaddr*>(&kernel),
                  sizeof kernel) == ssize_t(sizeof request);
}

int openSocket()
{
    const int descriptor = socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC, NETLINK_ROUTE);
    const timeval timeout = {1, 0}; // the kernel answers at once; nothing may wait for ever
    if (descriptor >= 0)
        setsockopt(descriptor, SOL_SOCKET, SO_RCVTIMEO, &timeout, sizeof timeout);
    return descriptor;
}

} // namespace

/// A socket for each time: what an earlier answer left behind can then not be taken for this one.
bool NeighbourTable::read(QVector<Neighbour>& neighbours)
{
    const int socket = openSocket();
    if (socket < 0)
        return false;
    Reply reply = ask(socket) ? More : Bad;
    for (int i = 0; i < MostDatagrams && reply == More; ++i) {
        QByteArray datagram(DatagramSize, Qt::Uninitialized);
        sockaddr_nl sender = {};
        socklen_t size = sizeof sender;
        const ssize_t length = recvfrom(socket, datagram.data(), size_t(datagram.size()), 0,
                                        reinterpret_cast<sockaddr*>(&sender), &size);
        if (length > 0 && sender.nl_pid != 0)
            continue; // another process, which has no say in this
        datagram.truncate(int(qMax<ssize_t>(length, 0)));
        reply = parse(datagram, neighbours);
    }
    close(socket);
    return reply == Complete;
}

NeighbourTable::Reply NeighbourTable::parse(const QByteArray& datagram, QVector<Neighbour>& neighbours)
{
    nlmsghdr header;
    int position = 0;
    while (readAt(datagram, position, header)) {
        const int length = checked(header.nlmsg_len, sizeof header, int(datagram.size()) - position);
        if (length == 0 || header.nlmsg_type == NLMSG_ERROR)
            return Bad;
        if (header.nlmsg_type == NLMSG_DONE)
            return Complete;
        if (header.nlmsg_type == RTM_NEWNEIGH)
            readNeighbour(datagram.mid(position + int(sizeof header), length - int(sizeof header)),
                          neighbours);
        position += aligned(length);
    }
    return position > 0 && position >= datagram.size() ? More : Bad;
}

} // namespace ko
