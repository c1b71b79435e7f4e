#ifndef KO_ARPSWEEP_H
#define KO_ARPSWEEP_H

#include "discovery/ArpSweepPorts.h"
#include "discovery/ArpSweepRange.h"
#include "discovery/DiscoveredDevice.h"
#include "discovery/NeighbourTable.h"
#include "discovery/Scanner.h"

#include <map>
#include <utility>

namespace ko {

/// Looks once at every address of a range: a datagram of one byte to the discard port makes the system
/// resolve it, and whatever then has a complete entry in the neighbour table is asked for the ports of a
/// camera.
///
/// An address is in flight until the table says that it answered, or that it did not even after the one
/// repeat. The system's own table holds about a thousand entries, and other programs need it too; hence the
/// bounds on what is in flight and on what is sent in one step.
class KO_HOST_EXPORT ArpSweep
{
public:
    enum {
        MostInFlight = 128,
        MostPerStep = 32,
        StepTime = 50,       ///< ms between two looks at the table
        AnswerTimeout = 4000 ///< ms for one datagram, when the table says nothing
    };

    explicit ArpSweep(const ArpSweepRange& range);
    ~ArpSweep();

    /// Empty, or why the system does not let it work, for the user.
    TranslatableText error() const { return m_error; }

    const ArpSweepRange& range() const { return m_range; }
    int done() const { return m_done; }
    bool isDone() const;

    /// The hosts that turned out to be there since the last call, cameras or not.
    QVector<Neighbour> takeThere() { return std::exchange(m_there, {}); }

    /// Sends, waits for up to StepTime or until \a wakeup can be read, and answers which cameras were found.
    QVector<DiscoveredDevice> step(int wakeup);

private:
    Q_DISABLE_COPY(ArpSweep)

    struct Flight
    {
        int sent = 0;
        qint64 sentAt = 0;
    };

    bool send(quint32 address);
    void sendNext();
    void wait(int wakeup) const;
    void readTable();
    bool isSilent(const Flight& flight, bool failed) const;
    QVector<DiscoveredDevice> askPorts();

    const ArpSweepRange m_range;
    TranslatableText m_error;
    ArpSweepPorts m_ports;
    int m_socket = -1;
    qint64 m_next; ///< address, or beyond the last
    int m_done = 0;
    qint64 m_lastLook = 0;
    std::map<quint32, Flight> m_flights;
    std::map<quint32, QByteArray> m_macs; ///< of those whose ports are asked
    QVector<Neighbour> m_there;
};

} // namespace ko

#endif
