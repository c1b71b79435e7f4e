#include "DetailsDock.h"

#include "CameraChecking.h"
#include "MainWindow.h"
#include "NodeListModel.h"
#include "NodeListView.h"
#include "PictureView.h"
#include "database/HostNodeDB.h"
#include "database/StoredHistory.h"
#include "ko/OutsideText.h"
#include "utils/Retranslation.h"

#include <QAction>
#include <QEvent>
#include <QItemSelectionModel>
#include <QMenu>
#include <QScrollBar>
#include <QTextBrowser>
#include <QVBoxLayout>

#include <algorithm>

namespace ko {

namespace {

const int delay = 60; ///< ms

/// Lines of one value stay lines; what cannot be seen in it is spelt out.
QString inHtml(const QString& text)
{
    QStringList lines = text.split(QLatin1Char('\n'));
    for (QString& line : lines)
        line = OutsideText::visible(line).toHtmlEscaped();
    return lines.join(QLatin1String("<br>"));
}

} // namespace

DetailsDock::DetailsDock(MainWindow& window, NodeListModel& model, QMenu& view)
    : QDockWidget(&window)
    , m_window(window)
    , m_details(window.database(), model)
    , m_layout(new QVBoxLayout)
    , m_text(new QTextBrowser(this))
{
    setObjectName(QStringLiteral("detailsDock"));
    setFeatures(QDockWidget::DockWidgetClosable);
    auto* content = new QWidget(this);
    content->setLayout(m_layout);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->addWidget(m_text);
    m_text->setObjectName(QStringLiteral("detailsTextBrowser"));
    m_text->setTabChangesFocus(true);
    m_text->setOpenLinks(false); // what others wrote is not a link
    setWidget(content);
    toggleViewAction()->setObjectName(QStringLiteral("actionDetails"));
    view.addAction(toggleViewAction());
    hide(); // until the window brings back how it was
    window.addDockWidget(Qt::RightDockWidgetArea, this);
    setTranslated(this, [this] {
        setWindowTitle(tr("Details"));
        toggleViewAction()->setText(tr("D&etails"));
        toggleViewAction()->setStatusTip(tr("Shows beside the list what the selected node is"));
        m_text->setAccessibleName(tr("Details"));
        later();
    });
    m_late.setSingleShot(true);
    m_late.setInterval(delay);
    connect(&m_late, &QTimer::timeout, this, &DetailsDock::refresh);
    connect(window.list().selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &DetailsDock::later);
    connect(&model, &QAbstractItemModel::modelReset, this, &DetailsDock::later);
    connect(&model, &QAbstractItemModel::dataChanged, this, &DetailsDock::later); // a check says something
    connect(&window.database().history(), &StoredHistory::stored, this, &DetailsDock::later);
    later();
}

DetailsDock::~DetailsDock() = default;

void DetailsDock::take(const QVector<NodeSummary>& changed)
{
    if (std::any_of(changed.begin(), changed.end(),
                    [this](const NodeSummary& node) { return m_shown.contains(node.id); }))
        later();
}

bool DetailsDock::event(QEvent* event)
{
    if (event->type() == QEvent::ShowToParent)
        later();
    return QDockWidget::event(event);
}

void DetailsDock::later()
{
    m_late.start();
}

void DetailsDock::refresh()
{
    if (isHidden())
        return;
    const QStringList ids = m_window.list().selectedIds();
    const bool isSame = ids == m_shown;
    m_shown = ids;
    showPicture(ids.size() == 1 ? ids.first() : QString());
    const int scrolled = m_text->verticalScrollBar()->value();
    m_text->setHtml(html(ids));
    if (isSame)
        m_text->verticalScrollBar()->setValue(scrolled);
}

/// The one that is shown stays, with the picture that it has.
void DetailsDock::showPicture(const QString& id)
{
    CameraPictures& pictures = m_window.checking().pictures();
    if (m_picture && m_picture->property("node") == id)
        return;
    m_picture.reset();
    if (id.isEmpty() || !pictures.isOf(id))
        return;
    m_picture = std::make_unique<PictureView>(pictures, id, widget());
    m_picture->setProperty("node", id);
    m_layout->insertWidget(0, m_picture.get());
}

QString DetailsDock::html(const QStringList& ids) const
{
    if (ids.isEmpty())
        return inHtml(tr("Select a node in the list to see here what it is."));
    QString html;
    if (ids.size() > 1)
        html = QStringLiteral("<p><b>%1</b></p>")
                   .arg(inHtml(tr("%n node(s) selected", nullptr, int(ids.size()))));
    if (ids.size() > NodeDetails::Compared)
        html += QStringLiteral("<p>%1</p>")
                    .arg(inHtml(tr("What the first %n of them share:", nullptr, int(NodeDetails::Compared))));
    html += QLatin1String("<table cellpadding=\"2\">");
    const QVector<NodeDetails::Line> lines = m_details.of(ids);
    for (const NodeDetails::Line& line : lines) {
        const QString value = line.value.isEmpty() ? QStringLiteral("<i>%1</i>").arg(inHtml(tr("different")))
                                                   : inHtml(line.value);
        html += QStringLiteral("<tr><td>%1&nbsp;</td><td>%2</td></tr>").arg(inHtml(line.title), value);
    }
    return html + QLatin1String("</table>");
}

} // namespace ko
