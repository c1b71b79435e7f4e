#ifndef KO_KEYRING_H
#define KO_KEYRING_H

#include "secrets/InstallationKey.h"

#include <QMutex>

#include <memory>
#include <optional>

namespace ko {

/// The installation's key, looked for when it is first needed. From any thread.
class KO_HOST_EXPORT Keyring
{
public:
    /// That of this process: all its databases are sealed with the key of the installation.
    static Keyring& ofInstallation();

    Keyring();
    ~Keyring();

    /// Where to look for the key instead of in the standard places; forgets the one that was found.
    void setPlaces(const InstallationKey::Places& places);

    /// Is told when the keychain lets wait; null for nobody, before it goes.
    void setKeychainWait(KeychainWait* wait);

    /// Gets the key if that was not done yet, which may take some seconds, or until the user has opened the
    /// keychain.
    void prepare();

    /// Looks for the key again if there was none: whether there is one now.
    bool prepareAgain();

    /// Whether there is a key, with which passwords can be stored.
    bool isKept();

    /// The key, held by the caller, so that no lock is held while it works.
    std::shared_ptr<const InstallationKey> key();

private:
    Q_DISABLE_COPY(Keyring)
    void load();

    QMutex m_mutex;
    std::optional<InstallationKey::Places> m_places;
    KeychainWait* m_wait = nullptr;
    std::shared_ptr<const InstallationKey> m_key;
};

} // namespace ko

#endif
