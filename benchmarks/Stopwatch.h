#ifndef KO_BENCHMARKS_STOPWATCH_H
#define KO_BENCHMARKS_STOPWATCH_H

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QWidget>

namespace bench {

template <class Work>
double milliseconds(Work work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return double(timer.nsecsElapsed()) / 1e6;
}

/// Everything that is due now, layouts and paint events included.
inline void settle()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/// Shows the window and waits for its first picture.
inline void paint(QWidget& window)
{
    window.show();
    settle();
}

} // namespace bench

#endif
