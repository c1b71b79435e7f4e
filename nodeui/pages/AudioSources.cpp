#include "pages/AudioSources.h"

#include "ko/NodeDB.h"

namespace ko {

namespace {

const int mostLookedUp = 1000;

} // namespace

AudioSources::AudioSources(const QString& self, const QString& selfName, QObject* parent)
    : QAbstractListModel(parent)
    , m_self(self)
    , m_selfName(selfName)
{
}

void AudioSources::append(QStringList ids)
{
    ids.removeOne(m_self);
    for (int i = qMin(int(ids.size()), mostLookedUp) - 1; i >= 0; --i) {
        NodeBrief brief;
        if (!NodeDB::getDB()->getBrief(ids.at(i), &brief))
            ids.removeAt(i);
    }
    ids.prepend(m_self);
    const int before = int(m_ids.size());
    beginInsertRows(QModelIndex(), before, before + int(ids.size()) - 1);
    m_ids += ids;
    endInsertRows();
}

int AudioSources::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_ids.size());
}

QVariant AudioSources::data(const QModelIndex& index, int role) const
{
    const QString id = index.isValid() ? m_ids.value(index.row()) : QString();
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
