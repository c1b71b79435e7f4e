#include "support/DialogCheck.h"
#include "support/FolderHost.h"
#include "support/PageForm.h"
#include "support/TestMain.h"

#include "dialogs/RecordingFolderAssignmentDialog.h"
#include "ko/IPDeviceNode.h"
#include "pages/StorageLocationWidget.h"

#include <QFrame>
#include <QPushButton>
#include <QRadioButton>

using namespace ko;
using testsupport::child;
using testsupport::ModalAnswer;

class tst_StorageLocationWidget : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_db.reset(); }

    void form();
    void metaObject();
    void location_data();
    void location();
    void unrelated_data();
    void unrelated();
    void missingNode();
    void markupIsText();
    void hintsDoNothing();
    void readOnly();
    void changeOpensTheDialog();
    void cancelledChangeReadsAgain();
    void roomForLongTexts();

private:
    void set(int type, int usage, bool transponder);
    static QString shown(const QWidget* page) { return child<QLabel>(page, "storageLocationLabel")->text(); }

    std::unique_ptr<testsupport::FolderHost> m_db;
};

void tst_StorageLocationWidget::init()
{
    m_db = std::make_unique<testsupport::FolderHost>();
    m_db->defineType(RecordingTransponderType, "Remote preview");
    m_db->addCamera("cam", "Gate");
    m_db->addCamera("bare", "Bare");
    m_db->addNode(RecordingFolderType, "folder", "Folder").setStringProperty("Path", "//srv/folder");
    m_db->addNode(RecordingFolderType, "second", "Second").setStringProperty("Path", "//srv/second");
    m_db->addNode(RecordingTransponderType, "preview", "Preview")
        .setStringProperty("RecordingTransponderIP", "10.0.0.9");
    m_db->addNodeRelation("cam", "folder", RecordingFolderRelation);
    m_db->addNodeRelation("cam", "second", RecordingFolderRelation);
    m_db->addNodeRelation("cam", "preview", RecordingTransponderRelation);
    m_db->clearCalls();
}

void tst_StorageLocationWidget::set(int type, int usage, bool transponder)
{
    for (const char* id : {"cam", "bare"}) {
        Node* camera = m_db->beginUpdateNode(QLatin1String(id), -1);
        camera->setIntProperty("NodeType", type);
        camera->setIntProperty("RecordingStorageUsage", usage);
        camera->setBoolProperty("UseRecordingTransponder", transponder);
        m_db->endUpdateNode(camera);
    }
    m_db->clearCalls();
}

void tst_StorageLocationWidget::form()
{
    const StorageLocationWidget page(nullptr);
    QCOMPARE(page.windowTitle(), QString("Form"));
    const auto* frame = child<QFrame>(&page, "frame");
    QCOMPARE(frame->frameShape(), QFrame::Box);
    QCOMPARE(frame->frameShadow(), QFrame::Raised);
    auto* grid = qobject_cast<QGridLayout*>(frame->layout());
    QVERIFY(grid);
    const auto* title = qobject_cast<QLabel*>(grid->itemAtPosition(0, 0)->widget());
    QCOMPARE(title->text(), QString("Access recordings:"));
    QVERIFY(title->font().bold());
    QCOMPARE(testsupport::gridCell(grid, child<QWidget>(&page, "storageLocationLabel")), QString("0,1,1,2"));
    QCOMPARE(shown(&page), QString("TextLabel"));
    auto* change = child<QPushButton>(&page, "changePushButton");
    QCOMPARE(testsupport::gridCell(grid, change), QString("1,2,1,1"));
    QCOMPARE(change->text(), QString("Change..."));
    int spacers = 0;
    for (int i = 0; i < grid->count(); ++i) {
        if (grid->itemAt(i)->spacerItem()) {
            QCOMPARE(grid->itemAt(i)->sizeHint(), QSize(20, 5));
            ++spacers;
        }
    }
    QCOMPARE(spacers, 1);
}

void tst_StorageLocationWidget::metaObject()
{
    const QMetaObject& meta = StorageLocationWidget::staticMetaObject;
    QCOMPARE(QString(meta.className()), QString("ko::StorageLocationWidget"));
    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(testsupport::declaredSlots(meta), QStringList("changeLocation()"));
}

void tst_StorageLocationWidget::location_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("usage");
    QTest::addColumn<bool>("transponder");
    QTest::addColumn<QString>("text");
    QTest::newRow("via camera") << 2 << 0 << false << "Via camera";
    QTest::newRow("via camera and server") << 2 << 0 << true << "Via camera (KoTandem)";
    QTest::newRow("default path") << 2 << 1 << false << "//srv/folder";
    QTest::newRow("own folder and server") << 2 << 2 << true << "//srv/folder (KoTandem)";
    QTest::newRow("older 3") << 2 << 3 << false << "10.0.0.9";
    QTest::newRow("older 4") << 2 << 4 << true << "10.0.0.9 (KoTandem)";
    QTest::newRow("-1") << 2 << -1 << false << "10.0.0.9";
    QTest::newRow("other type, none") << 5 << 0 << false << "";
    QTest::newRow("other type, none, server") << 5 << 0 << true << " (KoTandem)";
    QTest::newRow("other type, folder") << 5 << 2 << false << "//srv/folder";
    QTest::newRow("other type, older") << 5 << 4 << false << "//srv/folder";
}

