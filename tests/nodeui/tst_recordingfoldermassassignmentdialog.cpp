#include "support/DialogCheck.h"
#include "support/FolderHost.h"
#include "support/ModalAnswer.h"
#include "support/PageForm.h"
#include "support/TestMain.h"

#include "dialogs/RecordingFolderMassAssignmentDialog.h"
#include "ko/Node.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFormLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTextDocument>

using namespace ko;
using testsupport::child;
using testsupport::ModalAnswer;

namespace {

QStringList ids(int count)
{
    QStringList list;
    for (int i = 0; i < count; ++i)
        list.append(QString("cam%1").arg(i));
    return list;
}

struct Fields
{
    explicit Fields(const QWidget* dialog)
        : camera(child<QRadioButton>(dialog, "cameraRadioButton"))
        , byDefault(child<QRadioButton>(dialog, "defaultFileServerPathRadioButton"))
        , specific(child<QRadioButton>(dialog, "specificFileServerPathRadioButton"))
        , group(child<QGroupBox>(dialog, "specificPathGroupBox"))
        , path(child<QLineEdit>(dialog, "pathLineEdit"))
        , user(child<QLineEdit>(dialog, "userNameLineEdit"))
        , password(child<QLineEdit>(dialog, "passwordLineEdit"))
        , transponder(child<QCheckBox>(dialog, "recordingTransponderCheckBox"))
        , ok(child<QDialogButtonBox>(dialog, "buttonBox")->button(QDialogButtonBox::Ok))
    {
    }

    QRadioButton* const camera;
    QRadioButton* const byDefault;
    QRadioButton* const specific;
    QGroupBox* const group;
    QLineEdit* const path;
    QLineEdit* const user;
    QLineEdit* const password;
    QCheckBox* const transponder;
    QPushButton* const ok;
};

} // namespace

class tst_RecordingFolderMassAssignmentDialog : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_db.reset(); }

    void form();
    void everyRowHasALabelItem();
    void tabOrder();
    void roomForLongTexts();
    void metaObject();
    void emptyList();
    void label();
    void nodeNames_data();
    void nodeNames();
    void namesThatAreMarkup();
    void beginsAsTheFirstCamera_data();
    void beginsAsTheFirstCamera();
    void specificPathEnablesItsGroup();
    void okNeedsAPath();
    void browseTakesTheFolder();
    void cancelledBrowseEmptiesTheField();
    void defaultPathMustBeSet();
    void viaCamera();
    void belowTheDefaultPath();
    void belowASpecificPath();
    void folderThatIsThereIsUsedAgain();
    void withoutFactoryExtension_data();
    void withoutFactoryExtension();
    void nothingIsCarriedOver();
    void networkShare_data();
    void networkShare();
    void otherNodesStayAsTheyAre();
    void cancelWritesNothing();

private:
    void set(const QString& id, const std::function<void(Node*)>& change);
    QString stored(const QString& id, const char* key) const;

    std::unique_ptr<testsupport::FolderHost> m_db;
};

void tst_RecordingFolderMassAssignmentDialog::set(const QString& id, const std::function<void(Node*)>& change)
{
    Node* node = m_db->beginUpdateNode(id, -1);
    change(node);
    m_db->endUpdateNode(node);
    m_db->clearCalls();
}

QString tst_RecordingFolderMassAssignmentDialog::stored(const QString& id, const char* key) const
{
    return m_db->node(id)->stringProperty(QLatin1String(key), "-");
}

void tst_RecordingFolderMassAssignmentDialog::init()
{
    QCoreApplication::setApplicationName("The Client");
    m_db = std::make_unique<testsupport::FolderHost>();
    m_db->recordingFolderPath = "//server/recordings";
    for (int i = 0; i < 15; ++i) {
        m_db->addCamera(QString("cam%1").arg(i), QString("Camera %1").arg(i));
        set(QString("cam%1").arg(i),
            [i](Node* node) { node->setStringProperty("FactoryIP", QString("10_0_0_%1").arg(i + 1)); });
    }
    m_db->addChannelDevice("channels", "Channels");
    m_db->clearCalls();
}

