#ifndef KO_CHECKREPORTMODEL_H
#define KO_CHECKREPORTMODEL_H

#include "CameraState.h"

#include <QAbstractTableModel>

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

public:
    explicit CheckReportModel(const QVector<CheckedCamera>& cameras, QObject* parent = nullptr);

    void showAll(bool all);

    int countOf(DeviceReport::State state) const;
    const CheckedCamera& camera(int row) const { return m_cameras.at(row); }

    /// The titles, then the rows.
    QList<QStringList> table() const;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    static QString text(const CheckedCamera& camera, int column);

    QVector<CheckedCamera> m_cameras; ///< those in trouble come first
    int m_troubled;
    int m_shown;
};

} // namespace ko

#endif
