#include "pages/CustomNetworkProxyWidget.h"

#include "ko/IPDeviceNode.h"
#include "ko/NodeHintIPDevice.h"
#include "ko/connect.h"
#include "utils/ProxyFields.h"
#include "utils/Retranslation.h"

#include "ui_CustomNetworkProxyWidget.h"

namespace ko {

namespace {

ProxyFields fieldsOf(const Ui::CustomNetworkProxyWidget& ui)
{
    const ProxyFields fields = {ui.proxyAddressLineEdit, ui.proxyPortSpinBox, ui.proxyUsernameLineEdit,
                                ui.proxyPasswordLineEdit};
    return fields;
}

/// Of the field that lies apart from its label: only of a neighbor a screen reader takes the name.
void nameFields(const Ui::CustomNetworkProxyWidget& ui)
{
    ui.proxyPortSpinBox->setAccessibleName(ui.label_7->text().remove(QLatin1Char('&')));
}

} // namespace

CustomNetworkProxyWidget::CustomNetworkProxyWidget(QWidget* parent)
    : QWidget(parent)
    , m_ui(new Ui::CustomNetworkProxyWidget)
{
    m_ui->setupUi(this);
    nameFields(*m_ui);
    onLanguageChange(this, [this] {
        retranslateForm(*m_ui, this);
        nameFields(*m_ui);
    });
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
    fieldsOf(*m_ui).load(proxy);
    const Qt::CheckState state = proxy.useProxy() ? Qt::Checked : Qt::Unchecked;
    m_ui->customProxyCheckBox->setCheckState(state);
    checkBoxStateChanged(state); // a state that was set already says nothing
}

void CustomNetworkProxyWidget::store(NetworkProxy& proxy) const
{
    fieldsOf(*m_ui).store(proxy);
    proxy.setUseProxy(m_ui->customProxyCheckBox->isChecked());
}

void CustomNetworkProxyWidget::setFieldsEnabled(bool enabled)
{
    const ProxyFields fields = fieldsOf(*m_ui);
    QWidget* const all[] = {fields.address, fields.port, fields.user, fields.password};
    for (QWidget* field : all)
        field->setEnabled(enabled);
}

} // namespace ko
