#include "pages/CustomNetworkProxyWidget.h"

#include "ko/NodeHintIPDevice.h"
#include "ko/connect.h"
#include "pages/PageTools.h"

#include "ui_CustomNetworkProxyWidget.h"

namespace ko {

CustomNetworkProxyWidget::CustomNetworkProxyWidget(QWidget* parent)
    : QWidget(parent)
    , m_ui(new Ui::CustomNetworkProxyWidget)
{
    m_ui->setupUi(this);
    ko::connect(m_ui->customProxyCheckBox, SIGNAL(stateChanged(int)), this, SLOT(checkBoxStateChanged(int)));
}

CustomNetworkProxyWidget::~CustomNetworkProxyWidget() = default;

void CustomNetworkProxyWidget::init(QString nodeId)
{
    const kom::smart<const IPDeviceNode> device = deviceNode(nodeId);
    if (!device.null())
        load(device->proxy());
}

void CustomNetworkProxyWidget::init(const NodeHint* hint)
{
    if (const NodeHintIPDevice* device = dynamic_cast<const NodeHintIPDevice*>(hint))
        load(device->proxy);
}

void CustomNetworkProxyWidget::accept(Node* node)
{
    if (IPDeviceNode* device = dynamic_cast<IPDeviceNode*>(node))
        store(device->proxy());
}

void CustomNetworkProxyWidget::accept(NodeHint* hint)
{
    if (NodeHintIPDevice* device = dynamic_cast<NodeHintIPDevice*>(hint))
        store(device->proxy);
}

void CustomNetworkProxyWidget::setReadOnly(bool readOnly)
{
    m_ui->customProxyCheckBox->setEnabled(!readOnly);
    setFieldsEnabled(!readOnly && m_ui->customProxyCheckBox->isChecked());
}

void CustomNetworkProxyWidget::checkBoxStateChanged(int state)
{
    setFieldsEnabled(state == Qt::Checked);
}

void CustomNetworkProxyWidget::load(const NetworkProxy& proxy)
{
    m_ui->proxyAddressLineEdit->setText(proxy.proxyAddress());
    m_ui->proxyPortSpinBox->setValue(proxy.proxyPort());
    m_ui->proxyUsernameLineEdit->setText(proxy.proxyUser());
    m_ui->proxyPasswordLineEdit->setText(proxy.proxyPassword());
    const Qt::CheckState state = proxy.useProxy() ? Qt::Checked : Qt::Unchecked;
    m_ui->customProxyCheckBox->setCheckState(state);
    checkBoxStateChanged(state); // a state that was set already says nothing
}

void CustomNetworkProxyWidget::store(NetworkProxy& proxy) const
{
    proxy.setProxyAddress(m_ui->proxyAddressLineEdit->text(), m_ui->proxyPortSpinBox->value());
    proxy.setProxyUser(m_ui->proxyUsernameLineEdit->text(), m_ui->proxyPasswordLineEdit->text());
    proxy.setUseProxy(m_ui->customProxyCheckBox->isChecked());
}

void CustomNetworkProxyWidget::setFieldsEnabled(bool enabled)
{
    m_ui->proxyAddressLineEdit->setEnabled(enabled);
    m_ui->proxyPortSpinBox->setEnabled(enabled);
    m_ui->proxyUsernameLineEdit->setEnabled(enabled);
    m_ui->proxyPasswordLineEdit->setEnabled(enabled);
}

} // namespace ko
