#include "database/NodeLoading.h"

#include "store/NodeStore.h"

#include <chrono>

namespace ko {

NodeLoading::NodeLoading(const QString& file, std::launch when, const std::function<void()>& ended)
{
    m_nodes = std::async(when, [this, file, ended] {
        struct AtEnd
        {
            ~AtEnd() { call(); }
            const std::function<void()>& call;
        } const atEnd{ended};
        return read(file);
    });
}

NodeLoading::~NodeLoading()
{
    m_isGivenUp = true;
}

bool NodeLoading::isEnded() const
{
    return m_nodes.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
}

NodeLoading::Nodes NodeLoading::read(const QString& file) const
{
    Nodes nodes;
    const QVector<Relation> relations =
        NodeStore::readNodes(file, [&](qint64 place, const PackedSummary& summary) {
            if (m_isGivenUp)
                throw StoreFailure{StoreError::make(StoreError::CannotOpen, file, QLatin1String("given up"))};
            nodes.cache.insertStored(place, summary);
            nodes.read.append(summary);
        });
    for (const Relation& relation : relations)
        nodes.relations.add(relation);
    nodes.cache.prepare();
    return nodes;
}

} // namespace ko
