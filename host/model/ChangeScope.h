#ifndef KO_CHANGESCOPE_H
#define KO_CHANGESCOPE_H

#include "model/Cause.h"

namespace ko {

/// When what is changed within a ChangeScope is stored.
enum class ScopeStoring {
    AtEnd,    ///< all or nothing of it; for what ends by itself
    Meanwhile ///< as everything else, since the user may take time; what was confirmed waits for nothing
};

/// A database that makes one change set of what is changed in several turns of the event loop.
class ChangeGrouping
{
public:
    /// What is changed until leave() belongs to one change set, that of \a cause, in however many turns of
    /// the event loop. What is changed without a cause belongs to the change set of its turn. See
    /// ChangeScope.
    virtual void enter(const Cause& cause, ScopeStoring storing) = 0;
    virtual void leave() = 0;

protected:
    ~ChangeGrouping() = default;
};

/// Everything that is changed while it lives is one change set.
class ChangeScope
{
public:
    /// \a db outlives it.
    ChangeScope(ChangeGrouping& db, const Cause& cause, ScopeStoring storing = ScopeStoring::AtEnd)
        : m_db(db)
    {
        m_db.enter(cause, storing);
    }
    ~ChangeScope() { m_db.leave(); }

private:
    Q_DISABLE_COPY(ChangeScope)
    ChangeGrouping& m_db;
};

} // namespace ko

#endif
