#ifndef KO_FILENAME_H
#define KO_FILENAME_H

#include "HostExport.h"

#include <QString>

namespace ko {

/// Names of files as the system has them: bytes, which need not be text in its encoding.
///
/// The toolkit replaces what is not text, and so gives the name of another file. Here a name that it cannot
/// carry keeps its bytes, those beyond ASCII each as a half of a pair (U+DC80 to U+DCFF), which no text
/// holds.
namespace FileName {

KO_HOST_EXPORT QString fromBytes(const QByteArray& bytes);
KO_HOST_EXPORT QByteArray toBytes(const QString& name);

/// Empty when the toolkit's classes for files find just this file by the name; else the reason, for the user.
/// A dialog for files gives a name with replaced characters for one that it could not read.
KO_HOST_EXPORT QString refusal(const QString& name);

} // namespace FileName

} // namespace ko

#endif
