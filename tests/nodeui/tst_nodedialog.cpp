#include "dialogs/NodeDialog.h"

#include "dialogs/EnvironmentDialog.h"
#include "dialogs/NetworkProxyDialog.h"
#include "ko/connect.h"
#include "ko/dialogFlags.h"
#include "support/DialogCheck.h"
#include "support/ModalAnswer.h"
#include "support/SmallInspector.h"
#include "support/TestMain.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QWindow>

using namespace testsupport;

namespace {

/// The least that a derived dialog does.
class Derived : public ko::NodeDialog
{
public:
    explicit Derived(QWidget* parent = nullptr)
        : NodeDialog(parent)
    {
    }

    void setUp(SmallNodeDB& db)
    {
        inspector = static_cast<SmallInspector*>(db.node("cam1")->createInspectorWidget(false, 0));
        inspector->setParent(this);
        setInspector(inspector);
        setEnvironmentComboBox(&comboBox);
        setEnvironmentMenu();
        ko::connect(&comboBox, SIGNAL(currentIndexChanged(int)), this, SLOT(environmentChanged(int)));
        ko::connect(&proxyButton, SIGNAL(clicked()), this, SLOT(editProxy()));
    }
    using NodeDialog::setInspector;
    using NodeDialog::setTitle;

    QComboBox comboBox{this};
    QPushButton proxyButton{this};
    SmallInspector* inspector = nullptr;
};

/// A dialog over the environments "Office", "Home" (active) and "Site".
struct Shown
{
    Shown()
    {
        db.addCamera("cam1", "Entrance");
        db.addEnvironment("{o}", "Office");
        db.addEnvironment("{h}", "Home");
        db.addEnvironment("{s}", "Site");
        db.environment = "{h}";
        dialog.setUp(db);
        dialog.show();
        db.clearCalls();
    }

    SmallNodeDB db;
    Derived dialog;
    QComboBox& comboBox = dialog.comboBox;
};

QStringList texts(const QComboBox& comboBox)
{
    QStringList texts;
    for (int i = 0; i < comboBox.count(); ++i) {
        const bool isSeparator = comboBox.itemData(i, Qt::AccessibleDescriptionRole) == "separator";
        texts.append(isSeparator ? QString("---") : comboBox.itemText(i));
    }
    return texts;
}

QStringList filled()
{
    return {"Office", "Home", "Site", "---", "Edit Environments..."};
}

const int editEntry = 4;

} // namespace

class TestNodeDialog : public QObject
{
    Q_OBJECT

private slots:
    void metaObject()
    {
        QCOMPARE(ko::NodeDialog::staticMetaObject.className(), "ko::NodeDialog");
        QCOMPARE(declaredSlots(ko::NodeDialog::staticMetaObject),
                 QStringList({"environmentChanged(int index)", "editProxy()"}));
    }

    void windowFlagsAreTheGivenOnes()
    {
        QCOMPARE(ko::NodeDialog().windowFlags(), QDialog().windowFlags());
        const Qt::WindowFlags own = Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint;
        QCOMPARE(ko::NodeDialog(nullptr, own).windowFlags(), own);
        QWidget parent;
        QCOMPARE(ko::NodeDialog(&parent).parentWidget(), &parent);
    }

    void nothingHappensWithoutComboBox()
    {
        SmallNodeDB db;
        db.addEnvironment("{o}", "Office");
        ko::NodeDialog dialog;
        dialog.setEnvironmentMenu();
        // A dialog opened here would block the test.
        QVERIFY(QMetaObject::invokeMethod(&dialog, "environmentChanged", Q_ARG(int, 0)));
        QVERIFY(QMetaObject::invokeMethod(&dialog, "editProxy"));
        QVERIFY(db.calls.isEmpty());
    }

    void noEnvironments()
    {
        SmallNodeDB db;
        db.addCamera("cam1", "Entrance");
        Derived dialog;
        dialog.setUp(db);
        QCOMPARE(texts(dialog.comboBox), QStringList("Edit Environments..."));
        QVERIFY(!dialog.comboBox.itemData(0).isValid());
    }

