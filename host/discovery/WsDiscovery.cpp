#include "discovery/WsDiscovery.h"

#include "network/NetworkText.h"
#include "network/SoapWalk.h"

#include <QUrl>
#include <QUuid>

#include <algorithm>
#include <map>

namespace ko {

namespace WsDiscovery {

namespace {

const char probeText[] =
    R"(<?xml version="1.0" encoding="UTF-8"?>
<s:Envelope xmlns:s="http://www.w3.org/2003/05/soap-envelope" xmlns:a="http://schemas.xmlsoap.org/ws/2004/08/addressing" xmlns:d="http://schemas.xmlsoap.org/ws/2005/04/discovery" xmlns:t="%1"><s:Header><a:MessageID>urn:uuid:%2</a:MessageID><a:To s:mustUnderstand="true">urn:schemas-xmlsoap-org:ws:2005:04:discovery</a:To><a:Action s:mustUnderstand="true">http://schemas.xmlsoap.org/ws/2005/04/discovery/Probe</a:Action></s:Header><s:Body><d:Probe><d:Types>t:%3</d:Types></d:Probe></s:Body></s:Envelope>)";

/// A question asks for all of its types at once, so that each has one of its own.
const char* const asked[][2] = {
    {"http://www.onvif.org/ver10/network/wsdl", "NetworkVideoTransmitter"},
    {"http://www.onvif.org/ver10/device/wsdl", "Device"},
};

const QLatin1String scopeRoot("onvif://www.onvif.org/");

/// One device of a message.
struct Match
{
    QString endpoint;
    QStringList types;
    QStringList scopes;
    QStringList addresses;
};

struct TextScope
{
    const char* key;
    QString DiscoveredDevice::*field;
};

/// Under scopeRoot; keys in lower case. The first of several counts, except of the location's.
const TextScope textScopes[] = {
    {"name/", &DiscoveredDevice::name},
    {"hardware/", &DiscoveredDevice::model},
    {"mac/", &DiscoveredDevice::macAddress},
};
const QLatin1String locationScope("location/");

QString decoded(const QString& scopeValue)
{
    return QUrl::fromPercentEncoding(scopeValue.toUtf8());
}

/// Printers and computers speak WS-Discovery too.
bool isCamera(const Match& match)
{
    const auto isVideo = [](const QString& type) {
        const QString name = type.mid(type.indexOf(QLatin1Char(':')) + 1);
        return name.startsWith(QLatin1String("NetworkVideo"));
    };
    const auto isOnvif = [](const QString& scope) {
        return scope.startsWith(scopeRoot, Qt::CaseInsensitive);
    };
    return std::any_of(match.types.cbegin(), match.types.cend(), isVideo) ||
           std::any_of(match.scopes.cbegin(), match.scopes.cend(), isOnvif);
}

void takeScope(const QString& scope, DiscoveredDevice& device)
{
    if (!scope.startsWith(scopeRoot, Qt::CaseInsensitive))
        return;
    const QString item = scope.mid(scopeRoot.size());
    const QString key = item.toLower();
    for (const TextScope& known : textScopes) {
        if (key.startsWith(QLatin1String(known.key)) && (device.*known.field).isEmpty())
            device.*known.field = decoded(item.mid(int(qstrlen(known.key))));
    }
    if (key.startsWith(locationScope))
        device.location += (device.location.isEmpty() ? QString() : QStringLiteral(", ")) +
                           decoded(item.mid(locationScope.size()));
}

struct Place
{
    QString address;
    int port;
};

/// Where the device can be configured, one place for each kind of address; that of the sender, when it is
/// among them, counts more than others that the device claims. Names are not resolved: whoever announces one
/// could let us ask any server for it.
std::map<int, Place> placesOf(const Match& match, const QHostAddress& sender)
{
    std::map<int, Place> places;
    const QStringList addresses = match.addresses.mid(0, MostAddresses);
    for (const QString& text : addresses) {
        const QUrl url(text, QUrl::StrictMode);
        const bool isSecure = url.scheme() == QLatin1String("https");
        QHostAddress address;
        if ((!isSecure && url.scheme() != QLatin1String("http")) || !address.setAddress(url.host()))
            continue;
        const Place place = {address.toString(), url.port(isSecure ? 443 : 80)};
        const auto known = places.find(NetworkText::rank(place.address));
        if (known == places.end())
            places[NetworkText::rank(place.address)] = place;
        else if (address == sender && known->second.address != place.address)
            known->second = place;
    }
    if (places.empty())
        places[0] = {sender.toString(), 0};
    return places;
}

void appendDevices(const Match& match, const QHostAddress& sender, QVector<DiscoveredDevice>& devices)
{
    if (!isCamera(match))
        return;
    DiscoveredDevice device;
    device.service = QLatin1String(Service);
    device.identity = match.endpoint;
    for (const QString& scope : match.scopes)
        takeScope(scope, device);
    for (const auto& place : placesOf(match, sender)) {
        device.address = place.second.address;
        device.port = place.second.port;
        devices.append(device);
    }
}

QStringList wordsOf(const QString& text)
{
    return text.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

struct Field
{
    const char* path; ///< within the device
    void (*take)(Match& match, const QString& text);
};

const Field fields[] = {
    {"/EndpointReference/Address", [](Match& match, const QString& text) { match.endpoint = text; }},
    {"/Types", [](Match& match, const QString& text) { match.types = wordsOf(text); }},
    {"/Scopes", [](Match& match, const QString& text) { match.scopes = wordsOf(text); }},
    {"/XAddrs", [](Match& match, const QString& text) { match.addresses = wordsOf(text); }},
};

} // namespace

QVector<QByteArray> newProbes()
{
    QVector<QByteArray> probes;
    for (const auto& type : asked)
        probes.append(QString::fromLatin1(probeText)
                          .arg(QLatin1String(type[0]), QUuid::createUuid().toString(QUuid::WithoutBraces),
                               QLatin1String(type[1]))
                          .toUtf8());
    return probes;
}

QVector<DiscoveredDevice> read(const QByteArray& message, const QHostAddress& sender)
{
    const QLatin1String matchPath("ProbeMatches/ProbeMatch");
    const QLatin1String helloPath("Hello");
    QVector<Match> matches;
    Match current;
    const auto end = [&](const QString& path, const QString& text) {
        if (path == matchPath || path == helloPath) {
            matches.append(current);
            current = Match();
            return;
        }
        const auto isIn = [&path](QLatin1String device, const Field& field) {
            return path.startsWith(device) && path.mid(device.size()) == QLatin1String(field.path);
        };
        for (const Field& field : fields) {
            if (isIn(matchPath, field) || isIn(helloPath, field))
                field.take(current, text);
        }
    };
    QVector<DiscoveredDevice> devices;
    if (message.size() > LongestMessage || !SoapWalk::read(message, end).isEmpty())
        return devices;
    matches.resize(std::min<int>(MostMatches, int(matches.size())));
    for (const Match& match : std::as_const(matches))
        appendDevices(match, sender, devices);
    return devices;
}

} // namespace WsDiscovery

} // namespace ko
