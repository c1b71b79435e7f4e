#ifndef KO_LOGQT_H
#define KO_LOGQT_H

#include "PlatformExport.h"

#include <QMutex>
#include <QString>

namespace ko {

/// Where the program log's lines go; installed by the host.
class KO_PLATFORM_EXPORT LogSink
{
public:
    virtual ~LogSink();

    /// Called under the log's mutex, from any thread; must not log.
    virtual void write(int level, const QString& line) = 0;
};

/// The program log.
///
/// Usage: take mutex() with a MutexLocker, compare level(), write(). line() does all three.
class KO_PLATFORM_EXPORT LogQt
{
public:
    /// Severities. A line is written when its level is not below the log's.
    enum Level { Debug = 0, Info = 1, Warning = 2, Error = 3 };

    static LogQt& instance();

    QMutex* mutex() { return &m_mutex; }

    int level() const { return m_level; }
    void setLevel(int level) { m_level = level; }

    /// Writes without comparing the level; the caller holds the mutex. Without a sink the line goes to
    /// the standard error stream.
    void write(int level, const QString& line);

    /// The log does not own the sink; null takes it back. Waits for a line being written.
    void setSink(LogSink* sink);

    /// Writes one line under the mutex if \a level is not below the log's.
    static void line(int level, const QString& text);

private:
    LogQt() = default;
    Q_DISABLE_COPY(LogQt)

    QMutex m_mutex;
    int m_level = Info;
    LogSink* m_sink = nullptr;
};

} // namespace ko

#endif
