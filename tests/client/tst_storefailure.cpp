#include "../host/StoreTesting.h"
#include "support/HostFixture.h"
#include "support/ModalAnswer.h"
#include "support/Patience.h"
#include "support/TestMain.h"

#include "MainWindow.h"
#include "audit/AuditLog.h"
#include "dialogs/RecordingFolderMassAssignmentDialog.h"

#include <QAction>
#include <QElapsedTimer>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>

using namespace ko;
using testsupport::child;
using testsupport::PlainSql;

/// What becomes of work that cannot be stored while many cameras are assigned their folders.
class tst_StoreFailure : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void retryStoresAll();
    void discardLeavesAllAsTheyWere();
    void namesAreShownAsTheyAre();
    void importTellsWhatIsStored();

private:
    void assign();
    QMessageBox* failureBox();
    int assigned();

    std::unique_ptr<testsupport::HostFixture> m_host;
    std::unique_ptr<MainWindow> m_window;
    std::unique_ptr<PlainSql> m_other; ///< another program that holds the file, and looks into it
    QStringList m_cameras;
};

void tst_StoreFailure::init()
{
    m_host = std::make_unique<testsupport::HostFixture>();
    m_cameras.clear();
    for (int i = 0; i < 40; ++i) {
        m_cameras.append(m_host->add(IPDeviceType, QStringLiteral("Camera %1").arg(i)));
        m_host->change(m_cameras.constLast(), [i](Node* node) {
            node->setStringProperty(QStringLiteral("FactoryIP"), QStringLiteral("10_0_0_%1").arg(i + 1));
        });
    }
    QVERIFY(m_host->db()->flush());
    m_window = std::make_unique<MainWindow>(*m_host->db());
    m_window->show();
    m_other = std::make_unique<PlainSql>(m_host->fileName());
}

void tst_StoreFailure::cleanup()
{
    m_other.reset();
    m_window.reset();
    m_host.reset();
}

void tst_StoreFailure::assign()
{
    RecordingFolderMassAssignmentDialog dialog(m_window.get(), m_cameras, Qt::Dialog);
    child<QRadioButton>(&dialog, "specificFileServerPathRadioButton")->setChecked(true);
    child<QLineEdit>(&dialog, "pathLineEdit")->setText(QStringLiteral("/mnt/recordings"));
    const ChangeScope scope(*m_host->db(), Cause::now(Purpose::Recording)); // as the client does it
    dialog.accept();
}

QMessageBox* tst_StoreFailure::failureBox()
{
    return m_window->findChild<QMessageBox*>(QStringLiteral("storeFailedBox"));
}

/// Cameras that are assigned on the disk: usage, relation, folder and path, or none of it.
int tst_StoreFailure::assigned()
{
    const int usages = m_other->run("SELECT count(*) FROM nodes WHERE type = 2 AND recording = 2").toInt();
    const int relations = m_other->run("SELECT count(*) FROM relations WHERE type = 1").toInt();
    const int folders = m_other->run("SELECT count(*) FROM nodes WHERE type = 0").toInt();
    const int paths = m_other
                          ->run("SELECT count(*) FROM properties WHERE key = 'Path' AND value LIKE"
                                " '/mnt/recordings/10_0_0_%'")
                          .toInt();
    return usages == relations && usages == folders && usages == paths ? usages : -1;
}

void tst_StoreFailure::retryStoresAll()
{
    m_other->run("BEGIN IMMEDIATE");
    assign();
    KO_TRY_VERIFY(failureBox());
    QCOMPARE(assigned(), 0);
    QVERIFY(failureBox()->informativeText().contains(QStringLiteral("    Camera 0\n")));
    QVERIFY(failureBox()->informativeText().contains(QStringLiteral("more")));
    m_other->run("ROLLBACK");
    const QList<QAbstractButton*> buttons = failureBox()->buttons();
    for (QAbstractButton* button : buttons) {
        if (button->text().remove(QLatin1Char('&')) == QStringLiteral("Retry"))
            QTest::mouseClick(button, Qt::LeftButton);
    }
    KO_TRY_VERIFY(!m_host->db()->hasUnstoredChanges());
    QCOMPARE(assigned(), 40);
}

