#ifndef KO_SITEKEYPROMPT_H
#define KO_SITEKEYPROMPT_H

#include "sharing/SiteKeyTask.h"

#include <QString>

class QWidget;

namespace ko {

class HostNodeDB;
class SiteSharing;

/// Gets this desk the key of its site.
namespace SiteKeyPrompt {

/// For a program without a window: with the passphrase of KO_SITE_PASSPHRASE, or that is typed at the
/// terminal. \a makes: the first key is made if there is none. Whether the key is here; if not, the user was
/// told why.
bool onLine(const QString& address, const QString& site, bool makes);

/// For a window: asks once, when the site was seen and the key is not here, and whenever a password cannot be
/// stored for want of it. KO_SITE_PASSPHRASE counts here, too.
void watch(const HostNodeDB& db, SiteSharing& sharing, QWidget* window);

/// Asks now, for whatever fits: the passphrase, one for the first key, or a new one.
void ask(SiteSharing& sharing, QWidget* window);

} // namespace SiteKeyPrompt

} // namespace ko

#endif
