#include "database/StoredEnvironments.h"

#include <algorithm>

namespace ko {

StoredEnvironments::StoredEnvironments(std::function<void()> changed,
                                       std::function<void(const QString&)> removed)
    : m_changed(std::move(changed))
    , m_removed(std::move(removed))
{
}

Environments::List StoredEnvironments::getList() const
{
    return m_list;
}

void StoredEnvironments::setList(const List& list)
{
    if (reload(list))
        m_changed();
}

void StoredEnvironments::remove(const QString& id)
{
    List remaining;
    for (const auto& environment : std::as_const(m_list)) {
        if (environment.first != id)
            remaining.append(environment);
    }
    setList(remaining);
    m_removed(id);
}

bool StoredEnvironments::contains(const QString& id) const
{
    return std::any_of(m_list.begin(), m_list.end(),
                       [&id](const auto& environment) { return environment.first == id; });
}

bool StoredEnvironments::reload(const List& list)
{
    if (list == m_list)
        return false;
    m_list = list;
    return true;
}

} // namespace ko
