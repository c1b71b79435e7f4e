#ifndef KO_DEVICEANSWERS_H
#define KO_DEVICEANSWERS_H

#include "HostExport.h"
#include "devices/DeviceFacts.h"

#include <QByteArray>
#include <QDateTime>

namespace ko {

/// Reads what devices answer over ONVIF. Each returns whether the message is such an answer; what it fills is
/// worth nothing otherwise. Numbers that cannot be are 0, lists are cut, see Limits.
namespace DeviceAnswers {

enum Limits {
    TextLength = 64,  ///< of names, models, serial numbers
    TokenLength = 64, ///< ONVIF's own limit
    UriLength = 500,
    MostProfiles = 64,
    MostInterfaces = 16,
    MostServices = 64
};

KO_HOST_EXPORT bool readDateAndTime(const QByteArray& message, QDateTime& utc);
KO_HOST_EXPORT bool readEndpoint(const QByteArray& message, DeviceFacts& facts);
KO_HOST_EXPORT bool readInformation(const QByteArray& message, DeviceFacts& facts);
KO_HOST_EXPORT bool readNetworkInterfaces(const QByteArray& message, DeviceFacts& facts);
KO_HOST_EXPORT bool readServices(const QByteArray& message, DeviceFacts& facts);
KO_HOST_EXPORT bool readVideoSources(const QByteArray& message, DeviceFacts& facts);
KO_HOST_EXPORT bool readProfiles(const QByteArray& message, DeviceFacts& facts);

/// Of GetStreamUri and GetSnapshotUri.
KO_HOST_EXPORT bool readUri(const QByteArray& message, QString& uri);

/// The kind is None when the message is not a fault.
KO_HOST_EXPORT DeviceFault readFault(const QByteArray& message);

/// An endpoint reference in the form of DeviceFacts::endpoint.
KO_HOST_EXPORT QString endpointOf(const QString& reference);

} // namespace DeviceAnswers

} // namespace ko

#endif
