#include "support/DialogCheck.h"
#include "support/FolderHost.h"
#include "support/PageForm.h"
#include "support/Patience.h"
#include "support/SmallInspector.h"
#include "support/TestMain.h"

#include "dialogs/EditNodeDialog.h"
#include "dialogs/RecordingFolderAssignmentDialog.h"
#include "dialogs/RecordingTransponderCustomSettingsDialog.h"
#include "ko/IPDeviceNode.h"
#include "recording/KoFFSDevice.h"
#include "utils/NaturalOrder.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QGroupBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QMessageBox>
#include <QProxyStyle>
#include <QPushButton>
#include <QRadioButton>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTextDocument>

#include <limits>

using namespace ko;
using testsupport::child;
using testsupport::ModalAnswer;
using testsupport::Slowness;

typedef RecordingFolderAssignmentDialog Dialog;

namespace {

struct Parts
{
    explicit Parts(const QWidget* dialog)
        : viaCamera(child<QRadioButton>(dialog, "viaCameraRadioButton"))
        , global(child<QRadioButton>(dialog, "globalPathRadioButton"))
        , own(child<QRadioButton>(dialog, "cameraFileserverPathRadioButton"))
        , path(child<QLineEdit>(dialog, "fileServerPathLineEdit"))
        , more(child<QPushButton>(dialog, "moreButton"))
        , transponder(child<QCheckBox>(dialog, "recordingTransponderCheckBox"))
        , settings(child<QPushButton>(dialog, "recordingTransponderPushButton"))
        , folders(child<QGroupBox>(dialog, "recordingFoldersGroupBox"))
        , table(child<QTableWidget>(dialog, "relatedNodesWidget"))
        , add(child<QPushButton>(dialog, "addButton"))
        , edit(child<QPushButton>(dialog, "editButton"))
        , remove(child<QPushButton>(dialog, "removeButton"))
        , apply(child<QPushButton>(dialog, "applyButton"))
        , ok(child<QDialogButtonBox>(dialog, "buttonBox")->button(QDialogButtonBox::Ok))
    {
    }

    QRadioButton* const viaCamera;
    QRadioButton* const global;
    QRadioButton* const own;
    QLineEdit* const path;
    QPushButton* const more;
    QCheckBox* const transponder;
    QPushButton* const settings;
    QGroupBox* const folders;
    QTableWidget* const table;
    QPushButton* const add;
    QPushButton* const edit;
    QPushButton* const remove;
    QPushButton* const apply;
    QPushButton* const ok;
};

void click(QAbstractButton* button)
{
    QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, QPoint(8, button->height() / 2));
}

/// The identifiers in the table, in alphabetical order.
QStringList rows(const QTableWidget* table)
{
    QStringList ids;
    for (int row = 0; row < table->rowCount(); ++row)
        ids.append(table->item(row, 2)->text());
    ids.sort();
    return ids;
}

int rowOf(const QTableWidget* table, const QString& id)
{
    for (int row = 0; row < table->rowCount(); ++row) {
        if (table->item(row, 2)->text() == id)
            return row;
    }
    return -1;
}

/// Answers one message box and keeps what it said.
struct Box
{
    explicit Box(QMessageBox::StandardButton press = QMessageBox::Ok)
        : answer([this, press](QDialog* dialog) {
            auto* box = qobject_cast<QMessageBox*>(dialog);
            told = box->windowTitle() + ": " + box->text();
            buttons = box->standardButtons();
            icon = box->icon();
            box->button(press)->click();
        })
    {
    }

    QString told;
    QMessageBox::StandardButtons buttons;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    ModalAnswer answer;
};

/// The application's style from construction to destruction: its layouts keep this distance, which it tells
/// at once or, as some styles do, for each pair of widgets only.
class SpacingStyle : public QProxyStyle
{
public:
    SpacingStyle(int spacing, bool computed)
        : m_spacing(spacing)
        , m_computed(computed)
    {
    }

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override
    {
        if (metric == PM_LayoutVerticalSpacing)
            return m_computed ? -1 : m_spacing;
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
    int layoutSpacing(QSizePolicy::ControlType, QSizePolicy::ControlType, Qt::Orientation,
                      const QStyleOption*, const QWidget*) const override
    {
        return m_spacing;
    }

private:
    const int m_spacing;
    const bool m_computed;
};

} // namespace

class tst_RecordingFolderAssignmentDialog : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void form();
    void tabOrder();
    void roomForLongTexts();
    void metaObject();
    void title_data();
    void title();
    void usages_data();
    void usages();
    void olderUsages_data();
    void olderUsages();
    void missingCamera();
    void otherTypesOfCamera();
    void rowsFitALargeFont();
    void table();
    void tableOfOthersFolders();
    void insertedFolders();
    void updatedFolder();
    void removedFolder();
    void renamedWhileSorted();
    void namesAndPathsAreText();
    void manyFoldersOpenFast();
    void manyChangesAreSortedOnce();
    void changesOfOneFolder();
    void descendingRowsGo();
    void expandAndCollapse_data();
    void expandAndCollapse();
    void otherChoiceCollapses();
    void transponderButton();
    void transponderDialog();
    void applyTakesTheRow();
    void applyWithoutRow();
    void onlyRowNeedsNoSelection();
    void typedPathMakesANewFolder();
    void sameTextKeepsTheFolder();
    void addMakesAFolder();
    void addCancelled();
    void addWithoutDriver();
    void editOpensTheDialog();
    void editWithoutRow();
    void removeAsksFirst_data();
    void removeAsksFirst();
    void internalRecorderStays();
    void okViaCamera();
    void okBelowTheDefaultPath();
    void okNeedsTheDefaultPath();
    void okNeedsTheFactoryExtension();
    void okNeedsAFolder();
    void okKeepsTheCredentials();
    void cancelWritesNothing();

