#ifndef KOSIM_CAMERA_H
#define KOSIM_CAMERA_H

#include "HttpServer.h"
#include "Onvif.h"

#include <QTcpServer>

namespace kosim {

/// A virtual camera: what it calls itself, and its two servers.
class Camera
{
public:
    Camera(const Identity& identity, Behaviour behaviour, const Account& account, const Tls& tls);

    const Identity& identity() const { return m_identity; }

    /// Answers at this address, and no longer at another. Empty, or why it cannot.
    QString moveTo(const QHostAddress& address);

    /// Has this address, at which another answers HTTP for it.
    void setAddress(const QHostAddress& address) { m_identity.address = address; }

    HttpReply answer(const HttpRequest& request);

private:
    void serveRtsp();

    Identity m_identity;
    Onvif m_onvif;
    const Account m_account;
    QTcpServer m_rtsp;
    HttpServer m_http;
};

} // namespace kosim

#endif
