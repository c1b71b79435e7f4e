#ifndef KO_LOGNOTICE_H
#define KO_LOGNOTICE_H

#include "ko/TrContext.h"
#include "model/LogFinding.h"
#include "model/StoreError.h"

#include <QTimer>
#include <QToolButton>

#include <atomic>
#include <future>
#include <optional>

namespace ko {

class HostNodeDB;

/// Follows the logs of the database in the background, once after the start, and tells in the status bar what
/// was altered. Hidden if nothing was: then it keeps in mind, see LogCheckpoint, how far they go.
class LogNotice : public QToolButton
{
    Q_OBJECT
    KO_TR_CONTEXT(LogNotice)

public:
    /// The database outlives the widget.
    explicit LogNotice(const HostNodeDB& db, QWidget* parent = nullptr);
    ~LogNotice() override;

private:
    void verify();
    void take(const std::optional<LogReport>& report, const StoreError& error);
    void keepEnd() const;
    void retranslate();
    void showFindings();

    const QString m_file;
    std::atomic<bool> m_isEnding = false;
    std::future<void> m_verification;
    QTimer m_timer;
    QVector<LogFinding> m_findings;
    bool m_isGood = false;
};

} // namespace ko

#endif
