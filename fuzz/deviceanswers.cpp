#include "Input.h"

#include "devices/DeviceAnswers.h"
#include "ko/MACAddress.h"
#include "model/NetworkAddress.h"
#include "network/NetworkText.h"

#include <initializer_list>

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

} // namespace

/// All readers, whatever the message is.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray message = fuzz::soap(data, size, nullptr);
    DeviceFacts facts;
    QDateTime utc;
    QString uri;
    DeviceAnswers::readEndpoint(message, facts);
    DeviceAnswers::readInformation(message, facts);
    DeviceAnswers::readNetworkInterfaces(message, facts);
    DeviceAnswers::readServices(message, facts);
    DeviceAnswers::readVideoSources(message, facts);
    DeviceAnswers::readProfiles(message, facts);
    fuzz::require(!DeviceAnswers::readDateAndTime(message, utc) ||
                      (utc.isValid() && utc.date().year() >= 1970),
                  "a time is one");
    DeviceAnswers::readUri(message, uri);
    fuzz::require(uri.size() <= DeviceAnswers::UriLength, "addresses are cut");
    requireClean(DeviceAnswers::readFault(message).text);
    for (const QString& text :
         {facts.maker, facts.model, facts.firmware, facts.serial, facts.hardware, facts.endpoint})
        requireClean(text);
    for (const QString& mac : std::as_const(facts.macAddresses))
        fuzz::require(MACAddress(mac).toString(true) == mac, "a MAC address is one");
    for (const QString& address : std::as_const(facts.addresses))
        fuzz::require(NetworkAddress::normalised(address) == address, "an address is one");
    for (const DeviceProfile& profile : std::as_const(facts.profiles))
        requireGood(profile);
    return 0;
}
