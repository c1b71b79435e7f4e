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

    /// What Undo would undo of what is stored, to be compared with what it is later.
    qint64 storedStep() const { return m_stack.newest(UndoStack::Undo); }
    /// The same after storing what was done until now.
    qint64 lastStep();

    /// Names the actions in the language that the program has now.
    void retranslate();

signals:
    /// Undo may be about something else now.
    void stepsChanged();

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
