#ifndef KO_WSDISCOVERYSESSION_H
#define KO_WSDISCOVERYSESSION_H

#include "discovery/ScanThread.h"
#include "discovery/UdpSocket.h"

#include <QHash>
#include <QSet>

#include <deque>
#include <memory>
#include <vector>

class QNetworkInterface;

namespace ko {

/// One run of WsDiscoveryScanner: a question in each round, and listening until the next.
class WsDiscoverySession : public ScanThread
{
public:
    WsDiscoverySession(QObject& receiver, const Take& take, unsigned interfaces, int limit, quint16 port)
        : ScanThread(receiver, take, limit)
        , m_interfaces(interfaces)
        , m_port(port)
    {
    }

private:
    struct Outlet
    {
        std::unique_ptr<UdpSocket> socket;
        QString interface;
    };

    struct Held
    {
        DiscoveredDevice device;
        QHostAddress sender;
        qint64 since;
    };

    void work() override;
    void open();
    void add(const QNetworkInterface& interface);
    bool ask();
    void unavailable();
    void listen();
    void wait() const;
    void receive(UdpSocket& socket);
    void lookAround();
    void hold(const DiscoveredDevice& device, const QHostAddress& sender);
    void settleHeld();
    void take(DiscoveredDevice device, const QHostAddress& sender);

    const unsigned m_interfaces;
    const quint16 m_port;
    std::vector<Outlet> m_outlets;
    std::unique_ptr<UdpSocket> m_greetings;
    QVector<QByteArray> m_probes;
    QSet<QString> m_reported; ///< in this round
    QSet<QString> m_devices;
    std::deque<Held> m_held;
    QSet<quint32> m_asked;             ///< each alone, in this round
    QHash<quint32, QByteArray> m_macs; ///< of the neighbours
    qint64 m_lookedAt = 0;
    int m_error = 0;
    bool m_saidMissing = false;
};

} // namespace ko

#endif
