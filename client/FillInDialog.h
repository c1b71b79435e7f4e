#ifndef KO_FILLINDIALOG_H
#define KO_FILLINDIALOG_H

#include "FillInModel.h"
#include "ko/TrContext.h"

#include <QDialog>

class QCheckBox;
class QDialogButtonBox;
class QLabel;
class QProgressBar;
class QTableView;

namespace ko {

class MainWindow;

/// Asks devices what they are, and shows what would change here; OK stores what is ticked, Cancel leaves
/// everything as it is.
class FillInDialog : public QDialog
{
    Q_OBJECT
    KO_TR_CONTEXT(FillInDialog)

public:
    FillInDialog(HostNodeDB& db, const QStringList& devices, QWidget* parent);

    /// How many nodes OK has changed.
    int changed() const { return m_changed; }

    void accept() override;

    /// For the devices that are selected in the window.
    static void run(MainWindow& window);

    /// A line for the status bar; an empty one after a cancel.
    static QString run(HostNodeDB& db, const QStringList& devices, QWidget* parent);

private:
    void createTable();
    void retranslate();
    void showWords();
    void showProgress();
    void showTold();
    void enableOk();

    DeviceFilling m_filling;
    FillInModel m_model;
    QLabel* const m_hint;
    QProgressBar* const m_progress;
    QTableView* const m_table;
    QCheckBox* const m_replace;
    QLabel* const m_silent;
    QDialogButtonBox* const m_buttons;
    bool m_isTold = false;
    int m_changed = 0;
};

} // namespace ko

#endif
