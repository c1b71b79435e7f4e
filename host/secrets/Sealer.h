#ifndef KO_SEALER_H
#define KO_SEALER_H

#include "HostExport.h"

#include <QByteArray>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace ko {

/// Seals texts so that only those who have the key can read them, and nobody can change them unnoticed:
/// XChaCha20-Poly1305 with a random nonce, bound to the owner and the property that the text belongs to.
///
/// A sealed text is "sealed1:" and the base64 of nonce, encrypted text and tag. Its length tells that of
/// the text inside. Keys are wiped when the last copy of the sealer goes. Callable from any thread.
class KO_HOST_EXPORT Sealer
{
public:
    static constexpr int KeySize = 32; ///< bytes

    static QByteArray newKey();

    /// The first key seals, each of them opens. Those of another size are left out.
    explicit Sealer(const std::vector<QByteArray>& keys = std::vector<QByteArray>());

    bool canSeal() const { return !m_keys.empty(); }

    /// Never the same twice. Empty without a key.
    QString seal(const QString& text, const QString& owner, const QString& property) const;

    /// Nothing if \a sealed was changed, belongs elsewhere, or was sealed with none of the keys.
    std::optional<QString> open(const QString& sealed, const QString& owner, const QString& property) const;

    /// The text in \a sealed, which \a other opens, sealed with the first key of this; nothing if it does not
    /// open. The same gives the same again, so what was equal before is equal after.
    std::optional<QString> reseal(const QString& sealed, const Sealer& other, const QString& owner,
                                  const QString& property) const;

    /// What only those who have the key can make of \a message; empty without a key.
    QByteArray sign(const QByteArray& message) const;

    enum class Signature {
        Good,
        Bad,
        OtherKey ///< made with none of these keys, or no signature at all
    };

    Signature check(const QByteArray& message, const QByteArray& signature) const;

    /// Whether \a text has the form of a sealed one.
    static bool isSealed(const QString& text);

private:
    typedef std::shared_ptr<const unsigned char> Key;

    QString seal(const QString& text, const QString& owner, const QString& property,
                 const QByteArray& nonce) const;

    std::vector<Key> m_keys;
};

} // namespace ko

#endif
