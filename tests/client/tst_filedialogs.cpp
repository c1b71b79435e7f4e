#include "support/HostFixture.h"
#include "support/ModalAnswer.h"
#include "support/Patience.h"
#include "support/TestMain.h"

#include "MainWindow.h"
#include "PreferencesDialog.h"

#include <QAction>
#include <QDir>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QListView>
#include <QProcess>
#include <QPushButton>

#include <cstdio>

#include <climits>

#include <fcntl.h>
#include <sys/inotify.h>
#include <unistd.h>

using namespace ko;
using testsupport::child;

namespace {

const char locksArgument[] = "--print-locks";

/// Prints who keeps \a file from being locked; run in a process of its own, which owns no lock.
int printLock(const char* file)
{
    struct flock lock = {};
    lock.l_type = F_WRLCK;
    const int descriptor = ::open(file, O_RDWR | O_CLOEXEC);
    if (descriptor < 0 || ::fcntl(descriptor, F_GETLK, &lock) != 0)
        return 1;
    std::printf("%s %d\n", lock.l_type == F_UNLCK ? "none" : "held by", int(lock.l_pid));
    return 0;
}

QString lockOf(const QString& file)
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {QLatin1String(locksArgument), file});
    process.waitForFinished();
    return QString::fromLatin1(process.readAllStandardOutput()).trimmed();
}

} // namespace

/// The dialogs that choose files while a database is open. Where locks belong to the process, whoever opens
/// and closes a file of it gives up those by which other programs know that it is in use.
class tst_FileDialogs : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void locksAreSeen();
    void importKeepsTheLocks();
    void exportKeepsTheLocks();
    void folderKeepsTheLocks();
    void filesAreNotRead_data();
    void filesAreNotRead();

private:
    void trigger(const char* action);
    void lookAround(QFileDialog* dialog, int files = 3) const;
    QStringList locks() const;

    std::unique_ptr<testsupport::HostFixture> m_host;
    std::unique_ptr<MainWindow> m_window;
    QString m_folderBefore;
};

void tst_FileDialogs::init()
{
    m_host = std::make_unique<testsupport::HostFixture>();
    m_window = std::make_unique<MainWindow>(*m_host->db());
    m_window->show();
    m_folderBefore = QDir::currentPath();
    QVERIFY(QDir::setCurrent(QFileInfo(m_host->fileName()).path()));
}

void tst_FileDialogs::cleanup()
{
    QVERIFY(QDir::setCurrent(m_folderBefore));
    m_window.reset();
    m_host.reset();
}

QStringList tst_FileDialogs::locks() const
{
    return {lockOf(m_host->fileName()), lockOf(m_host->fileName() + QStringLiteral("-shm"))};
}

/// Stays in the folder of the database until its files are listed with their types.
void tst_FileDialogs::lookAround(QFileDialog* dialog, int files) const
{
    QVERIFY(dialog);
    dialog->setNameFilter(QStringLiteral("All files (*)"));
    dialog->setDirectory(QFileInfo(m_host->fileName()).path());
    auto* model = dialog->findChild<QFileSystemModel*>();
    KO_TRY_VERIFY(model->index(m_host->fileName(), 2).isValid());
    const QModelIndex file = model->index(m_host->fileName(), 2);
    KO_TRY_VERIFY(!model->data(file).toString().isEmpty());
    KO_TRY_COMPARE(model->rowCount(file.parent()), files);
    QTest::qWait(200);
}

void tst_FileDialogs::trigger(const char* action)
{
    const QStringList before = locks();
    const testsupport::ModalAnswer answer([this](QDialog* dialog) {
        lookAround(qobject_cast<QFileDialog*>(dialog));
        dialog->reject();
    });
    child<QAction>(m_window.get(), action)->trigger();
    QVERIFY(answer.fired());
    QCOMPARE(locks(), before);
}

void tst_FileDialogs::locksAreSeen()
{
    // Of no process: the database keeps them whoever closes its files.
    const QString held = QStringLiteral("held by -1");
    QCOMPARE(locks(), QStringList({held, held}));
    const QString copy = m_host->fileName() + QStringLiteral(".copy");
    QVERIFY(QFile::copy(m_host->fileName(), copy));
    QVERIFY(lockOf(copy).startsWith(QLatin1String("none")));
    QVERIFY(QFile::remove(copy));
    QCOMPARE(locks(), QStringList({held, held}));
}

void tst_FileDialogs::importKeepsTheLocks()
{
    trigger("actionImport");
}

void tst_FileDialogs::exportKeepsTheLocks()
{
    trigger("actionExport");
}

void tst_FileDialogs::folderKeepsTheLocks()
{
    PreferencesDialog preferences(*m_host->db());
    const QStringList before = locks();
    const testsupport::ModalAnswer answer([this](QDialog* dialog) {
        auto* files = qobject_cast<QFileDialog*>(dialog);
        QVERIFY(files && files->testOption(QFileDialog::ShowDirsOnly));
        files->setDirectory(QFileInfo(m_host->fileName()).path());
        QTest::qWait(300);
        dialog->reject();
    });
    child<QPushButton>(&preferences, "browseButton")->click();
    QVERIFY(answer.fired());
    QCOMPARE(locks(), before);
}

void tst_FileDialogs::filesAreNotRead_data()
{
    QTest::addColumn<QByteArray>("action");
    QTest::newRow("import") << QByteArray("actionImport");
    QTest::newRow("export") << QByteArray("actionExport");
}

/// What waits for a slow server, or for ever: reading a device.
void tst_FileDialogs::filesAreNotRead()
{
    QFETCH(QByteArray, action);
    QFile file(QFileInfo(m_host->fileName()).dir().filePath(QStringLiteral("untyped")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<?xml version=\"1.0\"?>");
    file.close();
    const int watch = ::inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    QVERIFY(::inotify_add_watch(watch, qPrintable(file.fileName()), IN_OPEN) >= 0);
    const auto wasOpened = [watch] {
        char event[sizeof(inotify_event) + NAME_MAX + 1];
        return ::read(watch, event, sizeof event) > 0;
    };
    const testsupport::ModalAnswer answer([this](QDialog* dialog) {
        lookAround(qobject_cast<QFileDialog*>(dialog), 4);
        dialog->reject();
    });
    child<QAction>(m_window.get(), action)->trigger();
    QVERIFY(answer.fired());
    QVERIFY(!wasOpened());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(wasOpened()); // it is seen
    ::close(watch);
}

int main(int argc, char** argv)
{
    if (argc == 3 && QByteArray(argv[1]) == locksArgument)
        return printLock(argv[2]);
    QApplication app(argc, argv);
    testsupport::prepareApplication();
    tst_FileDialogs test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_filedialogs.moc"
