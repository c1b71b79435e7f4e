#ifndef KOSIM_HTTPSERVER_H
#define KOSIM_HTTPSERVER_H

#include "Onvif.h"

#include <QTcpServer>

#include <functional>

class QTcpSocket;

namespace kosim {

/// The HTTP port of one camera, or of all that have addresses of this machine.
class HttpServer : public QObject
{
    Q_OBJECT

public:
    /// \a at is the address that was connected to.
    typedef std::function<HttpReply(const QHostAddress& at, const HttpRequest& request)> Answer;

    HttpServer(const Answer& answer, int mostConnections);

    /// No longer elsewhere. Empty, or why it cannot.
    QString listen(const QHostAddress& address, int port);

private slots:
    void accept();

private:
    void read(QTcpSocket* socket) const;
    void reply(QTcpSocket* socket, const HttpRequest& request) const;

    const Answer m_answer;
    const int m_mostConnections;
    QTcpServer m_server;
};

} // namespace kosim

#endif
