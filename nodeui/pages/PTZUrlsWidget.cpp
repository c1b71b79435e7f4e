#include "pages/PTZUrlsWidget.h"

#include "ko/Node.h"
#include "ko/NodeDB.h"

#include "ui_PTZUrlsWidget.h"

namespace ko {

namespace {

struct Url
{
    const char* key;
    QLineEdit* Ui::PTZUrlsWidget::*lineEdit;
};

// In the order in which they are written. "ZommIn" is how databases spell it.
const Url urls[] = {
    {"UrlPTZStream", &Ui::PTZUrlsWidget::lineEditLiveSteam},
    {"UrlPTZStop", &Ui::PTZUrlsWidget::lineEditStop},
    {"UrlPTZUp", &Ui::PTZUrlsWidget::lineEditUp},
    {"UrlPTZDown", &Ui::PTZUrlsWidget::lineEditDown},
    {"UrlPTZLeft", &Ui::PTZUrlsWidget::lineEditLeft},
    {"UrlPTZRight", &Ui::PTZUrlsWidget::lineEditRight},
    {"UrlPTZZommIn", &Ui::PTZUrlsWidget::lineEditZoomIn},
    {"UrlPTZZoomOut", &Ui::PTZUrlsWidget::lineEditZoomOut},
};

} // namespace

PTZUrlsWidget::PTZUrlsWidget(QWidget* parent)
    : QWidget(parent)
    , m_ui(new Ui::PTZUrlsWidget)
{
    m_ui->setupUi(this);
}

PTZUrlsWidget::~PTZUrlsWidget() = default;

void PTZUrlsWidget::init(const NodeHint*) {}

void PTZUrlsWidget::init(QString nodeId)
{
    const kom::smart<const Node> node = NodeDB::getDB()->node(nodeId);
    if (node.null())
        return;
    for (const Url& url : urls) {
        const QString key = QLatin1String(url.key);
        QLineEdit* lineEdit = m_ui.data()->*url.lineEdit;
        const bool offered = node->hasProperty(key);
        lineEdit->setEnabled(offered);
        if (offered)
            lineEdit->setText(node->stringProperty(key, QString()));
    }
}

void PTZUrlsWidget::accept(Node* node)
{
    if (!node)
        return;
    for (const Url& url : urls)
        node->setStringProperty(QLatin1String(url.key), (m_ui.data()->*url.lineEdit)->text());
}

void PTZUrlsWidget::accept(NodeHint*) {}

void PTZUrlsWidget::setReadOnly(bool) {}

} // namespace ko
