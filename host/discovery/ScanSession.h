#ifndef KO_SCANSESSION_H
#define KO_SCANSESSION_H

#include "discovery/Scanner.h"

#include <functional>

namespace ko {

/// What a session has found since its last report, and what it is doing.
struct ScanReport
{
    QVector<DiscoveredDevice> devices;
    ScannerState state;
    int error = 0;       ///< the session's own number; told once for each failure
    bool isLast = false; ///< the work is over
};

/// One run of a scanner, from start() to stop() or to its own end, in a thread of its own.
class ScanSession
{
public:
    /// Called in the scanner's thread.
    typedef std::function<void(const ScanReport&)> Take;

    ScanSession() = default;
    virtual ~ScanSession() = default;

    /// To be called once, in the scanner's thread, before the scanner goes: nothing is taken any more when it
    /// has returned.
    virtual void stop() = 0;

private:
    Q_DISABLE_COPY(ScanSession)
};

} // namespace ko

#endif
