#ifndef KO_BACKTODIALOG_H
#define KO_BACKTODIALOG_H

#include "HistoryModel.h"
#include "ko/TrContext.h"

#include <QDateTime>
#include <QDialog>

class QDateTimeEdit;
class QDialogButtonBox;
class QLabel;
class QTableView;

namespace ko {

class HostNodeDB;

/// Asks for a moment: the change set after which the database is to be shown as it was.
class BackToDialog : public QDialog
{
    Q_OBJECT
    KO_TR_CONTEXT(BackToDialog)

public:
    BackToDialog(HostNodeDB& db, QWidget* parent);

    /// None if none is chosen.
    std::optional<ChangeSetRow> moment() const;

private:
    void createTable();
    void retranslate();
    void look();
    void choose();
    void showState();

    HistoryModel m_sets;
    QLabel* const m_hint;
    QLabel* const m_timeLabel;
    QDateTimeEdit* const m_time;
    QLabel* const m_setsLabel;
    QTableView* const m_setsView;
    QDialogButtonBox* const m_buttons;
    QDateTime m_until;
    int m_first = 1; ///< the row that is chosen by itself: at first what was before the last change
};

} // namespace ko

#endif
