#ifndef KO_SHARINGDIALOG_H
#define KO_SHARINGDIALOG_H

#include "ko/TrContext.h"
#include "model/UndoneChange.h"

#include <QDialog>

class QDialogButtonBox;
class QLabel;
class QPushButton;
class QTableWidget;

namespace ko {

class HostNodeDB;
class SiteSharing;

/// How the desk and its site are with each other, and what was changed here and could not be done there,
/// which stays until the user dismisses it.
class SharingDialog : public QDialog
{
    Q_OBJECT
    KO_TR_CONTEXT(SharingDialog)

public:
    /// Both outlive it.
    SharingDialog(HostNodeDB& db, SiteSharing& sharing, QWidget* parent);

private:
    void createTable();
    void createButtons();
    void retranslate();
    void refresh();
    void updateButtons();
    void dismiss();
    void makeNewCopy();
    void askForPassphrase();

    HostNodeDB& m_db;
    SiteSharing& m_sharing;
    QVector<UndoneChange> m_undone;
    QLabel* const m_state;
    QLabel* const m_hint;
    QTableWidget* const m_table;
    QDialogButtonBox* const m_buttons;
    QPushButton* m_dismiss = nullptr;
    QPushButton* m_tryAgain = nullptr;
    QPushButton* m_newCopy = nullptr;
    QPushButton* m_passphrase = nullptr;
};

} // namespace ko

#endif
