#include "discovery/DeviceIntake.h"

#include "audit/AuditLog.h"
#include "database/HostNodeDB.h"
#include "discovery/AddressChangeLogEntry.h"
#include "discovery/FoundNodes.h"
#include "discovery/KnownAddresses.h"
#include "discovery/Scanner.h"
#include "discovery/SightedDevices.h"
#include "discovery/SightingFilter.h"
#include "ko/IPDeviceNode.h"
#include "ko/LogQt.h"
#include "ko/NodeHint.h"
#include "model/NetworkAddress.h"

#include <QElapsedTimer>
#include <QHash>
#include <QSet>
#include <QTimer>

#include <algorithm>
#include <deque>

namespace ko {

namespace {

const int Slice = 2;      // ms of work in one turn of the event loop; storing and painting take as much again
const int SliceAlone = 1; // ms of these, where storing follows at once
const int Patience = 500; // ms; until the next try, when another program holds the database
const int Ripening = 500; // ms; in which the other services and addresses of a device arrive

typedef SightedDevice Device;

} // namespace

class DeviceIntake::Private
{
public:
    Private(DeviceIntake& intake, HostNodeDB& database);

    void schedule(int delay);
    void work();
    bool isRipe() const;
    void sighted(DiscoveredDevice seen);
    Device* add();
    void ripen(Device& device);
    void absorb(Device& device, const DiscoveredDevice& seen);
    void prepareLookUps();
    void settle(Device& device);
    QString nodeOf(const Device& device);
    bool noteChange(Device& device);
    bool noteChange(Device& device, const QString& mac);
    void seenAtHome(const Device& device);
    void createNode(Device& device);
    void drop(const char* what, int limit);

    DeviceIntake& q;
    HostNodeDB& db;
    KnownAddresses known;
    FoundNodes nodes;
    SightingFilter filter;
    QTimer timer;
    QElapsedTimer clock;
    std::deque<DiscoveredDevice> waiting;
    SightedDevices devices;
    std::deque<Device*> ripening; ///< in the order of their due time
    QVector<AddressChange> changes;
    QHash<QString, Device*> changedDevices; ///< by the new address
    QSet<QString> dismissed;
    unsigned scan = 1;
    Cause cause = Cause::now(Purpose::Scan); ///< what one scan adds is one change set
    int newInScan = 0;
    bool saidDropped = false;
    bool isPrepared = false;
};

DeviceIntake::Private::Private(DeviceIntake& intake, HostNodeDB& database)
    : q(intake)
    , db(database)
    , known(database)
    , nodes(database)
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
    if (waiting.empty() && isRipe()) {
        // Alone, so that two programs that scan one network do not both find a device missing, and add it.
        const auto settleSome = [&] {
            const ChangeScope scope(db, cause);
            QElapsedTimer alone;
            alone.start();
            while (isRipe() && !alone.hasExpired(SliceAlone)) {
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
    Device* device = devices.find(seen);
    if (!device)
        device = add();
    if (device)
        absorb(*device, seen);
}

Device* DeviceIntake::Private::add()
{
    if (newInScan >= DevicesPerScan || devices.size() >= RememberedLimit) {
        drop("devices", newInScan);
        return nullptr;
    }
    ++newInScan;
    Device* device = &devices.add();
    ripen(*device);
    return device;
}

void DeviceIntake::Private::ripen(Device& device)
{
    if (device.isWaiting)
        return;
    device.isWaiting = true;
    device.due = clock.elapsed() + Ripening;
    ripening.push_back(&device);
    schedule(Ripening);
    if (!std::exchange(isPrepared, true))
        QTimer::singleShot(0, &q, [this] { prepareLookUps(); });
}

/// In a large database the first ones take some time, which there is while the first device ripens.
void DeviceIntake::Private::prepareLookUps()
{
    known.nodesAt(QString());
    db.lookupHint(*nodes.hint(Device(), QLatin1String("0.0.0.0"), HttpPort));
}

void DeviceIntake::Private::absorb(Device& device, const DiscoveredDevice& seen)
{
    const int addresses = int(device.addresses.size());
    devices.absorb(device, seen);
    device.scan = scan;
    if (device.nodeId.isEmpty())
        return;
    seenAtHome(device);
    if (device.addresses.size() > addresses)
        ripen(device);
}

/// The node that the device has already, by the database's rule or by its address alone.
QString DeviceIntake::Private::nodeOf(const Device& device)
{
    for (const QString& address : device.addresses) {
        for (const Device::Service& service : device.services) {
            QString id = db.lookupHint(*nodes.hint(device, address, service.port));
            if (!id.isEmpty())
                return id;
        }
    }
    if (devices.sharesAddress(device))
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
    device.isWaiting = false;
    if (device.nodeId.isEmpty())
        device.nodeId = nodeOf(device);
    nodes.refresh(device);
    if (!device.nodeId.isEmpty())
        seenAtHome(device);
    else if (!noteChange(device))
        createNode(device);
}

/// Whether it seems to be a device of the database that moved. A MAC address that several have, here or
/// there, says nothing; nor does one alone, without the name or the model that belongs to it.
bool DeviceIntake::Private::noteChange(Device& device)
{
    const QStringList macs = device.macs();
    return std::any_of(macs.cbegin(), macs.cend(),
                       [&](const QString& mac) { return noteChange(device, mac); });
}

bool DeviceIntake::Private::noteChange(Device& device, const QString& mac)
{
    const QStringList ids = db.nodesWithMac(mac);
    const auto node =
        ids.size() == 1 ? db.node(ids.at(0)).cast<const IPDeviceNode>() : kom::smart<const IPDeviceNode>();
    const bool sameModel = !node.null() && !device.model.isEmpty() && node->model() == device.model;
    if (node.null() || (!sameModel && node->name() != device.name) || contradict(node->model(), device.model))
        return false;
    const QVector<Device*> atOldAddress = devices.at(node->address());
    const bool oldAnswers = std::any_of(atOldAddress.cbegin(), atOldAddress.cend(),
                                        [this](const Device* other) { return other->scan == scan; });
    if (oldAnswers || devices.sharesMac(device, mac, scan))
        return false;
    const QString address = device.bestAddress();
    if (dismissed.contains(ids.at(0) + QLatin1Char(' ') + address) || changes.size() >= ChangesLimit)
        return true;
    const AddressChange change{ids.at(0), node->name(), node->address(), address, mac};
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
    const auto description = nodes.hint(device, device.bestAddress(), device.bestPort());
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
    d->devices.removeIf([this](const Device& device) {
        const bool isNoted = std::find(d->changedDevices.cbegin(), d->changedDevices.cend(), &device) !=
                             d->changedDevices.cend();
        const bool hasNode = !device.nodeId.isEmpty() && !d->db.summary(device.nodeId).id.isEmpty();
        return !device.isWaiting && !hasNode && !isNoted;
    });
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
        if (!found)
            continue;
        found->nodeId = change.nodeId;
        d->nodes.refresh(*found);
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
