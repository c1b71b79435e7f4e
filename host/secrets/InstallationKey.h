#ifndef KO_INSTALLATIONKEY_H
#define KO_INSTALLATIONKEY_H

#include "secrets/Sealer.h"

namespace ko {

class KeychainWait;

/// Where the key lies with which this installation seals what it stores: 32 random bytes, in the desktop's
/// keychain or, where there is none, in a file that only its owner may read.
///
/// - Whoever comes first makes the key, under a lock, so that two programs never make two.
/// - A key in the keychain is used to seal; one in the file only where the keychain has none or cannot be
///   asked. Either opens what was sealed with it, so a keychain that stays locked today costs what was
///   sealed with its key until it is unlocked.
/// - What stands in either place is never overwritten, and as long as it cannot be read no other key is
///   made. A marker beside the key file says that the keychain has the key, for a session without one.
/// - Every key can be found again after the next start. When there is none, nothing can be sealed.
struct KO_HOST_EXPORT InstallationKey
{
    struct Places
    {
        QString keyFile;                      ///< its folder is made when needed; empty: none
        QString keychain;                     ///< name of the service in the keychain; empty: none
        int keychainPatience = 30000;         ///< milliseconds after which a keychain counts as closed
        KeychainWait* keychainWait = nullptr; ///< outlives the search; may be null

        /// For all programs of this user that use node databases.
        KO_HOST_EXPORT static Places standard();
    };

    Sealer sealer;
    QString problem; ///< untranslated, for the log; empty if all went well

    /// Runs an event loop while the keychain is asked.
    static InstallationKey load(const Places& places);
};

} // namespace ko

#endif
