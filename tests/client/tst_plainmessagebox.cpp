#include "support/HostFixture.h"
#include "support/ModalAnswer.h"
#include "support/Patience.h"
#include "support/PlainTexts.h"
#include "support/TestMain.h"

#include "ImportReportDialog.h"
#include "MainWindow.h"
#include "PlainMessageBox.h"
#include "RemoveNodesBox.h"

#include <QAction>
#include <QDir>
#include <QLineEdit>
#include <QPushButton>
#include <QSqlDatabase>
#include <QSqlQuery>

using namespace ko;
using testsupport::child;
using testsupport::textsNotShownAsTheyAre;

/// Boxes that name a database or nodes whose names look like markup.
class tst_PlainMessageBox : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void bothTexts();
    void changedWhileShown();
    void changesAreNotStored();
    void damageIsFound();
    void exportFails();
    void nodesAreRemoved();
    void importIsReported();
    void titleOfTheWindow();

private:
    void lock();
    void closeNextBox();

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_file;
    std::unique_ptr<HostNodeDB> m_db;
    std::unique_ptr<MainWindow> m_window;
    std::unique_ptr<testsupport::ModalAnswer> m_answer;
    QString m_told;
    QStringList m_notPlain;
};

void tst_PlainMessageBox::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("<b>bold<")));
    m_file = m_folder->filePath(QStringLiteral("<b>bold</b><img src=x>[*].kodb"));
    StoreError error;
    m_db = HostNodeDB::open(m_file, &error);
    QVERIFY(m_db);
    m_window = std::make_unique<MainWindow>(*m_db);
    m_window->show();
    m_told.clear();
    m_notPlain.clear();
}

void tst_PlainMessageBox::cleanup()
{
    m_answer.reset();
    m_window.reset();
    m_db.reset();
}

/// Another program keeps the database from being written until closeNextBox() has seen a box.
void tst_PlainMessageBox::lock()
{
    QSqlDatabase other = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("other"));
    other.setDatabaseName(m_file);
    QVERIFY(other.open());
    QVERIFY(QSqlQuery(other).exec(QStringLiteral("BEGIN IMMEDIATE")));
}

void tst_PlainMessageBox::closeNextBox()
{
    m_answer = std::make_unique<testsupport::ModalAnswer>([this](QDialog* dialog) {
        if (const auto* box = qobject_cast<QMessageBox*>(dialog))
            m_told = box->text();
        m_notPlain = textsNotShownAsTheyAre(dialog);
        QSqlDatabase::database(QStringLiteral("other"), false).close();
        dialog->reject();
    });
}

void tst_PlainMessageBox::bothTexts()
{
    PlainMessageBox box(QMessageBox::Warning, QStringLiteral("title"), QStringLiteral("<b>text</b>"),
                        QMessageBox::Ok, nullptr);
    box.setInformativeText(QStringLiteral("<img src=x> more"));
    box.show();
    QCOMPARE(textsNotShownAsTheyAre(&box), QStringList());
    QCOMPARE(box.informativeText(), QStringLiteral("<img src=x> more"));
}

void tst_PlainMessageBox::changedWhileShown()
{
    PlainMessageBox box(QMessageBox::Warning, QStringLiteral("title"), QStringLiteral("text"),
                        QMessageBox::Ok, nullptr);
    box.show();
    box.setText(QStringLiteral("<b>text</b>"));
    box.setInformativeText(QStringLiteral("<b>more</b>"));
    box.setInformativeText(QStringLiteral("<b>and more</b>"));
    QCOMPARE(textsNotShownAsTheyAre(&box), QStringList());
}

void tst_PlainMessageBox::changesAreNotStored()
{
    lock();
    closeNextBox();
    const auto hint = NodeTypes::driver(IPDeviceType)->createNodeHint(IPDeviceType);
    hint->setName(QStringLiteral("<b>camera</b>"));
    m_db->newNodeHint(*hint);
    KO_TRY_VERIFY(m_told.contains(QStringLiteral("<b>bold</b><img src=x>")));
    QCOMPARE(m_notPlain, QStringList());
    QVERIFY(m_db->flush());
}

void tst_PlainMessageBox::damageIsFound()
{
    closeNextBox();
    emit m_db->storeDamaged(StoreError::make(StoreError::Damaged, m_file, QString()));
    QVERIFY(m_told.contains(QStringLiteral("<b>bold</b><img src=x>")));
    QCOMPARE(m_notPlain, QStringList());
}

void tst_PlainMessageBox::exportFails()
{
    const QDir folder(m_folder->path());
    QVERIFY(folder.mkdir(QStringLiteral("<b>list<")));
    QTimer user;
    connect(&user, &QTimer::timeout, this, [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        auto* box = qobject_cast<QMessageBox*>(dialog);
        if (!dialog)
            return;
        if (!box) {
            child<QLineEdit>(dialog, "fileNameEdit")
                ->setText(folder.filePath(QStringLiteral("<b>list</b>.csv")));
            dialog->accept();
        } else if (box->standardButtons() & QMessageBox::No) {
            QVERIFY(folder.rmdir(QStringLiteral("<b>list<")));
            box->button(QMessageBox::No)->click();
        } else {
            m_told = box->text();
            m_notPlain = textsNotShownAsTheyAre(box);
            box->accept();
        }
    });
    user.start(5);
    child<QAction>(m_window.get(), "actionExport")->trigger();
    QVERIFY2(m_told.contains(QStringLiteral("<b>list</b>.csv")), qPrintable(m_told));
    QCOMPARE(m_notPlain, QStringList());
}

void tst_PlainMessageBox::nodesAreRemoved()
{
    closeNextBox();
    QCOMPARE(askToRemove({QStringLiteral("<b>camera</b>")}, {}, m_window.get()), Removal::None);
    QVERIFY(m_told.contains(QStringLiteral("<b>camera</b>")));
    QCOMPARE(m_notPlain, QStringList());
}

void tst_PlainMessageBox::importIsReported()
{
    CameraSurvey::ImportResult result;
    result.error = QStringLiteral("<b>in.csv</b> cannot be read");
    result.ignoredColumns.append(QStringLiteral("<b>title</b>"));
    QCOMPARE(textsNotShownAsTheyAre(std::make_unique<ImportReportDialog>(result).get()), QStringList());
}

/// The toolkit's mark for unsaved changes may be part of a name.
void tst_PlainMessageBox::titleOfTheWindow()
{
    QCOMPARE(m_window->windowTitle(), QStringLiteral("b><img src=x>[*][*].kodb - Nodes"));
}

KO_TEST_MAIN(tst_PlainMessageBox)
#include "tst_plainmessagebox.moc"
