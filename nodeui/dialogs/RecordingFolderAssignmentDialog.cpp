#include "dialogs/RecordingFolderAssignmentDialog.h"

#include "dialogs/EditNodeDialog.h"
#include "dialogs/RecordingFolderTable.h"
#include "dialogs/RecordingTransponderCustomSettingsDialog.h"
#include "ko/Node.h"
#include "ko/NodeDB.h"
#include "ko/NodeHint.h"
#include "ko/PropertyKeys.h"
#include "ko/connect.h"
#include "utils/FileDialogs.h"
#include "utils/NodeDBUtils.h"
#include "utils/Retranslation.h"
#include "utils/WindowTitle.h"

#include "ui_RecordingFolderAssignmentDialog.h"

#include <QMessageBox>

namespace ko {

namespace {

const int noLimit = 16777215; ///< of a widget's height

QString firstRelated(const QString& cameraId, ENodeRelationType type)
{
    return NodeDB::getDB()->relatedNodes(cameraId, type).value(0);
}

} // namespace

RecordingFolderAssignmentDialog::RecordingFolderAssignmentDialog(const QString& cameraId, QWidget* parent)
    : QDialog(parent)
    , m_ui(new Ui::RecordingFolderAssignmentDialog)
    , m_cameraId(cameraId)
{
    m_ui->setupUi(this);
    describePlainly(this);
    onLanguageChange(this, [this] { retranslate(); });
    m_table.reset(new RecordingFolderTable(m_ui->relatedNodesWidget));
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    const kom::smart<const Node> camera = NodeDB::getDB()->node(m_cameraId);
    if (!camera.null())
        showUsage(camera->intProperty(PropertyKeys::RecordingStorageUsage, ViaCamera));
    showNames();
    showCameraType();

    m_ui->recordingFoldersGroupBox->hide();
    m_table->fill(m_cameraId);

    measure();
    setFixedHeight(m_collapsedHeight);
    resize(sizeHint().width(), m_collapsedHeight); // the group box may be narrower than its texts
    connectAll();
}

RecordingFolderAssignmentDialog::~RecordingFolderAssignmentDialog() = default;

/// The height without the table.
void RecordingFolderAssignmentDialog::measure()
{
    const QMargins margins = layout()->contentsMargins();
    const int content = margins.top() + m_ui->groupBox->sizeHint().height() +
                        m_ui->buttonBox->sizeHint().height() + margins.bottom();
    // layout()->spacing() is -1 in a style that has another one for each pair of widgets.
    const int spacing = layout()->sizeHint().height() - m_ui->verticalSpacer_3->sizeHint().height() - content;
    m_collapsedHeight = content + 2 * spacing;
}

bool RecordingFolderAssignmentDialog::isIpCamera() const
{
    const kom::smart<const Node> camera = NodeDB::getDB()->node(m_cameraId);
    return !camera.null() && camera->intProperty(PropertyKeys::NodeType, 0) == IPDeviceType;
}

void RecordingFolderAssignmentDialog::showNames()
{
    const kom::smart<const Node> camera = NodeDB::getDB()->node(m_cameraId);
    if (!camera.null())
        setWindowTitle(tr("Access Recordings of %1").arg(inWindowTitle(calledInTitles(*camera))));
    if (!isIpCamera()) // only IP cameras serve recordings themselves
        m_ui->viaCameraRadioButton->setText(tr("No recording folder"));
}

void RecordingFolderAssignmentDialog::retranslate()
{
    retranslateForm(*m_ui, this);
    showNames();
    const bool isCollapsed = m_ui->recordingFoldersGroupBox->isHidden();
    m_ui->moreButton->setText(isCollapsed ? tr("More...") : tr("Less..."));
    measure();
    if (isCollapsed)
        setFixedHeight(m_collapsedHeight);
    resize(sizeHint().expandedTo(size()).width(),
           height()); // a layout does not widen a dialog of a given height
}

void RecordingFolderAssignmentDialog::connectAll()
{
    const struct
    {
        const QObject* sender;
        const char* signal;
        const char* slot;
    } connections[] = {
        {m_ui->addButton, SIGNAL(clicked()), SLOT(addRecordingFolderNode())},
        {m_ui->removeButton, SIGNAL(clicked()), SLOT(removeRecordingFolderNode())},
        {m_ui->editButton, SIGNAL(clicked()), SLOT(changeRecordingFolderNode())},
        {m_ui->applyButton, SIGNAL(clicked()), SLOT(applySelection())},
        {m_ui->moreButton, SIGNAL(clicked()), SLOT(expandDialog())},
        {m_ui->recordingTransponderPushButton, SIGNAL(clicked()), SLOT(showRecordingTransponderDialog())},
        {m_ui->viaCameraRadioButton, SIGNAL(clicked()), SLOT(toggleMoreButton())},
        {m_ui->globalPathRadioButton, SIGNAL(clicked()), SLOT(toggleMoreButton())},
        {m_ui->cameraFileserverPathRadioButton, SIGNAL(clicked()), SLOT(toggleMoreButton())},
        {m_ui->recordingTransponderCheckBox, SIGNAL(stateChanged(int)),
         SLOT(toggleRecordingTransponderSettings(int))},
        {m_ui->fileServerPathLineEdit, SIGNAL(editingFinished()), SLOT(removeFolderSelection())},
        {NodeDB::getDB(), SIGNAL(nodeInserted(ko::NodeID)), SLOT(addNodeToTableWidget(ko::NodeID))},
        {NodeDB::getDB(), SIGNAL(nodeRemoved(ko::NodeID)), SLOT(removeNodeFromTableWidget(ko::NodeID))},
        {NodeDB::getDB(), SIGNAL(nodeUpdated(ko::NodeID)), SLOT(updateNodeInTableWidget(ko::NodeID))},
    };
    for (const auto& connection : connections)
        ko::connect(connection.sender, connection.signal, this, connection.slot);
}

void RecordingFolderAssignmentDialog::showUsage(int usage)
{
    switch (usage) {
    case ViaCamera:
        m_ui->viaCameraRadioButton->setChecked(true);
        m_ui->moreButton->setEnabled(false);
        break;
    case DefaultPathByTransponder:
        rewriteUsage(DefaultPath);
        m_ui->recordingTransponderCheckBox->setChecked(true);
        showUsage(DefaultPath);
        break;
    case DefaultPath:
        m_ui->globalPathRadioButton->setChecked(true);
        m_ui->moreButton->setEnabled(false);
        break;
    case OwnFolderByTransponder:
        m_ui->recordingTransponderCheckBox->setChecked(true);
        rewriteUsage(OwnFolder);
        showUsage(OwnFolder);
        break;
    case OwnFolder:
        m_ui->cameraFileserverPathRadioButton->setChecked(true);
        m_ui->moreButton->setEnabled(true);
        showFirstFolder();
        break;
    default:
        break;
    }
}

void RecordingFolderAssignmentDialog::rewriteUsage(int usage)
{
    Node* camera = NodeDB::getDB()->beginUpdateNode(m_cameraId, -1);
    if (camera) {
        camera->setBoolProperty(PropertyKeys::UseRecordingTransponder, true);
        camera->setIntProperty(PropertyKeys::RecordingStorageUsage, usage);
    }
    NodeDB::getDB()->endUpdateNode(camera);
}

void RecordingFolderAssignmentDialog::showFirstFolder()
{
    const QString id = firstRelated(m_cameraId, RecordingFolderRelation);
    const kom::smart<const Node> node = NodeDB::getDB()->node(id);
    if (node.null())
        return;
    m_path = node->stringProperty(PropertyKeys::Path, QString());
    m_ui->fileServerPathLineEdit->setText(m_path);
    m_folderId = id;
}

void RecordingFolderAssignmentDialog::showCameraType()
{
    const kom::smart<const Node> camera = NodeDB::getDB()->node(m_cameraId);
    if (!isIpCamera()) {
        m_ui->globalPathRadioButton->setEnabled(false);
        m_ui->recordingTransponderCheckBox->setChecked(false);
    } else {
        m_ui->recordingTransponderCheckBox->setChecked(
            camera->boolProperty(PropertyKeys::UseRecordingTransponder, false));
    }
    m_ui->recordingTransponderPushButton->setEnabled(m_ui->recordingTransponderCheckBox->isChecked());
}

void RecordingFolderAssignmentDialog::addNodeToTableWidget(ko::NodeID id)
{
    m_table->add(id);
}

void RecordingFolderAssignmentDialog::updateNodeInTableWidget(ko::NodeID id)
{
    m_table->update(id);
}

void RecordingFolderAssignmentDialog::removeNodeFromTableWidget(ko::NodeID id)
{
    m_table->remove(id);
}

QString RecordingFolderAssignmentDialog::selectedNodeOrComplain()
{
    QString id = m_table->selected();
    if (id.isEmpty())
        QMessageBox::information(this, tr("No entry selected"), tr("Please select an entry."));
    return id;
}

void RecordingFolderAssignmentDialog::collapse()
{
    m_ui->recordingFoldersGroupBox->hide();
    m_ui->moreButton->setText(tr("More..."));
    setFixedHeight(m_collapsedHeight);
}

void RecordingFolderAssignmentDialog::expandDialog()
{
    if (!m_ui->recordingFoldersGroupBox->isHidden()) {
        collapse();
        return;
    }
    setMaximumHeight(noLimit);
    m_ui->recordingFoldersGroupBox->show();
    m_ui->moreButton->setText(tr("Less..."));
    resize(width(), sizeHint().height());
}

void RecordingFolderAssignmentDialog::toggleMoreButton()
{
    const bool ownFolder = m_ui->cameraFileserverPathRadioButton->isChecked();
    m_ui->moreButton->setEnabled(ownFolder);
    if (ownFolder)
        return;
    collapse();
    resize(width(), m_collapsedHeight);
}

void RecordingFolderAssignmentDialog::toggleRecordingTransponderSettings(int state)
{
    m_ui->recordingTransponderPushButton->setEnabled(state == Qt::Checked);
}

void RecordingFolderAssignmentDialog::removeFolderSelection()
{
    const QString path = m_ui->fileServerPathLineEdit->text();
    if (path == m_path)
        return;
    m_folderId.clear();
    m_path = path;
}

void RecordingFolderAssignmentDialog::applySelection()
{
    const QString id = selectedNodeOrComplain();
    if (id.isEmpty())
        return;
    const kom::smart<const Node> node = NodeDB::getDB()->node(id);
    m_path = node.null() ? QString() : node->stringProperty(PropertyKeys::Path, QString());
    m_ui->fileServerPathLineEdit->setText(m_path);
    m_folderId = id;
    expandDialog(); // the table is shown, so it goes
}

void RecordingFolderAssignmentDialog::addRecordingFolderNode()
{
    const QString directory = FileDialogs::existingFolder(this, tr("Select path of recording folder"));
    if (directory.isEmpty())
        return;
    const kom::smart<NodeHint> hint = NodeDBUtils::recordingFolderHint(directory, false, QString());
    if (hint.null()) {
        QMessageBox::critical(this, tr("Critical error"),
                              tr("Node driver (RecordingFolderNode) is missing."));
        return;
    }
    NodeDB::getDB()->newNodeHint(*hint);
}

void RecordingFolderAssignmentDialog::changeRecordingFolderNode()
{
    const QString id = selectedNodeOrComplain();
    if (id.isEmpty())
        return;
    EditNodeDialog dialog(id, this, false, NodeDialog::FromList, nullptr);
    dialog.exec();
}

void RecordingFolderAssignmentDialog::removeRecordingFolderNode()
{
    const QString id = m_table->selected();
    const kom::smart<const Node> node = NodeDB::getDB()->node(id);
    if (node.null())
        return;
    if (node->type == InternalRecorderType) {
        QMessageBox::information(this, tr("Invalid action"), tr("You cannot remove the internal recorder."));
        return;
    }
    const QString question =
        tr("You are going to remove a node.\nThis action is not reversible.\nContinue anyway?");
    if (QMessageBox::question(this, tr("Remove node"), question, QMessageBox::Ok | QMessageBox::Cancel) ==
        QMessageBox::Ok)
        NodeDB::getDB()->removeNode(id);
}

void RecordingFolderAssignmentDialog::showRecordingTransponderDialog()
{
    const QString id = firstRelated(m_cameraId, RecordingTransponderRelation);
    if (id.isEmpty())
        return;
    RecordingTransponderCustomSettingsDialog dialog(id, this);
    dialog.exec();
}

bool RecordingFolderAssignmentDialog::mayUseDefaultPath()
{
    if (NodeDB::getDB()->globalRecordingFolderPath().isEmpty()) {
        QMessageBox::warning(this, tr("Default file server path not set"),
                             tr("Please define the default file server path before setting this option."));
        return false;
    }
    const kom::smart<const Node> camera = NodeDB::getDB()->node(m_cameraId);
    if (!camera.null() && camera->stringProperty(PropertyKeys::FactoryIP, QString()).isEmpty()) {
        QMessageBox::warning(this, tr("Factory extension unknown"),
                             tr("You cannot use this option until the factory extension is known."));
        return false;
    }
    return true;
}

void RecordingFolderAssignmentDialog::accept()
{
    int usage = ViaCamera;
    QString user;
    QString password;
    if (m_ui->globalPathRadioButton->isChecked()) {
        if (!mayUseDefaultPath())
            return;
        usage = DefaultPath;
    } else if (m_ui->cameraFileserverPathRadioButton->isChecked()) {
        if (m_folderId.isEmpty() && m_path.isEmpty()) {
            QMessageBox::warning(this, tr("No recording folder assigned"),
                                 tr("Please assign a recording folder to the camera."));
            return;
        }
        const kom::smart<const Node> node = NodeDB::getDB()->node(m_folderId);
        if (!node.null()) {
            user = node->stringProperty(PropertyKeys::User, QString());
            password = node->stringProperty(PropertyKeys::Password, QString());
        }
        usage = OwnFolder;
    }
    NodeDBUtils::configurePlayerSource(m_cameraId, usage, m_ui->recordingTransponderCheckBox->isChecked(),
                                       m_folderId, m_path, user, password);
    QDialog::accept();
}

void RecordingFolderAssignmentDialog::resizeEvent(QResizeEvent* event)
{
    const QTableWidget* table = m_ui->relatedNodesWidget;
    m_table->setColumnWidths(table->viewport()->width() - table->verticalHeader()->width());
    QDialog::resizeEvent(event);
}

} // namespace ko
