#ifndef KO_BENCHMARKS_STOPWATCH_H
#define KO_BENCHMARKS_STOPWATCH_H

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QEventLoop>
#include <QTimer>
#include <QWidget>

#include <malloc.h>

namespace bench {

template <class Work>
double milliseconds(Work work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return double(timer.nsecsElapsed()) / 1e6;
}

/// By the program, in place of milliseconds.
inline double bytesInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return double(info.uordblks + info.hblkhd);
}

/// Everything that is due now, layouts and paint events included.
inline void settle()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/// What a user takes to see and to decide; the program does what it does meanwhile.
inline void passTime(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

/// Shows the window and waits for its first picture.
inline void paint(QWidget& window)
{
    window.show();
    settle();
}

} // namespace bench

#endif
