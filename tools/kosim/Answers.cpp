#include "Answers.h"

#include <QList>

namespace kosim {

namespace {

QByteArray header(const QByteArray& request, const QByteArray& name)
{
    const QList<QByteArray> lines = request.split('\n');
    for (const QByteArray& line : lines) {
        const int colon = int(line.indexOf(':'));
        if (colon > 0 && line.left(colon).trimmed().toLower() == name)
            return line.mid(colon + 1).trimmed();
    }
    return QByteArray();
}

/// Whether the first line is a method, an address, and this protocol.
bool speaks(const QByteArray& request, const QByteArray& protocol)
{
    const QList<QByteArray> words = request.left(request.indexOf('\n')).trimmed().split(' ');
    return words.size() == 3 && !words.at(0).isEmpty() && words.at(2).startsWith(protocol + '/');
}

} // namespace

QByteArray rtspAnswer(const QByteArray& request, const QByteArray& realm, const QByteArray& nonce)
{
    bool isNumber = false;
    const uint sequence = header(request, "cseq").toUInt(&isNumber);
    if (!speaks(request, "RTSP") || !isNumber)
        return "RTSP/1.0 400 Bad Request\r\n\r\n";
    return "RTSP/1.0 401 Unauthorized\r\nCSeq: " + QByteArray::number(sequence) + "\r\n" +
           challenge(realm, nonce) + "\r\n";
}

QByteArray challenge(const QByteArray& realm, const QByteArray& nonce)
{
    return "WWW-Authenticate: Digest realm=\"" + realm + "\", nonce=\"" + nonce + "\", algorithm=MD5\r\n";
}

} // namespace kosim
