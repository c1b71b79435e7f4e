#ifndef KO_SITEADDRESS_H
#define KO_SITEADDRESS_H

#include "HostExport.h"

#include <QString>

namespace ko {

/// How a site is named: a URL of libpq, `postgresql://user@host:port/database?sslmode=require`, or
/// `postgresql://?service=NAME`.
namespace SiteAddress {

/// Whether \a text is meant as one, and not as the name of a file.
KO_HOST_EXPORT bool isSite(const QString& text);

/// What is wrong with it, in the words of libpq; empty if nothing is. Connects nowhere.
KO_HOST_EXPORT QString refusal(const QString& address);

/// What a dialog has fields for. Empty: as libpq has it by itself.
struct Parts
{
    QString host; ///< or the folder of a local socket
    QString port;
    QString database;
    QString user;
    QString password;
    QString tls; ///< the "sslmode" of libpq
};

KO_HOST_EXPORT Parts parse(const QString& address);
KO_HOST_EXPORT QString compose(const Parts& parts);

/// \a address with this password instead of the one that it may have.
KO_HOST_EXPORT QString withPassword(const QString& address, const QString& password);

/// The same without a password: what may be shown and kept.
KO_HOST_EXPORT QString withoutPassword(const QString& address);

/// What a user needs to know it by: user, host and database, without what is left to libpq's own settings.
KO_HOST_EXPORT QString shown(const QString& address);

} // namespace SiteAddress

} // namespace ko

#endif