private:
    Node& addFolder(const QString& id, const QString& path);
    void setUsage(int usage);

    std::unique_ptr<testsupport::FolderHost> m_db;
};

Node& tst_RecordingFolderAssignmentDialog::addFolder(const QString& id, const QString& path)
{
    Node& node = m_db->addNode(RecordingFolderType, id, "Folder " + id);
    node.setStringProperty("Path", path);
    m_db->clearCalls();
    return node;
}

void tst_RecordingFolderAssignmentDialog::setUsage(int usage)
{
    Node* camera = m_db->beginUpdateNode("cam", -1);
    camera->setIntProperty("RecordingStorageUsage", usage);
    m_db->endUpdateNode(camera);
    m_db->clearCalls();
}

void tst_RecordingFolderAssignmentDialog::init()
{
    m_db = std::make_unique<testsupport::FolderHost>();
    m_db->defineType(RecordingTransponderType, "Remote preview");
    m_db->recordingFolderPath = "//server/recordings";
    IPDeviceNode& camera = m_db->addCamera("cam", "Gate");
    camera.setIntProperty("NodeType", 2);
    camera.setStringProperty("FactoryIP", "10_0_0_7");
    m_db->addCamera("other", "Other");
    m_db->addNode(RecordingTransponderType, "preview", "Preview");
    addFolder("own", "//srv/own");
    addFolder("free", "//srv/free");
    addFolder("taken", "//srv/taken");
    addFolder("below", "10_0_0_9").setBoolProperty("UseGlobalPath", true);
    m_db->addNodeRelation("cam", "own", RecordingFolderRelation);
    m_db->addNodeRelation("other", "taken", RecordingFolderRelation);
    m_db->clearCalls();
}

void tst_RecordingFolderAssignmentDialog::cleanup()
{
    m_db.reset();
    KoFFSDevice::setProbe(nullptr);
}

void tst_RecordingFolderAssignmentDialog::form()
{
    const Dialog dialog("cam", nullptr);
    const Parts parts(&dialog);
    QCOMPARE(dialog.objectName(), QString("RecordingFolderAssignmentDialog"));
    auto* layout = child<QVBoxLayout>(&dialog, "verticalLayout");
    QCOMPARE(dialog.layout(), layout);
    QCOMPARE(layout->count(), 4);
    QCOMPARE(layout->itemAt(0)->widget(), child<QGroupBox>(&dialog, "groupBox"));
    QCOMPARE(layout->itemAt(1)->widget(), parts.folders);
    QCOMPARE(layout->itemAt(2)->sizeHint(), QSize(20, 40));
    QCOMPARE(layout->itemAt(3)->widget(), child<QDialogButtonBox>(&dialog, "buttonBox"));
    const struct
    {
        const char* grid;
        const char* name;
        const char* cell;
        const char* text;
        const char* toolTip;
    } cells[] = {
        {"gridLayout_2", "viaCameraRadioButton", "0,0,1,1", "Via camera",
         "Select this option to obtain recording data via the camera. This option can be used if the data is "
         "recorded on internal storage media of the camera or if the file server is not directly "
         "accessible."},
        {"gridLayout_2", "globalPathRadioButton", "1,0,1,3",
         "Default file server path (factory IP address will be appended)",
         "Directly access the default file server specified in the Preferences."},
        {"gridLayout_2", "cameraFileserverPathRadioButton", "2,0,1,1",
         "Specific file server path:", "Check to specify a camera-specific file server path."},
        {"gridLayout_2", "fileServerPathLineEdit", "2,1,1,2", nullptr, ""},
        {"gridLayout_2", "moreButton", "2,3,1,1", "More...", ""},
        {"gridLayout_2", "recordingTransponderCheckBox", "3,0,1,2",
         "Use preview data for playback and Video Search", nullptr},
        {"gridLayout_2", "recordingTransponderPushButton", "3,3,1,1", "Settings...", ""},
        {"gridLayout", "relatedNodesWidget", "0,0,1,5", nullptr, nullptr},
        {"gridLayout", "addButton", "1,0,1,1", "Add...", "Create a new recording node."},
        {"gridLayout", "editButton", "1,1,1,1", "Edit...", "Edit the recording node."},
        {"gridLayout", "removeButton", "1,2,1,1", "Remove", "Remove a recording node."},
        {"gridLayout", "applyButton", "1,3,1,1", "Apply", "Assign the checked entry to the camera."},
    };
    for (const auto& cell : cells) {
        auto* widget = child<QWidget>(&dialog, cell.name);
        QCOMPARE(testsupport::gridCell(child<QGridLayout>(&dialog, cell.grid), widget), QString(cell.cell));
        if (cell.text)
            QCOMPARE(widget->property("text").toString(), QString(cell.text));
        if (cell.toolTip)
            QCOMPARE(widget->toolTip(), QString(cell.toolTip));
    }
    QVERIFY(parts.transponder->toolTip().startsWith(
        "<p>To optimize low-bandwidth connections, you can use KoTandem for playback and Video Search. "
        "Audio/video data is always exported from the recording target selected above.</p><p>"));
    QCOMPARE(child<QGroupBox>(&dialog, "groupBox")->title(), QString("Access Recordings"));
    QCOMPARE(child<QGroupBox>(&dialog, "groupBox")->minimumWidth(), 420);
    QCOMPARE(parts.folders->title(), QString("Recording Folders"));
    QCOMPARE(parts.folders->minimumWidth(), 420);
    QVERIFY(parts.folders->isHidden());
    QCOMPARE(parts.table->minimumWidth(), 300);
    QCOMPARE(parts.table->editTriggers(), QAbstractItemView::EditTriggers(QAbstractItemView::NoEditTriggers));
    QVERIFY(parts.table->alternatingRowColors());
    QCOMPARE(parts.table->selectionMode(), QAbstractItemView::SingleSelection);
    QCOMPARE(parts.table->selectionBehavior(), QAbstractItemView::SelectRows);
    QVERIFY(parts.table->isColumnHidden(2));
    const char* const headers[] = {"Name", "Path", "NodeID"};
    for (int column = 0; column < 3; ++column)
        QCOMPARE(parts.table->horizontalHeaderItem(column)->text(), QString(headers[column]));
    QVERIFY(parts.table->toolTip().contains("You will not see recording folders assigned to other cameras "
                                            "here, only the folders assigned to this camera and unassigned "
                                            "folders."));
}

