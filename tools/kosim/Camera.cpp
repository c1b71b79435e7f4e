#include "Camera.h"

#include "Answers.h"

#include <QRandomGenerator>
#include <QTcpSocket>
#include <QTimer>

#include <utility>

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

Camera::Camera(QString name, QByteArray macAddress, QByteArray model)
    : m_name(std::move(name))
    , m_macAddress(std::move(macAddress))
    , m_model(std::move(model))
{
    serve(m_rtsp, rtspAnswer);
    serve(m_http, httpAnswer);
}

void Camera::serve(QTcpServer& server, Answer answer)
{
    QObject::connect(&server, &QTcpServer::newConnection, &server, [&server, answer] {
        while (QTcpSocket* socket = server.nextPendingConnection()) {
            QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
            QTimer::singleShot(Patience, socket, &QTcpSocket::abort);
            if (server.findChildren<QTcpSocket*>().size() > MostConnections) {
                socket->abort();
                continue;
            }
            QObject::connect(socket, &QTcpSocket::readyRead, socket, [socket, answer] {
                QByteArray waiting = socket->peek(LongestRequest);
                for (int end = 0; (end = int(waiting.indexOf("\r\n\r\n"))) >= 0; waiting.remove(0, end + 4))
                    socket->write(answer(socket->read(end + 4), "kosim", newNonce()));
                if (waiting.size() >= LongestRequest)
                    socket->abort();
                else if (answer == httpAnswer && socket->bytesToWrite() > 0)
                    socket->disconnectFromHost();
            });
        }
    });
}

QString Camera::moveTo(const QHostAddress& address, int rtspPort, int httpPort)
{
    m_address = address;
    m_rtsp.close();
    m_http.close();
    for (const auto& place : {std::make_pair(&m_rtsp, rtspPort), std::make_pair(&m_http, httpPort)}) {
        if (!place.first->listen(address, quint16(place.second)))
            return QStringLiteral("cannot listen at %1, port %2: %3")
                .arg(address.toString())
                .arg(place.second)
                .arg(place.first->errorString());
    }
    return QString();
}

} // namespace kosim
