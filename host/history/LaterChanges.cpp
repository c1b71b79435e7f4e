#include "history/LaterChanges.h"

#include "database/StoredHistory.h"

#include <utility>

namespace ko {

LaterChanges::LaterChanges(StoredHistory& history, qint64 changeSet)
    : m_history(history)
    , m_changeSet(changeSet)
{
}

bool LaterChanges::readSome(int count)
{
    const LaterPart part = m_history.later(m_changeSet, m_after, count);
    for (const ChangeSet& set : part.sets) {
        const QVector<Alteration> alterations = Alterations::of(set);
        m_new += alterations;
        m_count += alterations.size();
        for (const Alteration& alteration : alterations)
            add(alteration);
    }
    m_after = part.after;
    m_remaining = part.remaining;
    return m_remaining > 0;
}

/// Taken back from the last to the first, a node that came or went in between stands between two changes of
/// its values; else they are one if the second found what the first had left.
void LaterChanges::add(const Alteration& alteration)
{
    const bool isValue = alteration.kind != Alteration::Node && alteration.kind != Alteration::RelationTo;
    if (alteration.kind == Alteration::Node) {
        const QStringList values = m_values.take(alteration.node);
        for (const QString& value : values)
            m_last.remove(value);
    }
    if (isValue) {
        const QString value = alteration.thing();
        const auto last = m_last.constFind(value);
        if (last != m_last.constEnd() && Alterations::isSame(m_all.at(*last).after, alteration.before)) {
            m_all[*last].after = alteration.after;
            return;
        }
        if (last == m_last.constEnd())
            m_values[alteration.node].append(value);
        m_last.insert(value, int(m_all.size()));
    }
    m_all.append(alteration);
}

QVector<Alteration> LaterChanges::takeNew()
{
    return std::exchange(m_new, {});
}

} // namespace ko
