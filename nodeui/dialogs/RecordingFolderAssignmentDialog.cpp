#include "dialogs/RecordingFolderAssignmentDialog.h"

#include "dialogs/EditNodeDialog.h"
#include "dialogs/RecordingTransponderCustomSettingsDialog.h"
#include "interfaces/INodeDriverComponent.h"
#include "ko/LogQt.h"
#include "ko/Node.h"
#include "ko/NodeDB.h"
#include "ko/NodeHint.h"
#include "ko/connect.h"
#include "kogen/Property.h"
#include "recording/KoFFSDevice.h"
#include "utils/FileDialogs.h"
#include "utils/NodeDBUtils.h"
#include "utils/WindowTitle.h"

#include "ui_RecordingFolderAssignmentDialog.h"

#include <QMessageBox>
#include <QTextDocument>

namespace ko {

namespace {

enum StorageUsage {
    ViaCamera,
    DefaultPath,
    OwnFolder,
    // Of older databases, where the remote preview server had no flag of its own.
    DefaultPathByTransponder,
    OwnFolderByTransponder
};

enum Column { NameColumn, PathColumn, IdColumn };

const int rowHeight = 20;
const int noLimit = 16777215; ///< of a widget's height
const unsigned editorFlags = 17;

QString latin1(const char* text)
{
    return QString::fromLatin1(text);
}

QString firstRelated(const QString& cameraId, ENodeRelationType type)
{
    return NodeDB::getDB()->relatedNodes(cameraId, type).value(0);
}

/// The node if it is a recording folder.
kom::smart<const Node> folder(const QString& id)
{
    const kom::smart<const Node> node = NodeDB::getDB()->node(id);
    return !node.null() && node->type == RecordingFolderType ? node : kom::smart<const Node>();
}

/// The folder if it may stand in the table: one below the default path serves its camera only.
kom::smart<const Node> listedFolder(const QString& id)
{
    const kom::smart<const Node> node = folder(id);
    const bool below = !node.null() && node->boolProperty(latin1("UseGlobalPath"), false);
    return below ? kom::smart<const Node>() : node;
}

QString pathOf(const Node& folder)
{
    return folder.stringProperty(latin1("Path"), QString());
}

/// A cell whose text is its tool tip too. Takes half the time of the toolkit's own to make and to sort.
class FolderCell : public QTableWidgetItem
{
public:
    FolderCell(const QString& text, Qt::Alignment alignment, const QIcon& icon = QIcon())
        : m_text(text)
        , m_alignment(alignment)
        , m_icon(icon)
    {
        setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    }

    QVariant data(int role) const override
    {
        switch (role) {
        case Qt::DisplayRole:
            return m_text;
        case Qt::ToolTipRole: // which would take a name with markup for rich text
            return Qt::mightBeRichText(m_text) ? Qt::convertFromPlainText(m_text) : m_text;
        case Qt::DecorationRole:
            return m_icon.isNull() ? QVariant() : QVariant(m_icon);
        case Qt::TextAlignmentRole:
            return int(m_alignment);
        default:
            return QVariant();
        }
    }

    bool operator<(const QTableWidgetItem& other) const override
    {
        return m_text < static_cast<const FolderCell&>(other).m_text; // the columns hold nothing else
    }

private:
    const QString m_text;
    const Qt::Alignment m_alignment;
    const QIcon m_icon;
};

} // namespace

RecordingFolderAssignmentDialog::RecordingFolderAssignmentDialog(const QString& cameraId, QWidget* parent)
    : QDialog(parent)
    , m_ui(new Ui::RecordingFolderAssignmentDialog)
    , m_cameraId(cameraId)
{
    m_ui->setupUi(this);
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    const kom::smart<const Node> camera = NodeDB::getDB()->node(m_cameraId);
    if (!camera.null()) {
        const QString name =
            camera->name().isEmpty() ? NodeDB::getDB()->readableNodeTypeName(camera->type) : camera->name();
        setWindowTitle(tr("Access Recordings of %1").arg(inWindowTitle(name)));
        showUsage(camera->intProperty(latin1("RecordingStorageUsage"), ViaCamera));
    }
    showCameraType();

    QTableWidget* table = m_ui->relatedNodesWidget;
    table->setColumnHidden(IdColumn, true);
    const int height = qMax(rowHeight, fontMetrics().height() + 2); // of a large font
    table->verticalHeader()->setMinimumSectionSize(height);
    table->verticalHeader()->setDefaultSectionSize(height);
    table->horizontalHeader()->setSortIndicator(NameColumn, Qt::AscendingOrder);
    for (const int column : {NameColumn, PathColumn})
        table->setColumnWidth(column, table->viewport()->width() / 2);
    m_ui->recordingFoldersGroupBox->hide();
    fillTableWidget();

    const QMargins margins = layout()->contentsMargins();
    const int content = margins.top() + m_ui->groupBox->sizeHint().height() +
                        m_ui->buttonBox->sizeHint().height() + margins.bottom();
    // layout()->spacing() is -1 in a style that has another one for each pair of widgets.
    const int spacing = layout()->sizeHint().height() - m_ui->verticalSpacer_3->sizeHint().height() - content;
    m_collapsedHeight = content + 2 * spacing;
    setFixedHeight(m_collapsedHeight);
    resize(sizeHint().width(), m_collapsedHeight); // the group box may be narrower than its texts
    connectAll();
}

RecordingFolderAssignmentDialog::~RecordingFolderAssignmentDialog() = default;

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
        camera->setBoolProperty(latin1("UseRecordingTransponder"), true);
        camera->setIntProperty(latin1("RecordingStorageUsage"), usage);
    }
    NodeDB::getDB()->endUpdateNode(camera);
}

