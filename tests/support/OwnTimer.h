#ifndef TESTS_SUPPORT_OWNTIMER_H
#define TESTS_SUPPORT_OWNTIMER_H

#include <QElapsedTimer>
#include <QFile>

#include <algorithm>

namespace testsupport {

/// The time that passes for the calling thread, without that in which it could have run and others had the
/// processors: what a machine of its own would have shown. Where the system does not tell, all time counts.
class OwnTimer
{
public:
    OwnTimer() { start(); }

    void start()
    {
        m_clock.start();
        m_waited = waited();
    }

    /// Milliseconds.
    double elapsed() const
    {
        return std::max(0.0, double(m_clock.nsecsElapsed() - (waited() - m_waited)) / 1e6);
    }

    double restart()
    {
        const double time = elapsed();
        start();
        return time;
    }

private:
    /// Nanoseconds in the queue of those that can run.
    static qint64 waited()
    {
        QFile file(QStringLiteral("/proc/thread-self/schedstat"));
        return file.open(QIODevice::ReadOnly) ? file.readAll().split(' ').value(1).toLongLong() : 0;
    }

    QElapsedTimer m_clock;
    qint64 m_waited = 0;
};

} // namespace testsupport

#endif
