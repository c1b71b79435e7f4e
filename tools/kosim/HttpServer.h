#ifndef KOSIM_HTTPSERVER_H
#define KOSIM_HTTPSERVER_H

#include "Onvif.h"

#include <QSslCertificate>
#include <QSslKey>
#include <QTcpServer>

#include <functional>

class QTcpSocket;

namespace kosim {

/// What a device shows of itself with TLS; none when the certificate is null.
struct Tls
{
    QSslCertificate certificate;
    QSslKey key;
};

/// The HTTP port of one camera, or of all that have addresses of this machine.
class HttpServer : public QObject
{
    Q_OBJECT

public:
    /// \a at is the address that was connected to.
    typedef std::function<HttpReply(const QHostAddress& at, const HttpRequest& request)> Answer;

    HttpServer(const Answer& answer, int mostConnections, const Tls& tls);

    /// No longer elsewhere. Empty, or why it cannot.
    QString listen(const QHostAddress& address, int port);

private slots:
    void accept();

private:
    /// Its connections speak TLS when they are to.
    class Listener : public QTcpServer
    {
    public:
        explicit Listener(const Tls& tls)
            : m_tls(tls)
        {
        }

    protected:
        void incomingConnection(qintptr descriptor) override;

    private:
        const Tls m_tls;
    };

    void read(QTcpSocket* socket) const;
    void reply(QTcpSocket* socket, const HttpRequest& request) const;

    const Answer m_answer;
    const int m_mostConnections;
    Listener m_server;
};

} // namespace kosim

#endif
