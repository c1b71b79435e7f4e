#ifndef KO_KEYENVELOPE_H
#define KO_KEYENVELOPE_H

#include "HostExport.h"

#include <QByteArray>
#include <QString>

namespace ko {

/// A key as it is kept where others can look: sealed under what Argon2id makes of a passphrase, with the salt
/// and the effort that it takes beside it.
struct KO_HOST_EXPORT KeyEnvelope
{
    /// Of one try, for the user as for whoever guesses.
    struct Cost
    {
        quint64 operations = 3;
        quint64 memory = 256U << 20; ///< bytes
    };

    static constexpr quint64 MostOperations =
        20; ///< more is refused: it would keep the computer busy for ever
    static constexpr quint64 MostMemory = 1U << 30;
    static constexpr int ShortestPassphrase = 12; ///< characters

    enum class Opened {
        Good,
        WrongPassphrase, ///< or another owner's, or altered
        Unusable         ///< it takes more than may be asked for, or than there is
    };

    Cost cost;
    QString salt;   ///< base64
    QString sealed; ///< see Sealer; bound to its owner

    /// Takes about a second and much memory. Empty when there is not that much. However the signs of the
    /// passphrase were composed, it is the same one.
    static KeyEnvelope seal(const QByteArray& key, const QString& passphrase, const QString& owner,
                            const Cost& cost);
    Opened open(const QString& passphrase, const QString& owner, QByteArray* key) const;

    bool isEmpty() const { return sealed.isEmpty(); }

    /// By which a key is known from others, and from which nobody learns anything of it.
    static QString nameOf(const QByteArray& key);

    /// A key under another one, and back; empty if it does not open.
    static QString underKey(const QByteArray& key, const QByteArray& other, const QString& owner);
    static QByteArray fromUnderKey(const QString& sealed, const QByteArray& other, const QString& owner);
};

} // namespace ko

#endif
