#include "Workload.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFile>
#include <QFont>
#include <QMap>
#include <QTextStream>

#include <algorithm>
#include <cstdio>

namespace {

using namespace bench;

const int runsAtLeast = 7;
const double roomForNoise = 1.25; // of --check, on machines that do other things too
const double growthAllowed = 1.3; // of the cost per node, from the smallest size to the largest
const double growthBesides = 1.3; // or so much more than the baseline's own growth

struct Result
{
    double ours = 0; ///< medians
    double baseline = 0;
    double ratio = 0; ///< median of the runs' ratios: both of a run meet the same machine
};

double median(QVector<double> values)
{
    std::sort(values.begin(), values.end());
    const int middle = int(values.size()) / 2;
    return values.size() % 2 ? values.at(middle) : (values.at(middle - 1) + values.at(middle)) / 2;
}

Result measure(const Workload& workload, int size, int runs)
{
    const std::unique_ptr<Contest> contest = workload.make(size);
    contest->ours(); // once for what is only done once
    contest->baseline();
    QVector<double> ours;
    QVector<double> baseline;
    QVector<double> ratios;
    for (int run = 0; run < runs; ++run) {
        // Turn about, so that neither always follows the other.
        if (run % 2 == 0) {
            ours.append(contest->ours());
            baseline.append(contest->baseline());
        } else {
            baseline.append(contest->baseline());
            ours.append(contest->ours());
        }
        ratios.append(ours.constLast() / baseline.constLast());
    }
    return {median(ours), median(baseline), median(ratios)};
}

/// With --check a miss must show again: other programs take the machine away for seconds.
Result measureAgain(const Workload& workload, int size, int runs, double allowed)
{
    Result best = measure(workload, size, runs);
    for (int again = 0; again < 2 && best.ratio > allowed; ++again) {
        const Result next = measure(workload, size, runs);
        if (next.ratio < best.ratio)
            best = next;
    }
    return best;
}

QString number(double value)
{
    return value >= 100 ? QString::number(value, 'f', 0) : QString::number(value, 'g', value >= 10 ? 3 : 2);
}

/// How much more a node costs at the largest size than at the smallest.
double growth(const QMap<int, Result>& results, double Result::*what)
{
    const double first = results.first().*what / results.firstKey();
    const double last = results.last().*what / results.lastKey();
    return last / first;
}

struct Options
{
    QVector<int> sizes = allSizes;
    int runs = runsAtLeast;
    QString filter;
    bool check = false;
};

class Report
{
public:
    explicit Report(const Options& options)
        : m_options(options)
    {
        add(QStringLiteral("| workload | against | nodes | ours | baseline | ratio | bound |"));
        add(QStringLiteral("|---|---|---:|---:|---:|---:|---:|"));
    }

    void run(const Workload& workload)
    {
        QMap<int, Result> results;
        for (const int size : workload.sizes) {
            if (!m_options.sizes.contains(size))
                continue;
            const double asked = workload.held > 0 ? workload.held : workload.bound;
            const Result result = m_options.check
                                      ? measureAgain(workload, size, m_options.runs, asked * roomForNoise)
                                      : measure(workload, size, m_options.runs);
            results.insert(size, result);
            add(QStringLiteral("| %1 | %2 | %3 | %4 | %5 | %6 | %7 |")
                    .arg(workload.name, workload.baseline)
                    .arg(size)
                    .arg(number(result.ours), number(result.baseline), number(result.ratio),
                         number(workload.bound)));
            if (result.ratio > (m_options.check ? asked * roomForNoise : workload.bound))
                miss(QStringLiteral("%1, %2 nodes: ratio %3, bound %4. %5")
                         .arg(workload.name)
                         .arg(size)
                         .arg(number(result.ratio), number(m_options.check ? asked : workload.bound),
                              workload.why)
                         .trimmed());
        }
        if (workload.perNode && results.size() > 1)
            checkGrowth(workload, results);
    }

    const QStringList& lines() const { return m_lines; }
    const QStringList& growthLines() const { return m_growth; }
    const QStringList& missed() const { return m_missed; }

private:
    void checkGrowth(const Workload& workload, const QMap<int, Result>& results)
    {
        const double ours = growth(results, &Result::ours);
        const double theirs = growth(results, &Result::baseline);
        m_growth.append(QStringLiteral("| %1 | %2 | %3 | %4 |")
                            .arg(workload.name, workload.baseline, number(ours), number(theirs)));
        if (ours > growthAllowed && ours > growthBesides * theirs)
            miss(QStringLiteral("%1: a node costs %2 times more at %3 nodes than at %4 (baseline %5)")
                     .arg(workload.name, number(ours))
                     .arg(results.lastKey())
                     .arg(results.firstKey())
                     .arg(number(theirs)));
    }

