#ifndef KO_SURVEYPROGRESS_H
#define KO_SURVEYPROGRESS_H

#include "exchange/CameraSurvey.h"

#include <QProgressDialog>

namespace ko {

/// A progress dialog that can be cancelled, and the callback that feeds it. While it lives its parent's
/// window takes no input.
class SurveyProgress
{
public:
    SurveyProgress(const QString& title, const QString& text, QWidget* parent);

    /// Good while this object lives.
    CameraSurvey::Progress callback();
    void cancel() { m_dialog.cancel(); }

private:
    QProgressDialog m_dialog;
};

} // namespace ko

#endif
