#include "Application.h"

#include "ClientWindow.h"
#include "DatabaseRecovery.h"
#include "KeychainNotice.h"
#include "KnownSites.h"
#include "Languages.h"
#include "LogCommands.h"
#include "Places.h"
#include "ReadOnlyNotice.h"
#include "ShareCommand.h"
#include "SiteKeyPrompt.h"
#include "SiteOpening.h"
#include "audit/ProgramLog.h"
#include "database/HostNodeDB.h"
#include "drivers/NodeTypePlugin.h"
#include "exchange/CameraSurvey.h"
#include "exchange/ExportFile.h"
#include "exchange/FileName.h"
#include "ko/Terminal.h"
#include "sharing/SiteAddress.h"
#include "sharing/SiteCopy.h"
#include "store/LogCheckpoint.h"
#include "store/NodeStore.h"
#include "store/StoreBackup.h"
#include "store/StoreFile.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>
#include <memory>
#include <utility>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

namespace ko {

namespace {

using Terminal::say;

const int commandPatience = 3000; // ms; for a server that is away

/// The toolkit quotes names of files and other texts too.
void sayMessage(QtMsgType, const QMessageLogContext&, const QString& text)
{
    say(stderr, text);
}

/// What the program keeps holds passwords; it is for its user alone.
void keepFilesPrivate()
{
#ifdef Q_OS_UNIX
    umask(077);
#endif
}

QString defaultDatabase()
{
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
    folder.mkpath(QStringLiteral("."));
    return folder.filePath(QStringLiteral("nodes.kodb"));
}

} // namespace

Application::Application(int& argc, char** argv)
    : m_argc(argc)
    , m_argv(argv)
{
    QCoreApplication::setOrganizationName(QStringLiteral("Ko Node UI"));
    QCoreApplication::setApplicationName(QStringLiteral("koclient"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KO_VERSION));
    QGuiApplication::setDesktopFileName(QStringLiteral("org.konodeui.koclient"));
    Places::declare();
}

bool Application::parse()
{
    QStringList arguments;
    for (int i = 0; i < m_argc; ++i)
        arguments.append(FileName::fromBytes(m_argv[i]));
    const QCoreApplication application(m_argc, m_argv); // speaks, and names the program
    speak(arguments);
    const QString refusal = m_options->read(arguments);
    if (!refusal.isEmpty())
        return refuse(refusal);
    if (m_options->asksForHelp() || m_options->isSet("version")) {
        const QString text = m_options->asksForHelp()
                                 ? m_options->helpText()
                                 : QCoreApplication::applicationName() + QLatin1Char(' ') +
                                       QCoreApplication::applicationVersion();
        const QStringList lines = text.split(QLatin1Char('\n'));
        for (const QString& line : lines)
            say(stdout, line);
        return false;
    }
    if (!needsWindow() && !m_options->toolkitOption().isEmpty())
        return refuse(
            QCoreApplication::translate("Application", "%1 only applies to windows, and none is opened here.")
                .arg(m_options->toolkitOption()));
    m_database = m_options->value("db");
    return canBeNamed({SiteAddress::isSite(m_database) ? QString() : m_database, m_options->value("export"),
                       m_options->value("backup"), m_options->value("restore"), m_options->value("share")});
}

/// The language comes first: the options tell about themselves in it. What is wrong with them is said later.
void Application::speak(const QStringList& arguments)
{
    Options options;
    options.read(arguments);
    m_language = options.isSet("lang") ? Languages::best({options.value("lang")}) : Languages::preferred();
    Languages::use(m_language);
    m_options.emplace();
}

bool Application::refuse(const QString& reason)
{
    say(stderr, reason);
    m_exitCode = WrongUsage;
    return false;
}

/// All but the list to import, which is opened by the bytes of its name.
bool Application::canBeNamed(const QStringList& files)
{
    for (const QString& file : files) {
        const QString refusal = FileName::refusal(file);
        if (refusal.isEmpty())
            continue;
        say(stderr, refusal);
        m_exitCode = Failed;
    }
    return m_exitCode == Good;
}

int Application::run()
{
    qInstallMessageHandler(sayMessage);
    if (!parse())
        return m_exitCode;
    keepFilesPrivate();
    if (needsWindow() && !SiteAddress::isSite(m_database))
        StoreFile::readAhead(m_database.isEmpty() ? defaultDatabase() : m_database);
    const std::unique_ptr<QCoreApplication> application(needsWindow() ? new QApplication(m_argc, m_argv)
                                                                      : new QCoreApplication(m_argc, m_argv));
    Languages::use(m_language);
    return runTask();
}

bool Application::needsWindow() const
{
    const auto isSet = [this](const char* task) { return m_options->isSet(task); };
    const auto tasks = {"import", "export", "backup", "restore", "share", "verify-log", "thin-history"};
    return std::none_of(tasks.begin(), tasks.end(), isSet);
}

int Application::runTask()
{
    loadNodeTypes();
    if (m_options->isSet("share"))
        return ShareCommand(m_options->value("share"), m_options->site()).run();
    if (m_database.isEmpty())
        m_database = defaultDatabase();
    QString previous; // comes back when the next one cannot be opened
    for (;;) {
        const QString current = m_database;
        m_site.clear();
        m_next = ClientWindow::Next();
        const int exitCode = SiteAddress::isSite(m_database) ? runOnSite() : runOnFile();
        const bool isNext = !m_next.database.isEmpty();
        if (!isNext && (exitCode != NoDatabase || previous.isEmpty()))
            return exitCode;
        m_database = isNext ? m_next.database : previous;
        previous = isNext ? current : QString();
    }
}

/// On the copy that this desk has of it. A command begins and ends with the state of the site.
int Application::runOnSite()
{
    const bool hasWindow = needsWindow();
    {
        KeychainNotice notice(hasWindow ? KeychainNotice::Way::Window : KeychainNotice::Way::Line);
        if (!notice.prepare())
            return Good;
    }
    m_site = KnownSites::withKeptPassword(m_database);
    SiteOpening opening(m_site, hasWindow ? SiteOpening::Way::Window : SiteOpening::Way::Line);
    if (!hasWindow)
        return runCommandOnSite(&opening);
    int exitCode = Good;
    m_database.clear();
    do { // a window that gives up its copy is followed by one on another
        m_database = opening.file(m_database);
        m_next = ClientWindow::Next();
        exitCode = m_database.isEmpty() ? int(NoDatabase) : runOnFile();
    } while (m_next.newCopy);
    return exitCode;
}

/// When the server is away, which has been said then, the copy is what there is; what is imported waits
/// there.
int Application::runCommandOnSite(SiteOpening* opening)
{
    m_database = opening->file();
    if (m_database.isEmpty())
        return NoDatabase;
    const bool isThere = opening->catchUp(m_database, commandPatience);
    const QString site = KnownSites::find(m_site).id;
    if (isThere && (m_options->isSet("import") ||
                    (m_options->isSet("export") && !m_options->isSet("without-passwords"))))
        SiteKeyPrompt::onLine(m_site, site, m_options->isSet("import"));
    if (!m_options->isSet("import"))
        return runOnFile();
    if (!KnownSites::find(m_site).mayWrite) {
        say(stderr, ReadOnlyNotice::text());
        return Failed;
    }
    const int exitCode = runOnFile();
    return opening->catchUp(m_database, commandPatience) ? exitCode : qMax(exitCode, int(SomeLinesBad));
}

int Application::runOnFile()
{
    const bool imports = m_options->isSet("import");
    const bool exports = m_options->isSet("export");
    const bool verifies = m_options->isSet("verify-log");
    const bool thins = m_options->isSet("thin-history");
    const int copied = copyDatabase();
    if (copied != Good || !(needsWindow() || imports || exports || verifies || thins))
        return copied;
    KeychainNotice notice(needsWindow() ? KeychainNotice::Way::Window : KeychainNotice::Way::Line);
    if (!notice.prepare())
        return Good;
    if (needsWindow())
        return runWindow();
    if (imports && !QFileInfo::exists(StoreFile::resolved(m_database))) {
        // A list that is refused must not leave a new database behind.
        const CameraSurvey::ImportResult refused = CameraSurvey::check(m_options->value("import"));
        if (!refused.error.isEmpty())
            return report(refused);
    }
    const int verified = verifies ? LogCommands::verify(m_database) : Good;
    const int looked =
        thins && verified <= SomeLinesBad
            ? qMax(verified, LogCommands::thin(m_database, m_options->value("thin-history").toInt()))
            : verified;
    if (looked > SomeLinesBad || !(imports || exports))
        return looked;
    const std::unique_ptr<HostNodeDB> db = open(false);
    if (!db)
        return NoDatabase;
    const ProgramLog log(db->logStore());
    const int imported = imports ? importCameras() : Good;
    return qMax(looked, imported == Failed || !exports ? imported : qMax(imported, exportCameras()));
}

/// From where they are installed with the program, or from the folder that the developer of one names.
void Application::loadNodeTypes()
{
    QString folder = qEnvironmentVariable("KONODEUI_NODE_TYPES");
    if (folder.isEmpty())
        folder = QCoreApplication::applicationDirPath() + QStringLiteral("/" KO_NODE_TYPES);
    m_notLoaded = NodeTypePlugins::load(folder);
    if (needsWindow())
        return; // the log of the program has them
    for (const QString& problem : std::as_const(m_notLoaded))
        say(stderr, problem);
}

/// Null after the user was told why. The user of a window may choose another file.
std::unique_ptr<HostNodeDB> Application::open(bool checkBehind)
{
    const HostNodeDB::Check check = checkBehind ? HostNodeDB::Check::Behind : HostNodeDB::Check::First;
    for (;;) {
        StoreError error;
        std::unique_ptr<HostNodeDB> db = HostNodeDB::open(m_database, &error, check);
        if (db)
            return db;
        say(stderr, error.message);
        const QString refused = m_database;
        if (!needsWindow() || !DatabaseRecovery::offer(&m_database, error, nullptr))
            return nullptr;
        if (m_database != refused)
            m_site.clear();
        // What was put in the place of a copy may be none, and must not be sent to the site as if it were.
        const QString site = QFileInfo(m_database).completeBaseName();
        if (!m_site.isEmpty() && !SiteCopy::prepare(m_database, site, &error)) {
            say(stderr, error.message);
            return nullptr;
        }
    }
}

/// A large database is looked through while the window is there already. When that finds damage, the window
/// goes, and the database is opened again as one that is known to be damaged.
int Application::runWindow()
{
    for (const bool checkBehind : {true, false}) {
        const std::unique_ptr<HostNodeDB> db = open(checkBehind);
        if (!db)
            return NoDatabase;
        int exitCode = Good;
        if (ClientWindow::run(*db, m_site, m_notLoaded, &exitCode, &m_next))
            return exitCode;
    }
    return NoDatabase;
}

int Application::importCameras() const
{
    return report(CameraSurvey::importCameras(m_options->value("import")));
}

int Application::report(const CameraSurvey::ImportResult& result) const
{
    for (const CameraSurvey::BadLine& line : result.badLines)
        say(stderr, QCoreApplication::translate("Application", "%1, line %2: %3")
                        .arg(m_options->value("import"), QString::number(line.line), line.reason));
    for (const QString& column : result.ignoredColumns)
        say(stderr, QCoreApplication::translate("Application", "Column \"%1\" is not used.").arg(column));
    if (!result.error.isEmpty())
        say(stderr, result.error);
    say(stdout, QCoreApplication::translate("Application",
                                            "%1 added, %2 updated, %3 unchanged, %n line(s) with errors",
                                            nullptr, int(result.badLines.size()))
                    .arg(result.added)
                    .arg(result.updated)
                    .arg(result.unchanged));
    const bool isPart = result.storeFailed && result.added + result.updated > 0;
    if (!result.error.isEmpty() && !isPart)
        return Failed;
    return isPart || !result.badLines.isEmpty() ? SomeLinesBad : Good;
}

int Application::exportCameras() const
{
    const QString file = m_options->value("export");
    const auto passwords = m_options->isSet("without-passwords") ? CameraSurvey::Passwords::LeaveOut
                                                                 : CameraSurvey::Passwords::Write;
    const CameraSurvey::ExportResult result = CameraSurvey::exportCameras(file, passwords);
    if (!result.error.isEmpty()) {
        say(stderr, result.error);
        return Failed;
    }
    say(ExportFile::isStandardOutput(file) ? stderr : stdout,
        QCoreApplication::translate("Application", "%1 written").arg(result.written));
    if (result.skipped > 0)
        say(stderr, QCoreApplication::translate("Application", "%1 without name and address left out")
                        .arg(result.skipped));
    return Good;
}

/// What is good is kept in mind, by which it shows later that the end was cut off.
int Application::copyDatabase() const
{
    StoreError error;
    const bool isGood =
        (!m_options->isSet("backup") || StoreBackup::write(m_database, m_options->value("backup"), &error)) &&
        (!m_options->isSet("restore") ||
         StoreBackup::restore(m_options->value("restore"), m_database, &error));
    if (isGood)
        return Good;
    say(stderr, error.message);
    return Failed;
}

} // namespace ko
