#include "secrets/KeyEnvelope.h"

#include "secrets/Sealer.h"

#include <sodium.h>

namespace ko {

namespace {

const QLatin1String siteKey("site key");
const QLatin1String formerKey("former site key");

QString toText(const QByteArray& key)
{
    return QString::fromLatin1(key.toBase64());
}

QByteArray fromText(const QString& text)
{
    const QByteArray key = QByteArray::fromBase64(text.toLatin1());
    return key.size() == Sealer::KeySize ? key : QByteArray();
}

/// No key when there is not enough memory.
Sealer sealerOf(const QString& passphrase, const QByteArray& salt, const KeyEnvelope::Cost& cost)
{
    QByteArray clear = passphrase.normalized(QString::NormalizationForm_C).toUtf8();
    QByteArray key(Sealer::KeySize, '\0');
    const int result =
        crypto_pwhash(reinterpret_cast<unsigned char*>(key.data()), Sealer::KeySize, clear.constData(),
                      quint64(clear.size()), reinterpret_cast<const unsigned char*>(salt.constData()),
                      cost.operations, size_t(cost.memory), crypto_pwhash_ALG_ARGON2ID13);
    sodium_memzero(clear.data(), size_t(clear.size()));
    Sealer sealer = result == 0 ? Sealer({key}) : Sealer();
    sodium_memzero(key.data(), size_t(key.size()));
    return sealer;
}

} // namespace

KeyEnvelope KeyEnvelope::seal(const QByteArray& key, const QString& passphrase, const QString& owner,
                              const Cost& cost)
{
    const QByteArray salt = Sealer::newKey().left(crypto_pwhash_SALTBYTES);
    const QString sealed = sealerOf(passphrase, salt, cost).seal(toText(key), owner, siteKey);
    return sealed.isEmpty() ? KeyEnvelope() : KeyEnvelope{cost, toText(salt), sealed};
}

KeyEnvelope::Opened KeyEnvelope::open(const QString& passphrase, const QString& owner, QByteArray* key) const
{
    const QByteArray bytes = QByteArray::fromBase64(salt.toLatin1());
    if (bytes.size() != int(crypto_pwhash_SALTBYTES) || cost.operations > MostOperations ||
        cost.memory > MostMemory)
        return Opened::Unusable;
    const Sealer sealer = sealerOf(passphrase, bytes, cost);
    if (!sealer.canSeal())
        return Opened::Unusable;
    *key = fromText(sealer.open(sealed, owner, siteKey).value_or(QString()));
    return key->isEmpty() ? Opened::WrongPassphrase : Opened::Good;
}

QString KeyEnvelope::nameOf(const QByteArray& key)
{
    return QString::fromLatin1(
        Sealer({key}).sign(QByteArrayLiteral("site key")).left(crypto_generichash_BYTES_MIN).toHex());
}

QString KeyEnvelope::underKey(const QByteArray& key, const QByteArray& other, const QString& owner)
{
    return Sealer({other}).seal(toText(key), owner, formerKey);
}

QByteArray KeyEnvelope::fromUnderKey(const QString& sealed, const QByteArray& other, const QString& owner)
{
    return fromText(Sealer({other}).open(sealed, owner, formerKey).value_or(QString()));
}

} // namespace ko
