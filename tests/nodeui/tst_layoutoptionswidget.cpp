#include "support/DialogCheck.h"
#include "support/PageForm.h"
#include "support/SmallHost.h"
#include "support/TestMain.h"

#include "interfaces/ILayoutAdapter.h"
#include "ko/NodeHint.h"
#include "pages/LayoutOptionsWidget.h"

#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSet>
#include <QSignalSpy>
#include <QTemporaryDir>

using namespace ko;
using testsupport::child;
using testsupport::comboItems;
using testsupport::ModalAnswer;

namespace {

class Adapter : public ILayoutAdapter
{
public:
    QList<Layout> layouts() const override { return offered; }

    void add(int id, const QString& name)
    {
        Layout layout;
        layout.id = id;
        layout.name = name;
        offered.append(layout);
    }

    QList<Layout> offered;
};

class Database : public testsupport::SmallNodeDB
{
public:
    QStringList listedOnly; ///< ids of cameras that cannot be fetched

    QStringList nodeIdList(ENodeType type) const override
    {
        return listedOnly + SmallNodeDB::nodeIdList(type);
    }
};

} // namespace

class tst_LayoutOptionsWidget : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup()
    {
        m_page.reset();
        m_db.reset();
    }

    void form();
    void tabOrder();
    void roomForLongTexts();
    void initFromNode_data();
    void initFromNode();
    void initWithoutProperties();
    void initFromMissingNode();
    void layouts_data();
    void layouts();
    void noLayouts();
    void audioPaths();
    void audioPathSelection_data();
    void audioPathSelection();
    void noAudioPaths();
    void fillingAgainAppends();
    void eachSelfFollowsTheLanguage();
    void acceptOrder();
    void acceptWritesAllAlways();
    void acceptUnchanged();
    void hints();
    void fileIsChosen();
    void fileChoiceIsCancelled();
    void readOnly();
    void readOnlyOrder();

private:
    void carryAll(const QString& layout, const QString& audio);
    QStringList acceptInto(const QString& id);

    std::unique_ptr<Database> m_db;
    std::unique_ptr<LayoutOptionsWidget> m_page;
    Adapter m_adapter;
    QLineEdit* m_file = nullptr;
    QPushButton* m_choose = nullptr;
    QComboBox* m_layout = nullptr;
    QComboBox* m_audio = nullptr;
    QRadioButton* m_minimum = nullptr;
    QRadioButton* m_smooth = nullptr;
};

void tst_LayoutOptionsWidget::init()
{
    m_db = std::make_unique<Database>();
    m_db->addCamera("bare", "Bare");
    m_page = std::make_unique<LayoutOptionsWidget>(nullptr);
    m_adapter.offered.clear();
    m_adapter.add(7, "Wall");
    m_adapter.add(3, "Alarm");
    m_file = child<QLineEdit>(m_page.get(), "instructionFileLineEdit");
    m_choose = child<QPushButton>(m_page.get(), "instructionFilePushButton");
    m_layout = child<QComboBox>(m_page.get(), "preferredLayoutComboBox");
    m_audio = child<QComboBox>(m_page.get(), "audioPathIdComboBox");
    m_minimum = child<QRadioButton>(m_page.get(), "minimumDelayRadioButton");
    m_smooth = child<QRadioButton>(m_page.get(), "smoothDisplayRadioButton");
}

/// A camera "cam" that carries all four properties.
void tst_LayoutOptionsWidget::carryAll(const QString& layout, const QString& audio)
{
    IPDeviceNode& camera = m_db->addCamera("cam", "Gate");
    camera.setStringProperty("InfoFile", "/info/gate.html");
    camera.setIntProperty("SmoothDisplay", 0);
    camera.setStringProperty("PreferredLayout", layout);
    camera.setStringProperty("AudioPathID", audio);
    m_db->clearCalls();
}

QStringList tst_LayoutOptionsWidget::acceptInto(const QString& id)
{
    Node* node = m_db->beginUpdateNode(id, -1);
    m_db->clearCalls();
    m_page->accept(node);
    const QStringList calls = m_db->calls;
    m_db->endUpdateNode(node);
    return calls;
}

