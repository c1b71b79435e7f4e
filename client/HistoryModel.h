#ifndef KO_HISTORYMODEL_H
#define KO_HISTORYMODEL_H

#include "ko/TrContext.h"
#include "model/HistoryFilter.h"

#include <QAbstractTableModel>
#include <QTimer>

namespace ko {

class StoredHistory;

/// Change sets that a filter finds, newest first. They are looked for in portions of a few milliseconds until
/// there are as many as a view wants: a history of a million costs what is shown of it.
class HistoryModel : public QAbstractTableModel
{
    Q_OBJECT
    KO_TR_CONTEXT(HistoryModel)

public:
    enum Column { TimeColumn, UserColumn, StationColumn, TitleColumn, NodesColumn, ColumnCount };

    /// The history outlives the model.
    explicit HistoryModel(StoredHistory& history, QObject* parent = nullptr);

    /// Begins anew, before change set number \a before.
    void setFilter(const HistoryFilter& filter, qint64 before = std::numeric_limits<qint64>::max());

    const ChangeSetRow& row(int row) const { return m_rows.at(row); }

    /// Whether older ones are being looked for.
    bool isLooking() const { return m_timer.isActive(); }

    static QString title(int column);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    bool canFetchMore(const QModelIndex& parent) const override;
    void fetchMore(const QModelIndex& parent) override;

signals:
    /// It begins or ends to look.
    void lookingChanged();

private:
    void look();
    void lookFor(int rows);

    StoredHistory& m_history;
    HistoryFilter m_filter;
    QVector<ChangeSetRow> m_rows;
    QTimer m_timer;
    qint64 m_before = 0;
    int m_wanted = 0;   ///< rows
    int m_portion = 16; ///< this many change sets are looked at in a few milliseconds
    bool m_isAtEnd = true;
};

} // namespace ko

#endif
