#include "dialogs/RecordingTransponderCustomSettingsDialog.h"

#include "ko/Node.h"
#include "ko/NodeDB.h"
#include "ko/PropertyKeys.h"
#include "ko/QtCompat.h"
#include "ko/connect.h"
#include "ko/dialogFlags.h"
#include "utils/Fields.h"
#include "utils/NodeDBUtils.h"
#include "utils/Retranslation.h"

#include "ui_RecordingTransponderCustomSettingsDialog.h"

#include <QLabel>
#include <QPushButton>

namespace ko {

namespace {

typedef Ui::RecordingTransponderCustomSettingsDialog Form;

/// Settings that are all the system's or all the camera's own, in the order in which they are written.
enum Group { Connection, Framerate, Quality, Resolution, Sound, GroupCount };

struct GroupSwitch
{
    QCheckBox* Form::*custom;
    QLatin1String useDefault;
};

const GroupSwitch groups[GroupCount] = {
    {&Form::connectionDataCustomCheckBox, PropertyKeys::RecordingTransponderUseDefault},
    {&Form::framerateCustomCheckBox, PropertyKeys::RecordingTransponderFramerateUseDefault},
    {&Form::qualityCustomCheckBox, PropertyKeys::RecordingTransponderQualityUseDefault},
    {&Form::resolutionCustomCheckBox, PropertyKeys::RecordingTransponderResolutionUseDefault},
    {&Form::soundCustomCheckBox, PropertyKeys::RecordingTransponderSoundUseDefault},
};

/// The index is the preview mode.
QRadioButton* Form::*const previewModes[] = {&Form::connectionDataRadioCameraPreview,
                                             &Form::connectionDataRadioEventStreamer,
                                             &Form::connectionDataRadioRemotePreview};

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

/// A line edit for a number.
struct NumberField
{
    QLineEdit* lineEdit;
};

void loadField(const Node& node, const QString& key, NumberField field)
{
    field.lineEdit->setText(QString::number(node.intProperty(key, 0)));
}

void storeField(Node& node, const QString& key, NumberField field)
{
    node.setIntProperty(key, field.lineEdit->text().toInt());
}

/// The fields of a group that show their property as it is.
template <class Each>
void forEachField(const Form& ui, int group, Each each)
{
    if (group == Connection) {
        each(PropertyKeys::RecordingTransponderIP, ui.connectionDataAddressLineEdit);
        each(PropertyKeys::RecordingTransponderPort, NumberField{ui.connectionDataPortLineEdit});
        each(PropertyKeys::RecordingTransponderSSL, ui.connectionDataSslCheckBox);
        each(PropertyKeys::RecordingTransponderUser, ui.connectionDataUserLineEdit);
        each(PropertyKeys::RecordingTransponderPassword, ui.connectionDataPasswordLineEdit);
    } else if (group == Resolution) {
        each(PropertyKeys::RecordingTransponderResolutionX, NumberField{ui.resolutionWidthLineEdit});
        each(PropertyKeys::RecordingTransponderResolutionY, NumberField{ui.resolutionHeightLineEdit});
    } else if (group == Sound) {
        each(PropertyKeys::RecordingTransponderSound, ui.soundCheckBox);
    }
}

/// Screen readers name a combo box by its label only, not by the check box that is before it.
void nameLike(QComboBox* comboBox, const QCheckBox* checkBox)
{
    QLabel* label = new QLabel(checkBox->text(), comboBox->parentWidget());
    label->setBuddy(comboBox);
    label->hide();
    onLanguageChange(label, [label, checkBox] { label->setText(checkBox->text()); });
}

} // namespace

RecordingTransponderCustomSettingsDialog::RecordingTransponderCustomSettingsDialog(const QString& nodeId,
                                                                                   QWidget* parent)
    : QDialog(parent, dialogFlags(false))
    , m_ui(new Ui::RecordingTransponderCustomSettingsDialog)
    , m_nodeId(nodeId)
{
    m_ui->setupUi(this);
    onLanguageChange(this, [this] { retranslateForm(*m_ui, this); });
    m_ui->qualityComboBox->addItems(NodeDBUtils::sm_Qualities);
    m_ui->framerateComboBox->addItems(NodeDBUtils::sm_Framerates);
    m_ui->resolutionComboBox->addItems(NodeDBUtils::sm_Resolutions);
    m_ui->resolutionComboBox->addItem(NodeDBUtils::sm_ResCustom);
    nameLike(m_ui->qualityComboBox, m_ui->qualityCustomCheckBox);
    nameLike(m_ui->resolutionComboBox, m_ui->resolutionCustomCheckBox);

    const kom::smart<const Node> node = NodeDB::getDB()->node(m_nodeId);
    for (const GroupSwitch& group : groups) {
        if (!node.null())
            (m_ui.data()->*group.custom)->setChecked(!node->boolProperty(group.useDefault, false));
    }
    checkUI();
    readFromNode();
    resize(sizeHint());
    m_ui->buttonBox->button(QDialogButtonBox::Ok)->setDefault(true);
    m_ui->buttonBox->button(QDialogButtonBox::Ok)->setAutoDefault(true);

    ko::connect(m_ui->buttonBox, SIGNAL(accepted()), this, SLOT(ok()));
    for (const GroupSwitch& group : groups)
        ko::connect(m_ui.data()->*group.custom, SIGNAL(clicked(bool)), this, SLOT(checkUI()));
    for (const auto& mode : previewModes)
        ko::connect(m_ui.data()->*mode, SIGNAL(clicked(bool)), this, SLOT(checkUI()));
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
    const auto number = [&node](const QString& key) { return node->intProperty(key, 0); };
    for (int mode = 0; mode < 3; ++mode)
        (m_ui.data()->*previewModes[mode])
            ->setChecked(mode == number(PropertyKeys::RecordingTransponderPreviewMode));
    for (int group = 0; group < GroupCount; ++group)
        forEachField(*m_ui, group, [&node](const QString& key, auto field) { loadField(*node, key, field); });
    select(m_ui->framerateComboBox, NodeDBUtils::FramerateToString(node->floatProperty(
                                        PropertyKeys::RecordingTransponderFramerate, 0.0f)));
    select(m_ui->qualityComboBox,
           NodeDBUtils::QualityToString(number(PropertyKeys::RecordingTransponderQuality)));
    m_ui->resolutionComboBox->setCurrentIndex(m_ui->resolutionComboBox->count() - 1);
    select(m_ui->resolutionComboBox,
           NodeDBUtils::ResolutionToString(number(PropertyKeys::RecordingTransponderResolutionX),
                                           number(PropertyKeys::RecordingTransponderResolutionY)));
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
    for (int group = 0; node && group < GroupCount; ++group) {
        const bool custom = (m_ui.data()->*groups[group].custom)->isChecked();
        node->setBoolProperty(groups[group].useDefault, !custom);
        if (custom)
            writeGroup(*node, group);
    }
    NodeDB::getDB()->endUpdateNode(node);
    accept();
}

void RecordingTransponderCustomSettingsDialog::writeGroup(Node& node, int group) const
{
    if (group == Connection) {
        int mode = 2;
        while (mode > 0 && !(m_ui.data()->*previewModes[mode])->isChecked())
            --mode;
        node.setIntProperty(PropertyKeys::RecordingTransponderPreviewMode, mode);
    } else if (group == Framerate) {
        node.setFloatProperty(PropertyKeys::RecordingTransponderFramerate,
                              NodeDBUtils::StringToFramerate(m_ui->framerateComboBox->currentText()));
    } else if (group == Quality) {
        node.setIntProperty(PropertyKeys::RecordingTransponderQuality,
                            NodeDBUtils::StringToQuality(m_ui->qualityComboBox->currentText()));
    }
    forEachField(*m_ui, group, [&node](const QString& key, auto field) { storeField(node, key, field); });
}

} // namespace ko
