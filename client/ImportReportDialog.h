#ifndef KO_IMPORTREPORTDIALOG_H
#define KO_IMPORTREPORTDIALOG_H

#include "exchange/CameraSurvey.h"
#include "ko/TrContext.h"

#include <QDialog>

namespace ko {

/// What an import did, with every line that could not be taken and why.
class ImportReportDialog : public QDialog
{
    Q_OBJECT
    KO_TR_CONTEXT(ImportReportDialog)

public:
    explicit ImportReportDialog(const CameraSurvey::ImportResult& result, QWidget* parent = nullptr);
};

} // namespace ko

#endif
