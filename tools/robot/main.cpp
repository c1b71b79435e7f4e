#include "KeychainNotice.h"
#include "MainWindow.h"
#include "Pictures.h"
#include "Robot.h"
#include "audit/ProgramLog.h"
#include "database/HostNodeDB.h"
#include "discovery/ArpScanner.h"
#include "discovery/MdnsScanner.h"
#include "discovery/Scanners.h"
#include "ko/Terminal.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFont>

#include <cstdio>

namespace {

enum ExitCode { Good = 0, NotSo = 1, NoDatabase = 3 };

void addOptions(QCommandLineParser& parser)
{
    parser.setApplicationDescription(
        QStringLiteral("Walks through the windows of the client with the clicks and keys of a user."));
    parser.addHelpOption();
    parser.addOptions({
        {QStringLiteral("db"), QStringLiteral("The node database."), QStringLiteral("FILE")},
        {QStringLiteral("survey"), QStringLiteral("The list of cameras to import."), QStringLiteral("FILE")},
        {QStringLiteral("scans"), QStringLiteral("Finds so many cameras by scans, and does nothing else."),
         QStringLiteral("NUMBER")},
        {QStringLiteral("pictures"),
         QStringLiteral("Makes the pictures of the manual, of a new database, and does nothing else.")},
        {QStringLiteral("dark"), QStringLiteral("With --pictures: of a dark program.")},
        {QStringLiteral("check"), QStringLiteral("Looks whether what the walk did is in the database.")},
    });
    parser.addPositionalArgument(QStringLiteral("FOLDER"),
                                 QStringLiteral("For the pictures of the windows."));
}

/// Whether everything was as it must be.
bool walk(const QCommandLineParser& options, ko::HostNodeDB& db)
{
    if (options.isSet(QStringLiteral("check")))
        return ko::Robot::check(db);
    ko::Scanners::of(db).add(std::make_unique<ko::MdnsScanner>());
    ko::Scanners::of(db).add(std::make_unique<ko::ArpScanner>());
    ko::MainWindow window(db);
    window.show();
    if (options.isSet(QStringLiteral("pictures")))
        return ko::Pictures(db, window, options.positionalArguments().value(0),
                            options.isSet(QStringLiteral("dark")) ? QStringLiteral("-dark") : QString())
            .make(options.value(QStringLiteral("survey")));
    ko::Robot robot(db, window, options.positionalArguments().value(0));
    const int cameras = options.value(QStringLiteral("scans")).toInt();
    return cameras > 0 ? robot.runScans(cameras) : robot.run(options.value(QStringLiteral("survey")));
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QCommandLineParser options;
    addOptions(options);
    options.process(application);
    if (options.positionalArguments().isEmpty() && !options.isSet(QStringLiteral("check")))
        options.showHelp(NotSo);
    if (options.isSet(QStringLiteral("pictures"))) {
        // The same wherever they are made.
        QApplication::setStyle(QStringLiteral("fusion"));
        QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 9));
        if (options.isSet(QStringLiteral("dark")))
            ko::Pictures::beDark();
    }
    ko::KeychainNotice notice(ko::KeychainNotice::Way::Line);
    if (!notice.prepare())
        return NotSo;
    ko::StoreError error;
    const auto db = ko::HostNodeDB::open(options.value(QStringLiteral("db")), &error);
    if (!db) {
        ko::Terminal::say(stderr, error.message);
        return NoDatabase;
    }
    const ko::ProgramLog log(db->logStore());
    return walk(options, *db) ? Good : NotSo;
}
