#include "ListLoading.h"

#include "NodeListModel.h"
#include "database/HostNodeDB.h"

#include <QCoreApplication>
#include <QEvent>
#include <QSettings>

#include <utility>

namespace ko {

namespace {

const char fileKey[] = "window/firstNodesOf";
const char nodesKey[] = "window/firstNodes";
const int mostFirst = 100; // rows, more than a large screen shows

bool meansTheList(QEvent::Type type)
{
    switch (type) {
    case QEvent::KeyPress:
    case QEvent::ShortcutOverride:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::TouchBegin:
    case QEvent::ContextMenu:
    case QEvent::DragEnter:
        return true;
    default:
        return false;
    }
}

} // namespace

ListLoading::ListLoading(HostNodeDB& db, NodeListModel& model, QObject* parent)
    : QObject(parent)
    , m_db(db)
    , m_model(model)
    , m_isDone(db.isLoaded())
{
    if (m_isDone) {
        m_model.setNodes(m_db.summaries());
        return;
    }
    showFirst();
    connect(&m_db, &HostNodeDB::loaded, this, &ListLoading::prepare);
    qApp->installEventFilter(this);
}

ListLoading::~ListLoading() = default;

void ListLoading::showFirst()
{
    const QSettings settings;
    if (settings.value(QLatin1String(fileKey)).toString() != m_db.fileName())
        return;
    QVector<NodeSummary> nodes;
    const QStringList ids = settings.value(QLatin1String(nodesKey)).toStringList();
    for (const QString& id : ids) {
        const NodeSummary summary = m_db.summary(id);
        if (!summary.id.isEmpty())
            nodes.append(summary);
    }
    m_model.setNodes(nodes);
}

void ListLoading::rememberFirst() const
{
    if (!m_isDone)
        return;
    QSettings settings;
    settings.setValue(QLatin1String(fileKey), m_db.fileName());
    settings.setValue(QLatin1String(nodesKey), m_model.firstIds(mostFirst));
}

void ListLoading::prepare()
{
    if (m_content.valid() || m_isDone)
        return;
    m_content = std::async(std::launch::async, [this, taken = m_db.takeLoadedSummaries()]() mutable {
        // Here it goes, too, which takes a while.
        NodeEntries::Content content = NodeEntries::contentOf(std::exchange(taken, nullptr)());
        QMetaObject::invokeMethod(this, &ListLoading::finish, Qt::QueuedConnection);
        return content;
    });
}

void ListLoading::finish()
{
    if (m_isDone)
        return;
    prepare();
    m_isDone = true;
    m_model.setContent(m_content.get());
    qApp->removeEventFilter(this);
    emit done();
}

bool ListLoading::eventFilter(QObject* object, QEvent* event)
{
    if (meansTheList(event->type()))
        finish();
    return QObject::eventFilter(object, event);
}

} // namespace ko
