#ifndef KO_STORESCHEMA_H
#define KO_STORESCHEMA_H

#include "HostExport.h"

#include <QVector>

namespace ko {

/// The tables of the node database and the steps that lead from version to version.
///
/// A step, once released, never changes; a change of the tables is one more step.
namespace StoreSchema {

/// Tells our files from those of other programs: "KoDB" in the header of the file.
constexpr quint32 ApplicationId = 0x4b6f4442;

/// Before this version passwords stood in the clear.
constexpr int FirstSealed = 3;

KO_HOST_EXPORT int latest();

/// The statements that lead from \a version to the next.
QVector<const char*> stepFrom(int version);

} // namespace StoreSchema

} // namespace ko

#endif