void tst_RecordingFolderAssignmentDialog::tabOrder()
{
    setUsage(2);
    Dialog dialog("cam", nullptr);
    dialog.show();
    click(Parts(&dialog).transponder);
    click(Parts(&dialog).more);
    const QStringList order = testsupport::tabOrder(&dialog);
    const QStringList tail = {"fileServerPathLineEdit",
                              "moreButton",
                              "recordingTransponderCheckBox",
                              "recordingTransponderPushButton",
                              "relatedNodesWidget",
                              "addButton",
                              "editButton",
                              "removeButton",
                              "applyButton"};
    QCOMPARE(order.mid(order.indexOf(tail.constFirst()), tail.size()), tail);
}

void tst_RecordingFolderAssignmentDialog::roomForLongTexts()
{
    for (const bool longTexts : {false, true}) {
        const auto language = longTexts ? std::make_unique<testsupport::LongLanguage>()
                                        : std::unique_ptr<testsupport::LongLanguage>();
        setUsage(2);
        Dialog dialog("cam", nullptr);
        dialog.show();
        QCOMPARE(testsupport::cutOff(&dialog), QStringList());
        click(Parts(&dialog).more);
        QCOMPARE(testsupport::cutOff(&dialog), QStringList());
    }
}

void tst_RecordingFolderAssignmentDialog::metaObject()
{
    const QMetaObject& meta = Dialog::staticMetaObject;
    QCOMPARE(QString(meta.className()), QString("ko::RecordingFolderAssignmentDialog"));
    QCOMPARE(
        testsupport::declaredSlots(meta),
        QStringList({"addRecordingFolderNode()", "removeRecordingFolderNode()", "changeRecordingFolderNode()",
                     "applySelection()", "expandDialog()", "toggleMoreButton()", "removeFolderSelection()",
                     "toggleRecordingTransponderSettings(int state)", "showRecordingTransponderDialog()",
                     "addNodeToTableWidget(ko::NodeID id)", "updateNodeInTableWidget(ko::NodeID id)",
                     "removeNodeFromTableWidget(ko::NodeID id)", "accept()"}));
}

void tst_RecordingFolderAssignmentDialog::title_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("title");
    QTest::newRow("name") << "Gate"
                          << "Access Recordings of Gate";
    QTest::newRow("no name") << ""
                             << "Access Recordings of IP camera";
    QTest::newRow("markup") << "<b>%1"
                            << "Access Recordings of <b>%1";
}

void tst_RecordingFolderAssignmentDialog::title()
{
    QFETCH(QString, name);
    QFETCH(QString, title);
    m_db->addCamera("named", name);
    const Dialog dialog("named", nullptr);
    QCOMPARE(dialog.windowTitle(), title);
}

void tst_RecordingFolderAssignmentDialog::usages_data()
{
    QTest::addColumn<int>("usage");
    QTest::addColumn<QString>("checked");
    QTest::addColumn<bool>("more");
    QTest::newRow("via camera") << 0 << "viaCameraRadioButton" << false;
    QTest::newRow("default path") << 1 << "globalPathRadioButton" << false;
    QTest::newRow("own folder") << 2 << "cameraFileserverPathRadioButton" << true;
    QTest::newRow("unknown") << 5 << QString() << true;
}

void tst_RecordingFolderAssignmentDialog::usages()
{
    QFETCH(int, usage);
    QFETCH(QString, checked);
    QFETCH(bool, more);
    setUsage(usage);
    const Dialog dialog("cam", nullptr);
    const Parts parts(&dialog);
    for (const QRadioButton* button : {parts.viaCamera, parts.global, parts.own})
        QCOMPARE(button->isChecked(), button->objectName() == checked);
    QCOMPARE(parts.more->isEnabled(), more);
    QCOMPARE(parts.path->text(), usage == 2 ? QString("//srv/own") : QString());
    QVERIFY(!parts.transponder->isChecked());
    QVERIFY(!parts.settings->isEnabled());
    QVERIFY(m_db->calls.isEmpty());
}

void tst_RecordingFolderAssignmentDialog::olderUsages_data()
{
    QTest::addColumn<int>("usage");
    QTest::addColumn<int>("today");
    QTest::newRow("default path") << 3 << 1;
    QTest::newRow("own folder") << 4 << 2;
}

void tst_RecordingFolderAssignmentDialog::olderUsages()
{
    QFETCH(int, usage);
    QFETCH(int, today);
    setUsage(usage);
    const Dialog dialog("cam", nullptr);
    const Parts parts(&dialog);
    QCOMPARE(
        m_db->calls,
        QStringList({"beginUpdateNode(cam,-1)", "setBoolProperty(UseRecordingTransponder,true)",
                     QString("setIntProperty(RecordingStorageUsage,%1)").arg(today), "endUpdateNode(cam)"}));
    QCOMPARE(parts.global->isChecked(), today == 1);
    QCOMPARE(parts.own->isChecked(), today == 2);
    QVERIFY(parts.transponder->isChecked());
    QVERIFY(parts.settings->isEnabled());
    QCOMPARE(parts.more->isEnabled(), today == 2);
    QCOMPARE(parts.path->text(), today == 2 ? QString("//srv/own") : QString());
}

