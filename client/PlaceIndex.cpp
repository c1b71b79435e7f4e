#include "PlaceIndex.h"

#include "Places.h"
#include "database/HostNodeDB.h"
#include "ko/Node.h"
#include "model/SearchText.h"

#include <algorithm>

namespace ko {

namespace {

/// One node costs as much as this many in a column that is read as a whole.
const int dearer = 8;

} // namespace

PlaceIndex::PlaceIndex(const HostNodeDB& db)
    : m_db(db)
{
}

void PlaceIndex::read()
{
    m_places.clear();
    m_counts.clear();
    m_db.column(Places::Location, [this](const NodeID& id, const QVariant& value) {
        put(id, Places::normalized(value.toString()));
    });
}

bool PlaceIndex::take(const QVector<NodeSummary>& changed, const QStringList& removed)
{
    if (int(changed.size()) > 100 && int(changed.size()) > m_db.summaries().size() / dearer) {
        read();
        return true;
    }
    bool isOther = false;
    for (const QString& id : removed)
        isOther |= put(id, QString());
    for (const NodeSummary& summary : changed) {
        const kom::smart<const Node> node = m_db.node(summary.id);
        const QString place =
            node.null() ? QString() : Places::normalized(node->stringProperty(Places::Location, QString()));
        isOther |= put(summary.id, place);
    }
    return isOther;
}

bool PlaceIndex::put(const NodeID& id, const QString& place)
{
    const QString before = m_places.value(id);
    if (place == before)
        return false;
    add(before, -1);
    add(place, 1);
    if (place.isEmpty())
        m_places.remove(id);
    else
        m_places.insert(id, place);
    return true;
}

void PlaceIndex::add(const QString& place, int devices)
{
    for (QString outer = place; !outer.isEmpty();
         outer.truncate(qMax(0, int(outer.lastIndexOf(QLatin1Char('/')))))) {
        int& count = m_counts[outer];
        count += devices;
        if (count == 0)
            m_counts.remove(outer);
    }
}

QStringList PlaceIndex::places() const
{
    QStringList places = m_counts.keys();
    std::sort(places.begin(), places.end(), [](const QString& a, const QString& b) {
        const QStringList as = a.split(QLatin1Char('/'));
        const QStringList bs = b.split(QLatin1Char('/'));
        return std::lexicographical_compare(
            as.begin(), as.end(), bs.begin(), bs.end(), [](const QString& x, const QString& y) {
                return std::make_pair(SearchText::sortKey(x), x) < std::make_pair(SearchText::sortKey(y), y);
            });
    });
    return places;
}

} // namespace ko
