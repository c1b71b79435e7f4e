#include "devices/DeviceAnswers.h"

#include "ko/MACAddress.h"
#include "model/NetworkAddress.h"
#include "network/NetworkText.h"
#include "network/SoapWalk.h"

#include <QUrl>
#include <QXmlStreamAttributes>

#include <algorithm>

namespace ko {

namespace DeviceAnswers {

namespace {

/// A text at a path, and what it is for.
template <class T>
struct Field
{
    const char* path;
    void (*take)(T& values, const QString& text);
};

/// Whether the message is good and has \a root, with each text taken that \a fields know.
template <class T, size_t N>
bool readFields(const QByteArray& message, const char* root, const Field<T> (&fields)[N], T& values)
{
    bool isThere = false;
    const QLatin1String rootPath(root);
    const QString error = SoapWalk::read(message, [&](const QString& path, const QString& text) {
        isThere = isThere || path == rootPath;
        for (const Field<T>& field : fields) {
            if (path == QLatin1String(field.path))
                field.take(values, text);
        }
    });
    return error.isEmpty() && isThere;
}

/// The first of several counts.
template <QString DeviceFacts::*Member>
void takeText(DeviceFacts& facts, const QString& text)
{
    if ((facts.*Member).isEmpty())
        facts.*Member = NetworkText::cleaned(text, TextLength);
}

int numberOf(const QString& text, int most)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    return isNumber && number > 0 && number <= most ? number : 0;
}

struct DateAndTime
{
    int parts[6] = {-1, -1, -1, -1, -1, -1};
};

template <int Part>
void takePart(DateAndTime& values, const QString& text)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    values.parts[Part] = isNumber ? number : -1;
}

const Field<DateAndTime> dateFields[] = {
    {"GetSystemDateAndTimeResponse/SystemDateAndTime/UTCDateTime/Date/Year", takePart<0>},
    {"GetSystemDateAndTimeResponse/SystemDateAndTime/UTCDateTime/Date/Month", takePart<1>},
    {"GetSystemDateAndTimeResponse/SystemDateAndTime/UTCDateTime/Date/Day", takePart<2>},
    {"GetSystemDateAndTimeResponse/SystemDateAndTime/UTCDateTime/Time/Hour", takePart<3>},
    {"GetSystemDateAndTimeResponse/SystemDateAndTime/UTCDateTime/Time/Minute", takePart<4>},
    {"GetSystemDateAndTimeResponse/SystemDateAndTime/UTCDateTime/Time/Second", takePart<5>},
};

const Field<DeviceFacts> informationFields[] = {
    {"GetDeviceInformationResponse/Manufacturer", takeText<&DeviceFacts::maker>},
    {"GetDeviceInformationResponse/Model", takeText<&DeviceFacts::model>},
    {"GetDeviceInformationResponse/FirmwareVersion", takeText<&DeviceFacts::firmware>},
    {"GetDeviceInformationResponse/SerialNumber", takeText<&DeviceFacts::serial>},
    {"GetDeviceInformationResponse/HardwareId", takeText<&DeviceFacts::hardware>},
};

const Field<DeviceFacts> endpointFields[] = {
    {"GetEndpointReferenceResponse/GUID",
     [](DeviceFacts& facts, const QString& text) { facts.endpoint = endpointOf(text); }},
};

void takeMac(DeviceFacts& facts, const QString& text)
{
    const QString mac = text.size() > 32 ? QString() : MACAddress(text).toString(true);
    if (!mac.isEmpty() && facts.macAddresses.size() < MostInterfaces && !facts.macAddresses.contains(mac))
        facts.macAddresses.append(mac);
}

void takeAddress(DeviceFacts& facts, const QString& text)
{
    const QString address = NetworkAddress::normalised(text);
    if (!address.isEmpty() && facts.addresses.size() < MostInterfaces && !facts.addresses.contains(address))
        facts.addresses.append(address);
}

const Field<DeviceFacts> networkFields[] = {
    {"GetNetworkInterfacesResponse/NetworkInterfaces/Info/HwAddress", takeMac},
    {"GetNetworkInterfacesResponse/NetworkInterfaces/IPv4/Config/Manual/Address", takeAddress},
    {"GetNetworkInterfacesResponse/NetworkInterfaces/IPv4/Config/FromDHCP/Address", takeAddress},
    {"GetNetworkInterfacesResponse/NetworkInterfaces/IPv4/Config/LinkLocal/Address", takeAddress},
    {"GetNetworkInterfacesResponse/NetworkInterfaces/IPv6/Config/Manual/Address", takeAddress},
    {"GetNetworkInterfacesResponse/NetworkInterfaces/IPv6/Config/FromDHCP/Address", takeAddress},
    {"GetNetworkInterfacesResponse/NetworkInterfaces/IPv6/Config/FromRA/Address", takeAddress},
    {"GetNetworkInterfacesResponse/NetworkInterfaces/IPv6/Config/LinkLocal/Address", takeAddress},
};

const Field<DeviceFacts> sourceFields[] = {
    {"GetVideoSourcesResponse/VideoSources",
     [](DeviceFacts& facts, const QString&) { facts.channels += facts.channels < 1000 ? 1 : 0; }},
};

struct Service
{
    DeviceFacts* facts;
    QString space;
    QString path;
};

const Field<Service> serviceFields[] = {
    {"GetServicesResponse/Service/Namespace",
     [](Service& service, const QString& text) { service.space = NetworkText::cleaned(text, UriLength); }},
    // Its host may be any: the service is asked for where the device was.
    {"GetServicesResponse/Service/XAddr",
     [](Service& service, const QString& text) { service.path = QUrl(text.left(UriLength)).path(); }},
    {"GetServicesResponse/Service",
     [](Service& service, const QString&) {
         DeviceFacts& facts = *service.facts;
         if (facts.services.size() < MostServices)
             facts.services.append(service.space);
         if (service.space == QLatin1String("http://www.onvif.org/ver10/media/wsdl"))
             facts.mediaPath = service.path;
         facts.hasPtz = facts.hasPtz || service.space == QLatin1String("http://www.onvif.org/ver20/ptz/wsdl");
         service = {&facts, QString(), QString()};
     }},
};

template <QString DeviceProfile::*Member>
void takeProfileText(DeviceProfile& profile, const QString& text)
{
    profile.*Member = NetworkText::cleaned(text, TextLength);
}

const int LongestSide = 65536; // pixels

const Field<DeviceProfile> profileFields[] = {
    {"/Name", takeProfileText<&DeviceProfile::name>},
    {"/VideoSourceConfiguration/SourceToken", takeProfileText<&DeviceProfile::source>},
    {"/VideoEncoderConfiguration/Encoding", takeProfileText<&DeviceProfile::encoding>},
    {"/VideoEncoderConfiguration/Resolution/Width",
     [](DeviceProfile& profile, const QString& text) {
         profile.resolution.setWidth(numberOf(text, LongestSide));
     }},
    {"/VideoEncoderConfiguration/Resolution/Height",
     [](DeviceProfile& profile, const QString& text) {
         profile.resolution.setHeight(numberOf(text, LongestSide));
     }},
    {"/VideoEncoderConfiguration/RateControl/FrameRateLimit",
     [](DeviceProfile& profile, const QString& text) {
         const double rate = text.toDouble();
         profile.rate = rate > 0 && rate <= 1000 ? rate : 0;
     }},
    {"/VideoEncoderConfiguration/RateControl/BitrateLimit",
     [](DeviceProfile& profile, const QString& text) { profile.bitrate = numberOf(text, 10000000); }},
    {"/PTZConfiguration", [](DeviceProfile& profile, const QString&) { profile.hasPtz = true; }},
};

const QLatin1String profilePath("GetProfilesResponse/Profiles");

/// What devices that have locked an account say, in different words.
bool speaksOfLock(const QString& text)
{
    return text.contains(QLatin1String("lock"), Qt::CaseInsensitive) ||
           text.contains(QLatin1String("too many"), Qt::CaseInsensitive);
}

struct FaultCodes
{
    QStringList codes;
    QString reason;
};

void takeCode(FaultCodes& fault, const QString& text)
{
    fault.codes.append(text.mid(text.indexOf(QLatin1Char(':')) + 1));
}

void takeReason(FaultCodes& fault, const QString& text)
{
    fault.reason = text;
}

const Field<FaultCodes> faultFields[] = {
    {"Fault/Code/Subcode/Value", takeCode}, {"Fault/Code/Subcode/Subcode/Value", takeCode},
    {"Fault/faultcode", takeCode},          {"Fault/Reason/Text", takeReason},
    {"Fault/faultstring", takeReason},
};

struct FaultKind
{
    const char* code; ///< in lower case
    DeviceFault::Kind kind;
};

const FaultKind faultKinds[] = {
    {"notauthorized", DeviceFault::NotAuthorized},
    {"failedauthentication", DeviceFault::NotAuthorized},
    {"operationprohibited", DeviceFault::NotAuthorized},
    {"invalidsecurity", DeviceFault::NotAuthorized},
    {"accountlocked", DeviceFault::LockedOut},
    {"actionnotsupported", DeviceFault::NotSupported},
    {"optionalactionnotimplemented", DeviceFault::NotSupported},
    {"nosuchservice", DeviceFault::NotSupported},
};

} // namespace

