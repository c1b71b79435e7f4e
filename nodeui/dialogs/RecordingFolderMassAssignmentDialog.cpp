#include "dialogs/RecordingFolderMassAssignmentDialog.h"

#include "ko/Node.h"
#include "ko/NodeDB.h"
#include "ko/PropertyKeys.h"
#include "ko/QtCompat.h"
#include "ko/connect.h"
#include "utils/FileDialogs.h"
#include "utils/LongWork.h"
#include "utils/NodeDBUtils.h"
#include "utils/Retranslation.h"

#include "ui_RecordingFolderMassAssignmentDialog.h"

#include <QCoreApplication>
#include <QDir>
#include <QMessageBox>
#include <QPushButton>

namespace ko {

namespace {

const int lastNamed = 10; ///< index in the list

/// The node if it is an IP camera.
kom::smart<const Node> camera(const QString& id)
{
    const kom::smart<const Node> node = NodeDB::getDB()->node(id);
    return !node.null() && node->type == IPDeviceType ? node : kom::smart<const Node>();
}

QString folderBelow(const QString& path, const QString& extension)
{
    const QString share = QLatin1String("//");
    QString folder = QDir::cleanPath(path + QDir::separator() + extension);
    if (path.startsWith(share) && !folder.startsWith(share))
        folder.prepend(QLatin1Char('/')); // cleaned away where the system itself knows no shares
    if (folder.startsWith(share))
        folder.replace(0, share.size(), QLatin1String("\\\\"));
    return folder;
}

} // namespace

RecordingFolderMassAssignmentDialog::RecordingFolderMassAssignmentDialog(QWidget* parent,
                                                                         const QStringList& cameraIds,
                                                                         Qt::WindowFlags flags)
    : QDialog(parent, flags)
    , m_ui(new Ui::RecordingFolderMassAssignmentDialog)
    , m_cameraIds(cameraIds)
{
    m_ui->setupUi(this);
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    // Not in the form: what is made in a disabled box stays unknown to screen readers.
    m_ui->specificPathGroupBox->setEnabled(m_ui->specificFileServerPathRadioButton->isChecked());
    onLanguageChange(this, [this] {
        retranslateForm(*m_ui, this);
        showNames();
    });
    showNames();
    if (!m_cameraIds.isEmpty()) {
        const kom::smart<const Node> first = NodeDB::getDB()->node(m_cameraIds.first());
        if (!first.null()) {
            const int usage = first->intProperty(PropertyKeys::RecordingStorageUsage, ViaCamera);
            m_ui->defaultFileServerPathRadioButton->setChecked(usage == DefaultPath);
            m_ui->specificFileServerPathRadioButton->setChecked(usage == OwnFolder);
            m_ui->cameraRadioButton->setChecked(usage != DefaultPath && usage != OwnFolder);
            m_ui->recordingTransponderCheckBox->setChecked(
                first->boolProperty(PropertyKeys::UseRecordingTransponder, false));
        }
    }
    ko::connect(m_ui->browseButton, SIGNAL(clicked()), this, SLOT(browse()));
    ko::connect(m_ui->specificFileServerPathRadioButton, SIGNAL(toggled(bool)), this, SLOT(checkUI()));
    ko::connect(m_ui->pathLineEdit, SIGNAL(textChanged(QString)), this, SLOT(checkUI()));
    checkUI(); // the first camera may have a specific path, and the field begins empty
    adjustSize();
}

RecordingFolderMassAssignmentDialog::~RecordingFolderMassAssignmentDialog() = default;

void RecordingFolderMassAssignmentDialog::showNames()
{
    if (m_cameraIds.isEmpty())
        return;
    const QString text = tr("<p><b>Select how %2 should access the recordings of:</b></p><ul>%1</ul>");
    m_ui->cameraLabel->setText(
        text.arg(nodeNames(m_cameraIds), htmlEscaped(QCoreApplication::applicationName())));
}

QString RecordingFolderMassAssignmentDialog::nodeNames(const QStringList& cameraIds)
{
    QString names;
    for (int i = 0; i < cameraIds.size(); ++i) {
        const kom::smart<const Node> node =
            cameraIds.at(i).isEmpty() ? kom::smart<const Node>() : camera(cameraIds.at(i));
        if (node.null())
            continue;
        names += QLatin1String("<li>") + htmlEscaped(node->name()) + QLatin1String("</li>");
        if (i >= lastNamed) {
            names += QLatin1String("<li>...</li>");
            break;
        }
    }
    return names;
}

void RecordingFolderMassAssignmentDialog::checkUI()
{
    const bool missing =
        m_ui->specificFileServerPathRadioButton->isChecked() && m_ui->pathLineEdit->text().isEmpty();
    m_ui->buttonBox->button(QDialogButtonBox::Ok)->setEnabled(!missing);
}

void RecordingFolderMassAssignmentDialog::browse()
{
    m_ui->pathLineEdit->setText(
        FileDialogs::existingFolder(this, tr("Select File Server Directory"), m_ui->pathLineEdit->text()));
}

int RecordingFolderMassAssignmentDialog::storageUsage() const
{
    if (m_ui->cameraRadioButton->isChecked())
        return ViaCamera;
    return m_ui->defaultFileServerPathRadioButton->isChecked() ? DefaultPath : OwnFolder;
}

void RecordingFolderMassAssignmentDialog::configure(const QString& cameraId) const
{
    const kom::smart<const Node> node = camera(cameraId);
    if (node.null())
        return;
    QString folderId;
    QString path;
    const QString extension = NodeDBUtils::factoryExtension(*node);
    if (m_ui->specificFileServerPathRadioButton->isChecked() && !extension.isEmpty()) {
        folderId = NodeDB::getDB()->relatedNodes(cameraId, RecordingFolderRelation).value(0);
        path = folderBelow(m_ui->pathLineEdit->text(), extension);
    }
    NodeDBUtils::configurePlayerSource(cameraId, storageUsage(),
                                       m_ui->recordingTransponderCheckBox->isChecked(), folderId, path,
                                       m_ui->userNameLineEdit->text(), m_ui->passwordLineEdit->text());
}

void RecordingFolderMassAssignmentDialog::accept()
{
    if (m_ui->defaultFileServerPathRadioButton->isChecked() &&
        NodeDB::getDB()->globalRecordingFolderPath().isEmpty()) {
        QMessageBox::warning(this, tr("Default file server path not set"),
                             tr("Please define the default file server path before setting this option."));
        return;
    }
    LongWork work(windowTitle(), tr("Storing where the recordings are..."), int(m_cameraIds.size()), this);
    for (const QString& id : m_cameraIds) {
        if (!work.goOn())
            break;
        configure(id);
    }
    m_handled = work.done();
    QDialog::accept();
}

} // namespace ko