void tst_RecordingFolderMassAssignmentDialog::form()
{
    const RecordingFolderMassAssignmentDialog dialog(
        nullptr, ids(1), Qt::Dialog | Qt::WindowTitleHint | Qt::WindowContextHelpButtonHint);
    QCOMPARE(dialog.objectName(), QString("RecordingFolderMassAssignmentDialog"));
    QCOMPARE(dialog.windowTitle(), QString("Access Recordings"));
    QVERIFY(dialog.windowFlags() & Qt::WindowTitleHint);
    QVERIFY(!(dialog.windowFlags() & Qt::WindowContextHelpButtonHint));
    QCOMPARE(dialog.layout(), child<QFormLayout>(&dialog, "formLayout"));
    QCOMPARE(child<QLabel>(&dialog, "label")->pixmap(Qt::ReturnByValue).toImage(),
             QPixmap(":/icons/RecordingFolder_32.png").toImage());
    const Fields fields(&dialog);
    QCOMPARE(fields.camera->text(), QString("Via camera"));
    QCOMPARE(fields.byDefault->text(),
             QString("Default file server path (factory IP address will be appended)"));
    QCOMPARE(fields.specific->text(), QString("Specific file server path (factory IP will be appended):"));
    QCOMPARE(fields.group->title(), QString("Specific File Server"));
    QCOMPARE(fields.transponder->text(), QString("Use preview data for playback and Video Search"));
    QCOMPARE(fields.password->echoMode(), QLineEdit::Password);
    QCOMPARE(fields.group->layout(), child<QHBoxLayout>(&dialog, "horizontalLayout"));
    auto* grid = child<QGridLayout>(&dialog, "gridLayout");
    const struct
    {
        const char* name;
        const char* cell;
        const char* text;
    } cells[] = {{"pathLabel", "0,1,1,1", "Path:"},        {"pathLineEdit", "0,2,1,1", nullptr},
                 {"browseButton", "0,3,1,1", "Browse..."}, {"userNameLabel", "1,1,1,1", "User name:"},
                 {"userNameLineEdit", "1,2,1,1", nullptr}, {"passwordLabel", "2,1,1,1", "Password:"},
                 {"passwordLineEdit", "2,2,1,1", nullptr}};
    for (const auto& cell : cells) {
        auto* widget = child<QWidget>(&dialog, cell.name);
        QCOMPARE(testsupport::gridCell(grid, widget), QString(cell.cell));
        if (cell.text)
            QCOMPARE(widget->property("text").toString(), QString(cell.text));
    }
    QCOMPARE(child<QFrame>(&dialog, "line")->frameShape(), QFrame::HLine);
    QCOMPARE(child<QDialogButtonBox>(&dialog, "buttonBox")->standardButtons(),
             QDialogButtonBox::StandardButtons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel));
    QVERIFY(m_db->calls.isEmpty());
}

// Qt 4.8 lays a field without one out over both columns and cuts it off.
void tst_RecordingFolderMassAssignmentDialog::everyRowHasALabelItem()
{
    RecordingFolderMassAssignmentDialog dialog(nullptr, ids(1), Qt::Dialog);
    dialog.show();
    const auto* rows = child<QFormLayout>(&dialog, "formLayout");
    const int column = child<QLabel>(&dialog, "cameraLabel")->x();
    QCOMPARE(rows->rowCount(), 8);
    for (int row = 0; row < rows->rowCount() - 1; ++row) { // the last holds the buttons
        QVERIFY2(rows->itemAt(row, QFormLayout::LabelRole), qPrintable(QString::number(row)));
        QCOMPARE(rows->itemAt(row, QFormLayout::FieldRole)->widget()->x(), column);
    }
}

void tst_RecordingFolderMassAssignmentDialog::tabOrder()
{
    RecordingFolderMassAssignmentDialog dialog(nullptr, ids(1), Qt::Dialog);
    Fields(&dialog).specific->setChecked(true);
    Fields(&dialog).path->setText("x");
    dialog.show();
    const QStringList order = testsupport::tabOrder(&dialog);
    const QStringList fields = {"pathLineEdit", "browseButton", "userNameLineEdit", "passwordLineEdit",
                                "recordingTransponderCheckBox"};
    const int first = int(order.indexOf(fields.constFirst()));
    QVERIFY(first > 0);
    QCOMPARE(order.mid(first, fields.size()), fields);
}

