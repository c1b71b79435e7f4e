#ifndef KO_NODELOADING_H
#define KO_NODELOADING_H

#include "database/NodeCache.h"
#include "database/RelationIndex.h"

#include <atomic>
#include <functional>
#include <future>

namespace ko {

/// Reads all nodes and relations of a file, over a connection of its own.
class NodeLoading
{
public:
    struct Nodes
    {
        NodeCache cache; ///< ready for everything
        RelationIndex relations;
        QVector<PackedSummary> read; ///< to be looked at by another thread: oldest first
    };

    /// In a thread that begins at once, or in take(); \a ended is called there.
    NodeLoading(const QString& file, std::launch when, const std::function<void()>& ended);
    /// Gives up what is under way.
    ~NodeLoading();

    /// Whether take() does not wait.
    bool isEnded() const;
    /// Once. Throws StoreFailure.
    Nodes take() { return m_nodes.get(); }

private:
    Q_DISABLE_COPY(NodeLoading)
    Nodes read(const QString& file) const;

    std::atomic<bool> m_isGivenUp{false};
    std::future<Nodes> m_nodes; ///< destroyed first
};

} // namespace ko

#endif
