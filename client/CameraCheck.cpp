#include "CameraCheck.h"

#include "database/HostNodeDB.h"
#include "devices/KnownDevice.h"
#include "devices/NodeTarget.h"
#include "ko/GlobalNetworkProxy.h"
#include "ko/IPDeviceNode.h"

#include <QElapsedTimer>

#include <algorithm>
#include <utility>

namespace ko {

CameraCheck::CameraCheck(HostNodeDB& db, QObject* parent)
    : QObject(parent)
    , m_db(db)
{
    m_looking.setSingleShot(true);
    connect(&m_reading, &QTimer::timeout, this, &CameraCheck::readSome);
    connect(&m_looking, &QTimer::timeout, this, &CameraCheck::lookAtUpdated);
    connect(&m_checks, &DeviceChecks::checked, this,
            QOverload<const QVector<DeviceReport>&>::of(&CameraCheck::take));
    connect(&m_checks, &DeviceChecks::finished, this, &CameraCheck::end);
    connect(&m_db, &NodeDB::nodeUpdated, this, &CameraCheck::nodeUpdated);
    connect(&m_db, &NodeDB::nodeRemoved, this, &CameraCheck::nodeRemoved);
}

void CameraCheck::start(const QStringList& nodes)
{
    if (m_isRunning)
        return;
    m_isRunning = true;
    m_results.clear();
    m_targets.clear();
    m_waiting.clear();
    m_gone = 0;
    for (const QString& id : nodes) {
        if (NodeTarget::isOf(m_db.summary(id)))
            m_waiting.append(id);
    }
    std::reverse(m_waiting.begin(), m_waiting.end()); // the first is taken from the end
    m_total = int(m_waiting.size());
    m_skipped = int(nodes.size()) - m_total;
    m_cause = Cause::now(Purpose::Check);
    m_reading.start(0);
    emit progressed();
}

void CameraCheck::readSome()
{
    QElapsedTimer clock;
    clock.start();
    while (!m_waiting.isEmpty() && clock.elapsed() < Portion)
        read(m_waiting.takeLast());
    if (!m_waiting.isEmpty())
        return;
    m_reading.stop();
    m_checks.start(std::exchange(m_targets, {}));
}

void CameraCheck::read(const QString& id)
{
    const kom::smart<const IPDeviceNode> node = m_db.node(id).cast<const IPDeviceNode>();
    if (node.null()) {
        ++m_gone;
        return;
    }
    m_checkedAs.insert(id, m_fingerprint.of(*node));
    if (!NodeTarget::hasUnreadPassword(*node)) {
        m_targets.append(NodeTarget::of(*node, m_db.globalProxy()));
        return;
    }
    CameraState state;
    state.reason = tr("its password cannot be read");
    m_results.insert(id, state);
    emit found({{id, state}});
}

void CameraCheck::cancel()
{
    if (!m_isRunning)
        return;
    m_reading.stop();
    m_checks.cancel();
    end();
}

void CameraCheck::end()
{
    if (std::exchange(m_isRunning, false)) // else it was cancelled just before
        emit finished();
}

void CameraCheck::take(const QVector<DeviceReport>& reports)
{
    States states;
    for (const DeviceReport& report : reports)
        take(report, &states);
    remember(reports);
    for (auto state = states.cbegin(); state != states.cend(); ++state)
        m_results.insert(state.key(), state.value());
    emit found(states);
    emit progressed();
}

void CameraCheck::take(const DeviceReport& report, States* states)
{
    if (m_db.summary(report.id).id.isEmpty()) {
        ++m_gone;
        return;
    }
    CameraState state;
    if (isAsChecked(report.id)) {
        state.state = report.state;
        state.isOpen = report.isOpen;
        state.reason =
            report.isOpen && report.reason.isEmpty() ? tr("it asks for no password") : report.reason;
        state.time = report.time;
        if (state.state == DeviceReport::OtherDevice)
            state.seen = report.seen;
    } else {
        state.reason = tr("it was changed while it was checked");
    }
    states->insert(report.id, state);
}

/// Of those that answered as what they are known for, or for the first time.
void CameraCheck::remember(const QVector<DeviceReport>& reports)
{
    const ChangeScope scope(m_db, m_cause);
    for (const DeviceReport& report : reports) {
        if (report.state != DeviceReport::Answers || !isAsChecked(report.id) ||
            !KnownDevice::hasNews(*m_db.node(report.id), report.seen))
            continue;
        Node* node = m_db.beginUpdateNode(report.id, -1);
        if (node)
            KnownDevice::remember(*node, report.seen);
        m_db.endUpdateNode(node);
    }
}

bool CameraCheck::isAsChecked(const QString& id) const
{
    const kom::smart<const IPDeviceNode> node = m_db.node(id).cast<const IPDeviceNode>();
    return !node.null() && m_checkedAs.value(id) == m_fingerprint.of(*node);
}

void CameraCheck::nodeUpdated(const NodeID& id)
{
    if (!m_checkedAs.contains(id))
        return;
    m_updated.insert(id);
    m_looking.start(0);
}

void CameraCheck::nodeRemoved(const NodeID& id)
{
    m_checkedAs.remove(id);
    m_gone += m_results.remove(id);
}

/// Once for all that was changed in one turn.
void CameraCheck::lookAtUpdated()
{
    States states;
    const QSet<QString> updated = std::exchange(m_updated, {});
    for (const QString& id : updated) {
        if (!m_checkedAs.contains(id) || isAsChecked(id))
            continue;
        // One that is being checked keeps what it is checked as, so that its report is seen to be too late.
        if (!m_isRunning || m_results.contains(id))
            m_checkedAs.remove(id);
        states.insert(id, CameraState());
    }
    if (!states.isEmpty())
        emit found(states);
}

} // namespace ko
