#ifndef TESTS_SUPPORT_POSTGRESSERVER_H
#define TESTS_SUPPORT_POSTGRESSERVER_H

#include <QProcess>
#include <QTemporaryDir>

#include <memory>

namespace testsupport {

/// A PostgreSQL server of its own, of the newest version that is installed, in a temporary folder and on a
/// local socket only. It does not run as root, which it refuses, but as "nobody" then. Everybody who may open
/// the folder may connect as anybody: who may do what is for the database to say.
///
/// It does not flush to the disk: that it is killed loses nothing, only a power cut would.
class PostgresServer
{
public:
    PostgresServer() = default;
    ~PostgresServer();

    /// Makes the cluster the first time, starts the server and waits until it takes connections.
    bool start();
    /// Ends it as an administrator does: connections are cut, what is committed is kept.
    void stop();
    /// SIGKILL to all its processes.
    void kill();
    /// Connections stay and nothing moves any more, until resume().
    void pause();
    void resume();

    /// The cluster as it is now, to be brought back later. Only while the server is not running.
    bool save();
    bool restore();

    bool createDatabase(const QString& name);
    /// Runs statements as the superuser "postgres"; rows as lines, columns separated by "|".
    QString run(const QString& database, const QString& sql);

    /// All of a database as an administrator's backup has it; empty if that failed.
    QByteArray dump(const QString& database);

    /// How libpq reaches a database of it.
    QString address(const QString& database, const QString& user = QStringLiteral("postgres")) const;

    /// The same as a URL.
    QString url(const QString& database, const QString& user = QStringLiteral("postgres")) const;

    /// Why something returned false.
    const QString& error() const { return m_error; }

private:
    Q_DISABLE_COPY(PostgresServer)
    bool prepare();
    bool launch();
    bool isReady();
    bool execute(const QString& program, const QStringList& arguments, QByteArray* output = nullptr);
    QStringList unprivileged(const QString& program, const QStringList& arguments) const;
    QList<qint64> processes() const;
    void signalAll(int number);
    QString data() const { return m_folder->filePath(QStringLiteral("data")); }
    QString saved() const { return m_folder->filePath(QStringLiteral("saved")); }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_programs;
    QProcess m_process;
    QString m_error;
};

} // namespace testsupport

#endif
