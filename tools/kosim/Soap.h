#ifndef KOSIM_SOAP_H
#define KOSIM_SOAP_H

#include <QByteArray>
#include <QString>

namespace kosim {

/// What the simulated devices read of a SOAP message, and how they answer.
struct SoapRequest
{
    QString operation; ///< local name of what is asked for; empty when the message is no good
    QString messageId;
    QString profile; ///< token
    QString user;
    QByteArray password; ///< digest of a UsernameToken; empty without one
    QByteArray nonce;    ///< as sent, base64
    QByteArray created;

    static SoapRequest read(const QByteArray& message);
};

/// An envelope with the namespaces of ONVIF and WS-Discovery around \a body.
QByteArray soapMessage(const QByteArray& body, const QByteArray& header = QByteArray());

QByteArray soapFault(const QByteArray& code, const QByteArray& subcode, const QByteArray& reason);

} // namespace kosim

#endif
