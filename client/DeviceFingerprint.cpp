#include "DeviceFingerprint.h"

#include "ko/IPDeviceNode.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QIODevice>
#include <QUuid>

namespace ko {

DeviceFingerprint::DeviceFingerprint()
    : m_salt(QUuid::createUuid().toRfc4122())
{
}

QByteArray DeviceFingerprint::of(const IPDeviceNode& node) const
{
    QByteArray bytes = m_salt;
    QDataStream stream(&bytes, QIODevice::Append);
    stream << node.address().trimmed() << node.port() << node.useSSL() << node.user(1) << node.password(1);
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
}

} // namespace ko
