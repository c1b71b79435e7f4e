#include "Onvif.h"

#include "OnvifAnswers.h"
#include "Snapshot.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QMap>
#include <QRegularExpression>

namespace kosim {

namespace {

const int FailuresUntilLocked = 3;
const int ClockTolerance = 60;                 // s
const int WrongBy = -(3 * 3600 + 2 * 60);      // s
const int SlowBy = 2000;                       // ms
const char nonce[] = "6b6f73696d2d6e6f6e6365"; // one will do for a simulator

QByteArray md5(const QByteArray& text)
{
    return QCryptographicHash::hash(text, QCryptographicHash::Md5).toHex();
}

QMap<QString, QByteArray> parametersOf(const QByteArray& authorization)
{
    static const QRegularExpression parameter(QStringLiteral("(\\w+)=(?:\"([^\"]*)\"|([^\\s,]+))"));
    QMap<QString, QByteArray> parameters;
    auto matches = parameter.globalMatch(QString::fromUtf8(authorization));
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        parameters[match.captured(1)] = (match.captured(2) + match.captured(3)).toUtf8();
    }
    return parameters;
}

/// Nothing of it is secret.
bool isForAll(const QString& operation)
{
    static const QStringList all = {QStringLiteral("GetSystemDateAndTime"),
                                    QStringLiteral("GetEndpointReference"), QStringLiteral("GetServices"),
                                    QStringLiteral("GetCapabilities")};
    return all.contains(operation);
}

} // namespace

QByteArray Identity::base() const
{
    return QByteArray(hasTls ? "https://" : "http://") + address.toString().toLatin1() + ':' +
           QByteArray::number(httpPort);
}

HttpReply Onvif::answer(const HttpRequest& request, const Identity& identity, const Account& account)
{
    HttpReply reply = misbehave();
    if (m_behaviour >= Behaviour::Silent)
        return reply;
    const SoapRequest soap = SoapRequest::read(request.body);
    if (soap.operation.isEmpty()) {
        reply.status = 400;
        reply.body = soapFault("Sender", "WellFormed", "no SOAP");
        return reply;
    }
    const Access granted = isForAll(soap.operation) ? Access::Granted : access(request, soap, account);
    if (granted != Access::Granted) {
        const int delay = reply.delay;
        reply = ask(granted);
        reply.delay = delay;
        return reply;
    }
    reply.body = perform(soap, identity);
    if (reply.body.isEmpty()) {
        reply.status = 500;
        reply.body = soapFault("Receiver", "ActionNotSupported", "Optional Action Not Implemented");
    }
    return reply;
}

HttpReply Onvif::picture(const HttpRequest& request, const Identity& identity, const Account& account)
{
    HttpReply reply = misbehave();
    if (m_behaviour >= Behaviour::Silent)
        return reply;
    const int delay = reply.delay;
    const Access granted = accessToPicture(request, account);
    if (granted == Access::Locked)
        reply = ask(granted);
    else if (granted == Access::Granted)
        reply = Snapshot::answer(m_behaviour, request.path, identity);
    else
        reply = askByHttp(pictureRealm());
    reply.delay = delay;
    return reply;
}

Onvif::Access Onvif::accessToPicture(const HttpRequest& http, const Account& account)
{
    if (m_behaviour == Behaviour::Open)
        return Access::Granted;
    if (m_behaviour == Behaviour::Locks && m_failures >= FailuresUntilLocked)
        return Access::Locked;
    if (http.authorization.isEmpty())
        return Access::Asked;
    const bool fits = m_behaviour == Behaviour::Basic ? basicFits(http, account)
                                                      : digestFits(http, pictureRealm(), account);
    m_failures = fits ? 0 : m_failures + 1;
    return fits ? Access::Granted : Access::Wrong;
}

/// For those that answer, only the delay.
HttpReply Onvif::misbehave() const
{
    HttpReply reply;
    switch (m_behaviour) {
    case Behaviour::Slow:
        reply.delay = SlowBy;
        break;
    case Behaviour::Silent:
        reply.delay = -1;
        break;
    case Behaviour::Broken:
        reply.body = OnvifAnswers::halfAMessage();
        break;
    case Behaviour::Web:
        reply.status = 404;
        reply.body = "<html><body><h1>Not Found</h1><img src=x></body></html>";
        break;
    case Behaviour::Bomb:
        reply.body = OnvifAnswers::bomb();
        break;
    case Behaviour::Tag:
        reply.body = OnvifAnswers::endlessTag();
        break;
    case Behaviour::Endless:
        reply.body = soapMessage("<x>");
        reply.isEndless = true;
        break;
    case Behaviour::Redirect:
        reply.status = 302;
        reply.headers = "Location: http://192.0.2.1/onvif/device_service\r\n";
        break;
    default:
        break;
    }
    return reply;
}

