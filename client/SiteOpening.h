#ifndef KO_SITEOPENING_H
#define KO_SITEOPENING_H

#include "sharing/SharingTypes.h"

#include <QCoreApplication>

#include <optional>

namespace ko {

/// Finds the file in which this desk has its copy of a site, and makes it from the site when there is none.
class SiteOpening
{
    Q_DECLARE_TR_FUNCTIONS(SiteOpening)

public:
    enum class Way {
        Window, ///< waits with a window that can be closed
        Line    ///< writes lines
    };

    SiteOpening(const QString& address, Way way);

    /// The file, which can be opened as any other; empty after the user was told why there is none, or when
    /// the user gave up. With a whole copy from before, nothing waits for the server. \a givenUp is a copy
    /// that is not to be used any more: it is kept, under another name if need be.
    QString file(const QString& givenUp = QString());

    /// Brings the file and the site to the same state; false after the user was told why that is not so.
    /// \a patience as in SiteCatchUp.
    bool catchUp(const QString& file, int patience);

    /// What the site says of itself; none after the user was told why it does not, or when the user gave up.
    /// \a makesSite: an empty database becomes one.
    std::optional<SiteGreeting> greet(bool makesSite = false);

private:
    bool keepAside(const QString& file);
    bool prepare(const QString& file, const QString& site);
    void tell(const QString& text) const;

    const QString m_address;
    const Way m_way;
    bool m_isRefusedCopy = false; ///< it can be looked at, and its user has to decide
};

} // namespace ko

#endif
