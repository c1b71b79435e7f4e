#ifndef KO_EMPTYSTATE_H
#define KO_EMPTYSTATE_H

#include <QWidget>

class QAction;
class QLabel;
class QPushButton;

namespace ko {

/// What the list shows in place of rows when there are none: why, and what can be done.
class EmptyState : public QWidget
{
    Q_OBJECT

public:
    /// Lies in the middle of \a area, which gets a layout for it.
    explicit EmptyState(QWidget* area);

    /// A button for what brings nodes.
    void addWay(QAction* action, const QString& text);

    /// Hides itself when there are rows to show.
    void setCounts(int nodes, int shown);

signals:
    /// The user wants to see all nodes again.
    void showAll();

private:
    QLabel* const m_text;
    QList<QPushButton*> m_ways; ///< while there are no nodes at all
    QPushButton* const m_showAll;
};

} // namespace ko

#endif
