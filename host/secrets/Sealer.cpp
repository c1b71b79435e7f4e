#include "secrets/Sealer.h"

#include <QtEndian>

#include <sodium.h>

#include <algorithm>
#include <cstring>

namespace ko {

namespace {

constexpr char Prefix[] = "sealed1:";
constexpr int NonceSize = crypto_aead_xchacha20poly1305_ietf_NPUBBYTES;
constexpr int KeyNameSize = crypto_generichash_BYTES_MIN;
constexpr int SignatureSize = crypto_generichash_BYTES;
constexpr int TagSize = crypto_aead_xchacha20poly1305_ietf_ABYTES;
static_assert(Sealer::KeySize == crypto_aead_xchacha20poly1305_ietf_KEYBYTES);

void startLibrary()
{
    static const int result = sodium_init();
    if (result < 0)
        qFatal("libsodium cannot be used on this computer");
}

const unsigned char* bytes(const QByteArray& array)
{
    return reinterpret_cast<const unsigned char*>(array.constData());
}

unsigned char* bytes(QByteArray& array)
{
    return reinterpret_cast<unsigned char*>(array.data());
}

/// The same on every computer, and any text comes back as it was, also one that is not proper Unicode.
QByteArray toBytes(const QString& text)
{
    QByteArray result(2 * int(text.size()), Qt::Uninitialized);
    qToLittleEndian<quint16>(text.utf16(), text.size(), result.data());
    return result;
}

QString fromBytes(const QByteArray& array)
{
    QString text(int(array.size()) / 2, Qt::Uninitialized);
    qFromLittleEndian<quint16>(array.constData(), text.size(), text.data());
    return text;
}

/// BLAKE2b.
QByteArray keyedHash(const unsigned char* key, const QByteArray& message, int size)
{
    QByteArray result(size, Qt::Uninitialized);
    crypto_generichash(bytes(result), size_t(size), bytes(message), quint64(message.size()), key,
                       Sealer::KeySize);
    return result;
}

/// A name of the key, and what only the key makes of \a message. What signs is not the key that seals.
QByteArray signature(const unsigned char* key, const QByteArray& message)
{
    QByteArray signing = keyedHash(key, QByteArrayLiteral("konodeui signature"), Sealer::KeySize);
    QByteArray result = keyedHash(bytes(std::as_const(signing)), QByteArrayLiteral("name"), KeyNameSize) +
                        keyedHash(bytes(std::as_const(signing)), "message" + message, SignatureSize);
    sodium_memzero(signing.data(), size_t(signing.size()));
    return result;
}

/// What the tag covers besides the text. No id and no name of a property holds a zero.
QByteArray binding(const QString& owner, const QString& property)
{
    return QByteArray(Prefix) + owner.toUtf8() + '\0' + property.toUtf8();
}

QByteArray decoded(const QString& sealed)
{
    if (!sealed.startsWith(QLatin1String(Prefix)))
        return QByteArray();
    const QByteArray text = sealed.mid(int(std::strlen(Prefix))).toUtf8();
    const auto result = QByteArray::fromBase64Encoding(text, QByteArray::AbortOnBase64DecodingErrors);
    if (!result || (*result).size() < NonceSize + TagSize || (*result).toBase64() != text)
        return QByteArray();
    return *result;
}

} // namespace

QByteArray Sealer::newKey()
{
    startLibrary();
    QByteArray key(KeySize, Qt::Uninitialized);
    randombytes_buf(key.data(), KeySize);
    return key;
}

Sealer::Sealer(const std::vector<QByteArray>& keys)
{
    startLibrary();
    for (const QByteArray& key : keys) {
        auto* memory = key.size() == KeySize ? static_cast<unsigned char*>(sodium_malloc(KeySize)) : nullptr;
        if (!memory)
            continue;
        std::copy_n(bytes(key), KeySize, memory);
        m_keys.emplace_back(memory, [](unsigned char* wiped) { sodium_free(wiped); });
    }
}

QString Sealer::seal(const QString& text, const QString& owner, const QString& property) const
{
    QByteArray nonce(NonceSize, Qt::Uninitialized);
    randombytes_buf(nonce.data(), NonceSize);
    return seal(text, owner, property, nonce);
}

QString Sealer::seal(const QString& text, const QString& owner, const QString& property,
                     const QByteArray& nonce) const
{
    if (!canSeal())
        return QString();
    QByteArray clear = toBytes(text);
    const QByteArray bound = binding(owner, property);
    QByteArray result = nonce;
    result.resize(NonceSize + int(clear.size()) + TagSize);
    crypto_aead_xchacha20poly1305_ietf_encrypt(
        bytes(result) + NonceSize, nullptr, bytes(std::as_const(clear)), quint64(clear.size()), bytes(bound),
        quint64(bound.size()), nullptr, bytes(std::as_const(result)), m_keys.front().get());
    sodium_memzero(clear.data(), std::size_t(clear.size()));
    return QLatin1String(Prefix) + QString::fromLatin1(result.toBase64());
}

/// Every sealed text has a nonce of its own in it, so what only the key can make of one is a nonce that no
/// other text gets. What makes nonces is not the key that seals.
std::optional<QString> Sealer::reseal(const QString& sealed, const Sealer& other, const QString& owner,
                                      const QString& property) const
{
    std::optional<QString> text = other.open(sealed, owner, property);
    if (!text || !canSeal())
        return std::nullopt;
    QByteArray making =
        keyedHash(m_keys.front().get(), QByteArrayLiteral("konodeui nonces of what is sealed anew"), KeySize);
    const QByteArray bound = binding(owner, property) + '\0' + sealed.toUtf8();
    const QByteArray nonce = keyedHash(bytes(std::as_const(making)), bound, NonceSize);
    sodium_memzero(making.data(), size_t(making.size()));
    return seal(*text, owner, property, nonce);
}

std::optional<QString> Sealer::open(const QString& sealed, const QString& owner,
                                    const QString& property) const
{
    const QByteArray whole = decoded(sealed);
    if (whole.isEmpty() || (whole.size() - NonceSize - TagSize) % 2 != 0)
        return std::nullopt;
    const QByteArray bound = binding(owner, property);
    QByteArray clear(int(whole.size()) - NonceSize - TagSize, Qt::Uninitialized);
    const bool opened = std::any_of(m_keys.begin(), m_keys.end(), [&](const Key& key) {
        return crypto_aead_xchacha20poly1305_ietf_decrypt(
                   bytes(clear), nullptr, nullptr, bytes(whole) + NonceSize,
                   quint64(whole.size()) - NonceSize, bytes(bound), quint64(bound.size()), bytes(whole),
                   key.get()) == 0;
    });
    if (!opened)
        return std::nullopt;
    QString text = fromBytes(clear);
    sodium_memzero(clear.data(), std::size_t(clear.size()));
    return text;
}

QByteArray Sealer::sign(const QByteArray& message) const
{
    return canSeal() ? signature(m_keys.front().get(), message) : QByteArray();
}

Sealer::Signature Sealer::check(const QByteArray& message, const QByteArray& told) const
{
    for (const Key& key : m_keys) {
        const QByteArray good = signature(key.get(), message);
        if (told.size() != good.size() || told.left(KeyNameSize) != good.left(KeyNameSize))
            continue;
        return sodium_memcmp(good.constData(), told.constData(), size_t(good.size())) == 0 ? Signature::Good
                                                                                           : Signature::Bad;
    }
    return Signature::OtherKey;
}

bool Sealer::isSealed(const QString& text)
{
    return !decoded(text).isEmpty();
}

} // namespace ko
