#ifndef KO_UNDONOTICE_H
#define KO_UNDONOTICE_H

#include "ko/TrContext.h"

#include <QPushButton>

class QAction;
class QStatusBar;

namespace ko {

class UndoCommands;

/// Says in the status bar what was done, with a button beside it that undoes it as long as the text is shown.
/// The next step takes both away.
class UndoNotice : public QPushButton
{
    Q_OBJECT
    KO_TR_CONTEXT(UndoNotice)

public:
    /// The bar owns it; the commands and their action outlive it.
    UndoNotice(UndoCommands& undoing, QAction* undo, QStatusBar* statusBar);

    void offer(const QString& text);

private:
    UndoCommands& m_undoing;
    QStatusBar* const m_statusBar;
    QString m_text;
    qint64 m_step = 0; ///< of which the text is
};

} // namespace ko

#endif
