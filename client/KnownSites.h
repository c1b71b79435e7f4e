#ifndef KO_KNOWNSITES_H
#define KO_KNOWNSITES_H

#include <QStringList>

namespace ko {

/// The sites to which this user has been, by their addresses without passwords. With it a site is opened
/// while its server is away.
namespace KnownSites {

struct Site
{
    QString address;
    QString id; ///< empty: there is no whole copy of it yet
    bool mayWrite = true;
};

/// What is known of \a address, which may have a password.
Site find(const QString& address);

/// Makes it the last one that was used.
void remember(const Site& site);

/// \a address with the password that was kept for it, unless it has one itself.
QString withKeptPassword(const QString& address);

/// Keeps the password of \a address, sealed as those of cameras are, or forgets the one that was kept. False
/// if it could not be sealed.
bool keepPassword(const QString& address, bool keep);

/// Their addresses, the last one that was used first.
QStringList recent();

/// The folder of the copies; it is made.
QString folder();

} // namespace KnownSites

} // namespace ko

#endif