void tst_RecordingFolderAssignmentDialog::missingCamera()
{
    Dialog dialog("gone", nullptr);
    const Parts parts(&dialog);
    QCOMPARE(dialog.windowTitle(), QString("Access Recordings"));
    for (const QRadioButton* button : {parts.viaCamera, parts.global, parts.own})
        QVERIFY(!button->isChecked());
    parts.ok->click();
    QVERIFY(m_db->calls.isEmpty());
}

void tst_RecordingFolderAssignmentDialog::otherTypesOfCamera()
{
    Node* camera = m_db->beginUpdateNode("cam", -1);
    camera->setIntProperty("NodeType", 5);
    camera->setBoolProperty("UseRecordingTransponder", true);
    m_db->endUpdateNode(camera);
    const Dialog dialog("cam", nullptr);
    const Parts parts(&dialog);
    QCOMPARE(parts.viaCamera->text(), QString("No recording folder"));
    QVERIFY(!parts.global->isEnabled());
    QVERIFY(!parts.transponder->isChecked());
    QVERIFY(!parts.settings->isEnabled());
}

void tst_RecordingFolderAssignmentDialog::rowsFitALargeFont()
{
    const QFont before = QApplication::font();
    const auto restore = qScopeGuard([&before] { QApplication::setFont(before); });
    QApplication::setFont(QFont(before.family(), 20));
    const Dialog dialog("cam", nullptr);
    const Parts parts(&dialog);
    QVERIFY(parts.table->rowHeight(0) > QFontMetrics(parts.table->font()).height());
}

void tst_RecordingFolderAssignmentDialog::table()
{
    const Dialog dialog("cam", nullptr);
    const Parts parts(&dialog);
    QCOMPARE(rows(parts.table), QStringList({"free", "own"}));
    QVERIFY(parts.table->isSortingEnabled());
    QVERIFY(parts.table->currentRow() >= 0);
    const int row = rowOf(parts.table, "own");
    QCOMPARE(parts.table->rowHeight(row), 20);
    const QTableWidgetItem* name = parts.table->item(row, 0);
    QCOMPARE(name->text(), QString("Folder own"));
    QCOMPARE(name->toolTip(), QString("Folder own"));
    const QTableWidgetItem* path = parts.table->item(row, 1);
    QCOMPARE(path->text(), QString("//srv/own"));
    QCOMPARE(path->toolTip(), QString("//srv/own"));
    QVERIFY(path->textAlignment() & Qt::AlignRight);
}

void tst_RecordingFolderAssignmentDialog::tableOfOthersFolders()
{
    const Dialog dialog("other", nullptr);
    QCOMPARE(rows(Parts(&dialog).table), QStringList({"free", "taken"}));
    m_db->removeNodeRelation("other", "taken", RecordingFolderRelation);
    const Dialog again("other", nullptr);
    QCOMPARE(rows(Parts(&again).table), QStringList({"free", "taken"}));
}

void tst_RecordingFolderAssignmentDialog::insertedFolders()
{
    const Dialog dialog("cam", nullptr);
    const Parts parts(&dialog);
    m_db->addCamera("cam2", "A camera");
    emit m_db->nodeInserted("cam2");
    emit m_db->nodeInserted("gone");
    emit m_db->nodeInserted("below");
    QCOMPARE(rows(parts.table), QStringList({"free", "own"}));
    addFolder("aaa", "//srv/aaa");
    emit m_db->nodeInserted("aaa");
    QCOMPARE(rows(parts.table), QStringList({"aaa", "free", "own"}));
    QCOMPARE(parts.table->item(parts.table->currentRow(), 2)->text(), QString("aaa"));
    QVERIFY(parts.table->isSortingEnabled());
}

void tst_RecordingFolderAssignmentDialog::updatedFolder()
{
    const Dialog dialog("cam", nullptr);
    const Parts parts(&dialog);
    Node* folder = m_db->beginUpdateNode("free", -1);
    folder->setStringProperty("Name", "zzz");
    folder->setStringProperty("Path", "//new");
    m_db->endUpdateNode(folder);
    const int row = rowOf(parts.table, "free");
    QCOMPARE(parts.table->item(row, 0)->text(), QString("zzz"));
    QCOMPARE(parts.table->item(row, 0)->toolTip(), QString("zzz"));
    QCOMPARE(parts.table->item(row, 1)->text(), QString("//new"));
    emit m_db->nodeUpdated("gone");
    emit m_db->nodeUpdated("cam");
    QCOMPARE(parts.table->rowCount(), 2);
}

void tst_RecordingFolderAssignmentDialog::renamedWhileSorted()
{
    for (int i = 0; i < 20; ++i)
        addFolder(QString("f%1").arg(i), QString("//srv/%1").arg(i));
    const Dialog dialog("cam", nullptr);
    const Parts parts(&dialog);
    for (int i = 0; i < 20; ++i) {
        Node* folder = m_db->beginUpdateNode(QString("f%1").arg(i), -1);
        folder->setStringProperty("Name", QString("renamed %1").arg(i * 7 % 20));
        folder->setStringProperty("Path", QString("//renamed/%1").arg(i));
        m_db->endUpdateNode(folder);
    }
    for (int i = 0; i < 20; ++i) {
        const int row = rowOf(parts.table, QString("f%1").arg(i));
        QCOMPARE(parts.table->item(row, 0)->text(), QString("renamed %1").arg(i * 7 % 20));
        QCOMPARE(parts.table->item(row, 1)->text(), QString("//renamed/%1").arg(i));
    }
}

void tst_RecordingFolderAssignmentDialog::removedFolder()
{
    const Dialog dialog("cam", nullptr);
    const Parts parts(&dialog);
    m_db->removeNode("free");
    QCOMPARE(rows(parts.table), QStringList("own"));
    emit m_db->nodeRemoved("gone");
    QCOMPARE(rows(parts.table), QStringList("own"));
}

