#ifndef KO_PROPERTYCOLUMNS_H
#define KO_PROPERTYCOLUMNS_H

#include "LastChangeColumn.h"

#include <QObject>
#include <QVector>

namespace ko {

class HostNodeDB;
class Node;
class NodeListModel;
class NodeListView;

/// Reads the texts of the list's columns of properties: of those alone that are looked at, since each takes
/// time and memory with the number of nodes.
class PropertyColumns : public QObject
{
    Q_OBJECT

public:
    /// All outlive this object.
    PropertyColumns(HostNodeDB& db, NodeListModel& model, const NodeListView& view,
                    QObject* parent = nullptr);

    /// A column is looked at while it is shown, sorted by, or named in \a search. To be called before the
    /// model is told.
    void setSearch(const QString& search);

    /// After the model's columns have their titles in another language.
    void retranslate();

    /// Before the model takes in the nodes.
    void take(const QVector<NodeSummary>& changed);

    /// Reads the columns that are looked at and are not here.
    void update();

private:
    bool isWanted(int column) const;
    QVector<int> filled() const;
    void read(int column);
    void take(const Node& node, const QVector<int>& columns);

    const HostNodeDB& m_db;
    NodeListModel& m_model;
    const NodeListView& m_view;
    LastChangeColumn m_lastChange;
    QString m_search;
};

} // namespace ko

#endif
