#include "devices/SoapRequest.h"

#include <QCryptographicHash>
#include <QRandomGenerator>

#include <array>

namespace ko {

namespace SoapRequest {

namespace {

const int NonceWords = 4; // of 32 bits

/// In the order of Operation; %1 is the profile.
struct Call
{
    const char* space;
    const char* body;
};

const char deviceSpace[] = "http://www.onvif.org/ver10/device/wsdl";
const char mediaSpace[] = "http://www.onvif.org/ver10/media/wsdl";

const Call calls[] = {
    {deviceSpace, "<o:GetSystemDateAndTime/>"},
    {deviceSpace, "<o:GetEndpointReference/>"},
    {deviceSpace, "<o:GetDeviceInformation/>"},
    {deviceSpace, "<o:GetNetworkInterfaces/>"},
    {deviceSpace, "<o:GetServices><o:IncludeCapability>false</o:IncludeCapability></o:GetServices>"},
    {mediaSpace, "<o:GetVideoSources/>"},
    {mediaSpace, "<o:GetProfiles/>"},
    {mediaSpace,
     "<o:GetStreamUri><o:StreamSetup><t:Stream>RTP-Unicast</t:Stream><t:Transport><t:Protocol>RTSP"
     "</t:Protocol></t:Transport></o:StreamSetup><o:ProfileToken>%1</o:ProfileToken></o:GetStreamUri>"},
    {mediaSpace, "<o:GetSnapshotUri><o:ProfileToken>%1</o:ProfileToken></o:GetSnapshotUri>"},
};

const Call& callOf(Operation operation)
{
    return calls[size_t(operation)];
}

} // namespace

bool isOfMedia(Operation operation)
{
    return callOf(operation).space == mediaSpace;
}

QByteArray message(Operation operation, const QString& profile, const QByteArray& security)
{
    const Call& call = callOf(operation);
    const QByteArray body = QByteArray(call.body).replace("%1", profile.toHtmlEscaped().toUtf8());
    return R"(<?xml version="1.0" encoding="UTF-8"?><s:Envelope )"
           R"(xmlns:s="http://www.w3.org/2003/05/soap-envelope" xmlns:t="http://www.onvif.org/ver10/schema" )"
           R"(xmlns:o=")" +
           QByteArray(call.space) + R"("><s:Header>)" + security + "</s:Header><s:Body>" + body +
           "</s:Body></s:Envelope>";
}

QByteArray usernameToken(const QString& user, const QString& password, const QDateTime& created,
                         const QByteArray& nonce)
{
    const QByteArray time = created.toUTC().toString(QStringLiteral("yyyy-MM-ddThh:mm:ssZ")).toLatin1();
    const QByteArray digest =
        QCryptographicHash::hash(nonce + time + password.toUtf8(), QCryptographicHash::Sha1).toBase64();
    return R"(<w:Security s:mustUnderstand="true" )"
           R"(xmlns:w="http://docs.oasis-open.org/wss/2004/01/oasis-200401-wss-wssecurity-secext-1.0.xsd" )"
           R"(xmlns:u="http://docs.oasis-open.org/wss/2004/01/oasis-200401-wss-wssecurity-utility-1.0.xsd">)"
           R"(<w:UsernameToken><w:Username>)" +
           user.toHtmlEscaped().toUtf8() +
           R"(</w:Username><w:Password Type="http://docs.oasis-open.org/wss/2004/01/oasis-200401-wss-username-token-profile-1.0#PasswordDigest">)" +
           digest +
           R"(</w:Password><w:Nonce EncodingType="http://docs.oasis-open.org/wss/2004/01/oasis-200401-wss-soap-message-security-1.0#Base64Binary">)" +
           nonce.toBase64() + "</w:Nonce><u:Created>" + time + "</u:Created></w:UsernameToken></w:Security>";
}

QByteArray usernameToken(const QString& user, const QString& password, const QDateTime& created)
{
    std::array<quint32, NonceWords> nonce = {};
    QRandomGenerator::system()->fillRange(nonce.data(), NonceWords);
    return usernameToken(user, password, created,
                         QByteArray(reinterpret_cast<const char*>(nonce.data()), int(sizeof nonce)));
}

} // namespace SoapRequest

} // namespace ko
