#include "dialogs/RecordingFolderAssignmentDialog.h"
#include "support/HostFixture.h"
#include "support/ModalAnswer.h"
#include "support/TestMain.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>

using namespace ko;
using testsupport::child;
using testsupport::ModalAnswer;

typedef RecordingFolderAssignmentDialog Dialog;

namespace {

void press(const QWidget* dialog, const char* button)
{
    child<QAbstractButton>(dialog, button)->click();
}

void confirm(const QWidget* dialog)
{
    child<QDialogButtonBox>(dialog, "buttonBox")->button(QDialogButtonBox::Ok)->click();
}

int rowOf(const QWidget* dialog, const QString& id)
{
    const auto* table = child<QTableWidget>(dialog, "relatedNodesWidget");
    for (int row = 0; row < table->rowCount(); ++row) {
        if (table->item(row, 2)->text() == id)
            return row;
    }
    return -1;
}

} // namespace

/// The dialog on the real database: what is left after a restart.
class tst_RecordingAssignment : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_host.reset(); }

    void typedPathIsStored();
    void samePathTwiceIsOneFolder();
    void appliedFolderIsStored();
    void folderOfAnotherCameraIsNotListed();
    void olderUsageIsStoredAtOnce();
    void tableFollowsTheDatabase();
    void removedFolderIsGone();
    void editedFolderIsStored();

private:
    QString addFolder(const QString& path);
    QString text(const QString& id, const char* key) const;
    QStringList folders() const { return m_host->db()->relatedNodes(m_camera, RecordingFolderRelation); }
    void assign(const QString& path) const;

    std::unique_ptr<testsupport::HostFixture> m_host;
    QString m_camera;
};

void tst_RecordingAssignment::init()
{
    m_host = std::make_unique<testsupport::HostFixture>();
    m_camera = m_host->add(IPDeviceType, "Gate", "10.0.0.7");
    QVERIFY(!m_camera.isEmpty());
}

QString tst_RecordingAssignment::addFolder(const QString& path)
{
    const QString id = m_host->add(RecordingFolderType, path);
    m_host->change(id, [&path](Node* node) { node->setStringProperty("Path", path); });
    return id;
}

QString tst_RecordingAssignment::text(const QString& id, const char* key) const
{
    const kom::smart<const Node> node = m_host->db()->node(id);
    return node.null() ? QString("(no node)") : node->stringProperty(QLatin1String(key), "(no value)");
}

void tst_RecordingAssignment::assign(const QString& path) const
{
    Dialog dialog(m_camera, nullptr);
    dialog.show();
    press(&dialog, "cameraFileserverPathRadioButton");
    auto* field = child<QLineEdit>(&dialog, "fileServerPathLineEdit");
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, path);
    QTest::keyClick(field, Qt::Key_Return); // also presses OK
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
}

void tst_RecordingAssignment::typedPathIsStored()
{
    assign("//srv/<b>%1");
    m_host->reopen();
    QCOMPARE(folders().size(), 1);
    QCOMPARE(text(folders().at(0), "Path"), QString("//srv/<b>%1"));
    QCOMPARE(text(folders().at(0), "CameraID"), m_camera);
    QCOMPARE(m_host->db()->node(m_camera)->intProperty("RecordingStorageUsage", -1), 2);
}

void tst_RecordingAssignment::samePathTwiceIsOneFolder()
{
    assign("//srv/a");
    const QStringList first = folders();
    assign("//srv/b");
    QCOMPARE(folders().size(), 1);
    QVERIFY(folders() != first);
    assign("//srv/a");
    QCOMPARE(folders(), first);
    QCOMPARE(m_host->db()->nodeIdList(RecordingFolderType).size(), 2);
}

void tst_RecordingAssignment::appliedFolderIsStored()
{
    const QString folder = addFolder("//srv/free");
    m_host->change(folder, [](Node* node) {
        node->setStringProperty("User", "rec");
        node->setStringProperty("Password", "p@#!");
    });
    Dialog dialog(m_camera, nullptr);
    dialog.show();
    press(&dialog, "cameraFileserverPathRadioButton");
    press(&dialog, "moreButton");
    child<QTableWidget>(&dialog, "relatedNodesWidget")->setCurrentCell(rowOf(&dialog, folder), 0);
    press(&dialog, "applyButton");
    press(&dialog, "recordingTransponderCheckBox");
    confirm(&dialog);
    m_host->reopen();
    QCOMPARE(folders(), QStringList(folder));
    QCOMPARE(text(folder, "User"), QString("rec"));
    QCOMPARE(text(folder, "Password"), QString("p@#!"));
    QVERIFY(m_host->db()->node(m_camera)->boolProperty("UseRecordingTransponder", false));
}