bool readDateAndTime(const QByteArray& message, QDateTime& utc)
{
    DateAndTime values;
    if (!readFields(message, "GetSystemDateAndTimeResponse", dateFields, values))
        return false;
    const QDate date(values.parts[0], values.parts[1], values.parts[2]);
    // A leap second is the one after.
    const QTime time(values.parts[3], values.parts[4], std::min(values.parts[5], 59));
    utc = QDateTime(date, time, Qt::UTC);
    return date.isValid() && time.isValid() && date.year() >= 1970;
}

bool readEndpoint(const QByteArray& message, DeviceFacts& facts)
{
    return readFields(message, "GetEndpointReferenceResponse", endpointFields, facts);
}

bool readInformation(const QByteArray& message, DeviceFacts& facts)
{
    return readFields(message, "GetDeviceInformationResponse", informationFields, facts);
}

bool readNetworkInterfaces(const QByteArray& message, DeviceFacts& facts)
{
    return readFields(message, "GetNetworkInterfacesResponse", networkFields, facts);
}

bool readServices(const QByteArray& message, DeviceFacts& facts)
{
    Service service = {&facts, QString(), QString()};
    return readFields(message, "GetServicesResponse", serviceFields, service);
}

bool readVideoSources(const QByteArray& message, DeviceFacts& facts)
{
    return readFields(message, "GetVideoSourcesResponse", sourceFields, facts);
}

