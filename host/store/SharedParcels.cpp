#include "store/SharedParcels.h"

#include <QCryptographicHash>

namespace ko {

namespace {

/// One column has both, the link in hexadecimal digits: rows of before the chain have the identifier alone.
KnownParcel parcelOf(qint64 number, const QString& stored)
{
    return {number, stored.section(QLatin1Char(' '), 0, 0),
            QByteArray::fromHex(stored.section(QLatin1Char(' '), 1).toLatin1())};
}

QString storedOf(const QString& id, const QByteArray& link)
{
    return id + QLatin1Char(' ') + QString::fromLatin1(link.toHex());
}

QByteArray linkAfter(const QByteArray& link, const SharedParcel& parcel)
{
    return QCryptographicHash::hash(link + parcel.digest, QCryptographicHash::Sha256);
}

} // namespace

SharedParcels::SharedParcels(SqliteFile& file)
    : m_file(file)
{
}

KnownParcel SharedParcels::at(qint64 number)
{
    return parcelOf(number,
                    m_file.value("SELECT id FROM shared_parcels WHERE number = ?", {number}).toString());
}

bool SharedParcels::add(const SharedParcel& parcel)
{
    const QByteArray before = at(parcel.number - 1).link;
    const bool isFollowing = parcel.number == 1 || !before.isEmpty();
    if (parcel.link.isEmpty() || (isFollowing && linkAfter(before, parcel) != parcel.link))
        return false;
    m_file.run("INSERT INTO shared_parcels (number, id) VALUES (?, ?)",
               {parcel.number, storedOf(parcel.id, parcel.link)});
    return true;
}

bool SharedParcels::agree(const QVector<SharedParcel>& parcels, qint64 position, int asked)
{
    const qint64 last = m_file.value("SELECT max(number) FROM shared_parcels").toLongLong();
    const qint64 expected = qMin<qint64>(last, position + asked);
    QByteArray before = at(position).link;
    qint64 number = position;
    for (const SharedParcel& parcel : parcels) {
        if (++number > expected)
            break;
        const KnownParcel known = at(number);
        const bool isFollowing = number == 1 || !before.isEmpty();
        if (parcel.number != number || known.id != parcel.id)
            return false;
        if (!known.link.isEmpty() && isFollowing && linkAfter(before, parcel) != known.link)
            return false;
        before = known.link;
    }
    return number >= expected;
}

bool SharedParcels::agree(const KnownParcel& parcel)
{
    const KnownParcel known = at(parcel.number);
    if (!known.link.isEmpty())
        return known.link == parcel.link;
    m_file.run("UPDATE shared_parcels SET id = ? WHERE number = ?",
               {storedOf(known.id, parcel.link), parcel.number});
    return true;
}

QVector<KnownParcel> SharedParcels::newest(int count, qint64 before)
{
    QVector<KnownParcel> result;
    SqliteFile::Rows rows =
        m_file.run("SELECT number, id FROM shared_parcels WHERE number < ? ORDER BY number DESC LIMIT ?",
                   {before, count});
    while (rows.next())
        result.append(parcelOf(rows.number(0), rows.text(1)));
    return result;
}

void SharedParcels::removeAfter(qint64 number)
{
    m_file.run("DELETE FROM shared_parcels WHERE number > ?", {number});
}

} // namespace ko
