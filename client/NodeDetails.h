#ifndef KO_NODEDETAILS_H
#define KO_NODEDETAILS_H

#include "ListColumns.h"

#include <QString>
#include <QStringList>
#include <QVector>

namespace ko {

class HostNodeDB;
class NodeListModel;

/// What there is to say of one node in a few lines, or of several together.
class NodeDetails
{
public:
    enum Limits {
        Compared = 1000 ///< how many of them at most are looked at for what they share
    };

    struct Line
    {
        QString title;
        QString value; ///< empty where several do not share it
    };

    /// Both outlive this object. The titles and words are those of the model's columns.
    NodeDetails(HostNodeDB& db, const NodeListModel& model);

    /// Without what is empty. Of nodes that are there.
    QVector<Line> of(const QStringList& ids) const;

private:
    QString valueOf(const QString& id, int column) const;
    ListColumns::Texts lastChangesOf(const QStringList& ids) const;

    HostNodeDB& m_db;
    const NodeListModel& m_model;
};

} // namespace ko

#endif
