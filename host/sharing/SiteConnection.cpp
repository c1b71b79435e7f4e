#include "sharing/SiteConnection.h"

#include "sharing/ParcelCoding.h"

#include <QCryptographicHash>
#include <QElapsedTimer>

#include <algorithm>
#include <array>
#include <cerrno>
#include <iterator>
#include <string_view>
#include <utility>

#include <libpq-fe.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

namespace ko {

namespace {

const char channel[] = "ko";
constexpr std::string_view words[] = {"key", "editing"}; // by SiteConnection::Notice

std::string plain(qint64 number)
{
    return std::to_string(number);
}

/// An array in the server's notation, of what needs no quotes.
template <class Of>
std::string arrayOf(const QVector<KnownParcel>& known, Of of)
{
    std::string text = "{";
    for (const KnownParcel& parcel : known)
        text += (text.size() > 1 ? "," : "") + of(parcel);
    return text + "}";
}

/// No such schema or function, or none that this user may see: there is no site for this user.
bool saysNoSite(const std::string& code)
{
    return code == "3F000" || code == "42883" || code == "42P01" || code == "42501";
}

/// By classes of the standard: those of which another try may end otherwise.
bool mayPass(const std::string& code)
{
    for (const char* passing : {"08", "40", "53", "55", "57", "58"}) {
        if (code.compare(0, 2, passing) == 0)
            return true;
    }
    return code.empty();
}

} // namespace

struct SiteConnection::Answer
{
    Result result;
    SharingFailure failure;

    QByteArray value(int row, int column) const
    {
        return QByteArray(PQgetvalue(result.get(), row, column), PQgetlength(result.get(), row, column));
    }