void tst_RecordingFolderAssignmentDialog::namesAndPathsAreText()
{
    m_db->addNode(RecordingFolderType, "odd", "<b>%1</b> & Co").setStringProperty("Path", "//srv/<i>%2</i>");
    setUsage(2);
    Dialog dialog("cam", nullptr);
    dialog.show();
    const Parts parts(&dialog);
    click(parts.more);
    const int row = rowOf(parts.table, "odd");
    const QString texts[] = {"<b>%1</b> & Co", "//srv/<i>%2</i>"};
    for (int column = 0; column < 2; ++column) {
        const QTableWidgetItem* cell = parts.table->item(row, column);
        QCOMPARE(cell->text(), texts[column]);
        QTextDocument toolTip;
        toolTip.setHtml(cell->toolTip());
        QVERIFY(Qt::mightBeRichText(cell->toolTip()));
        QCOMPARE(toolTip.toPlainText(), texts[column]);
    }
    parts.table->setCurrentCell(row, 0);
    click(parts.apply);
    QCOMPARE(parts.path->text(), texts[1]);
}

void tst_RecordingFolderAssignmentDialog::manyFoldersOpenFast()
{
    const int count = 10000;
    for (int i = 0; i < count; ++i)
        addFolder(QString("f%1").arg(i), QString("//srv/%1").arg(i * 7919 % count));
    qint64 ours = std::numeric_limits<qint64>::max();
    qint64 plain = ours;
    for (int run = 0; run < 3; ++run) {
        QElapsedTimer timer;
        timer.start();
        const Dialog dialog("cam", nullptr);
        ours = qMin(ours, timer.nsecsElapsed());
        const QTableWidget* filled = Parts(&dialog).table;
        QCOMPARE(filled->rowCount(), count + 2);
        QVERIFY(filled->isSortingEnabled());

        QTableWidget table(0, 3);
        timer.start();
        for (int row = 0; row < filled->rowCount(); ++row) {
            table.insertRow(row);
            for (int column = 0; column < 3; ++column)
                table.setItem(row, column, new QTableWidgetItem(filled->item(row, column)->text()));
        }
        plain = qMin(plain, timer.nsecsElapsed());
    }
    const QString times = QString("%1 ms, a plain table %2 ms").arg(ours / 1000000).arg(plain / 1000000);
    qInfo("%d folders: %s", count, qPrintable(times));
    // Sorting at each row costs fifty times a plain table. The benchmark has the bound for release builds.
    // Sanitizers look at our side alone.
    QVERIFY2(double(ours) < 8 * Slowness * double(plain), qPrintable(times));
}

void tst_RecordingFolderAssignmentDialog::manyChangesAreSortedOnce()
{
    const int count = 3000;
    for (int i = 0; i < count; ++i)
        addFolder(QString("f%1").arg(i), QString("//srv/%1").arg(i));
    const Dialog dialog("cam", nullptr);
    const QTableWidget* table = Parts(&dialog).table;
    const QSignalSpy sorted(table->model(), SIGNAL(layoutChanged()));
    for (int i = 0; i < 1000; ++i) {
        Node* folder = m_db->beginUpdateNode(QString("f%1").arg(i), -1);
        folder->setStringProperty("Name", QString("renamed %1").arg(i * 7919 % 1000, 4, 10, QChar('0')));
        m_db->endUpdateNode(folder);
    }
    for (int i = 1000; i < 1500; ++i)
        m_db->removeNode(QString("f%1").arg(i));
    for (int i = 0; i < 500; ++i) {
        addFolder(QString("new%1").arg(i), "//new");
        emit m_db->nodeInserted(QString("new%1").arg(i));
    }
    QTRY_COMPARE(table->item(table->currentRow(), 2)->text(), QString("new499"));
    QCOMPARE(table->rowCount(), count + 2);
    QVERIFY2(sorted.count() <= 3, qPrintable(QString::number(sorted.count())));
    QString before;
    for (int row = 0; row < table->rowCount(); ++row) {
        const QString id = table->item(row, 2)->text();
        const kom::smart<const Node> node = m_db->node(id);
        QVERIFY2(!node.null(), qPrintable(id));
        QCOMPARE(table->item(row, 0)->text(), node->name());
        QVERIFY2(compareNaturally(before, node->name(), Qt::CaseInsensitive) <= 0, qPrintable(node->name()));
        before = node->name();
    }
}

void tst_RecordingFolderAssignmentDialog::changesOfOneFolder()
{
    for (int i = 0; i < 3000; ++i)
        addFolder(QString("f%1").arg(i), "//srv");
    const Dialog dialog("cam", nullptr);
    const QTableWidget* table = Parts(&dialog).table;
    emit m_db->nodeUpdated("f0"); // the others wait from here on
    emit m_db->nodeRemoved("f1");
    emit m_db->nodeInserted("f1");
    emit m_db->nodeInserted("f2");
    addFolder("came and went", "//srv");
    emit m_db->nodeInserted("came and went");
    emit m_db->nodeUpdated("came and went");
    emit m_db->nodeRemoved("came and went");
    emit m_db->nodeRemoved("f3");
    emit m_db->nodeUpdated("f3");
    QTRY_COMPARE(rowOf(table, "f3"), -1);
    QCOMPARE(table->rowCount(), 3001);
    QVERIFY(rowOf(table, "f1") >= 0);
    QCOMPARE(rowOf(table, "came and went"), -1);
}

/// Together, also where they are sorted to the top.
void tst_RecordingFolderAssignmentDialog::descendingRowsGo()
{
    const int count = 3000;
    for (int i = 0; i < count; ++i)
        addFolder(QString("f%1").arg(i), "//srv");
    const Dialog dialog("cam", nullptr);
    QTableWidget* table = Parts(&dialog).table;
    table->sortByColumn(0, Qt::DescendingOrder);
    table->setCurrentCell(rowOf(table, "own"), 0);
    for (int i = 0; i < count; ++i)
        m_db->removeNode(QString("f%1").arg(i));
    QTRY_COMPARE(rows(table), QStringList({"free", "own"}));
    QCOMPARE(table->item(table->currentRow(), 2)->text(), QString("own"));
    QCOMPARE(table->item(0, 2)->text(), QString("own"));
}

