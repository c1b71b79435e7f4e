#ifndef KO_PLACES_H
#define KO_PLACES_H

#include <QLatin1String>
#include <QString>
#include <QStringList>

namespace ko {

/// Where devices are, as a path such as "Site/Building/Floor", and the tags that a user gives them: two
/// properties of devices that this program declares.
namespace Places {

inline const QLatin1String Location("Location");
inline const QLatin1String Tags("Tags"); ///< separated by commas

/// So that editors show them, and lists of cameras hold them. To be called before a database is opened; more
/// than once does no harm.
void declare();

/// The path as it is compared: without blanks around its parts, and without empty parts.
QString normalized(const QString& path);

/// Whether \a place is \a outer or lies in it. Both are normalized.
bool isWithin(const QString& place, const QString& outer);

} // namespace Places

} // namespace ko

#endif
