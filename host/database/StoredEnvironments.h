#ifndef KO_STOREDENVIRONMENTS_H
#define KO_STOREDENVIRONMENTS_H

#include "ko/Environments.h"

#include <functional>

namespace ko {

/// The environments in memory; tells its owner what is to be stored.
class StoredEnvironments : public Environments
{
public:
    /// \a changed is called after the list differs from before, \a removed for every remove().
    StoredEnvironments(std::function<void()> changed, std::function<void(const QString&)> removed);

    List getList() const override;
    void setList(const List& list) override;
    void remove(const QString& id) override;

    bool contains(const QString& id) const;

    /// Adopts what is stored. False if it is what was there.
    bool reload(const List& list);

private:
    List m_list;
    const std::function<void()> m_changed;
    const std::function<void(const QString&)> m_removed;
};

} // namespace ko

#endif
