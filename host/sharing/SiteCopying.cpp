#include "sharing/ParcelCoding.h"
#include "sharing/SiteConnection.h"

#include <QCryptographicHash>
#include <QtEndian>

#include <libpq-fe.h>
#include <poll.h>

namespace ko {

namespace {

const int headerSize = 19; // signature, flags and length of an extension, which there is none of

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

} // namespace

SharingFailure SiteConnection::copy(const char* sql, const TakeColumns& take)
{
    bool isAlive = PQsendQuery(m_connection, sql) == 1 && send(QueryTimeout);
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
    return copy("COPY (SELECT parcel, link FROM ko.parcels_after(0, 2147483647)) TO STDOUT (FORMAT binary)",
                [&take](const std::vector<QByteArray>& columns) -> SharingFailure {
                    QString error;
                    std::optional<SharedParcel> parcel = ParcelCoding::decode(columns.at(0), &error);
                    if (!parcel || columns.size() != 2)
                        return {SharingFailure::Refused, error};
                    parcel->digest = QCryptographicHash::hash(columns.at(0), QCryptographicHash::Sha256);
                    parcel->link = QByteArray::fromHex(columns.at(1));
                    return take(*parcel) ? SharingFailure() : SharingFailure{SharingFailure::Away, QString()};
                });
}

SharingFailure SiteConnection::copyRows(SharedTable table, const std::function<bool(const SharedRow&)>& take)
{
    const char* sql =
        table == SharedTable::Nodes
            ? "COPY (SELECT item FROM ko.nodes_after(0, 2147483647)) TO STDOUT (FORMAT binary)"
        : table == SharedTable::Relations
            ? "COPY (SELECT item FROM ko.relations_after(0, 2147483647)) TO STDOUT (FORMAT binary)"
            : "COPY (SELECT item FROM ko.rest_after(0, 2147483647)) TO STDOUT (FORMAT binary)";
    return copy(sql, [&take](const std::vector<QByteArray>& columns) -> SharingFailure {
        return take({0, columns.at(0)}) ? SharingFailure() : SharingFailure{SharingFailure::Away, QString()};
    });
}

} // namespace ko
