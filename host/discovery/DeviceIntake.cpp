#include "discovery/DeviceIntake.h"

#include "audit/AuditLog.h"
#include "database/HostNodeDB.h"
#include "discovery/AddressChangeLogEntry.h"
#include "discovery/KnownAddresses.h"
#include "discovery/Scanner.h"
#include "discovery/ServiceTypes.h"
#include "discovery/SightingFilter.h"
#include "interfaces/INodeDriverComponent.h"
#include "ko/IPDeviceNode.h"
#include "ko/LogQt.h"
#include "ko/NodeHintIPDevice.h"
#include "model/NetworkAddress.h"

#include <QElapsedTimer>
#include <QHash>
#include <QSet>
#include <QTimer>

#include <algorithm>
#include <deque>
#include <vector>

namespace ko {

namespace {

const int Slice = 2;      // ms of work in one turn of the event loop; storing and painting take as much again
const int SliceAlone = 1; // ms of these, where storing follows at once
const int Patience = 500; // ms; until the next try, when another program holds the database
const int Ripening = 500; // ms; in which the other services and addresses of a device arrive
const int DevicesAtOnePlace = 64; // with one address or one name; bounds the work for one sighting
const int AddressesOfOne = 8;
const int ServicesOfOne = 16;

/// One device, from whatever was seen of it.
struct Device
{
    struct Service
    {
        QString type;
        QString name;
        int port;
    };

    QString name;
    QString model;
    QString version;
    QString mac; ///< canonical; empty for none
    QStringList addresses;
    QVector<Service> services;
    QString nodeId;    ///< of a device that has a node
    qint64 due = 0;    ///< when a node is looked for or made
    bool isNew = true; ///< not dealt with yet
    unsigned scan = 0; ///< in which it was seen last
};

int rankOf(const QString& service)
{
    for (const ServiceType& known : serviceTypes) {
        if (service == QLatin1String(known.type))
            return known.rank;
    }
    return unknownServiceRank;
}

bool isIPv6(const QString& address)
{
    return address.contains(QLatin1Char(':'));
}

/// IPv4 before IPv6, and an address that only one link knows last.
int rankOfAddress(const QString& address)
{
    return !isIPv6(address) ? 0 : address.startsWith(QLatin1String("fe80"), Qt::CaseInsensitive) ? 2 : 1;
}

bool contradict(const QString& a, const QString& b)
{
    return !a.isEmpty() && !b.isEmpty() && a.compare(b, Qt::CaseInsensitive) != 0;
}

QString instanceKey(const DiscoveredDevice& seen)
{
    return QStringList{seen.service, QString::number(seen.port), seen.name.toLower()}.join(QChar(0x1f));
}

} // namespace

class DeviceIntake::Private
{
public:
    Private(DeviceIntake& intake, HostNodeDB& database);

    void schedule(int delay);
    void work();
    bool isRipe() const;
    void sighted(DiscoveredDevice seen);
    Device* atSameAddress(const DiscoveredDevice& seen) const;
    Device* elsewhere(const DiscoveredDevice& seen) const;
    Device* add();
    void absorb(Device& device, const DiscoveredDevice& seen);
    void settle(Device& device);
    QString nodeOf(const Device& device);
    bool sharesAddress(const Device& device) const;
    kom::smart<NodeHint> hint(const Device& device, const QString& address, int port) const;
    bool noteChange(Device& device);
    void seenAtHome(const Device& device);
    void createNode(Device& device);
    void drop(const char* what, int limit);

