#ifndef KOSIM_ANSWERS_H
#define KOSIM_ANSWERS_H

#include <QByteArray>

namespace kosim {

/// What a camera says on its RTSP port to somebody who did not give the password: 401 for each method, with
/// the request's CSeq; 400 when it is no RTSP. A request is everything up to and with its empty line.
QByteArray rtspAnswer(const QByteArray& request, const QByteArray& realm, const QByteArray& nonce);

/// The header line that asks for HTTP digest.
QByteArray challenge(const QByteArray& realm, const QByteArray& nonce);

} // namespace kosim

#endif