    void environmentsAndTheActiveOne()
    {
        Shown shown;
        QCOMPARE(texts(shown.comboBox), filled());
        QCOMPARE(shown.comboBox.currentIndex(), 1);
        QCOMPARE(shown.comboBox.itemData(0), QVariant(QString("{o}")));
        QCOMPARE(shown.comboBox.itemData(1), QVariant(QString("{h}")));
        QCOMPARE(shown.comboBox.itemData(2), QVariant(QString("{s}")));
        QVERIFY(!shown.comboBox.itemData(editEntry).isValid());
        for (int i = 0; i < shown.comboBox.count(); ++i)
            QVERIFY(shown.comboBox.itemIcon(i).isNull());
        QVERIFY(shown.db.calls.isEmpty());
    }

    void unknownActiveOneLeavesTheFirst()
    {
        Shown shown;
        shown.db.environment = "{gone}";
        shown.dialog.setEnvironmentMenu();
        QCOMPARE(shown.comboBox.currentIndex(), 0);
    }

    void refillingEmitsNothing()
    {
        Shown shown;
        QSignalSpy changed(&shown.comboBox, SIGNAL(currentIndexChanged(int)));
        shown.db.environment = "{s}";
        shown.dialog.setEnvironmentMenu();
        QCOMPARE(texts(shown.comboBox), filled());
        QCOMPARE(shown.comboBox.currentIndex(), 2);
        QCOMPARE(changed.count(), 0);
        QVERIFY(shown.db.calls.isEmpty());
        QVERIFY(!shown.comboBox.signalsBlocked());
    }

    void choosingAnEnvironment()
    {
        Shown shown;
        shown.comboBox.setFocus();
        QTest::keyClick(&shown.comboBox, Qt::Key_Down);
        QCOMPARE(shown.db.calls, QStringList({"setActiveEnvironment({s})", "inspector.updateNode()"}));
        QCOMPARE(shown.comboBox.currentText(), QString("Site"));
        shown.dialog.reject(); // the choice stays
        QCOMPARE(shown.db.environment, QString("{s}"));
    }

    void choosingWithoutInspector()
    {
        Shown shown;
        shown.dialog.setInspector(nullptr);
        shown.comboBox.setCurrentIndex(0);
        QCOMPARE(shown.db.calls, QStringList("setActiveEnvironment({o})"));
    }

    void editEntryOpensTheEnvironmentDialog()
    {
        Shown shown;
        int indexBehind = -1;
        ModalAnswer answer([&](QDialog* dialog) {
            indexBehind = shown.comboBox.currentIndex();
            QVERIFY(qobject_cast<ko::EnvironmentDialog*>(dialog));
            QCOMPARE(dialog->parentWidget(), &shown.dialog);
            QCOMPARE(dialog->windowFlags(), ko::dialogFlags(false));
            dialog->reject();
        });
        shown.comboBox.setCurrentIndex(editEntry);
        QVERIFY(answer.fired());
        QCOMPARE(indexBehind, 1);
        QCOMPARE(shown.comboBox.currentIndex(), 1);
        QVERIFY(shown.db.calls.isEmpty());
        QVERIFY(!shown.dialog.findChild<ko::EnvironmentDialog*>());
        QVERIFY(!shown.comboBox.signalsBlocked());
    }

    void separatorLeadsThereToo()
    {
        Shown shown;
        ModalAnswer answer([](QDialog* dialog) { dialog->reject(); });
        QVERIFY(QMetaObject::invokeMethod(&shown.dialog, "environmentChanged", Q_ARG(int, 3)));
        QVERIFY(answer.fired());
        QVERIFY(shown.db.calls.isEmpty());
    }

    void selectionStaysWhenNoneIsActive_data()
    {
        QTest::addColumn<QString>("active");
        QTest::newRow("unknown") << "{gone}";
        QTest::newRow("none") << "";
    }
    void selectionStaysWhenNoneIsActive()
    {
        QFETCH(QString, active);
        Shown shown;
        shown.db.environment = active;
        ModalAnswer answer([](QDialog* dialog) { dialog->reject(); });
        shown.comboBox.setCurrentIndex(editEntry);
        QVERIFY(answer.fired());
        QCOMPARE(shown.comboBox.currentIndex(), editEntry);
    }

