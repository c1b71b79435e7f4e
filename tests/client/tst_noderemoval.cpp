#include "client/WindowFixture.h"
#include "database/StoredHistory.h"
#include "support/TestMain.h"

#include "NodeRemoval.h"
#include "utils/NodeDBUtils.h"

#include <QCheckBox>
#include <QLabel>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QStatusBar>
#include <QThread>

using namespace ko;
using testsupport::child;
using testsupport::ModalAnswer;

/// Removing nodes from the list, and what is left of them.
class tst_NodeRemoval : public QObject, protected testsupport::WindowFixture
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { closeWindow(); }

    void foldersGoWithTheirCameras();
    void foldersCanStay();
    void sharedFoldersStay();
    void undoneFromTheStatusBar();
    void manyShowProgress();
    void devicesComeFirst();

private:
    QString folderFor(const QString& camera, const QString& path) const;
    QString remove(const QStringList& names, bool withFolders = true);
    QStringList names() const;

    QString m_north;
    QString m_south;
};

void tst_NodeRemoval::init()
{
    openWindow();
    m_north = m_host->db()->nodeIdList(IPDeviceType).value(0);
    m_south = m_host->db()->nodeIdList(IPDeviceType).value(1);
}

/// Identifier of an individual folder that the camera gets.
QString tst_NodeRemoval::folderFor(const QString& camera, const QString& path) const
{
    QString folder;
    NodeDBUtils::configurePlayerSource(camera, 2, false, folder, path, QString(), QString());
    m_host->db()->flush();
    m_window->applyChanges();
    return m_host->db()->relatedNodes(camera, RecordingFolderRelation).value(0);
}

/// Returns what was asked.
QString tst_NodeRemoval::remove(const QStringList& names, bool withFolders)
{
    QString text;
    select(names);
    const ModalAnswer answer([&](QDialog* dialog) {
        text = qobject_cast<QMessageBox*>(dialog)->text();
        if (auto* folders = dialog->findChild<QCheckBox*>())
            folders->setChecked(withFolders);
        ModalAnswer::press("Remove")(dialog);
    });
    trigger("actionRemove");
    m_window->applyChanges();
    m_host->db()->flush();
    return text;
}

QStringList tst_NodeRemoval::names() const
{
    QStringList names;
    const QVector<NodeSummary> all = m_host->db()->summaries();
    for (const NodeSummary& node : all)
        names.append(node.name);
    return names;
}

void tst_NodeRemoval::foldersGoWithTheirCameras()
{
    const QString folder = folderFor(m_north, "//server/north");
    folderFor(m_south, "//server/south");
    const qint64 before = m_host->db()->history().changeSets(0, 1000).constLast().number;
    const QString asked = remove({"Gate north"});
    QVERIFY2(asked.contains("//server/north") && !asked.contains("//server/south"), qPrintable(asked));
    QVERIFY(m_host->db()->summary(folder).id.isEmpty());
    QVERIFY(names().contains("//server/south"));
    QVERIFY(names().contains("Archive")); // which nobody used before either
    QCOMPARE(m_host->db()->history().changeSets(before, 1000).size(), 1);
}

void tst_NodeRemoval::foldersCanStay()
{
    const QString folder = folderFor(m_north, "//server/north");
    remove({"Gate north"}, false);
    QVERIFY(m_host->db()->summary(m_north).id.isEmpty());
    QCOMPARE(m_host->db()->summary(folder).id, folder);
}

void tst_NodeRemoval::sharedFoldersStay()
{
    const QString folder = folderFor(m_north, "//server/both");
    m_host->db()->addNodeRelation(m_south, folder, RecordingFolderRelation);
    QVERIFY(!remove({"Gate north"}).contains("//server/both"));
    QCOMPARE(m_host->db()->summary(folder).id, folder);
    QVERIFY(remove({"Gate south"}).contains("//server/both"));
    QVERIFY(m_host->db()->summary(folder).id.isEmpty());
}

void tst_NodeRemoval::undoneFromTheStatusBar()
{
    const QString folder = folderFor(m_north, "//server/north");
    auto* undo = child<QPushButton>(m_window.get(), "undoButton");
    QVERIFY(!undo->isVisible());
    remove({"Gate north"});
    QVERIFY(m_window->statusBar()->currentMessage().startsWith("2 node"));
    QVERIFY(undo->isVisible());
    QTRY_VERIFY(child<QAction>(m_window.get(), "actionUndo")->isEnabled());
    const ModalAnswer answer([](QDialog* dialog) { dialog->accept(); });
    undo->click();
    QVERIFY(answer.fired());
    QCOMPARE(m_host->db()->relatedNodes(m_north, RecordingFolderRelation), QStringList(folder));
    QVERIFY(!undo->isVisible()); // something else is said now
}

/// And can be ended; what is gone then is one step to undo.
void tst_NodeRemoval::manyShowProgress()
{
    for (int i = 0; i < 2000; ++i)
        m_host->add(IPDeviceType, QString("Camera %1").arg(i),
                    QString("10.1.%1.%2").arg(i / 250).arg(i % 250));
    m_host->db()->flush();
    m_window->applyChanges();
    m_view->selectAll();
    const int before = int(m_host->db()->summaries().size());
    // Somebody who takes time with each, as long as ten thousand take on a fast machine.
    connect(m_host->db(), &NodeDB::nodeRemoved, m_window.get(), [] { QThread::usleep(500); });
    QTimer watch;
    connect(&watch, &QTimer::timeout, this, [this] {
        if (auto* work = m_window->findChild<QProgressDialog*>("longWork"))
            work->cancel();
    });
    const ModalAnswer answer([&](QDialog* dialog) {
        watch.start(0);
        ModalAnswer::press("Remove")(dialog);
    });
    trigger("actionRemove");
    const int after = int(m_host->db()->summaries().size());
    QVERIFY2(after > 0 && after < before, qPrintable(QString("%1 of %2").arg(after).arg(before)));
}

void tst_NodeRemoval::devicesComeFirst()
{
    folderFor(m_north, "//server/north");
    QStringList shown;
    for (int row = 0; row < m_view->model()->rowCount(); ++row)
        shown.append(m_view->model()->index(row, NodeListModel::NameColumn).data().toString());
    QCOMPARE(shown,
             QStringList({"Gate north", "Gate south", "Yard", "//server/north", "Archive", "Overview"}));
    bool isCounted = false;
    const auto labels = m_window->statusBar()->findChildren<QLabel*>();
    for (const QLabel* label : labels)
        isCounted = isCounted || label->text() == "Devices: 3, other nodes: 3; shown: 6, selected: 0";
    QVERIFY(isCounted);
}

KO_TEST_MAIN(tst_NodeRemoval)
#include "tst_noderemoval.moc"
