#include "client/AllWindows.h"
#include "support/HostFixture.h"
#include "support/ModalAnswer.h"
#include "support/TestMain.h"

#include "MainWindow.h"
#include "NodeListView.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QScreen>
#include <QSettings>

using namespace ko;
using testsupport::child;
using testsupport::ModalAnswer;

/// Every window as it comes up, before the user has done anything.
class tst_WindowsAtFirst : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void mainWindowFitsTheScreen();
    void dialog_data();
    void dialog();
    void sizeOfALargerScreen();
    void everyWindow();

private:
    void open(const QString& action, const std::function<void(QDialog*)>& look);
    static bool fits(const QWidget* window)
    {
        const QSize room = window->screen()->availableSize();
        return window->width() <= room.width() && window->height() <= room.height();
    }

    std::unique_ptr<testsupport::HostFixture> m_host;
    std::unique_ptr<MainWindow> m_window;
};

void tst_WindowsAtFirst::init()
{
    QSettings().clear();
    m_host = std::make_unique<testsupport::HostFixture>();
    const QString id = m_host->add(IPDeviceType, "Gate", "10.0.0.1");
    m_window = std::make_unique<MainWindow>(*m_host->db());
    m_window->show();
    m_window->findChild<NodeListView*>()->selectNode(id);
}

void tst_WindowsAtFirst::cleanup()
{
    m_window.reset();
    m_host.reset();
}

void tst_WindowsAtFirst::open(const QString& action, const std::function<void(QDialog*)>& look)
{
    const ModalAnswer answer([&look](QDialog* dialog) {
        look(dialog);
        dialog->reject();
    });
    child<QAction>(m_window.get(), qPrintable(action))->trigger();
    QVERIFY(answer.fired());
}

void tst_WindowsAtFirst::mainWindowFitsTheScreen()
{
    QVERIFY2(fits(m_window.get()), qPrintable(QString::number(m_window->width())));
}

void tst_WindowsAtFirst::dialog_data()
{
    QTest::addColumn<QString>("action");
    for (const char* action :
         {"actionAdd", "actionEdit", "actionProperties", "actionDuplicate", "actionRemove",
          "actionCredentials", "actionRecording", "actionPreferences", "actionProxy", "actionEnvironments",
          "actionOverview", "actionAddressChanges", "actionAuditLog"})
        QTest::newRow(action) << action;
}

/// Space or Enter, pressed at once, must not open one more window.
void tst_WindowsAtFirst::dialog()
{
    QFETCH(QString, action);
    open(action, [](QDialog* dialog) {
        QApplication::setActiveWindow(dialog);
        QVERIFY(QTest::qWaitForWindowActive(dialog));
        const auto* button = qobject_cast<const QAbstractButton*>(QApplication::focusWidget());
        QVERIFY2(!button || !button->text().endsWith("..."), qPrintable(button ? button->text() : QString()));
        QVERIFY2(fits(dialog), qPrintable(QString("%1 x %2").arg(dialog->width()).arg(dialog->height())));
    });
}

/// What was kept may be too large for the screen that is there now.
void tst_WindowsAtFirst::sizeOfALargerScreen()
{
    QSettings().setValue("auditLog/size", QSize(5000, 4000));
    open("actionAuditLog", [](QDialog* dialog) { QVERIFY(fits(dialog)); });
}

void tst_WindowsAtFirst::everyWindow()
{
    testsupport::AllWindows all;
    QStringList wrong;
    int windows = 0;
    all.visit([&](const QString& name, QWidget* window) {
        ++windows;
        if (window->windowTitle().isEmpty())
            wrong.append(name + ": has no title");
        const auto* button = qobject_cast<const QAbstractButton*>(window->focusWidget());
        if (button && button->text().endsWith("..."))
            wrong.append(name + ": begins on " + button->text());
    });
    QVERIFY(windows > 40);
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join('\n')));
}

KO_TEST_MAIN(tst_WindowsAtFirst)
#include "tst_windowsatfirst.moc"
