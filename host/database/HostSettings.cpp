#include "database/HostSettings.h"

#include "database/ProxySettings.h"
#include "ko/Types.h"

#include <QCoreApplication>
#include <QUuid>

namespace ko {

namespace {

constexpr char ActiveEnvironment[] = "environment.active";

} // namespace

const char HostSettings::RecordingFolderPath[] = "recording.globalFolderPath";
const char HostSettings::TransponderAddress[] = "recording.defaultTransponderAddress";
const char HostSettings::Bandwidth[] = "bandwidth";

HostSettings::HostSettings(NodeMemory& memory, std::function<void()> changed)
    : m_memory(memory)
    , m_changed(std::move(changed))
    , m_environments([this] { environmentsChanged(); }, [this](const QString& id) { environmentRemoved(id); })
{
    reload();
    connect(&m_proxy, &GlobalNetworkProxy::globalProxyDataChanged, this, &HostSettings::proxyChanged);
}

bool HostSettings::isNew() const
{
    return m_memory.environments.isEmpty() && !m_memory.settings.contains(QLatin1String(ActiveEnvironment));
}

void HostSettings::addDefaultEnvironment()
{
    if (!isNew())
        return; // another process was faster
    const QString id = QUuid::createUuid().toString();
    m_memory.setEnvironments({{id, QCoreApplication::translate("HostNodeDB", "Default")}});
    m_memory.setSetting(QLatin1String(ActiveEnvironment), id);
}

void HostSettings::reload()
{
    m_environments.reload(m_memory.environments);
    ProxySettings::toProxy(m_memory.settings, m_proxy, *m_memory.vault());
}

void HostSettings::setText(const char* key, const QString& value)
{
    if (!m_memory.isReadOnly && m_memory.setSetting(QLatin1String(key), value))
        m_changed();
}

int HostSettings::bandwidth() const
{
    bool isSet = false;
    const int bandwidth = text(Bandwidth).toInt(&isSet);
    return isSet ? bandwidth : int(FastLocal);
}

/// Also called when the settings of another process are taken over: then nothing differs.
void HostSettings::proxyChanged()
{
    if (m_memory.isReadOnly)
        return;
    GlobalNetworkProxy untouched;
    ProxySettings::toProxy(Settings(), untouched, *m_memory.vault());
    const Settings defaults = ProxySettings::fromProxy(untouched, Settings(), *m_memory.vault());
    const Settings values = ProxySettings::fromProxy(m_proxy, m_memory.settings, *m_memory.vault());
    for (auto it = values.begin(); it != values.end(); ++it) {
        if (m_memory.settings.value(it.key(), defaults.value(it.key())) != it.value() &&
            m_memory.setSetting(it.key(), it.value()))
            m_changed();
    }
}

void HostSettings::environmentsChanged()
{
    if (m_memory.isReadOnly) {
        m_environments.reload(m_memory.environments);
        return;
    }
    m_memory.setEnvironments(m_environments.getList());
    m_changed();
}

void HostSettings::environmentRemoved(const QString& id)
{
    if (text(ActiveEnvironment) == id)
        setText(ActiveEnvironment, activeEnvironment());
}

/// The first one stands in for one that is gone.
QString HostSettings::activeEnvironment() const
{
    const QString active = text(ActiveEnvironment);
    if (m_environments.contains(active) || m_memory.environments.isEmpty())
        return m_environments.contains(active) ? active : QString();
    return m_memory.environments.first().first;
}

void HostSettings::setActiveEnvironment(const QString& id)
{
    if (m_environments.contains(id))
        setText(ActiveEnvironment, id);
}

} // namespace ko
