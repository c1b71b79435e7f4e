#ifndef KO_CHECKREPORTDIALOG_H
#define KO_CHECKREPORTDIALOG_H

#include "CheckReportModel.h"
#include "ko/TrContext.h"

#include <QDialog>

class QTableView;

namespace ko {

/// What came of a check, for the user to act on. The list stays usable beside it.
class CheckReportDialog : public QDialog
{
    Q_OBJECT
    KO_TR_CONTEXT(CheckReportDialog)

public:
    /// \a all: begins with all cameras instead of those in trouble.
    CheckReportDialog(const CheckReportModel::States& results, const CheckReportModel::NodeOf& nodeOf,
                      int skipped, bool all, QWidget* parent);

signals:
    /// The user wants to see the cameras that are listed in the main window.
    void wanted(const QVector<ko::CheckedCamera>& cameras);

private:
    QString summary(int skipped) const;
    void addButtons();
    void copy();
    void save();
    void askForListed();

    CheckReportModel* const m_model;
    QTableView* const m_view;
};

} // namespace ko

#endif
