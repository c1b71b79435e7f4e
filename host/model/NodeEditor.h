#ifndef KO_NODEEDITOR_H
#define KO_NODEEDITOR_H

#include <QMetaType>
#include <QString>
#include <QVector>

namespace ko {

/// Somebody at another desk who has a node in an editor, in the words of that desk.
struct NodeEditor
{
    QString node; ///< its identifier
    QString user;
    QString station;

    friend bool operator==(const NodeEditor& a, const NodeEditor& b)
    {
        return a.node == b.node && a.user == b.user && a.station == b.station;
    }
};

} // namespace ko

Q_DECLARE_METATYPE(QVector<ko::NodeEditor>)

#endif
