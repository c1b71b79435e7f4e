#include "client/WindowFixture.h"
#include "support/Answers.h"
#include "support/TestMain.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QStatusBar>

using namespace ko;
using testsupport::Answers;
using testsupport::child;
using testsupport::confirm;
using testsupport::ModalAnswer;

/// Several nodes that are like each other are added one after the other.
class tst_AddAndNext : public QObject, protected testsupport::WindowFixture
{
    Q_OBJECT

private slots:
    void init() { openWindow(); }
    void cleanup() { closeWindow(); }

    void nextIsLikeTheOneBefore();
    void refusedIsNotLeft();
    void goesWithOk();
    void withoutAName();

private:
    static void type(QDialog* dialog, const char* field, const QString& text)
    {
        auto* edit = child<QLineEdit>(dialog, field);
        edit->selectAll();
        QTest::keyClicks(edit, text);
    }
    static void next(QDialog* dialog) { child<QPushButton>(dialog, "addAndNextButton")->click(); }
};

void tst_AddAndNext::nextIsLikeTheOneBefore()
{
    QStringList begun;
    const Answers answers(
        {[](QDialog* dialog) {
             auto* types = child<QComboBox>(dialog, "nodeTypeComboBox");
             types->setFocus();
             types->setCurrentIndex(types->findData(int(UrlCameraType)));
             type(dialog, "nameLineEdit", "One");
             type(dialog, "addressLineEdit", "10.9.0.1");
             type(dialog, "usernameLineEdit", "operator");
             child<QSpinBox>(dialog, "portSpinBox")->setValue(8080);
             next(dialog);
         },
         [&begun](QDialog* dialog) {
             for (const char* field : {"nameLineEdit", "addressLineEdit", "usernameLineEdit"})
                 begun.append(child<QLineEdit>(dialog, field)->text());
             begun.append(child<QComboBox>(dialog, "nodeTypeComboBox")->currentText());
             QCOMPARE(child<QSpinBox>(dialog, "portSpinBox")->value(), 8080);
             QCOMPARE(dialog->focusWidget(), child<QLineEdit>(dialog, "nameLineEdit"));
             type(dialog, "nameLineEdit", "Two");
             type(dialog, "addressLineEdit", "10.9.0.2");
             confirm(dialog);
         }});
    trigger("actionAdd");
    QCOMPARE(answers.opened(), QStringList({"AddNodeDialog", "AddNodeDialog"}));
    QCOMPARE(begun, QStringList({"", "", "operator", m_host->db()->readableNodeTypeName(UrlCameraType)}));
    for (const char* name : {"One", "Two"}) {
        QCOMPARE(deviceNode(idOf(name))->user(1), QString("operator"));
        QCOMPARE(deviceNode(idOf(name))->port(), 8080);
        QCOMPARE(m_host->db()->summary(idOf(name)).type, UrlCameraType);
    }
    QCOMPARE(m_window->statusBar()->currentMessage(), QString("\"Two\" was added."));
}

/// Whoever wants no more presses Cancel.
void tst_AddAndNext::refusedIsNotLeft()
{
    const Answers answers({[](QDialog* dialog) {
                               next(dialog);
                               QVERIFY(dialog->isVisible());
                               QTest::qWait(50); // the same dialog is no next one
                               type(dialog, "nameLineEdit", "One");
                               next(dialog);
                               QVERIFY(!dialog->isVisible());
                           },
                           ModalAnswer::press("Go On Editing"), [](QDialog* dialog) { dialog->reject(); }});
    trigger("actionAdd");
    QCOMPARE(answers.opened(), QStringList({"AddNodeDialog", "entryQuestionBox", "AddNodeDialog"}));
    QVERIFY(!idOf("One").isEmpty());
    QCOMPARE(m_host->db()->nodeIdList(AllNodeTypes).size(), 6);
}

void tst_AddAndNext::goesWithOk()
{
    const Answers answers({[](QDialog* dialog) {
        type(dialog, "addressLineEdit", "10.0.0.300");
        QVERIFY(!child<QPushButton>(dialog, "addAndNextButton")->isEnabled());
        type(dialog, "addressLineEdit", "10.0.0.30");
        QVERIFY(child<QPushButton>(dialog, "addAndNextButton")->isEnabled());
        dialog->reject();
    }});
    trigger("actionAdd");
    QCOMPARE(answers.opened().size(), 1);
}

/// It is called by its type, as in titles.
void tst_AddAndNext::withoutAName()
{
    const Answers answers({[](QDialog* dialog) {
                               type(dialog, "addressLineEdit", "10.0.0.31");
                               child<QLineEdit>(dialog, "nameLineEdit")->clear();
                               confirm(dialog);
                           },
                           ModalAnswer::press("Store Anyway")});
    trigger("actionAdd");
    QCOMPARE(answers.opened(), QStringList({"AddNodeDialog", "entryQuestionBox"}));
    QCOMPARE(m_window->statusBar()->currentMessage(),
             QString("\"%1\" was added.").arg(m_host->db()->readableNodeTypeName(IPDeviceType)));
}

KO_TEST_MAIN(tst_AddAndNext)
#include "tst_addandnext.moc"
