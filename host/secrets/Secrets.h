#ifndef KO_SECRETS_H
#define KO_SECRETS_H

#include "model/NodeData.h"
#include "model/StoreError.h"
#include "secrets/InstallationKey.h"

#include <QStringList>

#include <functional>
#include <optional>

namespace ko {

/// Which stored values are passwords, and how they pass into and out of the store.
///
/// A stored password is bound to its node and property, or to the setting; an empty one is stored as it is.
/// One that cannot be opened, or is not sealed, reads as empty and stays until another one is given. Without
/// a key, what is given is held in memory and must not be stored. The keys are those of the process: every
/// program that uses the same database looks for them in the same places.
namespace Secrets {

/// Owner of the settings that belong to no node.
inline constexpr char Settings[] = "settings";
inline constexpr char GlobalProxyPassword[] = "proxy.password"; ///< of the settings

/// The properties of nodes that are passwords.
KO_HOST_EXPORT const QStringList& properties();
KO_HOST_EXPORT bool isSecret(const QString& property);

/// Where to look for the key instead of in the standard places; forgets the keys that were found.
KO_HOST_EXPORT void setPlaces(const InstallationKey::Places& places);

/// Is told when the keychain lets wait; null for nobody, before it goes.
KO_HOST_EXPORT void setKeychainWait(KeychainWait* wait);

/// Gets the key if that was not done yet, which may take some seconds, or until the user has opened the
/// keychain.
KO_HOST_EXPORT void prepare();

/// Looks for the key again if there was none: whether there is one now.
KO_HOST_EXPORT bool prepareAgain();

/// Whether there is a key, with which passwords can be stored.
bool isKeyKept();

/// Whether passwords that are not sealed are good, since they are of an older version and were not sealed
/// yet.
void setClearAllowed(bool allowed);

/// The password that \a stored stands for. What belongs to no node yet (empty \a owner) is the password
/// itself.
KO_HOST_EXPORT QString open(const QString& owner, const QString& property, const QString& stored);

/// What stands for \a clear from now on in the place of \a before: the same, if that stands for \a clear
/// already, or could not be opened since the start and nothing is given instead.
KO_HOST_EXPORT QString seal(const QString& owner, const QString& property, const QString& clear,
                            const QString& before = QString());

/// All passwords of a node that comes into being: what describes it has them in the clear.
void seal(NodeData& data);

/// Whether \a sealed is held in memory, for want of a key.
bool isHeld(const QString& sealed);

/// What to store for what seal() gave. Nothing without a key, unless that was sealed with one.
std::optional<QString> toStore(const QString& owner, const QString& property, const QString& sealed);

/// Called, from the thread in which it happens, with StoreError::SealedElsewhere when a password cannot be
/// opened, and with StoreError::NotSealed when one was put there by others; with each once, until another
/// listener comes.
void setListener(std::function<void(StoreError::Kind)> listener);

} // namespace Secrets

} // namespace ko

#endif
