#include "dialogs/AddNodeDialog.h"

#include "dialogs/EnvironmentDialog.h"
#include "dialogs/NetworkProxyDialog.h"
#include "ko/ExtendedComboBox.h"
#include "ko/LogQt.h"
#include "ko/NodeHint.h"
#include "ko/dialogFlags.h"
#include "support/DialogCheck.h"
#include "support/ModalAnswer.h"
#include "support/Patience.h"
#include "support/SmallInspector.h"
#include "support/TestMain.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>

using namespace testsupport;

namespace {

const unsigned environmentControls = 0x80;

class KeptLines : public ko::LogSink
{
public:
    explicit KeptLines(int level)
        : m_before(ko::LogQt::instance().level())
    {
        ko::LogQt::instance().setLevel(level);
        ko::LogQt::instance().setSink(this);
    }
    ~KeptLines() override
    {
        ko::LogQt::instance().setSink(nullptr);
        ko::LogQt::instance().setLevel(m_before);
    }

    void write(int level, const QString& line) override
    {
        lines.append(QString::fromLatin1("%1: %2").arg(level).arg(line));
    }

    QStringList lines;

private:
    const int m_before;
};

std::unique_ptr<ko::AddNodeDialog> open(void* context, const QList<ko::ENodeType>* types, unsigned flags = 17)
{
    auto dialog = std::make_unique<ko::AddNodeDialog>(context, nullptr, types, false, flags);
    dialog->show();
    dialog->activateWindow();
    if (!QTest::qWaitForWindowActive(dialog.get()))
        qFatal("the dialog does not become active");
    return dialog;
}

void press(const QDialog& dialog, QDialogButtonBox::StandardButton which)
{
    QTest::mouseClick(child<QDialogButtonBox>(&dialog, "buttonBox")->button(which), Qt::LeftButton);
}

void typeName(const QDialog& dialog, const QString& name)
{
    QTest::keyClicks(child<QLineEdit>(&dialog, "nameLineEdit"), name);
}

SmallInspector* inspectorOf(const QDialog& dialog)
{
    return child<QWidget>(&dialog, "containerWidget")->findChild<SmallInspector*>();
}

QComboBox* typeBox(const QDialog& dialog)
{
    return child<QComboBox>(&dialog, "nodeTypeComboBox");
}

} // namespace

class TestAddNodeDialog : public QObject
{
    Q_OBJECT

    const QList<ko::ENodeType> twoTypes = {ko::IPDeviceType, ko::ChannelDeviceType};
    const QList<ko::ENodeType> oneType = {ko::IPDeviceType};

private slots:
    void metaObject()
    {
        const QMetaObject& meta = ko::AddNodeDialog::staticMetaObject;
        QCOMPARE(meta.className(), "ko::AddNodeDialog");
        QCOMPARE(meta.superClass()->className(), "ko::NodeDialog");
        QCOMPARE(declaredSlots(meta),
                 QStringList({"setInspectorFromIndex(int index)", "ok()", "nodeAdded(ko::NodeID id)"}));
    }

    void form()
    {
        SmallNodeDB db;
        const auto dialog = open(this, &twoTypes, environmentControls);
        QCOMPARE(dialog->objectName(), QString("AddNodeDialog"));
        QCOMPARE(dialog->windowFlags(), ko::dialogFlags(false) & ~Qt::WindowMinimizeButtonHint);
        auto* rows = child<QVBoxLayout>(dialog.get(), "verticalLayout");
        auto* grid = child<QGridLayout>(dialog.get(), "gridLayout");
        QCOMPARE(dialog->layout(), rows);
        QCOMPARE(rows->count(), 3);
        QCOMPARE(rows->itemAt(0)->layout(), grid);
        QCOMPARE(rows->itemAt(1)->widget(), child<QWidget>(dialog.get(), "containerWidget"));
        auto* box = child<QDialogButtonBox>(dialog.get(), "buttonBox");
        QCOMPARE(rows->itemAt(2)->widget(), box);
        QCOMPARE(box->standardButtons(), QDialogButtonBox::Ok | QDialogButtonBox::Cancel);

        auto* environmentLabel = child<QLabel>(dialog.get(), "environmentLabel");
        auto* environments = child<QComboBox>(dialog.get(), "environmentComboBox");
        auto* proxy = child<QPushButton>(dialog.get(), "proxyPushButton");
        auto* typeLabel = child<QLabel>(dialog.get(), "nodeTypeLabel");
        QCOMPARE(grid->itemAtPosition(0, 0)->widget(), environmentLabel);
        QCOMPARE(grid->itemAtPosition(0, 1)->widget(), environments);
        QCOMPARE(grid->itemAtPosition(0, 2)->widget(), proxy);
        QVERIFY(grid->itemAtPosition(0, 3)->spacerItem());
        QCOMPARE(grid->itemAtPosition(1, 0)->widget(), typeLabel);
        QCOMPARE(grid->itemAtPosition(1, 1)->widget(), typeBox(*dialog));
        QCOMPARE(environmentLabel->text(), QString("Environment:"));
        QCOMPARE(environmentLabel->minimumWidth(), 102);
        QCOMPARE(environmentLabel->buddy(), environments);
        QVERIFY(qobject_cast<ko::ExtendedComboBox*>(environments));
        QCOMPARE(environments->minimumWidth(), 200);
        QCOMPARE(proxy->text(), QString("Proxy..."));
        QCOMPARE(typeLabel->text(), QString("Type:"));
        QCOMPARE(typeLabel->minimumWidth(), 102);
        QCOMPARE(typeLabel->buddy(), typeBox(*dialog));
        QCOMPARE(typeBox(*dialog)->minimumWidth(), 200);
    }

