#include "GateInspector.h"

#include "ko/Node.h"
#include "ko/NodeDB.h"
#include "ko/NodeHint.h"
#include "ko/PropertyKeys.h"
#include "pages/LayoutOptionsWidget.h"

#include <QFormLayout>
#include <QLineEdit>

namespace example {

GateInspector::GateInspector(const QString& id, bool readOnly, unsigned flags)
    : InspectorWidget(id, readOnly, nullptr, flags)
{
    build();
    const kom::smart<const ko::Node> node = ko::NodeDB::getDB()->node(id);
    if (!node.null())
        load(*node);
    m_name->setReadOnly(readOnly);
    m_place->setReadOnly(readOnly);
    m_options->init(id);
    if (readOnly)
        m_options->setReadOnly(true);
}

GateInspector::GateInspector(ko::NodeHint& hint, unsigned flags)
    : InspectorWidget(hint, nullptr, flags)
{
    build();
    load(hint);
    m_options->hide(); // its options belong to nodes that are there
}

void GateInspector::build()
{
    m_name = new QLineEdit(this);
    m_name->setObjectName(QLatin1String("nameLineEdit"));
    m_place = new QLineEdit(this);
    m_options = new ko::LayoutOptionsWidget(this);
    QFormLayout* layout = new QFormLayout(this);
    layout->addRow(tr("&Name:"), m_name);
    layout->addRow(tr("&Place:"), m_place);
    layout->addRow(m_options);
    setFocusProxy(m_name);
}

void GateInspector::load(const ko::PropertyAccess& from)
{
    m_name->setText(from.stringProperty(ko::PropertyKeys::Name, QString()));
    m_place->setText(from.stringProperty(QLatin1String("Place"), QString()));
}

void GateInspector::store(ko::PropertyAccess* to) const
{
    to->setStringProperty(ko::PropertyKeys::Name, m_name->text());
    to->setStringProperty(QLatin1String("Place"), m_place->text());
}

// The order is fixed: the old name is recorded first, and the log compares with it last.
void GateInspector::ok()
{
    if (nodeHint()) {
        store(nodeHint());
        return;
    }
    InspectorWidget::ok();
    if (ko::Node* node = ko::NodeDB::getDB()->beginUpdateNode(nodeId(), -1)) {
        store(node);
        m_options->accept(node);
        ko::NodeDB::getDB()->endUpdateNode(node);
    }
    logPropertyChange();
}

} // namespace example
