#include "secrets/Vault.h"

#include "secrets/Secrets.h"
#include "secrets/SiteKeyring.h"

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

Sealer Vault::sealer() const
{
    return m_site.isEmpty() ? m_keyring.key()->sealer : SiteKeyring::ofProcess().keys(m_site)->sealer();
}

bool Vault::canSeal() const
{
    return sealer().canSeal();
}

StoreError::Kind Vault::missingKey() const
{
    return m_site.isEmpty() ? StoreError::KeyNotKept : StoreError::SiteKeyMissing;
}

/// With the key that is most likely the one first.
std::optional<QString> Vault::openSealed(const QString& owner, const QString& property, const QString& stored)
{
    std::optional<QString> text;
    if (!m_site.isEmpty())
        text = SiteKeyring::ofProcess().keys(m_site)->open(stored, owner, property);
    if (!text)
        text = m_keyring.key()->sealer.open(stored, owner, property);
    return text ? text : SiteKeyring::ofProcess().open(stored, owner, property);
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
        return openSealed(owner, property, stored);
    return stored.isEmpty() || m_isClearAllowed ? std::make_optional(stored) : std::nullopt;
}

void Vault::noteUnread(const QString& stored)
{
    m_unread.insert(stored);
    const StoreError::Kind kind = !Sealer::isSealed(stored) ? StoreError::NotSealed
                                  : m_site.isEmpty()        ? StoreError::SealedElsewhere
                                                            : StoreError::SealedForSite;
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
    const Sealer with = sealer();
    return with.canSeal() ? with.seal(clear, owner, property)
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
    const Sealer with = sealer();
    if (!with.canSeal())
        return std::nullopt;
    return with.seal(*held, owner, property);
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