void RecordingFolderAssignmentDialog::showFirstFolder()
{
    const QString id = firstRelated(m_cameraId, RecordingFolderRelation);
    const kom::smart<const Node> node = NodeDB::getDB()->node(id);
    if (node.null())
        return;
    m_path = pathOf(*node);
    m_ui->fileServerPathLineEdit->setText(m_path);
    m_folderId = id;
}

/// Only IP cameras serve recordings themselves.
void RecordingFolderAssignmentDialog::showCameraType()
{
    const kom::smart<const Node> camera = NodeDB::getDB()->node(m_cameraId);
    const int type = camera.null() ? 0 : camera->intProperty(latin1("NodeType"), 0);
    if (type != IPDeviceType) {
        m_ui->viaCameraRadioButton->setText(tr("No recording folder"));
        m_ui->globalPathRadioButton->setEnabled(false);
        m_ui->recordingTransponderCheckBox->setChecked(false);
    } else {
        m_ui->recordingTransponderCheckBox->setChecked(
            camera->boolProperty(latin1("UseRecordingTransponder"), false));
    }
    m_ui->recordingTransponderPushButton->setEnabled(m_ui->recordingTransponderCheckBox->isChecked());
}

void RecordingFolderAssignmentDialog::fillTableWidget()
{
    // Sorted once at the end: a table that sorts at each row takes a minute for ten thousand.
    NodeDB* db = NodeDB::getDB();
    m_ui->relatedNodesWidget->setSortingEnabled(false);
    QStringList ids(firstRelated(m_cameraId, RecordingFolderRelation));
    const QStringList folders = db->nodeIdList(RecordingFolderType);
    for (const QString& id : folders) {
        if (!db->isDestinationOfNodeRelation(id, RecordingFolderRelation))
            ids.append(id);
    }
    QList<kom::smart<const Node>> listed;
    for (const QString& id : std::as_const(ids)) {
        const kom::smart<const Node> node = listedFolder(id);
        if (!node.null())
            listed.append(node);
    }
    QTableWidget* table = m_ui->relatedNodesWidget;
    table->setRowCount(int(listed.size()));
    for (int row = 0; row < table->rowCount(); ++row)
        fillRow(row, *listed.at(row));
    table->setCurrentCell(table->rowCount() - 1, NameColumn);
    table->setSortingEnabled(true);
}

void RecordingFolderAssignmentDialog::appendRow(const Node& folder)
{
    QTableWidget* table = m_ui->relatedNodesWidget;
    const int row = table->rowCount();
    table->insertRow(row);
    fillRow(row, folder);
}

void RecordingFolderAssignmentDialog::fillRow(int row, const Node& folder)
{
    QTableWidget* table = m_ui->relatedNodesWidget;
    table->setItem(row, NameColumn,
                   new FolderCell(folder.name(), Qt::AlignLeft | Qt::AlignVCenter, folder.icon()));
    table->setItem(row, PathColumn, new FolderCell(pathOf(folder), Qt::AlignRight | Qt::AlignVCenter));
    table->setItem(row, IdColumn, new QTableWidgetItem(folder.id()));
}

