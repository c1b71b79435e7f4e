#include "secrets/Keyring.h"

#include "ko/LogQt.h"

#include <QMutexLocker>

namespace ko {

Keyring& Keyring::ofInstallation()
{
    static Keyring keyring;
    return keyring;
}

Keyring::Keyring() = default;

Keyring::~Keyring() = default;

void Keyring::setPlaces(const InstallationKey::Places& places)
{
    const QMutexLocker locker(&m_mutex);
    m_places = places;
    m_key.reset();
}

void Keyring::setKeychainWait(KeychainWait* wait)
{
    const QMutexLocker locker(&m_mutex);
    m_wait = wait;
}

void Keyring::prepare()
{
    {
        const QMutexLocker locker(&m_mutex);
        if (m_key)
            return;
    }
    load();
}

bool Keyring::prepareAgain()
{
    if (!isKept())
        load();
    return isKept();
}

bool Keyring::isKept()
{
    return key()->sealer.canSeal();
}

std::shared_ptr<const InstallationKey> Keyring::key()
{
    prepare();
    const QMutexLocker locker(&m_mutex);
    return m_key;
}

/// Asking the keychain runs an event loop, from which somebody may come here again.
void Keyring::load()
{
    InstallationKey::Places places;
    {
        const QMutexLocker locker(&m_mutex);
        places = m_places ? *m_places : InstallationKey::Places::standard();
        places.keychainWait = m_wait;
    }
    auto loaded = std::make_shared<const InstallationKey>(InstallationKey::load(places));
    const QString problem = loaded->problem;
    {
        const QMutexLocker locker(&m_mutex);
        if (!m_key || !m_key->sealer.canSeal())
            m_key = std::move(loaded);
    }
    if (!problem.isEmpty())
        LogQt::line(LogQt::Error, QString::fromLatin1("The installation's key: %1").arg(problem));
}

} // namespace ko
