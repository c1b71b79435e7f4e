#ifndef KO_MOMENTWINDOW_H
#define KO_MOMENTWINDOW_H

#include "MomentDetailsModel.h"
#include "MomentModel.h"
#include "MomentReading.h"
#include "ko/TrContext.h"
#include "model/HistoryFilter.h"

#include <QDialog>

class QCheckBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QTableView;

namespace ko {

class MainWindow;

/// The database as it was after a change set, beside the window of the database as it is. Nothing can be
/// edited in it, but what is there can be put back. It stays as it is whatever is done meanwhile.
class MomentWindow : public QDialog
{
    Q_OBJECT
    KO_TR_CONTEXT(MomentWindow)

public:
    /// Deletes itself when it is closed; \a window owns it.
    MomentWindow(MainWindow& window, const ChangeSetRow& moment);
    ~MomentWindow() override;

private:
    QLabel* label(const char* name);
    void createTables();
    QWidget* createFilter();
    QWidget* createButtons();
    void retranslate();
    void showProgress();
    void showRows(const MomentRows& rows);
    void showFound();
    void showDetails();
    void showState();
    QVector<int> selectedRows() const;
    QSet<QString> selectedThings(const QVector<Alteration>& since) const;
    void putBack(bool all);

    MainWindow& m_window;
    const ChangeSetRow m_moment;
    MomentReading m_reading;
    MomentModel m_nodes;
    MomentDetailsModel m_details;
    QLabel* const m_hint;
    QLineEdit* const m_search;
    QCheckBox* const m_onlyDifferent;
    QTableView* const m_nodesView;
    QTableView* const m_detailsView;
    QLabel* const m_nodesLabel;
    QLabel* const m_detailsLabel;
    QProgressBar* const m_progress;
    QLabel* const m_state;
    QPushButton* m_putBackAll = nullptr;
    QPushButton* m_putBackSelected = nullptr;
    QPushButton* m_close = nullptr;
    QElapsedTimer m_sinceStart;
    bool m_isRead = false;
};

} // namespace ko

#endif
