#include "pages/InfoWidget.h"

#include "ko/IPDeviceNode.h"
#include "ko/NodeHintIPDevice.h"
#include "ko/PropertyKeys.h"
#include "kogen/Property.h"
#include "utils/Fields.h"
#include "utils/Retranslation.h"

#include "ui_InfoWidget.h"

namespace ko {

namespace {

/// The fields of hints and nodes alike.
const struct
{
    QLineEdit* Ui::InfoWidget::*lineEdit;
    QString NodeHintIPDevice::*inHint;
    QString (IPDeviceNode::*read)() const;
    void (IPDeviceNode::*write)(const QString&);
} fields[] = {
    {&Ui::InfoWidget::modelLineEdit, &NodeHintIPDevice::model, &IPDeviceNode::model, &IPDeviceNode::setModel},
    {&Ui::InfoWidget::versionLineEdit, &NodeHintIPDevice::version, &IPDeviceNode::version,
     &IPDeviceNode::setVersion},
};

QStringList currentAddresses(const Node& node)
{
    const kogen::PropertySet addresses =
        node.propertySetProperty(PropertyKeys::IPAddresses, kogen::PropertySet());
    QStringList texts;
    const QStringList names = addresses.allPropertyNames();
    for (const QString& name : names) {
        const kom::smart<kogen::StringProperty> address = addresses[name].cast<kogen::StringProperty>();
        if (!address.null())
            texts.append(address->getValue());
    }
    if (texts.isEmpty())
        texts.append(node.stringProperty(PropertyKeys::IP, QString()));
    return texts;
}

} // namespace

InfoWidget::InfoWidget(QWidget* parent)
    : QWidget(parent)
    , m_ui(new Ui::InfoWidget)
{
    m_ui->setupUi(this);
    onLanguageChange(this, [this] {
        retranslateForm(*m_ui, this);
        if (m_isFactoryIPUnknown)
            m_ui->factoryIPLineEdit->setText(tr("<Unknown>"));
    });
}

InfoWidget::~InfoWidget() = default;

void InfoWidget::init(const NodeHint* hint)
{
    const NodeHintIPDevice* device = dynamic_cast<const NodeHintIPDevice*>(hint);
    if (!device)
        return;
    for (const auto& field : fields)
        setField(m_ui.data()->*field.lineEdit, device->*field.inHint);
}

void InfoWidget::init(QString nodeId)
{
    const kom::smart<const IPDeviceNode> device = deviceNode(nodeId);
    if (device.null())
        return;
    for (const auto& field : fields)
        setField(m_ui.data()->*field.lineEdit, ((*device).*field.read)());
    m_ui->macLineEdit->setText(device->macAddress().toString(true));
    m_ui->ipListWidget->addItems(currentAddresses(*device));
    m_ui->ipListWidget->setEditTriggers(QAbstractItemView::NoEditTriggers);
    // The dots of the factory address are stored as underscores.
    QString factoryIP = device->stringProperty(PropertyKeys::FactoryIP, QString());
    factoryIP.replace(QLatin1Char('_'), QLatin1Char('.'));
    m_isFactoryIPUnknown = factoryIP.isEmpty();
    m_ui->factoryIPLineEdit->setText(m_isFactoryIPUnknown ? tr("<Unknown>") : factoryIP);
}

void InfoWidget::accept(Node* node)
{
    IPDeviceNode* device = dynamic_cast<IPDeviceNode*>(node);
    if (!device)
        return;
    for (const auto& field : fields)
        (device->*field.write)((m_ui.data()->*field.lineEdit)->text());
    device->setMacAddress(MACAddress(m_ui->macLineEdit->text()));
}

void InfoWidget::accept(NodeHint* hint)
{
    NodeHintIPDevice* device = dynamic_cast<NodeHintIPDevice*>(hint);
    if (!device)
        return;
    for (const auto& field : fields)
        device->*field.inHint = (m_ui.data()->*field.lineEdit)->text();
}

void InfoWidget::setReadOnly(bool readOnly)
{
    const QList<QLineEdit*> lineEdits = findChildren<QLineEdit*>();
    for (QLineEdit* lineEdit : lineEdits)
        setFieldReadOnly(lineEdit, readOnly);
}

} // namespace ko
