#include "devices/NodeFacts.h"

#include "drivers/DeviceAddresses.h"
#include "drivers/FactoryExtension.h"
#include "ko/IPDeviceNode.h"
#include "ko/PropertyKeys.h"
#include "model/NetworkAddress.h"
#include "model/NumberedTexts.h"
#include "model/PropertyList.h"
#include "utils/NodeDBUtils.h"

#include <QCoreApplication>
#include <QHostAddress>
#include <QUrl>

#include <algorithm>

namespace ko {

namespace NodeFacts {

namespace {

// This host's own keys. They are stored: never change one.
const QLatin1String Channels("Channels");       // int: video sources
const QLatin1String Resolutions("Resolutions"); // a set of strings
const QLatin1String CanTurn("CanTurn");         // bool

/// An invalid value where the device tells nothing, or nothing that is fit for the node.
typedef QVariant (*Told)(const IPDeviceNode& node, const DeviceFacts& facts);

QVariant textOrNone(const QString& text)
{
    return text.isEmpty() ? QVariant() : QVariant(text);
}

QVariant model(const IPDeviceNode&, const DeviceFacts& facts)
{
    return textOrNone(facts.model);
}

QVariant version(const IPDeviceNode&, const DeviceFacts& facts)
{
    return textOrNone(facts.firmware);
}

/// The one that the node has, if it is one of the device's.
QString macOf(const IPDeviceNode& node, const DeviceFacts& facts)
{
    QString known = node.macAddress().toString(true);
    if (facts.macAddresses.contains(known))
        return known;
    const auto usable =
        std::find_if(facts.macAddresses.cbegin(), facts.macAddresses.cend(),
                     [](const QString& mac) { return !FactoryExtension::ofMac(mac).isEmpty(); });
    return usable == facts.macAddresses.cend() ? QString() : *usable;
}

QVariant macAddress(const IPDeviceNode& node, const DeviceFacts& facts)
{
    return textOrNone(macOf(node, facts));
}

/// With the one at which it answered, whatever it tells.
QVariant addresses(const IPDeviceNode& node, const DeviceFacts& facts)
{
    QStringList all(NetworkAddress::normalised(node.address()));
    for (const QString& address : facts.addresses) {
        if (!QHostAddress(address).isLoopback())
            all.append(address);
    }
    all.removeAll(QString());
    all.removeDuplicates();
    return facts.addresses.isEmpty()
               ? QVariant()
               : QVariant::fromValue(DeviceAddresses::toSet(DeviceAddresses::merged(QStringList(), all)));
}

/// There are recordings in the folder of one that is there.
QVariant extension(const IPDeviceNode& node, const DeviceFacts& facts)
{
    const QString known = node.stringProperty(PropertyKeys::FactoryIP, QString());
    if (!FactoryExtension::isNone(known))
        return QVariant();
    const QString ownMac = node.macAddress().toString(true);
    const QString made = FactoryExtension::ofChannel(ownMac.isEmpty() ? macOf(node, facts) : ownMac,
                                                     node.intProperty(PropertyKeys::Channel, 0));
    return textOrNone(made.isEmpty() ? FactoryExtension::ofSerial(facts.serial) : made);
}

QVariant channels(const IPDeviceNode&, const DeviceFacts& facts)
{
    return facts.channels > 0 ? QVariant(facts.channels) : QVariant();
}

QVariant resolutions(const IPDeviceNode&, const DeviceFacts& facts)
{
    QStringList texts;
    for (const DeviceProfile& profile : facts.profiles) {
        const QSize size = profile.resolution;
        if (size.isEmpty())
            continue;
        const QString known = NodeDBUtils::ResolutionToString(size.width(), size.height());
        texts.append(known.isEmpty() ? QString::fromLatin1("%1 (%2x%3)")
                                           .arg(NodeDBUtils::sm_ResCustom)
                                           .arg(size.width())
                                           .arg(size.height())
                                     : known);
    }
    texts.removeDuplicates();
    return texts.isEmpty() ? QVariant() : QVariant::fromValue(NumberedTexts::toSet(texts));
}

/// Whether credentials for \a node may go there: a device may name anybody's address.
bool isOwn(const QUrl& url, const IPDeviceNode& node)
{
    static const QLatin1String schemes[] = {QLatin1String("http"), QLatin1String("https"),
                                            QLatin1String("rtsp")};
    return url.isValid() && url.userInfo().isEmpty() && !url.host().isEmpty() &&
           NetworkAddress::key(url.host()) == NetworkAddress::key(node.address()) &&
           std::find(std::begin(schemes), std::end(schemes), url.scheme()) != std::end(schemes);
}

/// The first M-JPEG stream; ONVIF has no URLs that turn a camera.
QVariant stream(const IPDeviceNode& node, const DeviceFacts& facts)
{
    if (node.type != UrlCameraType)
        return QVariant();
    for (const DeviceProfile& profile : facts.profiles) {
        const bool isJpeg = profile.encoding.compare(QLatin1String("JPEG"), Qt::CaseInsensitive) == 0;
        if (isJpeg && isOwn(QUrl(profile.streamUri, QUrl::StrictMode), node))
            return profile.streamUri;
    }
    return QVariant();
}

/// That it cannot is only known of one that told what it can.
QVariant canTurn(const IPDeviceNode&, const DeviceFacts& facts)
{
    return facts.services.isEmpty() && facts.profiles.isEmpty() ? QVariant() : QVariant(facts.hasPtz);
}

const struct
{
    QLatin1String key;
    const char* title;
    Told told;
    bool isUsers; ///< whether a user can set it
} known[] = {
    {PropertyKeys::Model, QT_TRANSLATE_NOOP("NodeFacts", "Model"), model, true},
    {PropertyKeys::Version, QT_TRANSLATE_NOOP("NodeFacts", "Software version"), version, true},
    {PropertyKeys::MacAddress, QT_TRANSLATE_NOOP("NodeFacts", "MAC address"), macAddress, true},
    {PropertyKeys::IPAddresses, QT_TRANSLATE_NOOP("NodeFacts", "Current IP addresses"), addresses, false},
    {PropertyKeys::FactoryIP, QT_TRANSLATE_NOOP("NodeFacts", "Factory IP address"), extension, true},
    {PropertyKeys::UrlPTZStream, QT_TRANSLATE_NOOP("NodeFacts", "Live stream (M-JPEG)"), stream, true},
    {Channels, QT_TRANSLATE_NOOP("NodeFacts", "Channels"), channels, false},
    {Resolutions, QT_TRANSLATE_NOOP("NodeFacts", "Resolutions"), resolutions, false},
    {CanTurn, QT_TRANSLATE_NOOP("NodeFacts", "Pan, tilt, zoom"), canTurn, false},
};

QVariant stored(const Node& node, const QString& key)
{
    const auto property = node.properties()[key];
    return property.null() ? QVariant() : property->value();
}

} // namespace

QVector<NodeFact> changes(const IPDeviceNode& node, const DeviceFacts& facts)
{
    QVector<NodeFact> changes;
    for (const auto& fact : known) {
        const QVariant before = stored(node, fact.key);
        const QVariant after = fact.told(node, facts);
        if (!after.isValid() || PropertyList::sameValue(before, after))
            continue;
        const bool isEmpty = text(before).isEmpty() || (fact.key == PropertyKeys::FactoryIP &&
                                                        FactoryExtension::isNone(before.toString()));
        changes.append({fact.key, before, after, fact.isUsers && !isEmpty});
    }
    return changes;
}

bool isCurrent(const Node& node, const NodeFact& fact)
{
    return PropertyList::sameValue(stored(node, fact.key), fact.before);
}

void write(Node& node, const NodeFact& fact)
{
    if (fact.key == PropertyKeys::IPAddresses)
        DeviceAddresses::write(node, NumberedTexts::fromSet(fact.after.value<kogen::PropertySet>()));
    else
        node.addProperty(*PropertyList::toProperty(fact.key, fact.after));
}

QString title(const QString& key)
{
    const auto found = std::find_if(std::begin(known), std::end(known),
                                    [&key](const auto& fact) { return fact.key == key; });
    return found == std::end(known) ? key : QCoreApplication::translate("NodeFacts", found->title);
}

QString text(const QVariant& value)
{
    if (value.userType() == QMetaType::Bool)
        return value.toBool() ? QCoreApplication::translate("NodeFacts", "yes")
                              : QCoreApplication::translate("NodeFacts", "no");
    if (value.userType() == qMetaTypeId<kogen::PropertySet>())
        return NumberedTexts::fromSet(value.value<kogen::PropertySet>()).join(QLatin1String(", "));
    return value.toString();
}

} // namespace NodeFacts

} // namespace ko
