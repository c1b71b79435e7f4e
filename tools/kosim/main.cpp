#include "Options.h"
#include "Say.h"
#include "Site.h"

#include <QGuiApplication>
#include <QSocketNotifier>

#include <csignal>

#include <sys/signalfd.h>
#include <unistd.h>

namespace {

enum ExitCode { Good = 0, Failed = 1, WrongUsage = 2 };

/// Before there is a second thread: signals of the others would not come here.
int signalDescriptor()
{
    std::signal(SIGPIPE, SIG_IGN);
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, SIGINT);
    sigaddset(&set, SIGTERM);
    sigprocmask(SIG_BLOCK, &set, nullptr);
    return signalfd(-1, &set, SFD_CLOEXEC);
}

} // namespace

int main(int argc, char** argv)
{
    const int ending = signalDescriptor();
    qputenv("QT_QPA_PLATFORM", "offscreen"); // pictures have texts in them; there is no window
    const QGuiApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("kosim"));
    kosim::Options options;
    const QString error = options.read(QCoreApplication::arguments());
    if (options.help) {
        std::printf("%s", qPrintable(options.helpText));
        return Good;
    }
    if (!error.isEmpty()) {
        kosim::say(QStringLiteral("kosim: %1; kosim --help tells more").arg(error), stderr);
        return WrongUsage;
    }
    QSocketNotifier notifier(ending, QSocketNotifier::Read);
    QObject::connect(&notifier, &QSocketNotifier::activated, &app, &QCoreApplication::quit);
    int result = Good;
    {
        kosim::Site site(options);
        const QString failure = site.start();
        if (!failure.isEmpty()) {
            kosim::say(QStringLiteral("kosim: %1").arg(failure), stderr);
            return Failed;
        }
        result = QCoreApplication::exec();
    }
    kosim::say(QStringLiteral("ended"));
    close(ending);
    return result;
}
