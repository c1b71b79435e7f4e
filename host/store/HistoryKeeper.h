#ifndef KO_HISTORYKEEPER_H
#define KO_HISTORYKEEPER_H

#include "model/HistoryLimit.h"
#include "model/StoreError.h"

#include <QBasicTimer>
#include <QObject>

#include <atomic>
#include <future>
#include <optional>

namespace ko {

/// Thins the history of a database while a program runs, as far as its settings ask for it: soon after the
/// start and every few hours, in a thread of its own. Several programs may keep the same database.
class KO_HOST_EXPORT HistoryKeeper : public QObject
{
    Q_OBJECT

public:
    explicit HistoryKeeper(const QString& database, QObject* parent = nullptr);

    /// Ends what is being done; what was done by then is whole.
    ~HistoryKeeper() override;

    /// Does it now, unless it is being done.
    void thinNow();

signals:
    /// Something was taken out.
    void thinned(const ko::ThinnedHistory& history);
    /// It is tried again later.
    void failed(const ko::StoreError& error);

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void finished(const std::optional<ThinnedHistory>& history, const StoreError& error);

    const QString m_database;
    QBasicTimer m_timer;
    std::atomic<bool> m_isEnding = false;
    bool m_isBusy = false;
    std::future<void> m_work;
};

} // namespace ko

#endif
