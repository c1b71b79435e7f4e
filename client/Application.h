#ifndef KO_APPLICATION_H
#define KO_APPLICATION_H

#include "ClientWindow.h"
#include "Options.h"
#include "exchange/CameraSurvey.h"

#include <memory>
#include <optional>

namespace ko {

class HostNodeDB;
class SiteOpening;

/// The program: what it does for each way in which it was called.
class Application
{
public:
    enum ExitCode { Good = 0, SomeLinesBad = 1, Failed = 2, NoDatabase = 3, WrongUsage = 64 };

    Application(int& argc, char** argv);

    /// Runs the program to its end.
    int run();

private:
    bool parse();
    void speak(const QStringList& arguments);
    bool refuse(const QString& reason);
    bool canBeNamed(const QStringList& files);
    bool needsWindow() const;
    int runTask();
    int runOnSite();
    int runCommandOnSite(SiteOpening* opening);
    int runOnFile();
    int runWindow();
    std::unique_ptr<HostNodeDB> open(bool checkBehind);
    int importCameras() const;
    int report(const CameraSurvey::ImportResult& result) const;
    int exportCameras() const;
    void loadNodeTypes();
    int copyDatabase() const;

    int& m_argc;
    char** const m_argv;
    std::optional<Options> m_options; ///< made when the language is known
    QString m_language;
    QString m_database;
    ClientWindow::Next m_next;
    QString m_site;          ///< of which the database is a copy; empty if of none
    QStringList m_notLoaded; ///< node types of others, and why
    int m_exitCode = Good;   ///< when parse() ends the program
};

} // namespace ko

#endif
