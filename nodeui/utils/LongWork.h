#ifndef KO_LONGWORK_H
#define KO_LONGWORK_H

#include "NodeUIExport.h"

#include <QElapsedTimer>
#include <QProgressDialog>

#include <memory>

namespace ko {

/// Many small steps on the GUI thread. When they take longer than a moment, a window shows how far they are
/// and can end them; \a parent takes no input then.
class KO_NODEUI_EXPORT LongWork
{
public:
    LongWork(const QString& title, const QString& text, int steps, QWidget* parent);
    ~LongWork();

    /// To be called before each step; false when the user wants no more. Runs the event loop now and then.
    bool goOn();

    /// Steps that were begun.
    int done() const { return m_done; }

private:
    Q_DISABLE_COPY(LongWork)

    void show();

    const QString m_title;
    const QString m_text;
    const int m_steps;
    QWidget* const m_parent;
    int m_done = 0;
    QElapsedTimer m_sinceBegin;
    QElapsedTimer m_sinceTurn; ///< of the event loop
    int m_untilTurn;           ///< ms, from one to the next
    std::unique_ptr<QProgressDialog> m_dialog;
};

} // namespace ko

#endif
