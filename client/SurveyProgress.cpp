#include "SurveyProgress.h"

#include <QCoreApplication>

namespace ko {

namespace {

const int steps = 1000; ///< sizes of files do not fit the dialog's int

} // namespace

SurveyProgress::SurveyProgress(const QString& title, const QString& text, QWidget* parent)
    : m_dialog(text, QCoreApplication::translate("SurveyProgress", "Cancel"), 0, steps, parent)
{
    m_dialog.setObjectName(QStringLiteral("surveyProgress"));
    m_dialog.setWindowTitle(title);
    m_dialog.setWindowModality(Qt::WindowModal);
    m_dialog.setAutoClose(false);
    m_dialog.setAutoReset(false);
    m_dialog.setMinimumDuration(0); // by itself it waits for seconds, and the window takes input meanwhile
    m_dialog.setValue(0);
    m_dialog.show();
}

CameraSurvey::Progress SurveyProgress::callback()
{
    return [this](qint64 done, qint64 total) {
        m_dialog.setValue(total > 0 ? int(done * steps / total) : 0);
        QCoreApplication::processEvents();
        return !m_dialog.wasCanceled();
    };
}

} // namespace ko
