#include "support/TestMain.h"

#include <QFont>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

namespace testsupport {

namespace {

QtMessageHandler previousHandler = nullptr;

void failOnBadConnection(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    previousHandler(type, context, text);
    static const char* const fatal[] = {"No such signal", "No such slot", "No such method",
                                        "Incompatible sender/receiver", "invalid nullptr parameter"};
    for (const char* pattern : fatal) {
        if (text.contains(QLatin1String(pattern))) {
            std::fprintf(stderr, "a connection could not be made: %s\n", qPrintable(text));
            std::abort();
        }
    }
}

} // namespace

void prepareApplication()
{
    static QTemporaryDir home;
    qputenv("XDG_DATA_HOME", home.filePath(QLatin1String("data")).toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", home.filePath(QLatin1String("config")).toLocal8Bit());
    qputenv("XDG_STATE_HOME", home.filePath(QLatin1String("state")).toLocal8Bit());
    qputenv("XDG_CACHE_HOME", home.filePath(QLatin1String("cache")).toLocal8Bit());
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent"); // the user's keychain is none of ours
    QApplication::setStyle(QLatin1String("fusion"));
    QApplication::setFont(QFont(QLatin1String("DejaVu Sans"), 9));
    previousHandler = qInstallMessageHandler(failOnBadConnection);
}

} // namespace testsupport