HttpReply Onvif::ask(Access access) const
{
    HttpReply reply;
    if (access == Access::Locked) {
        reply.status = 400;
        reply.body = soapFault("Sender", "NotAuthorized", "The account is locked, try again in 300 seconds");
        return reply;
    }
    const bool isToken = m_behaviour == Behaviour::Token || m_behaviour == Behaviour::WrongClock;
    if (isToken)
        reply.status = 400;
    else
        reply = askByHttp(realm());
    reply.body = soapFault("Sender", "NotAuthorized", "The action requested requires authorization");
    return reply;
}

HttpReply Onvif::askByHttp(const QByteArray& realm) const
{
    HttpReply reply;
    reply.status = 401;
    if (m_behaviour == Behaviour::Basic)
        reply.headers = "WWW-Authenticate: Basic realm=\"kosim\"\r\n";
    else
        reply.headers = "WWW-Authenticate: Digest realm=\"" + realm + "\", nonce=\"" + nonce +
                        "\", algorithm=MD5, qop=\"auth\"\r\n";
    return reply;
}

Onvif::Access Onvif::access(const HttpRequest& http, const SoapRequest& soap, const Account& account)
{
    const bool isTold = !http.authorization.isEmpty() || !soap.password.isEmpty();
    if (m_behaviour == Behaviour::Open)
        return Access::Granted;
    if (m_behaviour == Behaviour::Locks && m_failures >= FailuresUntilLocked)
        return Access::Locked;
    if (!isTold)
        return Access::Asked;
    bool fits = false;
    if (m_behaviour == Behaviour::Token || m_behaviour == Behaviour::WrongClock)
        fits = tokenFits(soap, account);
    else if (m_behaviour == Behaviour::Basic)
        fits = basicFits(http, account);
    else
        fits = digestFits(http, realm(), account);
    m_failures = fits ? 0 : m_failures + 1;
    return fits ? Access::Granted : Access::Wrong;
}

bool Onvif::basicFits(const HttpRequest& http, const Account& account) const
{
    return http.authorization ==
           "Basic " + (account.user + QLatin1Char(':') + account.password).toUtf8().toBase64();
}

bool Onvif::digestFits(const HttpRequest& http, const QByteArray& realm, const Account& account) const
{
    if (!http.authorization.startsWith("Digest "))
        return false;
    const QMap<QString, QByteArray> told = parametersOf(http.authorization);
    const auto value = [&told](const char* name) { return told.value(QLatin1String(name)); };
    const QByteArray secret = md5(account.user.toUtf8() + ':' + realm + ':' + account.password.toUtf8());
    const QByteArray expected = md5(secret + ':' + nonce + ':' + value("nc") + ':' + value("cnonce") +
                                    ":auth:" + md5(http.method + ':' + http.path));
    return value("username") == account.user.toUtf8() && value("realm") == realm && value("nonce") == nonce &&
           value("uri") == http.path && value("response") == expected;
}

bool Onvif::tokenFits(const SoapRequest& soap, const Account& account) const
{
    const QByteArray expected = QCryptographicHash::hash(QByteArray::fromBase64(soap.nonce) + soap.created +
                                                             account.password.toUtf8(),
                                                         QCryptographicHash::Sha1)
                                    .toBase64();
    const QDateTime created = QDateTime::fromString(QString::fromLatin1(soap.created), Qt::ISODate);
    return created.isValid() && qAbs(created.toSecsSinceEpoch() - clock()) <= ClockTolerance &&
           soap.user == account.user && soap.password == expected;
}

qint64 Onvif::clock() const
{
    return QDateTime::currentSecsSinceEpoch() + (m_behaviour == Behaviour::WrongClock ? WrongBy : 0);
}

QByteArray Onvif::realm() const
{
    return m_behaviour == Behaviour::Foreign ? "bank.example" : "kosim";
}

QByteArray Onvif::pictureRealm() const
{
    return m_behaviour == Behaviour::RealmPicture ? "bank.example" : realm();
}

QByteArray Onvif::perform(const SoapRequest& soap, const Identity& identity)
{
    if (m_behaviour == Behaviour::ElsewherePicture && soap.operation == QLatin1String("GetSnapshotUri"))
        return OnvifAnswers::snapshotElsewhere();
    if (m_behaviour != Behaviour::Lying)
        return OnvifAnswers::perform(soap, identity, clock());
    Identity other = identity;
    other.serial = "LIE-" + QByteArray::number(++m_lies);
    other.endpoint = "urn:uuid:00000000-0000-0000-0000-" + QByteArray::number(m_lies).rightJustified(12, '0');
    return OnvifAnswers::perform(soap, other, clock());
}

} // namespace kosim
