#include "support/PostgresServer.h"

#include "support/Patience.h"

#include <QDir>
#include <QFile>
#include <QTextStream>

#include <csignal>

#include <unistd.h>

namespace testsupport {

namespace {

const char Installed[] = "/usr/lib/postgresql";

/// Where the programs of the newest version are; empty if there is none.
QString newestPrograms()
{
    int newest = 0;
    const QStringList versions = QDir(QLatin1String(Installed)).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString& version : versions)
        newest = qMax(newest, version.toInt());
    return newest ? QStringLiteral("%1/%2/bin/").arg(QLatin1String(Installed)).arg(newest) : QString();
}

/// The process that started this one.
qint64 parentOf(const QString& process)
{
    QFile file(QStringLiteral("/proc/%1/stat").arg(process));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray line = file.readAll();
    return line.mid(line.lastIndexOf(')') + 2).split(' ').value(1).toLongLong(); // the name may hold anything
}

} // namespace

PostgresServer::~PostgresServer()
{
    resume();
    kill();
}

/// \a program is one of the server's own, or one of the system's with its path.
QStringList PostgresServer::unprivileged(const QString& program, const QStringList& arguments) const
{
    const QString path = program.startsWith(QLatin1Char('/')) ? program : m_programs + program;
    const QStringList command = QStringList{path} + arguments;
    if (geteuid() != 0)
        return command;
    return QStringList{QStringLiteral("setpriv"), QStringLiteral("--reuid=nobody"),
                       QStringLiteral("--regid=nogroup"), QStringLiteral("--clear-groups")} +
           command;
}

bool PostgresServer::execute(const QString& program, const QStringList& arguments, QByteArray* output)
{
    const QStringList command = unprivileged(program, arguments);
    QProcess process;
    process.setWorkingDirectory(QStringLiteral("/"));
    process.start(command.at(0), command.mid(1));
    const bool isDone = process.waitForFinished(2 * Patience) &&
                        process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    if (output)
        *output = process.readAllStandardOutput();
    m_error = isDone ? QString()
                     : program + QStringLiteral(": ") +
                           QString::fromLocal8Bit(process.readAllStandardError()) + process.errorString();
    return isDone;
}

bool PostgresServer::prepare()
{
    m_programs = newestPrograms();
    if (m_programs.isEmpty()) {
        m_error = QStringLiteral("no PostgreSQL server is installed");
        return false;
    }
    m_folder = std::make_unique<QTemporaryDir>();
    if (geteuid() == 0) { // "nobody" has to get in
        QProcess::execute(QStringLiteral("chown"), {QStringLiteral("nobody"), m_folder->path()});
    }
    return execute(QStringLiteral("initdb"),
                   {QStringLiteral("--no-sync"), QStringLiteral("--auth=trust"),
                    QStringLiteral("--encoding=UTF8"), QStringLiteral("--locale=C.UTF-8"),
                    QStringLiteral("--username=postgres"), data()});
}

bool PostgresServer::start()
{
    if (!m_folder && !prepare())
        return false;
    QElapsedTimer clock;
    clock.start();
    // What is left of a killed server holds its memory for a moment.
    while (!clock.hasExpired(Patience)) {
        if (launch())
            return true;
    }
    return false;
}

bool PostgresServer::launch()
{
    const QStringList command = unprivileged(
        QStringLiteral("postgres"),
        {QStringLiteral("-D"), data(), QStringLiteral("-k"), m_folder->path(), QStringLiteral("-h"),
         QString(), QStringLiteral("-F"), QStringLiteral("-c"), QStringLiteral("max_connections=120"),
         QStringLiteral("-c"), QStringLiteral("autovacuum=off"), QStringLiteral("-c"),
         QStringLiteral("shared_buffers=32MB")});
    m_process.setProcessChannelMode(QProcess::MergedChannels);
    m_process.setWorkingDirectory(QStringLiteral("/"));
    m_process.start(command.at(0), command.mid(1));
    while (m_process.state() != QProcess::NotRunning) {
        if (isReady())
            return true;
        m_process.waitForFinished(20);
    }
    m_error = QString::fromLocal8Bit(m_process.readAll());
    return false;
}