    void typesComeFromTheDatabase_data()
    {
        QTest::addColumn<bool>("sorted");
        QTest::newRow("sorted") << true;
        QTest::newRow("as given") << false;
    }
    void typesComeFromTheDatabase()
    {
        QFETCH(bool, sorted);
        SmallNodeDB db;
        const ko::AddNodeDialog dialog(this, nullptr, &twoTypes, sorted, 17);
        QCOMPARE(db.askedTypes, &twoTypes);
        QCOMPARE(db.askedSorted, sorted);
        const QComboBox* box = typeBox(dialog);
        QCOMPARE(box->count(), 2);
        const int camera = sorted ? 1 : 0;
        QCOMPARE(box->itemText(camera), QString("IP camera"));
        QCOMPARE(box->itemData(camera), QVariant(2));
        QCOMPARE(box->itemText(1 - camera), QString("Channel device"));
        QCOMPARE(box->itemData(1 - camera), QVariant(5));
        QVERIFY(box->itemIcon(0).isNull());
        QCOMPARE(box->currentIndex(), 0);
        QCOMPARE(dialog.windowTitle(), "Add " + box->itemText(0));
    }

    void allTypesOfTheDatabase()
    {
        SmallNodeDB db;
        db.defineType(ko::ViewType, "View");
        const ko::AddNodeDialog dialog(this, nullptr, nullptr, false, 17);
        QVERIFY(!db.askedTypes);
        QCOMPARE(typeBox(dialog)->count(), 3);
    }

    void singleTypeNeedsNoChoice()
    {
        SmallNodeDB db;
        const auto single = open(this, &oneType);
        QVERIFY(typeBox(*single)->isHidden());
        QVERIFY(child<QLabel>(single.get(), "nodeTypeLabel")->isHidden());
        const auto two = open(this, &twoTypes);
        QVERIFY(typeBox(*two)->isVisible());
        QVERIFY(child<QLabel>(two.get(), "nodeTypeLabel")->isVisible());
    }

    void noTypeAtAll()
    {
        SmallNodeDB db;
        // A type of number 0 must not slip in where nothing is chosen.
        db.defineType(ko::RecordingFolderType, "Recording folder");
        const QList<ko::ENodeType> none;
        const auto dialog = open(this, &none);
        QCOMPARE(dialog->windowTitle(), QString("Add Camera"));
        QVERIFY(typeBox(*dialog)->isHidden());
        press(*dialog, QDialogButtonBox::Ok);
        QVERIFY(db.calls.isEmpty());
    }

    void titleShowsTypeNamesAsTheyAre()
    {
        SmallNodeDB db;
        db.defineType(ko::IPDeviceType, "100 %1");
        QCOMPARE(open(this, &oneType)->windowTitle(), QString("Add 100 %1"));
    }

    void inspectorFillsTheContainer()
    {
        SmallNodeDB db;
        const auto dialog = open(this, &oneType, 17);
        QCOMPARE(db.calls, QStringList({"createNodeHint(2)", "createInspectorWidget(2,17)"}));
        auto* container = child<QWidget>(dialog.get(), "containerWidget");
        SmallInspector* inspector = inspectorOf(*dialog);
        QCOMPARE(inspector->parentWidget(), container);
        QVERIFY(qobject_cast<QVBoxLayout*>(container->layout()));
        QCOMPARE(container->layout()->contentsMargins(), QMargins());
        QCOMPARE(inspector->geometry(), container->rect());
        QCOMPARE(inspector->nodeHint()->context, static_cast<void*>(this));
        QCOMPARE(inspector->flags(), 17u);
    }

