#ifndef KO_EMPTYSTATE_H
#define KO_EMPTYSTATE_H

#include "ko/TrContext.h"

#include <QWidget>

class QAction;
class QLabel;
class QPushButton;

namespace ko {

/// What the list shows in place of rows when there are none: why, and what can be done.
class EmptyState : public QWidget
{
    Q_OBJECT
    KO_TR_CONTEXT(EmptyState)

public:
    /// Lies in the middle of \a area, which gets a layout for it.
    explicit EmptyState(QWidget* area);

    /// A button for what brings nodes. The text, a constant, is translated here.
    void addWay(QAction* action, const char* text);

    /// Hides itself when there are rows to show.
    void setCounts(int nodes, int shown);
    /// What stands there as long as it is not known how many \a nodes there are, which is told by -1.
    static QString readingText();

signals:
    /// The user wants to see all nodes again.
    void showAll();

private:
    struct Way
    {
        QPushButton* button;
        const char* text;
    };

    QLabel* const m_text;
    QList<Way> m_ways; ///< while there are no nodes at all
    QPushButton* const m_showAll;
    int m_nodes = 0;
    int m_shown = 1; ///< as if there were rows, until the counts are known
};

} // namespace ko

#endif
