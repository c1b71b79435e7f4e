#ifndef KO_DEVICECHECKS_H
#define KO_DEVICECHECKS_H

#include "HostExport.h"
#include "devices/DeviceReport.h"
#include "ko/TrContext.h"

#include <QObject>
#include <QThread>

#include <memory>

namespace ko {

/// Checks many devices, in a thread of its own, a bounded number at a time.
///
/// Targets at one address and port are one device (the channels of a recorder): those with the same
/// credentials are checked once and have one report each; when the device refused a password, other ones are
/// not tried, and their targets are NotChecked, so that no account is locked.
class KO_HOST_EXPORT DeviceChecks : public QObject
{
    Q_OBJECT
    KO_TR_CONTEXT(DeviceChecks)

public:
    enum Limits {
        MostAtOnce = 64,     ///< devices
        StartsInStep = 8,    ///< this many more at most
        StepTime = 10,       ///< ms
        ReportInterval = 100 ///< ms
    };

    explicit DeviceChecks(QObject* parent = nullptr);

    /// Cancels, and waits for the thread: some milliseconds, and until a picture is read.
    ~DeviceChecks() override;

    /// Begins; does nothing while it is running. Each target has exactly one report, unless cancelled.
    void start(const QVector<DeviceTarget>& targets);

    /// At once: nothing is reported any more when it has returned, finished() neither.
    void cancel();

    bool isRunning() const { return m_worker != nullptr; }
    int done() const { return m_done; }
    int total() const { return m_total; }

signals:
    /// A share of the reports, in no order.
    void checked(const QVector<ko::DeviceReport>& reports);

    /// After the last report.
    void finished();

private:
    class Worker;

    void take(int run, const QVector<DeviceReport>& reports);
    void retire();

    QThread m_thread;
    Worker* m_worker = nullptr; ///< lives in the thread, and goes by itself when it is retired
    int m_run = 0;              ///< what is still on its way from an earlier one is not reported
    int m_done = 0;
    int m_total = 0;
};

} // namespace ko

#endif
