#include "DeviceFilling.h"

#include "audit/AuditLog.h"
#include "database/HostNodeDB.h"
#include "devices/KnownDevice.h"
#include "devices/NodeTarget.h"
#include "inspector/NodeChangeLogEntry.h"
#include "ko/GlobalNetworkProxy.h"
#include "ko/IPDeviceNode.h"
#include "ko/OutsideText.h"

#include <utility>

namespace ko {

DeviceFilling::DeviceFilling(HostNodeDB& db, QObject* parent)
    : QObject(parent)
    , m_db(db)
    , m_reading([this](const QString& id) { add(id); }, [this] { start(); })
{
    connect(&m_checks, &DeviceChecks::checked, this, [this](const QVector<DeviceReport>& reports) {
        for (const DeviceReport& report : reports)
            take(report);
        emit progressed();
    });
    connect(&m_checks, &DeviceChecks::finished, this, &DeviceFilling::finished);
}

void DeviceFilling::ask(const QStringList& nodes)
{
    m_nodes = nodes;
    m_reading.add(nodes);
}

void DeviceFilling::start()
{
    emit progressed();
    if (m_reading.isEmpty())
        m_checks.start(std::exchange(m_targets, {}));
}

void DeviceFilling::add(const QString& id)
{
    const NodeSummary summary = m_db.summary(id);
    const auto node = m_db.node(id).cast<const IPDeviceNode>();
    Asked& asked = m_asked[id];
    asked.name = summary.name;
    if (node.null() || !NodeTarget::isOf(summary)) {
        asked.problem = tr("it has no address");
    } else if (NodeTarget::hasUnreadPassword(*node)) {
        asked.problem = tr("its password cannot be read");
    } else {
        asked.target = NodeTarget::of(*node, m_db.globalProxy());
        asked.target.wantsAllFacts = true;
        m_targets.append(asked.target);
    }
    m_unasked += asked.problem.isEmpty() ? 0 : 1;
}

void DeviceFilling::take(const DeviceReport& report)
{
    Asked& asked = m_asked[report.id];
    const auto node = m_db.node(report.id).cast<const IPDeviceNode>();
    if (node.null()) {
        asked.problem = tr("it was removed meanwhile");
    } else if (report.state != DeviceReport::Answers) {
        asked.problem = report.reason.isEmpty() ? tr("it was not asked") : report.reason.text();
    } else {
        asked.seen = report.seen;
        asked.facts = NodeFacts::changes(*node, report.facts);
    }
}

QVector<FillInRow> DeviceFilling::rows() const
{
    QVector<FillInRow> rows;
    for (const QString& id : m_nodes) {
        const Asked asked = m_asked.value(id);
        for (const NodeFact& fact : asked.facts)
            rows.append({id, asked.name, fact, !fact.isSet});
    }
    return rows;
}

QStringList DeviceFilling::silent() const
{
    QStringList lines;
    for (const QString& id : m_nodes) {
        const Asked asked = m_asked.value(id);
        if (!asked.problem.isEmpty())
            lines.append(asked.name + QLatin1String(": ") + asked.problem);
    }
    return lines;
}

int DeviceFilling::store(const QVector<FillInRow>& rows)
{
    QHash<QString, QVector<NodeFact>> chosen;
    for (const FillInRow& row : rows) {
        if (row.isTicked)
            chosen[row.node].append(row.fact);
    }
    int changed = 0;
    {
        const ChangeScope scope(m_db, Cause::now(Purpose::FillIn));
        for (const QString& id : std::as_const(m_nodes))
            changed += chosen.contains(id) && storeNode(id, chosen.value(id)) ? 1 : 0;
    }
    m_db.flush(StoreWait::InEventLoop); // on disk when the dialog has closed
    return changed;
}

/// What was told of one place says nothing about another one, and what somebody else wrote meanwhile stays.
bool DeviceFilling::storeNode(const QString& id, const QVector<NodeFact>& facts)
{
    const Asked asked = m_asked.value(id);
    const auto now = m_db.node(id).cast<const IPDeviceNode>();
    if (now.null())
        return false;
    const DeviceTarget target = NodeTarget::of(*now, m_db.globalProxy());
    if (target.address != asked.target.address || target.port != asked.target.port)
        return false;
    bool isChanged = false;
    Node* node = m_db.beginUpdateNode(id, -1);
    for (const NodeFact& fact : facts) {
        if (!node || !NodeFacts::isCurrent(*node, fact))
            continue;
        NodeFacts::write(*node, fact);
        isChanged = true;
    }
    if (isChanged)
        KnownDevice::remember(*node, asked.seen);
    m_db.endUpdateNode(node);
    if (isChanged)
        m_db.auditLog().log(NodeChangeLogEntry(now->name()));
    return isChanged;
}

} // namespace ko