void RecordingFolderAssignmentDialog::addNodeToTableWidget(ko::NodeID id)
{
    const kom::smart<const Node> node = listedFolder(id);
    if (node.null())
        return;
    QTableWidget* table = m_ui->relatedNodesWidget;
    table->setSortingEnabled(false);
    appendRow(*node);
    table->setCurrentCell(table->rowCount() - 1, NameColumn);
    table->setSortingEnabled(true);
}

void RecordingFolderAssignmentDialog::updateNodeInTableWidget(ko::NodeID id)
{
    const kom::smart<const Node> node = folder(id);
    if (node.null())
        return;
    QTableWidget* table = m_ui->relatedNodesWidget;
    for (int row = 0; row < table->rowCount(); ++row) {
        if (table->item(row, IdColumn)->text() == id) {
            // While it sorts, a row that gets its new name moves away before it gets its new path.
            table->setSortingEnabled(false);
            fillRow(row, *node);
            table->setSortingEnabled(true);
            return;
        }
    }
}

void RecordingFolderAssignmentDialog::removeNodeFromTableWidget(ko::NodeID id)
{
    QTableWidget* table = m_ui->relatedNodesWidget;
    for (int row = 0; row < table->rowCount(); ++row) {
        if (table->item(row, IdColumn)->text() == id)
            table->removeRow(row);
    }
}

QString RecordingFolderAssignmentDialog::selectedNode() const
{
    const QTableWidget* table = m_ui->relatedNodesWidget;
    int row = table->currentRow();
    if (row < 0 && table->rowCount() == 1)
        row = 0;
    return row < 0 ? QString() : table->item(row, IdColumn)->text();
}

QString RecordingFolderAssignmentDialog::selectedNodeOrComplain()
{
    QString id = selectedNode();
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
    m_path = node.null() ? QString() : pathOf(*node);
    m_ui->fileServerPathLineEdit->setText(m_path);
    m_folderId = id;
    expandDialog(); // the table is shown, so it goes
}

void RecordingFolderAssignmentDialog::addRecordingFolderNode()
{
    const QString directory = FileDialogs::existingFolder(this, tr("Select path of recording folder"));
    if (directory.isEmpty())
        return;
    const kom::smart<INodeDriverComponent> driver = NodeDB::getDB()->nodeDriver(RecordingFolderType);
    const kom::smart<NodeHint> hint =
        driver.null() ? kom::smart<NodeHint>() : driver->createNodeHint(RecordingFolderType);
    if (hint.null()) {
        LogQt::line(LogQt::Error, latin1("Node driver (RecordingFolderNode) is missing"));
        QMessageBox::critical(this, tr("Critical error"),
                              tr("Node driver (RecordingFolderNode) is missing."));
        return;
    }
    hint->setName(directory);
    hint->addProperty(kogen::StringProperty(latin1("Path"), directory));
    hint->addProperty(kogen::BoolProperty(latin1("UseGlobalPath"), false));
    const bool isVolume = !KoFFSDevice::get(directory.toStdWString()).null();
    hint->addProperty(kogen::BoolProperty(latin1("KoFFS"), isVolume));
    NodeDB::getDB()->newNodeHint(*hint);
}

void RecordingFolderAssignmentDialog::changeRecordingFolderNode()
{
    const QString id = selectedNodeOrComplain();
    if (id.isEmpty())
        return;
    EditNodeDialog dialog(id, this, false, editorFlags, nullptr);
    dialog.exec();
}

void RecordingFolderAssignmentDialog::removeRecordingFolderNode()
{
    const QString id = selectedNode();
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
    if (!camera.null() && camera->stringProperty(latin1("FactoryIP"), QString()).isEmpty()) {
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
            user = node->stringProperty(latin1("User"), QString());
            password = node->stringProperty(latin1("Password"), QString());
        }
        usage = OwnFolder;
    }
    NodeDBUtils::configurePlayerSource(m_cameraId, usage, m_ui->recordingTransponderCheckBox->isChecked(),
                                       m_folderId, m_path, user, password);
    QDialog::accept();
}

void RecordingFolderAssignmentDialog::resizeEvent(QResizeEvent* event)
{
    QTableWidget* table = m_ui->relatedNodesWidget;
    const int width = (table->viewport()->width() - table->verticalHeader()->width()) / 2;
    for (const int column : {NameColumn, PathColumn})
        table->setColumnWidth(column, width);
    QDialog::resizeEvent(event);
}

} // namespace ko