void tst_RecordingFolderAssignmentDialog::expandAndCollapse_data()
{
    QTest::addColumn<int>("spacing");
    QTest::addColumn<bool>("computed");
    QTest::newRow("one spacing") << 7 << false;
    QTest::newRow("one for each pair") << 11 << true;
}

void tst_RecordingFolderAssignmentDialog::expandAndCollapse()
{
    QFETCH(int, spacing);
    QFETCH(bool, computed);
    const QString usual = QApplication::style()->objectName();
    QApplication::setStyle(new SpacingStyle(spacing, computed));
    const auto restored = qScopeGuard([&] { QApplication::setStyle(usual); });
    setUsage(2);
    Dialog dialog("cam", nullptr);
    dialog.show();
    const Parts parts(&dialog);
    const QMargins margins = dialog.layout()->contentsMargins();
    const int collapsed = margins.top() + 2 * spacing + margins.bottom() +
                          child<QGroupBox>(&dialog, "groupBox")->sizeHint().height() +
                          child<QDialogButtonBox>(&dialog, "buttonBox")->sizeHint().height();
    QCOMPARE(dialog.height(), collapsed);
    QCOMPARE(dialog.maximumHeight(), collapsed);
    QCOMPARE(testsupport::cutOff(&dialog), QStringList());
    const int width = dialog.width();
    click(parts.more);
    QVERIFY(parts.folders->isVisible());
    QCOMPARE(parts.more->text(), QString("Less..."));
    QCOMPARE(dialog.maximumHeight(), 16777215);
    QVERIFY(dialog.height() > collapsed);
    QCOMPARE(dialog.width(), width);
    const int half = (parts.table->viewport()->width() - parts.table->verticalHeader()->width()) / 2;
    QVERIFY(qAbs(parts.table->columnWidth(0) - half) <= 1);
    QVERIFY(qAbs(parts.table->columnWidth(1) - half) <= 1);
    click(parts.more);
    QVERIFY(!parts.folders->isVisible());
    QCOMPARE(parts.more->text(), QString("More..."));
    QCOMPARE(dialog.height(), collapsed);
}

void tst_RecordingFolderAssignmentDialog::otherChoiceCollapses()
{
    setUsage(2);
    Dialog dialog("cam", nullptr);
    dialog.show();
    const Parts parts(&dialog);
    const int collapsed = dialog.height();
    click(parts.more);
    click(parts.global);
    QVERIFY(!parts.more->isEnabled());
    QVERIFY(!parts.folders->isVisible());
    QCOMPARE(parts.more->text(), QString("More..."));
    QCOMPARE(dialog.height(), collapsed);
    click(parts.own);
    QVERIFY(parts.more->isEnabled());
    QVERIFY(!parts.folders->isVisible());
    click(parts.viaCamera);
    QVERIFY(!parts.more->isEnabled());
}

void tst_RecordingFolderAssignmentDialog::transponderButton()
{
    Dialog dialog("cam", nullptr);
    dialog.show();
    const Parts parts(&dialog);
    QVERIFY(!parts.settings->isEnabled());
    click(parts.transponder);
    QVERIFY(parts.settings->isEnabled());
    parts.transponder->setCheckState(Qt::PartiallyChecked);
    QVERIFY(!parts.settings->isEnabled());
}

void tst_RecordingFolderAssignmentDialog::transponderDialog()
{
    Dialog dialog("cam", nullptr);
    dialog.show();
    click(Parts(&dialog).transponder);
    {
        const ModalAnswer none([](QDialog*) {});
        click(Parts(&dialog).settings);
        QVERIFY(!none.fired());
    }
    m_db->addNodeRelation("cam", "preview", RecordingTransponderRelation);
    QString name;
    const ModalAnswer answer([&name](QDialog* opened) {
        name = QLatin1String(opened->metaObject()->className());
        opened->accept();
    });
    click(Parts(&dialog).settings);
    QCOMPARE(name, QString("ko::RecordingTransponderCustomSettingsDialog"));
}

void tst_RecordingFolderAssignmentDialog::applyTakesTheRow()
{
    setUsage(2);
    Dialog dialog("cam", nullptr);
    dialog.show();
    const Parts parts(&dialog);
    click(parts.more);
    parts.table->setCurrentCell(rowOf(parts.table, "free"), 0);
    click(parts.apply);
    QCOMPARE(parts.path->text(), QString("//srv/free"));
    QVERIFY(!parts.folders->isVisible());
    QVERIFY(m_db->calls.isEmpty());
    click(parts.ok);
    QCOMPARE(m_db->relatedNodes("cam", RecordingFolderRelation), QStringList("free"));
    QCOMPARE(m_db->nodeIdList(RecordingFolderType).size(), 4);
}

void tst_RecordingFolderAssignmentDialog::applyWithoutRow()
{
    setUsage(2);
    Dialog dialog("cam", nullptr);
    dialog.show();
    const Parts parts(&dialog);
    click(parts.more);
    parts.table->setCurrentCell(-1, -1);
    const Box box;
    click(parts.apply);
    QCOMPARE(box.told, QString("No entry selected: Please select an entry."));
    QCOMPARE(box.icon, QMessageBox::Information);
    QVERIFY(parts.folders->isVisible());
}

