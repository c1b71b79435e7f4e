#ifndef KO_UNDOCOMMANDS_H
#define KO_UNDOCOMMANDS_H

#include "history/UndoStack.h"
#include "ko/TrContext.h"

class QAction;

namespace ko {

class MainWindow;

/// Undo and Redo of the window's menu: they name what they would put back, and show it before they do.
class UndoCommands : public QObject
{
    Q_OBJECT
    KO_TR_CONTEXT(UndoCommands)

public:
    /// The window owns it; the actions are its own.
    UndoCommands(MainWindow& window, QAction* undo, QAction* redo);

    void run(UndoStack::Direction direction);

    /// Names the actions in the language that the program has now.
    void retranslate();

private:
    void update();

    MainWindow& m_window;
    UndoStack m_stack;
    QAction* const m_undo;
    QAction* const m_redo;
    bool m_isLate = false; ///< update() will come
};

} // namespace ko

#endif
