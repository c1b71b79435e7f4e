#ifndef KO_BENCHMARKS_WORKLOAD_H
#define KO_BENCHMARKS_WORKLOAD_H

#include <QString>
#include <QVector>

#include <functional>
#include <memory>

namespace bench {

/// One workload at one size, and what it is measured against. Each call is one run and returns its
/// milliseconds; what it prepares and clears away does not count.
class Contest
{
public:
    virtual ~Contest() = default;
    virtual double ours() = 0;
    virtual double baseline() = 0;
};

struct Workload
{
    QString name;
    QString baseline; ///< what it is measured against, in words
    double bound;     ///< the largest allowed ours/baseline
    QVector<int> sizes;
    std::function<std::unique_ptr<Contest>(int size)> make;
    /// Whether size is the number of nodes that the work goes through. Then the cost per node must not
    /// grow with it, or no more than the baseline's.
    bool perNode = true;
    double held = 0; ///< where the bound cannot be met: the ratio that --check asks for
    QString why{};   ///< and what stands in the way
};

/// Makes contests of this kind, which takes the size first.
template <class Kind, class... Options>
std::function<std::unique_ptr<Contest>(int)> make(Options... options)
{
    return [=](int size) { return std::make_unique<Kind>(size, options...); };
}

const QVector<int> allSizes = {1000, 10000, 100000};

/// The workloads of one subject, in the order of the table.
QVector<Workload> storeWorkloads();
QVector<Workload> listWorkloads();
QVector<Workload> changeWorkloads();
QVector<Workload> backupWorkloads();
QVector<Workload> dialogWorkloads();
QVector<Workload> scanWorkloads();
QVector<Workload> startWorkloads();
QVector<Workload> historyWorkloads();
QVector<Workload> sharingWorkloads();

} // namespace bench

#endif
