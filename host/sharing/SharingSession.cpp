#include "sharing/SharingSession.h"

#include <algorithm>

namespace ko {

namespace {

const int shortestPause = 250; // ms; doubled with each failure
const int longestPause = 30000;
const int listenPause = 30000; // ms; a notice that got lost is made good by asking
const int linesAtOnce = 500;
const int knownAtOnce = 1000;
const int mostSent = 10; // requests, one after the other, for which what others did waits

} // namespace

SharingSession::SharingSession(SharedLog& log, quint32 seed)
    : m_log(log)
    , m_random(seed)
{
}

void SharingSession::want(Step step)
{
    const quint64 serial = m_request.serial + 1;
    m_request = Request();
    m_request.step = step;
    m_request.serial = serial;
}

/// Does \a what, unless it is about a request that is none any more. A file that is busy is one more reason
/// to wait.
template <class Do>
void SharingSession::act(quint64 serial, Do what)
{
    if (serial != m_request.serial || m_request.step == Step::End)
        return;
    try {
        what();
    } catch (const StoreFailure& failure) {
        if (failure.error.kind == StoreError::Locked)
            pause();
        else
            refuse(SharingState::FileFailed, failure.error.detail);
    }
}

void SharingSession::show(SharingState::Kind kind, SharingState::Reason reason, const QString& text)
{
    m_state.kind = kind;
    m_state.reason = reason;
    m_state.text = text;
    m_state.last = m_last;
}

void SharingSession::refuse(SharingState::Reason reason, const QString& text)
{
    show(SharingState::Refused, reason, text);
    want(Step::End);
}

void SharingSession::pause()
{
    const int longest = std::min(longestPause, shortestPause << std::min(m_failures, 10));
    ++m_failures;
    m_random = m_random * 1664525U + 1013904223U;
    show(SharingState::Away, SharingState::NoReason, m_state.text);
    want(Step::Pause);
    m_request.pause = longest / 2 + int(m_random >> 8) % (longest / 2 + 1);
}

void SharingSession::greeted(quint64 serial, const SiteGreeting& greeting)
{
    act(serial, [&] {
        if (greeting.version != Version)
            return refuse(SharingState::OtherVersion);
        const QString site = m_log.site();
        if (!site.isEmpty() && site != greeting.site)
            return refuse(SharingState::OtherSite);
        if (m_log.isReplaced())
            return refuse(SharingState::Replaced);
        if (site.isEmpty())
            m_log.setSite(greeting.site);
        m_last = greeting.number;
        m_sent = SharedLog::Cursor();
        m_sentInARow = 0;
        m_mustFetch = true;
        m_mustReview = true;
        m_state.rights = greeting.mayWrite ? SharingState::MayWrite : SharingState::MayRead;
        m_state.waiting = m_log.waitingLines();
        m_state.position = m_log.position();
        show(SharingState::CatchingUp);
        if (m_last > 0 && m_log.isEmpty())
            return want(Step::Copy);
        want(Step::Agree);
        m_request.known = m_log.known(1);
        if (m_request.known.isEmpty())
            advance();
    });
}

void SharingSession::copied(quint64 serial, SharedLog::Receipt receipt)
{
    act(serial, [&] {
        m_failures = 0;
        m_mustReview = false;
        if (receipt == SharedLog::Receipt::Rewritten)
            return refuse(SharingState::Rewritten);
        m_state.position = m_log.position();
        advance();
    });
}

void SharingSession::copying(quint64 serial, qint64 number)
{
    if (serial == m_request.serial)
        m_state.position = number;
}

/// The site may be an older one than this desk knew: a backup, or a copy that took over and had not got all.
void SharingSession::agreed(quint64 serial, const KnownParcel& newest)
{
    act(serial, [&] {
        const QVector<KnownParcel> asked = m_request.known;
        if (newest.number != 0 || asked.isEmpty()) {
            if (!m_log.agrees(newest))
                return refuse(SharingState::Rewritten);
            if (newest.number != m_log.position())
                goBack(newest.number);
            return advance();
        }
        want(Step::Agree);
        m_request.known = m_log.known(knownAtOnce, asked.constLast().number);
        if (m_request.known.isEmpty()) { // the site has begun anew
            goBack(0);
            advance();
        }
    });
}

void SharingSession::goBack(qint64 number)
{
    m_log.goBack(number);
    m_state.waiting = m_log.waitingLines();
    m_state.position = number;
}

void SharingSession::submitted(quint64 serial, qint64 number)
{
    act(serial, [&] {
        for (const SharedParcel& parcel : std::as_const(m_request.parcels))
            m_state.waiting = std::max<qint64>(0, m_state.waiting - parcel.lines.size());
        m_last = std::max(m_last, number);
        m_mustFetch = true;
        m_failures = 0;
        ++m_sentInARow;
        advance();
    });
}

void SharingSession::fetched(quint64 serial, const QVector<SharedParcel>& parcels)
{
    act(serial, [&] {
        m_failures = 0;
        const SharedLog::Receipt receipt =
            m_log.receive(parcels, isStarving() ? std::nullopt : std::make_optional(m_sent));
        if (receipt == SharedLog::Receipt::Gap)
            return pause(); // the next connection finds out why
        if (receipt == SharedLog::Receipt::Rewritten)
            return refuse(SharingState::Rewritten);
        if (receipt == SharedLog::Receipt::Taken) {
            m_sentInARow = 0;
            m_mustFetch = parcels.size() >= MostParcels;
            m_state.position = m_log.position();
            m_last = std::max(m_last, m_state.position);
        }
        advance();
    });
}

/// Whoever writes the past anew may leave the links as they were. So all of it is looked at again, some at
/// each connection, before anything is sent, and whenever nothing happens, round and round.
void SharingSession::reviewed(quint64 serial, const QVector<SharedParcel>& parcels)
{
    act(serial, [&] {
        if (!m_log.agrees(parcels, m_reviewed, MostReviewed))
            return refuse(SharingState::Rewritten);
        m_reviewed += MostReviewed;
        if (m_reviewed >= m_log.position())
            m_reviewed = 0;
        m_mustReview = false;
        advance();
    });
}

/// Whoever always stores something gets others' work, too.
bool SharingSession::isStarving() const
{
    return m_sentInARow >= mostSent;
}

bool SharingSession::submit()
{
    SharedLog::Cursor sent = m_sent;
    const QVector<SharedParcel> parcels = m_log.waiting(&sent, linesAtOnce);
    if (parcels.isEmpty())
        return false;
    if (m_state.rights != SharingState::MayWrite) {
        m_state.waiting = m_log.waitingLines();
        refuse(SharingState::MayNotWrite);
        return true;
    }
    m_sent = sent; // if it gets lost, so does the connection, and the next begins anew
    want(Step::Submit);
    m_request.parcels = parcels;
    show(SharingState::CatchingUp);
    return true;
}

void SharingSession::advance()
{
    const qint64 position = m_log.position();
    if (m_mustReview && position > 0) {
        want(Step::Review);
        m_request.position = m_reviewed;
        return;
    }
    const bool isBehind = m_mustFetch || position < m_last;
    const bool fetchesFirst = isBehind && isStarving();
    if (!fetchesFirst && submit())
        return;
    want(isBehind ? Step::Fetch : Step::Listen);
    m_request.position = position;
    m_request.pause = isBehind ? 0 : listenPause;
    if (!fetchesFirst)
        m_state.waiting = 0;
    show(isBehind ? SharingState::CatchingUp : SharingState::UpToDate);
}

void SharingSession::timeIsUp(quint64 serial)
{
    act(serial, [&] {
        if (m_request.step == Step::Pause)
            return want(Step::Connect);
        m_mustFetch = true;
        m_mustReview = true;
        advance();
    });
}

void SharingSession::failed(quint64 serial, const SharingFailure& failure)
{
    act(serial, [&] {
        if (failure.kind != SharingFailure::Away)
            return refuse(failure.kind == SharingFailure::NoSite ? SharingState::NoSite
                                                                 : SharingState::ServerSaid,
                          failure.message);
        m_state.text = failure.message;
        pause();
    });
}

void SharingSession::notified(qint64 number)
{
    m_last = std::max(m_last, number);
    if (m_request.step == Step::Listen)
        act(m_request.serial, [&] {
            if (m_log.position() < m_last)
                advance();
        });
}

void SharingSession::storedHere()
{
    if (m_request.step == Step::Listen)
        act(m_request.serial, [&] { submit(); });
    else if (m_request.step == Step::Pause)
        act(m_request.serial, [&] { m_state.waiting = m_log.waitingLines(); });
}

} // namespace ko
