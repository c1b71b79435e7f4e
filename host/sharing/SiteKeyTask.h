#ifndef KO_SITEKEYTASK_H
#define KO_SITEKEYTASK_H

#include "sharing/SharingTypes.h"
#include "sharing/SiteKeyRecord.h"

namespace ko {

class SiteConnection;

/// What a desk does with the keys of its site's passwords.
struct SiteKeyTask
{
    enum Kind {
        Look,             ///< what the site has
        Open,             ///< by the passphrase, and keep
        Make,             ///< the first one
        ChangePassphrase, ///< of the same key
        ChangeKey         ///< and the passphrase: who had the one of before does not get this one
    };

    QString site;
    Kind kind = Look;
    QString passphrase;    ///< that of now; of Make, the new one
    QString newPassphrase; ///< of changes
    KeyEnvelope::Cost cost = KeyEnvelope::Cost();
};

struct SiteKeyOutcome
{
    enum Kind {
        Done,
        WrongPassphrase,
        TooShort,     ///< the new passphrase
        NoKey,        ///< there is none to be opened or changed
        SomebodyElse, ///< has set something meanwhile: look again
        Unusable,     ///< it takes more memory or time than this computer may be asked for
        Failed        ///< see failure
    };

    Kind kind = Done;
    QString site;
    SharingFailure failure;
    SiteKeyRecord record;   ///< as it was found, or is now
    bool isHere = false;    ///< this user has the present key
    bool isNotKept = false; ///< but only as long as the program runs
};

/// Does it, over a connection that is open. A new key is at the site, or it is not, whenever this is cut off;
/// what was sealed before stays readable for those who have the new one.
KO_HOST_EXPORT SiteKeyOutcome perform(const SiteKeyTask& task, SiteConnection& connection);

} // namespace ko

Q_DECLARE_METATYPE(ko::SiteKeyOutcome)

#endif