void tst_RecordingFolderMassAssignmentDialog::roomForLongTexts()
{
    RecordingFolderMassAssignmentDialog dialog(nullptr, ids(15), Qt::Dialog);
    dialog.show();
    QCOMPARE(testsupport::cutOff(&dialog), QStringList());
    const testsupport::LongLanguage language;
    RecordingFolderMassAssignmentDialog translated(nullptr, ids(15), Qt::Dialog);
    translated.show();
    QCOMPARE(testsupport::cutOff(&translated), QStringList());
}

void tst_RecordingFolderMassAssignmentDialog::metaObject()
{
    const QMetaObject& meta = RecordingFolderMassAssignmentDialog::staticMetaObject;
    QCOMPARE(QString(meta.className()), QString("ko::RecordingFolderMassAssignmentDialog"));
    QStringList declared = testsupport::declaredSlots(meta);
    declared.sort();
    QCOMPARE(declared, QStringList({"accept()", "browse()", "checkUI()"}));
}

void tst_RecordingFolderMassAssignmentDialog::emptyList()
{
    RecordingFolderMassAssignmentDialog dialog(nullptr, QStringList(), Qt::Dialog);
    const QString text = child<QLabel>(&dialog, "cameraLabel")->text();
    QVERIFY(text.contains("<b>Select how %2 should access the recordings of the following cameras:</b>"));
    QVERIFY(text.endsWith("%1"));
    QVERIFY(Fields(&dialog).byDefault->isChecked());
    QVERIFY(!Fields(&dialog).group->isEnabled());
    dialog.accept();
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QVERIFY(m_db->calls.isEmpty());
}

void tst_RecordingFolderMassAssignmentDialog::label()
{
    const RecordingFolderMassAssignmentDialog dialog(nullptr, ids(2), Qt::Dialog);
    QCOMPARE(child<QLabel>(&dialog, "cameraLabel")->text(),
             QString("<p><b>Select how The Client should access the recordings of:</b></p>"
                     "<ul><li>Camera 0</li><li>Camera 1</li></ul>"));
}

void tst_RecordingFolderMassAssignmentDialog::nodeNames_data()
{
    QTest::addColumn<QStringList>("list");
    QTest::addColumn<int>("named");
    QTest::addColumn<bool>("dots");
    QTest::newRow("none") << QStringList() << 0 << false;
    QTest::newRow("ten") << ids(10) << 10 << false;
    QTest::newRow("eleven") << ids(11) << 11 << true;
    QTest::newRow("fifteen") << ids(15) << 11 << true;
    QTest::newRow("others are skipped") << QStringList({"", "gone", "channels", "cam1"}) << 1 << false;
    QTest::newRow("the eleventh is skipped")
        << (ids(10) + QStringList({"channels", "cam11", "cam12"})) << 11 << true;
    QTest::newRow("only others behind the tenth")
        << (ids(10) + QStringList({"channels", "gone"})) << 10 << false;
}

void tst_RecordingFolderMassAssignmentDialog::nodeNames()
{
    QFETCH(QStringList, list);
    QFETCH(int, named);
    QFETCH(bool, dots);
    const QString names = RecordingFolderMassAssignmentDialog::nodeNames(list);
    QCOMPARE(names.count("<li>Camera "), named);
    QCOMPARE(names.count("</li>"), named + int(dots));
    QCOMPARE(names.endsWith("<li>...</li>"), dots);
}

void tst_RecordingFolderMassAssignmentDialog::namesThatAreMarkup()
{
    m_db->addCamera("markup", "<img src=x>&amp;%2</li>");
    const RecordingFolderMassAssignmentDialog dialog(nullptr, {"markup"}, Qt::Dialog);
    QTextDocument shown;
    shown.setHtml(child<QLabel>(&dialog, "cameraLabel")->text());
    QVERIFY(shown.toPlainText().contains("<img src=x>&amp;%2</li>"));
}

void tst_RecordingFolderMassAssignmentDialog::beginsAsTheFirstCamera_data()
{
    QTest::addColumn<int>("usage");
    QTest::addColumn<bool>("transponder");
    QTest::addColumn<QString>("checked");
    const char* const buttons[] = {"cameraRadioButton", "defaultFileServerPathRadioButton",
                                   "specificFileServerPathRadioButton", "cameraRadioButton",
                                   "cameraRadioButton"};
    for (int usage = 0; usage < 5; ++usage)
        QTest::addRow("%d", usage) << usage << bool(usage % 2) << QString(buttons[usage]);
    QTest::newRow("-1") << -1 << true << "cameraRadioButton";
}

