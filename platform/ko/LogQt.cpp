#include "ko/LogQt.h"

#include "ko/MutexLocker.h"
#include "ko/Terminal.h"

namespace ko {

LogSink::~LogSink() = default;

LogQt& LogQt::instance()
{
    static LogQt log;
    return log;
}

void LogQt::write(int level, const QString& line)
{
    if (m_sink)
        m_sink->write(level, line);
    else
        Terminal::say(stderr, line);
}

void LogQt::setSink(LogSink* sink)
{
    MutexLocker locker(&m_mutex);
    m_sink = sink;
}

void LogQt::line(int level, const QString& text)
{
    LogQt& log = instance();
    MutexLocker locker(log.mutex());
    if (level >= log.level())
        log.write(level, text);
}

} // namespace ko