    DeviceIntake& q;
    HostNodeDB& db;
    KnownAddresses known;
    SightingFilter filter;
    QTimer timer;
    QElapsedTimer clock;
    std::deque<DiscoveredDevice> waiting;
    std::vector<std::unique_ptr<Device>> devices;
    std::deque<Device*> ripening; ///< in the order of their due time
    QHash<QString, QVector<Device*>> byAddress;
    QHash<QString, QVector<Device*>> byInstance;
    QHash<QString, int> macUses;
    QVector<AddressChange> changes;
    QHash<QString, Device*> changedDevices; ///< by the new address
    QSet<QString> dismissed;
    unsigned scan = 1;
    Cause cause = Cause::now(Purpose::Scan); ///< what one scan adds is one change set
    int newInScan = 0;
    bool saidDropped = false;
};

DeviceIntake::Private::Private(DeviceIntake& intake, HostNodeDB& database)
    : q(intake)
    , db(database)
    , known(database)
{
    timer.setSingleShot(true);
    QObject::connect(&timer, &QTimer::timeout, &q, [this] { work(); });
    clock.start();
}

void DeviceIntake::Private::schedule(int delay)
{
    if (!timer.isActive() || timer.remainingTime() > delay)
        timer.start(delay);
}

void DeviceIntake::Private::work()
{
    QElapsedTimer slice;
    slice.start();
    while (!waiting.empty() && !slice.hasExpired(Slice)) {
        const DiscoveredDevice seen = std::move(waiting.front());
        waiting.pop_front();
        sighted(seen);
    }
    bool isHeld = false;
    if (waiting.empty() && isRipe() && known.readMacs(slice, Slice)) {
        // Alone, so that two programs that scan one network do not both find a device missing, and add it.
        const auto settleSome = [&] {
            const ChangeScope scope(db, cause);
            QElapsedTimer alone;
            alone.start();
            while (isRipe() && !alone.hasExpired(SliceAlone) && known.readMacs(slice, Slice)) {
                Device* device = ripening.front();
                ripening.pop_front();
                settle(*device);
            }
        };
        StoreError error;
        isHeld = db.runAlone(settleSome, &error) == HostNodeDB::Outcome::NotRun;
    }
    if (!waiting.empty())
        schedule(0);
    else if (!ripening.empty())
        schedule(isHeld ? Patience : int(std::max<qint64>(0, ripening.front()->due - clock.elapsed())));
}

bool DeviceIntake::Private::isRipe() const
{
    return !ripening.empty() && ripening.front()->due <= clock.elapsed();
}

void DeviceIntake::Private::sighted(DiscoveredDevice seen)
{
    if (!filter.pass(seen))
        return;
    Device* device = atSameAddress(seen);
    if (!device)
        device = elsewhere(seen);
    if (!device)
        device = add();
    if (device)
        absorb(*device, seen);
}

/// What answers at one address is one device, unless it offers one service twice, by two names at two
/// ports: then there are several behind that address.
Device* DeviceIntake::Private::atSameAddress(const DiscoveredDevice& seen) const
{
    const QVector<Device*> candidates = byAddress.value(NetworkAddress::key(seen.address));
    Device* fits = nullptr;
    for (Device* device : candidates) {
        if (!seen.name.isEmpty() && device->name.compare(seen.name, Qt::CaseInsensitive) == 0)
            return device;
        const auto isAnother = [&seen](const Device::Service& service) {
            return service.type == seen.service && service.port != seen.port &&
                   contradict(service.name, seen.name);
        };
        if (!fits && std::none_of(device->services.cbegin(), device->services.cend(), isAnother))
            fits = device;
    }
    if (fits || candidates.size() < DevicesAtOnePlace)
        return fits;
    return candidates.at(0); // so many are none
}

/// The same announcement from another address is the same device when that is of the other family or
/// when the MAC addresses are equal too.
Device* DeviceIntake::Private::elsewhere(const DiscoveredDevice& seen) const
{
    if (seen.name.isEmpty() || seen.service.isEmpty())
        return nullptr;
    const QVector<Device*> candidates = byInstance.value(instanceKey(seen));
    for (Device* device : candidates) {
        if (contradict(device->mac, seen.macAddress) || device->addresses.size() >= AddressesOfOne)
            continue;
        const bool sameMac = !seen.macAddress.isEmpty() && device->mac == seen.macAddress;
        const bool otherFamily = std::none_of(
            device->addresses.cbegin(), device->addresses.cend(), [&seen](const QString& address) {
                return rankOfAddress(address) == rankOfAddress(seen.address);
            });
        if (otherFamily || (sameMac && device->isNew))
            return device;
    }
    return nullptr;
}

Device* DeviceIntake::Private::add()
{
    if (newInScan >= DevicesPerScan || devices.size() >= RememberedLimit) {
        drop("devices", newInScan);
        return nullptr;
    }
    ++newInScan;
    devices.push_back(std::make_unique<Device>());
    Device* device = devices.back().get();
    device->due = clock.elapsed() + Ripening;
    ripening.push_back(device);
    schedule(Ripening);
    return device;
}

void DeviceIntake::Private::absorb(Device& device, const DiscoveredDevice& seen)
{
    const auto take = [](QString& field, const QString& value) {
        if (field.isEmpty())
            field = value;
    };
    take(device.name, seen.name);
    take(device.model, seen.model);
    take(device.version, seen.version);
    if (device.mac.isEmpty() && !seen.macAddress.isEmpty()) {
        device.mac = seen.macAddress;
        ++macUses[device.mac];
    }
    if (!device.addresses.contains(seen.address) && device.addresses.size() < AddressesOfOne) {
        device.addresses.append(seen.address);
        byAddress[NetworkAddress::key(seen.address)].append(&device);
    }
    const auto isSame = [&seen](const Device::Service& service) {
        return service.type == seen.service && service.port == seen.port && service.name == seen.name;
    };
    if (std::none_of(device.services.cbegin(), device.services.cend(), isSame) &&
        device.services.size() < ServicesOfOne) {
        device.services.append({seen.service, seen.name, seen.port});
        QVector<Device*>& instances = byInstance[instanceKey(seen)];
        if (instances.size() < DevicesAtOnePlace)
            instances.append(&device);
    }
    device.scan = scan;
    if (!device.nodeId.isEmpty())
        seenAtHome(device);
}

bool DeviceIntake::Private::sharesAddress(const Device& device) const
{
    return std::any_of(device.addresses.cbegin(), device.addresses.cend(), [this](const QString& address) {
        return byAddress.value(NetworkAddress::key(address)).size() > 1;
    });
}

kom::smart<NodeHint> DeviceIntake::Private::hint(const Device& device, const QString& address, int port) const
{
    auto hint = db.nodeDriver(IPDeviceType)->createNodeHint(IPDeviceType);
    auto* description = dynamic_cast<NodeHintIPDevice*>(hint.get());
    hint->setName(!device.name.isEmpty() ? device.name : !device.model.isEmpty() ? device.model : address);
    description->address = address;
    if (port > 0)
        description->port = port;
    description->model = device.model;
    description->version = device.version;
    description->macAddress = MACAddress(device.mac);
    return hint;
}

/// The node that the device has already, by the database's rule or by its address alone.
QString DeviceIntake::Private::nodeOf(const Device& device)
{
    for (const QString& address : device.addresses) {
        for (const Device::Service& service : device.services) {
            QString id = db.lookupHint(*hint(device, address, service.port));
            if (!id.isEmpty())
                return id;
        }
    }
    if (sharesAddress(device))
        return QString();
    for (const QString& address : device.addresses) {
        const QStringList ids = known.nodesAt(address);
        if (!ids.isEmpty())
            return ids.at(0);
    }
    return QString();
}

void DeviceIntake::Private::settle(Device& device)
{
    device.isNew = false;
    device.nodeId = nodeOf(device);
    if (!device.nodeId.isEmpty())
        seenAtHome(device);
    else if (!noteChange(device))
        createNode(device);
}

/// Whether it seems to be a device of the database that moved. A MAC address that several have, here or
/// there, says nothing; nor does one alone, without the name or the model that belongs to it.
bool DeviceIntake::Private::noteChange(Device& device)
{
    if (device.mac.isEmpty())
        return false;
    const QStringList ids = known.nodesWithMac(device.mac);
    const auto node =
        ids.size() == 1 ? db.node(ids.at(0)).cast<const IPDeviceNode>() : kom::smart<const IPDeviceNode>();
    const bool sameModel = !node.null() && !device.model.isEmpty() && node->model() == device.model;
    if (node.null() || (!sameModel && node->name() != device.name) || contradict(node->model(), device.model))
        return false;
    const auto isAtHome = [&](const std::unique_ptr<Device>& other) {
        return other.get() != &device && other->mac == device.mac && other->scan == scan;
    };
    const QVector<Device*> atOldAddress = byAddress.value(NetworkAddress::key(node->address()));
    const bool oldAnswers = std::any_of(atOldAddress.cbegin(), atOldAddress.cend(),
                                        [this](const Device* other) { return other->scan == scan; });
    if (oldAnswers ||
        (macUses.value(device.mac) > 1 && std::any_of(devices.cbegin(), devices.cend(), isAtHome)))
        return false;
    const QString address = *std::min_element(
        device.addresses.cbegin(), device.addresses.cend(),
        [](const QString& a, const QString& b) { return rankOfAddress(a) < rankOfAddress(b); });
    if (dismissed.contains(ids.at(0) + QLatin1Char(' ') + address) || changes.size() >= ChangesLimit)
        return true;
    const AddressChange change{ids.at(0), node->name(), node->address(), address, device.mac};
    if (!changes.contains(change)) {
        changes.append(change);
        changedDevices.insert(address, &device);
        emit q.addressChangesChanged();
    }
    return true;
}

/// A device that still answers where it always did has not moved: who claims so is another.
void DeviceIntake::Private::seenAtHome(const Device& device)
{
    for (int i = int(changes.size()) - 1; i >= 0; --i) {
        if (changes.at(i).nodeId != device.nodeId)
            continue;
        const AddressChange change = changes.at(i);
        changes.remove(i);
        Device* other = changedDevices.take(change.newAddress);
        emit q.addressChangesChanged();
        if (other && other != &device)
            createNode(*other);
        return;
    }
}

void DeviceIntake::Private::createNode(Device& device)
{
    const QString address = *std::min_element(
        device.addresses.cbegin(), device.addresses.cend(),
        [](const QString& a, const QString& b) { return rankOfAddress(a) < rankOfAddress(b); });
    int port = 0;
    int rank = unknownServiceRank + 100;
    for (const Device::Service& service : std::as_const(device.services)) {
        if (service.port > 0 && rankOf(service.type) < rank) {
            port = service.port;
            rank = rankOf(service.type);
        }
    }
    const auto description = hint(device, address, port);
    device.nodeId = db.add(*description);
}

void DeviceIntake::Private::drop(const char* what, int limit)
{
    if (saidDropped)
        return;
    saidDropped = true;
    LogQt::line(LogQt::Warning,
                QString::fromLatin1("The network scan found more than %1 %2; the others are left out")
                    .arg(limit)
                    .arg(QLatin1String(what)));
}

DeviceIntake::DeviceIntake(HostNodeDB& db)
    : d(new Private(*this, db))
{
}

DeviceIntake::~DeviceIntake() = default;

void DeviceIntake::attach(Scanner& scanner)
{
    connect(&scanner, &Scanner::found, this, &DeviceIntake::take);
}

/// What is forgotten here are the devices whose nodes are gone, so that they can be found again.
void DeviceIntake::beginScan()
{
    ++d->scan;
    d->cause = Cause::now(Purpose::Scan);
    d->newInScan = 0;
    d->saidDropped = false;
    d->filter.beginScan();
    QSet<const Device*> gone;
    for (const auto& device : d->devices) {
        const bool isNoted = std::find(d->changedDevices.cbegin(), d->changedDevices.cend(), device.get()) !=
                             d->changedDevices.cend();
        const bool hasNode = !device->nodeId.isEmpty() && !d->db.summary(device->nodeId).id.isEmpty();
        if (!device->isNew && !hasNode && !isNoted)
            gone.insert(device.get());
    }
    const auto isGone = [&gone](const auto& device) { return gone.contains(&*device); };
    for (auto* index : {&d->byAddress, &d->byInstance}) {
        for (auto it = index->begin(); it != index->end();) {
            it->erase(std::remove_if(it->begin(), it->end(), isGone), it->end());
            it = it->isEmpty() ? index->erase(it) : std::next(it);
        }
    }
    for (const Device* device : std::as_const(gone)) {
        if (!device->mac.isEmpty() && --d->macUses[device->mac] == 0)
            d->macUses.remove(device->mac);
    }
    d->devices.erase(std::remove_if(d->devices.begin(), d->devices.end(), isGone), d->devices.end());
}

bool DeviceIntake::isIdle() const
{
    return d->waiting.empty() && d->ripening.empty();
}

void DeviceIntake::take(const QVector<DiscoveredDevice>& devices)
{
    const int room = WaitingLimit - int(d->waiting.size());
    if (devices.size() > room)
        d->drop("announcements at once", WaitingLimit);
    d->waiting.insert(d->waiting.end(), devices.cbegin(),
                      devices.cbegin() + std::min<int>(room, int(devices.size())));
    if (!d->waiting.empty())
        d->schedule(0);
}

QVector<AddressChange> DeviceIntake::addressChanges() const
{
    return d->changes;
}

void DeviceIntake::accept(const QVector<AddressChange>& accepted)
{
    const ChangeScope scope(d->db, Cause::now(Purpose::Address));
    for (const AddressChange& change : accepted) {
        if (!d->changes.removeOne(change))
            continue;
        Device* found = d->changedDevices.take(change.newAddress);
        const auto current = d->db.node(change.nodeId).cast<const IPDeviceNode>();
        if (current.null() || current->address() != change.oldAddress)
            continue;
        Node* copy = d->db.beginUpdateNode(change.nodeId, -1);
        if (auto* device = dynamic_cast<IPDeviceNode*>(copy)) {
            device->setAddress(change.newAddress);
            device->notifyChange(IPDeviceNode::AddressChanged);
            d->db.auditLog().log(AddressChangeLogEntry(device->name(), change.oldAddress, change.newAddress));
        }
        d->db.endUpdateNode(copy);
        if (found)
            found->nodeId = change.nodeId;
    }
    emit addressChangesChanged();
}

void DeviceIntake::dismiss(const QVector<AddressChange>& dropped)
{
    for (const AddressChange& change : dropped) {
        if (!d->changes.removeOne(change))
            continue;
        d->changedDevices.remove(change.newAddress);
        if (d->dismissed.size() < RememberedLimit)
            d->dismissed.insert(change.nodeId + QLatin1Char(' ') + change.newAddress);
    }
    emit addressChangesChanged();
}

} // namespace ko
