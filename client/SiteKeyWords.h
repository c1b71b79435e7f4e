#ifndef KO_SITEKEYWORDS_H
#define KO_SITEKEYWORDS_H

#include "sharing/SiteKeyTask.h"

namespace ko {

/// The words for the keys of a site.
namespace SiteKeyWords {

/// What came of a task; empty when all is good.
QString text(const SiteKeyOutcome& outcome, const QString& address);

/// What the desk cannot do at present, and what helps.
QString missing(const SiteKeyOutcome& seen);

} // namespace SiteKeyWords

} // namespace ko

#endif
