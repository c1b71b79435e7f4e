#ifndef KO_LOGCHAIN_H
#define KO_LOGCHAIN_H

#include "secrets/Sealer.h"
#include "store/LogLink.h"

namespace ko {

/// The chain over change sets, their changes and the audit log, by which LogVerifier sees whether anything
/// was altered, taken out, put in or reordered.
///
/// Each commit adds a link: a hash over the link before and all new rows as they are stored, and a seal over
/// that hash under the installation's key, which whoever can write the file need not have. Four bytes of each
/// row's hash are kept beside it, by which the altered row can be named.
///
/// Everything throws StoreFailure and belongs into a transaction that keeps other writers out.
class LogChain
{
public:
    enum Limits { MostRows = 10000 /* of a link */ };

    /// \a sealer lives as long as this. Without a key, links are not sealed.
    LogChain(SqliteFile& file, const Sealer& sealer);

    /// The link that is the last one now.
    LogEnd where();

    /// Before anything is logged. Rows over which there is no link are older than the chain, or were put in
    /// by others: they get links that say so.
    void begin();

    /// After everything is logged; begin() comes before.
    void end();

private:
    LogLink link(const char* sql);
    void add(char kind);
    bool addOne(char kind);
    qint64 nextNumber();
    void insert(LogLink link, const QByteArray& rowHashes);

    SqliteFile& m_file;
    const Sealer& m_sealer;
    LogLink m_last; ///< since begin(): nobody else writes
};

} // namespace ko

#endif
