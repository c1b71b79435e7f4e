#ifndef KOSIM_DISCOVERY_H
#define KOSIM_DISCOVERY_H

#include "Onvif.h"

#include <QTimer>
#include <QUdpSocket>
#include <QVector>

#include <deque>

namespace kosim {

/// Answers WS-Discovery for all cameras, and greets when they come up: a question to the group is answered by
/// each from its own address, one to an address by the camera that has it.
class Discovery : public QObject
{
    Q_OBJECT

public:
    /// \a interface by its index; hostile ones say more than is good.
    Discovery(int interface, quint16 port, bool hostile);

    /// Empty, or why it cannot.
    QString start();

    /// In place of those so far; each greets.
    void announce(const QVector<Identity>& cameras);

private slots:
    void read();
    void sendSome();

private:
    struct Message
    {
        QByteArray content;
        QHostAddress from;
        QHostAddress to;
        quint16 port;
    };

    void answer(const QHostAddress& asked, const QHostAddress& who, quint16 port, const QByteArray& question);
    void queue(const Identity& camera, const QByteArray& kind, const QByteArray& relatesTo,
               const QHostAddress& to, quint16 port);

    const int m_interface;
    const quint16 m_port;
    const bool m_isHostile;
    QUdpSocket m_socket;
    QVector<Identity> m_cameras;
    std::deque<Message> m_waiting;
    QTimer m_timer;
};

} // namespace kosim

#endif