    void okClosesThenCreates()
    {
        SmallNodeDB db;
        const auto dialog = open(this, &oneType);
        bool openInOk = true;
        int resultInOk = -1;
        inspectorOf(*dialog)->onOk = [&] {
            openInOk = dialog->isVisible();
            resultInOk = dialog->result();
        };
        typeName(*dialog, "Door");
        db.clearCalls();
        press(*dialog, QDialogButtonBox::Ok);
        QVERIFY(!openInOk);
        QCOMPARE(resultInOk, int(QDialog::Accepted));
        QCOMPARE(db.calls, QStringList({"inspector.ok()", "setName(Door)", "newNodeHint(Door)"}));
        QCOMPARE(db.nodeIdList(ko::AllNodeTypes), QStringList(dialog->nodeId()));
        QCOMPARE(db.node(dialog->nodeId())->name(), QString("Door"));
    }

    void idIsKnownWhenExecReturns()
    {
        SmallNodeDB db;
        ko::AddNodeDialog dialog(this, nullptr, &oneType, false, 17);
        ModalAnswer answer([](QDialog* shown) {
            typeName(*shown, "Door");
            QTest::keyClick(child<QLineEdit>(shown, "nameLineEdit"), Qt::Key_Return);
        });
        QVERIFY(dialog.nodeId().isEmpty());
        QCOMPARE(dialog.exec(), int(QDialog::Accepted));
        QCOMPARE(db.node(dialog.nodeId())->name(), QString("Door"));
    }

    void idIsEmptyUntilAnnounced()
    {
        SmallNodeDB db;
        const auto dialog = open(this, &oneType);
        db.blockSignals(true); // a host that announces later
        press(*dialog, QDialogButtonBox::Ok);
        db.blockSignals(false);
        QVERIFY(dialog->nodeId().isEmpty());
        const QString id = db.nodeIdList(ko::AllNodeTypes).value(0);
        emit db.nodeInserted(id);
        QCOMPARE(dialog->nodeId(), id);
    }

    void cancel()
    {
        SmallNodeDB db;
        const auto dialog = open(this, &oneType);
        typeName(*dialog, "Door");
        db.clearCalls();
        press(*dialog, QDialogButtonBox::Cancel);
        QCOMPARE(dialog->result(), int(QDialog::Rejected));
        QCOMPARE(db.calls, QStringList("inspector.cancel()"));
        QVERIFY(dialog->nodeId().isEmpty());
    }

    void insertsOfOthersAreIgnored()
    {
        SmallNodeDB db;
        const auto dialog = open(this, &oneType);
        db.addCamera("cam1", "Entrance");
        emit db.nodeInserted("cam1"); // without a context
        QVERIFY(dialog->nodeId().isEmpty());
        emit db.nodeInserted("gone");
        QVERIFY(dialog->nodeId().isEmpty());
        const auto hint = db.createHint(ko::IPDeviceType);
        hint->context = &db;
        db.newNodeHint(*hint);
        QVERIFY(dialog->nodeId().isEmpty());
    }

    void twoDialogsKnowTheirOwnNode()
    {
        SmallNodeDB db;
        int first = 0;
        int second = 0;
        const auto one = open(&first, &oneType);
        const auto two = open(&second, &oneType);
        typeName(*one, "One");
        typeName(*two, "Two");
        press(*two, QDialogButtonBox::Ok);
        QVERIFY(one->nodeId().isEmpty());
        QCOMPARE(db.node(two->nodeId())->name(), QString("Two"));
        press(*one, QDialogButtonBox::Ok);
        QCOMPARE(db.node(one->nodeId())->name(), QString("One"));
        QCOMPARE(db.node(two->nodeId())->name(), QString("Two"));
    }

    void anotherTypeStartsOver()
    {
        SmallNodeDB db;
        const auto dialog = open(this, &twoTypes);
        typeName(*dialog, "Door");
        const QPointer<SmallInspector> before = inspectorOf(*dialog);
        db.clearCalls();
        typeBox(*dialog)->setFocus();
        QTest::keyClick(typeBox(*dialog), Qt::Key_Down);
        QVERIFY(!before);
        // The inspector goes before its hint does, and a new hint is asked for in between.
        QCOMPARE(db.calls, QStringList({"~inspector()", "createNodeHint(5)", "~hint()",
                                        "createInspectorWidget(5,17)"}));
        QCOMPARE(dialog->windowTitle(), QString("Add Channel device"));
        auto* container = child<QWidget>(dialog.get(), "containerWidget");
        QCOMPARE(container->findChildren<ko::InspectorWidget*>().count(), 1);
        QCOMPARE(container->layout()->count(), 1);
        QVERIFY(inspectorOf(*dialog)->isVisible());
        QCOMPARE(inspectorOf(*dialog)->nodeHint()->context, static_cast<void*>(this));
        QCOMPARE(child<QLineEdit>(dialog.get(), "nameLineEdit")->text(), QString());
        db.clearCalls();
        press(*dialog, QDialogButtonBox::Ok);
        QCOMPARE(db.calls, QStringList({"inspector.ok()", "newNodeHint()"}));
        QCOMPARE(db.node(dialog->nodeId())->type, ko::ChannelDeviceType);
    }

