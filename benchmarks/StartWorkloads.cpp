#include "Site.h"
#include "Stopwatch.h"
#include "Workload.h"

#include <QFile>
#include <QProcess>

#include <fcntl.h>
#include <unistd.h>

namespace bench {

namespace {

/// The client, from the start of its process to its first picture, on a file that is not in memory.
class Starting : public Contest
{
public:
    explicit Starting(int size)
        : m_copy(size)
    {
    }

    double ours() override
    {
        QFile file(m_copy.file());
        if (!file.open(QIODevice::ReadWrite) || fsync(file.handle()) != 0 ||
            posix_fadvise(file.handle(), 0, 0, POSIX_FADV_DONTNEED) != 0)
            qFatal("%s cannot be taken out of memory", qPrintable(file.fileName()));
        return run(QStringLiteral("kobench_client"), {QStringLiteral("--db"), m_copy.file()});
    }

    double baseline() override { return run(QStringLiteral("kobench_empty"), QStringList()); }

private:
    double run(const QString& name, const QStringList& arguments) const
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("HOME"), m_home.path());
        process.setProcessEnvironment(environment);
        process.setStandardErrorFile(QProcess::nullDevice());
        const QString program = QCoreApplication::applicationDirPath() + QLatin1Char('/') + name;
        const double time = milliseconds([&] {
            process.start(program, arguments);
            process.waitForFinished();
        });
        if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
            qFatal("%s failed: %s", qPrintable(name), qPrintable(process.errorString()));
        return time;
    }

    SiteCopy m_copy;
    QTemporaryDir m_home;
};

} // namespace

QVector<Workload> startWorkloads()
{
    const QString why = QStringLiteral(
        "Without a display an empty window takes about 20 ms. SQLite needs 45 for the rows alone, "
        "and the disk 150 to bring a file of 70 MB in which they lie scattered; from memory the "
        "client starts in 140.");
    const auto make = [](int size) { return std::make_unique<Starting>(size); };
    return {{QStringLiteral("start of the client, to its first picture"),
             QStringLiteral("a program with an empty window"),
             3.0,
             {1000},
             make,
             false},
            {QStringLiteral("start of the client, to its first picture"),
             QStringLiteral("a program with an empty window"),
             3.0,
             {100000},
             make,
             false,
             20,
             why}};
}

} // namespace bench
