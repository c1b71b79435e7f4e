#ifndef KO_WRITTENDEVICES_H
#define KO_WRITTENDEVICES_H

#include "database/NodeMemory.h"

namespace ko {

/// What devices get of their own accord when something of them is written, whoever writes it: their own
/// address among their addresses, and a factory extension that no other device has, see docs/lookup.md.
///
/// Both come with the commit that stores what was written: only then nobody else can take an extension.
class WrittenDevices
{
public:
    /// Both outlive it.
    WrittenDevices(NodeStore& store, NodeMemory& memory);

    /// Gives a device that is not in memory yet what it will get, if no other one has it: most need nothing
    /// more in the commit then.
    static void prepare(NodeData& device);

    /// Within a commit, with all in memory that others stored. Throws StoreFailure.
    void complete(Notices* notices);

private:
    void readWaiting(const QSet<NodeID>& written);
    QString extensionFor(const NodeRecord& record);
    bool isFree(const QString& extension);

    NodeStore& m_store;
    NodeMemory& m_memory;
    QSet<NodeID> m_waiting; ///< the nodes of which something waits: what is stored of them is out of date
    QSet<NodeID> m_kept;    ///< whose extension stays as it is
    QSet<NodeID> m_settled; ///< that have been seen to
    QSet<QString> m_taken;  ///< by those of which something waits
};

} // namespace ko

#endif
