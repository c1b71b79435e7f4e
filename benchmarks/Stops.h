#ifndef KO_BENCHMARKS_STOPS_H
#define KO_BENCHMARKS_STOPS_H

#include "Stopwatch.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTimer>
#include <QVector>

#include <algorithm>

namespace bench {

/// How long the event loop stands still between two of its turns, as long as there is one of these.
class Stops
{
public:
    Stops()
    {
        QObject::connect(&m_everyTurn, &QTimer::timeout, [this] { note(); });
        m_sinceTurn.start();
        m_everyTurn.start(0);
    }

    /// In milliseconds, the shortest first.
    QVector<double> sorted()
    {
        note();
        QVector<double> stops = m_stops;
        std::sort(stops.begin(), stops.end());
        return stops;
    }
    double longest() { return sorted().constLast(); }

private:
    void note()
    {
        const double stop = double(m_sinceTurn.nsecsElapsed()) / 1e6;
        if (stop > 0.1 || m_stops.isEmpty())
            m_stops.append(stop);
        m_sinceTurn.start();
    }

    QVector<double> m_stops;
    QElapsedTimer m_sinceTurn;
    QTimer m_everyTurn;
};

enum class What { Time, LongestStop };

const double longestStop = 50; // ms

/// Lets the event loop turn until it is so.
template <class Condition>
void turnUntil(Condition isSo)
{
    while (!isSo())
        QCoreApplication::processEvents();
    settle();
}

/// Runs \a work, which ends in the event loop, and returns its time or the longest stop in it.
template <class Work>
double measured(What what, Work work)
{
    if (what == What::Time)
        return milliseconds(work);
    settle();
    Stops stops;
    work();
    return stops.longest();
}

} // namespace bench

#endif
