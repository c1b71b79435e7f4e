#include "support/HostFixture.h"
#include "support/ModalAnswer.h"
#include "support/Patience.h"
#include "support/TestMain.h"

#include "MainWindow.h"
#include "NodeListView.h"
#include "ko/Environments.h"

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSpinBox>
#include <QStatusBar>
#include <QToolButton>

#include <QtTest/qtestspontaneevent.h>

using namespace ko;
using testsupport::child;
using testsupport::ModalAnswer;

/// What a letter, a wheel or Escape may do to settings that nobody meant to change.
class tst_EnvironmentNotice : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void typingInANewNodeGoesToItsName();
    void wheelChangesNothing_data();
    void wheelChangesNothing();
    void wheelWorksWithTheFocus();
    void cancelledSwitchIsAnnounced_data();
    void cancelledSwitchIsAnnounced();
    void confirmedSwitchIsNot();
    void nothingSwitchedNothingSaid();
    void windowShowsAndSwitchesIt();

private:
    void run(const char* action, const std::function<void(QDialog*)>& answer);
    QPushButton* backButton() const { return child<QPushButton>(m_window.get(), "environmentBackButton"); }

    std::unique_ptr<testsupport::HostFixture> m_host;
    std::unique_ptr<MainWindow> m_window;
};

namespace {

/// As the window system sends it.
void turnWheel(QWidget* widget)
{
    const QPointF place = widget->rect().center();
    QWheelEvent event(place, widget->mapToGlobal(place.toPoint()), QPoint(), QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event);
    QApplication::sendEvent(widget, &event);
}

} // namespace

void tst_EnvironmentNotice::init()
{
    m_host = std::make_unique<testsupport::HostFixture>();
    m_host->add(IPDeviceType, "Gate", "10.0.0.1");
    m_host->db()->environments().setList({{"{h}", "Home"}, {"{o}", "Office & yard"}, {"{r}", "Road"}});
    m_host->db()->setActiveEnvironment("{h}");
    m_window = std::make_unique<MainWindow>(*m_host->db());
    m_window->show();
    m_window->findChild<NodeListView*>()->selectAll();
}

void tst_EnvironmentNotice::cleanup()
{
    m_window.reset();
    m_host.reset();
}

void tst_EnvironmentNotice::run(const char* action, const std::function<void(QDialog*)>& answer)
{
    const ModalAnswer modal([&answer](QDialog* dialog) {
        QApplication::setActiveWindow(dialog); // so that it has the focus
        answer(dialog);
    });
    child<QAction>(m_window.get(), action)->trigger();
    QVERIFY(modal.fired());
}

void tst_EnvironmentNotice::typingInANewNodeGoesToItsName()
{
    run("actionAdd", [](QDialog* dialog) {
        QTest::keyClicks(QApplication::focusWidget(), "Office");
        QCOMPARE(child<QLineEdit>(dialog, "nameLineEdit")->text(), QString("Office"));
        const ModalAnswer answer(ModalAnswer::press("Discard"));
        QTest::keyClick(dialog, Qt::Key_Escape);
    });
    QCOMPARE(m_host->db()->activeEnvironment(), QString("{h}"));
}

void tst_EnvironmentNotice::wheelChangesNothing_data()
{
    QTest::addColumn<QString>("action");
    for (const char* action : {"actionAdd", "actionEdit", "actionPreferences", "actionProxy"})
        QTest::newRow(action) << action;
}