void tst_StorageLocationWidget::location()
{
    QFETCH(int, type);
    QFETCH(int, usage);
    QFETCH(bool, transponder);
    QFETCH(QString, text);
    set(type, usage, transponder);
    StorageLocationWidget page(nullptr);
    page.init(QString("cam"));
    QCOMPARE(shown(&page), text);
    QVERIFY(m_db->calls.isEmpty());
}

void tst_StorageLocationWidget::unrelated_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("usage");
    QTest::addColumn<QString>("text");
    QTest::newRow("folder") << 2 << 1 << "TextLabel";
    QTest::newRow("older") << 2 << 3 << "TextLabel";
    QTest::newRow("other type") << 5 << 2 << "";
}

void tst_StorageLocationWidget::unrelated()
{
    QFETCH(int, type);
    QFETCH(int, usage);
    QFETCH(QString, text);
    set(type, usage, false);
    StorageLocationWidget page(nullptr);
    page.init(QString("bare"));
    QCOMPARE(shown(&page), text);
}

void tst_StorageLocationWidget::missingNode()
{
    StorageLocationWidget page(nullptr);
    page.init(QString("gone"));
    QCOMPARE(shown(&page), QString("TextLabel"));
    set(2, 0, false);
    page.init(QString("cam"));
    page.init(QString("gone"));
    QCOMPARE(shown(&page), QString("Via camera"));
}

void tst_StorageLocationWidget::markupIsText()
{
    Node* folder = m_db->beginUpdateNode("folder", -1);
    folder->setStringProperty("Path", "<b>&amp;%1");
    m_db->endUpdateNode(folder);
    set(2, 2, false);
    StorageLocationWidget page(nullptr);
    page.init(QString("cam"));
    QCOMPARE(shown(&page), QString("<b>&amp;%1"));
    QCOMPARE(child<QLabel>(&page, "storageLocationLabel")->textFormat(), Qt::PlainText);
}

void tst_StorageLocationWidget::hintsDoNothing()
{
    set(2, 0, false);
    StorageLocationWidget page(nullptr);
    page.init(QString("cam"));
    const kom::smart<NodeHint> hint = m_db->createHint(IPDeviceType);
    m_db->clearCalls();
    page.init(static_cast<const NodeHint*>(hint.get()));
    page.accept(hint.get());
    page.accept(static_cast<Node*>(nullptr));
    QCOMPARE(shown(&page), QString("Via camera"));
    QVERIFY(m_db->calls.isEmpty());
}

void tst_StorageLocationWidget::readOnly()
{
    set(2, 0, false);
    StorageLocationWidget page(nullptr);
    page.init(QString("cam"));
    page.setReadOnly(true);
    QVERIFY(!child<QPushButton>(&page, "changePushButton")->isEnabled());
    QCOMPARE(shown(&page), QString("Via camera"));
    page.setReadOnly(false);
    QVERIFY(child<QPushButton>(&page, "changePushButton")->isEnabled());
}

void tst_StorageLocationWidget::changeOpensTheDialog()
{
    set(2, 2, false);
    StorageLocationWidget page(nullptr);
    page.init(QString("cam"));
    page.show();
    const ModalAnswer answer([](QDialog* dialog) {
        QVERIFY(qobject_cast<RecordingFolderAssignmentDialog*>(dialog));
        child<QRadioButton>(dialog, "viaCameraRadioButton")->setChecked(true);
        dialog->accept();
    });
    QTest::mouseClick(child<QPushButton>(&page, "changePushButton"), Qt::LeftButton);
    QVERIFY(answer.fired());
    QCOMPARE(shown(&page), QString("Via camera"));
}

void tst_StorageLocationWidget::cancelledChangeReadsAgain()
{
    set(2, 2, false);
    StorageLocationWidget page(nullptr);
    page.init(QString("cam"));
    page.show();
    const ModalAnswer answer([this](QDialog* dialog) {
        Node* folder = m_db->beginUpdateNode("folder", -1);
        folder->setStringProperty("Path", "//srv/moved");
        m_db->endUpdateNode(folder);
        dialog->reject();
    });
    QTest::mouseClick(child<QPushButton>(&page, "changePushButton"), Qt::LeftButton);
    QCOMPARE(shown(&page), QString("//srv/moved"));
}

void tst_StorageLocationWidget::roomForLongTexts()
{
    const testsupport::LongLanguage language;
    set(2, 0, true);
    StorageLocationWidget page(nullptr);
    page.init(QString("cam"));
    page.adjustSize();
    page.show();
    QCOMPARE(testsupport::cutOff(&page), QStringList());
}

KO_TEST_MAIN(tst_StorageLocationWidget)
#include "tst_storagelocationwidget.moc"
