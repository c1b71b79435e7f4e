#ifndef KO_STOREWRITING_H
#define KO_STOREWRITING_H

#include "secrets/Keyring.h"
#include "store/ChangeWriter.h"
#include "store/LogChain.h"
#include "store/NodeStore.h"

#include <atomic>
#include <memory>

namespace ko {

/// A commit that has begun: other programs are kept from writing. Nothing is stored unless run() returns.
class StoreWriting
{
public:
    typedef NodeStore::Batch Batch;
    typedef NodeStore::Commit Commit;

    /// All but \a vault belong to one connection, which nobody else uses until run() has returned; all
    /// outlive the writing.
    StoreWriting(SqliteStore& connection, NodeTables& tables, ChangeLog& log, Vault& vault);

    /// To be called once, before run().
    void setBatch(const Batch& batch);

    /// Once, from any thread. All is on the disk when this returns; throws StoreFailure, with the file as it
    /// was.
    Commit run();

    /// How many of total() changes have been made; from any thread.
    int done() const { return m_done; }
    int total() const { return m_total; }

private:
    Q_DISABLE_COPY(StoreWriting)
    Commit write();

    NodeTables& m_tables;
    ChangeLog& m_log;
    Vault& m_vault;
    std::optional<Transaction> m_transaction;
    const std::shared_ptr<const InstallationKey> m_key;
    LogChain m_chain;
    Batch m_batch;
    int m_total = 0;
    std::atomic<int> m_done{0};
};

} // namespace ko

#endif
