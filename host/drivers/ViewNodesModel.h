#ifndef KO_VIEWNODESMODEL_H
#define KO_VIEWNODESMODEL_H

#include "ko/Types.h"

#include <QAbstractListModel>
#include <QStringList>
#include <QVector>

namespace ko {

/// Names of nodes, to be dragged from one list into another, or to another place of their own.
class ViewNodesModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role { NodeIdRole = Qt::UserRole };

    explicit ViewNodesModel(QObject* parent);

    /// In this order; one that is not there is left out.
    void setNodes(const QStringList& ids);

    /// Only those whose names or addresses hold it are there.
    void setFilter(const QString& text);

    QString idAt(int row) const { return m_rows.at(row).id; }
    QStringList idsAt(const QModelIndexList& rows) const;
    int rowOf(const QString& id) const;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    Qt::DropActions supportedDropActions() const override { return Qt::CopyAction; }
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;

signals:
    /// Into this list before \a row, which may be the number of its rows. The list is as it was.
    void dropped(const QStringList& ids, int row);

private:
    struct Row
    {
        NodeID id;
        QString name;
        QString address;
        ENodeType type;
    };

    void show();

    QVector<Row> m_all;
    QVector<Row> m_rows;
    QString m_filter;
};

} // namespace ko

#endif
