#ifndef KO_SHARINGSESSION_H
#define KO_SHARINGSESSION_H

#include "sharing/SharingTypes.h"
#include "store/SharedLog.h"

namespace ko {

/// What a desk says to its site and when, without a thread, a clock or a connection: whoever has these does
/// what request() wants and tells what came of it, which makes the next request.
///
/// The desk's changes are sent first, but not for ever if there are always new ones; then what others did is
/// taken, in the site's order and with the desk's own among it, so nothing is merged here.
class KO_HOST_EXPORT SharingSession
{
public:
    enum class Step {
        Connect, ///< and greet, then greeted() or failed()
        Copy,    ///< everything at one moment, then copied() or failed(); the file is empty
        Agree,   ///< ask which of \c known the site has, then agreed() or failed()
        Submit,  ///< \c parcels, then submitted() or failed()
        Fetch,   ///< what came after \c position, at most MostParcels, then fetched() or failed()
        Review, ///< what is here already after \c position, at most MostReviewed, then reviewed() or failed()
        Listen, ///< until notified(), storedHere(), or, after \c pause, timeIsUp()
        Pause,  ///< without a connection, for \c pause, then timeIsUp()
        End     ///< nothing, for good
    };

    struct Request
    {
        Step step = Step::Connect;
        quint64 serial = 0; ///< what is told of another request than the present one is passed over
        QVector<SharedParcel> parcels;
        QVector<KnownParcel> known;
        qint64 position = 0;
        int pause = 0; ///< in ms
    };

    static constexpr int MostParcels = 100;
    static constexpr int MostReviewed = 10; ///< parcels; others wait meanwhile
    static constexpr int Version = 2;       ///< of the site's tables

    /// \a log outlives the session. \a seed: so that not all desks come back at the same moment.
    SharingSession(SharedLog& log, quint32 seed);

    const Request& request() const { return m_request; }
    const SharingState& state() const { return m_state; }

    void greeted(quint64 serial, const SiteGreeting& greeting);
    void copied(quint64 serial, SharedLog::Receipt receipt);
    /// The newest of them that the site has; its number is 0 if it has none.
    void agreed(quint64 serial, const KnownParcel& newest);
    void submitted(quint64 serial, qint64 number);
    void fetched(quint64 serial, const QVector<SharedParcel>& parcels);
    void reviewed(quint64 serial, const QVector<SharedParcel>& parcels);
    void timeIsUp(quint64 serial);
    void failed(quint64 serial, const SharingFailure& failure);

    /// Of a copy: this many parcels are here.
    void copying(quint64 serial, qint64 number);

    /// At any time: the site has a parcel of this number.
    void notified(qint64 number);
    /// At any time: something else wrote the desk's file.
    void storedHere();

private:
    template <class Do>
    void act(quint64 serial, Do what);
    void want(Step step);
    void pause();
    void advance();
    bool submit();
    bool isStarving() const;
    void goBack(qint64 number);
    void show(SharingState::Kind kind, SharingState::Reason reason = SharingState::NoReason,
              const QString& text = QString());
    void refuse(SharingState::Reason reason, const QString& text = QString());

    SharedLog& m_log;
    Request m_request;
    SharingState m_state;
    SharedLog::Cursor m_sent; ///< over this connection
    qint64 m_last = 0;        ///< the site's last number, as far as is known
    bool m_mustFetch = false;
    bool m_mustReview = false;
    qint64 m_reviewed = 0; ///< of the parcels that are here, the last that was looked at again
    int m_sentInARow = 0;  ///< requests, since others' changes were taken
    int m_failures = 0;    ///< one after the other
    quint32 m_random;
};

} // namespace ko

#endif
