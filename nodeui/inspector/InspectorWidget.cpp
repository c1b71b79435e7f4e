#include "inspector/InspectorWidget.h"

#include "inspector/NodeChangeLogEntry.h"
#include "inspector/NodeRenameLogEntry.h"
#include "ko/ActionLog.h"
#include "ko/Node.h"
#include "ko/NodeDB.h"
#include "ko/connect.h"

namespace ko {

unsigned int InspectorWidget::s_page = 0;

InspectorWidget::InspectorWidget(QString id, bool readOnly, QWidget* parent, unsigned flags)
    : QWidget(parent)
    , m_id(id)
    , m_hint(nullptr)
    , m_readOnly(readOnly)
    , m_flags(flags)
{
    ko::connect(NodeDB::getDB(), SIGNAL(nodeUpdated(ko::NodeID)), this, SLOT(nodeUpdated(ko::NodeID)));
}

InspectorWidget::InspectorWidget(NodeHint& hint, QWidget* parent, unsigned flags)
    : QWidget(parent)
    , m_hint(&hint)
    , m_readOnly(false)
    , m_flags(flags)
{
}

InspectorWidget::~InspectorWidget() = default;

void InspectorWidget::updateNode() {}

void InspectorWidget::ok()
{
    if (m_id.isEmpty())
        return;
    const kom::smart<const Node> node = NodeDB::getDB()->node(m_id);
    if (!node.null())
        m_oldName = node->name();
}

void InspectorWidget::cancel() {}

void InspectorWidget::nodeUpdated(ko::NodeID)
{
    // How to follow the node is for derived inspectors to say.
}

void InspectorWidget::logPropertyChange()
{
    const kom::smart<const Node> node = NodeDB::getDB()->node(m_id);
    if (node.null())
        return;
    const QString name = node->name();
    if (name != m_oldName)
        ActionLog::getInstance()->log(NodeRenameLogEntry(m_oldName, name));
    ActionLog::getInstance()->log(NodeChangeLogEntry(name));
}

} // namespace ko
