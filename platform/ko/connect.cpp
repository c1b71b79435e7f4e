#include "ko/connect.h"

#include "ko/LogQt.h"

namespace ko {

bool connect(const QObject* sender, const char* signal, const QObject* receiver, const char* member,
             Qt::ConnectionType type)
{
    const bool connected = QObject::connect(sender, signal, receiver, member, type);
    if (!connected) {
        // The first character of each text is Qt's code for signal or slot.
        LogQt::line(LogQt::Error, QString::fromLatin1("Cannot connect %1 to %2")
                                      .arg(QLatin1String(signal + 1), QLatin1String(member + 1)));
        Q_ASSERT_X(connected, "ko::connect", signal + 1);
    }
    return connected;
}

} // namespace ko
