#ifndef KO_ONCEPERFRAME_H
#define KO_ONCEPERFRAME_H

#include "PlatformExport.h"

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QObject>

namespace ko {

/// Decides for work that follows each of many changes, sorting a list for example, whether it is done at once
/// or together with that of the changes that come next.
///
/// What takes little time is done at once. The rest waits for due(), which comes before the event loop waits
/// again and before anything is painted, but not more often than a screen shows another picture; if it takes
/// long, after a rest of three times as long, so that what goes on for seconds is not mostly shown.
class KO_PLATFORM_EXPORT OncePerFrame : public QObject
{
    Q_OBJECT

public:
    explicit OncePerFrame(QObject* parent = nullptr);

    /// Whether work of about \a microseconds is to be done now. If not, due() will be emitted; until
    /// then nothing else is to be done at once either, so that the order stays.
    bool isNow(int microseconds);

    /// due() will be emitted, whatever the work takes.
    void later();

signals:
    void due();

protected:
    void timerEvent(QTimerEvent* event) override;

private slots:
    void endTurn();

private:
    void watchTurn();
    void run();
    void startRest(qint64 milliseconds);

    QBasicTimer m_wait;
    QElapsedTimer m_sinceWork; ///< that took long, or was late
    qint64 m_rest = 0;         ///< milliseconds after which there may be more
    qint64 m_spent = 0;        ///< microseconds of this turn
    bool m_isTurnWatched = false;
    bool m_isDue = false;
};

} // namespace ko

#endif
