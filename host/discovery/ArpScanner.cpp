#include "discovery/ArpScanner.h"

#include "discovery/ArpSweep.h"
#include "discovery/DirectedProbes.h"
#include "discovery/ScanThread.h"
#include "ko/LogQt.h"

#include <QSet>

namespace ko {

namespace {

class ArpSession : public ScanThread
{
public:
    ArpSession(ArpScanner& scanner, const Take& take, unsigned interfaces, int limit, quint16 discoveryPort)
        : ScanThread(scanner, take, limit)
        , m_interfaces(interfaces)
        , m_probes(discoveryPort)
    {
    }

private:
    void work() override;
    void sweep(const ArpSweepRange& range);
    void take(const QVector<DiscoveredDevice>& devices);

    const unsigned m_interfaces;
    DirectedProbes m_probes;
    QSet<QString> m_reported; ///< addresses; two ways to find a device count once
};

void ArpSession::work()
{
    const QVector<ArpSweepRange> ranges = ArpSweepRange::attached(m_interfaces);
    state().phase = ranges.isEmpty() ? ScannerState::Unavailable : ScannerState::Running;
    if (ranges.isEmpty())
        state().reason =
            TranslatableText("ArpScanner", QT_TRANSLATE_NOOP("ArpScanner", "no IPv4 network is attached"));
    for (const ArpSweepRange& range : ranges)
        state().total += range.size();
    for (const ArpSweepRange& range : ranges) {
        if (isWanted() && state().phase == ScannerState::Running)
            sweep(range);
    }
    if (state().phase == ScannerState::Running)
        state().phase = ScannerState::Done;
}

void ArpSession::sweep(const ArpSweepRange& range)
{
    state().where = range.text();
    if (range.isPart())
        LogQt::line(LogQt::Info,
                    QString::fromLatin1("The ARP scan looks only at a part of a large network: %1")
                        .arg(range.text()));
    ArpSweep sweep(range);
    if (!sweep.error().isEmpty()) {
        state().phase = ScannerState::Unavailable;
        state().reason = sweep.error();
        return;
    }
    const int before = state().done;
    post();
    while (isWanted() && !(sweep.isDone() && m_probes.isDone())) {
        take(sweep.step(wakeup()));
        const QVector<Neighbour> there = sweep.takeThere();
        for (const Neighbour& neighbour : there)
            m_probes.ask(neighbour.address, neighbour.macAddress);
        take(m_probes.step());
        state().done = before + sweep.done();
        postNowAndThen();
    }
}

void ArpSession::take(const QVector<DiscoveredDevice>& devices)
{
    for (const DiscoveredDevice& device : devices) {
        if (!m_reported.contains(device.address) && !count())
            return;
        m_reported.insert(device.address);
        found(device);
    }
}

} // namespace

ArpScanner::ArpScanner(QObject* parent, quint16 discoveryPort)
    : SessionScanner(parent)
    , m_discoveryPort(discoveryPort)
{
}

QString ArpScanner::name() const
{
    return QLatin1String("ARP");
}

std::shared_ptr<ScanSession> ArpScanner::begin(const ScanSession::Take& take, unsigned interfaces, int limit)
{
    const auto session = std::make_shared<ArpSession>(*this, take, interfaces, limit, m_discoveryPort);
    session->begin();
    return session;
}

} // namespace ko
