#include "pages/LayoutOptionsWidget.h"

#include "interfaces/ILayoutAdapter.h"
#include "ko/Node.h"
#include "ko/NodeDB.h"
#include "pages/PageTools.h"
#include "utils/FileDialogs.h"

#include "ui_LayoutOptionsWidget.h"

namespace ko {

namespace {

const char infoFile[] = "InfoFile";
const char smoothDisplay[] = "SmoothDisplay";
const char preferredLayout[] = "PreferredLayout";
const char audioPathId[] = "AudioPathID";

const int noLayout = -1;

QString text(const Node& node, const char* key)
{
    return node.stringProperty(QLatin1String(key), QString());
}

QVariant currentData(const QComboBox* comboBox)
{
    return comboBox->itemData(comboBox->currentIndex());
}

} // namespace

LayoutOptionsWidget::LayoutOptionsWidget(QWidget* parent)
    : QWidget(parent)
    , m_ui(new Ui::LayoutOptionsWidget)
{
    m_ui->setupUi(this);
    QObject::connect(m_ui->instructionFilePushButton, SIGNAL(clicked()), this, SLOT(openFileSelector()));
}

LayoutOptionsWidget::~LayoutOptionsWidget() = default;

void LayoutOptionsWidget::init(const NodeHint*) {}

void LayoutOptionsWidget::init(QString nodeId)
{
    m_nodeId = nodeId;
    const kom::smart<const Node> node = NodeDB::getDB()->node(nodeId);
    if (node.null())
        return;
    if (node->hasProperty(QLatin1String(infoFile))) {
        m_ui->instructionFileLineEdit->setText(text(*node, infoFile));
    } else {
        m_ui->instructionFileLineEdit->setEnabled(false);
        m_ui->instructionFilePushButton->setEnabled(false);
    }
    if (node->hasProperty(QLatin1String(smoothDisplay))) {
        const bool smooth = node->intProperty(QLatin1String(smoothDisplay), 0) != 0;
        (smooth ? m_ui->smoothDisplayRadioButton : m_ui->minimumDelayRadioButton)->setChecked(true);
    } else {
        m_ui->minimumDelayRadioButton->setEnabled(false);
        m_ui->smoothDisplayRadioButton->setEnabled(false);
    }
}

void LayoutOptionsWidget::fillLayoutComboBox(const ILayoutAdapter* adapter)
{
    const kom::smart<const Node> node = NodeDB::getDB()->node(m_nodeId);
    if (!adapter || node.null() || !node->hasProperty(QLatin1String(preferredLayout))) {
        m_ui->preferredLayoutComboBox->setEnabled(false);
        return;
    }
    m_ui->preferredLayoutComboBox->addItem(tr("Not defined"), noLayout);
    const QList<Layout> layouts = adapter->layouts();
    for (const Layout& layout : layouts)
        m_ui->preferredLayoutComboBox->addItem(layout.name, layout.id);
    const QString preferred = text(*node, preferredLayout);
    selectData(m_ui->preferredLayoutComboBox, preferred.isEmpty() ? noLayout : preferred.toInt());
}

void LayoutOptionsWidget::fillAudioPathIdComboBox()
{
    const kom::smart<const Node> node = NodeDB::getDB()->node(m_nodeId);
    if (node.null() || !node->hasProperty(QLatin1String(audioPathId))) {
        m_ui->audioPathIdComboBox->setEnabled(false);
        return;
    }
    m_ui->audioPathIdComboBox->addItem(tr("Self"), m_nodeId);
    const QStringList cameras = NodeDB::getDB()->nodeIdList(IPDeviceType);
    for (const QString& id : cameras) {
        if (id == m_nodeId)
            continue;
        const kom::smart<const Node> camera = NodeDB::getDB()->node(id);
        if (!camera.null())
            m_ui->audioPathIdComboBox->addItem(text(*camera, "Name"), id);
    }
    const QString source = text(*node, audioPathId);
    selectData(m_ui->audioPathIdComboBox, source.isEmpty() ? m_nodeId : source);
}

void LayoutOptionsWidget::accept(Node* node)
{
    if (!node)
        return;
    node->setStringProperty(QLatin1String(infoFile), m_ui->instructionFileLineEdit->text());
    node->setIntProperty(QLatin1String(smoothDisplay),
                         m_ui->smoothDisplayRadioButton->isChecked() ? Qt::Checked : Qt::Unchecked);
    QString layout;
    layout.setNum(currentData(m_ui->preferredLayoutComboBox).toInt());
    node->setStringProperty(QLatin1String(preferredLayout), layout);
    node->setStringProperty(QLatin1String(audioPathId), currentData(m_ui->audioPathIdComboBox).toString());
}

void LayoutOptionsWidget::accept(NodeHint*) {}

void LayoutOptionsWidget::setReadOnly(bool readOnly)
{
    setFieldReadOnly(m_ui->instructionFileLineEdit, readOnly);
    QWidget* const choices[] = {m_ui->instructionFilePushButton, m_ui->preferredLayoutComboBox,
                                m_ui->minimumDelayRadioButton, m_ui->smoothDisplayRadioButton,
                                m_ui->audioPathIdComboBox};
    for (QWidget* choice : choices)
        choice->setEnabled(!readOnly);
}

void LayoutOptionsWidget::openFileSelector()
{
    const QString file = FileDialogs::openFile(this, tr("Instruction file"));
    if (!file.isEmpty())
        m_ui->instructionFileLineEdit->setText(file);
}

} // namespace ko
