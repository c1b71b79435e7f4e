#include "store/HistoryKeeper.h"

#include "HandOver.h"
#include "ko/LogQt.h"
#include "store/NodeStore.h"

#include <QTimerEvent>

namespace ko {

namespace {

constexpr int FirstLook = 60 * 1000; // ms: the start has more urgent things to do, and a backup comes first
constexpr int Interval = 6 * 60 * 60 * 1000;

} // namespace

HistoryKeeper::HistoryKeeper(const QString& database, QObject* parent)
    : QObject(parent)
    , m_database(database)
{
    m_timer.start(FirstLook, this);
}

HistoryKeeper::~HistoryKeeper()
{
    m_isEnding = true;
    if (m_work.valid())
        m_work.wait();
}

void HistoryKeeper::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_timer.timerId()) {
        QObject::timerEvent(event);
        return;
    }
    m_timer.start(Interval, this);
    thinNow();
}

void HistoryKeeper::thinNow()
{
    if (m_isBusy)
        return;
    m_isBusy = true;
    m_work = std::async(std::launch::async, [this] {
        StoreError error;
        std::optional<ThinnedHistory> history = ThinnedHistory();
        const HistoryLimit limit = NodeStore::historyLimit(m_database);
        if (!limit.isNone())
            history = NodeStore::thinHistory(
                m_database, limit, [this] { return !m_isEnding; }, &error);
        handOver(this, [this, history, error] { finished(history, error); });
    });
}

void HistoryKeeper::finished(const std::optional<ThinnedHistory>& history, const StoreError& error)
{
    m_isBusy = false;
    if (!history) {
        LogQt::line(LogQt::Error, QString::fromLatin1("The history was not thinned: %1").arg(error.detail));
        emit failed(error);
        return;
    }
    if (history->isAltered)
        LogQt::line(LogQt::Warning, QLatin1String("The history is not thinned any further: it was altered"));
    if (history->lines > 0)
        emit thinned(*history);
}

} // namespace ko
