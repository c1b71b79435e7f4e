#include "Application.h"

#include "DatabaseRecovery.h"
#include "KeychainNotice.h"
#include "Languages.h"
#include "MainWindow.h"
#include "PlainMessageBox.h"
#include "audit/AuditLog.h"
#include "audit/HistoryLogEntry.h"
#include "audit/ProgramLog.h"
#include "database/HostNodeDB.h"
#include "discovery/ArpScanner.h"
#include "discovery/MdnsScanner.h"
#include "discovery/Scanners.h"
#include "discovery/WsDiscoveryScanner.h"
#include "exchange/CameraSurvey.h"
#include "exchange/ExportFile.h"
#include "exchange/FileName.h"
#include "ko/Terminal.h"
#include "store/BackupKeeper.h"
#include "store/HistoryKeeper.h"
#include "store/LogCheckpoint.h"
#include "store/NodeStore.h"
#include "store/StoreBackup.h"
#include "store/StoreFile.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

#include <algorithm>
#include <memory>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

namespace ko {

namespace {

using Terminal::say;

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

/// Once for each file: he who knows need not be told at every start.
void warnAboutNetwork(const QString& file, QWidget* parent)
{
    QSettings settings;
    const QString key = QStringLiteral("knownOnNetwork");
    QStringList known = settings.value(key).toStringList();
    if (known.contains(file))
        return;
    settings.setValue(key, known << file);
    PlainMessageBox::ask(
        QMessageBox::Warning, parent, QCoreApplication::translate("Application", "Node Database"),
        QCoreApplication::translate("Application",
                                    "The node database \"%1\" lies on a network drive. Two programs that "
                                    "use it there at the same time may damage it. Move it to a disk of "
                                    "this computer.")
            .arg(QDir::toNativeSeparators(file)));
}

void logThinned(HostNodeDB& db, const ThinnedHistory& thinned)
{
    db.auditLog().log(HistoryLogEntry(QString::number(thinned.last), QString::number(thinned.lines)));
}

/// False when the file must not be used any more.
bool showWindow(HostNodeDB& db, int* exitCode)
{
    const ProgramLog log(db.logStore());
    const BackupKeeper backups(db.fileName());
    const HistoryKeeper history(db.fileName());
    QObject::connect(&history, &HistoryKeeper::thinned, &db,
                     [&db](const ThinnedHistory& thinned) { logThinned(db, thinned); });
    Scanners::of(db).add(std::make_unique<MdnsScanner>());
    Scanners::of(db).add(std::make_unique<ArpScanner>());
    Scanners::of(db).add(std::make_unique<WsDiscoveryScanner>());
    MainWindow window(db);
    bool isUsable = true;
    QObject::connect(&db, &HostNodeDB::checked, &window, [&isUsable](const StoreError& error) {
        isUsable = !error;
        if (error)
            QApplication::exit();
    });
    window.show();
    if (StoreFile::isOnNetwork(db.fileName()))
        warnAboutNetwork(db.fileName(), &window);
    if (isUsable)
        *exitCode = QApplication::exec();
    return isUsable;
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
            QCoreApplication::translate("Application", "%1 is for windows, and none is opened here.")
                .arg(m_options->toolkitOption()));
    m_database = m_options->value("db");
    return canBeNamed(
        {m_database, m_options->value("export"), m_options->value("backup"), m_options->value("restore")});
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
    const std::unique_ptr<QCoreApplication> application(needsWindow() ? new QApplication(m_argc, m_argv)
                                                                      : new QCoreApplication(m_argc, m_argv));
    Languages::use(m_language);
    return runTask();
}

bool Application::needsWindow() const
{
    const auto isSet = [this](const char* task) { return m_options->isSet(task); };
    const auto tasks = {"import", "export", "backup", "restore", "verify-log", "thin-history"};
    return std::none_of(tasks.begin(), tasks.end(), isSet);
}

int Application::runTask()
{
    if (m_database.isEmpty())
        m_database = defaultDatabase();
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
    const int verified = verifies ? verifyLog() : Good;
    const int looked = thins && verified <= SomeLinesBad ? qMax(verified, thinHistory()) : verified;
    if (looked > SomeLinesBad || !(imports || exports))
        return looked;
    const std::unique_ptr<HostNodeDB> db = open(false);
    if (!db)
        return NoDatabase;
    const ProgramLog log(db->logStore());
    const int imported = imports ? importCameras() : Good;
    return qMax(looked, imported == Failed || !exports ? imported : qMax(imported, exportCameras()));
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
        if (!needsWindow() || !DatabaseRecovery::offer(&m_database, error, nullptr))
            return nullptr;
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
        if (showWindow(*db, &exitCode))
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
    say(stdout,
        QCoreApplication::translate("Application", "%1 added, %2 updated, %3 unchanged, %4 lines with errors")
            .arg(result.added)
            .arg(result.updated)
            .arg(result.unchanged)
            .arg(result.badLines.size()));
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
int Application::verifyLog() const
{
    StoreError error;
    const std::optional<LogReport> report = NodeStore::verifyLogs(
        m_database, LogCheckpoint::read(m_database), [](qint64) { return true; }, &error);
    if (!report) {
        say(stderr, error.message);
        return NoDatabase;
    }
    for (const LogFinding& finding : report->findings)
        say(stderr, finding.text());
    if (report->thinned > 0)
        say(stdout,
            QCoreApplication::translate("Application", "Details up to change number %1 were taken out")
                .arg(report->thinned));
    say(stdout, QCoreApplication::translate("Application", "%1 entries looked at, %2 older than the chain, "
                                                           "%3 links without a seal")
                    .arg(report->entries)
                    .arg(report->older)
                    .arg(report->unsealed));
    if (!report->findings.isEmpty())
        return SomeLinesBad;
    if (!report->end.log.isEmpty() && !LogCheckpoint::write(m_database, report->end))
        say(stderr, QCoreApplication::translate("Application", "%1 cannot be written.")
                        .arg(QDir::toNativeSeparators(LogCheckpoint::fileFor(m_database))));
    return Good;
}

int Application::thinHistory()
{
    const int days = m_options->value("thin-history").toInt();
    StoreError error;
    const std::optional<ThinnedHistory> thinned = NodeStore::thinHistory(
        m_database, {days, 0}, [] { return true; }, &error);
    if (!thinned) {
        say(stderr, error.message);
        return Failed;
    }
    say(stdout, QCoreApplication::translate("Application", "%1 details taken out, up to change number %2")
                    .arg(thinned->lines)
                    .arg(thinned->last));
    if (thinned->lines > 0) {
        const std::unique_ptr<HostNodeDB> db = open(false);
        if (!db)
            return NoDatabase;
        logThinned(*db, *thinned);
    }
    if (thinned->isAltered)
        say(stderr, QCoreApplication::translate("Application", "Not any further: the history was altered. "
                                                               "--verify-log names what."));
    return thinned->isAltered ? SomeLinesBad : Good;
}

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
