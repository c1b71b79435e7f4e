#include "Input.h"

#include "devices/DeviceAnswers.h"
#include "ko/MACAddress.h"
#include "model/NetworkAddress.h"
#include "network/NetworkText.h"

#include <initializer_list>
#include <iterator>

using namespace ko;

namespace {

void requireClean(const QString& text)
{
    fuzz::require(text.size() <= DeviceAnswers::TextLength, "texts are cut");
    fuzz::require(NetworkText::cleaned(text, DeviceAnswers::TextLength) == text, "texts are clean");
}

void requireGood(const DeviceProfile& profile)
{
    for (const QString& text : {profile.name, profile.source, profile.encoding})
        requireClean(text);
    fuzz::require(profile.token.size() <= DeviceAnswers::TokenLength, "tokens are short");
    fuzz::require(profile.rate >= 0 && profile.rate <= 1000 && profile.bitrate >= 0, "numbers are possible");
    fuzz::require(profile.resolution.width() <= 65536 && profile.resolution.height() <= 65536,
                  "pictures are possible");
}

void requireGood(const DeviceFacts& facts)
{
    for (const QString& text :
         {facts.maker, facts.model, facts.firmware, facts.serial, facts.hardware, facts.endpoint})
        requireClean(text);
    for (const QString& mac : facts.macAddresses)
        fuzz::require(MACAddress(mac).toString(true) == mac, "a MAC address is one");
    for (const QString& address : facts.addresses)
        fuzz::require(NetworkAddress::normalised(address) == address, "an address is one");
    for (const DeviceProfile& profile : facts.profiles)
        requireGood(profile);
}

/// A reader, with the element that it wants.
struct Reader
{
    const char* element;
    bool (*read)(const QByteArray& message);
};

bool readTime(const QByteArray& message)
{
    QDateTime utc;
    const bool isRead = DeviceAnswers::readDateAndTime(message, utc);
    fuzz::require(!isRead || (utc.isValid() && utc.date().year() >= 1970), "a time is one");
    return isRead;
}

bool readUri(const QByteArray& message)
{
    QString uri;
    const bool isRead = DeviceAnswers::readUri(message, uri);
    fuzz::require(uri.size() <= DeviceAnswers::UriLength, "addresses are cut");
    return isRead;
}

bool readFault(const QByteArray& message)
{
    const DeviceFault fault = DeviceAnswers::readFault(message);
    requireClean(fault.text);
    return fault.kind != DeviceFault::None;
}

template <bool (*Read)(const QByteArray& message, DeviceFacts& facts)>
bool readFacts(const QByteArray& message)
{
    DeviceFacts facts;
    const bool isRead = Read(message, facts);
    requireGood(facts);
    return isRead;
}

const Reader readers[] = {
    {"GetSystemDateAndTimeResponse", readTime},
    {"GetEndpointReferenceResponse", readFacts<DeviceAnswers::readEndpoint>},
    {"GetDeviceInformationResponse", readFacts<DeviceAnswers::readInformation>},
    {"GetNetworkInterfacesResponse", readFacts<DeviceAnswers::readNetworkInterfaces>},
    {"GetServicesResponse", readFacts<DeviceAnswers::readServices>},
    {"GetVideoSourcesResponse", readFacts<DeviceAnswers::readVideoSources>},
    {"GetProfilesResponse", readFacts<DeviceAnswers::readProfiles>},
    {"GetStreamUriResponse", readUri},
    {"GetSnapshotUriResponse", readUri},
    {"Fault", readFault},
};

/// How often each has taken a message for an answer of its own.
struct Counts
{
    ~Counts()
    {
        for (size_t i = 0; i < std::size(readers); ++i)
            std::fprintf(stderr, "%s: read %ld of %ld\n", readers[i].element, read[i], tried[i]);
    }

    long read[std::size(readers)] = {};
    long tried[std::size(readers)] = {};
};

} // namespace

/// The first byte says which, and whether it gets its own element or has to find it.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static Counts counts;
    if (size == 0)
        return 0;
    const size_t i = size_t(data[0] >> 1) % std::size(readers);
    ++counts.tried[i];
    counts.read[i] += readers[i].read(fuzz::soap(data, size, readers[i].element)) ? 1 : 0;
    return 0;
}