void tst_RecordingFolderAssignmentDialog::onlyRowNeedsNoSelection()
{
    setUsage(2);
    m_db->removeNode("free");
    Dialog dialog("cam", nullptr);
    dialog.show();
    const Parts parts(&dialog);
    click(parts.more);
    parts.table->setCurrentCell(-1, -1);
    QCOMPARE(parts.table->rowCount(), 1);
    parts.path->setText("x");
    click(parts.apply);
    QCOMPARE(parts.path->text(), QString("//srv/own"));
}

void tst_RecordingFolderAssignmentDialog::typedPathMakesANewFolder()
{
    setUsage(2);
    Dialog dialog("cam", nullptr);
    dialog.show();
    const Parts parts(&dialog);
    click(parts.more);
    parts.table->setCurrentCell(rowOf(parts.table, "free"), 0);
    click(parts.apply);
    parts.path->setFocus();
    parts.path->selectAll();
    QTest::keyClicks(parts.path, "//srv/typed");
    QTest::keyClick(parts.path, Qt::Key_Return); // also presses OK
    QVERIFY(!dialog.isVisible());
    const QStringList folders = m_db->relatedNodes("cam", RecordingFolderRelation);
    QCOMPARE(folders.size(), 1);
    QVERIFY(!QStringList({"own", "free"}).contains(folders.constFirst()));
    QCOMPARE(testsupport::FolderHost::text(*m_db->node(folders.constFirst()), "Path"),
             QString("//srv/typed"));
    QCOMPARE(testsupport::FolderHost::text(*m_db->node("free"), "Path"), QString("//srv/free"));
}

void tst_RecordingFolderAssignmentDialog::sameTextKeepsTheFolder()
{
    setUsage(2);
    Dialog dialog("cam", nullptr);
    dialog.show();
    const Parts parts(&dialog);
    QTest::keyClicks(parts.path, "x");
    QTest::keyClick(parts.path, Qt::Key_Backspace);
    click(parts.ok);
    QCOMPARE(m_db->relatedNodes("cam", RecordingFolderRelation), QStringList("own"));
}

void tst_RecordingFolderAssignmentDialog::addMakesAFolder()
{
    const QTemporaryDir folder;
    KoFFSDevice::setProbe([](const std::wstring& path) { return kom::makeSmart<CKoFFSVolume>(path); });
    setUsage(2);
    Dialog dialog("cam", nullptr);
    dialog.show();
    const Parts parts(&dialog);
    click(parts.more);
    QString title;
    const ModalAnswer answer([&title, &folder](QDialog* chooser) {
        title = chooser->windowTitle();
        auto* files = qobject_cast<QFileDialog*>(chooser);
        files->setDirectory(folder.path());
        child<QLineEdit>(files, "fileNameEdit")->setText(folder.path());
        chooser->accept();
    });
    click(parts.add);
    QCOMPARE(title, QString("Select path of recording folder"));
    QStringList calls = m_db->madeCalls();
    QCOMPARE(calls,
             QStringList({"createNodeHint(0)", "setName(" + folder.path() + ")",
                          "addProperty(Path," + folder.path() + ")", "addProperty(UseGlobalPath,false)",
                          "addProperty(KoFFS,true)", "newNodeHint(" + folder.path() + ")"}));
    QCOMPARE(parts.table->rowCount(), 3);
    QCOMPARE(parts.table->item(parts.table->currentRow(), 1)->text(), folder.path());
}

void tst_RecordingFolderAssignmentDialog::addCancelled()
{
    setUsage(2);
    Dialog dialog("cam", nullptr);
    dialog.show();
    click(Parts(&dialog).more);
    const ModalAnswer answer([](QDialog* chooser) { chooser->reject(); });
    click(Parts(&dialog).add);
    QVERIFY(answer.fired());
    QVERIFY(m_db->calls.isEmpty());
}

void tst_RecordingFolderAssignmentDialog::addWithoutDriver()
{
    m_db->defineType(RecordingFolderType, "Recording folder", testsupport::FolderHost::NoDriver);
    setUsage(2);
    Dialog dialog("cam", nullptr);
    dialog.show();
    click(Parts(&dialog).more);
    std::unique_ptr<Box> box;
    const ModalAnswer answer([&box](QDialog* chooser) {
        chooser->accept();
        box = std::make_unique<Box>();
    });
    click(Parts(&dialog).add);
    QVERIFY(box);
    QCOMPARE(box->told, QString("Critical error: Node driver (RecordingFolderNode) is missing."));
    QCOMPARE(box->icon, QMessageBox::Critical);
    QVERIFY(m_db->calls.isEmpty());
}

void tst_RecordingFolderAssignmentDialog::editOpensTheDialog()
{
    setUsage(2);
    Dialog dialog("cam", nullptr);
    dialog.show();
    const Parts parts(&dialog);
    click(parts.more);
    parts.table->setCurrentCell(rowOf(parts.table, "free"), 0);
    QString name;
    unsigned flags = 0;
    m_db->setUpInspector = [&flags](testsupport::SmallInspector* inspector) { flags = inspector->flags(); };
    const ModalAnswer answer([&name](QDialog* opened) {
        name = QLatin1String(opened->metaObject()->className());
        opened->reject();
    });
    click(parts.edit);
    QCOMPARE(name, QString("ko::EditNodeDialog"));
    QCOMPARE(flags, 17u);
}

void tst_RecordingFolderAssignmentDialog::editWithoutRow()
{
    setUsage(2);
    Dialog dialog("cam", nullptr);
    dialog.show();
    click(Parts(&dialog).more);
    Parts(&dialog).table->setCurrentCell(-1, -1);
    const Box box;
    click(Parts(&dialog).edit);
    QCOMPARE(box.told, QString("No entry selected: Please select an entry."));
}

void tst_RecordingFolderAssignmentDialog::removeAsksFirst_data()
{
    QTest::addColumn<bool>("confirmed");
    QTest::newRow("OK") << true;
    QTest::newRow("Cancel") << false;
}

