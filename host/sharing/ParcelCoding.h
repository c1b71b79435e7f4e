#ifndef KO_PARCELCODING_H
#define KO_PARCELCODING_H

#include "model/SharedParcel.h"

#include <QByteArray>
#include <QVector>

#include <optional>

namespace ko {

/// Parcels on their way to the site and back: JSON, as an administrator of the site can read it.
///
/// Passwords are sealed in them as they are in the desk's file, under the key of its installation: a desk
/// with another key shows them as passwords that it cannot open.
namespace ParcelCoding {

constexpr int Version = 1;

/// An array of them. What no text of the site can hold, the character 0, becomes U+FFFD.
KO_HOST_EXPORT QByteArray encode(const QVector<SharedParcel>& parcels);

/// One of them, or none if \a json is anything else; then \a error says what is wrong with it.
KO_HOST_EXPORT std::optional<SharedParcel> decode(const QByteArray& json, QString* error);

} // namespace ParcelCoding

} // namespace ko

#endif
