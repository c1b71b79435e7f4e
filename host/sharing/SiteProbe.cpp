#include "sharing/SiteProbe.h"

#include "HandOver.h"

namespace ko {

SiteProbe::SiteProbe(const QString& address, Way way)
    : m_thread([this, address, way] { run(address, way); })
{
}

SiteProbe::~SiteProbe()
{
    m_connection.interrupt();
    m_thread.join();
}

void SiteProbe::run(const QString& address, Way way)
{
    SiteGreeting greeting;
    SharingFailure failure = m_connection.open(address);
    if (!failure && way == Way::Prepare)
        failure = m_connection.prepareSite();
    if (!failure)
        failure = m_connection.greet(&greeting);
    handOver(this, [this, greeting, failure] { emit done(greeting, failure); });
}

} // namespace ko
