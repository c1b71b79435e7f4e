#include "CameraCheck.h"

#include "database/HostNodeDB.h"
#include "devices/KnownDevice.h"
#include "devices/NodeTarget.h"
#include "ko/GlobalNetworkProxy.h"
#include "ko/IPDeviceNode.h"

#include <utility>

namespace ko {

namespace {

TranslatableText said(const char* source)
{
    return TranslatableText("CameraCheck", source);
}

} // namespace

CameraCheck::CameraCheck(HostNodeDB& db, QObject* parent)
    : QObject(parent)
    , m_db(db)
    , m_reading([this](const QString& id) { read(id); }, [this] { ask(); })
    , m_reports([this](const DeviceReport& report) { take(report); }, [this] { tell(); })
{
    m_looking.setSingleShot(true);
    connect(&m_looking, &QTimer::timeout, this, &CameraCheck::lookAtUpdated);
    connect(&m_storing, &QTimer::timeout, this, [this] { rememberSome(StoredAtOnce); });
    connect(&m_checks, &DeviceChecks::checked, this,
            [this](const QVector<DeviceReport>& reports) { m_reports.add(reports); });
    connect(&m_checks, &DeviceChecks::finished, this, [this] {
        m_isAsked = true;
        m_reports.add(QVector<DeviceReport>()); // the end comes after the last of them
    });
    connect(&m_db, &NodeDB::nodeUpdated, this, &CameraCheck::nodeUpdated);
    connect(&m_db, &NodeDB::nodeRemoved, this, &CameraCheck::nodeRemoved);
}

void CameraCheck::start(const QStringList& nodes)
{
    if (m_isRunning)
        return;
    m_isRunning = true;
    m_isAsked = false;
    m_news.clear();
    m_results.clear();
    m_targets.clear();
    m_gone = 0;
    QStringList devices;
    for (const QString& id : nodes) {
        if (NodeTarget::isOf(m_db.summary(id)))
            devices.append(id);
    }
    m_total = int(devices.size());
    m_skipped = int(nodes.size()) - m_total;
    m_cause = Cause::now(Purpose::Check);
    m_reading.add(devices);
    m_storing.start(StoreInterval);
    emit progressed();
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
    state.reason = said(QT_TR_NOOP("its password cannot be read"));
    m_results.insert(id, state);
    emit found({{id, state}});
}

void CameraCheck::ask()
{
    if (m_reading.isEmpty())
        m_checks.start(std::exchange(m_targets, {}));
}

void CameraCheck::cancel()
{
    if (!m_isRunning)
        return;
    m_reading.clear();
    m_checks.cancel();
    m_reports.clear();
    rememberSome(int(m_news.size()));
    end();
}

void CameraCheck::end()
{
    m_storing.stop();
    if (std::exchange(m_isRunning, false)) // else it was cancelled just before
        emit finished();
}

void CameraCheck::take(const DeviceReport& report)
{
    const kom::smart<const IPDeviceNode> node = m_db.node(report.id).cast<const IPDeviceNode>();
    if (node.null()) {
        ++m_gone;
        return;
    }
    CameraState state;
    if (isAsChecked(*node)) {
        state.state = report.state;
        state.isOpen = report.isOpen;
        state.reason = report.isOpen && report.reason.isEmpty() ? said(QT_TR_NOOP("it asks for no password"))
                                                                : report.reason;
        state.time = report.time;
        if (state.state == DeviceReport::OtherDevice)
            state.seen = report.seen;
        if (state.state == DeviceReport::Answers && KnownDevice::hasNews(*node, report.seen))
            m_news.emplace_back(report.id, report.seen);
    } else {
        state.reason = said(QT_TR_NOOP("it was changed while it was checked"));
    }
    m_results.insert(report.id, state);
    m_untold.insert(report.id, state);
}

void CameraCheck::tell()
{
    if (!m_untold.isEmpty())
        emit found(std::exchange(m_untold, {}));
    emit progressed();
    endIfDone();
}

void CameraCheck::endIfDone()
{
    if (!m_isAsked || !m_reports.isEmpty())
        return;
    if (m_news.empty())
        end();
    else
        m_storing.start(0); // nobody else has anything to do
}

/// In one commit.
void CameraCheck::rememberSome(int most)
{
    const ChangeScope scope(m_db, m_cause);
    for (int i = 0; i < most && !m_news.empty(); ++i) {
        remember(m_news.front().first, m_news.front().second);
        m_news.pop_front();
    }
    endIfDone();
}

/// Of one that answered as what it is known for, or for the first time.
void CameraCheck::remember(const QString& id, const DeviceIdentity& seen)
{
    const kom::smart<const IPDeviceNode> known = m_db.node(id).cast<const IPDeviceNode>();
    if (known.null() || !isAsChecked(*known))
        return; // removed or changed just before
    Node* node = m_db.beginUpdateNode(id, -1);
    if (node)
        KnownDevice::remember(*node, seen);
    m_remembered = id;
    m_db.endUpdateNode(node);
    m_remembered.clear();
}

bool CameraCheck::isAsChecked(const IPDeviceNode& node) const
{
    return m_checkedAs.value(node.id()) == m_fingerprint.of(node);
}

void CameraCheck::nodeUpdated(const NodeID& id)
{
    if (id == m_remembered || !m_checkedAs.contains(id))
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
        const kom::smart<const IPDeviceNode> node = m_db.node(id).cast<const IPDeviceNode>();
        if (!m_checkedAs.contains(id) || (!node.null() && isAsChecked(*node)))
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
