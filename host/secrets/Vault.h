#ifndef KO_VAULT_H
#define KO_VAULT_H

#include "model/NodeData.h"
#include "model/StoreError.h"
#include "secrets/Keyring.h"

#include <functional>
#include <optional>
#include <set>

namespace ko {

/// How the passwords of one database pass into and out of it. Used in the thread of the database; the nodes
/// that it handed out may outlive it, and share the vault.
///
/// A stored password is bound to its node and property, or to the setting; an empty one is stored as it is.
/// One that cannot be opened, or is not sealed, reads as empty and stays until another one is given. Without
/// a key, what is given is held in memory and must not be stored.
class KO_HOST_EXPORT Vault
{
public:
    /// \a keyring outlives it.
    explicit Vault(Keyring& keyring);

    /// Whether passwords that are not sealed are good, since they are of an older version and were not
    /// sealed yet.
    void setClearAllowed(bool allowed) { m_isClearAllowed = allowed; }

    /// Of a copy of a site: its passwords are sealed with the key of the site, and with no other one. What
    /// was sealed with a key of before, or that of the installation, is opened all the same.
    void setSite(const QString& site) { m_site = site; }

    /// Whether a password can be stored.
    bool canSeal() const;

    /// What it is when it cannot.
    StoreError::Kind missingKey() const;

    /// From here on the listener is called again.
    void tellAgain() { m_told.clear(); }

    /// Called with StoreError::SealedElsewhere, or SealedForSite in a copy of a site, when a password cannot
    /// be opened, and with StoreError::NotSealed when one was put there by others; with each once, until
    /// another listener comes.
    void setListener(std::function<void(StoreError::Kind)> listener);

    /// The password that \a stored stands for.
    QString open(const QString& owner, const QString& property, const QString& stored);

    /// What stands for \a clear from now on in the place of \a before: the same, if that stands for \a clear
    /// already, or could not be opened since the start and nothing is given instead.
    QString seal(const QString& owner, const QString& property, const QString& clear,
                 const QString& before = QString());

    /// All passwords of a node that comes into being: what describes it has them in the clear.
    void seal(NodeData& data);

    /// Whether \a sealed is held in memory, for want of a key.
    static bool isHeld(const QString& sealed);

    /// What to store for what seal() gave. Nothing without a key, unless that was sealed with one.
    std::optional<QString> toStore(const QString& owner, const QString& property, const QString& sealed);

    /// open() and seal() of a password in \a data; what belongs to no database has them in the clear.
    static QString opened(Vault* vault, const NodeData& data, const QString& property);
    static QString sealed(Vault* vault, const NodeData& data, const QString& property, const QString& clear);

private:
    Q_DISABLE_COPY(Vault)
    Sealer sealer() const;
    std::optional<QString> openSealed(const QString& owner, const QString& property, const QString& stored);
    std::optional<QString> reveal(const QString& owner, const QString& property, const QString& stored);
    void noteUnread(const QString& stored);

    Keyring& m_keyring;
    const Sealer m_holder; ///< with a key that nobody else ever has, for what is held in memory
    QString m_site;        ///< empty: of none
    bool m_isClearAllowed = false;
    std::set<QString> m_unread; ///< stored texts that were shown empty
    std::function<void(StoreError::Kind)> m_listener;
    std::set<StoreError::Kind> m_told;
};

} // namespace ko

#endif
