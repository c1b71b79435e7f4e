#include "dialogs/EditNodeDialog.h"

#include "dialogs/EnvironmentDialog.h"
#include "dialogs/NetworkProxyDialog.h"
#include "interfaces/ILayoutAdapter.h"
#include "ko/dialogFlags.h"
#include "pages/LayoutOptionsWidget.h"
#include "support/DialogCheck.h"
#include "support/ModalAnswer.h"
#include "support/SmallInspector.h"
#include "support/TestMain.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>

using namespace testsupport;

namespace {

const unsigned environmentControls = 0x80;
const unsigned fillLayoutLists = 0x20;

class TwoLayouts : public ko::ILayoutAdapter
{
public:
    QList<ko::Layout> layouts() const override
    {
        ko::Layout first;
        first.id = 7;
        first.name = "Quad";
        ko::Layout second;
        second.id = 9;
        second.name = "Single";
        return {first, second};
    }
};

/// Makes the small host's inspectors stack the layout options page, as "layoutOptions".
void stackLayoutPage(SmallInspector* inspector)
{
    auto* page = new ko::LayoutOptionsWidget(nullptr);
    page->setObjectName("layoutOptionsWidget");
    page->init(inspector->nodeId());
    inspector->addPage(page, "layoutOptions");
}

/// Counts the buttons that are taken out of a button box, and those that are destroyed in one.
struct TakenButtons : QObject
{
    TakenButtons() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::ChildRemoved && qobject_cast<QDialogButtonBox*>(watched))
            ++(static_cast<QChildEvent*>(event)->child()->inherits("QPushButton") ? alive : destroyed);
        return QObject::eventFilter(watched, event);
    }

    int alive = 0;
    int destroyed = 0;
};

/// A database with the camera "cam1", named "Entrance".
struct Host
{
    Host() { db.addCamera("cam1", "Entrance"); }

    std::unique_ptr<ko::EditNodeDialog> open(bool readOnly = false, unsigned flags = 17,
                                             const ko::ILayoutAdapter* adapter = nullptr)
    {
        auto dialog = std::make_unique<ko::EditNodeDialog>("cam1", nullptr, readOnly, flags, adapter);
        dialog->show();
        dialog->activateWindow();
        if (!QTest::qWaitForWindowActive(dialog.get()))
            qFatal("the dialog does not become active");
        return dialog;
    }

    SmallNodeDB db;
};

QPushButton* button(const QDialog& dialog, QDialogButtonBox::StandardButton which)
{
    return child<QDialogButtonBox>(&dialog, "buttonBox")->button(which);
}

void rename(const QDialog& dialog, const QString& name)
{
    auto* edit = child<QLineEdit>(&dialog, "nameLineEdit");
    edit->selectAll();
    QTest::keyClicks(edit, name);
}

} // namespace

class TestEditNodeDialog : public QObject
{
    Q_OBJECT

private slots:
    void metaObject()
    {
        const QMetaObject& meta = ko::EditNodeDialog::staticMetaObject;
        QCOMPARE(meta.className(), "ko::EditNodeDialog");
        QCOMPARE(meta.methodCount(), meta.methodOffset()); // none of its own
        QCOMPARE(meta.superClass()->className(), "ko::NodeDialog");
    }

