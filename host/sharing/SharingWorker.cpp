#include "sharing/SharingWorker.h"

#include "HandOver.h"

#include <QElapsedTimer>

#include <algorithm>
#include <random>

namespace ko {

namespace {

const int lookInterval = 200; // ms; how soon changes of another program on the file are seen

} // namespace

SharingWorker::SharingWorker(const QString& file, const QString& address, const SharedLog::Describe& describe)
    : m_file(file)
    , m_address(address)
    , m_describe(describe)
{
    qRegisterMetaType<ko::SharingState>("ko::SharingState");
    m_thread = std::thread([this] { run(); });
}

SharingWorker::~SharingWorker()
{
    m_stop = true;
    m_connection.interrupt();
    m_thread.join();
}

void SharingWorker::wake()
{
    m_connection.wake();
}

void SharingWorker::run()
{
    StoreError error;
    const std::unique_ptr<SharedLog> log = SharedLog::open(m_file, m_describe, &error);
    if (!log)
        return show({SharingState::Refused, SharingState::FileFailed, error.detail});
    SharingSession session(*log, std::random_device()());
    while (!m_stop && session.request().step != SharingSession::Step::End) {
        perform(*log, session);
        show(session.state());
    }
}

void SharingWorker::show(const SharingState& state)
{
    if (state == m_shown)
        return;
    m_shown = state;
    handOver(this, [this, state] { emit stateChanged(state); });
}

void SharingWorker::perform(SharedLog& log, SharingSession& session)
{
    const SharingSession::Request request = session.request();
    switch (request.step) {
    case SharingSession::Step::Connect:
        return connectToSite(session, request.serial);
    case SharingSession::Step::Agree:
        return agree(session, request);
    case SharingSession::Step::Submit:
        return submit(session, request);
    case SharingSession::Step::Fetch:
        return fetch(session, request);
    case SharingSession::Step::Listen:
        return listen(log, session);
    case SharingSession::Step::Pause:
        return pause(log, session);
    case SharingSession::Step::End:
        break;
    }
}

void SharingWorker::connectToSite(SharingSession& session, quint64 serial)
{
    SiteGreeting greeting;
    SharingFailure failure = m_connection.open(m_address);
    if (!failure)
        failure = m_connection.greet(&greeting);
    if (failure)
        session.failed(serial, failure);
    else
        session.greeted(serial, greeting);
}

void SharingWorker::agree(SharingSession& session, const SharingSession::Request& request)
{
    qint64 number = 0;
    if (const SharingFailure failure = m_connection.agree(request.known, &number))
        session.failed(request.serial, failure);
    else
        session.agreed(request.serial, number);
}

void SharingWorker::submit(SharingSession& session, const SharingSession::Request& request)
{
    qint64 number = 0;
    if (const SharingFailure failure = m_connection.submit(request.parcels, &number))
        session.failed(request.serial, failure);
    else
        session.submitted(request.serial, number);
}

void SharingWorker::fetch(SharingSession& session, const SharingSession::Request& request)
{
    QVector<SharedParcel> parcels;
    if (const SharingFailure failure =
            m_connection.fetch(request.position, SharingSession::MostParcels, &parcels))
        return session.failed(request.serial, failure);
    session.fetched(request.serial, parcels);
    if (!parcels.isEmpty())
        handOver(this, [this] { emit received(); });
}

void SharingWorker::listen(SharedLog& log, SharingSession& session)
{
    const SharingSession::Request request = session.request();
    show(session.state());
    QElapsedTimer clock;
    clock.start();
    qint64 version = 0; // what was stored since the session looked last is found at once
    while (!m_stop && session.request().serial == request.serial) {
        const qint64 now = log.dataVersion();
        if (now != version)
            session.storedHere();
        version = now;
        if (session.request().serial != request.serial)
            break;
        if (clock.hasExpired(request.pause))
            return session.timeIsUp(request.serial);
        qint64 number = 0;
        if (const SharingFailure failure = m_connection.wait(lookInterval, &number))
            return session.failed(request.serial, failure);
        if (number != 0)
            session.notified(number);
    }
}

/// What is stored meanwhile is counted, so that it can be shown.
void SharingWorker::pause(SharedLog& log, SharingSession& session)
{
    const SharingSession::Request request = session.request();
    m_connection.close();
    QElapsedTimer clock;
    clock.start();
    qint64 version = 0;
    qint64 number = 0;
    while (!m_stop && session.request().serial == request.serial && !clock.hasExpired(request.pause)) {
        const qint64 now = log.dataVersion();
        if (now != version)
            session.storedHere();
        version = now;
        show(session.state());
        m_connection.wait(qBound(1, request.pause - int(clock.elapsed()), lookInterval), &number);
    }
    session.timeIsUp(request.serial);
}

} // namespace ko
