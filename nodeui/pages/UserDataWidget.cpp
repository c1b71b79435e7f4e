#include "pages/UserDataWidget.h"

#include "interfaces/ISupportsChannels.h"
#include "ko/GlobalNetworkProxy.h"
#include "ko/IPDeviceNode.h"
#include "ko/NodeDB.h"
#include "ko/NodeHintIPDevice.h"
#include "ko/QtCompat.h"
#include "ko/connect.h"
#include "ko/dialogFlags.h"
#include "utils/Fields.h"
#include "utils/Retranslation.h"

#include "ui_UserDataWidget.h"

#include <QMessageBox>

namespace ko {

namespace {

const int hostOption = 0; ///< the host's default form of the credentials

/// The fields, each with its place in hints and how a node is asked for it.
template <class Each>
void forEachField(const Ui::UserDataWidget& ui, Each each)
{
    each(ui.addressLineEdit, &NodeHintIPDevice::address, [](const IPDeviceNode& d) { return d.address(); });
    each(ui.portSpinBox, &NodeHintIPDevice::port, [](const IPDeviceNode& d) { return d.port(); });
    each(ui.sslCheckBox, &NodeHintIPDevice::useSSL, [](const IPDeviceNode& d) { return d.useSSL(); });
    each(ui.usernameLineEdit, &NodeHintIPDevice::user,
         [](const IPDeviceNode& d) { return d.user(hostOption); });
    each(ui.passwordLineEdit, &NodeHintIPDevice::password,
         [](const IPDeviceNode& d) { return d.password(hostOption); });
}

} // namespace

UserDataWidget::UserDataWidget(QWidget* parent)
    : QWidget(parent)
    , m_ui(new Ui::UserDataWidget)
{
    m_ui->setupUi(this);
    onLanguageChange(this, [this] { retranslateForm(*m_ui, this); });
    ko::connect(m_ui->addressLineEdit, SIGNAL(textChanged(QString)), this, SIGNAL(nameProposal(QString)));
    ko::connect(m_ui->sslCheckBox, SIGNAL(stateChanged(int)), this, SIGNAL(sslChanged(int)));
    ko::connect(&NodeDB::getDB()->globalProxy(), SIGNAL(globalProxyDataChanged()), this,
                SLOT(proxySettings()));
}

UserDataWidget::~UserDataWidget() = default;

void UserDataWidget::init(const NodeHint* hint, bool offerProxyBypass)
{
    const NodeHintIPDevice* device = dynamic_cast<const NodeHintIPDevice*>(hint);
    if (!device)
        return;
    forEachField(*m_ui, [device](auto field, auto value, auto) { setField(field, device->*value); });
    offerBypass(offerProxyBypass);
    // A hint has no interface to ask yet, so its type decides.
    showChannel(device->type == ChannelDeviceType, device->channel);
}

void UserDataWidget::init(QString nodeId, bool offerProxyBypass)
{
    const kom::smart<const Node> node = NodeDB::getDB()->node(nodeId);
    const kom::smart<const IPDeviceNode> device = node.cast<const IPDeviceNode>();
    if (!device.null()) {
        forEachField(*m_ui, [&device](auto field, auto, auto read) { setField(field, read(*device)); });
        offerBypass(offerProxyBypass);
    }
    const kom::smart<const ISupportsChannels> channels = node.cast<const ISupportsChannels>();
    showChannel(!channels.null(), channels.null() ? 0 : channels->channel());
}

void UserDataWidget::accept(Node* node)
{
    if (IPDeviceNode* device = dynamic_cast<IPDeviceNode*>(node)) {
        const QString address = m_ui->addressLineEdit->text();
        if (address != device->address()) {
            device->setAddress(address);
            device->notifyChange(IPDeviceNode::AddressChanged);
        }
        device->setUseSSL(m_ui->sslCheckBox->isChecked());
        device->setPort(m_ui->portSpinBox->value());
        device->setUser(m_ui->usernameLineEdit->text(), m_ui->passwordLineEdit->text());
        device->setCredentialsEntered(true);
        acceptProxy(device->address());
    }
    if (ISupportsChannels* channels = dynamic_cast<ISupportsChannels*>(node))
        channels->setChannel(m_ui->channelSpinBox->value());
}

void UserDataWidget::accept(NodeHint* hint)
{
    NodeHintIPDevice* device = dynamic_cast<NodeHintIPDevice*>(hint);
    if (!device)
        return;
    forEachField(*m_ui, [device](auto field, auto value, auto) { takeField(field, &(device->*value)); });
    device->credentialsEntered = true;
    acceptProxy(device->address);
    if (device->type == ChannelDeviceType)
        device->channel = m_ui->channelSpinBox->value();
}

void UserDataWidget::setReadOnly(bool readOnly)
{
    forEachField(*m_ui, [readOnly](auto field, auto, auto) { setFieldReadOnly(field, readOnly); });
    setFieldReadOnly(m_ui->channelSpinBox, readOnly);
    setFieldReadOnly(m_ui->bypassProxyCheckBox, readOnly);
}

void UserDataWidget::setPort(int port)
{
    m_ui->portSpinBox->setValue(port);
}

void UserDataWidget::acceptProxy(const QString& address)
{
    if (m_ui->bypassProxyCheckBox->isHidden())
        return;
    GlobalNetworkProxy& proxy = NodeDB::getDB()->globalProxy();
    if (m_ui->bypassProxyCheckBox->isChecked()) {
        if (!proxy.isAffectedFromExceptions(address))
            proxy.addException(address);
        return;
    }
    if (proxy.exceptions().contains(address))
        proxy.removeException(address);
    if (!proxy.isAffectedFromExceptions(address))
        return;
    // A pattern covers the address too. The patterns are typed by users, and shown as typed.
    const QString exceptions = htmlEscaped(proxy.exceptionsAssembled(QLatin1Char(';')));
    const QString text = tr("The current address is still affected by the current proxy exceptions:<br>") +
                         QLatin1Char('"') + exceptions + QLatin1Char('"') + QLatin1String("<br>") +
                         tr("Please check the proxy settings!");
    QMessageBox box(QMessageBox::Warning, tr("Proxy Settings"), text, QMessageBox::Ok, this);
    box.setTextFormat(Qt::RichText);
    box.setWindowModality(Qt::WindowModal);
    box.setWindowFlags(sheetDialogFlags(this)); // the modality of a message box replaces its flags
    box.exec();
    m_ui->bypassProxyCheckBox->setChecked(true);
}

void UserDataWidget::proxySettings()
{
    const GlobalNetworkProxy& proxy = NodeDB::getDB()->globalProxy();
    m_ui->bypassProxyCheckBox->setChecked(proxy.isAffectedFromExceptions(m_ui->addressLineEdit->text()));
    m_ui->bypassProxyCheckBox->setEnabled(proxy.useProxy());
}

void UserDataWidget::offerBypass(bool offer)
{
    if (offer)
        proxySettings();
    else
        m_ui->bypassProxyCheckBox->hide();
}

void UserDataWidget::showChannel(bool supported, int channel)
{
    if (supported) {
        m_ui->channelSpinBox->setValue(channel);
    } else {
        m_ui->channelLabel->hide();
        m_ui->channelSpinBox->hide();
    }
}

} // namespace ko
