#include "discovery/WsDiscoverySession.h"

#include "discovery/NeighbourTable.h"
#include "discovery/ScanClock.h"
#include "discovery/ScanInterfaces.h"
#include "discovery/WsDiscovery.h"

#include <QNetworkInterface>
#include <QRandomGenerator>

#include <algorithm>
#include <cerrno>
#include <utility>

#include <poll.h>

namespace ko {

namespace {

const int RoundTime = 60000;  // ms from one question to the next, and in which new interfaces are noticed
const int WaitingTime = 5000; // ms of these, while there is no interface
const int Repeats = 2;        // of each question, the figures are those of SOAP-over-UDP
const int LeastDelay = 50;    // ms before the first repeat
const int MostDelay = 250;    // the next waits twice as long, up to
const int UpperDelay = 500;
const int MostRemembered = 20000; // announcements in one round
const int TableInterval = 50;     // ms between two looks at the neighbours
const int HoldingTime = 500;      // ms in which the system finds out who a neighbour is
const int StepTime = 50;          // ms

} // namespace

void WsDiscoverySession::work()
{
    while (isWanted()) {
        open();
        m_reported.clear();
        m_asked.clear();
        m_probes = WsDiscovery::newProbes();
        if (ask())
            listen();
        else
            unavailable();
    }
    if (!isStopped())
        state().phase = ScannerState::Done; // it has found as many as were wanted
}

/// Anew in each round: interfaces come and go.
void WsDiscoverySession::open()
{
    m_outlets.clear();
    m_error = ENETUNREACH;
    m_greetings = std::make_unique<UdpSocket>(0, m_port); // without it, who is silent when asked is not found
    const QList<QNetworkInterface> all = QNetworkInterface::allInterfaces();
    for (const QNetworkInterface& interface : all) {
        const auto wanted =
            QNetworkInterface::IsUp | QNetworkInterface::IsRunning | QNetworkInterface::CanMulticast;
        const bool isLoopback = interface.flags() & QNetworkInterface::IsLoopBack;
        if ((interface.flags() & wanted) == wanted && !isLoopback &&
            isScanned(m_interfaces, interface.index()))
            add(interface);
    }
}

/// A socket for each address, so that devices of each network answer to one that they can reach.
void WsDiscoverySession::add(const QNetworkInterface& interface)
{
    const QList<QNetworkAddressEntry> entries = interface.addressEntries();
    for (const QNetworkAddressEntry& entry : entries) {
        if (entry.ip().protocol() != QAbstractSocket::IPv4Protocol)
            continue;
        auto socket = std::make_unique<UdpSocket>(entry.ip().toIPv4Address());
        if (socket->isOpen() && socket->sendsToGroupsOver(interface.index()))
            m_outlets.push_back({std::move(socket), interface.name()});
        else
            m_error = errno;
    }
    if (m_greetings->isOpen())
        m_greetings->join(WsDiscovery::Group, interface.index()); // once is enough, others are refused
}

/// False when nothing goes out anywhere.
bool WsDiscoverySession::ask()
{
    const auto fails = [this](const Outlet& outlet) {
        bool isSent = false;
        for (const QByteArray& probe : std::as_const(m_probes))
            isSent = outlet.socket->send(probe, WsDiscovery::Group, m_port) || isSent;
        m_error = isSent ? 0 : errno;
        return !isSent;
    };
    m_outlets.erase(std::remove_if(m_outlets.begin(), m_outlets.end(), fails), m_outlets.end());
    return !m_outlets.empty();
}

void WsDiscoverySession::unavailable()
{
    state().phase = ScannerState::Unavailable;
    state().where = {};
    post(std::exchange(m_saidMissing, true) ? 0 : m_error);
    for (const qint64 end = scanClock() + WaitingTime; isWanted() && scanClock() < end;)
        wait();
}

void WsDiscoverySession::listen()
{
    QStringList names;
    for (const Outlet& outlet : m_outlets)
        names.append(outlet.interface);
    names.removeDuplicates();
    state().phase = ScannerState::Running;
    state().where = names.join(QLatin1String(", "));
    post();
    m_saidMissing = false;
    int repeats = Repeats;
    int delay = QRandomGenerator::global()->bounded(LeastDelay, MostDelay + 1);
    const qint64 begin = scanClock();
    for (qint64 due = begin + delay; isWanted() && !m_outlets.empty() && scanClock() < begin + RoundTime;) {
        wait();
        if (repeats > 0 && scanClock() >= due) {
            --repeats;
            ask();
            delay = std::min(2 * delay, UpperDelay);
            due += delay;
        }
        for (const Outlet& outlet : m_outlets)
            receive(*outlet.socket);
        receive(*m_greetings);
        const auto before = m_reported.size();
        settleHeld();
        if (m_reported.size() != before)
            post();
    }
}

void WsDiscoverySession::wait() const
{
    std::vector<pollfd> descriptors = {{wakeup(), POLLIN, 0}, {m_greetings->descriptor(), POLLIN, 0}};
    for (const Outlet& outlet : m_outlets)
        descriptors.push_back({outlet.socket->descriptor(), POLLIN, 0});
    poll(descriptors.data(), descriptors.size(), StepTime);
}

void WsDiscoverySession::receive(UdpSocket& socket)
{
    const auto before = m_reported.size();
    QByteArray message;
    QHostAddress sender;
    while (isWanted() && socket.isOpen() && socket.receive(message, sender)) {
        const QVector<DiscoveredDevice> devices = WsDiscovery::read(message, sender);
        if (!devices.isEmpty())
            lookAround();
        for (const DiscoveredDevice& device : devices) {
            if (m_macs.contains(sender.toIPv4Address()))
                take(device, sender);
            else
                hold(device, sender);
        }
        postNowAndThen(); // a storm of them must not pile up
    }
    if (m_reported.size() != before)
        post();
}

/// Anew, since an address may have another device by now.
void WsDiscoverySession::lookAround()
{
    if (scanClock() - m_lookedAt < TableInterval)
        return;
    m_lookedAt = scanClock();
    m_macs.clear();
    QVector<Neighbour> neighbours;
    NeighbourTable::read(neighbours); // what cannot be read is a MAC address less
    for (const Neighbour& neighbour : std::as_const(neighbours)) {
        if (!neighbour.macAddress.isEmpty())
            m_macs[neighbour.address] = neighbour.macAddress;
    }
}

/// Who is not a neighbour yet is asked alone: then the system learns its MAC address, by which a device is
/// recognised that has moved.
void WsDiscoverySession::hold(const DiscoveredDevice& device, const QHostAddress& sender)
{
    const quint32 address = sender.toIPv4Address();
    if (m_held.size() >= MostRemembered)
        return;
    m_held.push_back({device, sender, scanClock()});
    if (m_asked.contains(address))
        return;
    m_asked.insert(address);
    const QVector<QByteArray> probes = WsDiscovery::newProbes(); // those it knows it does not answer again
    for (const QByteArray& probe : probes)
        m_outlets.front().socket->send(probe, address, m_port);
}

void WsDiscoverySession::settleHeld()
{
    if (m_held.empty())
        return;
    lookAround();
    std::deque<Held> waiting;
    for (const Held& held : m_held) {
        if (m_macs.contains(held.sender.toIPv4Address()) || scanClock() - held.since > HoldingTime)
            take(held.device, held.sender);
        else
            waiting.push_back(held);
    }
    m_held.swap(waiting);
}

/// One device greets, and answers over each interface and to each repeat.
void WsDiscoverySession::take(DiscoveredDevice device, const QHostAddress& sender)
{
    if (device.address == sender.toString() && m_macs.contains(sender.toIPv4Address()))
        device.neighbourMac = QString::fromLatin1(m_macs.value(sender.toIPv4Address()).toHex(':'));
    const QString key =
        device.identity + QLatin1Char(' ') + device.address + QLatin1Char(' ') + QString::number(device.port);
    if (m_reported.contains(key) || m_reported.size() >= MostRemembered)
        return;
    const QString& who = device.identity.isEmpty() ? device.address : device.identity;
    if (!m_devices.contains(who) && (m_devices.size() >= MostRemembered || !count()))
        return;
    m_reported.insert(key);
    m_devices.insert(who);
    state().done = state().total = int(m_devices.size());
    found(device);
}

} // namespace ko
