#include "devices/KnownDevice.h"

#include "ko/Node.h"

#include <algorithm>
#include <iterator>

namespace ko {

namespace KnownDevice {

namespace {

struct Mark
{
    QLatin1String key; // stored: never change one
    QString (*read)(const DeviceIdentity& identity);
    void (*write)(DeviceIdentity& identity, const QString& value);
};

const Mark marks[] = {
    {QLatin1String("KnownSerial"), [](const DeviceIdentity& identity) { return identity.serial; },
     [](DeviceIdentity& identity, const QString& value) { identity.serial = value; }},
    {QLatin1String("KnownEndpoint"), [](const DeviceIdentity& identity) { return identity.endpoint; },
     [](DeviceIdentity& identity, const QString& value) { identity.endpoint = value; }},
    {QLatin1String("KnownRealm"), [](const DeviceIdentity& identity) { return identity.realm; },
     [](DeviceIdentity& identity, const QString& value) { identity.realm = value; }},
    {QLatin1String("KnownCertificate"),
     [](const DeviceIdentity& identity) { return QString::fromLatin1(identity.certificate); },
     [](DeviceIdentity& identity, const QString& value) { identity.certificate = value.toLatin1(); }},
};

QString remembered(const Node& node, const Mark& mark)
{
    return node.stringProperty(mark.key, QString());
}

bool isNew(const Node& node, const Mark& mark, const DeviceIdentity& seen)
{
    return remembered(node, mark).isEmpty() && !mark.read(seen).isEmpty();
}

} // namespace

DeviceIdentity of(const Node& node)
{
    DeviceIdentity identity;
    for (const Mark& mark : marks)
        mark.write(identity, remembered(node, mark));
    return identity;
}

bool hasNews(const Node& node, const DeviceIdentity& seen)
{
    return std::any_of(std::begin(marks), std::end(marks),
                       [&](const Mark& mark) { return isNew(node, mark, seen); });
}

void remember(Node& node, const DeviceIdentity& seen)
{
    for (const Mark& mark : marks) {
        if (isNew(node, mark, seen))
            node.setStringProperty(mark.key, mark.read(seen));
    }
}

void replace(Node& node, const DeviceIdentity& seen)
{
    for (const Mark& mark : marks) {
        if (node.hasProperty(mark.key) || !mark.read(seen).isEmpty())
            node.setStringProperty(mark.key, mark.read(seen));
    }
}

QStringList keys()
{
    QStringList keys;
    for (const Mark& mark : marks)
        keys.append(mark.key);
    return keys;
}

} // namespace KnownDevice

} // namespace ko
