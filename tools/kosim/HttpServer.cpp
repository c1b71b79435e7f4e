#include "HttpServer.h"

#include <QSslSocket>
#include <QTimer>

namespace kosim {

namespace {

const int LongestRequest = 65536;
const int Patience = 30000; // ms
const int Chunk = 65536;    // of what never ends

/// False when more must come first; a request that is none has no method.
bool takeRequest(QTcpSocket* socket, HttpRequest& request)
{
    const QByteArray waiting = socket->peek(LongestRequest);
    const int end = int(waiting.indexOf("\r\n\r\n"));
    if (end < 0)
        return waiting.size() >= LongestRequest;
    const QList<QByteArray> lines = waiting.left(end).split('\n');
    const QList<QByteArray> words = lines.constFirst().trimmed().split(' ');
    int length = 0;
    for (const QByteArray& line : lines) {
        const int colon = int(line.indexOf(':'));
        const QByteArray name = line.left(colon).trimmed().toLower();
        if (name == "content-length")
            length = line.mid(colon + 1).trimmed().toInt();
        else if (name == "authorization")
            request.authorization = line.mid(colon + 1).trimmed();
    }
    const int whole = end + 4 + length;
    if (length >= 0 && whole <= LongestRequest && waiting.size() < whole)
        return false;
    if (words.size() == 3 && words.at(2).startsWith("HTTP/") && length >= 0 && whole <= LongestRequest) {
        request.method = words.at(0);
        request.path = words.at(1);
        request.body = socket->read(whole).mid(end + 4);
    }
    return true;
}

void writeEndlessly(QTcpSocket* socket)
{
    const auto more = [socket] {
        if (socket->bytesToWrite() < Chunk)
            socket->write(QByteArray(Chunk, ' '));
    };
    QObject::connect(socket, &QTcpSocket::bytesWritten, socket, more);
    more();
}

void write(QTcpSocket* socket, const HttpReply& reply)
{
    QByteArray head = "HTTP/1.1 " + QByteArray::number(reply.status) +
                      " Kosim\r\nContent-Type: " + reply.type + "\r\n" + reply.headers;
    if (!reply.isEndless)
        head += "Content-Length: " + QByteArray::number(reply.body.size()) + "\r\n";
    socket->write(head + "\r\n" + reply.body);
    if (reply.isEndless)
        writeEndlessly(socket);
}

} // namespace

HttpServer::HttpServer(const Answer& answer, int mostConnections, const Tls& tls)
    : m_answer(answer)
    , m_mostConnections(mostConnections)
    , m_server(tls)
{
    connect(&m_server, &QTcpServer::newConnection, this, &HttpServer::accept);
}

void HttpServer::Listener::incomingConnection(qintptr descriptor)
{
    if (m_tls.certificate.isNull()) {
        QTcpServer::incomingConnection(descriptor);
        return;
    }
    auto* socket = new QSslSocket(this);
    socket->setSocketDescriptor(descriptor);
    socket->setLocalCertificate(m_tls.certificate);
    socket->setPrivateKey(m_tls.key);
    socket->startServerEncryption();
    addPendingConnection(socket);
}

QString HttpServer::listen(const QHostAddress& address, int port)
{
    m_server.close();
    m_server.setMaxPendingConnections(1000);
    if (m_server.listen(address, quint16(port)))
        return QString();
    return QStringLiteral("cannot listen at %1, port %2: %3")
        .arg(address.toString())
        .arg(port)
        .arg(m_server.errorString());
}

void HttpServer::accept()
{
    while (QTcpSocket* socket = m_server.nextPendingConnection()) {
        connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        if (m_server.children().size() > m_mostConnections) {
            socket->abort();
            continue;
        }
        QTimer::singleShot(Patience, socket, &QTcpSocket::abort);
        connect(socket, &QTcpSocket::readyRead, socket, [this, socket] { read(socket); });
    }
}

void HttpServer::read(QTcpSocket* socket) const
{
    HttpRequest request;
    while (socket->bytesAvailable() > 0 && takeRequest(socket, request)) {
        if (request.method.isEmpty()) {
            socket->write("HTTP/1.1 400 Bad Request\r\nContent-Length: 0\r\nConnection: close\r\n\r\n");
            socket->disconnectFromHost();
            return;
        }
        reply(socket, request);
        request = HttpRequest();
    }
}

void HttpServer::reply(QTcpSocket* socket, const HttpRequest& request) const
{
    const HttpReply reply = m_answer(socket->localAddress(), request);
    if (reply.delay < 0)
        return;
    if (reply.delay == 0)
        write(socket, reply);
    else
        QTimer::singleShot(reply.delay, socket, [socket, reply] { write(socket, reply); });
}

} // namespace kosim
