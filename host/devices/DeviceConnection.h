#ifndef KO_DEVICECONNECTION_H
#define KO_DEVICECONNECTION_H

#include "HostExport.h"
#include "ko/TrContext.h"
#include "model/TranslatableText.h"

#include <QByteArray>
#include <QObject>
#include <QTimer>
#include <QUrl>

#include <functional>
#include <memory>

class QNetworkAccessManager;
class QNetworkReply;

namespace ko {

/// What came of one request.
struct HttpAnswer
{
    enum Error {
        None,            ///< there is a status, whichever
        NotReached,      ///< no connection, or it broke
        TimedOut,        ///< not all of it came in time
        TooLong,         ///< more than was wanted
        Elsewhere,       ///< it sends us to another place, where nobody goes
        OtherCertificate ///< nothing was sent
    };

    Error error = NotReached;
    int status = 0;
    QByteArray body;
    QByteArray challenges; ///< headers "WWW-Authenticate", joined by commas
    TranslatableText text; ///< of the error, for the user
};

/// Posts SOAP messages to one device, and gets its pictures, one at a time. Asynchronous, in the thread that
/// it lives in.
///
/// It goes to this device alone: it follows no redirects, keeps no cookies, and sends no password but what it
/// is given as an authorization. The certificate of a TLS connection must be the one that was remembered; of
/// a device without one any is taken, and told by certificate().
class KO_HOST_EXPORT DeviceConnection : public QObject
{
    Q_OBJECT
    KO_TR_CONTEXT(DeviceConnection)

public:
    enum Limits { LongestBody = 1 << 20 /* bytes, of an answer to a message */ };

    typedef std::function<void(const HttpAnswer& answer)> Take;

    /// \a device has a scheme, http or https, host and port. \a certificate as in DeviceIdentity, empty when
    /// none is remembered. \a manager has no connection to the device yet; see SharedManagers.
    DeviceConnection(const QUrl& device, const std::shared_ptr<QNetworkAccessManager>& manager,
                     const QByteArray& certificate);

    /// What is under way is given up, and not told.
    ~DeviceConnection() override;

    /// \a path is the request's; an empty \a authorization sends none. \a take is called once, later, unless
    /// the connection is deleted before; it may delete it later itself. \a deadline in ms, for all of the
    /// answer.
    void post(const QString& path, const QByteArray& message, const QByteArray& authorization, int deadline,
              const Take& take);

    /// The same for a picture; of \a place only path and query count. The body may be as long as
    /// PictureReader takes it.
    void get(const QUrl& place, const QByteArray& authorization, int deadline, const Take& take);

    /// Path and query as a request says them.
    static QByteArray requestTarget(const QUrl& place);

    /// Of the last connection, as in DeviceIdentity; empty without TLS.
    QByteArray certificate() const { return m_certificate; }

private slots:
    void checkCertificate();
    void checkLength();
    void giveUp();
    void takeAnswer();

private:
    void begin(QNetworkReply* reply, int longest, int deadline, const Take& take);
    void fail(HttpAnswer::Error error);
    HttpAnswer answer() const;

    const QUrl m_device;
    const QByteArray m_wanted;
    QByteArray m_certificate;
    HttpAnswer::Error m_failure = HttpAnswer::None;
    Take m_take;
    QTimer m_deadline;
    QNetworkReply* m_reply = nullptr; ///< ours
    QByteArray m_body;
    int m_longest = LongestBody;
    const std::shared_ptr<QNetworkAccessManager> m_manager;
};

} // namespace ko

#endif
