#include "devices/HttpDigest.h"

#include <QCryptographicHash>
#include <QMap>
#include <QRandomGenerator>
#include <QVector>

#include <algorithm>

namespace ko {

namespace {

const int LongestChallenges = 8192; // bytes

struct Challenge
{
    QByteArray scheme; ///< in lower case
    QMap<QByteArray, QByteArray> parameters;
};

/// Reads `Digest realm="a, b", nonce=c, Basic realm="d"`.
class ChallengeReader
{
public:
    explicit ChallengeReader(const QByteArray& text)
        : m_text(text.left(LongestChallenges))
    {
    }

    QVector<Challenge> read()
    {
        QVector<Challenge> challenges;
        while (m_at < m_text.size()) {
            skip(" \t,\n");
            const QByteArray word = token().toLower();
            skip(" \t");
            if (word.isEmpty())
                ++m_at; // what belongs nowhere
            else if (!challenges.isEmpty() && take('='))
                challenges.last().parameters.insert(word, value());
            else
                challenges.append(Challenge{word, {}});
        }
        return challenges;
    }

private:
    void skip(const char* signs)
    {
        while (m_at < m_text.size() && QByteArray(signs).contains(m_text.at(m_at)))
            ++m_at;
    }

    bool take(char sign)
    {
        const bool isThere = m_at < m_text.size() && m_text.at(m_at) == sign;
        m_at += isThere ? 1 : 0;
        return isThere;
    }

    QByteArray token()
    {
        const int from = m_at;
        while (m_at < m_text.size() && !QByteArray(" \t,=\"\n").contains(m_text.at(m_at)))
            ++m_at;
        return m_text.mid(from, m_at - from);
    }

    QByteArray value()
    {
        skip(" \t");
        if (!take('"'))
            return token();
        QByteArray text;
        for (; m_at < m_text.size() && m_text.at(m_at) != '"'; ++m_at) {
            if (m_text.at(m_at) == '\\' && m_at + 1 < m_text.size())
                ++m_at;
            text += m_text.at(m_at);
        }
        ++m_at;
        return text;
    }

    const QByteArray m_text;
    int m_at = 0;
};

QByteArray quoted(QByteArray text)
{
    return '"' + text.replace('\\', "\\\\").replace('"', "\\\"") + '"';
}

/// A text that ends the header would begin another one.
bool isOneLine(const QByteArray& text)
{
    return std::none_of(text.begin(), text.end(), [](char c) { return uchar(c) < 32 || uchar(c) == 127; });
}

bool hasAuth(const QByteArray& qop)
{
    const QList<QByteArray> offers = qop.toLower().split(',');
    return std::any_of(offers.begin(), offers.end(),
                       [](const QByteArray& offer) { return offer.trimmed() == "auth"; });
}

} // namespace

HttpDigest::HttpDigest(const QByteArray& challenges)
{
    const QVector<Challenge> all = ChallengeReader(challenges).read();
    for (const Challenge& challenge : all) {
        const auto value = [&challenge](const char* name) { return challenge.parameters.value(name); };
        const QByteArray algorithm = value("algorithm").toLower();
        const bool isSha256 = algorithm == "sha-256";
        const bool isKnown = challenge.scheme == "digest" &&
                             (algorithm.isEmpty() || algorithm == "md5" || isSha256) &&
                             (value("qop").isEmpty() || hasAuth(value("qop")));
        if (!isKnown || (isValid() && (m_isSha256 || !isSha256)) ||
            !isOneLine(value("realm") + value("nonce") + value("opaque")))
            continue;
        m_algorithm = value("algorithm");
        m_isSha256 = isSha256;
        m_hasAuth = hasAuth(value("qop"));
        m_isStale = value("stale").toLower() == "true";
        m_realm = value("realm");
        m_nonce = value("nonce");
        m_opaque = value("opaque");
    }
}

bool HttpDigest::offersBasic(const QByteArray& challenges)
{
    const QVector<Challenge> all = ChallengeReader(challenges).read();
    return std::any_of(all.begin(), all.end(),
                       [](const Challenge& challenge) { return challenge.scheme == "basic"; });
}

QByteArray HttpDigest::basic(const QString& user, const QString& password)
{
    return "Basic " + (user + QLatin1Char(':') + password).toUtf8().toBase64();
}

QByteArray HttpDigest::authorization(const QString& user, const QString& password, const QByteArray& method,
                                     const QByteArray& uri)
{
    const auto hash = [this](const QByteArray& text) {
        return QCryptographicHash::hash(text,
                                        m_isSha256 ? QCryptographicHash::Sha256 : QCryptographicHash::Md5)
            .toHex();
    };
    const QByteArray count = QByteArray::number(++m_count, 16).rightJustified(8, '0');
    const QByteArray own = QByteArray::number(QRandomGenerator::system()->generate64(), 16);
    const QByteArray middle = m_hasAuth ? ':' + count + ':' + own + ":auth:" : QByteArray(":");
    const QByteArray secret = hash(user.toUtf8() + ':' + m_realm + ':' + password.toUtf8());
    const QByteArray response = hash(secret + ':' + m_nonce + middle + hash(method + ':' + uri));
    QByteArray header = "Digest username=" + quoted(user.toUtf8()) + ", realm=" + quoted(m_realm) +
                        ", nonce=" + quoted(m_nonce) + ", uri=" + quoted(uri) + ", response=\"" + response +
                        '"';
    if (!m_algorithm.isEmpty())
        header += m_isSha256 ? ", algorithm=SHA-256" : ", algorithm=MD5";
    if (!m_opaque.isEmpty())
        header += ", opaque=" + quoted(m_opaque);
    if (m_hasAuth)
        header += ", qop=auth, nc=" + count + ", cnonce=\"" + own + '"';
    return header;
}

} // namespace ko
