#include "sharing/ParcelCoding.h"
#include "sharing/ReadAhead.h"
#include "sharing/SiteConnection.h"

#include <QCryptographicHash>
#include <QtEndian>

#include <libpq-fe.h>
#include <poll.h>

namespace ko {

namespace {

const int headerSize = 19; // signature, flags and length of an extension, which there is none of

const int parcelsOfAPiece = 50;
const int rowsOfAPiece = 5000;
const size_t parcelsAhead = 20; // of up to 200 lines each
const size_t rowsAhead = 2000;

/// The columns of a row in the binary form of COPY; none at its end.
std::vector<QByteArray> columnsOf(const char* row, int size)
{
    std::vector<QByteArray> columns;
    if (size < 2)
        return columns;
    const int count = qFromBigEndian<qint16>(row);
    int at = 2;
    for (int i = 0; i < count && at + 4 <= size; ++i) {
        const int length = qMax(0, qFromBigEndian<qint32>(row + at));
        at += 4;
        if (length > size - at)
            return {};
        columns.emplace_back(row + at, length);
        at += length;
    }
    return columns;
}

qint64 numberOf(const QByteArray& column)
{
    return column.size() == sizeof(qint64) ? qFromBigEndian<qint64>(column.constData()) : 0;
}

SharingFailure unwanted()
{
    return {SharingFailure::Away, QString()};
}

} // namespace

/// The server makes the whole answer before it sends any of it: it makes the next piece while the desk stores
/// this one.
SharingFailure SiteConnection::copyPieces(const char* sql, int rows, const TakeColumns& take)
{
    qint64 last = 0;
    SharingFailure failure;
    for (int count = rows; !failure && count == rows;) {
        count = 0;
        failure = copy(QByteArray("COPY (") + sql + '(' + QByteArray::number(last) + ", " +
                           QByteArray::number(rows) + ")) TO STDOUT (FORMAT binary)",
                       [&](const std::vector<QByteArray>& columns) -> SharingFailure {
                           const qint64 number = numberOf(columns.at(0));
                           if (columns.size() < 2 || number <= last)
                               return {SharingFailure::Refused, QStringLiteral("rows out of their order")};
                           last = number;
                           ++count;
                           return take(columns);
                       });
    }
    return failure;
}

SharingFailure SiteConnection::copy(const QByteArray& sql, const TakeColumns& take)
{
    bool isAlive = PQsendQuery(m_connection, sql.constData()) == 1 && send(QueryTimeout);
    while (isAlive && PQisBusy(m_connection) == 1)
        isAlive = waitForSocket(POLLIN, QueryTimeout) && PQconsumeInput(m_connection) == 1;
    Result result(isAlive ? PQgetResult(m_connection) : nullptr, &PQclear);
    if (!result)
        return lost();
    if (PQresultStatus(result.get()) != PGRES_COPY_OUT)
        return failureOf(result.get());
    int skipped = headerSize;
    for (;;) {
        char* row = nullptr;
        const int size = PQgetCopyData(m_connection, &row, 1);
        const std::unique_ptr<char, void (*)(void*)> freeing(row, &PQfreemem);
        if (size > 0) {
            const std::vector<QByteArray> columns =
                size >= skipped ? columnsOf(row + skipped, size - skipped) : std::vector<QByteArray>();
            skipped = 0;
            SharingFailure failure = columns.empty() ? SharingFailure() : take(columns);
            if (failure)
                return failure;
        } else if (size < 0) {
            break;
        } else if (!waitForSocket(POLLIN, QueryTimeout) || PQconsumeInput(m_connection) != 1) {
            return lost();
        }
    }
    SharingFailure failure;
    for (Result end(PQgetResult(m_connection), &PQclear); end; end.reset(PQgetResult(m_connection))) {
        if (!failure)
            failure = failureOf(end.get());
    }
    return failure;
}

SharingFailure SiteConnection::copyParcels(const std::function<bool(const SharedParcel&)>& take)
{
    const auto read = [this](const std::function<bool(SharedParcel)>& put) {
        return copyPieces("SELECT number, parcel, link FROM ko.parcels_after", parcelsOfAPiece,
                          [&put](const std::vector<QByteArray>& columns) -> SharingFailure {
                              QString error;
                              std::optional<SharedParcel> parcel =
                                  ParcelCoding::decode(columns.at(1), &error);
                              if (!parcel || columns.size() != 3)
                                  return {SharingFailure::Refused, error};
                              parcel->digest =
                                  QCryptographicHash::hash(columns.at(1), QCryptographicHash::Sha256);
                              parcel->link = QByteArray::fromHex(columns.at(2));
                              return put(std::move(*parcel)) ? SharingFailure() : unwanted();
                          });
    };
    return ReadAhead<SharedParcel>(parcelsAhead).run(read, take);
}

SharingFailure SiteConnection::copyRows(SharedTable table, const std::function<bool(const SharedRow&)>& take)
{
    const auto read = [this, table](const std::function<bool(SharedRow)>& put) {
        return copyPieces(
            table == SharedTable::Nodes       ? "SELECT place, item FROM ko.nodes_after"
            : table == SharedTable::Relations ? "SELECT place, item FROM ko.relations_after"
                                              : "SELECT place, item FROM ko.rest_after",
            rowsOfAPiece, [&put](const std::vector<QByteArray>& columns) {
                return put({numberOf(columns.at(0)), columns.at(1)}) ? SharingFailure() : unwanted();
            });
    };
    return ReadAhead<SharedRow>(rowsAhead).run(read, take);
}

} // namespace ko
