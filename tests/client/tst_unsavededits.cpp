#include "client/WindowFixture.h"
#include "ko/PropertyKeys.h"
#include "support/Answers.h"
#include "support/Patience.h"
#include "support/TestMain.h"

#include <QAbstractSpinBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QtTest/qtestspontaneevent.h>

using namespace ko;
using testsupport::Answers;
using testsupport::child;
using testsupport::ModalAnswer;

namespace {

const QLatin1String question("unsavedEditsBox");

void press(QDialog* dialog, QDialogButtonBox::StandardButton button)
{
    dialog->findChild<QDialogButtonBox*>()->button(button)->click();
}

void rename(QDialog* dialog, const QString& name)
{
    auto* field = child<QLineEdit>(dialog, "nameLineEdit");
    field->selectAll();
    QTest::keyClicks(field, name);
}

/// As a user does; false if nothing can be changed there.
bool change(QWidget* field)
{
    if (!field->isVisible() || !field->isEnabled())
        return false;
    if (auto* text = qobject_cast<QLineEdit*>(field)) {
        const bool isSearch = text->objectName() == "filterLineEdit"; // changes what is offered alone
        if (isSearch || text->isReadOnly() || qobject_cast<QAbstractSpinBox*>(text->parentWidget()))
            return false;
        const QString before = text->text();
        text->selectAll();
        QTest::keyClicks(text, text->objectName() == "MACAddress" ? "00:00:5E:12:34:AB" : before + "1");
        return text->text() != before;
    }
    if (auto* number = qobject_cast<QAbstractSpinBox*>(field)) {
        const QString before = number->text();
        QTest::keyClick(number, Qt::Key_Up);
        if (number->text() == before)
            QTest::keyClick(number, Qt::Key_Down);
        return number->text() != before;
    }
    if (auto* choice = qobject_cast<QComboBox*>(field)) {
        if (choice->count() < 2)
            return false;
        choice->setCurrentIndex(choice->currentIndex() == 0 ? 1 : 0);
        return true;
    }
    auto* box = qobject_cast<QAbstractButton*>(field);
    if (!box || !box->isCheckable() || (box->autoExclusive() && box->isChecked()))
        return false;
    box->click();
    return true;
}

/// By the button that the window manager draws.
void closeAsUser(QWidget* window)
{
    QCloseEvent event;
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(window, &event); // sendEvent() would say that it comes from the program
}

} // namespace

/// Keys that close a dialog do not take with them what was entered there.
class tst_UnsavedEdits : public QObject, protected testsupport::WindowFixture
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { closeWindow(); }

    void escapeAsks();
    void closeButtonAsks();
    void nothingEnteredAsksNothing_data();
    void nothingEnteredAsksNothing();
    void cancelMeansIt();
    void appliedIsStored();
    void nothingToApply_data();
    void nothingToApply();
    void refusedIsNotApplied();
    void otherTypeKeepsAsking();
    void whatOthersChangeIsNotEntered();

private:
    QString name() const { return m_host->db()->summary(m_camera).name; }

    QString m_camera;
};

void tst_UnsavedEdits::init()
{
    openWindow();
    m_camera = m_host->db()->nodeIdList(IPDeviceType).constFirst();
    select({"Gate north"});
}

void tst_UnsavedEdits::escapeAsks()
{
    QString kept;
    const Answers answers({[&](QDialog* editor) {
                               rename(editor, "West");
                               QTest::keyClick(child<QLineEdit>(editor, "nameLineEdit"), Qt::Key_Escape);
                               kept = child<QLineEdit>(editor, "nameLineEdit")->text();
                               QVERIFY(editor->isVisible());
                               QTest::keyClick(editor, Qt::Key_Escape);
                               QVERIFY(!editor->isVisible());
                           },
                           [](QDialog* box) { QTest::keyClick(box, Qt::Key_Return); }, // goes on
                           ModalAnswer::press("Discard")});
    trigger("actionEdit");
    QCOMPARE(answers.opened().mid(1), QStringList({question, question}));
    QCOMPARE(kept, QString("West"));
    QCOMPARE(name(), QString("Gate north"));
}

