#include "Camera.h"

#include "Answers.h"

#include <QRandomGenerator>
#include <QTcpSocket>
#include <QTimer>

namespace kosim {

namespace {

const int MostConnections = 30; // of one server
const int LongestRequest = 8192;
const int Patience = 20000; // ms

QByteArray newNonce()
{
    return QByteArray::number(QRandomGenerator::system()->generate64(), 16);
}

} // namespace

Camera::Camera(const Identity& identity, Behaviour behaviour, const Account& account, const Tls& tls)
    : m_identity(identity)
    , m_onvif(behaviour)
    , m_account(account)
    , m_http([this](const QHostAddress&, const HttpRequest& request) { return answer(request); },
             MostConnections, tls)
{
    serveRtsp();
}

void Camera::serveRtsp()
{
    QObject::connect(&m_rtsp, &QTcpServer::newConnection, &m_rtsp, [this] {
        while (QTcpSocket* socket = m_rtsp.nextPendingConnection()) {
            QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
            QTimer::singleShot(Patience, socket, &QTcpSocket::abort);
            if (m_rtsp.findChildren<QTcpSocket*>().size() > MostConnections) {
                socket->abort();
                continue;
            }
            QObject::connect(socket, &QTcpSocket::readyRead, socket, [socket] {
                QByteArray waiting = socket->peek(LongestRequest);
                for (int end = 0; (end = int(waiting.indexOf("\r\n\r\n"))) >= 0; waiting.remove(0, end + 4))
                    socket->write(rtspAnswer(socket->read(end + 4), "kosim", newNonce()));
                if (waiting.size() >= LongestRequest)
                    socket->abort();
            });
        }
    });
}

/// All but the services of ONVIF and the pictures asks for the password, and refuses any.
HttpReply Camera::answer(const HttpRequest& request)
{
    if (request.path.startsWith("/onvif/"))
        return m_onvif.answer(request, m_identity, m_account);
    if (request.path.startsWith("/snapshot/"))
        return m_onvif.picture(request, m_identity, m_account);
    HttpReply reply;
    reply.status = 401;
    reply.headers = challenge("kosim", newNonce());
    return reply;
}

QString Camera::moveTo(const QHostAddress& address)
{
    m_identity.address = address;
    m_rtsp.close();
    if (!m_rtsp.listen(address, quint16(m_identity.rtspPort)))
        return QStringLiteral("cannot listen at %1, port %2: %3")
            .arg(address.toString())
            .arg(m_identity.rtspPort)
            .arg(m_rtsp.errorString());
    return m_http.listen(address, m_identity.httpPort);
}

} // namespace kosim