void tst_RecordingFolderAssignmentDialog::removeAsksFirst()
{
    QFETCH(bool, confirmed);
    setUsage(2);
    Dialog dialog("cam", nullptr);
    dialog.show();
    const Parts parts(&dialog);
    click(parts.more);
    parts.table->setCurrentCell(rowOf(parts.table, "free"), 0);
    const Box box(confirmed ? QMessageBox::Ok : QMessageBox::Cancel);
    click(parts.remove);
    QCOMPARE(box.told, QString("Remove node: You are going to remove a node.\nThis action is not "
                               "reversible.\nContinue anyway?"));
    QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Ok | QMessageBox::Cancel));
    QCOMPARE(m_db->calls, confirmed ? QStringList("removeNode(free)") : QStringList());
    QCOMPARE(rowOf(parts.table, "free") < 0, confirmed);
}

void tst_RecordingFolderAssignmentDialog::internalRecorderStays()
{
    m_db->defineType(InternalRecorderType, "Internal recorder");
    m_db->addNode(InternalRecorderType, "recorder", "Recorder");
    setUsage(2);
    Dialog dialog("cam", nullptr);
    dialog.show();
    const Parts parts(&dialog);
    click(parts.more);
    parts.table->item(rowOf(parts.table, "free"), 2)->setText("recorder"); // as an older database lists it
    parts.table->setCurrentCell(rowOf(parts.table, "recorder"), 0);
    const Box box;
    click(parts.remove);
    QCOMPARE(box.told, QString("Invalid action: You cannot remove the internal recorder."));
    QVERIFY(m_db->calls.isEmpty());
}

void tst_RecordingFolderAssignmentDialog::okViaCamera()
{
    setUsage(2);
    Dialog dialog("cam", nullptr);
    dialog.show();
    click(Parts(&dialog).viaCamera);
    click(Parts(&dialog).transponder);
    click(Parts(&dialog).ok);
    QCOMPARE(m_db->node("cam")->intProperty("RecordingStorageUsage", -1), 0);
    QVERIFY(m_db->node("cam")->boolProperty("UseRecordingTransponder", false));
    QCOMPARE(m_db->relatedNodes("cam", RecordingFolderRelation), QStringList("own")); // stays
}

void tst_RecordingFolderAssignmentDialog::okBelowTheDefaultPath()
{
    Dialog dialog("cam", nullptr);
    dialog.show();
    click(Parts(&dialog).global);
    click(Parts(&dialog).ok);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(m_db->node("cam")->intProperty("RecordingStorageUsage", -1), 1);
    const QStringList folders = m_db->relatedNodes("cam", RecordingFolderRelation);
    QCOMPARE(folders.size(), 1);
    QCOMPARE(testsupport::FolderHost::text(*m_db->node(folders.constFirst()), "Path"), QString("10_0_0_7"));
}

void tst_RecordingFolderAssignmentDialog::okNeedsTheDefaultPath()
{
    m_db->recordingFolderPath.clear();
    Dialog dialog("cam", nullptr);
    dialog.show();
    click(Parts(&dialog).global);
    const Box box;
    click(Parts(&dialog).ok);
    QCOMPARE(box.told, QString("Default file server path not set: Please define the default file server path "
                               "before setting this option."));
    QCOMPARE(box.icon, QMessageBox::Warning);
    QVERIFY(dialog.isVisible());
    QVERIFY(Parts(&dialog).global->isChecked());
    QVERIFY(m_db->calls.isEmpty());
}

void tst_RecordingFolderAssignmentDialog::okNeedsTheFactoryExtension()
{
    Node* camera = m_db->beginUpdateNode("cam", -1);
    camera->setStringProperty("FactoryIP", "");
    m_db->endUpdateNode(camera);
    m_db->clearCalls();
    Dialog dialog("cam", nullptr);
    dialog.show();
    click(Parts(&dialog).global);
    const Box box;
    click(Parts(&dialog).ok);
    QCOMPARE(box.told, QString("Factory extension unknown: You cannot use this option until the factory "
                               "extension is known."));
    QVERIFY(dialog.isVisible());
    QVERIFY(m_db->calls.isEmpty());
}

void tst_RecordingFolderAssignmentDialog::okNeedsAFolder()
{
    Dialog dialog("cam", nullptr); // via camera: nothing is selected yet
    dialog.show();
    click(Parts(&dialog).own);
    const Box box;
    click(Parts(&dialog).ok);
    QCOMPARE(box.told,
             QString("No recording folder assigned: Please assign a recording folder to the camera."));
    QVERIFY(dialog.isVisible());
    QVERIFY(m_db->calls.isEmpty());
}

void tst_RecordingFolderAssignmentDialog::okKeepsTheCredentials()
{
    Node* folder = m_db->beginUpdateNode("own", -1);
    folder->setStringProperty("User", "rec");
    folder->setStringProperty("Password", "p@#!");
    m_db->endUpdateNode(folder);
    setUsage(2);
    Dialog dialog("cam", nullptr);
    dialog.show();
    click(Parts(&dialog).ok);
    QVERIFY(m_db->calls.contains("setStringProperty(User,rec)"));
    QVERIFY(m_db->calls.contains("setStringProperty(Password,p@#!)"));
    QCOMPARE(testsupport::FolderHost::text(*m_db->node("own"), "Password"), QString("p@#!"));
}

void tst_RecordingFolderAssignmentDialog::cancelWritesNothing()
{
    setUsage(2);
    Dialog dialog("cam", nullptr);
    dialog.show();
    click(Parts(&dialog).viaCamera);
    click(Parts(&dialog).transponder);
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QVERIFY(!dialog.isVisible());
    QVERIFY(m_db->calls.isEmpty());
}

KO_TEST_MAIN(tst_RecordingFolderAssignmentDialog)
#include "tst_recordingfolderassignmentdialog.moc"
