#ifndef KO_SIGHTEDDEVICES_H
#define KO_SIGHTEDDEVICES_H

#include "discovery/DiscoveredDevice.h"

#include <QHash>
#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

namespace ko {

/// One device, from whatever was seen of it.
struct SightedDevice
{
    struct Service
    {
        QString type;
        QString name;
        QString identity;
        int port;
    };

    QString name;
    QString model;
    QString version;
    QString location;
    QString mac;          ///< as told; canonical, empty for none
    QString neighbourMac; ///< as seen
    QStringList addresses;
    QVector<Service> services;
    QString nodeId;         ///< of a device that has a node
    qint64 due = 0;         ///< when a node is looked for, made or refreshed
    bool isWaiting = false; ///< for that
    bool isNew = true;      ///< not dealt with yet
    unsigned scan = 0;      ///< in which it was seen last

    /// The likeliest to be reached.
    QString bestAddress() const;

    /// What is told comes first: a camera behind another device is seen with the MAC address of that.
    QStringList macs() const;

    /// That through which a camera is configured; 0 when none is known.
    int bestPort() const;
};

/// Whether both are told and differ.
bool contradict(const QString& a, const QString& b);

/// Decides which sightings are of one device, by the rule in docs/lookup.md. They are clean already.
class SightedDevices
{
public:
    /// The one that was seen there; null when it is another one than all so far.
    SightedDevice* find(const DiscoveredDevice& seen) const;

    SightedDevice& add();
    void absorb(SightedDevice& device, const DiscoveredDevice& seen);

    QVector<SightedDevice*> at(const QString& address) const;

    /// Whether there are several behind one of its addresses.
    bool sharesAddress(const SightedDevice& device) const;

    /// Whether another one of the same scan has this MAC address.
    bool sharesMac(const SightedDevice& device, const QString& mac, unsigned scan) const;

    int size() const { return int(m_devices.size()); }
    void removeIf(const std::function<bool(const SightedDevice&)>& isGone);

private:
    void takeMac(QString& field, const QString& mac);
    SightedDevice* atSameAddress(const DiscoveredDevice& seen) const;
    SightedDevice* elsewhere(const DiscoveredDevice& seen) const;

    std::vector<std::unique_ptr<SightedDevice>> m_devices;
    QHash<QString, QVector<SightedDevice*>> m_byAddress;
    QHash<QString, QVector<SightedDevice*>> m_byAnnouncement;
    QHash<QString, int> m_macUses;
};

} // namespace ko

#endif