    void closingDeletesTheInspectorBeforeItsHint()
    {
        SmallNodeDB db;
        auto dialog = open(this, &oneType);
        db.clearCalls();
        dialog.reset();
        QCOMPARE(db.calls, QStringList({"~inspector()", "~hint()"}));
    }

    void typeWithoutDriverKeepsTheEditor()
    {
        SmallNodeDB db;
        db.defineType(ko::ViewType, "View", SmallNodeDB::NoDriver);
        const QList<ko::ENodeType> types = {ko::IPDeviceType, ko::ViewType};
        const KeptLines log(0);
        const auto dialog = open(this, &types);
        SmallInspector* before = inspectorOf(*dialog);
        typeName(*dialog, "Door");
        db.clearCalls();
        typeBox(*dialog)->setCurrentIndex(1);
        QCOMPARE(dialog->windowTitle(), QString("Add View"));
        QCOMPARE(inspectorOf(*dialog), before);
        QVERIFY(db.calls.isEmpty());
        press(*dialog, QDialogButtonBox::Ok);
        QCOMPARE(db.node(dialog->nodeId())->type, ko::IPDeviceType);
        QVERIFY(log.lines.isEmpty());
    }

    void onlyTypeWithoutDriver()
    {
        SmallNodeDB db;
        const QList<ko::ENodeType> types = {ko::ViewType};
        const auto dialog = open(this, &types);
        QCOMPARE(dialog->windowTitle(), QString("Add Type 1"));
        QVERIFY(!inspectorOf(*dialog));
        press(*dialog, QDialogButtonBox::Ok);
        QCOMPARE(dialog->result(), int(QDialog::Accepted));
        QVERIFY(db.calls.isEmpty());
    }

    void driverWithoutHint_data()
    {
        QTest::addColumn<int>("level");
        QTest::addColumn<QStringList>("lines");
        const QStringList line("2: Node driver could not deliver node hint!");
        QTest::newRow("everything is logged") << 0 << line;
        QTest::newRow("warnings are logged") << 2 << line;
        QTest::newRow("only errors are logged") << 3 << QStringList();
    }
    void driverWithoutHint()
    {
        QFETCH(int, level);
        QFETCH(QStringList, lines);
        SmallNodeDB db;
        db.defineType(ko::ViewType, "View", SmallNodeDB::DriverWithoutHint);
        db.addEnvironment("{h}", "Home");
        db.addEnvironment("{o}", "Office");
        const QList<ko::ENodeType> types = {ko::IPDeviceType, ko::ViewType};
        const KeptLines log(level);
        const auto dialog = open(this, &types, environmentControls);
        QVERIFY(log.lines.isEmpty());
        typeBox(*dialog)->setCurrentIndex(1);
        QCOMPARE(log.lines, lines);
        QCOMPARE(dialog->windowTitle(), QString("Add View"));
        auto* container = child<QWidget>(dialog.get(), "containerWidget");
        QVERIFY(!container->findChild<ko::InspectorWidget*>());
        QVERIFY(!container->layout());

        // No inspector is there to be told of another environment.
        db.clearCalls();
        child<QComboBox>(dialog.get(), "environmentComboBox")->setCurrentIndex(1);
        QCOMPARE(db.calls, QStringList("setActiveEnvironment({o})"));

        db.clearCalls();
        press(*dialog, QDialogButtonBox::Ok);
        QVERIFY(!dialog->isVisible());
        QVERIFY(db.calls.isEmpty());
        QVERIFY(dialog->nodeId().isEmpty());
    }

