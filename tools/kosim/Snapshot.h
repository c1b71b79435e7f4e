#ifndef KOSIM_SNAPSHOT_H
#define KOSIM_SNAPSHOT_H

#include "Onvif.h"

namespace kosim {

/// What a camera sends as its picture: a JPEG with its name, or what spoils a client.
namespace Snapshot {

/// \a path is that of the request; 404 for one that is none of a picture.
HttpReply answer(Behaviour behaviour, const QByteArray& path, const Identity& identity);

} // namespace Snapshot

} // namespace kosim

#endif
