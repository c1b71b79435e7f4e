#include "exchange/ProgressReport.h"

#include "ko/NodeDB.h"

namespace ko {

ProgressReport::ProgressReport(const CameraSurvey::Progress& progress)
    : m_progress(progress)
{
}

bool ProgressReport::goOn(qint64 done, qint64 total)
{
    const bool due = !m_sinceLast.isValid() || ++m_lines >= 100 || m_sinceLast.elapsed() >= 20;
    if (!due || m_cancelled || !m_progress)
        return !m_cancelled;
    // The event loop may have run, and closed the database.
    m_cancelled = !m_progress(done, total) || !NodeDB::getDB();
    m_sinceLast.start();
    m_lines = 0;
    return !m_cancelled;
}

} // namespace ko
