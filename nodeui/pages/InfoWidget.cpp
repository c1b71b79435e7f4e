#include "pages/InfoWidget.h"

#include "ko/NodeHintIPDevice.h"
#include "kogen/Property.h"
#include "pages/PageTools.h"

#include "ui_InfoWidget.h"

namespace ko {

namespace {

QStringList currentAddresses(const Node& node)
{
    const kogen::PropertySet addresses =
        node.propertySetProperty(QLatin1String("IPAddresses"), kogen::PropertySet());
    QStringList texts;
    const QStringList names = addresses.allPropertyNames();
    for (const QString& name : names) {
        const kom::smart<kogen::StringProperty> address = addresses[name].cast<kogen::StringProperty>();
        if (!address.null())
            texts.append(address->getValue());
    }
    if (texts.isEmpty())
        texts.append(node.stringProperty(QLatin1String("IP"), QString()));
    return texts;
}

} // namespace

InfoWidget::InfoWidget(QWidget* parent)
    : QWidget(parent)
    , m_ui(new Ui::InfoWidget)
{
    m_ui->setupUi(this);
}

InfoWidget::~InfoWidget() = default;

void InfoWidget::init(const NodeHint* hint)
{
    const NodeHintIPDevice* device = dynamic_cast<const NodeHintIPDevice*>(hint);
    if (!device)
        return;
    m_ui->modelLineEdit->setText(device->model);
    m_ui->versionLineEdit->setText(device->version);
}

void InfoWidget::init(QString nodeId)
{
    const kom::smart<const IPDeviceNode> device = deviceNode(nodeId);
    if (device.null())
        return;
    m_ui->modelLineEdit->setText(device->model());
    m_ui->versionLineEdit->setText(device->version());
    m_ui->macLineEdit->setText(device->macAddress().toString(true));
    m_ui->ipListWidget->addItems(currentAddresses(*device));
    m_ui->ipListWidget->setEditTriggers(QAbstractItemView::NoEditTriggers);
    // The dots of the factory address are stored as underscores.
    QString factoryIP = device->stringProperty(QLatin1String("FactoryIP"), QString());
    factoryIP.replace(QLatin1Char('_'), QLatin1Char('.'));
    m_ui->factoryIPLineEdit->setText(factoryIP.isEmpty() ? tr("<Unknown>") : factoryIP);
}

void InfoWidget::accept(Node* node)
{
    IPDeviceNode* device = dynamic_cast<IPDeviceNode*>(node);
    if (!device)
        return;
    device->setModel(m_ui->modelLineEdit->text());
    device->setVersion(m_ui->versionLineEdit->text());
    device->setMacAddress(MACAddress(m_ui->macLineEdit->text()));
}

void InfoWidget::accept(NodeHint* hint)
{
    NodeHintIPDevice* device = dynamic_cast<NodeHintIPDevice*>(hint);
    if (!device)
        return;
    device->model = m_ui->modelLineEdit->text();
    device->version = m_ui->versionLineEdit->text();
}

void InfoWidget::setReadOnly(bool readOnly)
{
    setFieldReadOnly(m_ui->modelLineEdit, readOnly);
    setFieldReadOnly(m_ui->versionLineEdit, readOnly);
    setFieldReadOnly(m_ui->macLineEdit, readOnly);
    setFieldReadOnly(m_ui->factoryIPLineEdit, readOnly);
}

} // namespace ko