void tst_UnsavedEdits::closeButtonAsks()
{
    const Answers answers({[](QDialog* editor) {
                               child<QTabWidget>(editor, "tabWidget")->setCurrentIndex(0);
                               child<QSpinBox>(editor, "portSpinBox")->setValue(8080);
                               closeAsUser(editor);
                               QVERIFY(editor->isVisible());
                               press(editor, QDialogButtonBox::Ok);
                           },
                           ModalAnswer::press("Go On Editing")});
    trigger("actionEdit");
    QCOMPARE(answers.opened().mid(1), QStringList(question));
    QCOMPARE(deviceNode(m_camera)->port(), 8080);
}

void tst_UnsavedEdits::nothingEnteredAsksNothing_data()
{
    QTest::addColumn<QByteArray>("action");
    for (const char* action :
         {"actionAdd", "actionEdit", "actionProperties", "actionDuplicate", "actionCredentials",
          "actionRecording", "actionPreferences", "actionProxy", "actionEnvironments", "actionOverview",
          "actionFillIn", "actionHistory", "actionAuditLog"})
        QTest::newRow(action) << QByteArray(action);
}

void tst_UnsavedEdits::nothingEnteredAsksNothing()
{
    QFETCH(QByteArray, action);
    QString asked;
    const ModalAnswer answer([&asked](QDialog* dialog) {
        if (auto* tabs = dialog->findChild<QTabWidget*>()) {
            for (int tab = 0; tab < tabs->count(); ++tab)
                tabs->setCurrentIndex(tab);
        }
        for (int turn = 0; turn < 5; ++turn)
            QCoreApplication::processEvents();
        const ModalAnswer box([&asked](QDialog* question) {
            asked = question->objectName();
            question->reject();
        });
        QTest::keyClick(dialog, Qt::Key_Escape);
        QVERIFY(!dialog->isVisible() || !asked.isEmpty());
    });
    trigger(action);
    QVERIFY(answer.fired());
    QCOMPARE(asked, QString());
}

void tst_UnsavedEdits::cancelMeansIt()
{
    const Answers answers({[](QDialog* editor) {
                               rename(editor, "West");
                               press(editor, QDialogButtonBox::Cancel);
                           },
                           [](QDialog* box) { box->reject(); }});
    trigger("actionEdit");
    QCOMPARE(answers.opened().size(), 1);
    QCOMPARE(name(), QString("Gate north"));
}

void tst_UnsavedEdits::appliedIsStored()
{
    QString title;
    const Answers answers({[&](QDialog* editor) {
                               rename(editor, "West");
                               press(editor, QDialogButtonBox::Apply);
                               title = editor->windowTitle();
                               QTest::keyClick(editor, Qt::Key_Escape);
                               QVERIFY(!editor->isVisible());
                           },
                           [](QDialog* box) { box->reject(); }});
    trigger("actionEdit");
    QCOMPARE(answers.opened().size(), 1);
    QCOMPARE(name(), QString("West"));
    QCOMPARE(title, QString("Properties of West"));
}

void tst_UnsavedEdits::nothingToApply_data()
{
    QTest::addColumn<QString>("node");
    QTest::addColumn<int>("leastFields");
    QTest::newRow("camera") << "Gate north" << 25;
    QTest::newRow("URL camera") << "Yard" << 20;
    QTest::newRow("folder") << "Archive" << 3;
    QTest::newRow("view") << "Overview" << 1;
}

