#include "pages/PTZUrlsWidget.h"

#include "ko/Node.h"
#include "ko/NodeDB.h"
#include "ko/PropertyKeys.h"
#include "utils/Fields.h"
#include "utils/Retranslation.h"

#include "ui_PTZUrlsWidget.h"

namespace ko {

namespace {

struct Url
{
    QLatin1String key;
    QLineEdit* Ui::PTZUrlsWidget::*lineEdit;
};

// In the order in which they are written.
const Url urls[] = {
    {PropertyKeys::UrlPTZStream, &Ui::PTZUrlsWidget::lineEditLiveSteam},
    {PropertyKeys::UrlPTZStop, &Ui::PTZUrlsWidget::lineEditStop},
    {PropertyKeys::UrlPTZUp, &Ui::PTZUrlsWidget::lineEditUp},
    {PropertyKeys::UrlPTZDown, &Ui::PTZUrlsWidget::lineEditDown},
    {PropertyKeys::UrlPTZLeft, &Ui::PTZUrlsWidget::lineEditLeft},
    {PropertyKeys::UrlPTZRight, &Ui::PTZUrlsWidget::lineEditRight},
    {PropertyKeys::UrlPTZZommIn, &Ui::PTZUrlsWidget::lineEditZoomIn},
    {PropertyKeys::UrlPTZZoomOut, &Ui::PTZUrlsWidget::lineEditZoomOut},
};

} // namespace

PTZUrlsWidget::PTZUrlsWidget(QWidget* parent)
    : QWidget(parent)
    , m_ui(new Ui::PTZUrlsWidget)
{
    m_ui->setupUi(this);
    onLanguageChange(this, [this] { retranslateForm(*m_ui, this); });
}

PTZUrlsWidget::~PTZUrlsWidget() = default;

void PTZUrlsWidget::init(const NodeHint*) {}

void PTZUrlsWidget::init(QString nodeId)
{
    const kom::smart<const Node> node = NodeDB::getDB()->node(nodeId);
    if (node.null())
        return;
    for (const Url& url : urls) {
        QLineEdit* lineEdit = m_ui.data()->*url.lineEdit;
        lineEdit->setEnabled(true);
        loadOffered(*node, url.key, lineEdit);
    }
}

void PTZUrlsWidget::accept(Node* node)
{
    if (!node)
        return;
    for (const Url& url : urls)
        storeField(*node, url.key, m_ui.data()->*url.lineEdit);
}

void PTZUrlsWidget::accept(NodeHint*) {}

void PTZUrlsWidget::setReadOnly(bool) {}

} // namespace ko
