#ifndef KO_HOSTNODEDBPRIVATE_H
#define KO_HOSTNODEDBPRIVATE_H

#include "audit/AuditLog.h"
#include "database/HostNodeDB.h"
#include "database/NodeEditing.h"
#include "database/NodeEditors.h"
#include "database/Scanning.h"
#include "database/StoredHistory.h"
#include "database/StoredLogs.h"

#include <set>

namespace ko {

/// What a database consists of, and how its parts are joined.
class HostNodeDB::Private
{
public:
    Private(HostNodeDB& database, std::unique_ptr<NodeStore> opened, Check when);

    void start(Check when);
    void announce(const Notices& notices);
    void startScanners(const std::string& name, unsigned interfaces, int limit);
    bool flush(StoreWait wait);
    void beginDraft(const Cause& cause);
    ChangeSet endDraft();

    HostNodeDB& q;
    const std::unique_ptr<NodeStore> store;
    NodeMemory memory;
    ChangeQueue queue;
    HostSettings settings;
    StoredLogs logs;
    StoredHistory history;
    NodeEditors editors;
    AuditLog audit;
    NodeEditing nodes;
    std::unique_ptr<Scanning> scanning; ///< destroyed first

private:
    void nodesRead();
    void tell(const StoreError& checked);
    void storeDefaults();

    Cause m_draft;
    bool m_isRefused = false;                ///< the file must not be used any more
    std::set<std::string> m_missingScanners; ///< known to be missing, said once each
};

} // namespace ko

#endif
