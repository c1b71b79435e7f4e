#ifndef KO_SCANCLOCK_H
#define KO_SCANCLOCK_H

#include <QtGlobal>

#include <chrono>

namespace ko {

/// Milliseconds on a clock that nobody sets.
inline qint64 scanClock()
{
    return std::chrono::duration_cast<std::chrono::milliseconds>(
               std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

} // namespace ko

#endif
