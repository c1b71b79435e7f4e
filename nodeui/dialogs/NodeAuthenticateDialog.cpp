#include "dialogs/NodeAuthenticateDialog.h"

#include "ko/IPDeviceNode.h"
#include "ko/NodeDB.h"
#include "ko/QtCompat.h"
#include "utils/LongWork.h"
#include "utils/Retranslation.h"

#include "ui_NodeAuthenticateDialog.h"

namespace ko {

namespace {

const int lastNamed = 10; ///< index in the list

} // namespace

NodeAuthenticateDialog::NodeAuthenticateDialog(QWidget* parent, const QStringList& nodeIds,
                                               Qt::WindowFlags flags)
    : QDialog(parent, flags)
    , m_ui(new Ui::NodeAuthenticateDialog)
    , m_nodeIds(nodeIds)
{
    m_ui->setupUi(this);
    onLanguageChange(this, [this] {
        retranslateForm(*m_ui, this);
        showNames();
    });
    showNames();
    if (!m_nodeIds.isEmpty()) {
        const kom::smart<const IPDeviceNode> first = deviceNode(m_nodeIds.first());
        if (!first.null()) {
            m_ui->userNameLineEdit->setText(first->user(1));
            m_ui->passWordLineEdit->setText(first->password(1));
        }
    }
    m_ui->userNameLineEdit->selectAll();
    m_ui->userNameLineEdit->setFocus();
    adjustSize();
}

NodeAuthenticateDialog::~NodeAuthenticateDialog() = default;

void NodeAuthenticateDialog::showNames()
{
    if (m_nodeIds.isEmpty())
        return;
    QString text = m_ui->cameraLabel->text();
    const QString place = QLatin1String("%1");
    const int index = int(text.indexOf(place));
    if (index >= 0)
        text.replace(index, place.size(), nodeNames(m_nodeIds)); // a name may hold "%1" too
    m_ui->cameraLabel->setText(text);
}

QString NodeAuthenticateDialog::nodeNames(const QStringList& nodeIds)
{
    QString names;
    for (int i = 0; i < nodeIds.size(); ++i) {
        const QString& id = nodeIds.at(i);
        const kom::smart<const Node> node =
            id.isEmpty() ? kom::smart<const Node>() : NodeDB::getDB()->node(id);
        if (!node.null())
            names += tr("    - ") + htmlEscaped(node->name()) + tr("<br>");
        if (i >= lastNamed) {
            names += tr("    ...<br>");
            break;
        }
    }
    return names;
}

void NodeAuthenticateDialog::accept()
{
    NodeDB* db = NodeDB::getDB();
    LongWork work(windowTitle(), tr("Storing user name and password..."), int(m_nodeIds.size()), this);
    for (const QString& id : m_nodeIds) {
        if (!work.goOn())
            break;
        Node* node = db->beginUpdateNode(id, -1);
        if (IPDeviceNode* device = dynamic_cast<IPDeviceNode*>(node)) {
            device->setUser(m_ui->userNameLineEdit->text(), m_ui->passWordLineEdit->text());
            device->setCredentialsEntered(true);
        }
        db->endUpdateNode(node);
    }
    m_handled = work.done();
    QDialog::accept();
}

} // namespace ko
