#ifndef KO_CONNECT_H
#define KO_CONNECT_H

#include "PlatformExport.h"

#include <QObject>

namespace ko {

/// QObject::connect() that checks its result: a connection that cannot be made is written to the log at
/// level 3 and stops a debug build, for a mistyped signature is otherwise silent.
KO_PLATFORM_EXPORT bool connect(const QObject* sender, const char* signal, const QObject* receiver,
                                const char* member, Qt::ConnectionType type = Qt::AutoConnection);

} // namespace ko

#endif
