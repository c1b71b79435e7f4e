#ifndef KO_IMPORTREPORTDIALOG_H
#define KO_IMPORTREPORTDIALOG_H

#include "exchange/CameraSurvey.h"
#include "ko/TrContext.h"

#include <QDialog>

class QDialogButtonBox;

namespace ko {

/// What an import did, or would do, with every line that could not be taken and why.
class ImportReportDialog : public QDialog
{
    Q_OBJECT
    KO_TR_CONTEXT(ImportReportDialog)

public:
    /// Before the import the result is that of a check, and accepting the dialog agrees to it.
    enum Moment { Before, After };

    explicit ImportReportDialog(const CameraSurvey::ImportResult& result, QWidget* parent = nullptr,
                                Moment moment = After);

private:
    QDialogButtonBox* createButtons(Moment moment);
};

} // namespace ko

#endif
