#ifndef KO_MUTEXLOCKER_H
#define KO_MUTEXLOCKER_H

#include <QMutex>

namespace ko {

/// Holds a mutex from construction to destruction. (QMutexLocker became a template in Qt 6.)
class MutexLocker
{
public:
    explicit MutexLocker(QMutex* mutex)
        : m_mutex(mutex)
    {
        m_mutex->lock();
    }
    ~MutexLocker() { m_mutex->unlock(); }

private:
    Q_DISABLE_COPY(MutexLocker)
    QMutex* const m_mutex;
};

} // namespace ko

#endif
