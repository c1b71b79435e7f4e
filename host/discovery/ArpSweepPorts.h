#ifndef KO_ARPSWEEPPORTS_H
#define KO_ARPSWEEPPORTS_H

#include "HostExport.h"

#include <QVector>

#include <deque>
#include <vector>

struct pollfd;

namespace ko {

/// Tries at which of the ports that cameras use some hosts answer, a few hosts at a time.
///
/// The port of a host is the first in ports() that is open. Those of web pages come first, because a node
/// is configured through them; a host that has none of the ports is not a camera. A port that neither accepts
/// nor refuses within Patience counts as closed.
class KO_HOST_EXPORT ArpSweepPorts
{
public:
    enum {
        MostHosts = 8,   ///< at once, each with a socket for each port
        Patience = 1000, ///< ms
        PortCount = 7
    };

    struct Answer
    {
        quint32 address = 0; ///< in host byte order
        int port = 0;        ///< 0 when there is none
    };

    ArpSweepPorts() = default;
    ~ArpSweepPorts();

    static const int* ports();

    void add(quint32 address) { m_waiting.push_back(address); }
    bool isIdle() const { return m_waiting.empty() && m_hosts.empty(); }

    /// What a caller must wait for before the next step().
    void appendTo(std::vector<pollfd>& descriptors) const;

    /// Begins with hosts that wait, and answers which are decided. Never waits.
    QVector<Answer> step();

private:
    Q_DISABLE_COPY(ArpSweepPorts)

    struct Host
    {
        quint32 address = 0;
        qint64 deadline = 0;
        int sockets[PortCount]; ///< below 0 when decided
        bool open[PortCount];
    };

    static Host begin(quint32 address);
    static bool isDecided(Host& host);

    std::deque<quint32> m_waiting;
    std::vector<Host> m_hosts;
};

} // namespace ko

#endif
