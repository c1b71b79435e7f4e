#ifndef KO_LISTLOADING_H
#define KO_LISTLOADING_H

#include "NodeEntries.h"

#include <QObject>

#include <future>

namespace ko {

class HostNodeDB;
class NodeListModel;

/// Fills the list when the window opens. While the nodes are read and put in order, in threads, it has those
/// that were its first ones when it was closed last: the first picture does not wait for a hundred thousand
/// others. Whoever presses a key or a button means the whole list, and waits for it.
class ListLoading : public QObject
{
    Q_OBJECT

public:
    ListLoading(HostNodeDB& db, NodeListModel& model, QObject* parent);
    ~ListLoading() override;

    /// Whether all nodes are in the list.
    bool isDone() const { return m_isDone; }

    /// For the next time.
    void rememberFirst() const;

    bool eventFilter(QObject* object, QEvent* event) override;

signals:
    void done();

private:
    void showFirst();
    void prepare();
    void finish();

    HostNodeDB& m_db;
    NodeListModel& m_model;
    bool m_isDone;
    std::future<NodeEntries::Content> m_content; ///< waits when it is destroyed
};

} // namespace ko

#endif
