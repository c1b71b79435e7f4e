#include "sharing/SiteKeyWork.h"

#include "HandOver.h"

namespace ko {

SiteKeyWork::SiteKeyWork(const QString& address, const SiteKeyTask& task, QObject* parent)
    : QObject(parent)
    , m_thread([this, address, task] { run(address, task); })
{
}

SiteKeyWork::~SiteKeyWork()
{
    m_connection.interrupt();
    m_thread.join();
}

void SiteKeyWork::run(const QString& address, const SiteKeyTask& task)
{
    SiteKeyOutcome outcome;
    outcome.failure = m_connection.open(address);
    if (outcome.failure)
        outcome.kind = SiteKeyOutcome::Failed;
    else
        outcome = perform(task, m_connection);
    handOver(this, [this, outcome] { emit done(outcome); });
}

} // namespace ko
