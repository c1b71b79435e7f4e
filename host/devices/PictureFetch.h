#ifndef KO_PICTUREFETCH_H
#define KO_PICTUREFETCH_H

#include "devices/DeviceConnection.h"
#include "devices/DeviceReport.h"

#include <QCoreApplication>

namespace ko {

/// Fetches one picture from a device that has been identified.
///
/// Of the address that the device named only path and query are taken: it is fetched from the target. The
/// password is tried once, by HTTP digest, in the clear only where that is allowed.
class KO_HOST_EXPORT PictureFetch
{
    Q_DECLARE_TR_FUNCTIONS(PictureFetch)

public:
    /// \a problem in words for the user when the picture is null.
    typedef std::function<void(const QImage& picture, const QString& problem)> Take;

    /// \a realm is the only one that may ask for the password; any may if it is empty. The connection
    /// outlives it.
    PictureFetch(DeviceConnection& connection, const DeviceTarget& target, const QString& realm,
                 const Take& take);

    /// Once; \a take is called once. \a deadline in ms, for each of two answers at most.
    void start(const QString& uri, int deadline);

    /// Of the profiles of a channel, counted from 1 in the order in which the device names them, the smallest
    /// whose pictures are large enough; -1 when the device has none.
    static int profileOf(const DeviceFacts& facts, int channel);

private:
    void get(const QByteArray& authorization);
    void told(const HttpAnswer& answer);
    QByteArray authorization(const QByteArray& challenges, QString* problem) const;

    DeviceConnection& m_connection;
    const DeviceTarget m_target;
    const QString m_realm;
    const Take m_take;
    QUrl m_place;
    int m_deadline = 0;
    bool m_isTried = false;
};

} // namespace ko

#endif