void tst_RecordingFolderMassAssignmentDialog::beginsAsTheFirstCamera()
{
    QFETCH(int, usage);
    QFETCH(bool, transponder);
    QFETCH(QString, checked);
    set("cam0", [usage, transponder](Node* node) {
        node->setIntProperty("RecordingStorageUsage", usage);
        node->setBoolProperty("UseRecordingTransponder", transponder);
    });
    const RecordingFolderMassAssignmentDialog dialog(nullptr, ids(2), Qt::Dialog);
    const Fields fields(&dialog);
    for (const QRadioButton* button : {fields.camera, fields.byDefault, fields.specific})
        QCOMPARE(button->isChecked(), button->objectName() == checked);
    QCOMPARE(fields.transponder->isChecked(), transponder);
    QCOMPARE(fields.group->isEnabled(), usage == 2);
    QVERIFY(fields.path->text().isEmpty());
    QCOMPARE(fields.ok->isEnabled(), usage != 2); // Enter at once must not take the paths away
}

void tst_RecordingFolderMassAssignmentDialog::specificPathEnablesItsGroup()
{
    RecordingFolderMassAssignmentDialog dialog(nullptr, ids(1), Qt::Dialog);
    dialog.show();
    const Fields fields(&dialog);
    QVERIFY(!fields.path->isEnabled());
    QTest::mouseClick(fields.specific, Qt::LeftButton, Qt::NoModifier,
                      QPoint(8, fields.specific->height() / 2));
    QVERIFY(fields.path->isEnabled());
    QTest::mouseClick(fields.camera, Qt::LeftButton, Qt::NoModifier, QPoint(8, fields.camera->height() / 2));
    QVERIFY(!fields.path->isEnabled());
}

void tst_RecordingFolderMassAssignmentDialog::okNeedsAPath()
{
    RecordingFolderMassAssignmentDialog dialog(nullptr, ids(1), Qt::Dialog);
    const Fields fields(&dialog);
    QVERIFY(fields.ok->isEnabled());
    fields.specific->setChecked(true);
    QVERIFY(!fields.ok->isEnabled());
    QTest::keyClicks(fields.path, "/");
    QVERIFY(fields.ok->isEnabled());
    QTest::keyClick(fields.path, Qt::Key_Backspace);
    QVERIFY(!fields.ok->isEnabled());
    fields.byDefault->setChecked(true);
    QVERIFY(fields.ok->isEnabled());
}

void tst_RecordingFolderMassAssignmentDialog::browseTakesTheFolder()
{
    RecordingFolderMassAssignmentDialog dialog(nullptr, ids(1), Qt::Dialog);
    const Fields fields(&dialog);
    fields.specific->setChecked(true);
    fields.path->setText(QDir::tempPath());
    ModalAnswer answer([](QDialog* chooser) {
        QCOMPARE(chooser->windowTitle(), QString("Select File Server Directory"));
        auto* files = qobject_cast<QFileDialog*>(chooser);
        QVERIFY(files->testOption(QFileDialog::ShowDirsOnly));
        QCOMPARE(files->directory().path(), QDir::tempPath());
        chooser->accept();
    });
    QTest::mouseClick(child<QPushButton>(&dialog, "browseButton"), Qt::LeftButton);
    QVERIFY(answer.fired());
    QCOMPARE(QDir(fields.path->text()).path(), QDir::tempPath());
}

void tst_RecordingFolderMassAssignmentDialog::cancelledBrowseEmptiesTheField()
{
    RecordingFolderMassAssignmentDialog dialog(nullptr, ids(1), Qt::Dialog);
    const Fields fields(&dialog);
    fields.specific->setChecked(true);
    fields.path->setText(QDir::tempPath());
    QVERIFY(fields.ok->isEnabled());
    const ModalAnswer answer([](QDialog* chooser) { chooser->reject(); });
    QTest::mouseClick(child<QPushButton>(&dialog, "browseButton"), Qt::LeftButton);
    QVERIFY(fields.path->text().isEmpty());
    QVERIFY(!fields.ok->isEnabled());
}

