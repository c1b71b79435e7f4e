#ifndef KO_ENVIRONMENTNOTICE_H
#define KO_ENVIRONMENTNOTICE_H

#include "ko/TrContext.h"

#include <QPushButton>

class QDialog;
class QStatusBar;

namespace ko {

class HostNodeDB;

/// A button in the status bar that takes back a switch of the environment.
///
/// The dialogs of nodes switch the environment of the whole program at once, and closing them by Cancel
/// does not take that back. The status bar then says which environment is active now, and this button leads
/// back to the one before. It goes when it was pressed and when the next such dialog opens.
class EnvironmentNotice : public QPushButton
{
    Q_OBJECT
    KO_TR_CONTEXT(EnvironmentNotice)

public:
    EnvironmentNotice(HostNodeDB& db, QStatusBar* statusBar);

    /// Runs the dialog, and shows the button when it was cancelled and has switched the environment.
    int exec(QDialog& dialog);

private:
    void offer(const QString& previous);
    void showText();
    void switchBack();
    QString nameOf(const QString& environment) const;

    HostNodeDB& m_db;
    QStatusBar* const m_statusBar;
    QString m_previous;
};

} // namespace ko

#endif
