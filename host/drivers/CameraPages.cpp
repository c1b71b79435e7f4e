#include "drivers/CameraPages.h"

#include "dialogs/RecordingFolderAssignmentDialog.h"
#include "drivers/MacGuard.h"
#include "drivers/NodeTypes.h"
#include "drivers/RemotePreviewDraft.h"
#include "drivers/StoredNode.h"
#include "ko/Node.h"
#include "ko/NodeHintIPDevice.h"
#include "utils/Fields.h"

#include <QChildEvent>
#include <QLineEdit>

namespace ko {

DevicePage::DevicePage(QWidget* parent)
    : PageOf(new InfoWidget(parent))
    , m_mac(widget()->findChild<QLineEdit*>(QStringLiteral("macLineEdit")))
{
}

/// Of a new device nothing is known of its factory address, and what is typed there would be lost.
void DevicePage::init(const NodeHint* hint)
{
    PageOf::init(hint);
    setReadOnly(false);
    setFieldReadOnly(widget()->findChild<QLineEdit*>(QStringLiteral("factoryIPLineEdit")), true);
    if (const auto* device = dynamic_cast<const NodeHintIPDevice*>(hint))
        m_mac->setText(device->macAddress.toString(true));
    new MacGuard(m_mac);
}

void DevicePage::accept(NodeHint* hint)
{
    PageOf::accept(hint);
    if (auto* device = dynamic_cast<NodeHintIPDevice*>(hint))
        device->macAddress = MACAddress(m_mac->text());
}

/// The library's page writes into nodes alone.
void UrlsPage::accept(NodeHint* hint)
{
    NodeData data;
    data.type = hint->type;
    const std::unique_ptr<Node> node = NodeTypes::createNode(data, nullptr);
    PageOf::accept(node.get());
    const PropertyList written = dynamic_cast<const StoredNode&>(*node).nodeData().properties;
    for (const PropertyList::Entry& entry : written)
        hint->addProperty(*PropertyList::toProperty(entry.name, entry.value));
}

RecordingsPage::RecordingsPage(QWidget* parent)
    : PageOf(new StorageLocationWidget(parent))
{
    widget()->installEventFilter(this);
}

void RecordingsPage::init(const QString& nodeId)
{
    m_camera = nodeId;
    PageOf::init(nodeId);
}

bool RecordingsPage::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ChildPolished) {
        QObject* child = static_cast<QChildEvent*>(event)->child();
        if (auto* dialog = qobject_cast<RecordingFolderAssignmentDialog*>(child))
            new RemotePreviewDraft(m_camera, dialog);
    }
    return QObject::eventFilter(watched, event);
}

} // namespace ko