    void backFromATypeWithoutHint()
    {
        SmallNodeDB db;
        db.defineType(ko::ViewType, "View", SmallNodeDB::DriverWithoutHint);
        const QList<ko::ENodeType> types = {ko::ViewType, ko::IPDeviceType};
        const KeptLines log(2);
        const auto dialog = open(this, &types);
        const int emptyHeight = dialog->height();
        typeBox(*dialog)->setCurrentIndex(1);
        QVERIFY(inspectorOf(*dialog)->isVisible());
        QVERIFY(dialog->height() > emptyHeight);
        KO_TRY_COMPARE(inspectorOf(*dialog)->geometry(),
                       child<QWidget>(dialog.get(), "containerWidget")->rect());
        typeBox(*dialog)->setCurrentIndex(0);
        QCOMPARE(dialog->height(), emptyHeight);
        QCOMPARE(log.lines.count(), 2);
    }

    void driverWithoutInspector()
    {
        SmallNodeDB db;
        db.defineType(ko::IPDeviceType, "IP camera", SmallNodeDB::DriverWithoutInspector);
        const auto dialog = open(this, &oneType);
        QVERIFY(!inspectorOf(*dialog));
        db.clearCalls();
        press(*dialog, QDialogButtonBox::Ok);
        QVERIFY(db.calls.isEmpty());
    }

    void keyboard()
    {
        SmallNodeDB db;
        db.addEnvironment("{h}", "Home");
        const auto dialog = open(this, &twoTypes, environmentControls);
        auto* ok = child<QDialogButtonBox>(dialog.get(), "buttonBox")->button(QDialogButtonBox::Ok);
        QVERIFY(ok->isDefault());
        QVERIFY(ok->autoDefault());
        QVERIFY(child<QLineEdit>(dialog.get(), "nameLineEdit")->hasFocus()); // and not the environment
        const QStringList expected = {
            "environmentComboBox", "proxyPushButton", "nodeTypeComboBox", "nameLineEdit", "OK", "Cancel"};
        for (int index : {1, 0, 1}) {
            QStringList order = tabOrder(dialog.get());
            order.removeAll("qt_tabwidget_tabbar");
            QCOMPARE(order, expected);
            typeBox(*dialog)->setCurrentIndex(index); // and with the next inspector
        }
    }

    void environmentRowIsHidden()
    {
        SmallNodeDB db;
        db.addEnvironment("{h}", "Home");
        const auto dialog = open(this, &oneType, ~environmentControls);
        for (const char* name : {"environmentLabel", "environmentComboBox", "proxyPushButton"})
            QVERIFY2(child<QWidget>(dialog.get(), name)->isHidden(), name);
        QCOMPARE(child<QComboBox>(dialog.get(), "environmentComboBox")->count(), 0);
        QCOMPARE(child<QWidget>(dialog.get(), "containerWidget")->y(),
                 dialog->layout()->contentsMargins().top()); // no gap is left
    }

    void environmentRowIsLive()
    {
        SmallNodeDB db;
        db.addEnvironment("{h}", "Home");
        db.addEnvironment("{o}", "Office");
        const auto dialog = open(this, &twoTypes, environmentControls);
        for (const char* name : {"environmentLabel", "environmentComboBox", "proxyPushButton"})
            QVERIFY2(child<QWidget>(dialog.get(), name)->isVisible(), name);
        auto* environments = child<QComboBox>(dialog.get(), "environmentComboBox");
        QCOMPARE(environments->count(), 4);

        // The inspector told is the present one, also after a change of type.
        typeBox(*dialog)->setCurrentIndex(1);
        db.clearCalls();
        environments->setCurrentIndex(1);
        QCOMPARE(db.calls, QStringList({"setActiveEnvironment({o})", "inspector.updateNode()"}));

        ModalAnswer answer([](QDialog* shown) {
            QVERIFY(qobject_cast<ko::EnvironmentDialog*>(shown));
            shown->reject();
        });
        environments->setCurrentIndex(3);
        QVERIFY(answer.fired());
        ModalAnswer proxy([](QDialog* shown) {
            QVERIFY(qobject_cast<ko::NetworkProxyDialog*>(shown));
            shown->reject();
        });
        QTest::mouseClick(child<QPushButton>(dialog.get(), "proxyPushButton"), Qt::LeftButton);
        QVERIFY(proxy.fired());
    }

    void fitsALongLanguage()
    {
        SmallNodeDB db;
        db.addEnvironment("{h}", "Home");
        const LongLanguage language;
        const auto dialog = open(this, &twoTypes, environmentControls);
        QCOMPARE(dialog->windowTitle(), QString("Add IP camera Add IP camera"));
        dialog->resize(dialog->sizeHint()); // the screen of the tests is too small to open it so
        QCOMPARE(cutOff(dialog.get()).join(", "), QString());
    }
};

KO_TEST_MAIN(TestAddNodeDialog)
#include "tst_addnodedialog.moc"
