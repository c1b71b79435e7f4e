#ifndef KO_LOGTHINNING_H
#define KO_LOGTHINNING_H

#include "model/HistoryLimit.h"
#include "secrets/Sealer.h"
#include "store/LogLink.h"

#include <functional>

namespace ko {

class SqliteStore;

/// Takes old details out of the history: the lines that say what was before and after. Who did what, when and
/// what for stays, and so does the audit log.
///
/// A link of the chain, see LogChain, whose lines go is sealed anew as a thinned one, over the rows that
/// stay; its hash, on which the next link stands, remains. Only who has the key can do that, so nobody else
/// can pass off as thinned what he took out. A link that is not what it was when it was made is left, and all
/// that come after it: they are evidence.
///
/// Throws StoreFailure.
class KO_HOST_EXPORT LogThinning
{
public:
    /// \a sealer lives as long as this.
    LogThinning(SqliteFile& file, const Sealer& sealer);

    /// The last change set whose details are to go, as \a limit and the \a now of the clock (milliseconds
    /// since 1970) have it; 0 if none.
    qint64 last(const HistoryLimit& limit, qint64 now);

    enum class Outcome { More, Done, Altered };

    /// Thins some links up to change set \a last. In a transaction that keeps other writers out.
    Outcome thinSome(qint64 last);

    /// All that goes, in parts; see NodeStore::thinHistory(). Throws StoreError::KeyNotKept, too.
    static ThinnedHistory thin(SqliteStore& store, const HistoryLimit& limit,
                               const std::function<bool()>& goOn);

    /// Lines that went so far.
    qint64 lines() const { return m_lines; }

private:
    enum Limits { RowsAtOnce = 2000 };

    qint64 lastByAge(qint64 oldest);
    qint64 lastBySize(qint64 bytes);
    LogLink next(qint64 number);
    bool thin(const LogLink& link);

    SqliteFile& m_file;
    const Sealer& m_sealer;
    LogLink m_before; ///< the last one that is thinned, or the beginning
    qint64 m_lines = 0;
};

} // namespace ko

#endif
