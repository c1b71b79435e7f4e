#include "store/BackupKeeper.h"

#include "HandOver.h"
#include "ko/LogQt.h"
#include "store/StoreBackup.h"

#include <QThread>
#include <QTimerEvent>

namespace ko {

namespace {

const int firstLook = 30 * 1000; // milliseconds: the start has more urgent things to do
const int interval = 60 * 60 * 1000;
const qint64 age = qint64(24) * 60 * 60; // seconds

bool isDue(const QString& database)
{
    const QVector<StoreBackup::Backup> backups = StoreBackup::backups(database);
    return backups.isEmpty() || backups.constFirst().time.secsTo(QDateTime::currentDateTimeUtc()) >= age;
}

} // namespace

BackupKeeper::BackupKeeper(const QString& database, int days, QObject* parent)
    : QObject(parent)
    , m_database(database)
    , m_days(days)
{
    m_timer.start(firstLook, this);
}

BackupKeeper::~BackupKeeper()
{
    if (m_thread)
        m_thread->wait();
}

void BackupKeeper::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_timer.timerId()) {
        QObject::timerEvent(event);
        return;
    }
    m_timer.start(interval, this);
    if (isDue(m_database))
        makeNow();
}

void BackupKeeper::makeNow()
{
    if (m_thread)
        return;
    m_thread.reset(QThread::create([this, database = m_database] {
        StoreError error;
        const QString file = StoreBackup::add(database, &error);
        handOver(this, [this, file, error] { finished(file, error); });
    }));
    m_thread->start(QThread::LowPriority);
}

void BackupKeeper::finished(const QString& file, const StoreError& error)
{
    m_thread->wait();
    m_thread.reset();
    if (error) {
        LogQt::line(LogQt::Error, QString::fromLatin1("The backup failed: %1").arg(error.detail));
        emit failed(error);
        return;
    }
    StoreBackup::removeOld(m_database, m_days);
    emit made(file);
}

} // namespace ko
