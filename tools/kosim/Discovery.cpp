#include "Discovery.h"

#include "Hostile.h"
#include "Soap.h"

#include <QNetworkDatagram>
#include <QNetworkInterface>
#include <QUrl>
#include <QUuid>

namespace kosim {

namespace {

const char groupAddress[] = "239.255.255.250";
const int SendInterval = 10; // ms
const int MostAtOnce = 40;   // 4,000 in a second
const int MostWaiting = 50000;

QByteArray newId()
{
    return "urn:uuid:" + QUuid::createUuid().toString(QUuid::WithoutBraces).toLatin1();
}

QByteArray encoded(const QString& text)
{
    return QUrl::toPercentEncoding(text);
}

QByteArray scopesOf(const Identity& camera)
{
    return "onvif://www.onvif.org/type/video_encoder onvif://www.onvif.org/Profile/Streaming "
           "onvif://www.onvif.org/location/Site onvif://www.onvif.org/hardware/" +
           encoded(QString::fromUtf8(camera.model)) + " onvif://www.onvif.org/name/" + encoded(camera.name);
}

QByteArray description(const Identity& camera, const QByteArray& moreAddresses)
{
    return "<a:EndpointReference><a:Address>" + camera.endpoint +
           "</a:Address></a:EndpointReference><d:Types>dn:NetworkVideoTransmitter "
           "tds:Device</d:Types><d:Scopes>" +
           scopesOf(camera) + "</d:Scopes><d:XAddrs>" + moreAddresses + camera.base() +
           "/onvif/device_service</d:XAddrs><d:MetadataVersion>1</d:MetadataVersion>";
}

QByteArray headerOf(const QByteArray& kind, const QByteArray& relatesTo)
{
    return "<a:MessageID>" + newId() + "</a:MessageID>" +
           (relatesTo.isEmpty() ? QByteArray() : "<a:RelatesTo>" + relatesTo + "</a:RelatesTo>") +
           "<a:To>urn:schemas-xmlsoap-org:ws:2005:04:discovery</a:To>"
           "<a:Action>http://schemas.xmlsoap.org/ws/2005/04/discovery/" +
           kind + "</a:Action>";
}

} // namespace

Discovery::Discovery(int interface, quint16 port, bool hostile)
    : m_interface(interface)
    , m_port(port)
    , m_isHostile(hostile)
{
    m_timer.setInterval(SendInterval);
    connect(&m_timer, &QTimer::timeout, this, &Discovery::sendSome);
    connect(&m_socket, &QUdpSocket::readyRead, this, &Discovery::read);
}

QString Discovery::start()
{
    const QNetworkInterface interface = QNetworkInterface::interfaceFromIndex(m_interface);
    if (!m_socket.bind(QHostAddress::AnyIPv4, m_port,
                       QUdpSocket::ShareAddress | QUdpSocket::ReuseAddressHint))
        return QStringLiteral("cannot use UDP port %1: %2").arg(m_port).arg(m_socket.errorString());
    // Who cannot be asked as one of a group can still be asked alone.
    if (interface.isValid() &&
        m_socket.joinMulticastGroup(QHostAddress(QLatin1String(groupAddress)), interface))
        m_socket.setMulticastInterface(interface);
    return QString();
}

void Discovery::announce(const QVector<Identity>& cameras)
{
    m_cameras = cameras;
    const QHostAddress group{QLatin1String(groupAddress)};
    for (const Identity& camera : cameras)
        queue(camera, "Hello", QByteArray(), group, m_port);
}

void Discovery::read()
{
    while (m_socket.hasPendingDatagrams()) {
        const QNetworkDatagram datagram = m_socket.receiveDatagram();
        const SoapRequest request = SoapRequest::read(datagram.data());
        if (request.operation == QLatin1String("Probe"))
            answer(datagram.destinationAddress(), datagram.senderAddress(), quint16(datagram.senderPort()),
                   QUrl::toPercentEncoding(request.messageId, ":"));
    }
}

void Discovery::answer(const QHostAddress& asked, const QHostAddress& who, quint16 port,
                       const QByteArray& question)
{
    for (const Identity& camera : qAsConst(m_cameras)) {
        if (asked.isMulticast() || camera.address == asked)
            queue(camera, "ProbeMatches", question, who, port);
    }
}

void Discovery::queue(const Identity& camera, const QByteArray& kind, const QByteArray& relatesTo,
                      const QHostAddress& to, quint16 port)
{
    const bool isGreeting = kind == "Hello";
    const auto message = [&](const QByteArray& addresses) {
        const QByteArray inside = description(camera, addresses);
        return soapMessage(isGreeting ? "<d:Hello>" + inside + "</d:Hello>"
                                      : "<d:ProbeMatches><d:ProbeMatch>" + inside +
                                            "</d:ProbeMatch></d:ProbeMatches>",
                           headerOf(kind, relatesTo));
    };
    QVector<QByteArray> contents = {message(m_isHostile ? Hostile::addresses() : QByteArray())};
    if (m_isHostile)
        contents += Hostile::datagrams(message(QByteArray()));
    for (const QByteArray& content : qAsConst(contents)) {
        if (m_waiting.size() < MostWaiting)
            m_waiting.push_back({content, camera.address, to, port});
    }
    if (!m_timer.isActive())
        m_timer.start();
}

void Discovery::sendSome()
{
    for (int i = 0; i < MostAtOnce && !m_waiting.empty(); ++i) {
        const Message& message = m_waiting.front();
        // From the camera's own address, by which its neighbours know it.
        QUdpSocket socket;
        socket.bind(message.from, 0);
        if (message.to.isMulticast())
            socket.setMulticastInterface(QNetworkInterface::interfaceFromIndex(m_interface));
        socket.writeDatagram(message.content, message.to, message.port);
        m_waiting.pop_front();
    }
    if (m_waiting.empty())
        m_timer.stop();
}

} // namespace kosim
