#include "pages/ControlDataWidget.h"

#include "ko/IPDeviceNode.h"
#include "ko/NodeDB.h"
#include "ko/NodeHintIPDevice.h"
#include "utils/Retranslation.h"

#include "ui_ControlDataWidget.h"

namespace ko {

ControlDataWidget::ControlDataWidget(QWidget* parent)
    : QWidget(parent)
    , m_ui(new Ui::ControlDataWidget)
{
    m_ui->setupUi(this);
    describePlainly(this);
    onLanguageChange(this, [this] { retranslateForm(*m_ui, this); });
}

ControlDataWidget::~ControlDataWidget() = default;

const char* ControlDataWidget::bandwidthIcon(ENodeBandwidth bandwidth, bool alternative)
{
    switch (bandwidth) {
    case SlowRemote:
        return alternative ? ":/icons/slowRemote2.png" : ":/icons/slowRemote.png";
    case FastRemote:
        return alternative ? ":/icons/fastRemote2.png" : ":/icons/fastRemote.png";
    case FastLocal:
        return alternative ? ":/icons/fastLocal2.png" : ":/icons/fastLocal.png";
    default:
        return alternative ? ":/icons/slowLocal2.png" : ":/icons/slowLocal.png";
    }
}

const char* ControlDataWidget::controlModeIcon(ENodeControl mode, bool alternative)
{
    switch (mode) {
    case ImageMode:
        return alternative ? ":/icons/imageMode2.png" : ":/icons/imageMode.png";
    case ViewerMode:
        return alternative ? ":/icons/viewerMode2.png" : ":/icons/viewerMode.png";
    default:
        return alternative ? ":/icons/fullControl2.png" : ":/icons/fullControl.png";
    }
}

void ControlDataWidget::init(const NodeHint* hint)
{
    if (!dynamic_cast<const NodeHintIPDevice*>(hint))
        return;
    m_ui->controlModeComboBox->setCurrentIndex(FullControl);
    m_ui->bandwidthComboBox->setCurrentIndex(NodeDB::getDB()->bandwidth());
}

void ControlDataWidget::init(QString nodeId)
{
    const kom::smart<const IPDeviceNode> device = deviceNode(nodeId);
    if (device.null())
        return;
    const int mode = device->controlMode();
    m_ui->controlModeComboBox->setCurrentIndex(mode == -1 ? int(FullControl) : mode);
    const int bandwidth = device->bandwidth();
    m_ui->bandwidthComboBox->setCurrentIndex(bandwidth == -1 ? NodeDB::getDB()->bandwidth() : bandwidth);
}

void ControlDataWidget::accept(Node* node)
{
    IPDeviceNode* device = dynamic_cast<IPDeviceNode*>(node);
    if (!device)
        return;
    device->setControlMode(m_ui->controlModeComboBox->currentIndex());
    // The value of the database means: follow the database.
    const int bandwidth = m_ui->bandwidthComboBox->currentIndex();
    device->setBandwidth(bandwidth == NodeDB::getDB()->bandwidth() ? -1 : bandwidth);
}

void ControlDataWidget::accept(NodeHint*) {}

void ControlDataWidget::setReadOnly(bool readOnly)
{
    m_ui->controlModeComboBox->setEnabled(!readOnly);
    m_ui->bandwidthComboBox->setEnabled(!readOnly);
}

} // namespace ko
