#include "discovery/ScanThread.h"

#include "HandOver.h"

#include <utility>

#include <sys/eventfd.h>
#include <unistd.h>

namespace ko {

namespace {

const int PostInterval = 100; // ms

} // namespace

ScanThread::ScanThread(QObject& receiver, const Take& take, int limit)
    : m_receiver(receiver)
    , m_take(take)
    , m_left(limit)
    , m_wakeup(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
{
}

ScanThread::~ScanThread()
{
    close(m_wakeup);
}

void ScanThread::begin()
{
    m_thread = std::thread([this] { run(); });
}

void ScanThread::stop()
{
    m_isTaken = false;
    m_stop = true;
    eventfd_write(m_wakeup, 1);
    m_thread.join();
}

bool ScanThread::count()
{
    if (m_left == 0)
        return false;
    m_left -= m_left > 0 ? 1 : 0;
    return true;
}

void ScanThread::post(int error)
{
    m_sincePost.start();
    ScanReport report = m_report;
    m_report.devices = {}; // cleared, it could go on sharing what is read elsewhere now
    report.error = error;
    handOver(&m_receiver, [self = weak_from_this(), report] {
        const std::shared_ptr<ScanThread> session = self.lock();
        if (session && session->m_isTaken)
            session->m_take(report);
    });
}

void ScanThread::postNowAndThen()
{
    if (!m_sincePost.isValid() || m_sincePost.hasExpired(PostInterval))
        post();
}

void ScanThread::run()
{
    work();
    m_report.isLast = true;
    post();
}

} // namespace ko