    void form()
    {
        Host host;
        const auto dialog = host.open(false, environmentControls);
        QCOMPARE(dialog->objectName(), QString("EditNodeDialog"));
        QCOMPARE(dialog->windowFlags(), ko::dialogFlags(false) & ~Qt::WindowMinimizeButtonHint);

        auto* rows = child<QVBoxLayout>(dialog.get(), "verticalLayout");
        QCOMPARE(dialog->layout(), rows);
        auto* row = child<QHBoxLayout>(dialog.get(), "environmentLayout");
        QCOMPARE(rows->itemAt(0)->layout(), row);
        QCOMPARE(rows->itemAt(1)->widget(), child<QWidget>(dialog.get(), "containerWidget"));
        QCOMPARE(rows->itemAt(2)->spacerItem()->sizeHint().width(), 20);
        QVERIFY(rows->itemAt(2)->spacerItem()->expandingDirections() & Qt::Vertical);
        QCOMPARE(rows->itemAt(3)->widget(), child<QDialogButtonBox>(dialog.get(), "buttonBox"));

        auto* label = child<QLabel>(dialog.get(), "environmentLabel");
        auto* comboBox = child<QComboBox>(dialog.get(), "environmentComboBox");
        auto* proxy = child<QPushButton>(dialog.get(), "proxyPushButton");
        QCOMPARE(row->itemAt(0)->widget(), label);
        QCOMPARE(row->itemAt(1)->widget(), comboBox);
        QCOMPARE(row->itemAt(2)->widget(), proxy);
        QVERIFY(row->itemAt(3)->spacerItem()->expandingDirections() & Qt::Horizontal);
        QCOMPARE(label->text(), QString("Environment:"));
        QCOMPARE(label->minimumWidth(), 102);
        QCOMPARE(label->buddy(), comboBox);
        QCOMPARE(comboBox->minimumWidth(), 200);
        QCOMPARE(proxy->text(), QString("Proxy..."));
        QCOMPARE(child<QDialogButtonBox>(dialog.get(), "buttonBox")->standardButtons(),
                 QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Apply);
    }

