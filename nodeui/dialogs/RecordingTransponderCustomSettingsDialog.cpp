#include "dialogs/RecordingTransponderCustomSettingsDialog.h"

#include "ko/Node.h"
#include "ko/NodeDB.h"
#include "ko/QtCompat.h"
#include "ko/connect.h"
#include "ko/dialogFlags.h"
#include "utils/NodeDBUtils.h"

#include "ui_RecordingTransponderCustomSettingsDialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>

namespace ko {

namespace {

enum PreviewMode { CameraPreview, EventStreamer, RemotePreview };

QString latin1(const char* text)
{
    return QString::fromLatin1(text);
}

void enable(std::initializer_list<QWidget*> widgets, bool enabled)
{
    for (QWidget* widget : widgets)
        widget->setEnabled(enabled);
}

/// Selects the entry with this text; another text leaves the selection as it is.
void select(QComboBox* comboBox, const QString& text)
{
    const int index = comboBox->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (index >= 0)
        comboBox->setCurrentIndex(index);
}

/// Screen readers name a combo box by its label only, not by the check box that is before it.
void nameLike(QComboBox* comboBox, const QCheckBox* checkBox)
{
    QLabel* label = new QLabel(checkBox->text(), comboBox->parentWidget());
    label->setBuddy(comboBox);
    label->hide();
}

} // namespace

RecordingTransponderCustomSettingsDialog::RecordingTransponderCustomSettingsDialog(const QString& nodeId,
                                                                                   QWidget* parent)
    : QDialog(parent, dialogFlags(false))
    , m_ui(new Ui::RecordingTransponderCustomSettingsDialog)
    , m_nodeId(nodeId)
{
    m_ui->setupUi(this);
    m_ui->qualityComboBox->addItems(NodeDBUtils::sm_Qualities);
    m_ui->framerateComboBox->addItems(NodeDBUtils::sm_Framerates);
    m_ui->resolutionComboBox->addItems(NodeDBUtils::sm_Resolutions);
    m_ui->resolutionComboBox->addItem(NodeDBUtils::sm_ResCustom);
    nameLike(m_ui->qualityComboBox, m_ui->qualityCustomCheckBox);
    nameLike(m_ui->resolutionComboBox, m_ui->resolutionCustomCheckBox);

    const struct
    {
        QCheckBox* custom;
        const char* useDefault;
    } groups[] = {{m_ui->connectionDataCustomCheckBox, "RecordingTransponderUseDefault"},
                  {m_ui->framerateCustomCheckBox, "RecordingTransponderFramerateUseDefault"},
                  {m_ui->qualityCustomCheckBox, "RecordingTransponderQualityUseDefault"},
                  {m_ui->resolutionCustomCheckBox, "RecordingTransponderResolutionUseDefault"},
                  {m_ui->soundCustomCheckBox, "RecordingTransponderSoundUseDefault"}};
    const kom::smart<const Node> node = NodeDB::getDB()->node(m_nodeId);
    for (const auto& group : groups) {
        if (!node.null())
            group.custom->setChecked(!node->boolProperty(latin1(group.useDefault), false));
    }
    checkUI();
    readFromNode();
    resize(sizeHint());
    m_ui->buttonBox->button(QDialogButtonBox::Ok)->setDefault(true);
    m_ui->buttonBox->button(QDialogButtonBox::Ok)->setAutoDefault(true);

    ko::connect(m_ui->buttonBox, SIGNAL(accepted()), this, SLOT(ok()));
    const QAbstractButton* const switches[] = {
        m_ui->connectionDataCustomCheckBox,     m_ui->connectionDataRadioRemotePreview,
        m_ui->connectionDataRadioCameraPreview, m_ui->connectionDataRadioEventStreamer,
        m_ui->framerateCustomCheckBox,          m_ui->qualityCustomCheckBox,
        m_ui->resolutionCustomCheckBox,         m_ui->soundCustomCheckBox};
    for (const QAbstractButton* button : switches)
        ko::connect(button, SIGNAL(clicked(bool)), this, SLOT(checkUI()));
    ko::connect(m_ui->resolutionComboBox, KO_SIGNAL_CURRENT_TEXT_CHANGED, this,
                SLOT(changeResolution(QString)));
    for (const QLineEdit* field : {m_ui->resolutionWidthLineEdit, m_ui->resolutionHeightLineEdit})
        ko::connect(field, SIGNAL(textChanged(QString)), this, SLOT(changeImageSize(QString)));
}

RecordingTransponderCustomSettingsDialog::~RecordingTransponderCustomSettingsDialog() = default;

void RecordingTransponderCustomSettingsDialog::checkUI()
{
    const bool connection = m_ui->connectionDataCustomCheckBox->isChecked();
    enable({m_ui->connectionDataRadioRemotePreview, m_ui->connectionDataRadioCameraPreview}, connection);
    m_ui->connectionDataRadioEventStreamer->setEnabled(false);
    enable({m_ui->connectionDataAddressLabel, m_ui->connectionDataAddressLineEdit,
            m_ui->connectionDataPortLabel, m_ui->connectionDataPortLineEdit, m_ui->connectionDataSslCheckBox,
            m_ui->connectionDataUserLabel, m_ui->connectionDataUserLineEdit,
            m_ui->connectionDataPasswordLabel, m_ui->connectionDataPasswordLineEdit},
           connection && m_ui->connectionDataRadioRemotePreview->isChecked());
    enable({m_ui->framerateComboBox, m_ui->framerateUnitLabel}, m_ui->framerateCustomCheckBox->isChecked());
    m_ui->qualityComboBox->setEnabled(m_ui->qualityCustomCheckBox->isChecked());
    enable({m_ui->resolutionComboBox, m_ui->resolutionWidthLabel, m_ui->resolutionWidthLineEdit,
            m_ui->resolutionHeightLabel, m_ui->resolutionHeightLineEdit},
           m_ui->resolutionCustomCheckBox->isChecked());
    m_ui->soundCheckBox->setEnabled(m_ui->soundCustomCheckBox->isChecked());
}

void RecordingTransponderCustomSettingsDialog::readFromNode()
{
    const kom::smart<const Node> node = NodeDB::getDB()->node(m_nodeId);
    if (node.null())
        return;
    const auto text = [&node](const char* name) { return node->stringProperty(latin1(name), QString()); };
    const auto number = [&node](const char* name) { return node->intProperty(latin1(name), 0); };

    const int mode = number("RecordingTransponderPreviewMode");
    m_ui->connectionDataRadioCameraPreview->setChecked(mode == CameraPreview);
    m_ui->connectionDataRadioEventStreamer->setChecked(mode == EventStreamer);
    m_ui->connectionDataRadioRemotePreview->setChecked(mode == RemotePreview);
    m_ui->connectionDataAddressLineEdit->setText(text("RecordingTransponderIP"));
    m_ui->connectionDataUserLineEdit->setText(text("RecordingTransponderUser"));
    m_ui->connectionDataPasswordLineEdit->setText(text("RecordingTransponderPassword"));
    m_ui->connectionDataPortLineEdit->setText(QString::number(number("RecordingTransponderPort")));
    m_ui->connectionDataSslCheckBox->setChecked(node->boolProperty(latin1("RecordingTransponderSSL"), false));

    select(m_ui->framerateComboBox, NodeDBUtils::FramerateToString(
                                        node->floatProperty(latin1("RecordingTransponderFramerate"), 0.0f)));
    select(m_ui->qualityComboBox, NodeDBUtils::QualityToString(number("RecordingTransponderQuality")));
    const int width = number("RecordingTransponderResolutionX");
    const int height = number("RecordingTransponderResolutionY");
    m_ui->resolutionWidthLineEdit->setText(QString::number(width));
    m_ui->resolutionHeightLineEdit->setText(QString::number(height));
    m_ui->resolutionComboBox->setCurrentIndex(m_ui->resolutionComboBox->count() - 1);
    select(m_ui->resolutionComboBox, NodeDBUtils::ResolutionToString(width, height));
    m_ui->soundCheckBox->setChecked(node->boolProperty(latin1("RecordingTransponderSound"), false));
}

void RecordingTransponderCustomSettingsDialog::changeResolution(const QString& text)
{
    int width = -1;
    int height = -1;
    NodeDBUtils::StringToResolution(text, width, height);
    if (width == -1 || height == -1)
        return;
    m_ui->resolutionWidthLineEdit->setText(QString::number(width));
    m_ui->resolutionHeightLineEdit->setText(QString::number(height));
}

void RecordingTransponderCustomSettingsDialog::changeImageSize(const QString&)
{
    const QString text = NodeDBUtils::ResolutionToString(m_ui->resolutionWidthLineEdit->text().toInt(),
                                                         m_ui->resolutionHeightLineEdit->text().toInt());
    if (text.isEmpty())
        m_ui->resolutionComboBox->setCurrentIndex(m_ui->resolutionComboBox->count() - 1);
    else
        select(m_ui->resolutionComboBox, text);
}

void RecordingTransponderCustomSettingsDialog::ok()
{
    Node* node = NodeDB::getDB()->beginUpdateNode(m_nodeId, -1);
    if (node) {
        writeConnection(*node);
        writePicture(*node);
    }
    NodeDB::getDB()->endUpdateNode(node);
    accept();
}

void RecordingTransponderCustomSettingsDialog::writeConnection(Node& node) const
{
    const bool custom = m_ui->connectionDataCustomCheckBox->isChecked();
    node.setBoolProperty(latin1("RecordingTransponderUseDefault"), !custom);
    if (!custom)
        return;
    int mode = CameraPreview;
    if (m_ui->connectionDataRadioEventStreamer->isChecked())
        mode = EventStreamer;
    else if (m_ui->connectionDataRadioRemotePreview->isChecked())
        mode = RemotePreview;
    node.setIntProperty(latin1("RecordingTransponderPreviewMode"), mode);
    node.setStringProperty(latin1("RecordingTransponderIP"), m_ui->connectionDataAddressLineEdit->text());
    node.setIntProperty(latin1("RecordingTransponderPort"), m_ui->connectionDataPortLineEdit->text().toInt());
    node.setBoolProperty(latin1("RecordingTransponderSSL"), m_ui->connectionDataSslCheckBox->isChecked());
    node.setStringProperty(latin1("RecordingTransponderUser"), m_ui->connectionDataUserLineEdit->text());
    node.setStringProperty(latin1("RecordingTransponderPassword"),
                           m_ui->connectionDataPasswordLineEdit->text());
}

void RecordingTransponderCustomSettingsDialog::writePicture(Node& node) const
{
    const bool framerate = m_ui->framerateCustomCheckBox->isChecked();
    node.setBoolProperty(latin1("RecordingTransponderFramerateUseDefault"), !framerate);
    if (framerate)
        node.setFloatProperty(latin1("RecordingTransponderFramerate"),
                              NodeDBUtils::StringToFramerate(m_ui->framerateComboBox->currentText()));
    const bool quality = m_ui->qualityCustomCheckBox->isChecked();
    node.setBoolProperty(latin1("RecordingTransponderQualityUseDefault"), !quality);
    if (quality)
        node.setIntProperty(latin1("RecordingTransponderQuality"),
                            NodeDBUtils::StringToQuality(m_ui->qualityComboBox->currentText()));
    const bool resolution = m_ui->resolutionCustomCheckBox->isChecked();
    node.setBoolProperty(latin1("RecordingTransponderResolutionUseDefault"), !resolution);
    if (resolution) {
        node.setIntProperty(latin1("RecordingTransponderResolutionX"),
                            m_ui->resolutionWidthLineEdit->text().toInt());
        node.setIntProperty(latin1("RecordingTransponderResolutionY"),
                            m_ui->resolutionHeightLineEdit->text().toInt());
    }
    const bool sound = m_ui->soundCustomCheckBox->isChecked();
    node.setBoolProperty(latin1("RecordingTransponderSoundUseDefault"), !sound);
    if (sound)
        node.setBoolProperty(latin1("RecordingTransponderSound"), m_ui->soundCheckBox->isChecked());
}

} // namespace ko
