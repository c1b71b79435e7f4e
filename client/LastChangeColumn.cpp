#include "LastChangeColumn.h"

#include "NodeListModel.h"
#include "database/HostNodeDB.h"
#include "database/StoredHistory.h"
#include "ko/OutsideText.h"

#include <QDateTime>
#include <QTimerEvent>

namespace ko {

namespace {

const int portion = 500; ///< nodes, for some milliseconds
const int delay = 50;    ///< ms, in which what is announced is stored as well

int columnOf(const ListColumns& columns)
{
    int column = NodeListModel::FirstPropertyColumn;
    while (columns.key(column) != ListColumns::LastChange)
        ++column;
    return column;
}

} // namespace

LastChangeColumn::LastChangeColumn(HostNodeDB& db, NodeListModel& model, QObject* parent)
    : QObject(parent)
    , m_db(db)
    , m_model(model)
    , m_column(columnOf(model.columns()))
{
}

QString LastChangeColumn::text(const LastChange& change)
{
    return QDateTime::fromMSecsSinceEpoch(change.time).toString(QStringLiteral("yyyy-MM-dd HH:mm")) +
           QLatin1String(", ") + OutsideText::visible(change.user);
}

void LastChangeColumn::setWanted(bool isWanted)
{
    if (isWanted == m_isWanted)
        return;
    m_isWanted = isWanted;
    m_after = 0;
    m_texts.clear();
    m_changed.clear();
    if (isWanted) {
        m_reading.start(0, this);
        return;
    }
    m_reading.stop();
    m_late.stop();
    m_model.empty(m_column);
}

void LastChangeColumn::take(const QVector<NodeSummary>& changed)
{
    if (!m_isWanted)
        return;
    for (const NodeSummary& node : changed)
        m_changed.insert(node.id);
    if (!m_changed.isEmpty())
        m_late.start(delay, this);
}

void LastChangeColumn::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == m_reading.timerId())
        readSome();
    else if (event->timerId() == m_late.timerId())
        readChanged();
    else
        QObject::timerEvent(event);
}

void LastChangeColumn::readSome()
{
    const LastChangesPart part = m_db.history().lastChanges(m_after, portion);
    for (const LastChange& change : part.changes)
        m_texts.insert(m_model.knownId(change.node), text(change));
    m_after = part.after;
    if (!part.isAtEnd)
        return;
    m_reading.stop();
    m_model.fill(m_column, m_texts);
    m_texts.clear();
}

void LastChangeColumn::readChanged()
{
    if (m_reading.isActive() || m_db.hasUnstoredChanges())
        return; // it goes on: the timer comes again
    m_late.stop();
    const QStringList ids(m_changed.begin(), m_changed.end());
    m_changed.clear();
    const QVector<LastChange> changes = m_db.history().lastChanges(ids);
    QVector<NodeSummary> shown;
    for (const LastChange& change : changes) {
        const NodeSummary node = m_db.summary(change.node);
        if (node.id.isEmpty())
            continue;
        m_model.setText(m_column, m_model.knownId(change.node), text(change));
        shown.append(node);
    }
    m_model.apply(shown, {});
}

} // namespace ko