    void noteMissingSite()
    {
        const char* code = result ? PQresultErrorField(result.get(), PG_DIAG_SQLSTATE) : nullptr;
        if (code && saysNoSite(code))
            failure.kind = SharingFailure::NoSite;
    }
};

SiteConnection::SiteConnection()
    : m_wakeup(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
{
}

SiteConnection::~SiteConnection()
{
    close();
    ::close(m_wakeup);
}

void SiteConnection::close()
{
    PQfinish(m_connection);
    m_connection = nullptr;
}

void SiteConnection::wake()
{
    eventfd_write(m_wakeup, 1);
}

void SiteConnection::interrupt()
{
    m_isInterrupted = true;
    wake();
}

SharingFailure SiteConnection::open(const QString& address, int timeout)
{
    close();
    const QByteArray given = address.toUtf8();
    // A computer that is gone says nothing: it is missed after half a minute. What the address says counts
    // more.
    const std::array<const char*, 8> keys = {
        "keepalives_idle", "keepalives_interval",       "keepalives_count", "tcp_user_timeout",
        "dbname",          "fallback_application_name", "client_encoding",  nullptr};
    const std::array<const char*, 8> values = {"10",       "5",    "3",    "30000", given.constData(),
                                               "koclient", "UTF8", nullptr};
    m_connection = PQconnectStartParams(keys.data(), values.data(), 1);
    SharingFailure failure = finishConnecting(timeout);
    if (failure)
        return failure;
    PQsetnonblocking(m_connection, 1);
    PQsetNoticeProcessor(
        m_connection, [](void*, const char*) {}, nullptr); // else to the standard error stream
    // What a site is asked touches few rows, but a large one looks expensive to the server: it would compile
    // each statement anew, for many times as long as the statement takes.
    failure = run("SET jit = off").failure;
    return failure ? failure : run("LISTEN ko").failure;
}

SharingFailure SiteConnection::finishConnecting(int timeout)
{
    QElapsedTimer clock;
    clock.start();
    PostgresPollingStatusType status = PGRES_POLLING_WRITING;
    while (PQstatus(m_connection) != CONNECTION_BAD && status != PGRES_POLLING_OK) {
        const short events = status == PGRES_POLLING_READING ? POLLIN : POLLOUT;
        const int left = int(timeout - clock.elapsed());
        if (left <= 0 || !waitForSocket(events, left))
            return {SharingFailure::Away, QString::fromLatin1("the server does not answer")};
        status = PQconnectPoll(m_connection);
    }
    return PQstatus(m_connection) == CONNECTION_OK ? SharingFailure() : lost();
}

SharingFailure SiteConnection::lost()
{
    return {SharingFailure::Away, QString::fromUtf8(PQerrorMessage(m_connection)).trimmed()};
}

SharingFailure SiteConnection::failureOf(const pg_result* result)
{
    const ExecStatusType status = PQresultStatus(result);
    if (status == PGRES_COMMAND_OK || status == PGRES_TUPLES_OK)
        return SharingFailure();
    const char* code = PQresultErrorField(result, PG_DIAG_SQLSTATE);
    const char* message = PQresultErrorField(result, PG_DIAG_MESSAGE_PRIMARY); // the details may hold values
    return {mayPass(code ? code : "") ? SharingFailure::Away : SharingFailure::Refused,
            QString::fromUtf8(message ? message : PQerrorMessage(m_connection)).trimmed()};
}

/// False when nothing came in that time, or it was interrupted.
bool SiteConnection::waitForSocket(short events, int ms)
{
    QElapsedTimer clock;
    clock.start();
    for (;;) {
        std::array<pollfd, 2> files = {{{PQsocket(m_connection), events, 0}, {m_wakeup, POLLIN, 0}}};
        const int left = int(ms - clock.elapsed());
        if (m_isInterrupted || left <= 0)
            return false;
        if (poll(files.data(), files.size(), left) < 0) {
            if (errno == EINTR) // a child of the program has ended
                continue;
            return false;
        }
        if (files[0].revents != 0)
            return true;
        if (files[1].revents != 0) { // who woke us finds us awake when this is done
            eventfd_t count = 0;
            eventfd_read(m_wakeup, &count);
        }
    }
}

/// What is to be written may not fit while the server is writing, too.
bool SiteConnection::send(int deadlineMs)
{
    QElapsedTimer clock;
    clock.start();
    int left = PQflush(m_connection);
    while (left == 1) {
        const int ms = int(deadlineMs - clock.elapsed());
        if (ms <= 0 || !waitForSocket(POLLIN | POLLOUT, ms) || PQconsumeInput(m_connection) == 0)
            return false;
        left = PQflush(m_connection);
    }
    return left == 0;
}

SiteConnection::Answer SiteConnection::run(const char* sql, const std::vector<std::string>& values)
{
    std::vector<const char*> texts;
    texts.reserve(values.size());
    for (const std::string& value : values)
        texts.push_back(value.c_str());
    Answer answer{Result(nullptr, &PQclear), {}};
    // Without values it may be several statements, of which the first that fails is the last.
    const int isSent = values.empty() ? PQsendQuery(m_connection, sql)
                                      : PQsendQueryParams(m_connection, sql, int(texts.size()), nullptr,
                                                          texts.data(), nullptr, nullptr, 0);
    QElapsedTimer clock;
    clock.start();
    bool isAlive = isSent == 1 && send(QueryTimeout);
    while (isAlive) {
        while (isAlive && PQisBusy(m_connection) == 1) {
            const int left = int(QueryTimeout - clock.elapsed());
            isAlive = left > 0 && waitForSocket(POLLIN, left) && PQconsumeInput(m_connection) == 1;
        }
        Result result(isAlive ? PQgetResult(m_connection) : nullptr, &PQclear);
        if (!result)
            break;
        if (!answer.failure)
            answer.failure = failureOf(result.get());
        answer.result = std::move(result);
    }
    if (!isAlive && !answer.failure) {
        answer.failure = lost();
        if (answer.failure.message.isEmpty())
            answer.failure.message = QString::fromLatin1("the server does not answer");
    }
    return answer;
}

SharingFailure SiteConnection::execute(const QByteArray& script)
{
    return run(script.constData()).failure;
}

SharingFailure SiteConnection::greet(SiteGreeting* greeting)
{
    Answer answer = run("SELECT site, version, number, may_write FROM ko.greet()");
    answer.noteMissingSite();
    if (!answer.failure)
        *greeting = {QString::fromLatin1(answer.value(0, 0)), answer.value(0, 1).toInt(),
                     answer.value(0, 2).toLongLong(), answer.value(0, 3) == "t"};
    return answer.failure;
}

SharingFailure SiteConnection::value(const char* sql, const std::vector<std::string>& values,
                                     QByteArray* text)
{
    Answer answer = run(sql, values);
    answer.noteMissingSite();
    if (!answer.failure)
        *text = answer.value(0, 0);
    return answer.failure;
}

bool SiteConnection::take(Notice notice)
{
    return std::exchange(m_notices.at(size_t(notice)), false);
}

SharingFailure SiteConnection::agree(const QVector<KnownParcel>& known, KnownParcel* newest)
{
    const Answer answer =
        run("SELECT number, link FROM ko.agreed($1, $2)",
            {arrayOf(known, [](const KnownParcel& parcel) { return plain(parcel.number); }),
             arrayOf(known, [](const KnownParcel& parcel) { return parcel.id.toStdString(); })});
    if (!answer.failure)
        *newest = {answer.value(0, 0).toLongLong(), QString(), QByteArray::fromHex(answer.value(0, 1))};
    return answer.failure;
}

SharingFailure SiteConnection::submit(const QVector<SharedParcel>& parcels, qint64* number)
{
    const Answer answer = run("SELECT ko.submit($1)", {ParcelCoding::encode(parcels).toStdString()});
    if (!answer.failure)
        *number = answer.value(0, 0).toLongLong();
    return answer.failure;
}

SharingFailure SiteConnection::fetch(qint64 position, int most, QVector<SharedParcel>* parcels)
{
    const Answer answer =
        run("SELECT parcel, link FROM ko.parcels_after($1, $2)", {plain(position), plain(most)});
    if (answer.failure)
        return answer.failure;
    for (int row = 0; row < PQntuples(answer.result.get()); ++row) {
        QString error;
        const QByteArray text = answer.value(row, 0);
        std::optional<SharedParcel> parcel = ParcelCoding::decode(text, &error);
        if (!parcel)
            return {SharingFailure::Refused, error};
        parcel->digest = QCryptographicHash::hash(text, QCryptographicHash::Sha256);
        parcel->link = QByteArray::fromHex(answer.value(row, 1));
        parcels->append(*parcel);
    }
    return SharingFailure();
}

SharingFailure SiteConnection::rows(SharedTable table, qint64 after, int most, QVector<SharedRow>* rows)
{
    const char* statement = table == SharedTable::Nodes ? "SELECT place, item FROM ko.nodes_after($1, $2)"
                            : table == SharedTable::Relations
                                ? "SELECT place, item FROM ko.relations_after($1, $2)"
                                : "SELECT place, item FROM ko.rest_after($1, $2)";
    const Answer answer = run(statement, {plain(after), plain(most)});
    const int count = answer.failure ? 0 : PQntuples(answer.result.get());
    for (int row = 0; row < count; ++row)
        rows->append({answer.value(row, 0).toLongLong(), answer.value(row, 1)});
    return answer.failure;
}

SharingFailure SiteConnection::beginMoment()
{
    return execute("BEGIN ISOLATION LEVEL REPEATABLE READ READ ONLY");
}

SharingFailure SiteConnection::endMoment()
{
    return execute("COMMIT");
}

SharingFailure SiteConnection::state(QString* text)
{
    const Answer answer = run("SELECT ko.state()");
    if (!answer.failure)
        *text = QString::fromUtf8(answer.value(0, 0));
    return answer.failure;
}

qint64 SiteConnection::takeNotices()
{
    qint64 highest = 0;
    while (PGnotify* notice = PQnotifies(m_connection)) {
        const auto word = std::find(std::begin(words), std::end(words), std::string_view(notice->extra));
        if (word != std::end(words))
            m_notices.at(size_t(word - std::begin(words))) = true;
        else if (qstrcmp(notice->relname, channel) == 0)
            highest = qMax(highest, QByteArray(notice->extra).toLongLong());
        PQfreemem(notice);
    }
    return highest;
}

SharingFailure SiteConnection::wait(int ms, qint64* number)
{
    *number = takeNotices(); // that came with an answer
    if (*number != 0 || m_isInterrupted)
        return SharingFailure();
    std::array<pollfd, 2> files = {{{PQsocket(m_connection), POLLIN, 0}, {m_wakeup, POLLIN, 0}}};
    poll(files.data(), files.size(), ms);
    if (files[1].revents != 0) {
        eventfd_t count = 0;
        eventfd_read(m_wakeup, &count);
    }
    if (files[0].revents != 0 &&
        (PQconsumeInput(m_connection) == 0 || PQstatus(m_connection) == CONNECTION_BAD))
        return lost();
    *number = takeNotices();
    return SharingFailure();
}

} // namespace ko
