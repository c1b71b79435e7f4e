#include "discovery/ArpScanner.h"

#include "discovery/ArpSweep.h"
#include "ko/LogQt.h"

#include <QElapsedTimer>

#include <atomic>
#include <thread>
#include <utility>

#include <sys/eventfd.h>
#include <unistd.h>

namespace ko {

namespace {

const int PostInterval = 100; // ms

} // namespace

class ArpScanner::Worker
{
public:
    Worker(ArpScanner& scanner, int run, unsigned interfaces, int limit)
        : m_scanner(scanner)
        , m_run(run)
        , m_interfaces(interfaces)
        , m_left(limit)
        , m_wakeup(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
        , m_thread([this] { work(); })
    {
    }

    ~Worker()
    {
        m_stop = true;
        eventfd_write(m_wakeup, 1);
        m_thread.join();
        close(m_wakeup);
    }

private:
    bool isWanted() const { return !m_stop && m_left != 0; }
    void work();
    void sweep(const ArpSweepRange& range);
    void take(const QVector<DiscoveredDevice>& devices);
    void post();

    ArpScanner& m_scanner;
    const int m_run;
    const unsigned m_interfaces;
    int m_left; ///< devices to report; below 0 for no limit
    const int m_wakeup;
    std::atomic<bool> m_stop{false};
    QElapsedTimer m_sincePost;
    QVector<DiscoveredDevice> m_found;
    ScannerState m_state;
    std::thread m_thread; ///< last, so that it begins when all else is there
};

void ArpScanner::Worker::work()
{
    const QVector<ArpSweepRange> ranges = ArpSweepRange::attached(m_interfaces);
    m_state.phase = ranges.isEmpty() ? ScannerState::Unavailable : ScannerState::Running;
    if (ranges.isEmpty())
        m_state.reason = ArpScanner::tr("no IPv4 network is attached");
    for (const ArpSweepRange& range : ranges)
        m_state.total += range.size();
    for (const ArpSweepRange& range : ranges) {
        if (isWanted() && m_state.phase == ScannerState::Running)
            sweep(range);
    }
    if (m_state.phase == ScannerState::Running)
        m_state.phase = ScannerState::Done;
    post();
}

void ArpScanner::Worker::sweep(const ArpSweepRange& range)
{
    m_state.where = range.text();
    if (range.isPart())
        LogQt::line(LogQt::Info,
                    QString::fromLatin1("The ARP scan looks only at a part of a large network: %1")
                        .arg(range.text()));
    ArpSweep sweep(range);
    if (!sweep.error().isEmpty()) {
        m_state.phase = ScannerState::Unavailable;
        m_state.reason = sweep.error();
        return;
    }
    const int before = m_state.done;
    post();
    while (isWanted() && !sweep.isDone()) {
        take(sweep.step(m_wakeup));
        m_state.done = before + sweep.done();
        if (m_sincePost.hasExpired(PostInterval))
            post();
    }
}

void ArpScanner::Worker::take(const QVector<DiscoveredDevice>& devices)
{
    for (const DiscoveredDevice& device : devices) {
        if (m_left == 0)
            return;
        m_found.append(device);
        m_left -= m_left > 0 ? 1 : 0;
    }
}

void ArpScanner::Worker::post()
{
    m_sincePost.start();
    const auto deliver = [scanner = &m_scanner, run = m_run, state = m_state,
                          found = std::exchange(m_found, {})] { scanner->arrived(run, found, state); };
    QMetaObject::invokeMethod(&m_scanner, deliver, Qt::QueuedConnection);
}

ArpScanner::ArpScanner(QObject* parent)
    : Scanner(parent)
{
}

ArpScanner::~ArpScanner()
{
    ++m_run;
    m_worker.reset();
}

QString ArpScanner::name() const
{
    return QLatin1String("ARP");
}

void ArpScanner::start(unsigned interfaces, int limit)
{
    if (m_worker)
        return;
    ScannerState state;
    state.phase = ScannerState::Running;
    m_worker = std::make_unique<Worker>(*this, ++m_run, interfaces, limit);
    setState(state);
}

void ArpScanner::stop()
{
    if (!m_worker)
        return;
    ++m_run;
    m_worker.reset();
    ScannerState state = m_state;
    state.phase = ScannerState::Cancelled;
    setState(state);
}

ScannerState ArpScanner::state() const
{
    return m_state;
}

void ArpScanner::arrived(int run, const QVector<DiscoveredDevice>& devices, const ScannerState& state)
{
    if (run != m_run)
        return;
    if (!devices.isEmpty())
        emit found(devices);
    if (run != m_run) // its receiver has stopped it
        return;
    if (state.phase != ScannerState::Running)
        m_worker.reset();
    setState(state);
}

void ArpScanner::setState(const ScannerState& state)
{
    m_state = state;
    emit stateChanged();
}

} // namespace ko
