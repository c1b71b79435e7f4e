#ifndef KOSIM_CAMERA_H
#define KOSIM_CAMERA_H

#include <QByteArray>
#include <QHostAddress>
#include <QString>
#include <QTcpServer>
#include <QVector>

namespace kosim {

/// A virtual camera: what it calls itself, and its two servers.
class Camera
{
public:
    Camera(QString name, QByteArray macAddress, QByteArray model);

    QString name() const { return m_name; }
    QByteArray macAddress() const { return m_macAddress; }
    QByteArray model() const { return m_model; }
    QHostAddress address() const { return m_address; }

    /// Answers at this address, and no longer at another. Empty, or why it cannot.
    QString moveTo(const QHostAddress& address, int rtspPort, int httpPort);

private:
    typedef QByteArray (*Answer)(const QByteArray&, const QByteArray&, const QByteArray&);

    void serve(QTcpServer& server, Answer answer);

    QString m_name;
    QByteArray m_macAddress;
    QByteArray m_model;
    QHostAddress m_address;
    QTcpServer m_rtsp;
    QTcpServer m_http;
};

} // namespace kosim

#endif
