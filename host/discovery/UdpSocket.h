#ifndef KO_UDPSOCKET_H
#define KO_UDPSOCKET_H

#include <QByteArray>
#include <QHostAddress>

namespace ko {

/// An IPv4 socket for datagrams, for threads that wait with poll(). Addresses are in host byte order. Never
/// blocks.
class UdpSocket
{
public:
    /// Open or not, see isOpen(). Others may have a \a port too; 0 is any that is free.
    explicit UdpSocket(quint32 address = 0, quint16 port = 0);
    ~UdpSocket();

    bool isOpen() const { return m_descriptor >= 0; }
    int descriptor() const { return m_descriptor; }

    /// What goes to a group goes out over this interface.
    bool sendsToGroupsOver(int interface);
    bool join(quint32 group, int interface);

    /// False, with errno, when it does not go out.
    bool send(const QByteArray& content, quint32 address, quint16 port);

    /// False when there is nothing more to read.
    bool receive(QByteArray& content, QHostAddress& sender);

private:
    Q_DISABLE_COPY(UdpSocket)

    int m_descriptor;
};

} // namespace ko

#endif