bool readProfiles(const QByteArray& message, DeviceFacts& facts)
{
    bool isThere = false;
    DeviceProfile profile;
    const auto begin = [&](const QString& path, const QXmlStreamAttributes& attributes) {
        if (path != profilePath)
            return;
        profile = DeviceProfile();
        profile.token = attributes.value(QLatin1String("token")).toString();
    };
    const auto end = [&](const QString& path, const QString& text) {
        isThere = isThere || path == QLatin1String("GetProfilesResponse");
        if (!path.startsWith(profilePath))
            return;
        for (const Field<DeviceProfile>& field : profileFields) {
            if (path.mid(profilePath.size()) == QLatin1String(field.path))
                field.take(profile, text);
        }
        // A token that is too long cannot be asked for.
        if (path == profilePath && facts.profiles.size() < MostProfiles &&
            profile.token.size() <= TokenLength)
            facts.profiles.append(profile);
    };
    return SoapWalk::read(message, begin, end).isEmpty() && isThere;
}

bool readUri(const QByteArray& message, QString& uri)
{
    const auto end = [&uri](const QString& path, const QString& text) {
        if (path == QLatin1String("GetStreamUriResponse/MediaUri/Uri") ||
            path == QLatin1String("GetSnapshotUriResponse/MediaUri/Uri"))
            uri = NetworkText::cleaned(text, UriLength);
    };
    return SoapWalk::read(message, end).isEmpty() && !uri.isEmpty();
}

DeviceFault readFault(const QByteArray& message)
{
    FaultCodes codes;
    DeviceFault fault;
    if (!readFields(message, "Fault", faultFields, codes))
        return fault;
    fault.kind = DeviceFault::Other;
    fault.text = NetworkText::cleaned(codes.reason, TextLength);
    for (const FaultKind& known : faultKinds) {
        if (codes.codes.contains(QLatin1String(known.code), Qt::CaseInsensitive)) {
            fault.kind = known.kind;
            break;
        }
    }
    if (fault.kind == DeviceFault::NotAuthorized && speaksOfLock(codes.reason))
        fault.kind = DeviceFault::LockedOut;
    return fault;
}

QString endpointOf(const QString& reference)
{
    const QString text = NetworkText::cleaned(reference, TextLength).toLower();
    return text.mid(text.lastIndexOf(QLatin1Char(':')) + 1);
}

} // namespace DeviceAnswers

} // namespace ko
