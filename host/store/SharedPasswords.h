#ifndef KO_SHAREDPASSWORDS_H
#define KO_SHAREDPASSWORDS_H

#include "model/Cause.h"
#include "model/SharedParcel.h"
#include "model/StoreError.h"
#include "secrets/SiteKeyring.h"

#include <QStringList>

#include <memory>

namespace ko {

class SqliteStore;

/// What becomes of the passwords of a copy on their way to the site: they are sealed with the site's key,
/// whatever they were sealed with here.
class SharedPasswords
{
public:
    /// \a site empty: of none, and nothing is done.
    explicit SharedPasswords(const QString& site);

    /// The line as others may have it. What cannot be opened stays sealed as it is; what is not sealed at all
    /// is no password and does not leave the computer. The same line gives the same again.
    SharedLine toSend(const SharedLine& line) const;

private:
    QString toSend(const QString& text, const SharedLine& line) const;
    QString sealed(const QString& text, const QString& owner, const QString& property) const;

    std::shared_ptr<const SiteKeys> m_keys; ///< null: of no site
};

/// Seals all passwords of a copy with the site's key that have another one, as change sets that the other
/// desks follow. Uses a connection of its own; for one thread.
class KO_HOST_EXPORT PasswordResealing
{
public:
    static constexpr int NodesAtOnce = 100;

    /// Null and \a error if the file cannot be opened or read.
    static std::unique_ptr<PasswordResealing> begin(const QString& file, StoreError* error);
    ~PasswordResealing();

    /// Whether there is something to do.
    bool isMore() const;

    /// Does some of it, in one transaction. False and \a error when that failed; the rest is still to be
    /// done.
    bool step(StoreError* error);

private:
    class Private;
    explicit PasswordResealing(std::unique_ptr<Private> opened);
    const std::unique_ptr<Private> d;
};

} // namespace ko

#endif
