#include "AllWindows.h"
#include "support/TestMain.h"

#include <QEventLoop>
#include <QProcess>
#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <vector>

#include <unistd.h>

namespace {

const char script[] = KO_SOURCE_DIR "/tests/support/read-window";
constexpr int Skipped = 77; // as with-desktop says it
const char desktop[] = KO_SOURCE_DIR "/tests/support/with-desktop";

/// With the session's bus, which prepareApplication() keeps from everything else.
QProcessEnvironment& environmentOfReaders()
{
    static QProcessEnvironment environment;
    return environment;
}

/// Answers while it waits, since this process is the one that is looked at.
QString read(const QString& title)
{
    QProcess reader;
    QEventLoop loop;
    QObject::connect(&reader, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), &loop,
                     &QEventLoop::quit);
    QTimer::singleShot(testsupport::Patience, &loop, &QEventLoop::quit);
    reader.setProcessChannelMode(QProcess::MergedChannels);
    reader.setProcessEnvironment(environmentOfReaders());
    reader.start(script, {QString::number(QCoreApplication::applicationPid()), title});
    loop.exec();
    if (reader.state() != QProcess::NotRunning)
        return "it cannot be read in time";
    return QString::fromUtf8(reader.readAll()).trimmed();
}

/// Whether a screen reader finds this program.
bool isKnown()
{
    return !read("-").contains("no program");
}

} // namespace

/// Names, roles and states of every window, as a screen reader gets them through the bus of the desktop.
class tst_Accessibility : public QObject
{
    Q_OBJECT

private slots:
    void windowsCanBeRead();
};

void tst_Accessibility::windowsCanBeRead()
{
    QStringList problems;
    int parts = 0;
    int windows = 0;
    testsupport::AllWindows().visit([&](const QString& name, QWidget* window) {
        QStringList lines = read(window->windowTitle()).split('\n');
        const QString count = lines.takeLast();
        if (!count.endsWith(" parts"))
            lines.append(count);
        parts += count.section(' ', 0, 0).toInt();
        ++windows;
        for (const QString& line : std::as_const(lines))
            problems.append(name + ": " + line);
    });
    problems.removeDuplicates();
    qInfo("%d parts of %d windows", parts, windows);
    QVERIFY2(problems.isEmpty(), qPrintable(problems.join('\n')));
    QVERIFY(windows > 30);
    QVERIFY(parts > 10 * windows);
}

/// In a session of its own, which has a bus and a screen.
int main(int argc, char** argv)
{
    if (QT_VERSION < QT_VERSION_CHECK(6, 0, 0)) {
        std::puts("skipped: whether a program joins the bus of screen readers is chance with Qt 5");
        return Skipped;
    }
    if (qEnvironmentVariableIsEmpty("KO_TEST_DESKTOP")) {
        std::vector<char*> command = {const_cast<char*>(desktop)};
        command.insert(command.end(), argv, argv + argc + 1); // with the null at its end
        ::execv(desktop, command.data());
        std::perror(desktop);
        return EXIT_FAILURE;
    }
    environmentOfReaders() = QProcessEnvironment::systemEnvironment();
    QApplication app(argc, argv);
    QWidget first; // the toolkit joins the bus when there is a window
    first.show();
    if (!QTest::qWaitFor([] { return isKnown(); }, testsupport::Patience)) {
        std::fputs("the program did not join the bus of screen readers\n", stderr);
        return EXIT_FAILURE;
    }
    first.hide();
    testsupport::prepareApplication();
    tst_Accessibility test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_accessibility.moc"
