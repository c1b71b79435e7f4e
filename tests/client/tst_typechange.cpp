#include "support/HostFixture.h"
#include "support/ModalAnswer.h"
#include "support/TestMain.h"

#include "MainWindow.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

using namespace ko;
using testsupport::child;
using testsupport::ModalAnswer;

class tst_TypeChange : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void typedIsKept();
    void proposedNameFollows();
    void whatWasNotTouchedBeginsAnew();

private:
    void add(const std::function<void(QDialog*)>& work);
    static void choose(QDialog* dialog, ENodeType type);
    static void type(QDialog* dialog, const char* field, const QString& text);
    static QString text(QDialog* dialog, const char* field)
    {
        return child<QLineEdit>(dialog, field)->text();
    }

    std::unique_ptr<testsupport::HostFixture> m_host;
    std::unique_ptr<MainWindow> m_window;
};

void tst_TypeChange::init()
{
    m_host = std::make_unique<testsupport::HostFixture>();
    m_window = std::make_unique<MainWindow>(*m_host->db());
    m_window->show();
}

void tst_TypeChange::cleanup()
{
    m_window.reset();
    m_host.reset();
}

void tst_TypeChange::add(const std::function<void(QDialog*)>& work)
{
    const ModalAnswer answer(work);
    child<QAction>(m_window.get(), "actionAdd")->trigger();
    QVERIFY(answer.fired());
}

/// With the keys of the combo box.
void tst_TypeChange::choose(QDialog* dialog, ENodeType type)
{
    auto* types = child<QComboBox>(dialog, "nodeTypeComboBox");
    const int wanted = types->findData(int(type));
    for (int presses = 0; presses < types->count() && types->currentIndex() != wanted; ++presses)
        QTest::keyClick(types, types->currentIndex() < wanted ? Qt::Key_Down : Qt::Key_Up);
    QCOMPARE(types->currentIndex(), wanted);
}

void tst_TypeChange::type(QDialog* dialog, const char* field, const QString& text)
{
    auto* edit = child<QLineEdit>(dialog, field);
    edit->selectAll();
    QTest::keyClicks(edit, text);
}

void tst_TypeChange::typedIsKept()
{
    add([](QDialog* dialog) {
        type(dialog, "nameLineEdit", "Gate");
        type(dialog, "addressLineEdit", "gate.example");
        type(dialog, "usernameLineEdit", "admin");
        type(dialog, "passwordLineEdit", "secret");
        child<QCheckBox>(dialog, "sslCheckBox")->click();
        child<QSpinBox>(dialog, "portSpinBox")->setValue(80);
        choose(dialog, ViewType); // which has a name only
        QCOMPARE(text(dialog, "nameLineEdit"), QString("Gate"));
        choose(dialog, UrlCameraType);
        QCOMPARE(text(dialog, "addressLineEdit"), QString("gate.example"));
        type(dialog, "addressLineEdit", "gate2.example"); // the name stays the user's own
        child<QDialogButtonBox>(dialog, "buttonBox")->button(QDialogButtonBox::Ok)->click();
    });
    const QString id = m_host->db()->nodeIdList(UrlCameraType).value(0);
    const auto camera = m_host->db()->node(id).cast<const IPDeviceNode>();
    QVERIFY(!camera.null());
    QCOMPARE(camera->name(), QString("Gate"));
    QCOMPARE(camera->address(), QString("gate2.example"));
    QCOMPARE(camera->user(0), QString("admin"));
    QCOMPARE(camera->password(0), QString("secret"));
    QVERIFY(camera->useSSL());
    QCOMPARE(camera->port(), 80);
}

void tst_TypeChange::proposedNameFollows()
{
    add([](QDialog* dialog) {
        type(dialog, "addressLineEdit", "10.0.0.1");
        choose(dialog, UrlCameraType);
        QCOMPARE(text(dialog, "nameLineEdit"), QString("10.0.0.1"));
        type(dialog, "addressLineEdit", "10.0.0.2");
        QCOMPARE(text(dialog, "nameLineEdit"), QString("10.0.0.2"));
        dialog->reject();
    });
}

void tst_TypeChange::whatWasNotTouchedBeginsAnew()
{
    add([](QDialog* dialog) {
        type(dialog, "nameLineEdit", "Gate");
        choose(dialog, UrlCameraType);
        child<QLineEdit>(dialog, "nameLineEdit")->clear();
        choose(dialog, IPDeviceType);
        QCOMPARE(text(dialog, "nameLineEdit"), QString());
        QCOMPARE(child<QSpinBox>(dialog, "portSpinBox")->value(), 80);
        dialog->reject();
    });
}

KO_TEST_MAIN(tst_TypeChange)
#include "tst_typechange.moc"