void tst_RecordingFolderMassAssignmentDialog::defaultPathMustBeSet()
{
    m_db->recordingFolderPath.clear();
    RecordingFolderMassAssignmentDialog dialog(nullptr, ids(2), Qt::Dialog);
    dialog.show();
    Fields(&dialog).byDefault->setChecked(true);
    QString title;
    QString text;
    const ModalAnswer answer([&title, &text](QDialog* box) {
        title = box->windowTitle();
        text = qobject_cast<QMessageBox*>(box)->text();
        box->accept();
    });
    QTest::mouseClick(Fields(&dialog).ok, Qt::LeftButton);
    QCOMPARE(title, QString("Default file server path not set"));
    QCOMPARE(text, QString("Please define the default file server path before setting this option."));
    QVERIFY(dialog.isVisible());
    QVERIFY(m_db->calls.isEmpty());
    Fields(&dialog).camera->setChecked(true);
    QTest::mouseClick(Fields(&dialog).ok, Qt::LeftButton);
    QVERIFY(!dialog.isVisible());
}

void tst_RecordingFolderMassAssignmentDialog::viaCamera()
{
    set("cam1", [](Node* node) { node->setIntProperty("RecordingStorageUsage", 2); });
    RecordingFolderMassAssignmentDialog dialog(nullptr, ids(3), Qt::Dialog);
    QTest::mouseClick(Fields(&dialog).ok, Qt::LeftButton);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    // The others have it so already.
    QCOMPARE(m_db->calls,
             QStringList({"beginUpdateNode(cam1,-1)", "setIntProperty(RecordingStorageUsage,0)",
                          "setBoolProperty(UseRecordingTransponder,false)", "endUpdateNode(cam1)"}));
}

void tst_RecordingFolderMassAssignmentDialog::belowTheDefaultPath()
{
    RecordingFolderMassAssignmentDialog dialog(nullptr, ids(2), Qt::Dialog);
    Fields(&dialog).byDefault->setChecked(true);
    Fields(&dialog).transponder->setChecked(true);
    dialog.accept();
    for (int i = 0; i < 2; ++i) {
        const kom::smart<const Node> camera = m_db->node(QString("cam%1").arg(i));
        QCOMPARE(camera->intProperty("RecordingStorageUsage", -1), 1);
        QVERIFY(camera->boolProperty("UseRecordingTransponder", false));
        const QStringList folders = m_db->relatedNodes(QString("cam%1").arg(i), RecordingFolderRelation);
        QCOMPARE(folders.size(), 1);
        QCOMPARE(stored(folders.at(0), "Path"), QString("10_0_0_%1").arg(i + 1));
        QVERIFY(m_db->node(folders.at(0))->boolProperty("UseGlobalPath", false));
    }
}

void tst_RecordingFolderMassAssignmentDialog::belowASpecificPath()
{
    RecordingFolderMassAssignmentDialog dialog(nullptr, ids(2), Qt::Dialog);
    const Fields fields(&dialog);
    fields.specific->setChecked(true);
    fields.path->setText("/mnt//recordings/");
    fields.user->setText("rec");
    fields.password->setText("p@ss");
    dialog.accept();
    for (int i = 0; i < 2; ++i) {
        const QStringList folders = m_db->relatedNodes(QString("cam%1").arg(i), RecordingFolderRelation);
        QCOMPARE(folders.size(), 1);
        const QString& folder = folders.at(0);
        QCOMPARE(stored(folder, "Path"), QString("/mnt/recordings/10_0_0_%1").arg(i + 1));
        QCOMPARE(stored(folder, "User"), QString("rec"));
        QCOMPARE(stored(folder, "Password"), QString("p@ss"));
        QCOMPARE(stored(folder, "CameraID"), QString("cam%1").arg(i));
        QCOMPARE(m_db->node(QString("cam%1").arg(i))->intProperty("RecordingStorageUsage", -1), 2);
    }
}

void tst_RecordingFolderMassAssignmentDialog::folderThatIsThereIsUsedAgain()
{
    for (const char* id : {"first", "second"}) {
        m_db->addNode(RecordingFolderType, QLatin1String(id), QLatin1String(id));
        m_db->addNodeRelation("cam0", QLatin1String(id), RecordingFolderRelation);
    }
    m_db->clearCalls();
    RecordingFolderMassAssignmentDialog dialog(nullptr, ids(1), Qt::Dialog);
    Fields(&dialog).specific->setChecked(true);
    Fields(&dialog).path->setText("/mnt");
    dialog.accept();
    QCOMPARE(stored("first", "Path"), QString("/mnt/10_0_0_1"));
    QCOMPARE(stored("second", "Path"), QString("-"));
    QCOMPARE(m_db->relatedNodes("cam0", RecordingFolderRelation), QStringList({"first", "second"}));
    QCOMPARE(m_db->nodeIdList(RecordingFolderType).size(), 2);
}

