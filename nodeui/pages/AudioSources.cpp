#include "pages/AudioSources.h"

#include "ko/NodeDB.h"

namespace ko {

namespace {

const int mostLookedUp = 100;

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

void AudioSources::append(QStringList ids, bool hasSelf)
{
    for (int i = qMin(int(ids.size()), mostLookedUp) - 1; i >= 0; --i) {
        if (!isThere(ids.at(i)))
            ids.removeAt(i);
    }
    const Section section = {ids, hasSelf, -1};
    beginInsertRows(QModelIndex(), m_rows, m_rows + section.rows() - 1);
    m_sections.append(section);
    m_rows += section.rows();
    endInsertRows();
}

/// Whether \a place, from 0 among the other nodes, lies after that of the node itself.
bool AudioSources::isAfterSelf(const Section& section, int place) const
{
    if (section.hasSelf && section.own < 0)
        section.own = int(section.ids.indexOf(m_self));
    return section.own >= 0 && place >= section.own;
}

int AudioSources::rowOf(const QString& id) const
{
    int before = 0;
    for (const Section& section : m_sections) {
        const int place = id == m_self ? -1 : int(section.ids.indexOf(id));
        if (id == m_self || place >= 0)
            return before + 1 + place - (place >= 0 && isAfterSelf(section, place - 1) ? 1 : 0);
        before += section.rows();
    }
    return -1;
}

QString AudioSources::idAt(int row) const
{
    for (const Section& section : m_sections) {
        if (row == 0)
            return m_self;
        if (row < section.rows())
            return section.ids.value(row - 1 + (isAfterSelf(section, row - 1) ? 1 : 0));
        row -= section.rows();
    }
    return QString();
}

void AudioSources::setSelfName(const QString& name)
{
    m_selfName = name;
    if (m_rows > 0)
        emit dataChanged(index(0), index(m_rows - 1)); // each section begins with it
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
