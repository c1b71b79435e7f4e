#include "exchange/ProgressReport.h"

#include "ko/NodeDB.h"

namespace ko {

ProgressReport::ProgressReport(const CameraSurvey::Progress& progress)
    : m_progress(progress)
{
}

bool ProgressReport::isDue()
{
    return !m_sinceLast.isValid() || ++m_lines >= 100 || m_sinceLast.elapsed() >= 20;
}

bool ProgressReport::ask(qint64 done, qint64 total)
{
    m_sinceLast.start();
    m_lines = 0;
    // The event loop may run meanwhile, and close the database.
    if (!m_cancelled && m_progress)
        m_cancelled = !m_progress(done, total) || !NodeDB::getDB();
    return !m_cancelled;
}

bool ProgressReport::goOn(qint64 done, qint64 total)
{
    return isDue() ? ask(done, total) : !m_cancelled;
}

} // namespace ko
