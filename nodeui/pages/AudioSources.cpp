#include "pages/AudioSources.h"

#include "ko/NodeDB.h"

namespace ko {

namespace {

const int mostLookedUp = 1000;

bool isThere(const QString& id)
{
    NodeBrief brief;
    return NodeDB::getDB()->getBrief(id, &brief);
}

} // namespace

AudioSources::AudioSources(const QString& self, const QString& selfName, QObject* parent)
    : QAbstractListModel(parent)
    , m_self(self)
    , m_selfName(selfName)
    , m_rows(0)
{
}

void AudioSources::append(QStringList ids)
{
    for (int i = qMin(int(ids.size()), mostLookedUp) - 1; i >= 0; --i) {
        if (!isThere(ids.at(i)))
            ids.removeAt(i);
    }
    const Section section = {ids, int(ids.indexOf(m_self))};
    const int rows = 1 + int(ids.size()) - (section.own < 0 ? 0 : 1);
    beginInsertRows(QModelIndex(), m_rows, m_rows + rows - 1);
    m_sections.append(section);
    m_rows += rows;
    endInsertRows();
}

int AudioSources::rowOf(const QString& id) const
{
    int before = 0;
    for (const Section& section : m_sections) {
        const int place = id == m_self ? -1 : int(section.ids.indexOf(id));
        const int rows = int(section.ids.size()) - (section.own < 0 ? 0 : 1);
        if (id == m_self || place >= 0)
            return before + 1 + place - (section.own >= 0 && place > section.own ? 1 : 0);
        before += 1 + rows;
    }
    return -1;
}

QString AudioSources::idAt(int row) const
{
    for (const Section& section : m_sections) {
        if (row == 0)
            return m_self;
        const int place = row - 1 + (section.own >= 0 && row > section.own ? 1 : 0);
        if (place < section.ids.size())
            return section.ids.at(place);
        row = place - int(section.ids.size());
    }
    return QString();
}

int AudioSources::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_rows;
}

QVariant AudioSources::data(const QModelIndex& index, int role) const
{
    const QString id = index.isValid() ? idAt(index.row()) : QString();
    if (role == Qt::UserRole)
        return id;
    if (role != Qt::DisplayRole && role != Qt::EditRole)
        return QVariant();
    NodeBrief brief;
    if (id != m_self)
        NodeDB::getDB()->getBrief(id, &brief);
    return id == m_self ? m_selfName : brief.name;
}

} // namespace ko
