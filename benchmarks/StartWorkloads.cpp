#include "Site.h"
#include "Stopwatch.h"
#include "Workload.h"

#include <QFile>
#include <QProcess>

#include <fcntl.h>
#include <unistd.h>

namespace bench {

namespace {

/// The client, from the start of its process to a picture, on a file that is not in memory. It was used and
/// closed before.
class Starting : public Contest
{
public:
    enum class Until { Picture, WholeList };

    Starting(int size, Until until)
        : m_until(until)
        , m_copy(size)
    {
        run(client, {QStringLiteral("--db"), m_copy.file()}, "close");
    }

    double ours() override
    {
        QFile file(m_copy.file());
        if (!file.open(QIODevice::ReadWrite) || fsync(file.handle()) != 0 ||
            posix_fadvise(file.handle(), 0, 0, POSIX_FADV_DONTNEED) != 0)
            qFatal("%s cannot be taken out of memory", qPrintable(file.fileName()));
        return run(client, {QStringLiteral("--db"), m_copy.file()},
                   m_until == Until::WholeList ? "list" : "");
    }

    double baseline() override { return run("kobench_empty", QStringList(), ""); }

private:
    static constexpr char client[] = "kobench_client";

    double run(const char* name, const QStringList& arguments, const char* end) const
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("HOME"), m_home.path());
        environment.insert(QStringLiteral("KOBENCH_END"), QLatin1String(end));
        process.setProcessEnvironment(environment);
        process.setStandardErrorFile(QProcess::nullDevice());
        const QString program =
            QCoreApplication::applicationDirPath() + QLatin1Char('/') + QLatin1String(name);
        const double time = milliseconds([&] {
            process.start(program, arguments);
            process.waitForFinished();
        });
        if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
            qFatal("%s failed: %s", name, qPrintable(process.errorString()));
        return time;
    }

    const Until m_until;
    SiteCopy m_copy;
    QTemporaryDir m_home;
};

} // namespace

QVector<Workload> startWorkloads()
{
    const QString window = QStringLiteral("a program with an empty window");
    const QString picture = QStringLiteral("start of the client, to its first picture");
    return {
        {picture, window, 3.0, {1000}, make<Starting>(Starting::Until::Picture), false},
        {picture, window, 3.5, {100000}, make<Starting>(Starting::Until::Picture), false},
        {QStringLiteral("start of the client, until its list has all nodes"),
         window,
         3.5,
         {100000},
         make<Starting>(Starting::Until::WholeList),
         false,
         20,
         QStringLiteral("SQLite needs as long as two empty windows for the rows alone; they are read and "
                        "sorted by a thread behind the first picture.")},
    };
}

} // namespace bench
