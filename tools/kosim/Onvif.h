#ifndef KOSIM_ONVIF_H
#define KOSIM_ONVIF_H

#include "Behaviour.h"
#include "Soap.h"

#include <QByteArray>
#include <QHostAddress>
#include <QString>

namespace kosim {

/// The password that all devices take.
struct Account
{
    QString user = QStringLiteral("admin");
    QString password = QStringLiteral("kosim-pass");
};

/// What a device tells of itself.
struct Identity
{
    QString name;
    QByteArray macAddress;
    QByteArray model;
    QByteArray serial;
    QByteArray endpoint; ///< as a URN
    QHostAddress address;
    int rtspPort = 0;
    int httpPort = 0;
    bool hasTls = false;

    /// The beginning of its addresses, as "http://127.0.1.1:8080".
    QByteArray base() const;
};

struct HttpRequest
{
    QByteArray method;
    QByteArray path;
    QByteArray authorization;
    QByteArray body;
};

struct HttpReply
{
    int status = 200;
    QByteArray body;
    QByteArray type = "application/soap+xml; charset=utf-8";
    QByteArray headers; ///< besides length and type, each with its line end
    int delay = 0;      ///< ms; below 0 for never
    bool isEndless = false;
};

/// The services of one simulated camera, and its pictures.
class Onvif
{
public:
    explicit Onvif(Behaviour behaviour = Behaviour::Digest)
        : m_behaviour(behaviour)
    {
    }

    HttpReply answer(const HttpRequest& request, const Identity& identity, const Account& account);

    /// Asks for HTTP digest also where the services want a token, as web servers of devices do.
    HttpReply picture(const HttpRequest& request, const Identity& identity, const Account& account);

private:
    enum class Access { Granted, Asked, Wrong, Locked };

    HttpReply misbehave() const;
    HttpReply ask(Access access) const;
    HttpReply askByHttp(const QByteArray& realm) const;
    Access access(const HttpRequest& http, const SoapRequest& soap, const Account& account);
    Access accessToPicture(const HttpRequest& http, const Account& account);
    bool basicFits(const HttpRequest& http, const Account& account) const;
    bool digestFits(const HttpRequest& http, const QByteArray& realm, const Account& account) const;
    bool tokenFits(const SoapRequest& soap, const Account& account) const;
    qint64 clock() const;
    QByteArray realm() const;
    QByteArray pictureRealm() const;
    QByteArray perform(const SoapRequest& soap, const Identity& identity);

    Behaviour m_behaviour;
    int m_failures = 0;
    int m_lies = 0;
};

} // namespace kosim

#endif
