#ifndef KO_DIRECTEDPROBES_H
#define KO_DIRECTEDPROBES_H

#include "discovery/DiscoveredDevice.h"
#include "discovery/UdpSocket.h"

#include <QByteArray>

#include <map>

namespace ko {

/// Asks single hosts by WS-Discovery what they are. Only who was asked is listened to. Never waits.
class DirectedProbes
{
public:
    enum {
        MostTries = 2,       ///< one repeat, as SOAP-over-UDP has it
        RepeatDelay = 150,   ///< ms
        AnswerTimeout = 1000 ///< ms after the last question
    };

    explicit DirectedProbes(quint16 port);

    /// A host that is there, with its MAC address.
    void ask(quint32 address, const QByteArray& mac);

    /// Sends what is due and takes what has arrived.
    QVector<DiscoveredDevice> step();

    /// Whether no answer is waited for any more.
    bool isDone() const;

private:
    struct Host
    {
        QByteArray mac;
        int tries = 0;
        qint64 due = 0;
    };

    void send();
    void append(const QByteArray& message, const QHostAddress& sender,
                QVector<DiscoveredDevice>& devices) const;

    const quint16 m_port;
    const QVector<QByteArray> m_probes;
    UdpSocket m_socket;
    std::map<quint32, Host> m_hosts;
    qint64 m_lastSent = 0;
};

} // namespace ko

#endif
