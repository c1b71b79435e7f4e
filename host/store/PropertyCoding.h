#ifndef KO_PROPERTYCODING_H
#define KO_PROPERTYCODING_H

#include "HostExport.h"
#include "model/PropertyList.h"

#include <QJsonObject>

namespace ko {

/// How the value of a property stands in the store: a number for its type and something SQLite keeps.
namespace PropertyCoding {

struct Stored
{
    int type;
    QVariant value;
};

/// \a value is one of the five types of a PropertyList.
KO_HOST_EXPORT Stored encode(const QVariant& value);

/// The value again, or an invalid one if nothing that encode() gave.
KO_HOST_EXPORT QVariant decode(int type, const QVariant& value);

/// Appends all properties as an object: name to [type, value].
void appendJson(QString* json, const PropertyList& properties);
PropertyList listFromJson(const QJsonObject& object);

} // namespace PropertyCoding

} // namespace ko

#endif
