#include "devices/ClearPassword.h"

#include "ko/IPDeviceNode.h"

namespace ko {

namespace ClearPassword {

namespace {

const QLatin1String Key("ClearPasswordAt"); // stored: never change it

QString placeOf(const IPDeviceNode& node)
{
    return node.address().trimmed().toLower() + QLatin1Char(' ') + QString::number(node.port());
}

} // namespace

bool isAllowed(const IPDeviceNode& node)
{
    return node.stringProperty(Key, QString()) == placeOf(node);
}

void allow(IPDeviceNode& node)
{
    node.setStringProperty(Key, placeOf(node));
}

} // namespace ClearPassword

} // namespace ko
