#ifndef KO_ADDRESSTEXT_H
#define KO_ADDRESSTEXT_H

#include "HostExport.h"

#include <QString>

namespace ko {

/// What a user types or pastes where the address of a device belongs: a host, or a URL that has more in it.
struct KO_HOST_EXPORT AddressText
{
    enum Security { Unknown, Plain, Ssl };

    /// Takes "10.0.0.1", "camera.example", "fe80::1", "[fe80::1]:8080", "camera:8080" and URLs. Blanks around
    /// the text do not count; an empty text is a good address.
    static AddressText parse(const QString& text);

    QString problem; ///< for the user, why this is not an address; nothing else is set then
    QString host;
    int port = -1; ///< -1 if the text does not tell
    Security security = Unknown;
    QString user;
    QString password;
};

} // namespace ko

#endif
