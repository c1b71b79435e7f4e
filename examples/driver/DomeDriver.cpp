#include "DomeDriver.h"

#include "inspector/InspectorWidget.h"
#include "ko/Node.h"
#include "ko/NodeDB.h"
#include "ko/NodeHint.h"
#include "ko/PropertyKeys.h"
#include "pages/LayoutOptionsWidget.h"
#include "pages/PTZRotorControlWidget.h"

#include <QFormLayout>
#include <QLineEdit>

namespace example {

namespace {

/// A field of its own and two pages of the library.
class DomeInspector : public ko::InspectorWidget
{
public:
    DomeInspector(const QString& id, bool readOnly, unsigned flags)
        : InspectorWidget(id, readOnly, nullptr, flags)
    {
        const kom::smart<const ko::Node> node = ko::NodeDB::getDB()->node(id);
        build(node.null() ? QString() : node->name());
        m_name->setReadOnly(readOnly);
        m_head->init(id);
        m_options->init(id);
        m_head->setReadOnly(readOnly);
        m_options->setReadOnly(readOnly);
    }

    DomeInspector(ko::NodeHint& hint, unsigned flags)
        : InspectorWidget(hint, nullptr, flags)
    {
        build(hint.name());
        m_head->hide(); // both pages need a node that is there
        m_options->hide();
    }

    // The order is fixed: the old name is recorded first, and the log compares with it last.
    void ok() override
    {
        if (nodeHint())
            return nodeHint()->setName(m_name->text());
        InspectorWidget::ok();
        if (ko::Node* node = ko::NodeDB::getDB()->beginUpdateNode(nodeId(), -1)) {
            node->setStringProperty(ko::PropertyKeys::Name, m_name->text());
            m_head->accept(node);
            m_options->accept(node);
            ko::NodeDB::getDB()->endUpdateNode(node);
        }
        logPropertyChange();
    }

private:
    void build(const QString& name)
    {
        m_name->setText(name);
        m_name->setObjectName("nameLineEdit");
        auto* layout = new QFormLayout(this);
        layout->addRow("&Name:", m_name);
        layout->addRow(m_head);
        layout->addRow(m_options);
        setFocusProxy(m_name);
    }

    QLineEdit* const m_name = new QLineEdit(this);
    ko::PTZRotorControlWidget* const m_head = new ko::PTZRotorControlWidget(this);
    ko::LayoutOptionsWidget* const m_options = new ko::LayoutOptionsWidget(this);
};

} // namespace

ko::InspectorWidget* createDomeInspector(const QString& id, bool readOnly, unsigned flags)
{
    return new DomeInspector(id, readOnly, flags);
}

ko::InspectorWidget* DomeDriver::createInspectorWidget(ko::NodeHint* hint, unsigned flags)
{
    return hint ? new DomeInspector(*hint, flags) : nullptr;
}

kom::smart<ko::NodeHint> DomeDriver::createNodeHint(ko::ENodeType type)
{
    kom::smart<ko::NodeHint> hint = makeHint(type);
    hint->setStringProperty(ko::PropertyKeys::InfoFile, QString()); // the pages offer what a node has
    hint->setIntProperty(ko::PropertyKeys::RotorControl, 0);
    return hint;
}

} // namespace example
