#ifndef KO_SOAPREQUEST_H
#define KO_SOAPREQUEST_H

#include "HostExport.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

namespace ko {

/// What is asked of a device, SOAP 1.2.
namespace SoapRequest {

enum class Operation {
    GetSystemDateAndTime,
    GetEndpointReference,
    GetDeviceInformation,
    GetNetworkInterfaces,
    GetServices,
    GetVideoSources,
    GetProfiles,
    GetStreamUri,
    GetSnapshotUri
};

/// Whether the media service is asked, not the device service.
KO_HOST_EXPORT bool isOfMedia(Operation operation);

/// \a profile is the token of one, for the operations that are about one. \a security is put into the header.
KO_HOST_EXPORT QByteArray message(Operation operation, const QString& profile = QString(),
                                  const QByteArray& security = QByteArray());

/// A WS-UsernameToken with a digest of the password. \a created is now by the device's clock.
KO_HOST_EXPORT QByteArray usernameToken(const QString& user, const QString& password,
                                        const QDateTime& created);

/// The same with a given nonce.
KO_HOST_EXPORT QByteArray usernameToken(const QString& user, const QString& password,
                                        const QDateTime& created, const QByteArray& nonce);

} // namespace SoapRequest

} // namespace ko

#endif
