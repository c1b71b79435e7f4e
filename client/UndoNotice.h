#ifndef KO_UNDONOTICE_H
#define KO_UNDONOTICE_H

#include "ko/TrContext.h"

#include <QPushButton>

class QAction;
class QStatusBar;

namespace ko {

/// Says in the status bar what was done, with a button beside it that undoes it as long as the text is shown.
class UndoNotice : public QPushButton
{
    Q_OBJECT
    KO_TR_CONTEXT(UndoNotice)

public:
    /// The bar owns it; the action outlives it.
    UndoNotice(QAction* undo, QStatusBar* statusBar);

    void offer(const QString& text);

private:
    QStatusBar* const m_statusBar;
    QString m_text;
};

} // namespace ko

#endif
