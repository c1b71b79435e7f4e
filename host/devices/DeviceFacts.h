#ifndef KO_DEVICEFACTS_H
#define KO_DEVICEFACTS_H

#include <QMetaType>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QVector>

namespace ko {

/// One way in which a device sends pictures.
struct DeviceProfile
{
    QString token; ///< by which the device knows it
    QString name;
    QString source;   ///< token of the video source: profiles of one channel have the same
    QString encoding; ///< as "H264", "JPEG"
    QSize resolution; ///< in pixels; invalid when not told
    double rate = 0;  ///< pictures in a second at most; 0 when not told
    int bitrate = 0;  ///< kbit/s at most; 0 when not told
    bool hasPtz = false;
    QString streamUri;   ///< of the device's own making: a caller must look at its host before it connects
    QString snapshotUri; ///< likewise
};

/// What a device told of itself through ONVIF. Texts are cleaned and cut, and no more to be trusted than the
/// device.
struct DeviceFacts
{
    QString maker;
    QString model;
    QString firmware;
    QString serial;
    QString hardware;
    QString endpoint;         ///< its UUID, as in WS-Discovery; in lower case, without "urn:uuid:"
    QStringList macAddresses; ///< in the notation of MACAddress::toString(true)
    QStringList addresses;    ///< IP addresses, link-local ones included
    QStringList services;     ///< namespaces
    QString mediaPath;        ///< of the media service, on the device itself; empty when it has none
    int channels = 0;         ///< video sources; 0 when not told
    bool hasPtz = false;
    QVector<DeviceProfile> profiles;
};

/// By what a device is known again. An empty text is not known and compares with nothing.
struct DeviceIdentity
{
    QString serial;
    QString endpoint;       ///< as in DeviceFacts
    QString realm;          ///< for which it asks for the password
    QByteArray certificate; ///< SHA-256 of that of its TLS, in hexadecimal
};

/// Why a device refuses.
struct DeviceFault
{
    enum Kind {
        None,
        NotAuthorized, ///< no password, or a wrong one
        LockedOut,     ///< it does not look at passwords for a while
        NotSupported,
        Other
    };

    Kind kind = None;
    QString text; ///< the device's own words, cleaned and cut
};

} // namespace ko

Q_DECLARE_METATYPE(ko::DeviceFacts)

#endif
