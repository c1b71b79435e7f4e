#include "pages/PTZRotorControlWidget.h"

#include "ko/Node.h"
#include "ko/NodeDB.h"
#include "ko/connect.h"
#include "pages/PageTools.h"

#include "ui_PTZRotorControlWidget.h"

namespace ko {

namespace {

const int addressedHead = 8; ///< the one head type with an address and a zoom of its own

struct HeadType
{
    int code;
    const char* name;
};

// 4 is no longer offered.
const HeadType headTypes[] = {
    {0, QT_TRANSLATE_NOOP("ko::PTZRotorControlWidget", "No pan/tilt head")},
    {1, QT_TRANSLATE_NOOP("ko::PTZRotorControlWidget", "Videotronic SN-15AH")},
    {2, QT_TRANSLATE_NOOP("ko::PTZRotorControlWidget", "Provitek")},
    {3, QT_TRANSLATE_NOOP("ko::PTZRotorControlWidget", "VPT42/VPT501")},
    {5, QT_TRANSLATE_NOOP("ko::PTZRotorControlWidget", "Provitek PT2")},
    {6, QT_TRANSLATE_NOOP("ko::PTZRotorControlWidget", "Provitek PT3")},
    {7, QT_TRANSLATE_NOOP("ko::PTZRotorControlWidget", "Provitek PT4")},
    {addressedHead, QT_TRANSLATE_NOOP("ko::PTZRotorControlWidget", "Pelco D")},
};

const char rotorControl[] = "RotorControl";
const char rotorAddress[] = "PTZRotorAddress";
const char rotorSensitivity[] = "RotorSensitivity";

struct Flag
{
    const char* key;
    QCheckBox* Ui::PTZRotorControlWidget::*checkBox;
};

const Flag zoomFlag = {"PTZRotorZoom", &Ui::PTZRotorControlWidget::zoomDirectCheckBox};
const Flag joystickFlags[] = {
    {"RotorFastMode", &Ui::PTZRotorControlWidget::fastPatchCheckBox},
    {"PTZInvertX", &Ui::PTZRotorControlWidget::invertHorizontalCheckBox},
    {"PTZInvertY", &Ui::PTZRotorControlWidget::invertVerticalCheckBox},
};

/// Whether the node carries the property; its control is disabled if it does not.
bool offer(const Node& node, const char* key, QWidget* control)
{
    const bool offered = node.hasProperty(QLatin1String(key));
    if (!offered)
        control->setEnabled(false);
    return offered;
}

void load(const Node& node, const Flag& flag, const Ui::PTZRotorControlWidget& ui)
{
    QCheckBox* checkBox = ui.*flag.checkBox;
    if (offer(node, flag.key, checkBox))
        checkBox->setChecked(node.boolProperty(QLatin1String(flag.key), false));
}

void store(Node& node, const Flag& flag, const Ui::PTZRotorControlWidget& ui)
{
    node.setBoolProperty(QLatin1String(flag.key), (ui.*flag.checkBox)->isChecked());
}

} // namespace

PTZRotorControlWidget::PTZRotorControlWidget(QWidget* parent)
    : QWidget(parent)
    , m_ui(new Ui::PTZRotorControlWidget)
{
    m_ui->setupUi(this);
    // The texts that SIGNAL() and SLOT() make, written out because the blank is part of the signal's.
    ko::connect(m_ui->typeComboBox, "2currentIndexChanged (int)", this, "1enableRotorHeadSettings(int)");
}

PTZRotorControlWidget::~PTZRotorControlWidget() = default;

void PTZRotorControlWidget::init(const NodeHint*) {}

void PTZRotorControlWidget::init(QString nodeId)
{
    const kom::smart<const Node> node = NodeDB::getDB()->node(nodeId);
    if (node.null())
        return;
    if (offer(*node, rotorControl, m_ui->typeComboBox)) {
        for (const HeadType& type : headTypes)
            m_ui->typeComboBox->addItem(tr(type.name), type.code);
        const int index = selectData(m_ui->typeComboBox, node->intProperty(QLatin1String(rotorControl), 0));
        enableRotorHeadSettings(index);
    }
    if (offer(*node, rotorAddress, m_ui->addressSpinBox))
        m_ui->addressSpinBox->setValue(node->intProperty(QLatin1String(rotorAddress), 0));
    load(*node, zoomFlag, *m_ui);
    if (offer(*node, rotorSensitivity, m_ui->sensitivityComboBox))
        m_ui->sensitivityComboBox->setCurrentIndex(node->intProperty(QLatin1String(rotorSensitivity), 0));
    for (const Flag& flag : joystickFlags)
        load(*node, flag, *m_ui);
}

void PTZRotorControlWidget::accept(Node* node)
{
    if (!node)
        return;
    const int head = m_ui->typeComboBox->itemData(m_ui->typeComboBox->currentIndex()).toInt();
    node->setIntProperty(QLatin1String(rotorControl), head);
    node->setIntProperty(QLatin1String(rotorSensitivity), m_ui->sensitivityComboBox->currentIndex());
    for (const Flag& flag : joystickFlags)
        store(*node, flag, *m_ui);
    node->setIntProperty(QLatin1String(rotorAddress), m_ui->addressSpinBox->value());
    store(*node, zoomFlag, *m_ui);
}

void PTZRotorControlWidget::accept(NodeHint*) {}

void PTZRotorControlWidget::setReadOnly(bool readOnly)
{
    for (const Flag& flag : joystickFlags)
        (m_ui.data()->*flag.checkBox)->setEnabled(!readOnly);
    m_ui->typeComboBox->setEnabled(!readOnly);
    m_ui->sensitivityComboBox->setEnabled(!readOnly);
}

void PTZRotorControlWidget::enableRotorHeadSettings(int index)
{
    QWidget* const settings[] = {m_ui->zoomDirectLabel, m_ui->zoomDirectCheckBox, m_ui->addressSpinBox,
                                 m_ui->cameraAddressLabel};
    const bool addressed = m_ui->typeComboBox->itemData(index).toInt() == addressedHead;
    for (QWidget* setting : settings)
        setting->setVisible(addressed);
}

} // namespace ko
