#include "audit/ProgramLog.h"

#include "HandOver.h"
#include "audit/LogStore.h"
#include "audit/ProgramLogEntry.h"
#include "ko/OutsideText.h"
#include "ko/Terminal.h"
#include "model/Redaction.h"

#include <QCoreApplication>
#include <QThread>

namespace ko {

ProgramLog::ProgramLog(LogStore& store)
    : m_store(store)
{
    LogQt::instance().setSink(this);
}

ProgramLog::~ProgramLog()
{
    LogQt::instance().setSink(nullptr);
    QCoreApplication::sendPostedEvents(this); // lines of other threads
}

void ProgramLog::write(int level, const QString& line)
{
    ProgramRow row;
    row.time = QDateTime::currentMSecsSinceEpoch();
    row.level = level;
    row.line = OutsideText::visible(Redaction::redacted(line)); // one line stays one line
    Terminal::say(stderr, row.line);
    if (QThread::currentThread() == thread())
        m_store.append(row);
    else
        handOver(this, [this, row] { m_store.append(row); });
}

std::vector<AuditRecord> ProgramLog::entries(qint64 from, qint64 count, bool newestFirst) const
{
    std::vector<AuditRecord> records;
    const QVector<ProgramRow> rows = m_store.programRows({from, count, newestFirst});
    records.reserve(std::size_t(rows.size()));
    for (const ProgramRow& row : rows)
        records.push_back({row.seq, QDateTime::fromMSecsSinceEpoch(row.time, Qt::UTC), QString(), QString(),
                           ProgramLogEntry::code(), std::make_unique<ProgramLogEntry>(row.level, row.line),
                           0});
    return records;
}

qint64 ProgramLog::count() const
{
    return m_store.programCount();
}

} // namespace ko
