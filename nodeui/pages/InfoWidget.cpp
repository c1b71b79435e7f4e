#include "pages/InfoWidget.h"

#include "ko/IPDeviceNode.h"
#include "ko/NodeHintIPDevice.h"
#include "ko/PropertyKeys.h"
#include "kogen/Property.h"
#include "utils/Fields.h"

#include "ui_InfoWidget.h"

namespace ko {

namespace {

/// The fields of hints and nodes alike, each with its place in both.
template <class Each>
void forEachField(const Ui::InfoWidget& ui, Each each)
{
    each(ui.modelLineEdit, &NodeHintIPDevice::model, &IPDeviceNode::model, &IPDeviceNode::setModel);
    each(ui.versionLineEdit, &NodeHintIPDevice::version, &IPDeviceNode::version, &IPDeviceNode::setVersion);
}

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
}

InfoWidget::~InfoWidget() = default;

void InfoWidget::init(const NodeHint* hint)
{
    const NodeHintIPDevice* device = dynamic_cast<const NodeHintIPDevice*>(hint);
    if (!device)
        return;
    forEachField(*m_ui, [device](auto field, auto value, auto, auto) { setField(field, device->*value); });
}

void InfoWidget::init(QString nodeId)
{
    const kom::smart<const IPDeviceNode> device = deviceNode(nodeId);
    if (device.null())
        return;
    forEachField(*m_ui,
                 [&device](auto field, auto, auto read, auto) { setField(field, ((*device).*read)()); });
    m_ui->macLineEdit->setText(device->macAddress().toString(true));
    m_ui->ipListWidget->addItems(currentAddresses(*device));
    m_ui->ipListWidget->setEditTriggers(QAbstractItemView::NoEditTriggers);
    // The dots of the factory address are stored as underscores.
    QString factoryIP = device->stringProperty(PropertyKeys::FactoryIP, QString());
    factoryIP.replace(QLatin1Char('_'), QLatin1Char('.'));
    m_ui->factoryIPLineEdit->setText(factoryIP.isEmpty() ? tr("<Unknown>") : factoryIP);
}

void InfoWidget::accept(Node* node)
{
    IPDeviceNode* device = dynamic_cast<IPDeviceNode*>(node);
    if (!device)
        return;
    forEachField(*m_ui, [device](auto field, auto, auto, auto write) {
        (device->*write)(fieldValue(field).toString());
    });
    device->setMacAddress(MACAddress(m_ui->macLineEdit->text()));
}

void InfoWidget::accept(NodeHint* hint)
{
    NodeHintIPDevice* device = dynamic_cast<NodeHintIPDevice*>(hint);
    if (!device)
        return;
    forEachField(*m_ui,
                 [device](auto field, auto value, auto, auto) { takeField(field, &(device->*value)); });
}

void InfoWidget::setReadOnly(bool readOnly)
{
    const QList<QLineEdit*> fields = findChildren<QLineEdit*>();
    for (QLineEdit* field : fields)
        setFieldReadOnly(field, readOnly);
}

} // namespace ko
