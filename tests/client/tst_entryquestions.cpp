#include "client/WindowFixture.h"
#include "support/Answers.h"
#include "support/TestMain.h"

#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QSpinBox>

using namespace ko;
using testsupport::Answers;
using testsupport::child;
using testsupport::confirm;
using testsupport::ModalAnswer;

namespace {

const QLatin1String question("entryQuestionBox");

void enter(QDialog* dialog, const char* field, const QString& text)
{
    auto* edit = child<QLineEdit>(dialog, field);
    edit->setFocus();
    edit->selectAll();
    text.isEmpty() ? QTest::keyClick(edit, Qt::Key_Delete) : QTest::keyClicks(edit, text);
}

} // namespace

/// What is seldom meant is asked about before it is stored, and only then.
class tst_EntryQuestions : public QObject, protected testsupport::WindowFixture
{
    Q_OBJECT

private slots:
    void init() { openWindow(); }
    void cleanup() { closeWindow(); }

    void adding_data();
    void adding();
    void goingOnStoresNothing();
    void editing();
    void whatWasSoIsNotAskedAbout();
    void readOnlyAsksNothing();

private:
    int nodes() const { return int(m_host->db()->nodeIdList(AllNodeTypes).size()); }
};

void tst_EntryQuestions::adding_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("address");
    QTest::addColumn<int>("port");
    QTest::addColumn<QString>("asked");
    QTest::newRow("nothing") << ""
                             << "" << 0 << "Neither a name nor an address was entered.";
    QTest::newRow("no name") << ""
                             << "10.0.0.9" << 0 << "No name was entered.";
    QTest::newRow("blanks") << "  "
                            << "10.0.0.9" << 0 << "No name was entered.";
    QTest::newRow("twin") << "Door"
                          << "10.0.0.2" << 0 << "\"Gate south\" has this address, port and channel already.";
    QTest::newRow("other port") << "Door"
                                << "10.0.0.2" << 8080 << "";
    QTest::newRow("no address") << "Door"
                                << "" << 0 << "";
    QTest::newRow("all") << "Door"
                         << "10.0.0.9" << 0 << "";
}

void tst_EntryQuestions::adding()
{
    QFETCH(QString, name);
    QFETCH(QString, address);
    QFETCH(int, port);
    QFETCH(QString, asked);
    const int before = nodes();
    QString text;
    const Answers answers({[&](QDialog* dialog) {
                               enter(dialog, "addressLineEdit", address);
                               enter(dialog, "nameLineEdit", name);
                               if (port > 0)
                                   child<QSpinBox>(dialog, "portSpinBox")->setValue(port);
                               confirm(dialog);
                               QVERIFY(!dialog->isVisible());
                           },
                           [&text](QDialog* box) {
                               text = qobject_cast<QMessageBox*>(box)->text();
                               ModalAnswer::press("Store Anyway")(box);
                           }});
    trigger("actionAdd");
    QCOMPARE(answers.opened().mid(1), asked.isEmpty() ? QStringList() : QStringList(question));
    QCOMPARE(text.section('\n', 0, 0), asked);
    QCOMPARE(nodes(), before + 1);
}

void tst_EntryQuestions::goingOnStoresNothing()
{
    const int before = nodes();
    const Answers answers({[](QDialog* dialog) {
                               child<QLineEdit>(dialog, "addressLineEdit")->setFocus();
                               QTest::keyClick(dialog, Qt::Key_Return);
                               QVERIFY(dialog->isVisible());
                               QCOMPARE(dialog->focusWidget(), child<QLineEdit>(dialog, "nameLineEdit"));
                               QCoreApplication::processEvents();
                               enter(dialog, "nameLineEdit", "Door");
                               confirm(dialog); // which is not asked about any more
                               QVERIFY(!dialog->isVisible());
                           },
                           [](QDialog* box) { QTest::keyClick(box, Qt::Key_Escape); }});
    trigger("actionAdd");
    QCOMPARE(answers.opened().mid(1), QStringList(question));
    QCOMPARE(nodes(), before + 1);
    QVERIFY(!idOf("Door").isEmpty());
}

void tst_EntryQuestions::editing()
{
    select({"Gate north"});
    const QString id = idOf("Gate north");
    const Answers answers({[](QDialog* dialog) {
                               enter(dialog, "addressLineEdit", "10.0.0.2");
                               confirm(dialog);
                               QVERIFY(dialog->isVisible());
                               QCOMPARE(dialog->focusWidget(), child<QLineEdit>(dialog, "addressLineEdit"));
                               QCoreApplication::processEvents();
                               confirm(dialog);
                               QVERIFY(!dialog->isVisible());
                           },
                           ModalAnswer::press("Go On Editing"), ModalAnswer::press("Store Anyway")});
    trigger("actionEdit");
    QCOMPARE(answers.opened().mid(1), QStringList({question, question}));
    QCOMPARE(m_host->db()->summary(id).location, QString("10.0.0.2"));
}

/// Whoever has two cameras at one address and no name for them knows it.
void tst_EntryQuestions::whatWasSoIsNotAskedAbout()
{
    const QString id = m_host->add(IPDeviceType, QString(), QStringLiteral("10.0.0.2"));
    m_window->applyChanges();
    m_view->selectNode(id);
    const Answers answers({[](QDialog* dialog) {
        auto* user = child<QLineEdit>(dialog, "usernameLineEdit");
        user->setText("operator");
        confirm(dialog);
        QVERIFY(!dialog->isVisible());
    }});
    trigger("actionEdit");
    QCOMPARE(answers.opened().size(), 1);
    QCOMPARE(deviceNode(id)->user(1), QString("operator"));
}

void tst_EntryQuestions::readOnlyAsksNothing()
{
    m_view->selectNode(m_host->add(IPDeviceType, QString(), QString()));
    select({"Gate north"});
    const Answers answers({[](QDialog* dialog) { confirm(dialog); }});
    trigger("actionProperties");
    QCOMPARE(answers.opened().size(), 1);
}

KO_TEST_MAIN(tst_EntryQuestions)
#include "tst_entryquestions.moc"
