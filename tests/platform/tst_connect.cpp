#include "support/TestMain.h"

#include "ko/LogQt.h"
#include "ko/connect.h"

#include <QProcess>
#include <QSignalSpy>

#include <cstdio>
#include <cstdlib>

namespace {

const char childArgument[] = "--bad-connection";
const int stopped = 7;

class Sender : public QObject
{
    Q_OBJECT

public:
    void fire(int n) { emit fired(n); }

signals:
    void fired(int n);
};

class Receiver : public QObject
{
    Q_OBJECT

public:
    int last = 0;

public slots:
    void take(int n) { last = n; }
};

struct Printer : ko::LogSink
{
    void write(int level, const QString& line) override
    {
        std::printf("level %d: %s\n", level, qPrintable(line));
    }
};

void stopQuietly(QtMsgType type, const QMessageLogContext&, const QString&)
{
    if (type != QtFatalMsg)
        return;
    std::fflush(stdout);
    std::_Exit(stopped); // an assertion would leave a core behind
}

/// What a program with a mistyped connection does; run in a process of its own.
int runWithBadConnection()
{
    Printer printer;
    ko::LogQt::instance().setSink(&printer);
    qInstallMessageHandler(stopQuietly);
    Sender sender;
    Receiver receiver;
    const bool made = ko::connect(&sender, SIGNAL(fried(int)), &receiver, SLOT(take(int)));
    std::printf("returned %d\n", made);
    ko::LogQt::instance().setSink(nullptr);
    return EXIT_SUCCESS;
}

} // namespace

class tst_Connect : public QObject
{
    Q_OBJECT

private slots:
    void connects();
    void connectionType();
    void signalToSignal();
    void badConnection();
};

void tst_Connect::connects()
{
    Sender sender;
    Receiver receiver;
    QVERIFY(ko::connect(&sender, SIGNAL(fired(int)), &receiver, SLOT(take(int))));
    sender.fire(3);
    QCOMPARE(receiver.last, 3);
}

void tst_Connect::connectionType()
{
    Sender sender;
    Receiver receiver;
    QVERIFY(ko::connect(&sender, SIGNAL(fired(int)), &receiver, SLOT(take(int)), Qt::QueuedConnection));
    sender.fire(3);
    QCOMPARE(receiver.last, 0);
    QCoreApplication::processEvents();
    QCOMPARE(receiver.last, 3);
}

void tst_Connect::signalToSignal()
{
    Sender first;
    Sender second;
    QSignalSpy fired(&second, SIGNAL(fired(int)));
    QVERIFY(ko::connect(&first, SIGNAL(fired(int)), &second, SIGNAL(fired(int))));
    first.fire(5);
    QCOMPARE(fired.first().first().toInt(), 5);
}

void tst_Connect::badConnection()
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), QStringList(childArgument));
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QString expected = "level 3: Cannot connect fried(int) to take(int)\n";
#ifdef QT_NO_DEBUG
    expected += "returned 0\n";
    QCOMPARE(process.exitCode(), EXIT_SUCCESS);
#else
    QCOMPARE(process.exitCode(), stopped);
#endif
    QCOMPARE(QString::fromUtf8(process.readAllStandardOutput()), expected);
}

int main(int argc, char** argv)
{
    if (argc == 2 && qstrcmp(argv[1], childArgument) == 0)
        return runWithBadConnection();
    QApplication app(argc, argv);
    testsupport::prepareApplication();
    tst_Connect test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_connect.moc"
