#ifndef KO_SHARINGWORDS_H
#define KO_SHARINGWORDS_H

#include "sharing/SharingTypes.h"

#include <QDateTime>

namespace ko {

/// The words for how a desk and its site get on.
namespace SharingWords {

/// For the status bar. \a since is when the state began.
QString brief(const SharingState& state, const QDateTime& since);

/// The same in sentences, with what can be done about it.
QString full(const SharingState& state, const QString& address);

/// Why a site could not be opened.
QString failure(const SharingFailure& failure, const QString& address);

/// Whether it takes somebody to decide how it goes on.
bool needsDecision(const SharingState& state);

/// How far a copy is.
QString progress(const SharingState& state);

} // namespace SharingWords

} // namespace ko

#endif
