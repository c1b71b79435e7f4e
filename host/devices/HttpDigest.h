#ifndef KO_HTTPDIGEST_H
#define KO_HTTPDIGEST_H

#include "HostExport.h"

#include <QByteArray>
#include <QString>

namespace ko {

/// Answers to one challenge of HTTP digest (RFC 7616, MD5 and SHA-256, with and without "auth").
///
/// Not the toolkit's: that one answers any challenge by itself, one for the password in the clear included,
/// and does not tell for which realm.
class KO_HOST_EXPORT HttpDigest
{
public:
    /// Chooses from the headers "WWW-Authenticate", joined by commas. Not valid when there is no challenge
    /// that can be answered.
    explicit HttpDigest(const QByteArray& challenges = QByteArray());

    bool isValid() const { return !m_nonce.isEmpty(); }
    QString realm() const { return QString::fromUtf8(m_realm); }

    /// The password was not looked at, since the challenge before was too old.
    bool isStale() const { return m_isStale; }

    /// Whether the password is asked for in the clear.
    static bool offersBasic(const QByteArray& challenges);

    /// The header "Authorization" that tells it so.
    static QByteArray basic(const QString& user, const QString& password);

    /// The header "Authorization" of the next request. \a uri is that of the request line.
    QByteArray authorization(const QString& user, const QString& password, const QByteArray& method,
                             const QByteArray& uri);

private:
    QByteArray m_algorithm; ///< as it was named; empty for MD5 unnamed
    bool m_isSha256 = false;
    bool m_hasAuth = false;
    bool m_isStale = false;
    QByteArray m_realm;
    QByteArray m_nonce;
    QByteArray m_opaque;
    int m_count = 0;
};

} // namespace ko

#endif
