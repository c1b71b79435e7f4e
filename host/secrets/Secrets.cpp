#include "secrets/Secrets.h"

#include "drivers/PropertyKeys.h"
#include "ko/LogQt.h"

#include <QMutex>
#include <QMutexLocker>

#include <set>

namespace ko {

namespace Secrets {

namespace {

struct State
{
    QMutex mutex;
    InstallationKey::Places places;
    bool hasPlaces = false;
    std::shared_ptr<const InstallationKey> key;
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

} // namespace

const QStringList& properties()
{
    static const QStringList all = {QLatin1String(PropertyKeys::Password),
                                    QLatin1String(PropertyKeys::ProxyPassword),
                                    QLatin1String(PropertyKeys::RemotePreviewPassword)};
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

void prepare()
{
    InstallationKey::Places places;
    {
        const QMutexLocker locker(&state().mutex);
        if (state().key)
            return;
        places = state().hasPlaces ? state().places : InstallationKey::Places::standard();
    }
    // Asking the keychain runs an event loop, from which somebody may come here again.
    auto loaded = std::make_shared<const InstallationKey>(InstallationKey::load(places));
    const QString problem = loaded->problem;
    {
        const QMutexLocker locker(&state().mutex);
        if (!state().key)
            state().key = std::move(loaded);
    }
    if (!problem.isEmpty())
        LogQt::line(LogQt::Error, QString::fromLatin1("The installation's key: %1").arg(problem));
}

bool isKeyKept()
{
    return key()->kept;
}

QString open(const QString& owner, const QString& property, const QString& stored)
{
    if (owner.isEmpty() || !Sealer::isSealed(stored))
        return stored;
    const std::optional<QString> opened = key()->sealer.open(stored, owner, property);
    if (!opened)
        tell(StoreError::SealedElsewhere);
    return opened.value_or(QString());
}

QString seal(const QString& owner, const QString& property, const QString& clear, const QString& before)
{
    if (owner.isEmpty())
        return clear;
    const std::shared_ptr<const InstallationKey> installation = key();
    if (Sealer::isSealed(before)) {
        const std::optional<QString> opened = installation->sealer.open(before, owner, property);
        if (opened ? *opened == clear : clear.isEmpty())
            return before;
    }
    if (clear.isEmpty())
        return clear;
    if (!installation->kept)
        tell(StoreError::KeyNotKept);
    return installation->sealer.seal(clear, owner, property);
}

void setListener(std::function<void(StoreError::Kind)> listener)
{
    const QMutexLocker locker(&state().mutex);
    state().listener = std::move(listener);
    state().told.clear();
}

} // namespace Secrets

} // namespace ko
