#include "ko/OncePerFrame.h"

#include <QMetaObject>
#include <QTimerEvent>

namespace ko {

namespace {

const qint64 frame = 16;   // ms
const int atOnceIn = 2500; // microseconds of one turn of the event loop

} // namespace

OncePerFrame::OncePerFrame(QObject* parent)
    : QObject(parent)
{
    m_sinceWork.invalidate(); // which that of Qt 4.8 is not from the start
}

bool OncePerFrame::isNow(int microseconds)
{
    watchTurn();
    if (m_isDue)
        return false;
    const bool isRested = !m_sinceWork.isValid() || m_sinceWork.elapsed() >= m_rest;
    const bool isFirst = m_spent == 0 && isRested;
    m_spent += microseconds;
    m_isDue = !isFirst && m_spent > atOnceIn;
    return !m_isDue;
}

void OncePerFrame::later()
{
    watchTurn();
    m_isDue = true;
}

void OncePerFrame::watchTurn()
{
    if (m_isTurnWatched)
        return;
    m_isTurnWatched = true;
    QMetaObject::invokeMethod(this, "endTurn", Qt::QueuedConnection);
}

void OncePerFrame::endTurn()
{
    m_isTurnWatched = false;
    if (!m_isDue) {
        if (m_spent > atOnceIn)
            startRest(frame);
        m_spent = 0;
        return;
    }
    const qint64 rest = m_sinceWork.isValid() ? m_rest - m_sinceWork.elapsed() : 0;
    if (rest <= 0)
        run();
    else if (!m_wait.isActive())
        m_wait.start(int(rest), this);
}

void OncePerFrame::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == m_wait.timerId())
        run();
    else
        QObject::timerEvent(event);
}

void OncePerFrame::run()
{
    m_wait.stop();
    m_isDue = false;
    m_spent = 0;
    QElapsedTimer clock;
    clock.start();
    emit due();
    startRest(qMax(frame, 3 * clock.elapsed()));
}

void OncePerFrame::startRest(qint64 milliseconds)
{
    m_rest = milliseconds;
    m_sinceWork.start();
}

} // namespace ko
