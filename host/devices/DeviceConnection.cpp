#include "devices/DeviceConnection.h"

#include "devices/PictureReader.h"

#include <QCryptographicHash>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QSslCertificate>
#include <QSslConfiguration>

#include <utility>

namespace ko {

namespace {

const int ReadBuffer = 65536; // bytes; who sends faster than we look waits

QNetworkRequest requestFor(const QUrl& url, const QByteArray& authorization)
{
    QNetworkRequest request(url);
    if (!authorization.isEmpty())
        request.setRawHeader("Authorization", authorization);
    request.setRawHeader("User-Agent", "konodeui");
    // What is packed may be a bomb.
    request.setRawHeader("Accept-Encoding", "identity");
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    request.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    request.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
    tls.setPeerVerifyMode(QSslSocket::VerifyNone); // hardly a camera's is signed; see checkCertificate()
    request.setSslConfiguration(tls);
    return request;
}

TranslatableText textOf(HttpAnswer::Error error)
{
    switch (error) {
    case HttpAnswer::TimedOut:
        return {"DeviceConnection", QT_TRANSLATE_NOOP("DeviceConnection", "no answer in time")};
    case HttpAnswer::TooLong:
        return {"DeviceConnection", QT_TRANSLATE_NOOP("DeviceConnection", "the answer is too long")};
    case HttpAnswer::Elsewhere:
        return {"DeviceConnection", QT_TRANSLATE_NOOP("DeviceConnection", "it redirects to another address")};
    case HttpAnswer::OtherCertificate:
        return {"DeviceConnection",
                QT_TRANSLATE_NOOP("DeviceConnection", "it has another certificate than before")};
    case HttpAnswer::None:
    case HttpAnswer::NotReached:
        break;
    }
    return TranslatableText();
}

} // namespace

DeviceConnection::DeviceConnection(const QUrl& device, const std::shared_ptr<QNetworkAccessManager>& manager,
                                   const QByteArray& certificate)
    : m_device(device)
    , m_wanted(certificate)
    , m_manager(manager)
{
    m_deadline.setSingleShot(true);
    connect(&m_deadline, &QTimer::timeout, this, &DeviceConnection::giveUp);
}

DeviceConnection::~DeviceConnection()
{
    if (m_reply)
        disconnect(m_reply, nullptr, this, nullptr);
    delete m_reply;
}

void DeviceConnection::post(const QString& path, const QByteArray& message, const QByteArray& authorization,
                            int deadline, const Take& take)
{
    QUrl url = m_device;
    url.setPath(path);
    QNetworkRequest request = requestFor(url, authorization);
    request.setHeader(QNetworkRequest::ContentTypeHeader,
                      QByteArrayLiteral("application/soap+xml; charset=utf-8"));
    begin(m_manager->post(request, message), LongestBody, deadline, take);
}

void DeviceConnection::get(const QUrl& place, const QByteArray& authorization, int deadline, const Take& take)
{
    QUrl url = m_device;
    url.setPath(place.path(QUrl::FullyEncoded), QUrl::TolerantMode); // encoded as it was
    url.setQuery(place.query(QUrl::FullyEncoded));
    begin(m_manager->get(requestFor(url, authorization)), PictureReader::LongestPicture, deadline, take);
}

QByteArray DeviceConnection::requestTarget(const QUrl& place)
{
    const QByteArray path = place.path(QUrl::FullyEncoded).toLatin1();
    return place.hasQuery() ? path + '?' + place.query(QUrl::FullyEncoded).toLatin1() : path;
}

void DeviceConnection::begin(QNetworkReply* reply, int longest, int deadline, const Take& take)
{
    m_take = take;
    m_failure = HttpAnswer::None;
    m_body.clear();
    m_longest = longest;
    m_reply = reply;
    m_reply->setReadBufferSize(ReadBuffer);
    // A reply that has something to send starts later, and forgets what it was told before.
    QMetaObject::invokeMethod(
        reply, [reply] { reply->setReadBufferSize(ReadBuffer); }, Qt::QueuedConnection);
    connect(m_reply, &QNetworkReply::encrypted, this, &DeviceConnection::checkCertificate);
    connect(m_reply, &QNetworkReply::readyRead, this, &DeviceConnection::checkLength);
    connect(m_reply, &QNetworkReply::finished, this, &DeviceConnection::takeAnswer);
    m_deadline.start(deadline);
}

/// Nothing is sent before this has returned.
void DeviceConnection::checkCertificate()
{
    m_certificate = m_reply->sslConfiguration().peerCertificate().digest(QCryptographicHash::Sha256).toHex();
    if (!m_wanted.isEmpty() && m_certificate != m_wanted)
        fail(HttpAnswer::OtherCertificate);
}

void DeviceConnection::checkLength()
{
    m_body += m_reply->readAll();
    if (m_body.size() > m_longest)
        fail(HttpAnswer::TooLong);
}

void DeviceConnection::giveUp()
{
    fail(HttpAnswer::TimedOut);
}

void DeviceConnection::fail(HttpAnswer::Error error)
{
    if (!m_reply || m_failure != HttpAnswer::None)
        return;
    m_failure = error;
    m_reply->abort();
}

HttpAnswer DeviceConnection::answer() const
{
    HttpAnswer answer;
    answer.status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    answer.error = m_failure != HttpAnswer::None ? m_failure
                   : answer.status == 0          ? HttpAnswer::NotReached
                   : answer.status / 100 == 3    ? HttpAnswer::Elsewhere
                                                 : HttpAnswer::None;
    answer.text = answer.error == HttpAnswer::NotReached ? TranslatableText(m_reply->errorString())
                                                         : textOf(answer.error);
    if (answer.error == HttpAnswer::None) {
        answer.body = m_body;
        answer.challenges = m_reply->rawHeader("WWW-Authenticate");
    }
    return answer;
}

void DeviceConnection::takeAnswer()
{
    m_deadline.stop();
    if (m_failure == HttpAnswer::None)
        m_body += m_reply->readAll();
    if (m_body.size() > m_longest && m_failure == HttpAnswer::None)
        m_failure = HttpAnswer::TooLong;
    const HttpAnswer result = answer();
    std::exchange(m_reply, nullptr)->deleteLater();
    std::exchange(m_take, nullptr)(result);
}

} // namespace ko
