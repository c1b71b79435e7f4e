#include "support/FileLockLines.h"
#include "support/HostFixture.h"
#include "support/Patience.h"
#include "support/TestMain.h"

#include "MainWindow.h"
#include "NodeListView.h"
#include "store/BackupKeeper.h"

#include <QAction>
#include <QDialog>
#include <QDir>
#include <QMenu>
#include <QMenuBar>
#include <QSignalSpy>
#include <QTimer>

using namespace ko;
using namespace testsupport;

/// Whatever the user chooses, the program keeps its locks on the database.
class TestKeptLocks : public QObject
{
    Q_OBJECT

private slots:
    void everyCommandOfEveryMenu();
    void theBackupOfTheDay();
};

void TestKeptLocks::everyCommandOfEveryMenu()
{
    HostFixture host;
    const QStringList cameras = {host.add(IPDeviceType, QLatin1String("Gate"), QLatin1String("10.0.0.1")),
                                 host.add(IPDeviceType, QLatin1String("Door"), QLatin1String("10.0.0.2"))};
    QVERIFY(host.db()->flush());
    QDir::setCurrent(QFileInfo(host.db()->fileName()).path()); // where file dialogs begin
    MainWindow window(*host.db());
    window.show();
    const QStringList before = lockLines(host.db()->fileName());
    QVERIFY(!before.isEmpty());
    QTimer closing;
    int dialogs = 0;
    connect(&closing, &QTimer::timeout, this, [&dialogs] {
        if (QWidget* menu = QApplication::activePopupWidget())
            menu->close();
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog || !dialog->isVisible())
            return;
        dialog->grab(); // what it shows it must have read
        ++dialogs;
        dialog->reject();
    });
    closing.start(30);
    int commands = 0;
    const QList<QMenu*> menus = window.menuBar()->findChildren<QMenu*>();
    for (QMenu* menu : menus) {
        const QList<QAction*> actions = menu->actions();
        for (QAction* action : actions) {
            if (action->menu() || action->isSeparator() ||
                action->objectName() == QLatin1String("actionQuit"))
                continue;
            for (const QString& camera : cameras) {
                window.findChild<NodeListView*>()->selectNode(camera);
                if (action->isEnabled())
                    action->trigger();
                QCoreApplication::processEvents();
            }
            ++commands;
            QVERIFY2(lockLines(host.db()->fileName()) == before, qPrintable(action->text()));
        }
    }
    QVERIFY(commands > 15);
    QVERIFY(dialogs > 10);
}

void TestKeptLocks::theBackupOfTheDay()
{
    HostFixture host;
    const QStringList before = lockLines(host.db()->fileName());
    BackupKeeper keeper(host.db()->fileName());
    QSignalSpy made(&keeper, &BackupKeeper::made);
    keeper.makeNow();
    QVERIFY(made.wait(testsupport::Patience));
    QCOMPARE(lockLines(host.db()->fileName()), before);
}

KO_TEST_MAIN(TestKeptLocks)

#include "tst_keptlocks.moc"
