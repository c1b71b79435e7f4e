#ifndef KO_COMMANDLINE_H
#define KO_COMMANDLINE_H

#include "exchange/CameraSurvey.h"

#include <QStringList>

#include <memory>

namespace ko {

class HostNodeDB;
class MainWindow;

/// How koclient was called, and what it does for each way.
class CommandLine
{
public:
    enum ExitCode { Good = 0, SomeLinesBad = 1, Failed = 2, NoDatabase = 3, WrongUsage = 64 };

    CommandLine(int& argc, char** argv);

    /// Runs the program to its end.
    int run();

private:
    bool parse();
    bool refuse(const QString& reason);
    bool canBeNamed(const QStringList& files);
    bool needsWindow() const;
    QString databaseFile() const;
    int runTask();
    int runWindow();
    std::unique_ptr<HostNodeDB> open(bool checkBehind);
    bool showWindow(HostNodeDB& db, int* exitCode) const;
    bool runTour(HostNodeDB& db, MainWindow& window) const;
    int importCameras() const;
    int report(const CameraSurvey::ImportResult& result) const;
    int exportCameras() const;
    int copyDatabase() const;

    int& m_argc;
    char** const m_argv;
    QString m_database;
    QString m_import;
    QString m_export;
    QString m_backup;
    QString m_restore;
    QString m_tour;
    QString m_survey;
    int m_tourCameras = 0; ///< that the walk finds by scans, instead of its usual work
    bool m_leaveOutPasswords = false;
    bool m_checkTour = false;
    int m_exitCode = Good; ///< when parse() ends the program
};

} // namespace ko

#endif