void tst_RecordingFolderMassAssignmentDialog::withoutFactoryExtension_data()
{
    QTest::addColumn<QString>("extension");
    QTest::newRow("none") << "";
    QTest::newRow("as it left the factory") << "10_0_0_0";
}

void tst_RecordingFolderMassAssignmentDialog::withoutFactoryExtension()
{
    QFETCH(QString, extension);
    set("cam0", [&extension](Node* node) { node->setStringProperty("FactoryIP", extension); });
    m_db->addNode(RecordingFolderType, "old", "old");
    m_db->addNodeRelation("cam0", "old", RecordingFolderRelation);
    RecordingFolderMassAssignmentDialog dialog(nullptr, ids(1), Qt::Dialog);
    Fields(&dialog).specific->setChecked(true);
    Fields(&dialog).path->setText("/mnt");
    dialog.accept();
    const QStringList folders = m_db->relatedNodes("cam0", RecordingFolderRelation);
    QCOMPARE(folders.size(), 1);
    QVERIFY(folders.at(0) != "old");
    QCOMPARE(stored(folders.at(0), "Path"), QString());
}

void tst_RecordingFolderMassAssignmentDialog::nothingIsCarriedOver()
{
    set("cam1", [](Node* node) { node->setStringProperty("FactoryIP", ""); });
    RecordingFolderMassAssignmentDialog dialog(nullptr, ids(3), Qt::Dialog);
    Fields(&dialog).specific->setChecked(true);
    Fields(&dialog).path->setText("/mnt");
    dialog.accept();
    QStringList paths;
    for (int i = 0; i < 3; ++i)
        paths.append(
            stored(m_db->relatedNodes(QString("cam%1").arg(i), RecordingFolderRelation).value(0), "Path"));
    QCOMPARE(paths, QStringList({"/mnt/10_0_0_1", "", "/mnt/10_0_0_3"}));
}

void tst_RecordingFolderMassAssignmentDialog::networkShare_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("path");
    QTest::newRow("share") << "//server/share"
                           << "\\\\server/share/10_1_2_3";
    QTest::newRow("trailing slash") << "//server/share/"
                                    << "\\\\server/share/10_1_2_3";
    QTest::newRow("dots") << "/mnt/a/../b"
                          << "/mnt/b/10_1_2_3";
    QTest::newRow("relative") << "recordings"
                              << "recordings/10_1_2_3";
}

void tst_RecordingFolderMassAssignmentDialog::networkShare()
{
    QFETCH(QString, typed);
    QFETCH(QString, path);
    set("cam0", [](Node* node) { node->setStringProperty("FactoryIP", "10_1_2_3"); });
    RecordingFolderMassAssignmentDialog dialog(nullptr, ids(1), Qt::Dialog);
    Fields(&dialog).specific->setChecked(true);
    Fields(&dialog).path->setText(typed);
    dialog.accept();
    QCOMPARE(stored(m_db->relatedNodes("cam0", RecordingFolderRelation).value(0), "Path"), path);
}

void tst_RecordingFolderMassAssignmentDialog::otherNodesStayAsTheyAre()
{
    RecordingFolderMassAssignmentDialog dialog(nullptr, {"channels", "gone", "", "cam3"}, Qt::Dialog);
    Fields(&dialog).byDefault->setChecked(true);
    dialog.accept();
    QCOMPARE(m_db->calls.filter("channels"), QStringList());
    QCOMPARE(m_db->node("cam3")->intProperty("RecordingStorageUsage", -1), 1);
}

void tst_RecordingFolderMassAssignmentDialog::cancelWritesNothing()
{
    RecordingFolderMassAssignmentDialog dialog(nullptr, ids(3), Qt::Dialog);
    dialog.show();
    Fields(&dialog).byDefault->setChecked(true);
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QVERIFY(!dialog.isVisible());
    QVERIFY(m_db->calls.isEmpty());
}

KO_TEST_MAIN(tst_RecordingFolderMassAssignmentDialog)
#include "tst_recordingfoldermassassignmentdialog.moc"
