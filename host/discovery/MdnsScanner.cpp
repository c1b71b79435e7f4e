#include "discovery/MdnsScanner.h"

#include "discovery/MdnsSession.h"
#include "ko/LogQt.h"

#include <avahi-common/error.h>

namespace ko {

QString MdnsScanner::name() const
{
    return QLatin1String("mDNS");
}

std::shared_ptr<ScanSession> MdnsScanner::begin(const ScanSession::Take& take, unsigned interfaces, int limit)
{
    return MdnsSession::begin(*this, take, interfaces, limit);
}

void MdnsScanner::explain(ScannerState& state, int error)
{
    if (error != 0)
        LogQt::line(LogQt::Warning, QString::fromLatin1("The mDNS scan waits for the Avahi daemon: %1")
                                        .arg(QString::fromUtf8(avahi_strerror(error))));
    const bool isMissing = error == AVAHI_ERR_NO_DAEMON || error == AVAHI_ERR_DISCONNECTED;
    if (state.phase == ScannerState::Unavailable)
        state.reason = {"MdnsScanner",
                        isMissing ? QT_TRANSLATE_NOOP("MdnsScanner", "the Avahi daemon is not running")
                                  : QT_TRANSLATE_NOOP("MdnsScanner", "the Avahi daemon does not answer")};
    state.where = {"MdnsScanner", QT_TRANSLATE_NOOP("MdnsScanner", "all interfaces")};
}

} // namespace ko
