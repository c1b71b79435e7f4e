#ifndef KO_PROGRESSREPORT_H
#define KO_PROGRESSREPORT_H

#include "exchange/CameraSurvey.h"

#include <QElapsedTimer>

namespace ko {

/// Asks a progress function whether to go on, not more often than it is worth.
class ProgressReport
{
public:
    explicit ProgressReport(const CameraSurvey::Progress& progress);

    /// Whether to go on with the next line; once false, always false. Asks when isDue().
    bool goOn(qint64 done, qint64 total);

    /// Whether it is time to ask again, and to let the event loop go on. Once for each line.
    bool isDue();

    /// Asks now.
    bool ask(qint64 done, qint64 total);

private:
    const CameraSurvey::Progress m_progress;
    QElapsedTimer m_sinceLast;
    int m_lines = 0;
    bool m_cancelled = false;
};

} // namespace ko

#endif
