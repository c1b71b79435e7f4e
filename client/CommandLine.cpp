#include "CommandLine.h"

#include "CommandOptions.h"
#include "DatabaseRecovery.h"
#include "KeychainNotice.h"
#include "MainWindow.h"
#include "PlainMessageBox.h"
#include "Tour.h"
#include "audit/ProgramLog.h"
#include "database/HostNodeDB.h"
#include "discovery/ArpScanner.h"
#include "discovery/MdnsScanner.h"
#include "discovery/WsDiscoveryScanner.h"
#include "exchange/CameraSurvey.h"
#include "exchange/ExportFile.h"
#include "exchange/FileName.h"
#include "ko/Terminal.h"
#include "store/BackupKeeper.h"
#include "store/StoreBackup.h"
#include "store/StoreFile.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

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
        QMessageBox::Warning, parent, QCoreApplication::translate("CommandLine", "Node Database"),
        QCoreApplication::translate("CommandLine",
                                    "The node database \"%1\" lies on a network drive. Two programs that "
                                    "use it there at the same time may damage it. Move it to a disk of "
                                    "this computer.")
            .arg(QDir::toNativeSeparators(file)));
}

} // namespace

CommandLine::CommandLine(int& argc, char** argv)
    : m_argc(argc)
    , m_argv(argv)
{
    QCoreApplication::setOrganizationName(QStringLiteral("Ko Node UI"));
    QCoreApplication::setApplicationName(QStringLiteral("koclient"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KO_VERSION));
}

bool CommandLine::parse()
{
    QStringList arguments;
    for (int i = 0; i < m_argc; ++i)
        arguments.append(FileName::fromBytes(m_argv[i]));
    CommandOptions options;
    const QString refusal = options.read(arguments);
    if (!refusal.isEmpty())
        return refuse(refusal);
    if (options.asksForHelp() || options.isSet("version")) {
        const QCoreApplication application(m_argc, m_argv); // the texts name the program
        const QString text = options.asksForHelp() ? options.helpText()
                                                   : QCoreApplication::applicationName() + QLatin1Char(' ') +
                                                         QCoreApplication::applicationVersion();
        const QStringList lines = text.split(QLatin1Char('\n'));
        for (const QString& line : lines)
            say(stdout, line);
        return false;
    }
    m_database = options.value("db");
    m_import = options.value("import");
    m_export = options.value("export");
    m_backup = options.value("backup");
    m_restore = options.value("restore");
    m_tour = options.value("tour");
    m_survey = options.value("tour-survey");
    m_tourCameras = options.value("tour-scans").toInt();
    m_leaveOutPasswords = options.isSet("without-passwords");
    m_checkTour = options.isSet("check-tour");
    if (!needsWindow() && !options.toolkitOption().isEmpty())
        return refuse(
            QCoreApplication::translate("CommandLine", "%1 is for windows, and none is opened here.")
                .arg(options.toolkitOption()));
    return canBeNamed({m_database, m_export, m_backup, m_restore, m_tour, m_survey});
}

bool CommandLine::refuse(const QString& reason)
{
    say(stderr, reason);
    m_exitCode = WrongUsage;
    return false;
}

/// All but the list to import, which is opened by the bytes of its name.
bool CommandLine::canBeNamed(const QStringList& files)
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

int CommandLine::run()
{
    qInstallMessageHandler(sayMessage);
    if (!parse())
        return m_exitCode;
    keepFilesPrivate();
    const std::unique_ptr<QCoreApplication> application(needsWindow() ? new QApplication(m_argc, m_argv)
                                                                      : new QCoreApplication(m_argc, m_argv));
    return runTask();
}

bool CommandLine::needsWindow() const
{
    const QStringList tasks = {m_import, m_export, m_backup, m_restore};
    return !m_checkTour && tasks.join(QString()).isEmpty();
}

QString CommandLine::databaseFile() const
{
    return m_database.isEmpty() ? defaultDatabase() : m_database;
}

int CommandLine::runTask()
{
    if (!m_backup.isEmpty() || !m_restore.isEmpty()) {
        const int copied = copyDatabase();
        if (copied != Good || (m_import.isEmpty() && m_export.isEmpty()))
            return copied;
    }
    const bool interactive = needsWindow() && m_tour.isEmpty();
    KeychainNotice notice(interactive ? KeychainNotice::Way::Window : KeychainNotice::Way::Line);
    if (!notice.prepare())
        return Good;
    if (needsWindow())
        return runWindow();
    if (!m_import.isEmpty() && !QFileInfo::exists(StoreFile::resolved(databaseFile()))) {
        // A list that is refused must not leave a new database behind.
        const CameraSurvey::ImportResult refused = CameraSurvey::check(m_import);
        if (!refused.error.isEmpty())
            return report(refused);
    }
    const std::unique_ptr<HostNodeDB> db = open(false);
    if (!db)
        return NoDatabase;
    const ProgramLog log(db->logStore());
    if (m_checkTour)
        return Tour::check(*db) ? Good : Failed;
    const int imported = m_import.isEmpty() ? Good : importCameras();
    return imported == Failed || m_export.isEmpty() ? imported : qMax(imported, exportCameras());
}

