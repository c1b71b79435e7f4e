#ifndef KO_SURVEYCOMMANDS_H
#define KO_SURVEYCOMMANDS_H

#include "exchange/CameraSurvey.h"
#include "ko/TrContext.h"

#include <QObject>

#include <functional>

class QMainWindow;

namespace ko {

class SurveyProgress;

/// Import and export of lists of cameras, as the user of a window meets them. The window takes no input
/// meanwhile.
class SurveyCommands : public QObject
{
    Q_OBJECT
    KO_TR_CONTEXT(SurveyCommands)

public:
    explicit SurveyCommands(QMainWindow* window);

    void importCameras();
    /// All, or those of \a only if it names any nodes.
    void exportCameras(const QStringList& only = QStringList(),
                       const CameraSurvey::MoreColumns& more = CameraSurvey::MoreColumns());

    /// For a window that is closed all the same, as at the end of a session: cancels the work, if there is
    /// any, and closes the window when it has ended. False if nothing is under way.
    bool closeWindowAfterwards();

private:
    bool agreesToImport(const CameraSurvey::ImportResult& foreseen);
    bool run(const QString& title, const QString& text,
             const std::function<void(const CameraSurvey::Progress&)>& work);

    QMainWindow* const m_window;
    SurveyProgress* m_progress = nullptr; ///< of the work under way
    bool m_closing = false;
};

} // namespace ko

#endif
