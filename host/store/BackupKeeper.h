#ifndef KO_BACKUPKEEPER_H
#define KO_BACKUPKEEPER_H

#include "model/StoreError.h"

#include <QBasicTimer>
#include <QObject>

#include <memory>

class QThread;

namespace ko {

/// Keeps backups of a database while a program runs: one a day, made in a thread of its own, the first
/// soon after the start if the newest is older than that. Old ones are deleted when a new one is there.
///
/// Several programs may keep the same database; whoever comes first makes the day's backup.
class KO_HOST_EXPORT BackupKeeper : public QObject
{
    Q_OBJECT

public:
    static constexpr int DefaultDays = 60;

    /// \a days: how long backups are kept.
    explicit BackupKeeper(const QString& database, int days = DefaultDays, QObject* parent = nullptr);

    /// Waits for a backup that is being made.
    ~BackupKeeper() override;

    /// Makes a backup now, unless one is being made.
    void makeNow();

signals:
    void made(const QString& file);
    /// Nothing was deleted. It is tried again within the hour.
    void failed(const ko::StoreError& error);

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void finished(const QString& file, const StoreError& error);

    const QString m_database;
    const int m_days;
    QBasicTimer m_timer;
    std::unique_ptr<QThread> m_thread;
};

} // namespace ko

#endif
