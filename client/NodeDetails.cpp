#include "NodeDetails.h"

#include "LastChangeColumn.h"
#include "NodeListModel.h"
#include "audit/ChangeSetTitle.h"
#include "database/HostNodeDB.h"
#include "database/StoredHistory.h"
#include "ko/Node.h"
#include "kogen/PropertySet.h"

#include <algorithm>
#include <limits>

namespace ko {

NodeDetails::NodeDetails(HostNodeDB& db, const NodeListModel& model)
    : m_db(db)
    , m_model(model)
{
}

QVector<NodeDetails::Line> NodeDetails::of(const QStringList& ids) const
{
    QVector<Line> lines;
    const QStringList compared = ids.mid(0, Compared);
    m_db.readAhead(compared);
    const ListColumns::Texts lastChanges = lastChangesOf(compared);
    for (int column = 0; column < m_model.columnCount() && !compared.isEmpty(); ++column) {
        const auto value = [&](const QString& id) {
            return m_model.columns().key(column) == ListColumns::LastChange ? lastChanges.value(id)
                                                                            : valueOf(id, column);
        };
        const QString first = value(compared.first());
        const bool isShared = std::all_of(compared.begin() + 1, compared.end(),
                                          [&](const QString& id) { return value(id) == first; });
        if (!isShared || !first.isEmpty())
            lines.append({m_model.columns().title(column), isShared ? first : QString()});
    }
    return lines;
}

QString NodeDetails::valueOf(const QString& id, int column) const
{
    const QString key = m_model.columns().key(column);
    if (key.isEmpty())
        return m_model.columns().text(m_db.summary(id), column);
    const kom::smart<const Node> node = m_db.node(id);
    if (node.null())
        return QString();
    const auto property = node->properties()[key];
    return property.null() ? QString() : m_model.columns().shown(column, property->value());
}

/// Of one node also what was done to it.
ListColumns::Texts NodeDetails::lastChangesOf(const QStringList& ids) const
{
    ListColumns::Texts texts;
    const QVector<LastChange> changes = m_db.history().lastChanges(ids);
    for (const LastChange& change : changes)
        texts.insert(change.node, LastChangeColumn::text(change));
    if (ids.size() != 1 || texts.isEmpty())
        return texts;
    HistoryFilter filter;
    filter.nodes = ids;
    const HistoryPage page = m_db.history().page(filter, std::numeric_limits<qint64>::max(), 1);
    if (!page.rows.isEmpty())
        texts[ids.first()] += QLatin1Char('\n') + ChangeSetTitle::of(page.rows.first());
    return texts;
}

} // namespace ko
