#ifndef KO_HOSTSETTINGS_H
#define KO_HOSTSETTINGS_H

#include "database/NodeMemory.h"
#include "database/StoredEnvironments.h"
#include "ko/GlobalNetworkProxy.h"

#include <QObject>

#include <functional>

namespace ko {

/// What the database keeps beside nodes: the settings in memory as the objects that the contract hands out.
class HostSettings : public QObject
{
    Q_OBJECT

public:
    /// \a changed is called when something is to be stored. \a memory outlives the settings.
    HostSettings(NodeMemory& memory, std::function<void()> changed);

    /// Whether there are none yet.
    bool isNew() const;

    /// What a new database begins with: one environment. Nothing if it is not new.
    void addDefaultEnvironment();

    /// Brings the objects up to what is in memory.
    void reload();

    QString text(const char* key) const { return m_memory.settings.value(QLatin1String(key)); }
    void setText(const char* key, const QString& value);

    int bandwidth() const;
    QString activeEnvironment() const;
    /// An unknown environment is not made the active one.
    void setActiveEnvironment(const QString& id);

    StoredEnvironments& environments() { return m_environments; }
    GlobalNetworkProxy& proxy() { return m_proxy; }

    static const char RecordingFolderPath[];
    static const char TransponderAddress[];
    static const char Bandwidth[];

private slots:
    void proxyChanged();

private:
    void environmentsChanged();
    void environmentRemoved(const QString& id);

    NodeMemory& m_memory;
    const std::function<void()> m_changed;
    StoredEnvironments m_environments;
    GlobalNetworkProxy m_proxy;
};

} // namespace ko

#endif