/// Null after the user was told why. The user of a window may choose another file.
std::unique_ptr<HostNodeDB> CommandLine::open(bool checkBehind)
{
    const bool interactive = needsWindow() && m_tour.isEmpty();
    const HostNodeDB::Check check = checkBehind ? HostNodeDB::Check::Behind : HostNodeDB::Check::First;
    for (;;) {
        StoreError error;
        QString file = databaseFile();
        std::unique_ptr<HostNodeDB> db = HostNodeDB::open(file, &error, check);
        if (db)
            return db;
        say(stderr, error.message);
        if (!interactive || !DatabaseRecovery::offer(&file, error, nullptr))
            return nullptr;
        m_database = file;
    }
}

/// A large database is looked through while the window is there already. When that finds damage, the window
/// goes, and the database is opened again as one that is known to be damaged.
int CommandLine::runWindow()
{
    for (const bool checkBehind : {m_tour.isEmpty(), false}) {
        const std::unique_ptr<HostNodeDB> db = open(checkBehind);
        if (!db)
            return NoDatabase;
        int exitCode = Good;
        if (showWindow(*db, &exitCode))
            return exitCode;
    }
    return NoDatabase;
}

/// False when the file must not be used any more.
bool CommandLine::showWindow(HostNodeDB& db, int* exitCode) const
{
    const ProgramLog log(db.logStore());
    const BackupKeeper backups(db.fileName());
    db.addScanner(std::make_unique<MdnsScanner>());
    db.addScanner(std::make_unique<ArpScanner>());
    db.addScanner(std::make_unique<WsDiscoveryScanner>());
    MainWindow window(db);
    bool isUsable = true;
    QObject::connect(&db, &HostNodeDB::checked, &window, [&isUsable](const StoreError& error) {
        isUsable = !error;
        if (error)
            QApplication::exit();
    });
    window.show();
    if (m_tour.isEmpty() && StoreFile::isOnNetwork(db.fileName()))
        warnAboutNetwork(db.fileName(), &window);
    if (!m_tour.isEmpty())
        *exitCode = runTour(db, window) ? Good : Failed;
    else if (isUsable)
        *exitCode = QApplication::exec();
    return isUsable;
}

bool CommandLine::runTour(HostNodeDB& db, MainWindow& window) const
{
    Tour tour(db, window, m_tour);
    return m_tourCameras > 0 ? tour.runScans(m_tourCameras) : tour.run(m_survey);
}

int CommandLine::importCameras() const
{
    return report(CameraSurvey::importCameras(m_import, [](qint64, qint64) {
        QCoreApplication::processEvents(); // the database stores what was done so far
        return true;
    }));
}

int CommandLine::report(const CameraSurvey::ImportResult& result) const
{
    for (const CameraSurvey::BadLine& line : result.badLines)
        say(stderr, QCoreApplication::translate("CommandLine", "%1, line %2: %3")
                        .arg(m_import, QString::number(line.line), line.reason));
    for (const QString& column : result.ignoredColumns)
        say(stderr, QCoreApplication::translate("CommandLine", "Column \"%1\" is not used.").arg(column));
    if (!result.error.isEmpty())
        say(stderr, result.error);
    say(stdout,
        QCoreApplication::translate("CommandLine", "%1 added, %2 updated, %3 unchanged, %4 lines with errors")
            .arg(result.added)
            .arg(result.updated)
            .arg(result.unchanged)
            .arg(result.badLines.size()));
    const bool isPart = result.storeFailed && result.added + result.updated > 0;
    if (!result.error.isEmpty() && !isPart)
        return Failed;
    return isPart || !result.badLines.isEmpty() ? SomeLinesBad : Good;
}

int CommandLine::exportCameras() const
{
    const CameraSurvey::ExportResult result = CameraSurvey::exportCameras(
        m_export, m_leaveOutPasswords ? CameraSurvey::Passwords::LeaveOut : CameraSurvey::Passwords::Write);
    if (!result.error.isEmpty()) {
        say(stderr, result.error);
        return Failed;
    }
    say(ExportFile::isStandardOutput(m_export) ? stderr : stdout,
        QCoreApplication::translate("CommandLine", "%1 written").arg(result.written));
    if (result.skipped > 0)
        say(stderr, QCoreApplication::translate("CommandLine", "%1 without name and address left out")
                        .arg(result.skipped));
    return Good;
}

int CommandLine::copyDatabase() const
{
    StoreError error;
    if (!m_backup.isEmpty() && !StoreBackup::write(databaseFile(), m_backup, &error)) {
        say(stderr, error.message);
        return Failed;
    }
    if (!m_restore.isEmpty() && !StoreBackup::restore(m_restore, databaseFile(), &error)) {
        say(stderr, error.message);
        return Failed;
    }
    return Good;
}

} // namespace ko
