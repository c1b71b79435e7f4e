#include "pages/StorageLocationWidget.h"

#include "dialogs/RecordingFolderAssignmentDialog.h"
#include "ko/Node.h"
#include "ko/NodeDB.h"
#include "ko/PropertyKeys.h"
#include "ko/connect.h"
#include "utils/Retranslation.h"

#include "ui_StorageLocationWidget.h"

namespace ko {

namespace {

/// A text of the first related node; \a otherwise if there is none.
QString textOfFirst(const QString& cameraId, ENodeRelationType type, const QString& key,
                    const QString& otherwise)
{
    const QString id = NodeDB::getDB()->relatedNodes(cameraId, type).value(0);
    const kom::smart<const Node> node = NodeDB::getDB()->node(id);
    return node.null() ? otherwise : node->stringProperty(key, QString());
}

} // namespace

StorageLocationWidget::StorageLocationWidget(QWidget* parent)
    : QWidget(parent)
    , m_ui(new Ui::StorageLocationWidget)
{
    m_ui->setupUi(this);
    onLanguageChange(this, [this] {
        retranslateForm(*m_ui, this);
        init(m_nodeId);
    });
    ko::connect(m_ui->changePushButton, SIGNAL(clicked()), this, SLOT(changeLocation()));
}

StorageLocationWidget::~StorageLocationWidget() = default;

void StorageLocationWidget::init(const NodeHint*) {}

void StorageLocationWidget::init(QString nodeId)
{
    m_nodeId = nodeId;
    const kom::smart<const Node> camera = NodeDB::getDB()->node(m_nodeId);
    if (camera.null())
        return;
    showLocation(*camera);
    if (camera->boolProperty(PropertyKeys::UseRecordingTransponder, false))
        m_ui->storageLocationLabel->setText(m_ui->storageLocationLabel->text() + QLatin1Char(' ') +
                                            tr("(KoTandem)"));
}

void StorageLocationWidget::showLocation(const Node& camera)
{
    QLabel* label = m_ui->storageLocationLabel;
    const bool isCamera = camera.intProperty(PropertyKeys::NodeType, 0) == IPDeviceType;
    const int usage = camera.intProperty(PropertyKeys::RecordingStorageUsage, ViaCamera);
    if (usage == ViaCamera)
        label->setText(isCamera ? tr("Via camera") : QString());
    else if (!isCamera || usage == DefaultPath || usage == OwnFolder)
        label->setText(textOfFirst(m_nodeId, RecordingFolderRelation, PropertyKeys::Path,
                                   isCamera ? label->text() : QString()));
    else
        label->setText(textOfFirst(m_nodeId, RecordingTransponderRelation,
                                   PropertyKeys::RecordingTransponderIP, label->text()));
}

void StorageLocationWidget::accept(Node*) {}

void StorageLocationWidget::accept(NodeHint*) {}

void StorageLocationWidget::setReadOnly(bool readOnly)
{
    m_ui->changePushButton->setEnabled(!readOnly);
}

void StorageLocationWidget::changeLocation()
{
    RecordingFolderAssignmentDialog dialog(m_nodeId, this);
    dialog.exec();
    init(m_nodeId);
}

} // namespace ko