void tst_LayoutOptionsWidget::form()
{
    using testsupport::RightCentred;
    QCOMPARE(m_page->objectName(), QString("LayoutOptionsWidget"));
    QCOMPARE(QString(m_page->metaObject()->className()), QString("ko::LayoutOptionsWidget"));
    QCOMPARE(m_page->size(), QSize(361, 186));
    QCOMPARE(m_page->windowTitle(), QString("Form"));
    testsupport::checkCaptions(
        m_page.get(),
        {{"label", "Instruction file:", 0, RightCentred, "instructionFileLineEdit"},
         {"label_2", "Preferred/Alarm Layout:", 0, RightCentred, "preferredLayoutComboBox"},
         {"label_3", "Display strategy:", 0, testsupport::RightTop, "minimumDelayRadioButton"}});
    // How this one is aligned is not fixed; it follows the others.
    testsupport::checkCaptions(m_page.get(),
                               {{"label_4", "Audio path:", 0, RightCentred, "audioPathIdComboBox"}});
    auto* grid = child<QGridLayout>(m_page.get(), "gridLayout");
    const struct
    {
        const char* name;
        const char* cell;
    } cells[] = {{"label", "0,0,1,1"},
                 {"instructionFileLineEdit", "0,1,1,1"},
                 {"instructionFilePushButton", "0,2,1,1"},
                 {"label_2", "1,0,1,1"},
                 {"preferredLayoutComboBox", "1,1,1,1"},
                 {"label_3", "2,0,1,1"},
                 {"label_4", "3,0,1,1"},
                 {"audioPathIdComboBox", "3,1,1,1"}};
    for (const auto& cell : cells)
        QCOMPARE(testsupport::gridCell(grid, child<QWidget>(m_page.get(), cell.name)), QString(cell.cell));
    auto* strategies = child<QVBoxLayout>(m_page.get(), "verticalLayout");
    QCOMPARE(grid->itemAtPosition(2, 1)->layout(), strategies);
    QCOMPARE(strategies->itemAt(0)->widget(), m_minimum);
    QCOMPARE(strategies->itemAt(1)->widget(), m_smooth);
    QLayoutItem* spacer = grid->itemAtPosition(4, 1);
    QVERIFY(spacer && spacer->spacerItem());
    QCOMPARE(spacer->sizeHint(), QSize(20, 40));
    QVERIFY(spacer->expandingDirections() & Qt::Vertical);
    QCOMPARE(m_file->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(m_choose->text(), QString("..."));
    QCOMPARE(m_choose->maximumWidth(), 30);
    QCOMPARE(m_minimum->text(), QString("Minimum delay"));
    QCOMPARE(m_smooth->text(), QString("Smooth display"));
    QVERIFY(!m_minimum->isChecked() && !m_smooth->isChecked());
    QCOMPARE(testsupport::declaredSlots(*m_page->metaObject()), QStringList("openFileSelector()"));
}

void tst_LayoutOptionsWidget::tabOrder()
{
    carryAll("3", "");
    m_page->init(QString("cam"));
    m_page->show();
    // Radio buttons share one place; the checked one holds it.
    QStringList order = testsupport::tabOrder(m_page.get());
    order.removeAll("smoothDisplayRadioButton");
    QCOMPARE(order,
             QStringList({"instructionFileLineEdit", "instructionFilePushButton", "preferredLayoutComboBox",
                          "minimumDelayRadioButton", "audioPathIdComboBox"}));
}

void tst_LayoutOptionsWidget::roomForLongTexts()
{
    m_page->show();
    QCOMPARE(testsupport::cutOff(m_page.get()), QStringList());
    m_page->hide();
    const testsupport::LongLanguage language;
    LayoutOptionsWidget translated(nullptr);
    translated.resize(translated.sizeHint());
    translated.show();
    QStringList cut = testsupport::cutOff(&translated);
    cut.removeAll("instructionFilePushButton"); // its width is fixed, and "..." stays in any language
    QCOMPARE(cut, QStringList());
}

void tst_LayoutOptionsWidget::initFromNode_data()
{
    QTest::addColumn<int>("stored");
    QTest::addColumn<bool>("smooth");
    QTest::newRow("minimum delay") << 0 << false;
    QTest::newRow("smooth") << 2 << true;
    QTest::newRow("one") << 1 << true;
    QTest::newRow("negative") << -1 << true;
}

void tst_LayoutOptionsWidget::initFromNode()
{
    QFETCH(int, stored);
    QFETCH(bool, smooth);
    IPDeviceNode& camera = m_db->addCamera("cam", "Gate");
    camera.setStringProperty("InfoFile", "/info/gate.html");
    camera.setIntProperty("SmoothDisplay", stored);
    m_db->clearCalls();
    m_page->init(QString("cam"));
    QCOMPARE(m_file->text(), QString("/info/gate.html"));
    QVERIFY(m_file->isEnabled() && m_choose->isEnabled());
    QCOMPARE(m_smooth->isChecked(), smooth);
    QCOMPARE(m_minimum->isChecked(), !smooth);
    QVERIFY(m_smooth->isEnabled() && m_minimum->isEnabled());
    QCOMPARE(m_layout->count() + m_audio->count(), 0); // filled separately
    QVERIFY(m_db->calls.isEmpty());
}

void tst_LayoutOptionsWidget::initWithoutProperties()
{
    m_page->init(QString("bare"));
    QVERIFY(!m_file->isEnabled() && !m_choose->isEnabled());
    QVERIFY(!m_smooth->isEnabled() && !m_minimum->isEnabled());
    QVERIFY(!m_smooth->isChecked() && !m_minimum->isChecked());
}

void tst_LayoutOptionsWidget::initFromMissingNode()
{
    carryAll("3", "");
    m_page->init(QString("cam"));
    m_page->init(QString("unknown"));
    QCOMPARE(m_file->text(), QString("/info/gate.html"));
    QVERIFY(m_file->isEnabled() && m_minimum->isEnabled() && m_minimum->isChecked());
    // The identifier is remembered all the same.
    m_page->fillLayoutComboBox(&m_adapter);
    m_page->fillAudioPathIdComboBox();
    QVERIFY(!m_layout->isEnabled() && !m_audio->isEnabled());
    QCOMPARE(m_layout->count() + m_audio->count(), 0);
}

void tst_LayoutOptionsWidget::layouts_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<int>("selected");
    QTest::newRow("empty") << "" << 0;
    QTest::newRow("none") << "-1" << 0;
    QTest::newRow("first") << "7" << 1;
    QTest::newRow("second") << "3" << 2;
    QTest::newRow("no longer offered") << "99" << -1;
    QTest::newRow("no number") << "wall" << -1;
    QTest::newRow("hexadecimal") << "0x7" << -1;
}

