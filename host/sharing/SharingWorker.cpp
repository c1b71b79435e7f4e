#include "sharing/SharingWorker.h"

#include "HandOver.h"
#include "ko/LogQt.h"

#include <QElapsedTimer>

#include <algorithm>
#include <random>
#include <utility>

namespace ko {

namespace {

const int copyInterval = 50;  // parcels, between two looks at how far a copy is
const int lookInterval = 200; // ms; how soon changes of another program on the file are seen

} // namespace

SharingWorker::SharingWorker(const QString& file, const QString& address, const SharedLog::Describe& describe)
    : m_file(file)
    , m_address(address)
    , m_describe(describe)
{
    qRegisterMetaType<ko::SharingState>("ko::SharingState");
    qRegisterMetaType<ko::SiteKeyOutcome>("ko::SiteKeyOutcome");
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

void SharingWorker::takeNewKey()
{
    m_isKeyNew = true;
    wake();
}

void SharingWorker::setOpen(const QStringList& written, bool isAnyOpen)
{
    m_presence.setOpen(written, isAnyOpen);
    wake();
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

void SharingWorker::showEditors(const std::optional<QVector<NodeEditor>>& editors)
{
    if (editors)
        handOver(this, [this, editors] { emit editorsSeen(*editors); });
}

void SharingWorker::perform(SharedLog& log, SharingSession& session)
{
    const SharingSession::Request request = session.request();
    switch (request.step) {
    case SharingSession::Step::Connect:
        connectToSite(session, request.serial);
        if (session.state().kind == SharingState::CatchingUp)
            lookAtKey(log); // before something is sent
        return;
    case SharingSession::Step::Copy:
        return copy(log, session);
    case SharingSession::Step::Agree:
        return agree(session, request);
    case SharingSession::Step::Submit:
        return submit(session, request);
    case SharingSession::Step::Fetch:
        return fetch(session, request);
    case SharingSession::Step::Review:
        return review(session, request);
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
    m_presence.connected();
}

/// When it fails, so does what comes next, and the next connection looks again.
void SharingWorker::lookAtKey(SharedLog& log)
{
    m_isKeyNew = false;
    SiteKeyTask look;
    look.site = log.site();
    const SiteKeyOutcome outcome = ko::perform(look, m_connection);
    if (outcome.kind == SiteKeyOutcome::Failed)
        return;
    if (!outcome.isHere || outcome.record.name != m_resealingKey)
        m_resealing.reset(); // else what is under way goes on, as one change set
    m_mustLookAgain = bool(m_resealing);
    m_resealingKey = outcome.record.name;
    m_mustReseal = outcome.isHere;
    handOver(this, [this, outcome] { emit keySeen(outcome); });
}

/// While nothing else is to be done. What cannot be sealed now is found again after the next connection.
void SharingWorker::resealSome(const SharingSession& session)
{
    if (!m_mustReseal || session.state().rights != SharingState::MayWrite)
        return;
    StoreError error;
    if (!m_resealing)
        m_resealing = PasswordResealing::begin(m_file, &error);
    m_mustReseal = m_resealing && m_resealing->isMore() && m_resealing->step(&error);
    if (error)
        LogQt::line(LogQt::Error, QString::fromLatin1("Passwords are not sealed anew: %1").arg(error.detail));
    if (!m_mustReseal) {
        m_resealing.reset();
        m_mustReseal = std::exchange(m_mustLookAgain, false) && !error;
    }
}

/// In one transaction at the site and one in the file: who ends it begins anew.
void SharingWorker::copy(SharedLog& log, SharingSession& session)
{
    const quint64 serial = session.request().serial;
    SharingFailure failure = m_connection.beginMoment();
    SharedLog::Receipt receipt = SharedLog::Receipt::Incomplete;
    try {
        if (!failure)
            receipt = log.takeCopy(
                [&](const SharedLog::VisitParcel& visit) {
                    failure = m_connection.copyParcels([&](const SharedParcel& parcel) {
                        if (parcel.number % copyInterval == 0) {
                            session.copying(serial, parcel.number);
                            show(session.state());
                        }
                        return !m_stop && visit(parcel);
                    });
                    return !failure;
                },
                [&](const SharedLog::VisitRow& visit) {
                    for (const SharedTable table :
                         {SharedTable::Nodes, SharedTable::Relations, SharedTable::Rest}) {
                        if (!failure)
                            failure = m_connection.copyRows(
                                table, [&](const SharedRow& row) { return !m_stop && visit(table, row); });
                    }
                    return !failure;
                });
        if (!failure)
            failure = m_connection.endMoment();
    } catch (const StoreFailure& stored) {
        failure = {SharingFailure::Away, stored.error.detail};
    }
    if (failure && receipt == SharedLog::Receipt::Incomplete)
        return session.failed(serial, failure);
    session.copied(serial, receipt);
    handOver(this, [this] { emit received(); });
}

void SharingWorker::agree(SharingSession& session, const SharingSession::Request& request)
{
    KnownParcel newest;
    if (const SharingFailure failure = m_connection.agree(request.known, &newest))
        session.failed(request.serial, failure);
    else
        session.agreed(request.serial, newest);
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

void SharingWorker::review(SharingSession& session, const SharingSession::Request& request)
{
    QVector<SharedParcel> parcels;
    if (const SharingFailure failure =
            m_connection.fetch(request.position, SharingSession::MostReviewed, &parcels))
        session.failed(request.serial, failure);
    else
        session.reviewed(request.serial, parcels);
}

void SharingWorker::listen(SharedLog& log, SharingSession& session)
{
    const SharingSession::Request request = session.request();
    show(session.state());
    QElapsedTimer clock;
    clock.start();
    qint64 version = 0; // what was stored since the session looked last is found at once
    while (!m_stop && session.request().serial == request.serial) {
        resealSome(session);
        const qint64 now = log.dataVersion();
        if (now != version)
            session.storedHere();
        version = now;
        if (session.request().serial != request.serial)
            break;
        if (clock.hasExpired(request.pause))
            return session.timeIsUp(request.serial);
        showEditors(m_presence.look(m_connection));
        qint64 number = 0;
        if (const SharingFailure failure = m_connection.wait(lookInterval, &number))
            return session.failed(request.serial, failure);
        const bool isSet = m_connection.take(SiteConnection::Notice::Key);
        if (isSet || m_isKeyNew)
            lookAtKey(log);
        if (m_connection.take(SiteConnection::Notice::Editing))
            m_presence.noticed();
        if (number != 0)
            session.notified(number);
    }
}

/// What is stored meanwhile is counted, so that it can be shown.
void SharingWorker::pause(SharedLog& log, SharingSession& session)
{
    const SharingSession::Request request = session.request();
    m_connection.close();
    showEditors(m_presence.lost());
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