void tst_RecordingAssignment::folderOfAnotherCameraIsNotListed()
{
    const QString free = addFolder("//srv/free");
    assign("//srv/mine");
    const QString other = m_host->add(IPDeviceType, "Yard", "10.0.0.8");
    const Dialog ofOther(other, nullptr);
    QCOMPARE(child<QTableWidget>(&ofOther, "relatedNodesWidget")->rowCount(), 1);
    QCOMPARE(rowOf(&ofOther, free), 0);
    const Dialog mine(m_camera, nullptr);
    QCOMPARE(child<QTableWidget>(&mine, "relatedNodesWidget")->rowCount(), 2);
}

void tst_RecordingAssignment::olderUsageIsStoredAtOnce()
{
    m_host->change(m_camera, [](Node* node) { node->setIntProperty("RecordingStorageUsage", 3); });
    {
        Dialog dialog(m_camera, nullptr);
        QVERIFY(child<QRadioButton>(&dialog, "globalPathRadioButton")->isChecked());
        QVERIFY(child<QCheckBox>(&dialog, "recordingTransponderCheckBox")->isChecked());
        dialog.reject();
    }
    m_host->reopen();
    QCOMPARE(m_host->db()->node(m_camera)->intProperty("RecordingStorageUsage", -1), 1);
    QVERIFY(m_host->db()->node(m_camera)->boolProperty("UseRecordingTransponder", false));
}

void tst_RecordingAssignment::tableFollowsTheDatabase()
{
    const Dialog dialog(m_camera, nullptr);
    const auto* table = child<QTableWidget>(&dialog, "relatedNodesWidget");
    const QString second = addFolder("//srv/b");
    const QString first = addFolder("//srv/a");
    QCOMPARE(rowOf(&dialog, first), 0);
    QCOMPARE(rowOf(&dialog, second), 1);
    QCOMPARE(table->currentRow(), 0); // the one that came last
    m_host->change(first, [](Node* node) {
        node->setStringProperty("Name", "//srv/z");
        node->setStringProperty("Path", "//elsewhere");
    });
    QCOMPARE(rowOf(&dialog, first), 1);
    QCOMPARE(table->item(1, 0)->text(), QString("//srv/z"));
    QCOMPARE(table->item(1, 1)->text(), QString("//elsewhere"));
    m_host->db()->removeNode(second);
    QCOMPARE(table->rowCount(), 1);
    QCOMPARE(rowOf(&dialog, first), 0);
}

void tst_RecordingAssignment::removedFolderIsGone()
{
    const QString folder = addFolder("//srv/a");
    const QString kept = addFolder("//srv/b");
    Dialog dialog(m_camera, nullptr);
    dialog.show();
    press(&dialog, "cameraFileserverPathRadioButton");
    press(&dialog, "moreButton");
    child<QTableWidget>(&dialog, "relatedNodesWidget")->setCurrentCell(rowOf(&dialog, folder), 0);
    const ModalAnswer answer(ModalAnswer::press("OK"));
    press(&dialog, "removeButton");
    QVERIFY(answer.fired());
    QCOMPARE(rowOf(&dialog, folder), -1);
    dialog.reject(); // what was removed stays removed
    m_host->reopen();
    QCOMPARE(m_host->db()->nodeIdList(RecordingFolderType), QStringList(kept));
}

void tst_RecordingAssignment::editedFolderIsStored()
{
    const QString folder = addFolder("//srv/a");
    Dialog dialog(m_camera, nullptr);
    dialog.show();
    press(&dialog, "cameraFileserverPathRadioButton");
    press(&dialog, "moreButton");
    QString title;
    const ModalAnswer answer([&title](QDialog* editor) {
        title = editor->windowTitle();
        const QList<QLineEdit*> fields = editor->findChildren<QLineEdit*>();
        for (QLineEdit* field : fields) {
            if (field->text() == "//srv/a")
                field->setText("//srv/edited");
        }
        confirm(editor);
    });
    press(&dialog, "editButton");
    QVERIFY(answer.fired());
    QCOMPARE(text(folder, "Path"), QString("//srv/edited"));
    const int row = rowOf(&dialog, folder);
    QCOMPARE(child<QTableWidget>(&dialog, "relatedNodesWidget")->item(row, 1)->text(),
             QString("//srv/edited"));
}

KO_TEST_MAIN(tst_RecordingAssignment)
#include "tst_recordingassignment.moc"
