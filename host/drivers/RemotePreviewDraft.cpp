#include "drivers/RemotePreviewDraft.h"

#include "dialogs/RecordingFolderAssignmentDialog.h"
#include "drivers/HostHint.h"
#include "drivers/NodeTypes.h"
#include "ko/Node.h"
#include "ko/NodeDB.h"

#include <QCheckBox>

namespace ko {

namespace {

QString previewOf(const NodeID& camera)
{
    return NodeDB::getDB()->relatedNodes(camera, RecordingTransponderRelation).value(0);
}

/// Identifier of the new node.
NodeID add(const NodeData& data)
{
    PlainHint hint(data.type);
    hint.setName(data.name);
    for (const PropertyList::Entry& entry : data.properties)
        hint.addProperty(*PropertyList::toProperty(entry.name, entry.value));
    NodeID id;
    hint.context = &id;
    NodeDB* db = NodeDB::getDB();
    const auto note = [db, made = &id](const NodeID& inserted) {
        const auto node = db->node(inserted);
        if (!node.null() && node->hasCreationContext() && node->creationContext() == made)
            *made = inserted;
    };
    const auto connection = QObject::connect(db, &NodeDB::nodeInserted, db, note);
    db->newNodeHint(hint);
    QObject::disconnect(connection);
    return id;
}

} // namespace

RemotePreviewDraft::RemotePreviewDraft(const NodeID& camera, RecordingFolderAssignmentDialog* dialog)
    : QObject(dialog)
    , m_camera(camera)
{
    const auto* box = dialog->findChild<QCheckBox*>(QStringLiteral("recordingTransponderCheckBox"));
    connect(box, &QCheckBox::toggled, this, [this](bool checked) {
        if (checked)
            make();
    });
    connect(dialog, &QDialog::finished, this, &RemotePreviewDraft::closed);
    if (box->isChecked())
        make();
}

void RemotePreviewDraft::make()
{
    const kom::smart<const Node> camera = NodeDB::getDB()->node(m_camera);
    if (camera.null() || !previewOf(m_camera).isEmpty())
        return;
    if (auto* grouping = dynamic_cast<ChangeGrouping*>(NodeDB::getDB()))
        m_scope.emplace(*grouping, Cause::now(Purpose::Recording), ScopeStoring::Meanwhile);
    NodeData data;
    data.name = camera->name();
    m_made = add(NodeTypes::remotePreviewOf(data, NodeDB::getDB()->defaultRecordingTransponderIP()));
    NodeDB::getDB()->addNodeRelation(m_camera, m_made, RecordingTransponderRelation);
}

void RemotePreviewDraft::closed()
{
    const kom::smart<const Node> camera = NodeDB::getDB()->node(m_camera);
    const bool isUsed = !camera.null() && camera->boolProperty(PropertyKeys::UseRecordingTransponder, false);
    if (!m_made.isEmpty() && !isUsed)
        NodeDB::getDB()->removeNode(m_made);
    m_scope.reset();
}

} // namespace ko
