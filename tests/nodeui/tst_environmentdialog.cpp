#include "dialogs/EnvironmentDialog.h"

#include "ko/RowHeightDelegate.h"
#include "ko/dialogFlags.h"
#include "support/DialogCheck.h"
#include "support/ModalAnswer.h"
#include "support/Patience.h"
#include "support/SmallHost.h"
#include "support/TestMain.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QUuid>

using namespace testsupport;

namespace {

/// The dialog over a database with the environments "Office" (active), "Home" and "Site".
struct Shown
{
    explicit Shown(const ko::Environments::List& environments = {
                       {"{o}", "Office"}, {"{h}", "Home"}, {"{s}", "Site"}})
    {
        for (const auto& environment : environments)
            db.addEnvironment(environment.first, environment.second);
        dialog = std::make_unique<ko::EnvironmentDialog>();
        list = child<QListWidget>(dialog.get(), "listWidget");
        add = child<QPushButton>(dialog.get(), "addPushButton");
        remove = child<QPushButton>(dialog.get(), "removePushButton");
        box = child<QDialogButtonBox>(dialog.get(), "buttonBox");
        dialog->show();
        dialog->activateWindow();
        if (!QTest::qWaitForWindowActive(dialog.get()))
            qFatal("the dialog does not become active");
    }

    QStringList names() const
    {
        QStringList names;
        for (int row = 0; row < list->count(); ++row)
            names.append(list->item(row)->text());
        return names;
    }

    QListWidgetItem* item(const QString& name) const
    {
        const QList<QListWidgetItem*> items = list->findItems(name, Qt::MatchExactly);
        if (items.isEmpty())
            qFatal("no environment %s", qPrintable(name));
        return items.first();
    }

    QString idOf(const QString& name) const { return item(name)->data(Qt::UserRole).toString(); }

    void click(const QString& name)
    {
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                          list->visualItemRect(item(name)).center());
    }

    QLineEdit* editor() const { return list->viewport()->findChild<QLineEdit*>(); }

    void type(const QString& text, Qt::Key end)
    {
        QTest::keyClicks(editor(), text);
        QTest::keyClick(editor(), end);
        KO_TRY_VERIFY(!editor());
    }

    void press(QDialogButtonBox::StandardButton button)
    {
        QTest::mouseClick(box->button(button), Qt::LeftButton);
    }

    SmallNodeDB db;
    std::unique_ptr<ko::EnvironmentDialog> dialog;
    QListWidget* list;
    QPushButton* add;
    QPushButton* remove;
    QDialogButtonBox* box;
};

} // namespace

class TestEnvironmentDialog : public QObject
{
    Q_OBJECT

private slots:
    void metaObject()
    {
        QCOMPARE(ko::EnvironmentDialog::staticMetaObject.className(), "ko::EnvironmentDialog");
        QCOMPARE(declaredSlots(ko::EnvironmentDialog::staticMetaObject),
                 QStringList({"addEnvironment()", "removeEnvironment()", "itemChanged(QListWidgetItem* item)",
                              "itemSelectionChanged()", "accepted()"}));
    }

