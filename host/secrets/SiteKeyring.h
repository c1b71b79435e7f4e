#ifndef KO_SITEKEYRING_H
#define KO_SITEKEYRING_H

#include "secrets/Sealer.h"

#include <QHash>
#include <QMutex>

#include <memory>
#include <optional>
#include <vector>

namespace ko {

/// The keys of one site that this user has: the one with which its desks seal now, and those of before.
struct KO_HOST_EXPORT SiteKeys
{
    struct Key
    {
        QString name; ///< see KeyEnvelope
        Sealer sealer;
    };

    std::vector<Key> all; ///< the newest first
    QString current;      ///< as the site said last; it may be one that is not here

    /// With the current key; cannot seal when that is not here.
    Sealer sealer() const;
    /// With any.
    std::optional<QString> open(const QString& sealed, const QString& owner, const QString& property) const;
    /// With the current key; nothing if it is not here, none of these opens it, or it is so already.
    std::optional<QString> reseal(const QString& sealed, const QString& owner, const QString& property) const;
};

/// The keys of the sites that this user has. They are kept in a file for each site, sealed with the
/// installation's key and bound to the site. From any thread.
class KO_HOST_EXPORT SiteKeyring
{
public:
    /// That of this process, for all its databases.
    static SiteKeyring& ofProcess();

    SiteKeyring();
    ~SiteKeyring();

    /// Where the files are, instead of in the standard folder; forgets what was found.
    void setFolder(const QString& folder);

    /// Never null.
    std::shared_ptr<const SiteKeys> keys(const QString& site);

    /// Whether the key of that name is here; looks into the file again if not.
    bool has(const QString& site, const QString& name);

    /// Takes keys, the current one first. False if they could not be kept, and are gone with the process.
    bool add(const QString& site, const std::vector<QByteArray>& keys);

    /// Which one its desks seal with now; empty: none.
    void setCurrent(const QString& site, const QString& name);

    /// With a key of any site, for what is not a copy of a site but has passwords of one.
    std::optional<QString> open(const QString& sealed, const QString& owner, const QString& property);

private:
    Q_DISABLE_COPY(SiteKeyring)
    typedef std::shared_ptr<const SiteKeys> Shared;
    Shared take(const QString& site, const Shared& fresh);
    bool change(const QString& site, const std::vector<QByteArray>& fresh, const QString& current);
    QString folder();

    QMutex m_mutex;
    QString m_folder;
    bool m_isAllLoaded = false;
    QHash<QString, Shared> m_sites;
};

} // namespace ko

#endif
