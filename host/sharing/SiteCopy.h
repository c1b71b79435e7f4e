#ifndef KO_SITECOPY_H
#define KO_SITECOPY_H

#include "HostExport.h"
#include "model/StoreError.h"

#include <QString>

namespace ko {

/// The file in which a desk has its copy of a site. It is named by the site's identifier, so that two
/// addresses of one site lead to it, and another site at the same address does not.
namespace SiteCopy {

/// Its name, in \a folder.
KO_HOST_EXPORT QString fileOf(const QString& folder, const QString& site);

/// Makes the file if it is not there, so that it can be opened as any other. One of that name that is not a
/// copy of this site gets another name and stays. False and \a error when that cannot be done.
KO_HOST_EXPORT bool prepare(const QString& file, const QString& site, StoreError* error);

/// Gives the file, which nobody has open, and its backups other names that tell when. False and \a error if
/// that failed.
KO_HOST_EXPORT bool keepAside(const QString& file, StoreError* error);

} // namespace SiteCopy

} // namespace ko

#endif
