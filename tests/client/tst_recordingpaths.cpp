#include "support/Answers.h"
#include "support/HostFixture.h"
#include "support/Patience.h"
#include "support/TestMain.h"

#include "MainWindow.h"
#include "NodeListView.h"
#include "discovery/DeviceIntake.h"
#include "discovery/Scanners.h"
#include "exchange/CameraSurvey.h"
#include "utils/NodeDBUtils.h"

#include <QAbstractItemView>
#include <QAction>
#include <QCompleter>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

using namespace ko;
using testsupport::Answers;
using testsupport::child;
using testsupport::confirm;

/// Where recordings are played from, set in the client's windows for cameras as they come in: by a scan and
/// in a list.
class tst_RecordingPaths : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void manyWithTheDefaultPath();
    void manyWithASpecificPath();
    void oneWithTheDefaultPath_data();
    void oneWithTheDefaultPath();
    void oneWithASpecificPath_data();
    void oneWithASpecificPath();
    void pathsThatThereAreAreOffered();
    void folderOfAServerByItsName();

private:
    void scan();
    void import();
    void access(const QStringList& ids, const char* dialog, const std::function<void(QDialog*)>& answer);
    QString folder(const QString& id) const
    {
        return m_host->db()->relatedNodes(id, RecordingFolderRelation).value(0);
    }
    QString text(const QString& id, const char* key) const
    {
        return m_host->db()->node(id)->stringProperty(key, QString());
    }
    int usage(const QString& id) const { return m_host->db()->summary(id).recordingUsage; }
    void playAgain(const QString& id);

    std::unique_ptr<testsupport::HostFixture> m_host;
    std::unique_ptr<MainWindow> m_window;
    QStringList m_cameras;
};

static QStringList extensions()
{
    return {"00005E000001", "00005E000002", "00005E000003", "00005E000003_2"};
}

void tst_RecordingPaths::init()
{
    m_host = std::make_unique<testsupport::HostFixture>();
    m_host->db()->setGlobalRecordingFolderPath("/recordings");
    scan();
    import();
    m_cameras = m_host->db()->nodeIdList(IPDeviceType);
    QCOMPARE(int(m_cameras.size()), 4);
    m_window = std::make_unique<MainWindow>(*m_host->db());
    m_window->show();
    QCoreApplication::processEvents();
}

void tst_RecordingPaths::cleanup()
{
    m_window.reset();
    m_host.reset();
}

void tst_RecordingPaths::scan()
{
    QVector<DiscoveredDevice> found;
    for (int i = 1; i <= 2; ++i) {
        DiscoveredDevice device;
        device.name = QString("Scanned %1").arg(i);
        device.address = QString("10.0.0.%1").arg(i);
        device.macAddress = QString("00:00:5E:00:00:0%1").arg(i);
        found.append(device);
    }
    DeviceIntake& intake = Scanners::of(*m_host->db()).intake();
    intake.take(found);
    KO_TRY_VERIFY(intake.isIdle());
}

/// Two of one MAC address, as clones have it.
void tst_RecordingPaths::import()
{
    QFile list(m_host->fileName() + ".csv");
    QVERIFY(list.open(QIODevice::WriteOnly));
    list.write("name,address,MAC\nImported 1,10.0.1.1,00005E000003\nImported 2,cam.example,00005E000003\n");
    list.close();
    QCOMPARE(CameraSurvey::importCameras(list.fileName()).added, 2);
}

void tst_RecordingPaths::access(const QStringList& ids, const char* dialog,
                                const std::function<void(QDialog*)>& answer)
{
    m_window->list().selectNodes(ids);
    const Answers answers({answer});
    child<QAction>(m_window.get(), "actionRecording")->trigger();
    QCOMPARE(answers.opened(), QStringList(dialog)); // no question comes before it
}

/// What was stored is what the rules of the library make of it when they are asked again.
void tst_RecordingPaths::playAgain(const QString& id)
{
    QString again = folder(id);
    const QString path = text(again, "Path");
    QVERIFY(!path.isEmpty());
    const int folders = int(m_host->db()->nodeIdList(RecordingFolderType).size());
    NodeDBUtils::configurePlayerSource(id, usage(id), false, again, path, text(again, "User"),
                                       text(again, "Password"));
    QCOMPARE(folder(id), again);
    QCOMPARE(text(again, "Path"), path);
    QCOMPARE(int(m_host->db()->nodeIdList(RecordingFolderType).size()), folders);
}

void tst_RecordingPaths::manyWithTheDefaultPath()
{
    access(m_cameras, "RecordingFolderMassAssignmentDialog", [](QDialog* dialog) {
        child<QRadioButton>(dialog, "defaultFileServerPathRadioButton")->click();
        confirm(dialog);
    });
    for (int i = 0; i < m_cameras.size(); ++i) {
        QCOMPARE(usage(m_cameras.at(i)), int(DefaultPath));
        QCOMPARE(text(folder(m_cameras.at(i)), "Path"), extensions().at(i));
        playAgain(m_cameras.at(i));
    }
}