    void add(const QString& line)
    {
        m_lines.append(line);
        std::printf("%s\n", qPrintable(line));
        std::fflush(stdout);
    }

    void miss(const QString& what)
    {
        m_missed.append(what);
        std::printf("MISSED %s\n", qPrintable(what));
    }

    const Options m_options;
    QStringList m_lines;
    QStringList m_growth;
    QStringList m_missed;
};

/// The peak of this process's memory in MiB, as the kernel keeps it.
QString peakMemory()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return QStringLiteral("unknown");
    const QList<QByteArray> lines = status.readAll().split('\n');
    for (const QByteArray& line : lines) {
        if (line.startsWith("VmHWM:"))
            return QString::number(line.mid(6).trimmed().split(' ').value(0).toLongLong() / 1024);
    }
    return QStringLiteral("unknown");
}

bool writeDocument(const QString& fileName, const Report& report, const Options& options)
{
    QFile file(fileName);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    QTextStream out(&file);
    out << "# Performance\n\n"
        << "Written by `./bench --write`; do not edit. Each workload runs beside its baseline in the same "
           "process,\n"
        << "turn about; figures are medians of " << options.runs
        << " runs in milliseconds (memory: bytes), the ratio is the median of\nthe runs' ratios. Machines "
           "differ, "
           "ratios less so.\n\n";
    for (const QString& line : report.lines())
        out << line << '\n';
    out << "\n## How the cost per node grows from the smallest size to the largest\n\n"
        << "| workload | against | ours | baseline |\n|---|---|---:|---:|\n";
    for (const QString& line : report.growthLines())
        out << line << '\n';
    out << "\nPeak memory of the whole run: " << peakMemory() << " MiB.\n";
    if (!report.missed().isEmpty())
        out << "\n## Bounds that are missed\n\n";
    for (const QString& line : report.missed())
        out << "- " << line << '\n';
    out.flush();
    return out.status() == QTextStream::Ok;
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QApplication::setStyle(QStringLiteral("fusion"));
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 9));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Measures workloads beside their baselines."));
    parser.addHelpOption();
    const QCommandLineOption size(QStringLiteral("size"), QStringLiteral("Only with so many nodes."),
                                  QStringLiteral("NODES"));
    const QCommandLineOption runs(QStringLiteral("runs"), QStringLiteral("So many runs of each, at least 7."),
                                  QStringLiteral("RUNS"), QString::number(runsAtLeast));
    const QCommandLineOption filter(QStringLiteral("only"),
                                    QStringLiteral("Only workloads with this text in their name."),
                                    QStringLiteral("TEXT"));
    const QCommandLineOption check(QStringLiteral("check"),
                                   QStringLiteral("Fail when a bound is missed, with room for noise."));
    const QCommandLineOption write(QStringLiteral("write"), QStringLiteral("Write the tables to FILE."),
                                   QStringLiteral("FILE"));
    parser.addOptions({size, runs, filter, check, write});
    parser.process(app);

    Options options;
    if (parser.isSet(size))
        options.sizes = {parser.value(size).toInt()};
    options.runs = std::max(runsAtLeast, parser.value(runs).toInt());
    options.filter = parser.value(filter);
    options.check = parser.isSet(check);

    Report report(options);
    const QVector<Workload> all = storeWorkloads() + listWorkloads() + changeWorkloads() + backupWorkloads() +
                                  dialogWorkloads() + scanWorkloads() + startWorkloads() +
                                  historyWorkloads() + sharingWorkloads();
    for (const Workload& workload : all) {
        if (workload.name.contains(options.filter, Qt::CaseInsensitive))
            report.run(workload);
    }
    if (parser.isSet(write) && !writeDocument(parser.value(write), report, options)) {
        std::fprintf(stderr, "%s cannot be written\n", qPrintable(parser.value(write)));
        return 1;
    }
    std::printf("%d bounds missed\n", int(report.missed().size()));
    return options.check && !report.missed().isEmpty() ? 2 : 0;
}
