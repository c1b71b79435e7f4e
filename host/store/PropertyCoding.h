#ifndef KO_PROPERTYCODING_H
#define KO_PROPERTYCODING_H

#include "HostExport.h"
#include "model/PropertyList.h"

#include <QJsonObject>

#include <optional>
#include <string_view>

namespace ko {

/// How properties stand in the store: as a JSON object, name to [type, value], the type as a number.
namespace PropertyCoding {

KO_HOST_EXPORT void appendJson(QString* json, const PropertyList& properties);
PropertyList listFromJson(const QJsonObject& object);

/// The same from the text as it is stored, in UTF-8; none if another program has written what is not an
/// object.
KO_HOST_EXPORT std::optional<PropertyList> listFromText(std::string_view utf8);

/// One of the arrays.
QVariant valueFromText(std::string_view utf8);

} // namespace PropertyCoding

} // namespace ko

#endif
