#include "secrets/Vault.h"

#include "secrets/Secrets.h"

#include <cstring>

namespace ko {

namespace {

constexpr char Held[] = "held:"; // before what is sealed for the memory alone

QString withoutHeld(const QString& text)
{
    return text.mid(int(std::strlen(Held)));
}

} // namespace

Vault::Vault(Keyring& keyring)
    : m_keyring(keyring)
    , m_holder({Sealer::newKey()})
{
}

void Vault::setListener(std::function<void(StoreError::Kind)> listener)
{
    m_listener = std::move(listener);
    m_told.clear();
}

bool Vault::isHeld(const QString& sealed)
{
    return sealed.startsWith(QLatin1String(Held)) && Sealer::isSealed(withoutHeld(sealed));
}

std::optional<QString> Vault::reveal(const QString& owner, const QString& property, const QString& stored)
{
    if (isHeld(stored))
        return m_holder.open(withoutHeld(stored), owner, property);
    if (Sealer::isSealed(stored))
        return m_keyring.key()->sealer.open(stored, owner, property);
    return stored.isEmpty() || m_isClearAllowed ? std::make_optional(stored) : std::nullopt;
}

void Vault::noteUnread(const QString& stored)
{
    m_unread.insert(stored);
    const StoreError::Kind kind =
        Sealer::isSealed(stored) ? StoreError::SealedElsewhere : StoreError::NotSealed;
    if (m_listener && m_told.insert(kind).second)
        m_listener(kind);
}

QString Vault::open(const QString& owner, const QString& property, const QString& stored)
{
    const std::optional<QString> clear = reveal(owner, property, stored);
    if (!clear)
        noteUnread(stored);
    return clear.value_or(QString());
}

QString Vault::seal(const QString& owner, const QString& property, const QString& clear,
                    const QString& before)
{
    const std::optional<QString> stands = reveal(owner, property, before);
    if (stands ? *stands == clear : clear.isEmpty())
        return before;
    // Whoever writes an empty password in the place of one that was shown empty has not removed it, also
    // when the key has come back since.
    if (clear.isEmpty())
        return m_unread.count(before) > 0 ? before : clear;
    const std::shared_ptr<const InstallationKey> installation = m_keyring.key();
    return installation->sealer.canSeal() ? installation->sealer.seal(clear, owner, property)
                                          : QLatin1String(Held) + m_holder.seal(clear, owner, property);
}

void Vault::seal(NodeData& data)
{
    for (const QString& key : Secrets::properties()) {
        const QVariant password = data.properties.value(key);
        if (password.isValid())
            data.properties.set(key, seal(data.id, key, password.toString()));
    }
}

std::optional<QString> Vault::toStore(const QString& owner, const QString& property, const QString& sealed)
{
    const std::optional<QString> held = isHeld(sealed) ? reveal(owner, property, sealed) : std::nullopt;
    if (!held)
        return sealed;
    const std::shared_ptr<const InstallationKey> installation = m_keyring.key();
    if (!installation->sealer.canSeal())
        return std::nullopt;
    return installation->sealer.seal(*held, owner, property);
}

QString Vault::opened(Vault* vault, const NodeData& data, const QString& property)
{
    const QString stored = data.properties.value(property).toString();
    return vault ? vault->open(data.id, property, stored) : stored;
}

QString Vault::sealed(Vault* vault, const NodeData& data, const QString& property, const QString& clear)
{
    return vault ? vault->seal(data.id, property, clear, data.properties.value(property).toString()) : clear;
}

} // namespace ko
