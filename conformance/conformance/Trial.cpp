#include "conformance/Trial.h"

#include "interfaces/INodeDriverComponent.h"
#include "ko/NodeHintIPDevice.h"

#include <stdexcept>

namespace ko {
namespace conformance {

Trial::Trial(const Host& host)
    : m_host(host)
    , m_db(host.open())
{
    if (!m_db)
        throw std::runtime_error("Host::open made no database");
    QObject::connect(m_db.get(), &NodeDB::nodeInserted, m_db.get(),
                     [this](const ko::NodeID& id) { hear("inserted", id); });
    QObject::connect(m_db.get(), &NodeDB::nodeUpdated, m_db.get(),
                     [this](const ko::NodeID& id) { hear("updated", id); });
    QObject::connect(m_db.get(), &NodeDB::nodeRemoved, m_db.get(),
                     [this](const ko::NodeID& id) { hear("removed", id); });
}

bool Trial::expect(bool kept, const QString& otherwise)
{
    if (!kept)
        m_findings.append(otherwise);
    return kept;
}

kom::smart<NodeHint> Trial::hint(const QString& name)
{
    const kom::smart<INodeDriverComponent> driver = m_db->nodeDriver(m_host.type);
    kom::smart<NodeHint> hint = driver.null() ? kom::smart<NodeHint>() : driver->createNodeHint(m_host.type);
    if (!expect(!hint.null(), QLatin1String("the driver of the type makes no hint")))
        return hint;
    hint->setName(name);
    ++m_hints;
    if (m_host.describe)
        m_host.describe(hint.get(), m_hints);
    else if (auto* device = dynamic_cast<NodeHintIPDevice*>(hint.get()))
        device->address = QString::fromLatin1("192.0.2.%1").arg(m_hints);
    return hint;
}

QString Trial::add(const QString& name)
{
    const kom::smart<NodeHint> described = hint(name);
    if (described.null())
        return QString();
    const int before = m_heard.size();
    m_db->newNodeHint(*described);
    const QStringList inserted = m_heard.mid(before).filter(QLatin1String("inserted "));
    if (!expect(!inserted.isEmpty(), QLatin1String("newNodeHint() announced no node")))
        return QString();
    return inserted.first().section(QLatin1Char(' '), 1);
}

bool Trial::change(const QString& id, const QString& key, const QString& value)
{
    Node* copy = m_db->beginUpdateNode(id, -1);
    if (!expect(copy, QLatin1String("beginUpdateNode() gives no copy of a node that is there")))
        return false;
    copy->setStringProperty(key, value);
    m_db->endUpdateNode(copy);
    return true;
}

QStringList Trial::heard()
{
    QStringList heard;
    heard.swap(m_heard);
    return heard;
}

void Trial::hear(const char* kind, const QString& id)
{
    m_heard.append(QLatin1String(kind) + QLatin1Char(' ') + id);
    if (listener)
        listener(QLatin1String(kind), id);
}

} // namespace conformance
} // namespace ko
