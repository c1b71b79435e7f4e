#ifndef KO_SCANTHREAD_H
#define KO_SCANTHREAD_H

#include "discovery/ScanSession.h"

#include <QElapsedTimer>

#include <atomic>
#include <memory>
#include <thread>

namespace ko {

/// A session whose work never waits for another program: stop() waits for its end.
class ScanThread : public ScanSession, public std::enable_shared_from_this<ScanThread>
{
public:
    /// \a receiver lives until stop(); \a limit as in Scanner::start().
    ScanThread(QObject& receiver, const Take& take, int limit);
    ~ScanThread() override;

    /// Once, when all of the object is there.
    void begin();
    void stop() override;

protected:
    /// In the thread, until it is done or isWanted() no more.
    virtual void work() = 0;

    bool isWanted() const { return !m_stop && m_left != 0; }
    bool isStopped() const { return m_stop; }

    /// Can be read when the session is to end.
    int wakeup() const { return m_wakeup; }

    /// Counts one device towards the limit; false when that is reached already.
    bool count();

    void found(const DiscoveredDevice& device) { m_report.devices.append(device); }
    ScannerState& state() { return m_report.state; }

    /// Hands over what was found, and the state.
    void post(int error = 0);

    /// The same, unless that was a moment ago.
    void postNowAndThen();

private:
    void run();

    QObject& m_receiver;
    const Take m_take;
    int m_left; ///< devices to report; below 0 for no limit
    const int m_wakeup;
    std::atomic<bool> m_stop{false};
    bool m_isTaken = true; ///< in the receiver's thread
    QElapsedTimer m_sincePost;
    ScanReport m_report;
    std::thread m_thread;
};

} // namespace ko

#endif
