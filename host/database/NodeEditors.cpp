#include "database/NodeEditors.h"

#include <algorithm>
#include <iterator>

namespace ko {

void NodeEditors::open(const QString& node, Access access)
{
    opened(access).append(node);
    emit openChanged();
}

void NodeEditors::close(const QString& node, Access access)
{
    if (opened(access).removeOne(node))
        emit openChanged();
}

QVector<NodeEditor> NodeEditors::others(const QString& node) const
{
    QVector<NodeEditor> others;
    std::copy_if(m_others.begin(), m_others.end(), std::back_inserter(others),
                 [&node](const NodeEditor& other) { return other.node == node; });
    return others;
}

void NodeEditors::setOthers(const QVector<NodeEditor>& others)
{
    if (others == m_others)
        return;
    m_others = others;
    emit othersChanged();
}

} // namespace ko