    void title_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("title");
        QTest::newRow("name") << "Entrance"
                              << "Properties of Entrance";
        QTest::newRow("empty name") << ""
                                    << "Properties of IP camera";
        QTest::newRow("place marker") << "%1 %2"
                                      << "Properties of %1 %2";
    }
    void title()
    {
        QFETCH(QString, name);
        QFETCH(QString, title);
        SmallNodeDB db;
        db.addCamera("cam1", name);
        QCOMPARE(ko::EditNodeDialog("cam1", nullptr, false, 17, nullptr).windowTitle(), title);
    }

    void missingNode_data()
    {
        QTest::addColumn<QString>("id");
        QTest::newRow("unknown") << "gone";
        QTest::newRow("empty") << "";
    }
    void missingNode()
    {
        QFETCH(QString, id);
        SmallNodeDB db;
        TwoLayouts layouts;
        ko::EditNodeDialog dialog(id, nullptr, false, fillLayoutLists, &layouts);
        QCOMPARE(dialog.windowTitle(), QString("Edit Camera"));
        QVERIFY(!dialog.findChild<ko::InspectorWidget*>());
        dialog.show();
        QTest::mouseClick(button(dialog, QDialogButtonBox::Apply), Qt::LeftButton);
        QVERIFY(dialog.isVisible());
        QTest::mouseClick(button(dialog, QDialogButtonBox::Ok), Qt::LeftButton);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QVERIFY(db.calls.isEmpty());
    }

    void inspectorFillsTheContainer()
    {
        Host host;
        const auto dialog = host.open(false, 17);
        QCOMPARE(host.db.calls, QStringList("createInspectorWidget(cam1,false,17)"));
        auto* inspector = dialog->findChild<SmallInspector*>();
        auto* container = child<QWidget>(dialog.get(), "containerWidget");
        QCOMPARE(inspector->parentWidget(), container);
        QVERIFY(qobject_cast<QVBoxLayout*>(container->layout()));
        QCOMPARE(container->layout()->contentsMargins(), QMargins());
        QVERIFY(inspector->isVisible());
        QCOMPARE(inspector->geometry(), container->rect());
        QCOMPARE(dialog->size(), dialog->sizeHint());
    }

    void okClosesThenApplies()
    {
        Host host;
        const auto dialog = host.open();
        bool openInOk = true;
        int resultInOk = -1;
        dialog->findChild<SmallInspector*>()->onOk = [&] {
            openInOk = dialog->isVisible();
            resultInOk = dialog->result();
        };
        rename(*dialog, "Exit");
        host.db.clearCalls();
        QTest::mouseClick(button(*dialog, QDialogButtonBox::Ok), Qt::LeftButton);
        QVERIFY(!openInOk);
        QCOMPARE(resultInOk, int(QDialog::Accepted));
        QCOMPARE(host.db.calls,
                 QStringList({"inspector.ok()", "beginUpdateNode(cam1,-1)", "setStringProperty(Name,Exit)",
                              "endUpdateNode(cam1)", "log(NRen,Entrance,Exit)", "log(NChg,Exit)"}));
    }

    void nodeIsWrittenWhenExecReturns()
    {
        Host host;
        ko::EditNodeDialog dialog("cam1", nullptr, false, 17, nullptr);
        ModalAnswer answer([](QDialog* shown) {
            rename(*shown, "Exit");
            QTest::keyClick(child<QLineEdit>(shown, "nameLineEdit"), Qt::Key_Return);
        });
        QCOMPARE(dialog.exec(), int(QDialog::Accepted));
        QCOMPARE(host.db.node("cam1")->name(), QString("Exit"));
    }

    void applyStaysOpen()
    {
        Host host;
        const auto dialog = host.open();
        rename(*dialog, "Exit");
        QTest::mouseClick(button(*dialog, QDialogButtonBox::Apply), Qt::LeftButton);
        QVERIFY(dialog->isVisible());
        QCOMPARE(host.db.node("cam1")->name(), QString("Exit"));
        QCOMPARE(host.db.calls.filter("inspector.ok()").count(), 1);
        rename(*dialog, "Gate");
        QTest::mouseClick(button(*dialog, QDialogButtonBox::Ok), Qt::LeftButton);
        QVERIFY(host.db.calls.contains("log(NRen,Exit,Gate)"));
    }

    void cancelTellsTheInspector()
    {
        Host host;
        const auto dialog = host.open();
        rename(*dialog, "Exit");
        host.db.clearCalls();
        QTest::mouseClick(button(*dialog, QDialogButtonBox::Cancel), Qt::LeftButton);
        QVERIFY(!dialog->isVisible());
        QCOMPARE(dialog->result(), int(QDialog::Rejected));
        QCOMPARE(host.db.calls, QStringList("inspector.cancel()"));
        QCOMPARE(host.db.node("cam1")->name(), QString("Entrance"));
    }

    void readOnly()
    {
        Host host;
        const auto dialog = host.open(true);
        QCOMPARE(host.db.calls, QStringList("createInspectorWidget(cam1,true,17)"));
        auto* box = child<QDialogButtonBox>(dialog.get(), "buttonBox");
        QCOMPARE(box->standardButtons(), QDialogButtonBox::StandardButtons(QDialogButtonBox::Ok));
        QCOMPARE(box->findChildren<QPushButton*>().count(), 1);
        QCOMPARE(dialog->windowTitle(), QString("Properties of Entrance"));
        QVERIFY(box->button(QDialogButtonBox::Ok)->isDefault());
        host.db.clearCalls();
        QTest::mouseClick(box->button(QDialogButtonBox::Ok), Qt::LeftButton);
        QCOMPARE(host.db.calls.first(), QString("inspector.ok()"));
        QCOMPARE(dialog->result(), int(QDialog::Accepted));
    }

    void readOnlyBoxForgetsItsButtonsFirst()
    {
        Host host;
        const TakenButtons taken;
        const auto dialog = host.open(true);
        QCOMPARE(taken.alive, 2);
        QCOMPARE(taken.destroyed, 0); // Qt 4.8 would go on using them
    }

    void keyboard()
    {
        Host host;
        host.db.addEnvironment("{h}", "Home");
        const auto dialog = host.open(false, environmentControls);
        QVERIFY(button(*dialog, QDialogButtonBox::Ok)->isDefault());
        QVERIFY(button(*dialog, QDialogButtonBox::Ok)->autoDefault());
        QVERIFY(child<QLineEdit>(dialog.get(), "nameLineEdit")->hasFocus());
        QStringList order = tabOrder(dialog.get());
        order.removeAll("qt_tabwidget_tabbar");
        QCOMPARE(order.mid(0, 3), QStringList({"environmentComboBox", "proxyPushButton", "nameLineEdit"}));
        QCOMPARE(order.count(), 6); // and the three buttons
        QCOMPARE(QSet<QString>(order.begin() + 3, order.end()), QSet<QString>({"OK", "Cancel", "Apply"}));
        QTest::keyClick(child<QLineEdit>(dialog.get(), "nameLineEdit"), Qt::Key_Return);
        QCOMPARE(dialog->result(), int(QDialog::Accepted));
    }

    void environmentRowIsHidden()
    {
        Host host;
        host.db.addEnvironment("{h}", "Home");
        const auto dialog = host.open(false, ~environmentControls);
        for (const char* name : {"environmentLabel", "environmentComboBox", "proxyPushButton"})
            QVERIFY2(child<QWidget>(dialog.get(), name)->isHidden(), name);
        QCOMPARE(child<QComboBox>(dialog.get(), "environmentComboBox")->count(), 0);
        QCOMPARE(dialog->findChild<SmallInspector*>()->flags(), ~environmentControls);
        QCOMPARE(child<QWidget>(dialog.get(), "containerWidget")->y(),
                 dialog->layout()->contentsMargins().top()); // the row leaves no gap
    }

    void environmentRowIsLive()
    {
        Host host;
        host.db.addEnvironment("{h}", "Home");
        host.db.addEnvironment("{o}", "Office");
        const auto dialog = host.open(false, environmentControls);
        for (const char* name : {"environmentLabel", "environmentComboBox", "proxyPushButton"})
            QVERIFY2(child<QWidget>(dialog.get(), name)->isVisible(), name);
        auto* comboBox = child<QComboBox>(dialog.get(), "environmentComboBox");
        QCOMPARE(comboBox->count(), 4);
        QCOMPARE(comboBox->currentText(), QString("Home"));

        host.db.clearCalls();
        comboBox->setCurrentIndex(1);
        QCOMPARE(host.db.calls, QStringList({"setActiveEnvironment({o})", "inspector.updateNode()"}));

        ModalAnswer environments([](QDialog* shown) {
            QVERIFY(qobject_cast<ko::EnvironmentDialog*>(shown));
            shown->reject();
        });
        comboBox->setCurrentIndex(3);
        QVERIFY(environments.fired());

        ModalAnswer proxy([](QDialog* shown) {
            QVERIFY(qobject_cast<ko::NetworkProxyDialog*>(shown));
            shown->reject();
        });
        QTest::mouseClick(child<QPushButton>(dialog.get(), "proxyPushButton"), Qt::LeftButton);
        QVERIFY(proxy.fired());
    }

    void layoutListsAreFilled()
    {
        Host host;
        ko::IPDeviceNode& camera = host.db.addCamera("cam2", "Gate");
        camera.setStringProperty("PreferredLayout", "9");
        camera.setStringProperty("AudioPathID", "cam1");
        host.db.setUpInspector = stackLayoutPage;
        TwoLayouts layouts;
        ko::EditNodeDialog dialog("cam2", nullptr, false, fillLayoutLists, &layouts);
        auto* layoutBox = child<QComboBox>(&dialog, "preferredLayoutComboBox");
        QCOMPARE(layoutBox->count(), 3);
        QCOMPARE(layoutBox->currentText(), QString("Single"));
        QCOMPARE(child<QComboBox>(&dialog, "audioPathIdComboBox")->currentText(), QString("Entrance"));
    }

    void layoutListsStayEmpty_data()
    {
        QTest::addColumn<unsigned>("flags");
        QTest::addColumn<bool>("withAdapter");
        QTest::newRow("flag not set") << 0x9Fu << true;
        QTest::newRow("no adapter") << fillLayoutLists << false;
    }
    void layoutListsStayEmpty()
    {
        QFETCH(unsigned, flags);
        QFETCH(bool, withAdapter);
        Host host;
        ko::IPDeviceNode& camera = host.db.addCamera("cam2", "Gate");
        camera.setStringProperty("PreferredLayout", "9");
        camera.setStringProperty("AudioPathID", "");
        host.db.setUpInspector = stackLayoutPage;
        TwoLayouts layouts;
        ko::EditNodeDialog dialog("cam2", nullptr, false, flags, withAdapter ? &layouts : nullptr);
        QCOMPARE(child<QComboBox>(&dialog, "preferredLayoutComboBox")->count(), 0);
        // The audio list needs no adapter.
        QCOMPARE(child<QComboBox>(&dialog, "audioPathIdComboBox")->count(), flags == fillLayoutLists ? 2 : 0);
    }

    void layoutPageIsLookedForByName_data()
    {
        QTest::addColumn<QString>("tabName");
        QTest::addColumn<QString>("pageName");
        QTest::addColumn<QString>("tabWidgetName");
        QTest::addColumn<bool>("found");
        QTest::newRow("all") << "layoutOptions"
                             << "layoutOptionsWidget"
                             << "tabWidget" << true;
        QTest::newRow("other tab") << "options"
                                   << "layoutOptionsWidget"
                                   << "tabWidget" << false;
        QTest::newRow("other page") << "layoutOptions"
                                    << "page"
                                    << "tabWidget" << false;
        QTest::newRow("other tab widget") << "layoutOptions"
                                          << "layoutOptionsWidget"
                                          << "tabs" << false;
    }
    void layoutPageIsLookedForByName()
    {
        QFETCH(QString, tabName);
        QFETCH(QString, pageName);
        QFETCH(QString, tabWidgetName);
        QFETCH(bool, found);
        Host host;
        host.db.addCamera("cam2", "Gate").setStringProperty("PreferredLayout", "9");
        host.db.setUpInspector = [&](SmallInspector* inspector) {
            inspector->addPage(new ko::LayoutOptionsWidget(nullptr), "first");
            auto* page = new ko::LayoutOptionsWidget(nullptr);
            page->setObjectName(pageName);
            page->init(inspector->nodeId());
            inspector->addPage(page, tabName);
            inspector->findChild<QTabWidget*>()->setObjectName(tabWidgetName);
        };
        TwoLayouts layouts;
        ko::EditNodeDialog dialog("cam2", nullptr, false, fillLayoutLists, &layouts);
        int filled = 0;
        const QList<QComboBox*> boxes = dialog.findChildren<QComboBox*>("preferredLayoutComboBox");
        for (const QComboBox* box : boxes)
            filled += box->count() == 3;
        QCOMPARE(boxes.count(), 2);
        QCOMPARE(filled, found ? 1 : 0);
    }

    void layoutChangeIsWritten()
    {
        Host host;
        host.db.addCamera("cam2", "Gate").setStringProperty("PreferredLayout", "9");
        host.db.setUpInspector = stackLayoutPage;
        TwoLayouts layouts;
        ko::EditNodeDialog dialog("cam2", nullptr, false, fillLayoutLists, &layouts);
        dialog.show();
        child<QComboBox>(&dialog, "preferredLayoutComboBox")->setCurrentIndex(1);
        QTest::mouseClick(button(dialog, QDialogButtonBox::Ok), Qt::LeftButton);
        QCOMPARE(host.db.node("cam2")->stringProperty("PreferredLayout", ""), QString("7"));
    }

    void fitsALongLanguage()
    {
        Host host;
        host.db.addEnvironment("{h}", "Home");
        host.db.setUpInspector = stackLayoutPage;
        const LongLanguage language;
        const auto dialog = host.open(false, environmentControls | fillLayoutLists);
        QCOMPARE(dialog->windowTitle(), QString("Properties of Entrance Properties of Entrance"));
        QCOMPARE(cutOff(dialog.get()).join(", "), QString());
    }
};

KO_TEST_MAIN(TestEditNodeDialog)
#include "tst_editnodedialog.moc"