/// Apply can be pressed when any field has changed, until it was.
void tst_UnsavedEdits::nothingToApply()
{
    QFETCH(QString, node);
    QFETCH(int, leastFields);
    select({node});
    int fields = 0;
    const Answers answers({[&](QDialog* editor) {
        const auto* buttons = editor->findChild<QDialogButtonBox*>();
        auto* apply = buttons->button(QDialogButtonBox::Apply);
        auto* tabs = child<QTabWidget>(editor, "tabWidget");
        for (int tab = 0; tab < tabs->count(); ++tab) {
            tabs->setCurrentIndex(tab);
            const QList<QWidget*> all = tabs->widget(tab)->findChildren<QWidget*>();
            for (QWidget* field : all) {
                const QByteArray where = field->objectName().toUtf8();
                QVERIFY2(!apply->isEnabled(), where);
                if (!change(field) || !buttons->button(QDialogButtonBox::Ok)->isEnabled())
                    continue;
                QVERIFY2(apply->isEnabled(), where);
                apply->setFocus();
                apply->click();
                QCOMPARE(editor->focusWidget(), buttons->button(QDialogButtonBox::Ok));
                QCoreApplication::processEvents();
                ++fields;
            }
        }
        QTest::keyClick(editor, Qt::Key_Escape);
        QVERIFY(!editor->isVisible());
    }});
    trigger("actionEdit");
    QCOMPARE(answers.opened().size(), 1);
    QVERIFY2(fields >= leastFields, qPrintable(QString::number(fields)));
}

void tst_UnsavedEdits::refusedIsNotApplied()
{
    const Answers answers({[](QDialog* editor) {
        const auto* apply = editor->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Apply);
        auto* address = child<QLineEdit>(editor, "addressLineEdit");
        rename(editor, "West");
        QVERIFY(apply->isEnabled());
        const QString stored = address->text();
        address->selectAll();
        QTest::keyClicks(address, "10.0.0.300");
        QVERIFY(!apply->isEnabled());
        address->selectAll();
        QTest::keyClicks(address, stored);
        QVERIFY(apply->isEnabled());
        rename(editor, "Gate north");
        QVERIFY(!apply->isEnabled());
        QTest::keyClick(editor, Qt::Key_Escape);
    }});
    trigger("actionEdit");
    QCOMPARE(answers.opened().size(), 1);
}

void tst_UnsavedEdits::otherTypeKeepsAsking()
{
    const Answers answers({[](QDialog* dialog) {
                               rename(dialog, "New");
                               auto* types = child<QComboBox>(dialog, "nodeTypeComboBox");
                               types->setFocus();
                               QTest::keyClick(types, Qt::Key_Down);
                               QTest::keyClick(dialog, Qt::Key_Escape);
                               QVERIFY(!dialog->isVisible());
                           },
                           ModalAnswer::press("Discard")});
    trigger("actionAdd");
    QCOMPARE(answers.opened().mid(1), QStringList(question));
}

void tst_UnsavedEdits::whatOthersChangeIsNotEntered()
{
    const auto see = [this](QDialog* editor, const QString& name) {
        m_host->change(m_camera, [&name](Node* node) { node->setStringProperty(PropertyKeys::Name, name); });
        KO_TRY_COMPARE(child<QLineEdit>(editor, "nameLineEdit")->text(), name);
        const auto* apply = editor->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Apply);
        KO_TRY_VERIFY(!apply->isEnabled());
    };
    const Answers untouched({[&](QDialog* editor) {
        see(editor, QStringLiteral("East"));
        QTest::keyClick(editor, Qt::Key_Escape);
    }});
    trigger("actionEdit");
    QCOMPARE(untouched.opened().size(), 1);
    const Answers touched({[&](QDialog* editor) {
                               see(editor, QStringLiteral("West"));
                               child<QSpinBox>(editor, "portSpinBox")->setValue(8080);
                               QTest::keyClick(editor, Qt::Key_Escape);
                           },
                           ModalAnswer::press("Discard")});
    trigger("actionEdit");
    QCOMPARE(touched.opened().mid(1), QStringList(question));
}

KO_TEST_MAIN(tst_UnsavedEdits)
#include "tst_unsavededits.moc"
