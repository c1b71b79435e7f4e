#include "SurveyCommands.h"

#include "ImportReportDialog.h"
#include "PlainMessageBox.h"
#include "SurveyProgress.h"
#include "utils/FileDialogs.h"

#include <QMainWindow>
#include <QStatusBar>

#include <utility>

namespace ko {

namespace {

const char* const csvFilter = QT_TRANSLATE_NOOP("SurveyCommands", "Lists of cameras (*.csv);;All files (*)");

} // namespace

SurveyCommands::SurveyCommands(QMainWindow* window)
    : QObject(window)
    , m_window(window)
{
}

/// False if the window was closed meanwhile; there is nobody to tell the result then.
bool SurveyCommands::run(const QString& title, const QString& text,
                         const std::function<void(const CameraSurvey::Progress&)>& work)
{
    {
        SurveyProgress progress(title, text, m_window);
        m_progress = &progress;
        work(progress.callback());
        m_progress = nullptr;
    }
    const bool closing = std::exchange(m_closing, false);
    if (closing)
        m_window->close();
    return !closing;
}

bool SurveyCommands::closeWindowAfterwards()
{
    if (!m_progress)
        return false;
    m_closing = true;
    m_progress->cancel();
    return true;
}

void SurveyCommands::importCameras()
{
    const QString file = FileDialogs::openFile(m_window, tr("Import Cameras"), tr(csvFilter));
    if (file.isEmpty())
        return;
    CameraSurvey::ImportResult result;
    const auto check = [&](const CameraSurvey::Progress& progress) {
        result = CameraSurvey::check(file, progress);
    };
    if (!run(tr("Import Cameras"), tr("Reading the list..."), check) || !agreesToImport(result))
        return;
    const auto work = [&](const CameraSurvey::Progress& progress) {
        result = CameraSurvey::importCameras(file, progress);
    };
    if (!run(tr("Import Cameras"), tr("Importing cameras..."), work))
        return;
    ImportReportDialog report(result, m_window);
    report.exec();
}

/// Asks only when something is to be asked: a list without errors is what the user chose. What cannot be
/// imported at all is said by the import.
bool SurveyCommands::agreesToImport(const CameraSurvey::ImportResult& foreseen)
{
    if (foreseen.cancelled)
        return false;
    if (!foreseen.error.isEmpty() || (foreseen.badLines.isEmpty() && foreseen.doubtfulLines.isEmpty()))
        return true;
    ImportReportDialog dialog(foreseen, m_window, ImportReportDialog::Before);
    return dialog.exec() == QDialog::Accepted;
}

void SurveyCommands::exportCameras(const QStringList& only, const CameraSurvey::MoreColumns& more)
{
    const QString file =
        FileDialogs::saveFile(m_window, tr("Export Cameras"), QStringLiteral("cameras.csv"), tr(csvFilter));
    if (file.isEmpty())
        return;
    const auto answer = PlainMessageBox::ask(
        QMessageBox::Question, m_window, tr("Export Cameras"),
        tr("Write the passwords too? Whoever can read the file can then use every camera in it."),
        QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::No);
    if (answer == QMessageBox::Cancel)
        return;
    const auto passwords =
        answer == QMessageBox::Yes ? CameraSurvey::Passwords::Write : CameraSurvey::Passwords::LeaveOut;
    CameraSurvey::ExportResult result;
    const auto work = [&](const CameraSurvey::Progress& progress) {
        result = CameraSurvey::exportCameras(file, passwords, progress, only, more);
    };
    if (!run(tr("Export Cameras"), tr("Exporting cameras..."), work))
        return;
    if (!result.error.isEmpty())
        PlainMessageBox::ask(QMessageBox::Critical, m_window, tr("Export Cameras"), result.error);
    else if (!result.cancelled)
        m_window->statusBar()->showMessage(tr("%n camera(s) written.", nullptr, result.written), 10000);
}

} // namespace ko
