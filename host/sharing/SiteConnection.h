#ifndef KO_SITECONNECTION_H
#define KO_SITECONNECTION_H

#include "model/SharedRow.h"
#include "sharing/SharingTypes.h"

#include <QVector>

#include <array>
#include <atomic>
#include <functional>
#include <memory>
#include <string>
#include <vector>

struct pg_conn;
struct pg_result;

namespace ko {

/// A connection to a site on a PostgreSQL server, for one thread: calls return when they are done, after a
/// timeout, or when interrupt() was called. Addresses, TLS, service files and passwords are as libpq has
/// them.
class KO_HOST_EXPORT SiteConnection
{
public:
    static constexpr int ConnectTimeout = 10000; // ms
    static constexpr int QueryTimeout = 30000;

    SiteConnection();
    ~SiteConnection();

    /// \a address is a URL, `postgresql://user@host/site`, or a list of libpq's keywords. Listens for
    /// changes, too.
    SharingFailure open(const QString& address, int timeout = ConnectTimeout);
    void close();

    /// Makes the tables of a site, or brings them to this version, if they are not; several may do so at
    /// once. Takes the right to make schemas and roles.
    SharingFailure prepareSite();

    SharingFailure greet(SiteGreeting* greeting);
    /// The first value that a statement returns. NoSite: what it names is not there, or not for this user.
    SharingFailure value(const char* sql, const std::vector<std::string>& values, QByteArray* text);
    SharingFailure agree(const QVector<KnownParcel>& known, KnownParcel* newest);
    SharingFailure submit(const QVector<SharedParcel>& parcels, qint64* number);
    SharingFailure fetch(qint64 position, int most, QVector<SharedParcel>* parcels);
    /// All parcels, or all rows of a table, in their order, by COPY, read by a thread while \a take is at
    /// work in this one. What that does not want any more ends it, with the connection.
    SharingFailure copyParcels(const std::function<bool(const SharedParcel&)>& take);
    SharingFailure copyRows(SharedTable table, const std::function<bool(const SharedRow&)>& take);
    /// At most \a most rows of a table after a place.
    SharingFailure rows(SharedTable table, qint64 after, int most, QVector<SharedRow>* rows);
    /// Until endMoment() everything that is read is as it was at one moment.
    SharingFailure beginMoment();
    SharingFailure endMoment();
    /// Everything that the site has now, as one text.
    SharingFailure state(QString* text);

    /// Waits for notices, wake() or the end of the time. \a number is the highest that was told, or 0.
    SharingFailure wait(int ms, qint64* number);

    /// What a site tells of beside its parcels.
    enum class Notice { Key, Editing };
    /// Whether it did since this was asked last.
    bool take(Notice notice);

    // From any thread.
    void wake();
    void interrupt(); ///< for good

private:
    Q_DISABLE_COPY(SiteConnection)
    typedef std::unique_ptr<pg_result, void (*)(pg_result*)> Result;
    struct Answer;

    typedef std::function<SharingFailure(const std::vector<QByteArray>& columns)> TakeColumns;
    SharingFailure copyPieces(const char* sql, int rows, const TakeColumns& take);
    SharingFailure copy(const QByteArray& sql, const TakeColumns& take);
    Answer run(const char* sql, const std::vector<std::string>& values = {});
    SharingFailure execute(const QByteArray& script);
    SharingFailure finishConnecting(int timeout);
    bool send(int deadlineMs);
    bool waitForSocket(short events, int ms);
    SharingFailure lost();
    SharingFailure failureOf(const pg_result* result);
    qint64 takeNotices();

    pg_conn* m_connection = nullptr;
    std::array<bool, 2> m_notices{}; ///< by Notice
    const int m_wakeup;
    std::atomic<bool> m_isInterrupted{false};
};

} // namespace ko

#endif