void tst_EnvironmentNotice::wheelChangesNothing()
{
    QFETCH(QString, action);
    int turned = 0;
    run(qPrintable(action), [&turned](QDialog* dialog) {
        const QWidget* focus = QApplication::focusWidget();
        const auto comboBoxes = dialog->findChildren<QComboBox*>();
        for (QComboBox* comboBox : comboBoxes) {
            comboBox->setEnabled(true);
            const int before = comboBox->currentIndex();
            turnWheel(comboBox);
            QCOMPARE(comboBox->currentIndex(), before);
            ++turned;
        }
        const auto spinBoxes = dialog->findChildren<QSpinBox*>();
        for (QSpinBox* spinBox : spinBoxes) {
            spinBox->setEnabled(true);
            const int before = spinBox->value();
            turnWheel(spinBox);
            QCOMPARE(spinBox->value(), before);
            ++turned;
        }
        QCOMPARE(QApplication::focusWidget(), focus);
    });
    QVERIFY(turned > 0);
    QCOMPARE(m_host->db()->activeEnvironment(), QString("{h}"));
}

void tst_EnvironmentNotice::wheelWorksWithTheFocus()
{
    run("actionAdd", [](QDialog* dialog) {
        auto* port = child<QSpinBox>(dialog, "portSpinBox");
        port->setFocus();
        const int before = port->value();
        turnWheel(port);
        QCOMPARE(port->value(), before - 1);
    });
}

void tst_EnvironmentNotice::cancelledSwitchIsAnnounced_data()
{
    QTest::addColumn<QString>("action");
    QTest::newRow("add") << "actionAdd";
    QTest::newRow("edit") << "actionEdit";
}

void tst_EnvironmentNotice::cancelledSwitchIsAnnounced()
{
    QFETCH(QString, action);
    QVERIFY(!backButton()->isVisible());
    run(qPrintable(action), [](QDialog* dialog) {
        child<QComboBox>(dialog, "environmentComboBox")->setCurrentIndex(1);
        QTest::keyClick(dialog, Qt::Key_Escape);
    });
    QVERIFY(m_window->statusBar()->currentMessage().contains("\"Office & yard\""));
    QVERIFY(backButton()->isVisible());
    QVERIFY(backButton()->text().contains("Home"));
    QTest::mouseClick(backButton(), Qt::LeftButton);
    QCOMPARE(m_host->db()->activeEnvironment(), QString("{h}"));
    QVERIFY(!backButton()->isVisible());
}

void tst_EnvironmentNotice::confirmedSwitchIsNot()
{
    run("actionEdit", [](QDialog* dialog) {
        child<QComboBox>(dialog, "environmentComboBox")->setCurrentIndex(1);
        dialog->accept();
    });
    QCOMPARE(m_host->db()->activeEnvironment(), QString("{o}"));
    QVERIFY(!backButton()->isVisible());
}

void tst_EnvironmentNotice::nothingSwitchedNothingSaid()
{
    run("actionEdit", [](QDialog* dialog) { dialog->reject(); });
    QVERIFY(!backButton()->isVisible());
    QVERIFY(m_window->statusBar()->currentMessage().isEmpty());
}

void tst_EnvironmentNotice::windowShowsAndSwitchesIt()
{
    HostNodeDB& db = *m_host->db();
    const auto activate = [this] {
        QEvent event(QEvent::WindowActivate);
        QCoreApplication::sendEvent(m_window.get(), &event);
    };
    auto* button = child<QToolButton>(m_window.get(), "environmentMenuButton");
    db.environments().setList({{"{h}", "Home"}});
    db.setActiveEnvironment("{h}");
    activate();
    KO_TRY_VERIFY(!button->isVisible()); // there is nothing to choose
    db.environments().setList({{"{h}", "Home & garden"}, {"{o}", "Office"}});
    activate();
    KO_TRY_VERIFY(button->isVisible());
    QCOMPARE(button->text(), QString("Environment: Home && garden"));
    emit button->menu()->aboutToShow();
    const QList<QAction*> all = button->menu()->actions();
    QCOMPARE(all.size(), 2);
    QVERIFY(all.at(0)->isChecked() && !all.at(1)->isChecked());
    all.at(1)->trigger();
    QCOMPARE(db.activeEnvironment(), QString("{o}"));
    QCOMPARE(button->text(), QString("Environment: Office"));
}

KO_TEST_MAIN(tst_EnvironmentNotice)
#include "tst_environmentnotice.moc"
