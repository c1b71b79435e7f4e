#ifndef KOSIM_ANSWERS_H
#define KOSIM_ANSWERS_H

#include <QByteArray>

namespace kosim {

/// What a camera says to one who has not told the password. A request is everything up to and with its empty
/// line.

/// 401 for each method, with the request's CSeq; 400 when it is no RTSP.
QByteArray rtspAnswer(const QByteArray& request, const QByteArray& realm, const QByteArray& nonce);

/// 401 for each method; 400 when it is no HTTP.
QByteArray httpAnswer(const QByteArray& request, const QByteArray& realm, const QByteArray& nonce);

} // namespace kosim

#endif
