#ifndef KO_DELTAREADER_H
#define KO_DELTAREADER_H

#include "store/ChangeLog.h"
#include "store/NodeTables.h"

#include <functional>

namespace ko {

/// Reads what changed in the tables. Belongs into a transaction; throws StoreFailure.
class DeltaReader
{
public:
    /// Tells of which nodes the properties are wanted, too.
    typedef std::function<bool(const NodeID&)> Wanted;

    DeltaReader(NodeTables& tables, ChangeLog& log, const Wanted& wanted);

    /// Of at most \a count changes. Everything, if \a revision lies too far back.
    Delta since(qint64 revision, int count = ChangeLog::MaxRead);
    Delta everything();

private:
    void readProperties(Delta* delta);
    void readSettings(Delta* delta);

    NodeTables& m_tables;
    ChangeLog& m_log;
    const Wanted& m_wanted;
};

} // namespace ko

#endif
