#ifndef KO_INSTALLATIONKEY_H
#define KO_INSTALLATIONKEY_H

#include "secrets/Sealer.h"

namespace ko {

/// Where the key lies with which this installation seals what it stores: 32 random bytes, in the desktop's
/// keychain or, where there is none, in a file that only its owner may read.
///
/// - Whoever comes first makes the key, under a lock, so that two programs never make two.
/// - A key in the keychain is used to seal; one in the file only where the keychain has none or cannot be
///   asked. Either opens what was sealed with it, so a keychain that stays locked today costs what was
///   sealed with its key until it is unlocked, and nothing that is typed meanwhile.
/// - What stands in either place is never overwritten, also when it cannot be read. Then, and when neither
///   place takes a key, there is a key for as long as the program runs, and \ref kept is false.
struct KO_HOST_EXPORT InstallationKey
{
    struct Places
    {
        QString keyFile;             ///< its folder is made when needed; empty: none
        QString keychain;            ///< name of the service in the keychain; empty: none
        int keychainPatience = 8000; ///< milliseconds after which a keychain counts as not there

        /// For all programs of this user that use node databases.
        KO_HOST_EXPORT static Places standard();
    };

    Sealer sealer;
    bool kept = false; ///< what is sealed now can be opened after the next start
    QString problem;   ///< untranslated, for the log; empty if all went well

    /// Runs an event loop while the keychain is asked. Takes at most twice its patience and five seconds.
    static InstallationKey load(const Places& places);
};

} // namespace ko

#endif