void tst_StoreFailure::discardLeavesAllAsTheyWere()
{
    m_other->run("BEGIN IMMEDIATE");
    assign();
    KO_TRY_VERIFY(failureBox());
    m_other->run("ROLLBACK");
    const QList<QAbstractButton*> buttons = failureBox()->buttons();
    for (QAbstractButton* button : buttons) {
        if (button->text().remove(QLatin1Char('&')) == QStringLiteral("Discard Changes"))
            QTest::mouseClick(button, Qt::LeftButton);
    }
    QVERIFY(!m_host->db()->hasUnstoredChanges());
    QCOMPARE(assigned(), 0);
    for (const QString& id : std::as_const(m_cameras)) {
        QCOMPARE(m_host->db()->node(id)->intProperty(QStringLiteral("RecordingStorageUsage"), -1), 0);
        QVERIFY(m_host->db()->relatedNodes(id, RecordingFolderRelation).isEmpty());
    }
}

void tst_StoreFailure::namesAreShownAsTheyAre()
{
    m_other->run("BEGIN IMMEDIATE");
    m_host->change(m_cameras.constFirst(), [](Node* node) {
        node->setStringProperty(QStringLiteral("Name"), QStringLiteral("<b>%1 & %n"));
    });
    KO_TRY_VERIFY(failureBox());
    QCOMPARE(failureBox()->textFormat(), Qt::PlainText);
    QVERIFY(failureBox()->informativeText().endsWith(QStringLiteral("\n    <b>%1 & %n")));
    m_other->run("ROLLBACK");
    QTRY_VERIFY_WITH_TIMEOUT(!failureBox() || !failureBox()->isVisible(), 8000); // tried again by itself
    QVERIFY(!m_host->db()->hasUnstoredChanges());
}

void tst_StoreFailure::importTellsWhatIsStored()
{
    const QString list = m_host->fileName() + QStringLiteral(".csv");
    QFile file(list);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("name,address\n");
    for (int i = 0; i < 1000; ++i)
        file.write(QStringLiteral("New %1,10.1.%2.%3\n").arg(i).arg(i / 200).arg(i % 200).toLatin1());
    file.close();
    int inserted = 0;
    QElapsedTimer held; ///< since the other program has the file
    connect(m_host->db(), &NodeDB::nodeInserted, this, [&] {
        if (++inserted != 250)
            return;
        QTimer::singleShot(0, this,
                           [&] { // between two parts of the list; within one, the import keeps others out
                               m_other->run("BEGIN IMMEDIATE");
                               held.start();
                           });
    });
    QString told;
    bool otherBox = true;
    std::unique_ptr<testsupport::ModalAnswer> report;
    const testsupport::ModalAnswer chooser([&](QDialog* dialog) {
        report = std::make_unique<testsupport::ModalAnswer>([&](QDialog* shown) {
            told = child<QLabel>(shown, "summaryLabel")->text();
            otherBox = failureBox();
            shown->reject();
        });
        qobject_cast<QFileDialog*>(dialog)->selectFile(list);
        dialog->accept();
    });
    child<QAction>(m_window.get(), "actionImport")->trigger();
    QVERIFY(report && report->fired());
    QVERIFY2(held.isValid() && held.elapsed() < 10000,
             qPrintable(QString::number(held.elapsed()))); // few attempts
    const int stored = m_other->run("SELECT count(*) FROM nodes WHERE name LIKE 'New %'").toInt();
    QVERIFY(stored >= 250 && stored < 1000);
    QVERIFY2(told.contains(QStringLiteral("%1 added, 0 updated").arg(stored)), qPrintable(told));
    QVERIFY2(told.contains(QStringLiteral("held by another program")) &&
                 told.contains(QStringLiteral("has stopped")),
             qPrintable(told));
    QVERIFY(!otherBox);
    QCOMPARE(int(m_host->db()->summaries().size()), 40 + stored);
    // What waits now is the entry of the log about those that are stored.
    KO_TRY_VERIFY(failureBox());
    QVERIFY(!failureBox()->informativeText().contains(QStringLiteral("New ")));
    m_other->run("ROLLBACK");
    const QList<QAbstractButton*> buttons = failureBox()->buttons();
    for (QAbstractButton* button : buttons) {
        if (button->text().remove(QLatin1Char('&')) == QStringLiteral("Retry"))
            QTest::mouseClick(button, Qt::LeftButton);
    }
    KO_TRY_VERIFY(!m_host->db()->hasUnstoredChanges());
    QCOMPARE(m_other->run("SELECT count(*) FROM nodes").toInt(), 40 + stored);
    const QString entry = m_host->db()->auditLog().entries(0, 1, true).front().entry->text();
    QVERIFY2(entry.contains(QStringLiteral(": %1 added").arg(stored)), qPrintable(entry));
}

KO_TEST_MAIN(tst_StoreFailure)
#include "tst_storefailure.moc"