void tst_LayoutOptionsWidget::layouts()
{
    QFETCH(QString, stored);
    carryAll(stored, "");
    m_page->init(QString("cam"));
    m_page->fillLayoutComboBox(&m_adapter);
    QCOMPARE(comboItems(m_layout), QStringList({"-1:Not defined", "7:Wall", "3:Alarm"}));
    QCOMPARE(m_layout->itemData(1).userType(), int(QMetaType::Int));
    QVERIFY(m_layout->itemIcon(1).isNull());
    QTEST(m_layout->currentIndex(), "selected");
    QVERIFY(m_layout->isEnabled());
}

void tst_LayoutOptionsWidget::noLayouts()
{
    carryAll("3", "");
    m_page->init(QString("cam"));
    m_page->fillLayoutComboBox(nullptr);
    QVERIFY(!m_layout->isEnabled());
    QCOMPARE(m_layout->count(), 0);
    LayoutOptionsWidget bare(nullptr);
    bare.init(QString("bare"));
    bare.fillLayoutComboBox(&m_adapter);
    QVERIFY(!child<QComboBox>(&bare, "preferredLayoutComboBox")->isEnabled());
    QCOMPARE(child<QComboBox>(&bare, "preferredLayoutComboBox")->count(), 0);
    LayoutOptionsWidget empty(nullptr);
    empty.init(QString("cam"));
    m_adapter.offered.clear();
    empty.fillLayoutComboBox(&m_adapter);
    QCOMPARE(comboItems(child<QComboBox>(&empty, "preferredLayoutComboBox")), QStringList("-1:Not defined"));
}