    void form()
    {
        SmallNodeDB db;
        ko::EnvironmentDialog dialog;
        QCOMPARE(dialog.objectName(), QString("EnvironmentDialog"));
        QCOMPARE(dialog.windowTitle(), QString("Network Environments"));
        QCOMPARE(dialog.windowModality(), Qt::ApplicationModal);
        QCOMPARE(dialog.size(), QSize(357, 233));
        QCOMPARE(child<QVBoxLayout>(&dialog, "verticalLayout"), dialog.layout());

        auto* list = child<QListWidget>(&dialog, "listWidget");
        QCOMPARE(list->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
        QVERIFY(list->tabKeyNavigation());
        QCOMPARE(list->selectionBehavior(), QAbstractItemView::SelectRows);
        QCOMPARE(list->selectionMode(), QAbstractItemView::SingleSelection);
        QCOMPARE(list->iconSize(), QSize(0, 24));
        QVERIFY(qobject_cast<ko::RowHeightDelegate*>(list->itemDelegate()));

        auto* add = child<QPushButton>(&dialog, "addPushButton");
        QCOMPARE(add->text(), QString());
        QCOMPARE(add->toolTip(), QString("Click to add a new environment."));
        QCOMPARE(add->accessibleName(), add->toolTip());
        QVERIFY(add->isEnabled());
        auto* remove = child<QPushButton>(&dialog, "removePushButton");
        QCOMPARE(remove->text(), QString());
        QCOMPARE(remove->toolTip(), QString("Click to remove the selected environment."));
        QCOMPARE(remove->accessibleName(), remove->toolTip());
        QVERIFY(!remove->isEnabled());
        for (const QPushButton* button : {add, remove}) {
            QCOMPARE(button->minimumSize(), QSize(32, 28));
            QCOMPARE(button->maximumSize(), QSize(32, 28));
        }
        auto* box = child<QDialogButtonBox>(&dialog, "buttonBox");
        QCOMPARE(box->orientation(), Qt::Horizontal);
        QCOMPARE(box->standardButtons(), QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
        auto* row = child<QHBoxLayout>(&dialog, "horizontalLayout");
        QCOMPARE(row->itemAt(0)->widget(), add);
        QCOMPARE(row->itemAt(1)->widget(), remove);
        QVERIFY(row->itemAt(2)->spacerItem());
        QCOMPARE(row->itemAt(2)->spacerItem()->sizeHint(), QSize(40, 20));
        QCOMPARE(row->itemAt(3)->widget(), box);
        QCOMPARE(dialog.layout()->itemAt(0)->widget(), list);
        QCOMPARE(dialog.layout()->itemAt(1)->layout(), row);
    }

    void iconsAreTheOnesInTheResources()
    {
        SmallNodeDB db;
        ko::EnvironmentDialog dialog;
        const struct
        {
            const char* button;
            const char* file;
        } icons[] = {{"addPushButton", ":/icons/add.png"}, {"removePushButton", ":/icons/minus.png"}};
        for (const auto& icon : icons) {
            const QImage drawn(icon.file);
            QCOMPARE(drawn.size(), QSize(16, 16));
            QCOMPARE(QImage(QString(icon.file).replace(".png", "@2x.png")).size(), QSize(32, 32));
            const QImage shown =
                child<QPushButton>(&dialog, icon.button)->icon().pixmap(QSize(16, 16)).toImage();
            QCOMPARE(shown.convertToFormat(QImage::Format_ARGB32_Premultiplied),
                     drawn.convertToFormat(QImage::Format_ARGB32_Premultiplied));
        }
    }

    void windowFlags()
    {
        SmallNodeDB db;
        QCOMPARE(ko::EnvironmentDialog().windowFlags(), ko::dialogFlags(false));
        const Qt::WindowFlags own = Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint;
        QCOMPARE(ko::EnvironmentDialog(nullptr, own).windowFlags(), own);
    }

    void rowsAreTallEnough()
    {
        Shown shown;
        QVERIFY(shown.list->visualItemRect(shown.list->item(0)).height() >= 24);
        // The delegate goes with the dialog.
        const QPointer<QAbstractItemDelegate> delegate = shown.list->itemDelegate();
        shown.dialog.reset();
        QVERIFY(!delegate);
    }

    void fillsSortedByName()
    {
        Shown shown;
        QCOMPARE(shown.names(), QStringList({"Home", "Office", "Site"}));
        QCOMPARE(shown.idOf("Home"), QString("{h}"));
        QCOMPARE(shown.idOf("Office"), QString("{o}"));
        for (int row = 0; row < 3; ++row)
            QVERIFY(shown.list->item(row)->flags() & Qt::ItemIsEditable);
        QVERIFY(!shown.dialog->dirty());
        QVERIFY(!shown.remove->isEnabled());
        QVERIFY(shown.db.calls.isEmpty());
    }

    void keyboard()
    {
        Shown shown;
        QVERIFY(shown.list->hasFocus());
        QCOMPARE(tabOrder(shown.dialog.get()), QStringList({"listWidget", "addPushButton", "OK", "Cancel"}));
        QVERIFY(shown.box->button(QDialogButtonBox::Ok)->isDefault());
        QVERIFY(!shown.add->autoDefault());
        QVERIFY(!shown.remove->autoDefault());
        QTest::keyClick(shown.list, Qt::Key_Return);
        QVERIFY(!shown.dialog->isVisible());
        QCOMPARE(shown.dialog->result(), int(QDialog::Accepted));
    }

    void removeNeedsASelectionAndASecondOne()
    {
        Shown shown({{"{h}", "Home"}, {"{o}", "Office"}});
        shown.click("Home");
        QVERIFY(shown.remove->isEnabled());
        shown.list->clearSelection();
        QVERIFY(!shown.remove->isEnabled());
        shown.click("Office");
        QTest::mouseClick(shown.remove, Qt::LeftButton);
        QCOMPARE(shown.names(), QStringList("Home"));
        QVERIFY(!shown.remove->isEnabled());
        QVERIFY(shown.dialog->dirty());
    }

    void lastOneStays()
    {
        Shown shown(ko::Environments::List{{"{h}", "Home"}});
        shown.click("Home");
        QVERIFY(!shown.list->selectedItems().isEmpty());
        QVERIFY(!shown.remove->isEnabled());
        QTest::keyClick(shown.list, Qt::Key_Delete);
        QCOMPARE(shown.names(), QStringList("Home"));
        QVERIFY(!shown.dialog->dirty());
    }

    void deleteKeyRemoves()
    {
        Shown shown;
        QTest::keyClick(shown.list, Qt::Key_Delete); // nothing selected yet
        QVERIFY(!shown.dialog->dirty());
        shown.click("Office");
        QTest::keyClick(shown.list, Qt::Key_Delete);
        QCOMPARE(shown.names(), QStringList({"Home", "Site"}));
        QVERIFY(shown.dialog->dirty());
    }

    void deleteKeyInTheEditorEditsTheName()
    {
        Shown shown;
        shown.click("Office");
        QTest::keyClick(shown.list, Qt::Key_F2);
        QVERIFY(shown.editor());
        QTest::keyClick(shown.editor(), Qt::Key_Home);
        QTest::keyClick(shown.editor(), Qt::Key_Delete);
        QTest::keyClick(shown.editor(), Qt::Key_Return);
        KO_TRY_VERIFY(!shown.editor());
        QCOMPARE(shown.list->count(), 3);
        QCOMPARE(shown.idOf("ffice"), QString("{o}"));
    }

    void removeSlotMarksEvenWithoutSelection()
    {
        Shown shown;
        QVERIFY(QMetaObject::invokeMethod(shown.dialog.get(), "removeEnvironment"));
        QCOMPARE(shown.names().count(), 3);
        QVERIFY(shown.dialog->dirty());
    }

    void renameMovesTheItem_data()
    {
        QTest::addColumn<bool>("byKey");
        QTest::newRow("F2") << true;
        QTest::newRow("double click") << false;
    }
    void renameMovesTheItem()
    {
        QFETCH(bool, byKey);
        Shown shown;
        shown.click("Site");
        if (byKey)
            QTest::keyClick(shown.list, Qt::Key_F2);
        else
            QTest::mouseDClick(shown.list->viewport(), Qt::LeftButton, Qt::NoModifier,
                               shown.list->visualItemRect(shown.item("Site")).center());
        QVERIFY(shown.editor());
        QVERIFY(!shown.dialog->dirty());
        shown.type("Airport", Qt::Key_Return);
        QVERIFY(shown.dialog->isVisible()); // Return belonged to the editor
        QCOMPARE(shown.names(), QStringList({"Airport", "Home", "Office"}));
        QCOMPARE(shown.idOf("Airport"), QString("{s}"));
        QVERIFY(shown.dialog->dirty());
        shown.press(QDialogButtonBox::Ok);
        QCOMPARE(shown.db.calls, QStringList("Environments::setList(Airport,Home,Office)"));
    }

    void escapeLeavesTheEditorOnly()
    {
        Shown shown;
        shown.click("Site");
        QTest::keyClick(shown.list, Qt::Key_F2);
        shown.type("Airport", Qt::Key_Escape);
        QVERIFY(shown.dialog->isVisible());
        QCOMPARE(shown.names(), QStringList({"Home", "Office", "Site"}));
        QVERIFY(!shown.dialog->dirty());
        QTest::keyClick(shown.list, Qt::Key_Escape);
        QVERIFY(!shown.dialog->isVisible());
    }

    void addOpensTheEditor()
    {
        Shown shown;
        QTest::mouseClick(shown.add, Qt::LeftButton);
        QVERIFY(shown.dialog->dirty());
        QVERIFY(shown.editor());
        KO_TRY_VERIFY(shown.editor()->hasFocus());
        QVERIFY(shown.editor()->text().startsWith("Untitled "));
        QCOMPARE(shown.editor()->selectedText(), shown.editor()->text());
        shown.type("Cellar", Qt::Key_Return);
        QCOMPARE(shown.names(), QStringList({"Cellar", "Home", "Office", "Site"}));
        const QString id = shown.idOf("Cellar");
        QCOMPARE(QUuid(id).toString(), id);
        QVERIFY(!QUuid(id).isNull());
        // The keys go on with the new one.
        QVERIFY(shown.list->hasFocus());
        QCOMPARE(shown.list->currentItem(), shown.item("Cellar"));
        QVERIFY(shown.remove->isEnabled());
        shown.press(QDialogButtonBox::Ok);
        QCOMPARE(shown.db.calls, QStringList("Environments::setList(Cellar,Home,Office,Site)"));
        QCOMPARE(shown.db.environmentStore.list.first().first, id);
    }

    void addedOnesAreSortedIn()
    {
        Shown shown({{"{a}", "Airport"}, {"{z}", "Zoo"}});
        QTest::mouseClick(shown.add, Qt::LeftButton);
        QCOMPARE(shown.list->count(), 3);
        QVERIFY(shown.list->item(1)->text().startsWith("Untitled "));
    }

    void editorIsInSightInALongList()
    {
        ko::Environments::List many;
        for (int i = 0; i < 60; ++i)
            many.append(qMakePair(QString("{%1}").arg(i), QString("A%1").arg(i)));
        Shown shown(many);
        QTest::mouseClick(shown.add, Qt::LeftButton);
        QVERIFY(shown.editor());
        QVERIFY(shown.list->viewport()->rect().contains(shown.editor()->geometry()));
    }

    void addingTwiceCountsOn()
    {
        Shown shown;
        QTest::mouseClick(shown.add, Qt::LeftButton);
        const int first = shown.editor()->text().section(' ', 1).toInt();
        QVERIFY(first >= 1);
        QTest::mouseClick(shown.add, Qt::LeftButton);
        KO_TRY_COMPARE(shown.editor()->text(), QString("Untitled %1").arg(first + 1));
        QTest::keyClick(shown.editor(), Qt::Key_Escape);
        shown.press(QDialogButtonBox::Cancel);

        Shown second;
        QTest::mouseClick(second.add, Qt::LeftButton);
        QCOMPARE(second.editor()->text(), QString("Untitled %1").arg(first + 2));
        QVERIFY(second.idOf(second.editor()->text()) != QString());
    }

    void okWithoutChangeWritesNothing()
    {
        Shown shown;
        shown.click("Site");
        shown.press(QDialogButtonBox::Ok);
        QVERIFY(!shown.dialog->isVisible());
        QVERIFY(!shown.dialog->dirty());
        QVERIFY(shown.db.calls.isEmpty());
    }

    void cancelWritesNothing()
    {
        Shown shown;
        shown.click("Site");
        QTest::mouseClick(shown.remove, Qt::LeftButton);
        shown.press(QDialogButtonBox::Cancel);
        QCOMPARE(shown.dialog->result(), int(QDialog::Rejected));
        QVERIFY(shown.db.calls.isEmpty());
        QVERIFY(shown.dialog->dirty());
    }

    void removingTheActiveOne()
    {
        Shown shown;
        shown.click("Office");
        QTest::mouseClick(shown.remove, Qt::LeftButton);
        shown.press(QDialogButtonBox::Ok);
        QCOMPARE(shown.db.calls, QStringList({"Environments::setList(Home,Site)", "setActiveEnvironment({h})",
                                              "Environments::remove({o})"}));
        QVERIFY(shown.dialog->dirty());
    }

    void removingAnotherOne()
    {
        Shown shown;
        shown.click("Home");
        QTest::mouseClick(shown.remove, Qt::LeftButton);
        shown.press(QDialogButtonBox::Ok);
        QCOMPARE(shown.db.calls, QStringList("Environments::setList(Office,Site)"));
        QCOMPARE(shown.db.environment, QString("{o}"));
    }

    void acceptedHoweverItWasAccepted()
    {
        Shown shown;
        shown.click("Home");
        QTest::mouseClick(shown.remove, Qt::LeftButton);
        shown.dialog->accept();
        QCOMPARE(shown.db.calls, QStringList("Environments::setList(Office,Site)"));
    }

    void okTakesTheNameBeingTyped()
    {
        Shown shown;
        shown.click("Site");
        QTest::keyClick(shown.list, Qt::Key_F2);
        QTest::keyClicks(shown.editor(), "Airport");
        shown.press(QDialogButtonBox::Ok);
        QCOMPARE(shown.db.calls, QStringList("Environments::setList(Airport,Home,Office)"));
    }

    void namesAreStoredAsTyped()
    {
        Shown shown;
        shown.click("Home");
        QTest::keyClick(shown.list, Qt::Key_F2);
        shown.editor()->clear();
        shown.type("", Qt::Key_Return);
        shown.click("Site");
        QTest::keyClick(shown.list, Qt::Key_F2);
        shown.type("Office", Qt::Key_Return);
        shown.press(QDialogButtonBox::Ok);
        QCOMPARE(shown.db.calls, QStringList("Environments::setList(,Office,Office)"));
    }

    void firstEnvironmentOfAll()
    {
        Shown shown(ko::Environments::List{});
        QTest::mouseClick(shown.add, Qt::LeftButton);
        QVERIFY(!shown.remove->isEnabled());
        shown.type("Home", Qt::Key_Return);
        const QString id = shown.idOf("Home");
        shown.press(QDialogButtonBox::Ok);
        QCOMPARE(shown.db.calls, QStringList({"Environments::setList(Home)",
                                              "setActiveEnvironment(" + id + ")", "Environments::remove()"}));
    }

    void noEnvironmentAtAll()
    {
        Shown shown(ko::Environments::List{});
        QVERIFY(QMetaObject::invokeMethod(shown.dialog.get(), "removeEnvironment"));
        shown.press(QDialogButtonBox::Ok);
        QCOMPARE(shown.db.calls, QStringList("Environments::setList()"));
    }

    void fitsALongLanguage()
    {
        const LongLanguage language;
        Shown shown;
        QCOMPARE(shown.dialog->windowTitle(), QString("Network Environments Network Environments"));
        QCOMPARE(cutOff(shown.dialog.get()).join(", "), QString());
        QCOMPARE(shown.add->accessibleName(), shown.add->toolTip());
    }
};

KO_TEST_MAIN(TestEnvironmentDialog)
#include "tst_environmentdialog.moc"
