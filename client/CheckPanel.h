#ifndef KO_CHECKPANEL_H
#define KO_CHECKPANEL_H

#include "ko/TrContext.h"

#include <QWidget>

class QLabel;
class QProgressBar;
class QPushButton;
class QToolButton;

namespace ko {

/// One line in the status bar that says how a check goes, what came of it, or what could be checked, with the
/// button that belongs to it. Hidden when there is nothing to say.
class CheckPanel : public QWidget
{
    Q_OBJECT
    KO_TR_CONTEXT(CheckPanel)

public:
    explicit CheckPanel(QWidget* parent = nullptr);

    void showProgress(int done, int total);

    /// A text with a button, until the user presses it or puts the line away.
    void showLine(const QString& text, const QString& button);

signals:
    void cancelled();
    void pressed();

private:
    void retranslate();
    void showParts(bool isRunning);

    QLabel* const m_text;
    QProgressBar* const m_bar;
    QPushButton* const m_cancel;
    QPushButton* const m_button;
    QToolButton* const m_close;
};

} // namespace ko

#endif
