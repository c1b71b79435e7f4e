#ifndef KO_CHECKREPORTMODEL_H
#define KO_CHECKREPORTMODEL_H

#include "CameraState.h"
#include "ko/TrContext.h"

#include "model/NodeData.h"

#include <QAbstractTableModel>
#include <QHash>

#include <functional>

namespace ko {

struct CheckedCamera
{
    QString id;
    QString name;
    QString address;
    CameraState state;
};

/// The cameras of a report, worst first; those that answer only when they are wanted.
class CheckReportModel : public QAbstractTableModel
{
    Q_OBJECT
    KO_TR_CONTEXT(CheckReportModel)

public:
    typedef QHash<QString, CameraState> States; ///< by the identifier of the node
    typedef std::function<NodeSummary(const QString& id)> NodeOf;

    /// \a nodeOf gives the node, an empty one when it is gone; it is kept.
    CheckReportModel(const States& results, const NodeOf& nodeOf, QObject* parent = nullptr);

    void showAll(bool all);

    int countOf(DeviceReport::State state) const { return m_counts.value(state); }
    const CheckedCamera& camera(int row) const { return m_cameras.at(row); }

    /// The titles, then the rows.
    QList<QStringList> table() const;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    static QString text(const CheckedCamera& camera, int column);
    QVector<CheckedCamera> cameras(bool areTroubled) const;

    const States m_results;
    const NodeOf m_nodeOf;
    QHash<int, int> m_counts; ///< by the state
    const QVector<CheckedCamera> m_troubled;
    QVector<CheckedCamera> m_cameras; ///< that are shown
};

} // namespace ko

#endif