void tst_LayoutOptionsWidget::audioPaths()
{
    m_db->addCamera("zoo", "Zoo");
    carryAll("3", "");
    m_db->addCamera("yard", "Yard");
    m_db->addCamera("unnamed", "");
    m_db->addNode(RecordingFolderType, "folder", "Folder");
    m_db->addNode(UrlCameraType, "url", "Url");
    m_db->listedOnly = QStringList("gone");
    m_page->init(QString("cam"));
    m_page->fillAudioPathIdComboBox();
    QCOMPARE(comboItems(m_audio), QStringList({"cam:Self", "bare:Bare", "zoo:Zoo", "yard:Yard", "unnamed:"}));
    QVERIFY(m_audio->isEnabled());
    QVERIFY(m_db->calls.isEmpty());
}

void tst_LayoutOptionsWidget::audioPathSelection_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<int>("selected");
    QTest::newRow("empty") << "" << 0;
    QTest::newRow("itself") << "cam" << 0;
    QTest::newRow("another") << "bare" << 1;
    QTest::newRow("gone") << "gone" << -1;
    QTest::newRow("other case") << "BARE" << -1;
    QTest::newRow("beginning") << "bar" << -1;
}

void tst_LayoutOptionsWidget::audioPathSelection()
{
    QFETCH(QString, stored);
    carryAll("", stored);
    m_page->init(QString("cam"));
    m_page->fillAudioPathIdComboBox();
    QTEST(m_audio->currentIndex(), "selected");
}

void tst_LayoutOptionsWidget::noAudioPaths()
{
    m_page->init(QString("bare"));
    m_page->fillAudioPathIdComboBox();
    QVERIFY(!m_audio->isEnabled());
    QCOMPARE(m_audio->count(), 0);
}

void tst_LayoutOptionsWidget::fillingAgainAppends()
{
    carryAll("7", "bare");
    m_page->init(QString("cam"));
    for (int i = 0; i < 2; ++i) {
        m_page->fillLayoutComboBox(&m_adapter);
        m_page->fillAudioPathIdComboBox();
    }
    QCOMPARE(m_layout->count(), 6);
    QCOMPARE(m_audio->count(), 4);
    QCOMPARE(m_layout->currentText(), QString("Wall"));
}

/// A list that was filled twice has the camera itself twice.
void tst_LayoutOptionsWidget::eachSelfFollowsTheLanguage()
{
    carryAll("7", "bare");
    m_page->init(QString("cam"));
    m_page->fillAudioPathIdComboBox();
    m_page->fillAudioPathIdComboBox();
    const QSignalSpy changes(m_audio->model(), SIGNAL(dataChanged(QModelIndex, QModelIndex)));
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(m_page.get(), &change);
    QSet<int> shownAnew;
    for (const QVariantList& rows : changes) {
        for (int row = rows.at(0).toModelIndex().row(); row <= rows.at(1).toModelIndex().row(); ++row)
            shownAnew.insert(row);
    }
    for (int row = 0; row < m_audio->count(); ++row)
        QVERIFY(m_audio->itemText(row) != "Self" || shownAnew.contains(row));
    QCOMPARE(m_audio->findText("Self", Qt::MatchExactly), 0);
}

void tst_LayoutOptionsWidget::acceptOrder()
{
    carryAll("7", "");
    m_page->init(QString("cam"));
    m_page->fillLayoutComboBox(&m_adapter);
    m_page->fillAudioPathIdComboBox();
    m_page->show();
    m_file->setText("/info/new.html");
    QTest::mouseClick(m_smooth, Qt::LeftButton, Qt::NoModifier, QPoint(8, m_smooth->height() / 2));
    QVERIFY(!m_minimum->isChecked()); // they exclude each other
    QTest::keyClick(m_layout, Qt::Key_Down);
    QTest::keyClick(m_audio, Qt::Key_Down);
    QCOMPARE(acceptInto("cam"),
             QStringList({"setStringProperty(InfoFile,/info/new.html)", "setIntProperty(SmoothDisplay,2)",
                          "setStringProperty(PreferredLayout,3)", "setStringProperty(AudioPathID,bare)"}));
    m_minimum->setChecked(true);
    QVERIFY(acceptInto("cam").contains("setIntProperty(SmoothDisplay,0)"));
}

