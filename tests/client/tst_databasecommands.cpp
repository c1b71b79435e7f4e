#include "client/WindowFixture.h"
#include "support/Answers.h"
#include "support/Patience.h"
#include "support/TestMain.h"

#include "DatabaseCommands.h"
#include "store/StoreBackup.h"

#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QSettings>
#include <QStatusBar>

using namespace ko;
using testsupport::Answers;
using testsupport::child;
using testsupport::ModalAnswer;

namespace {

Answers::Action choosing(const QString& file)
{
    return [file](QDialog* dialog) {
        auto* field = child<QLineEdit>(dialog, "fileNameEdit");
        field->setText(file);
        QTest::keyClick(field, Qt::Key_Return);
    };
}

} // namespace

/// The database as a file: another one, a copy, and back again.
class tst_DatabaseCommands : public QObject, protected testsupport::WindowFixture
{
    Q_OBJECT

private slots:
    void init()
    {
        QSettings().remove("recentDatabases");
        openWindow();
    }
    void cleanup() { closeWindow(); }

    void anotherIsOpened();
    void newOneReplacesNothing();
    void backUpAndRestore();
    void backUpThatFails();
    void restoreIsNotTheDefault();
    void recentOnes();

private:
    QString path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }
    void touch(const QString& file)
    {
        QFile made(file);
        QVERIFY(made.open(QIODevice::WriteOnly) && made.write("x") == 1);
    }

    QTemporaryDir m_folder;
};

void tst_DatabaseCommands::anotherIsOpened()
{
    touch(path("other.kodb"));
    QCOMPARE(m_window->next(), QString());
    const Answers answers({choosing(path("other.kodb"))});
    trigger("actionOpen");
    QCOMPARE(answers.opened().size(), 1);
    QVERIFY(!m_window->isVisible());
    QCOMPARE(m_window->next(), path("other.kodb"));
}

void tst_DatabaseCommands::newOneReplacesNothing()
{
    touch(path("there.kodb"));
    QString text;
    {
        const Answers answers({choosing(path("there.kodb")), [&text](QDialog* box) {
                                   text = qobject_cast<QMessageBox*>(box)->text();
                                   box->accept();
                               }});
        trigger("actionNew");
        QCOMPARE(answers.opened().size(), 2);
    }
    QVERIFY2(text.contains("there.kodb"), qPrintable(text));
    QVERIFY(m_window->isVisible());
    const Answers answers({choosing(path("new.kodb"))});
    trigger("actionNew");
    QCOMPARE(m_window->next(), path("new.kodb"));
    QVERIFY(!QFileInfo::exists(path("new.kodb"))); // whoever opens it makes it
}

void tst_DatabaseCommands::backUpAndRestore()
{
    {
        const Answers answers({choosing(path("copy.kodb"))});
        trigger("actionBackUp");
        QCOMPARE(answers.opened().size(), 1);
    }
    StoreError error;
    QVERIFY2(StoreBackup::verify(path("copy.kodb"), &error), qPrintable(error.message));
    QVERIFY(m_window->statusBar()->currentMessage().contains("copy.kodb"));

    const QString yard = idOf("Yard");
    m_host->db()->removeNode(yard);
    m_host->add(IPDeviceType, "Later", "10.0.0.77");
    m_host->db()->flush();
    m_window->applyChanges();
    const Answers answers({choosing(path("copy.kodb")), ModalAnswer::press("Restore")});
    trigger("actionRestore");
    QCOMPARE(answers.opened().value(1), QString("restoreBox"));
    QVERIFY(m_window->statusBar()->currentMessage().contains("copy.kodb"));
    KO_TRY_COMPARE(idOf("Yard"), yard);
    QVERIFY(idOf("Later").isEmpty());
    m_window->applyChanges();
    QCOMPARE(m_view->model()->rowCount(), 5);
    // What was there before is not lost, and the window goes on with what is there now.
    QVERIFY(!StoreBackup::backups(m_host->db()->fileName()).isEmpty());
    m_host->add(IPDeviceType, "After", "10.0.0.78");
    QVERIFY(m_host->db()->flush());
    m_host->reopen();
    QVERIFY(!idOf("After").isEmpty() && !idOf("Yard").isEmpty());
}

void tst_DatabaseCommands::backUpThatFails()
{
    touch(path("no-database"));
    QString text;
    const Answers answers({choosing(path("no-database")), ModalAnswer::press("Yes"), [&text](QDialog* box) {
                               text = qobject_cast<QMessageBox*>(box)->text();
                               box->accept();
                           }});
    trigger("actionBackUp");
    QCOMPARE(answers.opened().size(), 3);
    QVERIFY2(text.contains("no-database"), qPrintable(text));
    QCOMPARE(QFileInfo(path("no-database")).size(), qint64(1));
}

void tst_DatabaseCommands::restoreIsNotTheDefault()
{
    StoreError error;
    QVERIFY(m_host->db()->flush());
    QVERIFY(StoreBackup::write(m_host->db()->fileName(), path("copy2.kodb"), &error));
    const QString later = m_host->add(IPDeviceType, "Later", "10.0.0.77");
    const Answers answers(
        {choosing(path("copy2.kodb")), [](QDialog* box) { QTest::keyClick(box, Qt::Key_Return); }});
    trigger("actionRestore");
    QCOMPARE(answers.opened().size(), 2);
    QCOMPARE(idOf("Later"), later);
}

void tst_DatabaseCommands::recentOnes()
{
    const auto shown = [this] {
        auto* menu = child<QMenu>(m_window.get(), "recentMenu");
        emit menu->aboutToShow();
        QStringList texts;
        const QList<QAction*> actions = menu->actions();
        for (const QAction* action : actions) {
            if (action->isEnabled())
                texts.append(action->text());
        }
        return texts;
    };
    QCOMPARE(shown(), QStringList());
    for (int i = 0; i < 10; ++i) {
        const QString file = path(qPrintable(QString("%1 & co.kodb").arg(i)));
        touch(file);
        DatabaseCommands::addRecent(file);
    }
    DatabaseCommands::addRecent(path("5 & co.kodb"));
    QVERIFY(QFile::remove(path("9 & co.kodb")));
    DatabaseCommands::addRecent(m_host->db()->fileName()); // is open
    QCOMPARE(shown().size(), 7);
    QCOMPARE(shown().constFirst(), path("5 && co.kodb"));
    QCOMPARE(shown().at(1), path("8 && co.kodb"));
    child<QMenu>(m_window.get(), "recentMenu")->actions().at(1)->trigger();
    KO_TRY_COMPARE(m_window->next(), path("8 & co.kodb"));
    QVERIFY(!m_window->isVisible());
}

KO_TEST_MAIN(tst_DatabaseCommands)
#include "tst_databasecommands.moc"
