#include "pages/PTZRotorControlWidget.h"

#include "ko/Node.h"
#include "ko/NodeDB.h"
#include "ko/PropertyKeys.h"
#include "ko/connect.h"
#include "utils/Fields.h"
#include "utils/Retranslation.h"

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
    {0, QT_TRANSLATE_NOOP("PTZRotorControlWidget", "No pan/tilt head")},
    {1, QT_TRANSLATE_NOOP("PTZRotorControlWidget", "Videotronic SN-15AH")},
    {2, QT_TRANSLATE_NOOP("PTZRotorControlWidget", "Provitek")},
    {3, QT_TRANSLATE_NOOP("PTZRotorControlWidget", "VPT42/VPT501")},
    {5, QT_TRANSLATE_NOOP("PTZRotorControlWidget", "Provitek PT2")},
    {6, QT_TRANSLATE_NOOP("PTZRotorControlWidget", "Provitek PT3")},
    {7, QT_TRANSLATE_NOOP("PTZRotorControlWidget", "Provitek PT4")},
    {addressedHead, QT_TRANSLATE_NOOP("PTZRotorControlWidget", "Pelco D")},
};

struct Flag
{
    QLatin1String key;
    QCheckBox* Ui::PTZRotorControlWidget::*checkBox;
};

const Flag joystickFlags[] = {
    {PropertyKeys::RotorFastMode, &Ui::PTZRotorControlWidget::fastPatchCheckBox},
    {PropertyKeys::PTZInvertX, &Ui::PTZRotorControlWidget::invertHorizontalCheckBox},
    {PropertyKeys::PTZInvertY, &Ui::PTZRotorControlWidget::invertVerticalCheckBox},
};

} // namespace

PTZRotorControlWidget::PTZRotorControlWidget(QWidget* parent)
    : QWidget(parent)
    , m_ui(new Ui::PTZRotorControlWidget)
{
    m_ui->setupUi(this);
    onLanguageChange(this, [this] {
        retranslateForm(*m_ui, this);
        for (int i = 0; i < m_ui->typeComboBox->count(); ++i)
            m_ui->typeComboBox->setItemText(i, tr(headTypes[i].name));
    });
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
    if (offer(*node, PropertyKeys::RotorControl, m_ui->typeComboBox)) {
        for (const HeadType& type : headTypes)
            m_ui->typeComboBox->addItem(tr(type.name), type.code);
        const int index = selectData(m_ui->typeComboBox, node->intProperty(PropertyKeys::RotorControl, 0));
        enableRotorHeadSettings(index);
    }
    loadOffered(*node, PropertyKeys::PTZRotorAddress, m_ui->addressSpinBox);
    loadOffered(*node, PropertyKeys::PTZRotorZoom, m_ui->zoomDirectCheckBox);
    if (offer(*node, PropertyKeys::RotorSensitivity, m_ui->sensitivityComboBox))
        m_ui->sensitivityComboBox->setCurrentIndex(node->intProperty(PropertyKeys::RotorSensitivity, 0));
    for (const Flag& flag : joystickFlags)
        loadOffered(*node, flag.key, m_ui.data()->*flag.checkBox);
}

void PTZRotorControlWidget::accept(Node* node)
{
    if (!node)
        return;
    const int head = m_ui->typeComboBox->itemData(m_ui->typeComboBox->currentIndex()).toInt();
    node->setIntProperty(PropertyKeys::RotorControl, head);
    node->setIntProperty(PropertyKeys::RotorSensitivity, m_ui->sensitivityComboBox->currentIndex());
    for (const Flag& flag : joystickFlags)
        storeField(*node, flag.key, m_ui.data()->*flag.checkBox);
    storeField(*node, PropertyKeys::PTZRotorAddress, m_ui->addressSpinBox);
    storeField(*node, PropertyKeys::PTZRotorZoom, m_ui->zoomDirectCheckBox);
}

void PTZRotorControlWidget::accept(NodeHint*) {}

void PTZRotorControlWidget::setReadOnly(bool readOnly)
{
    for (const Flag& flag : joystickFlags)
        setFieldReadOnly(m_ui.data()->*flag.checkBox, readOnly);
    setFieldReadOnly(m_ui->typeComboBox, readOnly);
    setFieldReadOnly(m_ui->sensitivityComboBox, readOnly);
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