void tst_RecordingPaths::manyWithASpecificPath()
{
    access(m_cameras, "RecordingFolderMassAssignmentDialog", [](QDialog* dialog) {
        child<QRadioButton>(dialog, "specificFileServerPathRadioButton")->click();
        child<QLineEdit>(dialog, "pathLineEdit")->setText("//server/share");
        child<QLineEdit>(dialog, "userNameLineEdit")->setText("recorder");
        child<QLineEdit>(dialog, "passwordLineEdit")->setText("secret");
        confirm(dialog);
    });
    for (int i = 0; i < m_cameras.size(); ++i) {
        QCOMPARE(usage(m_cameras.at(i)), int(OwnFolder));
        QCOMPARE(text(folder(m_cameras.at(i)), "Path"), "\\\\server/share/" + extensions().at(i));
        QCOMPARE(text(folder(m_cameras.at(i)), "User"), QString("recorder"));
        QCOMPARE(text(folder(m_cameras.at(i)), "Password"), QString("secret"));
        playAgain(m_cameras.at(i));
    }
}

void tst_RecordingPaths::oneWithTheDefaultPath_data()
{
    QTest::addColumn<int>("camera");
    QTest::newRow("scanned") << 0;
    QTest::newRow("imported") << 3;
}

void tst_RecordingPaths::oneWithTheDefaultPath()
{
    QFETCH(int, camera);
    const QString id = m_cameras.at(camera);
    access({id}, "RecordingFolderAssignmentDialog", [](QDialog* dialog) {
        child<QRadioButton>(dialog, "globalPathRadioButton")->click();
        confirm(dialog);
    });
    QCOMPARE(usage(id), int(DefaultPath));
    QCOMPARE(text(folder(id), "Path"), extensions().at(camera));
    playAgain(id);
}

void tst_RecordingPaths::oneWithASpecificPath_data()
{
    oneWithTheDefaultPath_data();
}

void tst_RecordingPaths::oneWithASpecificPath()
{
    QFETCH(int, camera);
    const QString id = m_cameras.at(camera);
    access({id}, "RecordingFolderAssignmentDialog", [](QDialog* dialog) {
        child<QRadioButton>(dialog, "cameraFileserverPathRadioButton")->click();
        auto* path = child<QLineEdit>(dialog, "fileServerPathLineEdit");
        path->setText("//server/gate");
        emit path->editingFinished();
        confirm(dialog);
    });
    QCOMPARE(usage(id), int(OwnFolder));
    QCOMPARE(text(folder(id), "Path"), QString("//server/gate"));
    playAgain(id);
}

void tst_RecordingPaths::pathsThatThereAreAreOffered()
{
    for (const char* path : {"//server/b10", "//server/b9", "elsewhere"}) {
        const QString id = m_host->add(RecordingFolderType, path);
        m_host->change(id, [path](Node* node) { node->setStringProperty("Path", path); });
    }
    const QString id = m_cameras.at(0);
    access({id}, "RecordingFolderAssignmentDialog", [](QDialog* dialog) {
        child<QRadioButton>(dialog, "cameraFileserverPathRadioButton")->click();
        auto* path = child<QLineEdit>(dialog, "fileServerPathLineEdit");
        dialog->activateWindow();
        path->setFocus();
        KO_TRY_VERIFY(path->hasFocus());
        QTest::keyClick(path, Qt::Key_Down);
        const QAbstractItemView* all = path->completer()->popup();
        QVERIFY(all->isVisible());
        QStringList offered;
        for (int row = 0; row < all->model()->rowCount(); ++row)
            offered.append(all->model()->index(row, 0).data().toString());
        QVERIFY2(offered == QStringList({"//server/b9", "//server/b10"}), qPrintable(offered.join(' ')));
        QTest::keyClicks(path->completer()->popup(), "B10");
        QCOMPARE(all->model()->rowCount(), 1);
        QTest::keyClick(path->completer()->popup(), Qt::Key_Down);
        QTest::keyClick(path->completer()->popup(), Qt::Key_Return);
        QCOMPARE(path->text(), QString("//server/b10"));
        confirm(dialog);
    });
    QCOMPARE(text(folder(id), "Path"), QString("//server/b10"));
}

/// Which this computer does not see, as those who play the recordings may.
void tst_RecordingPaths::folderOfAServerByItsName()
{
    const int before = int(m_host->db()->nodeIdList(RecordingFolderType).size());
    const Answers answers({[](QDialog* dialog) {
                               child<QRadioButton>(dialog, "cameraFileserverPathRadioButton")->click();
                               child<QPushButton>(dialog, "moreButton")->click();
                               child<QPushButton>(dialog, "addButton")->click();
                               confirm(dialog);
                           },
                           [](QDialog* folders) {
                               auto* name = child<QLineEdit>(folders, "fileNameEdit");
                               QTest::keyClicks(name, "//server/share");
                               QTest::keyClick(name, Qt::Key_Escape); // what the dialog would complete
                               QTest::keyClick(name, Qt::Key_Return);
                           },
                           [](QDialog* none) { none->accept(); }, // nothing is chosen yet
                           testsupport::cancel});
    m_window->list().selectNodes({m_cameras.at(0)});
    child<QAction>(m_window.get(), "actionRecording")->trigger();
    const QStringList folders = m_host->db()->nodeIdList(RecordingFolderType);
    QCOMPARE(folders.size(), before + 1);
    QCOMPARE(text(folders.last(), "Path"), QString("//server/share"));
}

KO_TEST_MAIN(tst_RecordingPaths)
#include "tst_recordingpaths.moc"
