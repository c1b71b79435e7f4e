#include "support/SmallInspector.h"

#include "ko/NodeHint.h"

#include <QLineEdit>
#include <QTabWidget>

namespace testsupport {

SmallInspector::SmallInspector(const QString& id, bool readOnly, unsigned flags,
                               const SmallHostStatePointer& state)
    : InspectorWidget(id, readOnly, nullptr, flags)
    , m_state(state)
{
    const kom::smart<const ko::Node> node = ko::NodeDB::getDB()->node(id);
    build(node.null() ? QString() : node->name());
}

SmallInspector::SmallInspector(ko::NodeHint& hint, unsigned flags, const SmallHostStatePointer& state)
    : InspectorWidget(hint, nullptr, flags)
    , m_state(state)
{
    build(hint.name());
}

SmallInspector::~SmallInspector()
{
    m_state->record("~inspector");
}

void SmallInspector::build(const QString& name)
{
    m_name = new QLineEdit(name, this);
    m_name->setObjectName(QLatin1String("nameLineEdit"));
    m_name->setReadOnly(isReadOnly());
    m_tabs = new QTabWidget(this);
    m_tabs->setObjectName(QLatin1String("tabWidget"));
    QVBoxLayout* layout = new QVBoxLayout(this);
    layout->addWidget(m_name);
    layout->addWidget(m_tabs);
    setFocusProxy(m_name);
    if (m_state->setUpInspector)
        m_state->setUpInspector(this);
}

void SmallInspector::addTab(QWidget* page, const QString& tabName)
{
    QWidget* tab = new QWidget;
    tab->setObjectName(tabName);
    (new QVBoxLayout(tab))->addWidget(page);
    m_tabs->addTab(tab, tabName);
}

void SmallInspector::ok()
{
    m_state->record("inspector.ok");
    if (onOk)
        onOk();
    if (nodeHint()) {
        if (m_name->isModified())
            nodeHint()->setName(m_name->text());
        for (const Page& page : m_pages)
            page.acceptHint(nodeHint());
        return;
    }
    InspectorWidget::ok();
    if (ko::Node* node = ko::NodeDB::getDB()->beginUpdateNode(nodeId(), -1)) {
        if (m_name->isModified())
            node->setStringProperty(QLatin1String("Name"), m_name->text());
        for (const Page& page : m_pages)
            page.acceptNode(node);
        ko::NodeDB::getDB()->endUpdateNode(node);
    }
    logPropertyChange();
}

void SmallInspector::cancel()
{
    m_state->record("inspector.cancel");
}

void SmallInspector::updateNode()
{
    m_state->record("inspector.updateNode");
}

} // namespace testsupport
