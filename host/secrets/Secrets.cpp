#include "secrets/Secrets.h"

#include "ko/LogQt.h"
#include "ko/PropertyKeys.h"

#include <QMutex>
#include <QMutexLocker>

#include <cstring>
#include <set>

namespace ko {

namespace Secrets {

namespace {

constexpr char Held[] = "held:"; // before what is sealed for the memory alone

struct State
{
    QMutex mutex;
    InstallationKey::Places places;
    bool hasPlaces = false;
    KeychainWait* wait = nullptr;
    std::shared_ptr<const InstallationKey> key;
    bool clearAllowed = false;
    std::set<QString> unread; ///< stored texts that were shown empty
    std::function<void(StoreError::Kind)> listener;
    std::set<StoreError::Kind> told;
};

State& state()
{
    static State state;
    return state;
}

/// Held by the caller, so that no lock is held while it works.
std::shared_ptr<const InstallationKey> key()
{
    prepare();
    const QMutexLocker locker(&state().mutex);
    return state().key;
}

void tell(StoreError::Kind kind)
{
    std::function<void(StoreError::Kind)> listener;
    {
        const QMutexLocker locker(&state().mutex);
        if (!state().listener || !state().told.insert(kind).second)
            return;
        listener = state().listener;
    }
    listener(kind);
}

/// Holds in memory what cannot be sealed for the store, with a key that nobody else ever has.
const Sealer& holder()
{
    static const Sealer holder({Sealer::newKey()});
    return holder;
}

QString withoutHeld(const QString& text)
{
    return text.mid(int(std::strlen(Held)));
}

bool isClearAllowed()
{
    const QMutexLocker locker(&state().mutex);
    return state().clearAllowed;
}

std::optional<QString> opened(const QString& owner, const QString& property, const QString& stored)
{
    if (isHeld(stored))
        return holder().open(withoutHeld(stored), owner, property);
    if (Sealer::isSealed(stored))
        return key()->sealer.open(stored, owner, property);
    return stored.isEmpty() || isClearAllowed() ? std::make_optional(stored) : std::nullopt;
}

void noteUnread(const QString& stored)
{
    {
        const QMutexLocker locker(&state().mutex);
        state().unread.insert(stored);
    }
    tell(Sealer::isSealed(stored) ? StoreError::SealedElsewhere : StoreError::NotSealed);
}

/// Whoever writes an empty password in the place of one that was shown empty has not removed it, also when
/// the key has come back since.
bool wasUnread(const QString& stored)
{
    const QMutexLocker locker(&state().mutex);
    return state().unread.count(stored) > 0;
}

/// Asking the keychain runs an event loop, from which somebody may come here again.
void load()
{
    InstallationKey::Places places = InstallationKey::Places::standard();
    {
        const QMutexLocker locker(&state().mutex);
        if (state().hasPlaces)
            places = state().places;
        places.keychainWait = state().wait;
    }
    auto loaded = std::make_shared<const InstallationKey>(InstallationKey::load(places));
    const QString problem = loaded->problem;
    {
        const QMutexLocker locker(&state().mutex);
        if (!state().key || !state().key->sealer.canSeal())
            state().key = std::move(loaded);
    }
    if (!problem.isEmpty())
        LogQt::line(LogQt::Error, QString::fromLatin1("The installation's key: %1").arg(problem));
}

} // namespace

bool isHeld(const QString& text)
{
    return text.startsWith(QLatin1String(Held)) && Sealer::isSealed(withoutHeld(text));
}

const QStringList& properties()
{
    static const QStringList all = {PropertyKeys::Password, PropertyKeys::ProxyPassword,
                                    PropertyKeys::RecordingTransponderPassword};
    return all;
}

bool isSecret(const QString& property)
{
    return property.endsWith(QLatin1String("Password")) && properties().contains(property);
}

void setPlaces(const InstallationKey::Places& places)
{
    const QMutexLocker locker(&state().mutex);
    state().places = places;
    state().hasPlaces = true;
    state().key.reset();
}

void setKeychainWait(KeychainWait* wait)
{
    const QMutexLocker locker(&state().mutex);
    state().wait = wait;
}

void prepare()
{
    {
        const QMutexLocker locker(&state().mutex);
        if (state().key)
            return;
    }
    load();
}

bool prepareAgain()
{
    if (!isKeyKept())
        load();
    return isKeyKept();
}

bool isKeyKept()
{
    return key()->sealer.canSeal();
}

void setClearAllowed(bool allowed)
{
    const QMutexLocker locker(&state().mutex);
    state().clearAllowed = allowed;
}

QString open(const QString& owner, const QString& property, const QString& stored)
{
    if (owner.isEmpty())
        return stored;
    const std::optional<QString> clear = opened(owner, property, stored);
    if (!clear)
        noteUnread(stored);
    return clear.value_or(QString());
}

QString seal(const QString& owner, const QString& property, const QString& clear, const QString& before)
{
    if (owner.isEmpty())
        return clear;
    const std::optional<QString> stands = opened(owner, property, before);
    if (stands ? *stands == clear : clear.isEmpty())
        return before;
    if (clear.isEmpty())
        return wasUnread(before) ? before : clear;
    const std::shared_ptr<const InstallationKey> installation = key();
    return installation->sealer.canSeal() ? installation->sealer.seal(clear, owner, property)
                                          : QLatin1String(Held) + holder().seal(clear, owner, property);
}

void seal(NodeData& data)
{
    for (const QString& key : properties()) {
        const QVariant password = data.properties.value(key);
        if (password.isValid())
            data.properties.set(key, seal(data.id, key, password.toString()));
    }
}

std::optional<QString> toStore(const QString& owner, const QString& property, const QString& sealed)
{
    const std::optional<QString> held = isHeld(sealed) ? opened(owner, property, sealed) : std::nullopt;
    if (!held)
        return sealed;
    const std::shared_ptr<const InstallationKey> installation = key();
    if (!installation->sealer.canSeal())
        return std::nullopt;
    return installation->sealer.seal(*held, owner, property);
}

void setListener(std::function<void(StoreError::Kind)> listener)
{
    const QMutexLocker locker(&state().mutex);
    state().listener = std::move(listener);
    state().told.clear();
}

} // namespace Secrets

} // namespace ko
