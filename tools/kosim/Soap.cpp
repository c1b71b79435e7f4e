#include "Soap.h"

#include <QXmlStreamReader>

namespace kosim {

SoapRequest SoapRequest::read(const QByteArray& message)
{
    SoapRequest request;
    QXmlStreamReader reader(message);
    QStringList path;
    while (!reader.atEnd()) {
        const auto token = reader.readNext();
        if (token == QXmlStreamReader::StartElement) {
            path.append(reader.name().toString());
            if (path.size() == 3 && path.at(1) == QLatin1String("Body"))
                request.operation = path.at(2);
        } else if (token == QXmlStreamReader::EndElement) {
            path.removeLast();
        } else if (token == QXmlStreamReader::Characters && !path.isEmpty()) {
            const QString& name = path.constLast();
            const QString text = reader.text().toString().trimmed();
            if (name == QLatin1String("MessageID"))
                request.messageId += text;
            else if (name == QLatin1String("Username"))
                request.user += text;
            else if (name == QLatin1String("Password"))
                request.password += text.toLatin1();
            else if (name == QLatin1String("Nonce"))
                request.nonce += text.toLatin1();
            else if (name == QLatin1String("Created"))
                request.created += text.toLatin1();
            else if (name == QLatin1String("ProfileToken"))
                request.profile += text;
        }
    }
    return reader.hasError() ? SoapRequest() : request;
}

QByteArray soapMessage(const QByteArray& body, const QByteArray& header)
{
    return R"(<?xml version="1.0" encoding="UTF-8"?>
<s:Envelope xmlns:s="http://www.w3.org/2003/05/soap-envelope" xmlns:a="http://schemas.xmlsoap.org/ws/2004/08/addressing" xmlns:d="http://schemas.xmlsoap.org/ws/2005/04/discovery" xmlns:dn="http://www.onvif.org/ver10/network/wsdl" xmlns:tds="http://www.onvif.org/ver10/device/wsdl" xmlns:trt="http://www.onvif.org/ver10/media/wsdl" xmlns:tt="http://www.onvif.org/ver10/schema" xmlns:ter="http://www.onvif.org/ver10/error"><s:Header>)" +
           header + "</s:Header><s:Body>" + body + "</s:Body></s:Envelope>";
}

QByteArray soapFault(const QByteArray& code, const QByteArray& subcode, const QByteArray& reason)
{
    return soapMessage("<s:Fault><s:Code><s:Value>s:" + code + "</s:Value><s:Subcode><s:Value>ter:" +
                       subcode + "</s:Value></s:Subcode></s:Code><s:Reason><s:Text xml:lang=\"en\">" +
                       reason + "</s:Text></s:Reason></s:Fault>");
}

} // namespace kosim
