#include "store/StoreWriting.h"

#include "store/HistorySwitch.h"

namespace ko {

StoreWriting::StoreWriting(SqliteStore& connection, NodeTables& tables, ChangeLog& log, Vault& vault)
    : m_tables(tables)
    , m_log(log)
    , m_vault(vault)
    , m_key(Keyring::ofInstallation().key())
    , m_chain(connection, m_key->sealer)
{
    m_transaction.emplace(connection, Transaction::Write);
    if (hasHistory)
        m_chain.begin();
}

void StoreWriting::setBatch(const Batch& batch)
{
    m_batch = batch;
    for (const ChangeSet& set : batch.sets)
        m_total += int(set.nodes.size() + set.relations.size());
}

StoreWriting::Commit StoreWriting::run()
{
    try {
        Commit result = write();
        m_transaction->commit();
        m_batch = Batch(); // here, since that takes its time as well
        return result;
    } catch (const StoreFailure&) {
        m_transaction.reset(); // so does this
        throw;
    }
}

StoreWriting::Commit StoreWriting::write()
{
    ChangeWriter writer(m_tables, m_log, m_vault, m_done);
    for (const ChangeSet& set : std::as_const(m_batch.sets))
        writer.write(set);
    for (const ProgramRow& line : std::as_const(m_batch.programLines))
        m_tables.addProgramLine(line);
    if (!m_batch.programLines.isEmpty())
        m_tables.trimProgramLines();
    if (hasHistory)
        m_chain.end();
    Commit result = {m_log.revision(), writer.places(), writer.missingNodes(), {}, writer.sets()};
    for (const NodeID& source : writer.reordered())
        result.reordered.insert(source, m_tables.relationsFrom(source));
    return result;
}

} // namespace ko