    void acceptedChangesAreShown()
    {
        Shown shown;
        ModalAnswer answer([](QDialog* dialog) {
            auto* list = child<QListWidget>(dialog, "listWidget");
            list->setCurrentRow(0); // "Home", the active one
            QTest::mouseClick(child<QPushButton>(dialog, "removePushButton"), Qt::LeftButton);
            ModalAnswer::press("OK")(dialog);
        });
        shown.comboBox.setCurrentIndex(editEntry);
        QVERIFY(answer.fired());
        QCOMPARE(texts(shown.comboBox), QStringList({"Office", "Site", "---", "Edit Environments..."}));
        QCOMPARE(shown.comboBox.currentText(), QString("Office"));
        // The refill chose nothing: only the dialog wrote.
        QCOMPARE(shown.db.calls, QStringList({"Environments::setList(Office,Site)",
                                              "setActiveEnvironment({o})", "Environments::remove({h})"}));
    }

    void onlyAcceptedChangesRefill_data()
    {
        QTest::addColumn<bool>("change");
        QTest::addColumn<QString>("button");
        QTest::newRow("OK without change") << false << "OK";
        QTest::newRow("Cancel after a change") << true << "Cancel";
    }
    void onlyAcceptedChangesRefill()
    {
        QFETCH(bool, change);
        QFETCH(QString, button);
        Shown shown;
        ModalAnswer answer([&](QDialog* dialog) {
            if (change)
                child<QListWidget>(dialog, "listWidget")->item(0)->setText("Other");
            ModalAnswer::press(button)(dialog);
        });
        shown.db.environmentStore.list.removeLast(); // a refill would show it
        shown.comboBox.setCurrentIndex(editEntry);
        QVERIFY(answer.fired());
        QCOMPARE(texts(shown.comboBox), filled());
    }

    void proxyButton_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("address");
        QTest::newRow("OK") << "OK"
                            << "other";
        QTest::newRow("Cancel") << "Cancel"
                                << "proxy";
    }
    void proxyButton()
    {
        QFETCH(QString, button);
        QFETCH(QString, address);
        Shown shown;
        shown.db.proxySettings.setUseProxy(true);
        shown.db.proxySettings.setProxyAddress("proxy", 8080);
        shown.db.clearCalls();
        ModalAnswer answer([&](QDialog* dialog) {
            QVERIFY(qobject_cast<ko::NetworkProxyDialog*>(dialog));
            QCOMPARE(dialog->parentWidget(), &shown.dialog);
            QCOMPARE(dialog->windowFlags(), ko::dialogFlags(false));
            auto* edit = child<QLineEdit>(dialog, "proxyLineEdit");
            QCOMPARE(edit->text(), QString("proxy"));
            edit->setText("other");
            ModalAnswer::press(button)(dialog);
        });
        QTest::mouseClick(&shown.dialog.proxyButton, Qt::LeftButton);
        QVERIFY(answer.fired());
        QCOMPARE(shown.db.proxySettings.proxyAddress(), address);
        QCOMPARE(shown.db.calls.isEmpty(), button == "Cancel");
        QVERIFY(!shown.dialog.findChild<ko::NetworkProxyDialog*>());
    }

    void titlesShowNamesAsTheyAre_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("plain") << "Entrance";
        QTest::newRow("place marker") << "100 %1 %2";
        QTest::newRow("modification marker") << "Gate [*]";
        QTest::newRow("markup") << "<b>A & B</b>";
    }
    void titlesShowNamesAsTheyAre()
    {
        QFETCH(QString, name);
        Derived dialog;
        dialog.setTitle("Properties of %1", name);
        dialog.show();
        QCOMPARE(dialog.windowHandle()->title(), "Properties of " + name);
    }
};

KO_TEST_MAIN(TestNodeDialog)
#include "tst_nodedialog.moc"
