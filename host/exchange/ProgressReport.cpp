#include "exchange/ProgressReport.h"

#include "ko/NodeDB.h"

namespace ko {

namespace {

const int halfAFrame = 8; // milliseconds: storing what was read takes as long again
const int linesWhenWatched = 100;
const int linesElse = 500; // of which a commit takes a small part of the time

} // namespace

ProgressReport::ProgressReport(const CameraSurvey::Progress& progress)
    : m_progress(progress)
{
}

bool ProgressReport::isDue()
{
    if (!m_sinceLast.isValid() || ++m_lines >= (m_progress ? linesWhenWatched : linesElse))
        return true;
    return m_progress && m_sinceLast.elapsed() >= halfAFrame;
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
