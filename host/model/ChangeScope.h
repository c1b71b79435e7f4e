#ifndef KO_CHANGESCOPE_H
#define KO_CHANGESCOPE_H

#include "model/Cause.h"

namespace ko {

/// A database that makes one change set of what is changed in several turns of the event loop.
class ChangeGrouping
{
public:
    /// What is changed until leave() belongs to one change set, that of \a cause, in however many turns of
    /// the event loop. What is changed without a cause belongs to the change set of its turn. See
    /// ChangeScope.
    virtual void enter(const Cause& cause) = 0;
    virtual void leave() = 0;

protected:
    ~ChangeGrouping() = default;
};

/// Everything that is changed while it lives is one change set.
class ChangeScope
{
public:
    /// \a db outlives it.
    ChangeScope(ChangeGrouping& db, const Cause& cause)
        : m_db(db)
    {
        m_db.enter(cause);
    }
    ~ChangeScope() { m_db.leave(); }

private:
    Q_DISABLE_COPY(ChangeScope)
    ChangeGrouping& m_db;
};

} // namespace ko

#endif