void tst_LayoutOptionsWidget::acceptWritesAllAlways()
{
    m_page->init(QString("bare"));
    m_page->fillLayoutComboBox(&m_adapter);
    m_page->fillAudioPathIdComboBox();
    const QStringList nothingSet = {"setStringProperty(InfoFile,)", "setIntProperty(SmoothDisplay,0)",
                                    "setStringProperty(PreferredLayout,0)",
                                    "setStringProperty(AudioPathID,)"};
    QCOMPARE(acceptInto("bare"), nothingSet);
    m_db->addNode(RecordingFolderType, "folder", "f"); // the type does not matter
    QCOMPARE(acceptInto("folder"), nothingSet);
    m_db->clearCalls();
    m_page->accept(static_cast<Node*>(nullptr));
    QVERIFY(m_db->calls.isEmpty());
}

void tst_LayoutOptionsWidget::acceptUnchanged()
{
    carryAll("", "");
    m_page->init(QString("cam"));
    m_page->fillLayoutComboBox(&m_adapter);
    m_page->fillAudioPathIdComboBox();
    QCOMPARE(m_layout->currentText(), QString("Not defined"));
    QCOMPARE(acceptInto("cam"),
             QStringList({"setStringProperty(InfoFile,/info/gate.html)", "setIntProperty(SmoothDisplay,0)",
                          "setStringProperty(PreferredLayout,-1)", "setStringProperty(AudioPathID,cam)"}));
}

void tst_LayoutOptionsWidget::hints()
{
    carryAll("3", "");
    m_page->init(QString("cam"));
    const kom::smart<NodeHint> hint = m_db->createHint(IPDeviceType);
    m_db->clearCalls();
    m_page->init(hint.get());
    m_page->accept(hint.get());
    m_page->init(static_cast<const NodeHint*>(nullptr));
    m_page->accept(static_cast<NodeHint*>(nullptr));
    QVERIFY(m_db->calls.isEmpty());
    QCOMPARE(hint->properties().count(), 0);
    QCOMPARE(m_file->text(), QString("/info/gate.html"));
    QVERIFY(m_file->isEnabled() && m_layout->isEnabled() && m_audio->isEnabled());
}

void tst_LayoutOptionsWidget::fileIsChosen()
{
    QTemporaryDir folder;
    const QString path = folder.filePath("gate.html");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    m_page->show();
    ModalAnswer answer([&](QDialog* dialog) {
        auto* chooser = qobject_cast<QFileDialog*>(dialog);
        QVERIFY(chooser);
        QCOMPARE(chooser->windowTitle(), QString("Instruction file"));
        QCOMPARE(chooser->parentWidget(), m_page.get());
        QCOMPARE(chooser->acceptMode(), QFileDialog::AcceptOpen);
        QCOMPARE(chooser->fileMode(), QFileDialog::ExistingFile);
        child<QLineEdit>(chooser, "fileNameEdit")->setText(path);
        dialog->accept();
    });
    QTest::mouseClick(m_choose, Qt::LeftButton);
    QVERIFY(answer.fired());
    QCOMPARE(m_file->text(), path);
}

void tst_LayoutOptionsWidget::fileChoiceIsCancelled()
{
    m_file->setText("/info/old.html");
    m_page->show();
    ModalAnswer answer([](QDialog* dialog) { dialog->reject(); });
    QTest::mouseClick(m_choose, Qt::LeftButton);
    QVERIFY(answer.fired());
    QCOMPARE(m_file->text(), QString("/info/old.html"));
}

void tst_LayoutOptionsWidget::readOnly()
{
    for (const bool readOnly : {true, false}) {
        m_page->setReadOnly(readOnly);
        QCOMPARE(m_file->isReadOnly(), readOnly);
        QCOMPARE(m_file->hasFrame(), !readOnly);
        QVERIFY(m_file->isEnabled());
        const QList<QWidget*> choices = {m_choose, m_layout, m_minimum, m_smooth, m_audio};
        for (const QWidget* choice : choices)
            QCOMPARE(choice->isEnabled(), !readOnly);
    }
}

void tst_LayoutOptionsWidget::readOnlyOrder()
{
    m_page->init(QString("bare"));
    m_page->fillLayoutComboBox(nullptr);
    m_page->fillAudioPathIdComboBox();
    m_page->setReadOnly(false);
    QVERIFY(m_choose->isEnabled() && m_layout->isEnabled() && m_audio->isEnabled());
    QVERIFY(m_minimum->isEnabled() && m_smooth->isEnabled());
    QVERIFY(!m_file->isEnabled()); // that one only becomes writable
}

KO_TEST_MAIN(tst_LayoutOptionsWidget)
#include "tst_layoutoptionswidget.moc"
