#include "pages/LayoutOptionsWidget.h"

#include "interfaces/ILayoutAdapter.h"
#include "ko/Node.h"
#include "ko/NodeDB.h"
#include "ko/PropertyKeys.h"
#include "pages/AudioSources.h"
#include "utils/Fields.h"
#include "utils/FileDialogs.h"
#include "utils/Retranslation.h"

#include "ui_LayoutOptionsWidget.h"

#include <QListView>

namespace ko {

namespace {

const int noLayout = -1;
const int namesLength = 20; ///< characters for which there is room

QString text(const Node& node, const QString& key)
{
    return node.stringProperty(key, QString());
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
    onLanguageChange(this, [this] { retranslate(); });
    // Sizes that follow the texts, or rows of different heights, would be looked up for every camera.
    m_ui->audioPathIdComboBox->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_ui->audioPathIdComboBox->setMinimumContentsLength(namesLength);
    qobject_cast<QListView*>(m_ui->audioPathIdComboBox->view())->setUniformItemSizes(true);
    QObject::connect(m_ui->instructionFilePushButton, SIGNAL(clicked()), this, SLOT(openFileSelector()));
}

LayoutOptionsWidget::~LayoutOptionsWidget() = default;

/// The names of the layouts are the host's.
void LayoutOptionsWidget::retranslate()
{
    retranslateForm(*m_ui, this);
    const int undefined = m_ui->preferredLayoutComboBox->findData(noLayout);
    if (undefined >= 0)
        m_ui->preferredLayoutComboBox->setItemText(undefined, tr("Not defined"));
    if (AudioSources* sources = qobject_cast<AudioSources*>(m_ui->audioPathIdComboBox->model()))
        sources->setSelfName(tr("Self"));
}

void LayoutOptionsWidget::init(const NodeHint*) {}

void LayoutOptionsWidget::init(QString nodeId)
{
    m_nodeId = nodeId;
    const kom::smart<const Node> node = NodeDB::getDB()->node(nodeId);
    if (node.null())
        return;
    if (offer(*node, PropertyKeys::InfoFile, m_ui->instructionFileLineEdit))
        loadField(*node, PropertyKeys::InfoFile, m_ui->instructionFileLineEdit);
    else
        m_ui->instructionFilePushButton->setEnabled(false);
    if (offer(*node, PropertyKeys::SmoothDisplay, m_ui->smoothDisplayRadioButton)) {
        const bool smooth = node->intProperty(PropertyKeys::SmoothDisplay, 0) != 0;
        (smooth ? m_ui->smoothDisplayRadioButton : m_ui->minimumDelayRadioButton)->setChecked(true);
    } else {
        m_ui->minimumDelayRadioButton->setEnabled(false);
    }
}

void LayoutOptionsWidget::fillLayoutComboBox(const ILayoutAdapter* adapter)
{
    const kom::smart<const Node> node = NodeDB::getDB()->node(m_nodeId);
    if (!adapter || node.null() || !node->hasProperty(PropertyKeys::PreferredLayout)) {
        m_ui->preferredLayoutComboBox->setEnabled(false);
        return;
    }
    m_ui->preferredLayoutComboBox->addItem(tr("Not defined"), noLayout);
    const QList<Layout> layouts = adapter->layouts();
    for (const Layout& layout : layouts)
        m_ui->preferredLayoutComboBox->addItem(layout.name, layout.id);
    const QString preferred = text(*node, PropertyKeys::PreferredLayout);
    selectData(m_ui->preferredLayoutComboBox, preferred.isEmpty() ? noLayout : preferred.toInt());
}

void LayoutOptionsWidget::fillAudioPathIdComboBox()
{
    const kom::smart<const Node> node = NodeDB::getDB()->node(m_nodeId);
    if (node.null() || !node->hasProperty(PropertyKeys::AudioPathID)) {
        m_ui->audioPathIdComboBox->setEnabled(false);
        return;
    }
    AudioSources* sources = qobject_cast<AudioSources*>(m_ui->audioPathIdComboBox->model());
    if (!sources) {
        sources = new AudioSources(m_nodeId, tr("Self"), m_ui->audioPathIdComboBox);
        m_ui->audioPathIdComboBox->setModel(sources);
    }
    sources->append(NodeDB::getDB()->nodeIdList(IPDeviceType), node->type == IPDeviceType);
    const QString source = text(*node, PropertyKeys::AudioPathID);
    m_ui->audioPathIdComboBox->setCurrentIndex(sources->rowOf(source.isEmpty() ? m_nodeId : source));
}

void LayoutOptionsWidget::accept(Node* node)
{
    if (!node)
        return;
    storeField(*node, PropertyKeys::InfoFile, m_ui->instructionFileLineEdit);
    node->setIntProperty(PropertyKeys::SmoothDisplay,
                         m_ui->smoothDisplayRadioButton->isChecked() ? Qt::Checked : Qt::Unchecked);
    QString layout;
    layout.setNum(currentData(m_ui->preferredLayoutComboBox).toInt());
    node->setStringProperty(PropertyKeys::PreferredLayout, layout);
    node->setStringProperty(PropertyKeys::AudioPathID, currentData(m_ui->audioPathIdComboBox).toString());
}

void LayoutOptionsWidget::accept(NodeHint*) {}

void LayoutOptionsWidget::setReadOnly(bool readOnly)
{
    QWidget* const fields[] = {m_ui->instructionFileLineEdit,  m_ui->instructionFilePushButton,
                               m_ui->preferredLayoutComboBox,  m_ui->minimumDelayRadioButton,
                               m_ui->smoothDisplayRadioButton, m_ui->audioPathIdComboBox};
    for (QWidget* field : fields)
        setFieldReadOnly(field, readOnly);
}

void LayoutOptionsWidget::openFileSelector()
{
    const QString file = FileDialogs::openFile(this, tr("Instruction file"));
    if (!file.isEmpty())
        m_ui->instructionFileLineEdit->setText(file);
}

} // namespace ko
