#include "drivers/NodeInspector.h"

#include "dialogs/NodeDialog.h"
#include "drivers/OwnNodeType.h"
#include "drivers/PageStack.h"
#include "inspector/IPDeviceInspectorWidget.h"
#include "inspector/LayoutListPage.h"
#include "ko/Node.h"
#include "ko/NodeDB.h"
#include "ko/NodeHint.h"

#include <QFocusEvent>
#include <QVBoxLayout>

namespace ko {

namespace {

/// The inspector of this host over either base of the library. It needs no meta-object of its own: the
/// base's slots are virtual.
template <class Base>
class StackInspector : public Base
{
public:
    StackInspector(const NodeID& id, const QVector<PageSpec>& pages, bool readOnly, unsigned flags)
        : Base(id, readOnly, nullptr, flags)
        , m_stack(addStack(pages))
    {
        m_stack->init(id, readOnly);
    }

    StackInspector(NodeHint& hint, const QVector<PageSpec>& pages, unsigned flags)
        : Base(hint, nullptr, flags)
        , m_stack(addStack(pages))
    {
        m_stack->init(hint);
    }

    void ok() override
    {
        if (this->nodeHint())
            m_stack->accept(this->nodeHint());
        else if (!this->isReadOnly())
            store();
    }

    void updateNode() override
    {
        if (!this->nodeHint())
            m_stack->refresh();
    }

    void nodeUpdated(ko::NodeID id) override
    {
        if (id != this->nodeId())
            return;
        if (m_storing)
            m_stack->stored();
        else
            updateNode();
    }

protected:
    /// Typing starts in the first field. A focus proxy would be a stop of its own for Tab, and lead past the
    /// tab bar.
    void focusInEvent(QFocusEvent* event) override { m_stack->focusFirstField(event->reason()); }

private:
    PageStack* addStack(const QVector<PageSpec>& pages)
    {
        PageStack* stack = new PageStack(pages, this);
        QVBoxLayout* layout = new QVBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(stack);
        return stack;
    }

    void store()
    {
        // Also for devices, whose base records no name.
        InspectorWidget::ok(); // NOLINT(bugprone-parent-virtual-call)
        if (Node* node = NodeDB::getDB()->beginUpdateNode(this->nodeId(), -1)) {
            m_stack->accept(node);
            m_storing = true;
            NodeDB::getDB()->endUpdateNode(node);
            m_storing = false;
        }
        this->logPropertyChange();
    }

    PageStack* const m_stack;
    bool m_storing = false; ///< what is announced now is what the pages show
};

template <class... Args>
InspectorWidget* create(ENodeType type, Args&&... args)
{
    if (NodeTypes::isDevice(type))
        return new StackInspector<IPDeviceInspectorWidget>(std::forward<Args>(args)...);
    return new StackInspector<InspectorWidget>(std::forward<Args>(args)...);
}

} // namespace

InspectorWidget* createNodeInspector(const NodeID& id, ENodeType type, bool readOnly, unsigned flags)
{
    const OwnNodeType* own = NodeTypes::ownType(type);
    if (own && own->createEditor)
        return own->createEditor(id, readOnly, flags);
    QVector<PageSpec> pages;
    const QVector<PageSpec> all = pagesOf(type);
    for (const PageSpec& page : all) {
        // With its lists left empty the page would write that nothing is chosen.
        if ((flags & NodeDialog::FillLayoutLists) || qstrcmp(page.tab, LayoutListPage::TabName) != 0)
            pages.append(page);
    }
    return create(type, id, pages, readOnly, flags);
}

InspectorWidget* createHintInspector(NodeHint& hint, unsigned flags)
{
    const OwnNodeType* own = NodeTypes::ownType(hint.type);
    if (own && own->createHintEditor)
        return own->createHintEditor(hint, flags);
    QVector<PageSpec> pages;
    const QVector<PageSpec> all = pagesOf(hint.type);
    for (const PageSpec& page : all) {
        if (page.forNewNodes)
            pages.append(page);
    }
    return create(hint.type, hint, pages, flags);
}

} // namespace ko