/// The server notes its state in the last line of this file.
bool PostgresServer::isReady()
{
    QFile file(data() + QStringLiteral("/postmaster.pid"));
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QList<QByteArray> lines = file.readAll().split('\n');
    return lines.value(0).toLongLong() == m_process.processId() && lines.value(7).trimmed() == "ready";
}

void PostgresServer::stop()
{
    if (m_process.state() == QProcess::NotRunning)
        return;
    ::kill(pid_t(m_process.processId()), SIGINT);
    if (!m_process.waitForFinished(Patience))
        kill();
}

QList<qint64> PostgresServer::processes() const
{
    QList<qint64> result;
    if (m_process.state() == QProcess::NotRunning)
        return result;
    result.append(m_process.processId());
    const QStringList all = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs);
    for (const QString& name : all) {
        if (name.at(0).isDigit() && parentOf(name) == m_process.processId())
            result.append(name.toLongLong());
    }
    return result;
}

void PostgresServer::signalAll(int number)
{
    const QList<qint64> all = processes();
    for (const qint64 process : all)
        ::kill(pid_t(process), number);
}

void PostgresServer::kill()
{
    // Else it could start one more after it was asked which there are, that lives on with the memory of all.
    if (m_process.state() != QProcess::NotRunning)
        ::kill(pid_t(m_process.processId()), SIGSTOP);
    signalAll(SIGKILL);
    if (m_process.state() != QProcess::NotRunning)
        m_process.waitForFinished(Patience);
}

void PostgresServer::pause()
{
    signalAll(SIGSTOP);
}

void PostgresServer::resume()
{
    signalAll(SIGCONT);
}

bool PostgresServer::save()
{
    QDir(saved()).removeRecursively();
    return execute(QStringLiteral("/bin/cp"), {QStringLiteral("-a"), data(), saved()});
}

bool PostgresServer::restore()
{
    QDir(data()).removeRecursively();
    return execute(QStringLiteral("/bin/cp"), {QStringLiteral("-a"), saved(), data()});
}

bool PostgresServer::createDatabase(const QString& name)
{
    return execute(QStringLiteral("createdb"), {QStringLiteral("-h"), m_folder->path(), QStringLiteral("-U"),
                                                QStringLiteral("postgres"), name});
}

QByteArray PostgresServer::dump(const QString& database)
{
    QByteArray text;
    return execute(QStringLiteral("pg_dump"),
                   {QStringLiteral("-h"), m_folder->path(), QStringLiteral("-U"), QStringLiteral("postgres"),
                    database},
                   &text)
               ? text
               : QByteArray();
}

QString PostgresServer::run(const QString& database, const QString& sql)
{
    QByteArray output;
    execute(QStringLiteral("psql"),
            {QStringLiteral("-X"), QStringLiteral("-q"), QStringLiteral("-A"), QStringLiteral("-t"),
             QStringLiteral("-v"), QStringLiteral("ON_ERROR_STOP=1"), QStringLiteral("-h"), m_folder->path(),
             QStringLiteral("-U"), QStringLiteral("postgres"), QStringLiteral("-d"), database,
             QStringLiteral("-c"), sql},
            &output);
    return QString::fromUtf8(output).trimmed();
}

QString PostgresServer::address(const QString& database, const QString& user) const
{
    return QStringLiteral("host=%1 dbname=%2 user=%3").arg(m_folder->path(), database, user);
}

QString PostgresServer::url(const QString& database, const QString& user) const
{
    return QStringLiteral("postgresql://%1@/%2?host=%3").arg(user, database, m_folder->path());
}

} // namespace testsupport
