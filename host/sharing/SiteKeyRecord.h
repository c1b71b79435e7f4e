#ifndef KO_SITEKEYRECORD_H
#define KO_SITEKEYRECORD_H

#include "secrets/KeyEnvelope.h"

#include <QMetaType>
#include <QStringList>

namespace ko {

/// What a site has of the keys of its passwords, and what the user who connected may do with them.
struct SiteKeyRecord
{
    int revision = 0;     ///< whenever something is set, it is the next; 0: there is no key
    QString name;         ///< of the present key
    KeyEnvelope envelope; ///< that has it
    QStringList former;   ///< the key before, sealed under the present one, and so on
    bool mayMake = false; ///< the first one
    bool mayChange = false;
    bool hasTables = true; ///< false: the site was made before there were keys, and not prepared since

    bool hasKey() const { return revision > 0; }
};

} // namespace ko

Q_DECLARE_METATYPE(ko::SiteKeyRecord)

#endif
