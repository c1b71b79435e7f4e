#ifndef KO_LASTCHANGECOLUMN_H
#define KO_LASTCHANGECOLUMN_H

#include "ListColumns.h"
#include "model/LogRows.h"

#include <QBasicTimer>
#include <QObject>
#include <QSet>

namespace ko {

class HostNodeDB;
class NodeListModel;

/// Reads for the list when each node was changed last, and by whom: in portions while the window goes on, and
/// those that change once their change is stored.
class LastChangeColumn : public QObject
{
    Q_OBJECT

public:
    /// Both outlive this object.
    LastChangeColumn(HostNodeDB& db, NodeListModel& model, QObject* parent = nullptr);

    int column() const { return m_column; }

    /// The column is filled soon after it is wanted, and emptied when it is not wanted any more.
    void setWanted(bool isWanted);

    void take(const QVector<NodeSummary>& changed);

    /// "2026-03-14 09:26, anna", so that the order of the texts is that of time.
    static QString text(const LastChange& change);

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void readSome();
    void readChanged();

    HostNodeDB& m_db;
    NodeListModel& m_model;
    const int m_column;
    bool m_isWanted = false;
    QBasicTimer m_reading;
    qint64 m_after = 0;
    ListColumns::Texts m_texts; ///< as far as they are read
    QBasicTimer m_late;
    QSet<QString> m_changed; ///< to be read when they are stored
};

} // namespace ko

#endif
